// SPDX-License-Identifier: MIT
#include "RequestRun.h"
#include "core/SettingsFields.h"
#include "steps/StepDispatcher.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

const QString Refusal = u"<p>server is too busy</p>"_s; // class 10
const QString Limit = u"<p>you have reached the maximum limit of friend requests for the day</p>"_s;

// What an error page does to the activity that it hits.
class ErrorPageTest : public RequestRunTest {
protected:
    // As the tick does it.
    bool Check() {
        bool found = false;
        Waiting::LeaveHere([this, &found] {
            const Waiting::Owned owned(app->waiting);
            found = app->Get<StepDispatcher>().CheckLinkFound();
        });
        return found;
    }
    bool Check(const QString& action, const QString& page) {
        Show(page);
        State().CurrentAction = action;
        Await(u"Text"_s, u"wanted"_s);
        return CheckHeld();
    }
    bool CheckHeld() {
        State().blnHoldLinkCheck = true;
        Browser().TakeVisited();
        return Check();
    }
    // The account that comes next in the chain is asked for.
    void BeginChain() {
        State().blnChaining = true;
        app->commands.Add(u"LoginNextCycleAccount"_s, [this] { ++handedOver; });
    }
    int handedOver = 0;
    bool Resumed() { return !State().blnHoldLinkCheck && app->timers->tmrAutoResume.Enabled(); }
};

TEST_F(ErrorPageTest, ARefusedRequestIsGivenUp) {
    Show(Refusal + u"Request Sent!"_s);
    BeginRequests(8);
    EXPECT_FALSE(Check());
    EXPECT_TRUE(Said(u"FR Maint: 10"_s));
    EXPECT_TRUE(SaidBeginningWith(u"cmdRes - "_s));
    EXPECT_EQ(State().lngFailedCount, 1);
    EXPECT_TRUE(WentOn());
    EXPECT_TRUE(covers.startsWith(u'-')) << covers.toStdString();
    EXPECT_FALSE(covers.contains(u'+'));
}

TEST_F(ErrorPageTest, ARefusedRequestTakesItsMessageWithIt) {
    app->controls.SetTicked("chkFrSendMessage"_L1, true);
    Show(Refusal);
    BeginRequests(8);
    EXPECT_FALSE(Check());
    EXPECT_TRUE(WentOn());
}

// The step of a request that awaits its confirmation says nothing while another activity runs.
TEST_F(ErrorPageTest, ARequestsStepKeepsNoOtherActivityFromAnErrorPage) {
    State().intFRStep = 9;
    State().intMsgStep = 9;
    EXPECT_FALSE(Check(u"MSG"_s, Refusal));
    EXPECT_EQ(GivenUp().intMsgStep, 8);
}

TEST_F(ErrorPageTest, TheThirdLimitPageIsBelieved) {
    BeginRequests(8);
    for (int page = 1; page <= 2; ++page) {
        Show(Limit);
        BeginRequests(8);
        EXPECT_FALSE(Check());
        EXPECT_TRUE(WentOn());
        EXPECT_EQ(State().lngFailedCount, 1);
        EXPECT_EQ(State().intFRLimitHits, page);
        EXPECT_TRUE(covers.startsWith(u'-')) << covers.toStdString();
        EXPECT_TRUE(dialogs.messages.empty());
    }
    Show(Limit);
    BeginRequests(8);
    EXPECT_FALSE(Check());
    EXPECT_EQ(State().CurrentAction, QString());
    EXPECT_FALSE(State().blnDailyLimitHit);
    EXPECT_EQ(dialogs.Texts(),
              QStringList{u"You have reached the maximum limit of friend requests that MySpace "
                          "allows in a day."_s});
}

TEST_F(ErrorPageTest, EveryPageOfALimitIsCounted) {
    int page = 0;
    for (const QString& text :
         {u"you have exceeded your daily useage"_s, u"user has exceeded their daily useage"_s}) {
        Show(text);
        BeginRequests(8);
        EXPECT_FALSE(Check());
        EXPECT_EQ(State().intFRLimitHits, ++page) << text.toStdString();
        EXPECT_TRUE(WentOn());
    }
}

TEST_F(ErrorPageTest, InAChainTheThirdLimitPageHandsOver) {
    BeginChain();
    Show(Limit);
    BeginRequests(8);
    State().intFRLimitHits = 2;
    EXPECT_FALSE(Check());
    EXPECT_EQ(handedOver, 1);
    EXPECT_FALSE(State().blnDailyLimitHit);
    EXPECT_TRUE(State().blnLinkFound);
    EXPECT_FALSE(WentOn());
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(ErrorPageTest, ALimitPageInPlaceOfTheConfirmationStopsTheRun) {
    Show(Limit);
    BeginRequests(9);
    EXPECT_FALSE(Check());
    EXPECT_EQ(State().CurrentAction, QString());
    EXPECT_TRUE(SaidBeginningWith(u"FR stop - "_s));
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(ErrorPageTest, TheErrorRedirectCountsAsSentUnderTheCover) {
    for (qint16 step : {8, 9}) {
        Show(u"{SiteRootHost}/error.aspx"_s, u"oops"_s);
        BeginRequests(step);
        trail.clear();
        EXPECT_FALSE(Check());
        EXPECT_TRUE(Said(u"FR Maint: 32"_s)) << step;
        EXPECT_EQ(State().lngFailedCount, 0);
        EXPECT_TRUE(WentOn());
        EXPECT_TRUE(covers.startsWith(u'+')) << covers.toStdString();
    }
}

TEST_F(ErrorPageTest, WhileAConfirmationIsAwaitedOnlyTheRedirectCounts) {
    Show(Refusal);
    BeginRequests(9);
    EXPECT_FALSE(Check());
    EXPECT_FALSE(SaidBeginningWith(u"FR Maint"_s));
    EXPECT_EQ(State().strCurrentID, u"1001"_s);
    EXPECT_EQ(State().intPageClass, 10);
    EXPECT_NE(Address(), u"about:blank"_s);
}

TEST_F(ErrorPageTest, AFailedMessageGoesToItsEnd) {
    State().intMsgStep = 9;
    EXPECT_FALSE(Check(u"MSG"_s, Refusal));
    EXPECT_TRUE(Said(u"Maint: 10"_s));
    EXPECT_EQ(GivenUp().intMsgStep, 8);
    EXPECT_TRUE(!GivenUp().blnHoldLinkCheck && WatchdogAtGivingUp());
    EXPECT_EQ(Address(), u"about:blank"_s);
}

TEST_F(ErrorPageTest, AFailedMessageGoesBackToTheRequestThatWaits) {
    State().strFRResumeURL = u"http://www.site.example.com/request"_s;
    State().intMsgStep = 9;
    Show(Refusal);
    State().CurrentAction = u"MSG"_s;
    Await(u"Button"_s, u"send"_s);
    State().blnLinkFound = true;
    EXPECT_FALSE(CheckHeld());
    EXPECT_EQ(State().CurrentAction, u"FR"_s);
    EXPECT_EQ(State().strLinkType + u' ' + State().strLinkValue, u"Text Request Sent!"_s);
    EXPECT_FALSE(State().blnLinkFound);
    EXPECT_TRUE(app->timers->tmrCheckLinkLoaded.Enabled());
    EXPECT_EQ(State().strFRResumeURL, QString());
    EXPECT_EQ(State().intMsgStep, 0);
    EXPECT_EQ(State().intFRStep, 8);
    app->Pump().PumpMessages();
    EXPECT_EQ(Browser().TakeVisited(), QStringList{u"http://www.site.example.com/request"_s});
}

TEST_F(ErrorPageTest, AFailedCommentGoesToItsEnd) {
    QStringList said;
    app->controls.AddListener([&said](const Control& control, Controls::Change, int) {
        if (control.name == "myfraCurrentAction"_L1)
            said += control.text;
    });
    State().intComStep = 7;
    EXPECT_FALSE(Check(u"COM"_s, Refusal));
    EXPECT_TRUE(Said(u"Maint: 10"_s));
    EXPECT_TRUE(SaidBeginningWith(u"cmdRes - "_s));
    EXPECT_EQ(State().lngFailedCount, 1);
    EXPECT_FALSE(said.contains(u"Comment successfully posted"_s));
    // At its end it is not given up again.
    State().intComStep = 8;
    EXPECT_FALSE(Check(u"COM"_s, Refusal));
    EXPECT_EQ(State().lngFailedCount, 1);
    EXPECT_TRUE(said.contains(u"Comment successfully posted"_s));
}

TEST_F(ErrorPageTest, TheDailyLimitEndsTheRunOfComments) {
    State().intComStep = 7;
    app->webHide().ZOrder(0);
    EXPECT_FALSE(Check(u"COM"_s, u"<p>you have exceeded your daily useage</p>"_s));
    EXPECT_TRUE(SaidBeginningWith(u"COM stop - (LF2)"_s));
    EXPECT_EQ(app->webHide().Position(), 1);
    EXPECT_EQ(State().CurrentAction, QString());
    EXPECT_EQ(State().intComStep, 0);
    EXPECT_FALSE(State().blnDailyLimitHit);
}

TEST_F(ErrorPageTest, DeletingPendingRequestsBeginsAnew) {
    State().intDelPenStep = 3;
    EXPECT_FALSE(Check(u"DEL PEN"_s, Refusal));
    EXPECT_EQ(State().intDelPenStep, PendingStep::LastPage); // its list is being loaded anew
}

TEST_F(ErrorPageTest, ALoginThatSignsOutLoadsTheSiteAgain) {
    State().intLoginStep = 1;
    EXPECT_FALSE(Check(u"LOGIN"_s, Refusal));
    EXPECT_TRUE(Said(u"Maint2: 10"_s));
    EXPECT_EQ(Browser().TakeVisited(), QStringList{u"http://www.site.example.com/"_s});
}

// The old page is gone at once, however long the new one takes.
TEST_F(ErrorPageTest, ALoginThatSignsOutClearsThePageFirst) {
    world.web.SetFault(u"http://www.site.example.com/"_s, SimFault::Hang, 1);
    State().intLoginStep = 1;
    EXPECT_FALSE(Check(u"LOGIN"_s, Refusal));
    EXPECT_EQ(Address(), u"about:blank"_s);
    EXPECT_TRUE(Browser().Busy());
}

TEST_F(ErrorPageTest, ALoginThatIsStoppedMeanwhileLoadsNothing) {
    Show(Refusal);
    State().CurrentAction = u"LOGIN"_s;
    State().intLoginStep = 1;
    Await(u"Text"_s, u"wanted"_s);
    app->Pump().Queue().Post([this] { app->Get<StopResume>().StopAll(StopReason::WindowStop); });
    EXPECT_FALSE(CheckHeld());
    EXPECT_TRUE(Browser().TakeVisited().isEmpty());
}

TEST_F(ErrorPageTest, ALoginElsewhereOnlyNotesIt) {
    State().intLoginStep = 4;
    EXPECT_FALSE(Check(u"LOGIN"_s, Refusal));
    EXPECT_TRUE(Said(u"Maint3: 10"_s));
    EXPECT_NE(Address(), u"about:blank"_s);
    EXPECT_TRUE(State().blnHoldLinkCheck);
}

TEST_F(ErrorPageTest, ALoginInAChainSavesItsAccountAndGoesOnWithTheNext) {
    QString savedFirst;
    app->commands.Add(u"LoginNextCycleAccount"_s, [&] {
        savedFirst = world.settings.GetSetting(u"Field Entries"_s, u"txtFriendRequestsToSend"_s, {});
    });
    app->Get<SettingsFields>().RestoreAccountSpecificFields();
    app->controls.SetText("txtFriendRequestsToSend"_L1, u"25"_s);
    State().blnChaining = true;
    State().intLoginStep = 1;
    EXPECT_FALSE(Check(u"LOGIN"_s, Refusal));
    EXPECT_TRUE(Said(u"Maint1: 10"_s));
    EXPECT_FALSE(SaidBeginningWith(u"Maint2"_s));
    EXPECT_EQ(savedFirst, u"25"_s);
    EXPECT_EQ(Browser().TakeVisited(), QStringList());
}

TEST_F(ErrorPageTest, ALoginInAChainGoesOnToTheNextAccount) {
    BeginChain();
    for (qint16 step : {1, 4}) {
        State().intLoginStep = step;
        EXPECT_FALSE(Check(u"LOGIN"_s, Refusal));
        EXPECT_TRUE(Browser().TakeVisited().isEmpty());
    }
    EXPECT_EQ(handedOver, 2);
    EXPECT_EQ(trail.count(u"Maint1: 10"_s), 2);
    EXPECT_FALSE(SaidBeginningWith(u"Maint2"_s));
    EXPECT_FALSE(SaidBeginningWith(u"Maint3"_s));
}

TEST_F(ErrorPageTest, ABulletinOnlyNotesIt) {
    EXPECT_FALSE(Check(u"BUL"_s, Refusal));
    EXPECT_TRUE(Said(u"Maint: 10"_s));
    EXPECT_EQ(Address(), u"about:blank"_s);
    EXPECT_TRUE(State().blnHoldLinkCheck);
}

TEST_F(ErrorPageTest, AnyOtherActivityEndsThePassOnAnEmptyPage) {
    for (const QString& action : {u"ACC"_s, u"SCANNING"_s}) {
        EXPECT_FALSE(Check(action, Refusal + u"wanted"_s));
        EXPECT_EQ(Address(), u"about:blank"_s);
        EXPECT_FALSE(State().blnLinkFound);
    }
}

TEST_F(ErrorPageTest, WithoutAnExpectationThePageIsNotLookedAt) {
    for (const bool hasType : {true, false}) {
        Show(Refusal);
        State().CurrentAction = u"FR"_s;
        Await(hasType ? u"Text"_s : QString(), hasType ? QString() : u"wanted"_s);
        trail.clear();
        EXPECT_FALSE(CheckHeld());
        EXPECT_TRUE(trail.isEmpty()) << trail.join(u'|').toStdString();
        EXPECT_NE(Address(), u"about:blank"_s);
    }
}

TEST_F(ErrorPageTest, AnotherPageForgetsTheLimit) {
    State().blnDailyLimitHit = true;
    EXPECT_TRUE(Check(u"BUL"_s, u"wanted"_s));
    EXPECT_FALSE(State().blnDailyLimitHit);
}

TEST_F(ErrorPageTest, AStopWhileThePageIsClearedIsTheLastWord) {
    Show(Refusal);
    BeginRequests(8);
    app->Pump().Queue().Post([this] { app->Get<StopResume>().StopAll(StopReason::RequestStop); });
    EXPECT_FALSE(Check());
    EXPECT_EQ(State().CurrentAction, QString());
    EXPECT_FALSE(SaidBeginningWith(u"FR Maint"_s));
    EXPECT_TRUE(State().blnHoldLinkCheck);
}

} // namespace
} // namespace qlm
