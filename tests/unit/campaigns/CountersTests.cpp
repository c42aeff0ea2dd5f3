// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "campaigns/Counters.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class CountersTest : public SimulatedProgram {
protected:
    CountersTest() {
        app->state.AccountEmail = u"a@example.com"_s;
        app->state.CurrentAction = u"FR"_s;
        world.http.Set(u"http://product.example.com/dateandtime.php"_s, u"2009-06-02"_s);
    }

    const QString counters = u"Counters\\a@example.com"_s;
    const QString tracking = u"Daily Tracking\\a@example.com"_s;

    QString Stored(const QString& key) { return world.settings.GetSetting(counters, key, u"none"_s); }
    QString Day() { return world.settings.GetSetting(tracking, u"Daily Limit - Date"_s, u"none"_s); }
    void StoreDay(const QString& day) { world.settings.SaveSetting(tracking, u"Daily Limit - Date"_s, day); }
    void StoreCount(const QString& key, const QString& count) {
        world.settings.SaveSetting(counters, key, count);
    }
};

TEST_F(CountersTest, TheSameDayGoesOn) {
    StoreDay(u"2009-06-02"_s);
    StoreCount(u"Daily Friends Count"_s, u"17"_s);
    app->counters->Restore();
    EXPECT_EQ(app->state.lngDailyFR, 17);
    EXPECT_EQ(app->controls.Text("lblFrTotalToday"_L1), u"Total Today: 17"_s);
}

TEST_F(CountersTest, AnEarlierDayClearsAndStoresToday) {
    StoreDay(u"2009-06-01"_s);
    for (const QString& key :
         {u"Daily Friends Count"_s, u"Daily Statuses Count"_s, u"Daily Group Invites Count"_s})
        StoreCount(key, u"9"_s);
    app->counters->Restore();
    EXPECT_EQ(app->state.lngDailyFR, 0);
    EXPECT_EQ(app->state.lngDailyStatus, 0);
    EXPECT_EQ(Stored(u"Daily Friends Count"_s), u"0"_s);
    EXPECT_EQ(Stored(u"Daily Group Invites Count"_s), u"0"_s);
    EXPECT_EQ(app->controls.Text("lblFrTotalToday"_L1), u"Total Today: 0"_s);
    EXPECT_EQ(Day(), u"2009-06-02"_s);
}

TEST_F(CountersTest, TheStoredStatusCountSurvivesTheReset) {
    StoreDay(u"2009-06-01"_s);
    StoreCount(u"Daily Statuses Count"_s, u"9"_s);
    app->counters->Restore();
    EXPECT_EQ(Stored(u"Daily Statuses Count"_s), u"9"_s);
    EXPECT_EQ(Stored(u"Daily Status Updates Count"_s), u"0"_s);
}

TEST_F(CountersTest, ALaterStoredDayCountsAsToday) {
    StoreDay(u"2009-07-01"_s);
    StoreCount(u"Daily Friends Count"_s, u"3"_s);
    app->counters->Restore();
    EXPECT_EQ(app->state.lngDailyFR, 3);
}

TEST_F(CountersTest, AFirstLoginStoresTheDay) {
    app->counters->Restore();
    EXPECT_EQ(Day(), u"2009-06-02"_s);
    EXPECT_EQ(app->state.lngDailyFR, 0);
}

TEST_F(CountersTest, AServerDayThatIsNoDateChangesAndStoresNothing) {
    world.http.Set(u"http://product.example.com/dateandtime.php"_s, u"<html>soon</html>"_s);
    StoreDay(u"2009-06-01"_s);
    StoreCount(u"Daily Friends Count"_s, u"17"_s);
    app->counters->Restore();
    EXPECT_EQ(app->state.lngDailyFR, 17);
    EXPECT_EQ(Day(), u"2009-06-01"_s);
}

TEST_F(CountersTest, OneRequestCountsForTheDayAndTheRunAndIsStoredAtOnce) {
    app->state.lngDailyFR = 4;
    const int syncsBefore = world.settings.syncs;
    EXPECT_TRUE(app->counters->AddFriendCount());
    EXPECT_EQ(Stored(u"Daily Friends Count"_s), u"5"_s);
    EXPECT_EQ(app->controls.Text("lblFrTotalToday"_L1), u"Total Today: 5"_s);
    EXPECT_EQ(app->controls.Text("lblFrSentCount"_L1), u"Friends Requested: 1"_s);
    EXPECT_GT(world.settings.syncs, syncsBefore);
}

TEST_F(CountersTest, ALimitOfOneCountsOneAndStopsAtTheNext) {
    app->controls.SetText("txtFriendRequestsToSend"_L1, u"1"_s);
    EXPECT_TRUE(app->counters->AddFriendCount());
    EXPECT_FALSE(app->counters->AddFriendCount());
    EXPECT_TRUE(app->state.CurrentAction.isEmpty());
    EXPECT_EQ(app->state.lngSessionFR, 1);
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Your specified limit has been reached"_s});
}

TEST_F(CountersTest, PerDayLooksAtTheDay) {
    app->controls.SetText("txtFriendRequestsToSend"_L1, u"10"_s);
    app->controls.SetText("cboFRPerDayOrSession"_L1, u"per day"_s);
    app->state.lngDailyFR = 10;
    EXPECT_FALSE(app->counters->AddFriendCount());
    app->state.CurrentAction = u"FR"_s;
    app->controls.SetText("cboFRPerDayOrSession"_L1, u"this session"_s);
    EXPECT_TRUE(app->counters->AddFriendCount());
}

} // namespace
} // namespace qlm
