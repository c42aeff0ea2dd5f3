// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "campaigns/Campaigns.h"
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
    app->Get<Counters>().Restore();
    EXPECT_EQ(app->state.lngDailyFR, 17);
    EXPECT_EQ(app->controls.Text("lblFrTotalToday"_L1), u"Total Today: 17"_s);
}

TEST_F(CountersTest, AnEarlierDayClearsAndStoresToday) {
    StoreDay(u"2009-06-01"_s);
    for (const QString& key :
         {u"Daily Friends Count"_s, u"Daily Statuses Count"_s, u"Daily Group Invites Count"_s})
        StoreCount(key, u"9"_s);
    app->Get<Counters>().Restore();
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
    app->Get<Counters>().Restore();
    EXPECT_EQ(Stored(u"Daily Statuses Count"_s), u"9"_s);
    EXPECT_EQ(Stored(u"Daily Status Updates Count"_s), u"0"_s);
}

TEST_F(CountersTest, ALaterStoredDayCountsAsToday) {
    StoreDay(u"2009-07-01"_s);
    StoreCount(u"Daily Friends Count"_s, u"3"_s);
    app->Get<Counters>().Restore();
    EXPECT_EQ(app->state.lngDailyFR, 3);
}

TEST_F(CountersTest, AFirstLoginStoresTheDay) {
    app->Get<Counters>().Restore();
    EXPECT_EQ(Day(), u"2009-06-02"_s);
    EXPECT_EQ(app->state.lngDailyFR, 0);
}

TEST_F(CountersTest, AServerDayThatIsNoDateChangesAndStoresNothing) {
    world.http.Set(u"http://product.example.com/dateandtime.php"_s, u"<html>soon</html>"_s);
    StoreDay(u"2009-06-01"_s);
    StoreCount(u"Daily Friends Count"_s, u"17"_s);
    app->Get<Counters>().Restore();
    EXPECT_EQ(app->state.lngDailyFR, 17);
    EXPECT_EQ(Day(), u"2009-06-01"_s);
}

TEST_F(CountersTest, OneRequestCountsForTheDayAndTheRunAndIsStoredAtOnce) {
    app->state.lngDailyFR = 4;
    const int syncsBefore = world.settings.syncs;
    EXPECT_TRUE(app->Get<Counters>().Count(FriendRequests));
    EXPECT_EQ(Stored(u"Daily Friends Count"_s), u"5"_s);
    EXPECT_EQ(app->controls.Text("lblFrTotalToday"_L1), u"Total Today: 5"_s);
    EXPECT_EQ(app->controls.Text("lblFrSentCount"_L1), u"Friends Requested: 1"_s);
    EXPECT_GT(world.settings.syncs, syncsBefore);
}

TEST_F(CountersTest, ALimitOfOneCountsOneAndStopsAtTheNext) {
    app->controls.SetText("txtFriendRequestsToSend"_L1, u"1"_s);
    EXPECT_TRUE(app->Get<Counters>().Count(FriendRequests));
    EXPECT_FALSE(app->Get<Counters>().Count(FriendRequests));
    EXPECT_TRUE(app->state.CurrentAction.isEmpty());
    EXPECT_EQ(app->state.lngSessionFR, 1);
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Your specified limit has been reached"_s});
}

TEST_F(CountersTest, PerDayLooksAtTheDay) {
    app->controls.SetText("txtFriendRequestsToSend"_L1, u"10"_s);
    app->controls.SetText("cboFRPerDayOrSession"_L1, u"per day"_s);
    app->state.lngDailyFR = 10;
    EXPECT_FALSE(app->Get<Counters>().Count(FriendRequests));
    app->state.CurrentAction = u"FR"_s;
    app->controls.SetText("cboFRPerDayOrSession"_L1, u"this session"_s);
    EXPECT_TRUE(app->Get<Counters>().Count(FriendRequests));
}

// A message or comment is counted first and the limit tested after it.
TEST_F(CountersTest, MessagesAndCommentsStopAtExactlyTheirLimit) {
    struct Case {
        const char16_t* word;
        QLatin1StringView limit;
        QLatin1StringView period;
        const Campaign& campaign;
    };
    for (const Case& each : {Case{u"MSG", "txtMsgStopAt"_L1, "cboMSGPerDayOrSession"_L1, Messages},
                             Case{u"COM", "txtComStopAt"_L1, "cboCOMPerDayOrSession"_L1, Comments}}) {
        const QString word = QString::fromUtf16(each.word);
        app->state.CurrentAction = word;
        dialogs.messages.clear();
        app->controls.SetText(each.limit, u"2"_s);
        app->Get<Counters>().Count(each.campaign);
        EXPECT_FALSE(app->Get<Counters>().StopAtLimit(each.campaign));
        app->Get<Counters>().Count(each.campaign);
        EXPECT_TRUE(app->Get<Counters>().StopAtLimit(each.campaign));
        EXPECT_TRUE(app->state.CurrentAction.isEmpty());
        EXPECT_EQ(dialogs.Texts(), QStringList{u"Your specified limit has been reached"_s});
        EXPECT_EQ(app->controls.Selected("TabStrip1"_L1), 0);
        // Another run, with two of today: only the day is full.
        app->state.lngSessionMsg = app->state.lngSessionCom = 0;
        EXPECT_FALSE(app->Get<Counters>().StopAtLimit(each.campaign));
        app->controls.SetText(each.period, u"per day"_s);
        EXPECT_TRUE(app->Get<Counters>().StopAtLimit(each.campaign));
        app->controls.SetText(each.limit, {});
        EXPECT_FALSE(app->Get<Counters>().StopAtLimit(each.campaign));
    }
}

TEST_F(CountersTest, EachCampaignCountsUnderItsKeyAndInItsWords) {
    struct Case {
        const char16_t* word;
        const char16_t* key;
        qint32 RunState::*daily;
        qint32 RunState::*session;
        QLatin1StringView sentLabel;
        const char16_t* sent;
        QLatin1StringView todayLabel;
    };
    app->controls.SetText("txtPostAmount"_L1, u"3"_s);
    app->controls.SetText("txtStatusPostAmount"_L1, u"4"_s);
    for (const Case& each : {
             Case{u"FR", u"Daily Friends Count", &RunState::lngDailyFR, &RunState::lngSessionFR,
                  "lblFrSentCount"_L1, u"Friends Requested: 2", "lblFrTotalToday"_L1},
             Case{u"MSG", u"Daily Messages Count", &RunState::lngDailyMsg, &RunState::lngSessionMsg,
                  "lblMsgSentCount"_L1, u"Messages sent: 2", "lblMsgTotalToday"_L1},
             Case{u"COM", u"Daily Comments Count", &RunState::lngDailyCom, &RunState::lngSessionCom,
                  "lblComSentCount"_L1, u"Comments sent: 2", "lblComTotalToday"_L1},
             Case{u"BUL",
                  u"Daily Bulletins Count",
                  &RunState::lngDailyBul,
                  &RunState::lngSessionBul,
                  "lblBulSentCount"_L1,
                  u"Bulletins sent: 2/3",
                  {}},
             Case{u"STATUSUPDATES",
                  u"Daily Statuses Count",
                  &RunState::lngDailyStatus,
                  &RunState::lngSessionStatus,
                  "lblStatusSentCount"_L1,
                  u"Statuses posted: 2/4",
                  {}},
         }) {
        app->state.*each.daily = 7;
        app->state.*each.session = 1;
        app->Get<Counters>().Count(*FindCampaign(QString::fromUtf16(each.word)));
        EXPECT_EQ(Stored(QString::fromUtf16(each.key)), u"8"_s);
        EXPECT_EQ(app->state.*each.session, 2);
        EXPECT_EQ(app->controls.Text(each.sentLabel), QString::fromUtf16(each.sent));
        if (!each.todayLabel.isEmpty()) {
            EXPECT_EQ(app->controls.Text(each.todayLabel), u"Total Today: 8"_s);
        }
    }
}

TEST_F(CountersTest, AMessageThatBelongsToARequestOrAnAcceptRunCountsNothing) {
    app->state.blnMsgAfterFR = true;
    app->Get<Counters>().Count(Messages);
    app->state.blnMsgAfterFR = false;
    app->state.strAcceptMode = u"MSG"_s;
    app->Get<Counters>().Count(Messages);
    app->Get<Counters>().Count(Comments);
    app->state.strAcceptMode.clear();
    app->state.strFRResumeURL = u"http://www.example.com/"_s;
    app->Get<Counters>().Count(Messages);
    EXPECT_EQ(app->state.lngDailyMsg, 0);
    EXPECT_EQ(app->state.lngSessionMsg, 0);
    EXPECT_EQ(app->state.lngDailyCom, 0);
    app->state.strFRResumeURL.clear();
    app->Get<Counters>().Count(Messages);
    app->Get<Counters>().Count(Comments);
    EXPECT_EQ(app->state.lngDailyMsg, 1);
    EXPECT_EQ(app->state.lngDailyCom, 1);
}

TEST_F(CountersTest, AtTheLimitAChainGoesOnWithoutAWord) {
    int handedOver = 0;
    app->commands.Add(u"LoginNextCycleAccount"_s, [&handedOver] { ++handedOver; });
    app->state.blnChaining = true;
    app->controls.SetText("txtFriendRequestsToSend"_L1, u"0"_s);
    EXPECT_FALSE(app->Get<Counters>().Count(FriendRequests));
    EXPECT_EQ(handedOver, 1);
    EXPECT_TRUE(dialogs.Texts().isEmpty());
}

TEST_F(CountersTest, ALimitThatIsReachedWhenTheProgramIsToExitEndsItWithoutAWord) {
    app->state.blnExitWhenFinished = true;
    app->controls.SetText("txtFriendRequestsToSend"_L1, u"0"_s);
    EXPECT_FALSE(app->Get<Counters>().Count(FriendRequests));
    EXPECT_TRUE(app->state.blnClosing);
    EXPECT_TRUE(dialogs.Texts().isEmpty());
}

TEST_F(CountersTest, EveryCounterIsReadAndClearedUnderItsKey) {
    struct Case {
        const char16_t* key;
        const char16_t* resetKey;
        qint32 RunState::*count;
    };
    const Case rows[] = {
        {u"Daily Friends Count", u"Daily Friends Count", &RunState::lngDailyFR},
        {u"Daily Messages Count", u"Daily Messages Count", &RunState::lngDailyMsg},
        {u"Daily Comments Count", u"Daily Comments Count", &RunState::lngDailyCom},
        {u"Daily Bulletins Count", u"Daily Bulletins Count", &RunState::lngDailyBul},
        {u"Daily Statuses Count", u"Daily Status Updates Count", &RunState::lngDailyStatus},
        {u"Daily Friend Request Accept Count", u"Daily Friend Request Accept Count",
         &RunState::lngDailyAccepted},
        {u"Daily Event Invites Count", u"Daily Event Invites Count", &RunState::lngDailyEventInvites},
        {u"Daily Group Invites Count", u"Daily Group Invites Count", &RunState::lngDailyGroupInvites},
    };
    int number = 10;
    for (const Case& row : rows)
        StoreCount(QString::fromUtf16(row.key), QString::number(++number));
    StoreDay(u"2009-06-02"_s);
    app->Get<Counters>().Restore();
    number = 10;
    for (const Case& row : rows)
        EXPECT_EQ(app->state.*row.count, ++number);
    EXPECT_EQ(app->controls.Text("lblMsgTotalToday"_L1), u"Total Today: 12"_s);
    EXPECT_EQ(app->controls.Text("lblComTotalToday"_L1), u"Total Today: 13"_s);
    StoreDay(u"2009-06-01"_s);
    app->Get<Counters>().Restore();
    for (const Case& row : rows) {
        EXPECT_EQ(app->state.*row.count, 0);
        EXPECT_EQ(Stored(QString::fromUtf16(row.resetKey)), u"0"_s);
    }
    EXPECT_EQ(app->controls.Text("lblMsgTotalToday"_L1), u"Total Today: 0"_s);
    EXPECT_EQ(app->controls.Text("lblComTotalToday"_L1), u"Total Today: 0"_s);
}

TEST_F(CountersTest, OnTheAlternateServerTheDayComesFromItsOwnPage) {
    app->state.ServerBaseURL = u"http://product2.example.com"_s;
    world.http.Set(u"http://product2.example.com/dateandtime.htm"_s, u"6/3/2009 10:00:00 AM"_s);
    StoreDay(u"2009-06-02"_s);
    StoreCount(u"Daily Friends Count"_s, u"9"_s);
    app->Get<Counters>().Restore();
    EXPECT_EQ(Day(), u"2009-06-03"_s);
    EXPECT_EQ(app->state.lngDailyFR, 0);
}

TEST_F(CountersTest, ACounterStaysAtTheMostThatItHolds) {
    constexpr qint32 most = std::numeric_limits<qint32>::max();
    for (const QString& stored : {u"2147483647"_s, u"2147483648"_s, u"99999999999999999999"_s}) {
        StoreDay(u"2009-06-02"_s);
        StoreCount(u"Daily Friends Count"_s, stored);
        app->Get<Counters>().Restore();
        EXPECT_EQ(app->state.lngDailyFR, most);
        app->state.lngSessionFR = most;
        app->controls.SetText("txtFriendRequestsToSend"_L1, {});
        app->Get<Counters>().Count(FriendRequests);
        EXPECT_EQ(app->state.lngDailyFR, most);
        EXPECT_EQ(app->state.lngSessionFR, most);
        EXPECT_EQ(Stored(u"Daily Friends Count"_s), u"2147483647"_s);
        // The limit for the day holds.
        app->state.CurrentAction = u"FR"_s;
        app->controls.SetText("txtFriendRequestsToSend"_L1, u"10"_s);
        app->controls.SetText("cboFRPerDayOrSession"_L1, u"per day"_s);
        EXPECT_FALSE(app->Get<Counters>().Count(FriendRequests));
    }
}

TEST_F(CountersTest, WhatIsNoCountIsNone) {
    StoreDay(u"2009-06-02"_s);
    for (const QString& stored : {u"-5"_s, u"-99999999999"_s, u"many"_s, u""_s}) {
        StoreCount(u"Daily Friends Count"_s, stored);
        app->Get<Counters>().Restore();
        EXPECT_EQ(app->state.lngDailyFR, 0);
    }
}

class UnsavedCountTest : public CountersTest {
protected:
    UnsavedCountTest() {
        app->controls.SetText("txtFriendRequestsToSend"_L1, u"5"_s);
        world.settings.problem = u"The settings could not be saved."_s;
        EXPECT_TRUE(app->Get<Counters>().Count(FriendRequests));
    }
    int TimesTold() {
        return static_cast<int>(
            app->files.ReadLines(app->state.ErrorLogPath).filter(u"could not be saved"_s).size());
    }
};

TEST_F(UnsavedCountTest, StopsARunWithALimitPerDay) {
    app->controls.SetText("cboFRPerDayOrSession"_L1, u"per day"_s);
    EXPECT_TRUE(app->Get<Counters>().StopUncounted());
    EXPECT_TRUE(app->state.CurrentAction.isEmpty());
    EXPECT_EQ(
        dialogs.Texts(),
        QStringList{u"Quillmere can't save how many you have sent today, so it can't keep your limit per "
                    "day. The run has been stopped."_s});
}

TEST_F(UnsavedCountTest, IsToldOnceAndOtherRunsGoOn) {
    EXPECT_EQ(TimesTold(), 1);
    EXPECT_EQ(dialogs.shownForms, QStringList{u"frmError"_s});
    EXPECT_FALSE(app->Get<Counters>().StopUncounted());
    app->controls.SetText("cboFRPerDayOrSession"_L1, u"per day"_s);
    app->controls.SetText("txtFriendRequestsToSend"_L1, {});
    EXPECT_FALSE(app->Get<Counters>().StopUncounted());
    EXPECT_TRUE(app->Get<Counters>().Count(FriendRequests));
    EXPECT_EQ(TimesTold(), 1);
    EXPECT_EQ(app->state.CurrentAction, u"FR"_s);
    // The store tells of its first failure alone; the counts stay unsaved.
    app->controls.SetText("txtFriendRequestsToSend"_L1, u"5"_s);
    EXPECT_TRUE(app->Get<Counters>().StopUncounted());
}

} // namespace
} // namespace qlm
