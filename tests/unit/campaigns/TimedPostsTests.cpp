// SPDX-License-Identifier: MIT
#include "PostRun.h"
#include "campaigns/BulletinPoster.h"
#include "campaigns/StatusUpdater.h"
#include "steps/Steps.h"

#include <gtest/gtest.h>

namespace qlm {
namespace {

class TimedPostsTest : public PostRun {
protected:
    TimedPostsTest() : PostRun(false) {}
    QStringList Fields(const Campaign& campaign) {
        return {app->controls.Text(campaign.amount), app->controls.Text(campaign.timing.from),
                app->controls.Text(campaign.timing.to)};
    }
    void Type(const Campaign& campaign, const QStringList& texts) {
        app->controls.SetText(campaign.amount, texts[0]);
        app->controls.SetText(campaign.timing.from, texts[1]);
        app->controls.SetText(campaign.timing.to, texts[2]);
    }
};

struct RepairRow {
    QStringList typed; // amount, from, to
    QStringList atStart;
    QStringList atBulletinTick;
    QStringList atStatusTick;
};

const std::vector<RepairRow>& Repairs() {
    static const std::vector<RepairRow> rows{
        {{u" 3 "_s, u" 7 "_s, u" 9 "_s},
         {u"3"_s, u"7"_s, u"9"_s},
         {u"3"_s, u"7"_s, u"9"_s},
         {u" 3 "_s, u"7"_s, u"9"_s}},
        {{u"x"_s, u"abc"_s, u"5"_s},
         {u"1"_s, u"60"_s, u"60"_s},
         {u"1"_s, u"2"_s, u"5"_s},
         {u"x"_s, u"60"_s, u"60"_s}},
        {{u""_s, u"10"_s, u"y"_s},
         {u"1"_s, u"10"_s, u"10"_s},
         {u"1"_s, u"10"_s, u"10"_s},
         {u""_s, u"10"_s, u"10"_s}},
        {{u"2"_s, u"10"_s, u"9"_s},
         {u"2"_s, u"10"_s, u"10"_s},
         {u"2"_s, u"10"_s, u"10"_s},
         {u"2"_s, u"10"_s, u"10"_s}},
        {{u"123456789"_s, u"123456789"_s, u"223456789"_s},
         {u"12345678"_s, u"12345678"_s, u"12345678"_s},
         {u"12345678"_s, u"12345678"_s, u"12345678"_s},
         {u"123456789"_s, u"123456789"_s, u"123456789"_s}},
        {{u"2"_s, u"5"_s, u"123456789"_s},
         {u"2"_s, u"5"_s, u"5"_s},
         {u"2"_s, u"5"_s, u"5"_s},
         {u"2"_s, u"5"_s, u"5"_s}},
    };
    return rows;
}

TEST_F(TimedPostsTest, WhatIsNoNumberBecomesOne) {
    for (const RepairRow& row : Repairs()) {
        const std::string typed = row.typed.join(u'|').toStdString();
        Type(Bulletins, row.typed);
        app->Get<BulletinPoster>().Repair();
        EXPECT_EQ(Fields(Bulletins), row.atStart) << typed;
        Type(StatusUpdates, row.typed);
        app->Get<StatusUpdater>().Repair();
        EXPECT_EQ(Fields(StatusUpdates), row.atStart) << typed;
    }
}

TEST_F(TimedPostsTest, AMinutesTickRepairsInItsOwnWay) {
    State().CurrentAction = u"SCANNING"_s; // nothing falls due
    State().lngBulWaitMinutes = State().lngStatusWaitMinutes = 100;
    for (const RepairRow& row : Repairs()) {
        const std::string typed = row.typed.join(u'|').toStdString();
        Type(Bulletins, row.typed);
        Type(StatusUpdates, row.typed);
        app->timers->tmrBulletinWait.Restart();
        app->timers->tmrStatusUpdatesWait.Restart();
        platform->Pump().RunFor(60'000);
        EXPECT_EQ(Fields(Bulletins), row.atBulletinTick) << typed;
        EXPECT_EQ(Fields(StatusUpdates), row.atStatusTick) << typed;
    }
}

// Chance that is drawn from the end rounds up to the last minute, never beyond.
TEST_F(TimedPostsTest, TheMinutesAreDrawnWithinTheirBounds) {
    for (const auto& [drawn, minutes] : {std::pair{0.0, 60}, {0.4, 72}, {0.5, 75}, {0.999999, 90}}) {
        world.random.SetNumbers({drawn});
        Type(Bulletins, {u"2"_s, u"60"_s, u"90"_s});
        StartBulletins();
        platform->Pump().RunUntil([this] { return State().blnBulletinWaiting; }, 60'000);
        EXPECT_EQ(State().lngBulWaitMinutes, minutes) << drawn;
        app->commands.Run(u"piccmdBulStop_Click"_s);
    }
}

TEST_F(TimedPostsTest, AStepThatRestsOnlySaysSo) {
    State().CurrentAction = u"BUL"_s;
    State().intBulStep = BulletinStep::Rest;
    Browser().TakeVisited();
    app->Get<BulletinPoster>().IterateSendBulletins();
    EXPECT_EQ(State().intBulStep, BulletinStep::Rest);
    EXPECT_TRUE(Browser().TakeVisited().isEmpty());
    EXPECT_EQ(trail.last(), u"5"_s);
}

TEST_F(TimedPostsTest, AConfirmPageIsPressedByItsCaption) {
    State().CurrentAction = u"BUL"_s;
    Show(u"{SiteRootHost}/confirm"_s, u"<form method=post action=/bulletins/posted><input type=submit value='Post'>"
                             "<input type=submit value='POST Bulletin'></form>"_s);
    app->Get<BulletinPoster>().ConfirmBulletin();
    EXPECT_EQ(State().intBulStep, BulletinStep::Posted);
    EXPECT_EQ(app->Status(), u"Bulletin confirmed, waiting for MySpace confirmation..."_s);
    platform->Pump().RunFor(1000);
    EXPECT_EQ(Posted(), QStringList{u"posted"_s});
    Show(u"{SiteRootHost}/other"_s, u"<input type=submit value='Post'>"_s);
    app->Get<BulletinPoster>().ConfirmBulletin();
    EXPECT_EQ(State().intBulStep, BulletinStep::Open);
}

TEST_F(TimedPostsTest, NothingAsksWhetherAStatusUpdateIsPosted) {
    EXPECT_FALSE(StatusUpdater::IsStatusUpdatePosted());
}

} // namespace
} // namespace qlm
