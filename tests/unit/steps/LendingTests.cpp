// SPDX-License-Identifier: MIT
#include "RequestRun.h"
#include "browser/Cover.h"
#include "campaigns/Pacing.h"
#include "core/ActivityWords.h"
#include "steps/Lending.h"
#include "steps/Steps.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

const QString Page = u"http://www.site.example.com/page"_s;

class LendingTest : public RequestRunTest {
protected:
    void BeginRun() {
        Show(u"{SiteRootHost}/page"_s, u"<p>first</p>"_s);
        BeginRequests(FriendStep::Submit);
        State().strLastPageText = u"before"_s;
        State().strLastPageHref = u"/before"_s;
        State().blnLastPageAsHTML = true;
        State().blnForceAdvance = true;
        State().blnLinkFound = true;
        State().blnHoldLinkCheck = false;
        app->timers->tmrAutoResume.Restart();
        app->timers->Timer1.Restart();
        Browser().TakeVisited();
    }
    void Take(Lending::Page page = Lending::Page::Kept) { lending.Take(ActivityWord::Bulletins, page); }
    Lending& lending = app->Get<Lending>();
};

TEST_F(LendingTest, AFreeBrowserIsTakenAndNobodyGetsItBack) {
    EXPECT_TRUE(lending.MayTake());
    Take();
    EXPECT_EQ(State().CurrentAction, u"BUL"_s);
    EXPECT_FALSE(lending.IsLent());
    EXPECT_FALSE(lending.GiveBack());
    EXPECT_EQ(State().CurrentAction, u"BUL"_s);
}

TEST_F(LendingTest, OnlySendRunsLendTheBrowserAndOnlyOnce) {
    for (const QString& action : {u"FR"_s, u"MSG"_s, u"COM"_s}) {
        State().CurrentAction = action;
        EXPECT_TRUE(lending.MayTake()) << action.toStdString();
    }
    for (const QString& action :
         {u"SCANNING"_s, u"LOGIN"_s, u"ACC"_s, u"DEL PEN"_s, u"INV"_s, u"BUL"_s, u"STATUSUPDATES"_s}) {
        State().CurrentAction = action;
        EXPECT_FALSE(lending.MayTake()) << action.toStdString();
    }
    State().CurrentAction = u"FR"_s;
    Take();
    State().CurrentAction = u"MSG"_s;
    EXPECT_FALSE(lending.MayTake());
}

TEST_F(LendingTest, EachLenderHasItsMark) {
    const std::vector<std::pair<QString, bool RunState::*>> rows{{u"FR"_s, &RunState::varResumeFR},
                                                                 {u"MSG"_s, &RunState::blnResumeMsg},
                                                                 {u"COM"_s, &RunState::blnResumeCom}};
    for (const auto& [action, mark] : rows) {
        State().CurrentAction = action;
        Take();
        for (const auto& row : rows)
            EXPECT_EQ(State().*row.second, row.second == mark) << action.toStdString();
        lending.GiveBack();
        EXPECT_FALSE(State().*mark) << action.toStdString();
        EXPECT_EQ(State().CurrentAction, action);
    }
}

TEST_F(LendingTest, TheBorrowerFindsNothingExpected) {
    BeginRun();
    State().blnHoldLinkCheck = true;
    Take();
    EXPECT_EQ(State().CurrentAction, u"BUL"_s);
    EXPECT_EQ(State().strLinkType + State().strLinkValue + State().strLastPageText + State().strLastPageHref,
              QString());
    EXPECT_FALSE(State().blnLinkFound || State().blnLastPageAsHTML || State().blnForceAdvance);
    EXPECT_FALSE(State().blnHoldLinkCheck);
    EXPECT_FALSE(app->timers->Timer1.Enabled());
    EXPECT_FALSE(app->timers->tmrCheckLinkLoaded.Enabled());
}

TEST_F(LendingTest, TheLenderFindsWhatItWaitedForAndItsPage) {
    BeginRun();
    Take();
    EXPECT_EQ(State().strResumeURL, Page);
    Show(u"{SiteRootHost}/bulletins/new"_s, u"<p>post</p>"_s);
    Browser().TakeVisited();
    Await(u"Text"_s, u"bulletin has been posted"_s);
    State().strLastPageText = u"of the bulletin"_s;
    State().blnSkipRequested = true;
    app->timers->Timer1.Restart();
    app->timers->tmrAutoResume.SetEnabled(false);

    EXPECT_TRUE(lending.GiveBack());
    EXPECT_EQ(State().CurrentAction, u"FR"_s);
    EXPECT_EQ(State().intFRStep, FriendStep::Submit);
    EXPECT_EQ(State().strLinkType, u"Text"_s);
    EXPECT_EQ(State().strLinkValue, u"Request Sent!"_s);
    EXPECT_EQ(State().strLastPageText, u"before"_s);
    EXPECT_EQ(State().strLastPageHref, u"/before"_s);
    EXPECT_TRUE(State().blnLastPageAsHTML);
    EXPECT_TRUE(State().blnForceAdvance);
    EXPECT_FALSE(State().blnLinkFound);
    EXPECT_FALSE(State().blnSkipRequested);
    EXPECT_EQ(State().strResumeURL, QString());
    EXPECT_FALSE(app->timers->Timer1.Enabled());
    EXPECT_TRUE(app->timers->tmrCheckLinkLoaded.Enabled());
    EXPECT_TRUE(app->timers->tmrAutoResume.Enabled());
    EXPECT_FALSE(lending.IsLent());
    platform->Pump().RunFor(200);
    EXPECT_EQ(Browser().TakeVisited(), QStringList{Page});
}

TEST_F(LendingTest, OfAPageThatIsStillComingItsAddressIsKept) {
    BeginRun();
    world.web.SetAnswer(u"http://www.site.example.com/next"_s, {});
    app->ClearPage();
    Browser().Navigate(u"http://www.site.example.com/next"_s);
    ASSERT_EQ(Address(), u"about:blank"_s);
    Take();
    EXPECT_EQ(State().strResumeURL, u"http://www.site.example.com/next"_s);
}

TEST_F(LendingTest, APageThatIsGivenUpIsNotLoadedAgain) {
    BeginRun();
    Take(Lending::Page::GivenUp);
    EXPECT_EQ(State().strResumeURL, QString());
    lending.GiveBack();
    platform->Pump().RunFor(200);
    EXPECT_TRUE(Browser().TakeVisited().isEmpty());
    EXPECT_EQ(State().CurrentAction, u"FR"_s);
}

TEST_F(LendingTest, AWaitOfTheLenderIsOver) {
    BeginRun();
    const Waiting::Owned owned(app->waiting);
    Take();
    EXPECT_THROW(app->waiting.Turn(), RunEnded);
    lending.GiveBack();
    EXPECT_THROW(app->waiting.Turn(), RunEnded);
}

class LentDelayTest : public LendingTest {
protected:
    // Five seconds of delay, lent from the second second until the given one.
    void LendWithinDelay(int returnAfterSeconds) {
        BeginRun();
        app->timers->Timer1.SetEnabled(false);
        State().lngTimeDelayFrom = State().lngTimeDelayTo = 5;
        startMs = platform->Pump().NowMs();
        platform->Pump().onPump = [this, returnAfterSeconds] {
            if (Seconds() >= 2 && !lending.IsLent() && !wasLent) {
                wasLent = true;
                Take();
                EXPECT_FALSE(State().blnInDelay);
                EXPECT_FALSE(State().blnHoldLinkCheck);
                app->Get<Cover>().Hide();
            }
            if (Seconds() >= returnAfterSeconds && lending.IsLent())
                atReturn();
        };
        const Waiting::Owned owned(app->waiting);
        Waiting::LeaveHere([this] {
            app->Get<Pacing>().DoDelay();
            wentOn = true;
        });
        platform->Pump().onPump = {};
    }
    qint64 Seconds() { return (platform->Pump().NowMs() - startMs) / 1000; }

    qint64 startMs = 0;
    bool wasLent = false;
    bool wentOn = false;
    std::function<void()> atReturn = [this] { lending.GiveBack(); };
};

TEST_F(LentDelayTest, ADelayLastsAtLeastUntilTheReturn) {
    LendWithinDelay(40);
    EXPECT_TRUE(wentOn);
    EXPECT_EQ(Seconds(), 40);
    EXPECT_EQ(State().CurrentAction, u"FR"_s);
    EXPECT_FALSE(State().blnInDelay);
    EXPECT_TRUE(Browser().TakeVisited().isEmpty());
}

TEST_F(LentDelayTest, WhatIsLeftOfTheDelayIsWaitedForCovered) {
    atReturn = [this] {
        lending.GiveBack();
        EXPECT_EQ(app->webHide().Position(), 0);
        EXPECT_TRUE(State().blnInDelay);
        EXPECT_TRUE(State().blnHoldLinkCheck);
        EXPECT_FALSE(app->timers->Timer1.Enabled());
    };
    LendWithinDelay(3);
    EXPECT_TRUE(wentOn);
    EXPECT_GE(Seconds(), 5);
}

TEST_F(LentDelayTest, AStopEndsTheLentDelayToo) {
    atReturn = [this] { app->Get<StopResume>().StopAll(StopReason::WindowStop); };
    LendWithinDelay(10);
    EXPECT_FALSE(wentOn);
    EXPECT_EQ(Seconds(), 10);
    EXPECT_FALSE(lending.IsLent());
    EXPECT_FALSE(lending.GiveBack());
}

TEST_F(LendingTest, TheOwnEndOfAnotherActivitySparesWhatWaitsForItsMinute) {
    for (const bool isOwnEnd : {true, false}) {
        State().blnBulletinWaiting = State().blnStatusWaiting = true;
        State().blnBulletinDeleted = true;
        app->timers->tmrBulletinWait.SetEnabled(true);
        app->timers->tmrStatusUpdatesWait.SetEnabled(true);
        State().CurrentAction = u"FR"_s;
        Take();
        app->Get<StopResume>().StopAll(isOwnEnd ? StopReason::GatherDone : StopReason::WindowStop);
        EXPECT_EQ(State().blnBulletinWaiting, isOwnEnd);
        EXPECT_EQ(State().blnStatusWaiting, isOwnEnd);
        EXPECT_EQ(State().blnBulletinDeleted, isOwnEnd);
        EXPECT_EQ(State().varResumeFR, isOwnEnd);
        EXPECT_EQ(app->timers->tmrBulletinWait.Enabled(), isOwnEnd);
        EXPECT_EQ(app->timers->tmrStatusUpdatesWait.Enabled(), isOwnEnd);
        EXPECT_EQ(lending.IsLent(), isOwnEnd);
    }
}

// The borrower's run is ended by it, and nobody is left to give the browser back.
TEST_F(LendingTest, ACampaignThatIsStartedByHandEndsTheLoan) {
    BeginRun();
    Take();
    app->controls.SetText("txtMsgSubject"_L1, u"Hi"_s);
    app->controls.SetText("txtMsgMessage"_L1, u"Hello"_s);
    app->commands.Run(u"picCmdMsgSend_Click"_s);
    EXPECT_EQ(State().CurrentAction, u"MSG"_s);
    EXPECT_FALSE(lending.IsLent());
    EXPECT_FALSE(State().varResumeFR);
    EXPECT_EQ(State().strResumeURL, QString());
    EXPECT_TRUE(lending.MayTake());
}

TEST_F(LendingTest, WhichStopsAreOwnEnds) {
    const std::vector<StopReason> own{StopReason::RequestsDone, StopReason::MessagesDone,
                                      StopReason::CommentsDone, StopReason::AcceptDone,
                                      StopReason::PendingDone,  StopReason::RequestLimit,
                                      StopReason::LoginDone,    StopReason::StoppedInFilter,
                                      StopReason::GatherDone,   StopReason::PendingFailed};
    for (int i = 0; i <= static_cast<int>(StopReason::LoginAgain); ++i) {
        const auto reason = static_cast<StopReason>(i);
        EXPECT_EQ(RowOf(reason).isOwnEnd, std::find(own.begin(), own.end(), reason) != own.end())
            << RowOf(reason).tag.data();
    }
}

} // namespace
} // namespace qlm
