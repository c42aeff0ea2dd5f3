// SPDX-License-Identifier: MIT
#include "BrowserTest.h"
#include "browser/NavigationGuard.h"
#include "core/SettingsFields.h"
#include "program/MainForm.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

using StopResumeTest = BrowserTest;

TEST_F(StopResumeTest, AStopClearsWhatBelongsToTheRun) {
    RunState& state = State();
    const std::vector<qint16 RunState::*> numbers{
        &RunState::intGatherStep,  &RunState::intFRStep,      &RunState::intMsgStep,
        &RunState::intComStep,     &RunState::intBulStep,     &RunState::intAccStep,
        &RunState::intLoginStep,   &RunState::intDelPenStep,  &RunState::intGatherRetryTicks,
        &RunState::intFRLimitHits, &RunState::intConfirmPolls};
    const std::vector<bool RunState::*> flags{
        &RunState::blnLinkFound,     &RunState::blnLastPageAsHTML,  &RunState::blnForceAdvance,
        &RunState::blnClickNextLink, &RunState::blnComparingIDs,    &RunState::blnRetryGatherPage,
        &RunState::blnSkipCurrentID, &RunState::blnBulletinDeleted, &RunState::blnCommentFormShown,
        &RunState::blnSkipRequested, &RunState::blnInDelay,         &RunState::blnBulletinWaiting,
        &RunState::blnStatusWaiting, &RunState::SwitchingAccount};
    const std::vector<QString RunState::*> texts{
        &RunState::CurrentAction,   &RunState::strLinkType,     &RunState::strLinkValue,
        &RunState::strLastPageText, &RunState::strLastPageHref, &RunState::strFRResumeURL,
        &RunState::strNextPageLink, &RunState::strCurrentID,    &RunState::strAcceptMode};
    for (auto number : numbers)
        state.*number = 3;
    for (auto flag : flags)
        state.*flag = true;
    for (auto text : texts)
        state.*text = u"x"_s;
    state.lngPageScanOffset = 3;
    app->SetStatus(u"busy"_s);
    app->timers->tmrAutoResume.Restart();
    app->timers->tmrCheckLinkLoaded.Restart();
    app->timers->Timer1.Restart();

    app->Get<StopResume>().StopAll(StopReason::WindowStop);
    for (size_t i = 0; i < numbers.size(); ++i)
        EXPECT_EQ(state.*numbers[i], 0) << i;
    for (size_t i = 0; i < flags.size(); ++i)
        EXPECT_FALSE(state.*flags[i]) << i;
    for (size_t i = 0; i < texts.size(); ++i)
        EXPECT_EQ(state.*texts[i], QString()) << i;
    EXPECT_EQ(state.lngPageScanOffset, 0);
    EXPECT_EQ(app->Status(), QString());
    EXPECT_TRUE(state.blnHoldLinkCheck);
    EXPECT_FALSE(app->timers->tmrAutoResume.Enabled());
    EXPECT_FALSE(app->timers->tmrCheckLinkLoaded.Enabled());
    // Off between two steps anyway; not the stop's to touch.
    EXPECT_TRUE(app->timers->Timer1.Enabled());
}

TEST_F(StopResumeTest, AStopNeverTouchesTheListAndTheCounters) {
    State().arrFriendIDs = {u"1001"_s};
    State().lngDailyFR = 5;
    State().lngSessionFR = 4;
    app->Get<StopResume>().StopAll(StopReason::WindowStop);
    EXPECT_EQ(State().arrFriendIDs.ToStringList(), QStringList{u"1001"_s});
    EXPECT_EQ(State().lngDailyFR, 5);
    EXPECT_EQ(State().lngSessionFR, 4);
}

TEST_F(StopResumeTest, AStopLeavesItsMarkInTheTrailOfTheActivity) {
    struct Row {
        QString action;
        QString mark; // %1 the time
    };
    for (const Row& row :
         {Row{u"SCANNING"_s, u"GATHER stop - (MAINSTOP)%1"_s}, Row{u"FR"_s, u"FR stop - %1"_s},
          Row{u"COM"_s, u"COM stop - (MAINSTOP)%1"_s}, Row{u"MSG"_s, u"MSG stop - (MAINSTOP)%1"_s},
          Row{u"ACC"_s, u"ACC stop - (MAINSTOP)%1"_s}, Row{u"LOGIN"_s, u"LOGIN stop - (MAINSTOP)%1"_s},
          Row{u"INV"_s, u"EVINV stop - (MAINSTOP)%1"_s}}) {
        trail.clear();
        State().CurrentAction = row.action;
        app->Get<StopResume>().StopAll(StopReason::WindowStop);
        EXPECT_EQ(trail, QStringList{row.mark.arg(app->NowText())}) << row.action.toStdString();
    }
    for (const QString& action : {u"BUL"_s, u"DEL PEN"_s, u"STATUSUPDATES"_s, QString()}) {
        trail.clear();
        State().CurrentAction = action;
        app->Get<StopResume>().StopAll(StopReason::WindowStop);
        EXPECT_TRUE(trail.isEmpty()) << action.toStdString();
    }
}

TEST_F(StopResumeTest, ALabelThatFailsDoesNotStopTheStop) {
    app->SetStatus(u"busy"_s);
    State().strCurrentID = u"1001"_s;
    app->controls.AddListener([](const Control& control, Controls::Change, int) {
        if (control.name == "myfraCurrentAction"_L1)
            throw std::runtime_error("no window");
    });
    app->Get<StopResume>().StopAll(StopReason::WindowStop);
    EXPECT_EQ(State().strCurrentID, QString());
}

TEST_F(StopResumeTest, ResumingRunsTheStepAsItStands) {
    State().CurrentAction = u"FR"_s;
    State().intFRStep = 6; // the end of a run
    State().blnHoldLinkCheck = true;
    Browser().SetSilent(false);
    app->Get<StopResume>().ResumeNext();
    EXPECT_TRUE(SaidBeginningWith(u"cmdRes - "_s));
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Finished sending friend requests."_s});
    EXPECT_TRUE(Browser().Silent());
}

TEST_F(StopResumeTest, ResumingALoginOnlyArmsTheWatchdog) {
    for (const QString& action : {u"LOGIN"_s, u"INV"_s, QString()}) {
        State().CurrentAction = action;
        State().intLoginStep = 3;
        State().blnHoldLinkCheck = true;
        app->timers->tmrAutoResume.SetEnabled(false);
        trail.clear();
        Browser().SetSilent(false);
        app->Get<StopResume>().ResumeNext();
        EXPECT_TRUE(Browser().Silent());
        EXPECT_TRUE(app->timers->tmrAutoResume.Enabled());
        EXPECT_FALSE(State().blnHoldLinkCheck);
        EXPECT_TRUE(trail.isEmpty());
        EXPECT_EQ(State().intLoginStep, 3);
    }
}

TEST_F(StopResumeTest, ASkipInADelayOnlyEndsTheDelay) {
    State().CurrentAction = u"MSG"_s;
    State().intMsgStep = 9;
    State().blnInDelay = true;
    State().blnHoldLinkCheck = true;
    Browser().SetSilent(false);
    app->Get<StopResume>().SkipProfile();
    EXPECT_TRUE(Browser().Silent());
    EXPECT_FALSE(State().blnInDelay);
    EXPECT_FALSE(State().blnSkipRequested);
    EXPECT_EQ(State().intMsgStep, 9);
    EXPECT_FALSE(State().blnHoldLinkCheck);
    EXPECT_TRUE(app->timers->tmrAutoResume.Enabled());
}

TEST_F(StopResumeTest, ASkipGoesToTheStepBehindTheSending) {
    State().CurrentAction = u"MSG"_s;
    State().intMsgStep = 7;
    app->Get<StopResume>().SkipProfile();
    EXPECT_EQ(GivenUp().intMsgStep, 8);
    EXPECT_TRUE(GivenUp().blnSkipRequested);
    State().CurrentAction = u"COM"_s;
    State().intComStep = 7;
    State().lngFailedCount = 0;
    app->Get<StopResume>().SkipProfile();
    EXPECT_EQ(State().lngFailedCount, 1);
    EXPECT_EQ(dialogs.Texts(),
              (QStringList{u"Finished sending messages."_s, u"Finished sending comments."_s}));
    dialogs.messages.clear();
    State().CurrentAction = u"BUL"_s;
    State().intBulStep = BulletinStep::Rest;
    app->Get<StopResume>().SkipProfile();
    EXPECT_EQ(State().intBulStep, BulletinStep::Rest);
    State().CurrentAction = u"SCANNING"_s;
    State().intGatherStep = 3;
    app->Get<StopResume>().SkipProfile();
    EXPECT_EQ(State().intGatherStep, 3);
}

TEST_F(StopResumeTest, ASkippedRequestIsGivenUp) {
    State().CurrentAction = u"FR"_s;
    State().intFRStep = 8;
    State().strCurrentID = u"1001"_s;
    State().intCurrentIDIndex = 1;
    app->Get<StopResume>().SkipProfile();
    EXPECT_EQ(State().lngFailedCount, 1);
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Finished sending friend requests."_s});
}

TEST_F(StopResumeTest, AnAccountOfAChainThatCannotBeLoggedInMakesRoomForTheNext) {
    int calls = 0;
    app->commands.Add(u"LoginNextCycleAccount"_s, [&calls] { ++calls; });
    app->state.AccountEmail = u"a@example.com"_s;
    world.http.responder = [](const QString&) { return std::optional(u"2009-06-02"_s); };
    app->Get<SettingsFields>().RestoreAccountSettings();
    app->Get<SettingsFields>().RestoreAccountSpecificFields();
    app->controls.SetText("txtFRNote"_L1, u"kept"_s);
    State().CurrentAction = u"LOGIN"_s;
    State().intLoginStep = 3;
    app->Get<StopResume>().SkipProfile();
    EXPECT_EQ(calls, 0);
    EXPECT_FALSE(Said(u"Skip"_s));
    State().blnChaining = true;
    app->Get<StopResume>().SkipProfile();
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(Said(u"Skip"_s));
    EXPECT_EQ(State().intLoginStep, 3);
    EXPECT_EQ(world.settings.GetSetting(u"Field Entries"_s, u"txtFRNote"_s, {}), u"kept"_s);
}

TEST_F(StopResumeTest, WithoutANextAccountTheSkippedLoginEndsTheChain) {
    State().CurrentAction = u"LOGIN"_s;
    State().blnChaining = true;
    app->Get<StopResume>().SkipProfile();
    EXPECT_TRUE(Said(u"Skip"_s));
    EXPECT_TRUE(SaidBeginningWith(u"LOGIN stop - (GNCA)"_s));
    EXPECT_EQ(State().CurrentAction, QString());
    EXPECT_FALSE(State().blnChaining);
    EXPECT_EQ(dialogs.messages.size(), 1U);
}

TEST_F(StopResumeTest, AStopLeavesTheChainOnlyWhereTheNextAccountMayFollow) {
    for (const auto& [reason, leaves] :
         {std::pair{StopReason::RequestLimit, true}, std::pair{StopReason::MessageLimit, true},
          std::pair{StopReason::DailyLimit, true}, std::pair{StopReason::RequestStop, false},
          std::pair{StopReason::WindowStop, false}, std::pair{StopReason::Uncounted, false},
          std::pair{StopReason::Unnoted, false}, std::pair{StopReason::NotEnglish, false},
          std::pair{StopReason::GatherBegins, false}, std::pair{StopReason::ChainEnded, false}}) {
        State().blnChaining = true;
        app->controls.SetText("lblChain"_L1, u"next: b@example.com"_s);
        app->Get<StopResume>().StopAll(reason);
        EXPECT_EQ(State().blnChaining, leaves) << static_cast<int>(reason);
        EXPECT_EQ(app->controls.Text("lblChain"_L1).isEmpty(), !leaves);
    }
}

TEST_F(StopResumeTest, AChainThatWaitsForItsMinuteOutlivesTheOwnEndOfOthers) {
    State().blnChaining = true;
    State().ChainedCampaign = u"BUL"_s;
    State().blnBulletinWaiting = true;
    app->Get<StopResume>().StopAll(StopReason::AcceptDone);
    EXPECT_TRUE(State().blnChaining);
    app->Get<StopResume>().StopAll(StopReason::AcceptStop);
    EXPECT_FALSE(State().blnChaining);
}

TEST_F(StopResumeTest, PausingHoldsTheCheckAndTheWatchdog) {
    app->timers->tmrAutoResume.Restart();
    app->Get<StopResume>().PauseLinkCheck();
    EXPECT_TRUE(State().blnHoldLinkCheck);
    EXPECT_FALSE(app->timers->tmrAutoResume.Enabled());
    app->Get<StopResume>().ResumeLinkCheck();
    EXPECT_FALSE(State().blnHoldLinkCheck);
    EXPECT_TRUE(app->timers->tmrAutoResume.Enabled());
}

TEST_F(StopResumeTest, TheStopButtonStopsThePageToo) {
    State().CurrentAction = u"MSG"_s;
    app->webHide().ZOrder(0);
    Browser().Navigate(u"http://www.site.example.com/slow"_s);
    app->commands.Run(u"picStop_Click"_s);
    EXPECT_FALSE(Browser().Busy());
    EXPECT_TRUE(State().blnUserNavigated);
    EXPECT_EQ(app->webHide().Position(), 1);
    EXPECT_EQ(State().CurrentAction, QString());
    EXPECT_TRUE(SaidBeginningWith(u"MSG stop - (MAINSTOP)"_s));
}

TEST_F(StopResumeTest, ACampaignsStopStopsThePageAsTheWindowsDoes) {
    for (const auto& stop : {u"picCmdMsgStop_Click"_s, u"picCmdComStop_Click"_s}) {
        State().CurrentAction = u"MSG"_s;
        State().blnUserNavigated = false;
        app->webHide().ZOrder(0);
        Browser().Navigate(u"http://www.site.example.com/slow"_s);
        app->commands.Run(stop);
        EXPECT_FALSE(Browser().Busy());
        EXPECT_TRUE(State().blnUserNavigated);
        EXPECT_EQ(app->webHide().Position(), 1);
        EXPECT_EQ(State().CurrentAction, QString());
    }
}

TEST_F(StopResumeTest, TheRefreshButtonIsNoNavigationOfTheUsers) {
    Show(u"<a href=\"/\">Home</a>"_s);
    app->webHide().ZOrder(0);
    Browser().SetSilent(false);
    State().blnUserNavigated = false;
    app->commands.Run(u"picRefresh_Click"_s);
    EXPECT_TRUE(Browser().Silent());
    EXPECT_EQ(app->webHide().Position(), 1);
    EXPECT_TRUE(Browser().Busy());
    EXPECT_FALSE(State().blnUserNavigated);
}

TEST_F(StopResumeTest, OnlyAChainHandsOverAndSavesFirst) {
    int asked = 0;
    app->commands.Add(u"LoginNextCycleAccount"_s, [this, &asked] {
        ++asked;
        const SimSettings::Content& stored = world.settings.All();
        EXPECT_TRUE(std::any_of(stored.begin(), stored.end(), [](const auto& section) {
            return std::any_of(section.second.begin(), section.second.end(),
                               [](const auto& entry) { return entry.second == u"limit 17"_s; });
        }));
    });
    app->Get<SettingsFields>().RestoreAccountSpecificFields();
    app->controls.SetText("txtFriendRequestsToSend"_L1, u"limit 17"_s);
    EXPECT_FALSE(app->Get<StopResume>().HandOverInChain());
    EXPECT_EQ(asked, 0);
    State().blnChaining = true;
    EXPECT_TRUE(app->Get<StopResume>().HandOverInChain());
    EXPECT_EQ(asked, 1);
}

TEST_F(StopResumeTest, ExitWhenFinishedIsAskedForAndTaken) {
    EXPECT_FALSE(app->Get<StopResume>().DoFinishedExit());
    app->commands.Run(u"mnuExitWhenFinished_Click"_s); // not confirmed
    EXPECT_FALSE(State().blnExitWhenFinished);
    dialogs.answers = {Dialogs::Answer::Yes};
    app->commands.Run(u"mnuExitWhenFinished_Click"_s);
    EXPECT_TRUE(State().blnExitWhenFinished);
    EXPECT_FALSE(app->controls.Ticked("mnuExitWhenFinished"_L1));
    dialogs.answers = {Dialogs::Answer::No};
    app->commands.Run(u"mnuExitWhenFinished_Click"_s);
    EXPECT_TRUE(State().blnExitWhenFinished);
    EXPECT_TRUE(app->Get<StopResume>().DoFinishedExit());
    EXPECT_TRUE(platform->Shell().hasQuit);
}

TEST_F(StopResumeTest, SkipSendsTheCoverBack) {
    app->webHide().ZOrder(0);
    app->commands.Run(u"picSkip_Click"_s);
    EXPECT_EQ(app->webHide().Position(), 1);
}

// What Skip has no row for goes on, also when its next step is due.
TEST_F(StopResumeTest, SkipTakesNoStepAwayFromWhatItDoesNotSkip) {
    for (const QString& action : {u"LOGIN"_s, u"SCANNING"_s, u"ACC"_s}) {
        State().CurrentAction = action;
        app->timers->Timer1.Restart();
        app->Get<StopResume>().SkipProfile();
        EXPECT_TRUE(app->timers->Timer1.Enabled()) << action.toStdString();
    }
    State().CurrentAction = u"MSG"_s;
    app->Get<StopResume>().SkipProfile();
    EXPECT_FALSE(app->timers->Timer1.Enabled());
}

TEST_F(StopResumeTest, AStopOutdatesWhateverWaits) {
    const RunMark mark = app->waiting.Mark();
    EXPECT_TRUE(app->waiting.IsCurrent(mark));
    app->Get<StopResume>().StopAll(StopReason::WindowStop);
    EXPECT_FALSE(app->waiting.IsCurrent(mark));
    EXPECT_THROW(app->waiting.LeaveUnlessCurrent(mark), RunEnded);
    // It is no error: the trap tells nobody, and nothing counts as failed.
    EXPECT_EQ(app->diagnostics.Trap("Test", [&] { app->waiting.LeaveUnlessCurrent(mark); }), QString());
    EXPECT_TRUE(dialogs.shownForms.isEmpty());
}

TEST_F(StopResumeTest, AStopLetsThePageMoveAndEndsNobodyElsesRefusal) {
    std::optional<NavigationGuard> first(Browser());
    app->Get<StopResume>().StopAll(StopReason::WindowStop);
    EXPECT_FALSE(Browser().RefusesNavigations());
    std::optional<NavigationGuard> second(Browser());
    first.reset();
    EXPECT_TRUE(Browser().RefusesNavigations());
    std::optional<NavigationGuard> third(Browser());
    second.reset();
    EXPECT_TRUE(Browser().RefusesNavigations());
    third.reset();
    EXPECT_FALSE(Browser().RefusesNavigations());
}

} // namespace
} // namespace qlm
