// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "accounts/Chains.h"
#include "campaigns/Campaigns.h"
#include "campaigns/SendRuns.h"
#include "campaigns/SentLog.h"
#include "gather/GatheredList.h"
#include "steps/RunReport.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

// How a run walks the list.
class CursorTest : public SimulatedProgram {
protected:
    void Fill(const QStringList& ids) {
        for (const QString& id : ids)
            app->Get<GatheredList>().Add(id, u"test"_s);
        app->state.CurrentAction = u"FR"_s;
    }
    void RemoveAfterSent() { app->controls.SetTicked("chkRemoveAfterSent"_L1, true); }
    QStringList Walk() {
        QStringList walked;
        while (app->Get<SendRuns>().TargetLeft() && walked.size() < 10) {
            app->Get<SendRuns>().BeginTarget();
            walked.append(app->state.strCurrentID + u' ' + app->controls.Text("lblProgress"_L1));
            app->Get<SendRuns>().AdvanceAfterUse(u"test"_s);
        }
        return walked;
    }
};

TEST_F(CursorTest, WalksByIndexAndLeavesTheList) {
    Fill({u"11"_s, u"12"_s});
    EXPECT_EQ(Walk(), (QStringList{u"11 ID 1 of 2"_s, u"12 ID 2 of 2"_s}));
    EXPECT_EQ(app->state.arrFriendIDs.size(), 2);
}

TEST_F(CursorTest, WithRemovalWalksTheHeadAndKeepsTheNumbering) {
    Fill({u"11"_s, u"12"_s, u"13"_s});
    RemoveAfterSent();
    EXPECT_EQ(Walk(), (QStringList{u"11 ID 1 of 3"_s, u"12 ID 2 of 3"_s, u"13 ID 3 of 3"_s}));
    EXPECT_TRUE(app->Get<GatheredList>().IsEmpty());
}

// An import of one line fills the array and not the box; REMOVE needs a row.
TEST_F(CursorTest, AnEntryThatCannotBeRemovedDoesNotHoldTheWalk) {
    app->state.arrFriendIDs = {u"11"_s};
    RemoveAfterSent();
    EXPECT_EQ(Walk().size(), 1);
}

TEST_F(CursorTest, AnEntryTheUserHasTakenAwayHimselfIsNotTakenTwice) {
    Fill({u"11"_s, u"12"_s});
    RemoveAfterSent();
    app->Get<SendRuns>().BeginTarget();
    app->Get<GatheredList>().Remove(0, u"lstFriendIDs_KeyDown"_s);
    app->Get<SendRuns>().RemoveUsedTarget(u"test"_s);
    EXPECT_EQ(app->state.arrFriendIDs.ToStringList(), QStringList{u"12"_s});
}

TEST_F(CursorTest, TheEmptyListHasNoTarget) {
    EXPECT_FALSE(app->Get<SendRuns>().TargetLeft());
}

TEST_F(CursorTest, TheEndTellsWhatWasPassedOver) {
    Fill({u"11"_s});
    app->state.lngSkippedCount = 2;
    app->state.lngFilteredCount = 1;
    app->Get<SendRuns>().Finish();
    EXPECT_EQ(
        dialogs.Texts(),
        QStringList{u"Finished sending friend requests.\n\n2 ID's were skipped because you sent to them "
                    "previously.\n\n1 ID's didn't match your filter settings."_s});
    EXPECT_TRUE(app->state.CurrentAction.isEmpty());
}

TEST_F(CursorTest, TheEndOfAChainedRunTellsNoCounts) {
    Fill({u"11"_s});
    app->state.lngSkippedCount = 2;
    app->state.blnChaining = true;
    app->Get<SendRuns>().Finish();
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Finished sending friend requests."_s});
    EXPECT_FALSE(app->state.blnChaining);
}

TEST_F(CursorTest, EachCampaignEndsInItsWordsAndACommentRunLeavesTheChain) {
    struct Case {
        const char16_t* word;
        const char16_t* text;
        bool chaining;
    };
    for (const Case& each : {Case{u"FR", u"Finished sending friend requests.", false},
                             Case{u"MSG", u"Finished sending messages.", false},
                             Case{u"COM", u"Finished sending comments.", true}}) {
        dialogs.messages.clear();
        app->state.CurrentAction = QString::fromUtf16(each.word);
        app->state.blnChaining = true;
        app->Get<SendRuns>().Finish();
        EXPECT_EQ(dialogs.Texts(), QStringList{QString::fromUtf16(each.text)});
        EXPECT_EQ(app->state.blnChaining, each.chaining);
    }
}

TEST_F(CursorTest, TheEndTellsNothingWhenTheProgramExits) {
    Fill({u"11"_s});
    app->state.blnExitWhenFinished = true;
    app->Get<SendRuns>().Finish();
    EXPECT_TRUE(dialogs.Texts().isEmpty());
    EXPECT_TRUE(app->state.blnClosing);
}

TEST_F(CursorTest, InAcceptModeTheAcceptedFriendsAreTheTargets) {
    Fill({u"11"_s});
    for (const QString& id : {u"21"_s, u"22"_s})
        app->controls.AddItem("lstAcceptIDs"_L1, id);
    app->state.CurrentAction = u"MSG"_s;
    app->state.strAcceptMode = u"MSG"_s;
    EXPECT_EQ(Walk(), (QStringList{u"21 ID 1 of 2"_s, u"22 ID 2 of 2"_s}));
    EXPECT_EQ(app->state.arrFriendIDs, QStringList{u"11"_s});
    EXPECT_TRUE(app->controls.Items("lstAcceptIDs"_L1).isEmpty());
    EXPECT_FALSE(app->Get<SendRuns>().TargetLeft());
}

TEST_F(CursorTest, InAcceptModeTheEndGoesBackToAcceptingWithoutAWord) {
    app->controls.AddItem("lstAcceptIDs"_L1, u"21"_s);
    app->state.CurrentAction = u"COM"_s;
    app->state.intComStep = 5;
    app->state.strAcceptMode = u"COM"_s;
    app->Get<SendRuns>().Finish();
    EXPECT_EQ(app->state.CurrentAction, u"ACC"_s);
    EXPECT_EQ(app->state.intAccStep, 3); // its list is being loaded anew
    EXPECT_EQ(app->state.intComStep, 0);
    EXPECT_TRUE(app->state.strAcceptMode.isEmpty());
    EXPECT_TRUE(app->controls.Items("lstAcceptIDs"_L1).isEmpty());
    EXPECT_TRUE(dialogs.Texts().isEmpty());
}

TEST_F(CursorTest, InAcceptModeALoggedFriendIsPassedOverOnlyByWishAndForComments) {
    app->files.WriteLines(SentLog(*app, &Comments).Path(), {u"21"_s});
    app->files.WriteLines(SentLog(*app, &Messages).Path(), {u"21"_s});
    app->state.strAcceptMode = u"COM"_s;
    auto taken = [this](const QString& action, bool byWish) {
        app->state.CurrentAction = action;
        app->controls.SetTicked("mnuAddToLogWhenAccepting"_L1, byWish);
        app->controls.SetItems("lstAcceptIDs"_L1, {u"21"_s, u"22"_s});
        EXPECT_TRUE(app->Get<SendRuns>().TakeTarget(u"test"_s));
        return app->state.strCurrentID;
    };
    EXPECT_EQ(taken(u"COM"_s, false), u"21"_s);
    EXPECT_EQ(taken(u"COM"_s, true), u"22"_s);
    EXPECT_EQ(taken(u"MSG"_s, true), u"21"_s);
}

TEST_F(CursorTest, ASkipLeavesAStatusLineThatSaysSoAlready) {
    Fill({u"11"_s, u"12"_s});
    app->state.blnCheckLog = true;
    app->files.WriteLines(SentLog(*app, &FriendRequests).Path(), {u"11"_s, u"12"_s});
    app->SetStatus(u"Skipping for another reason"_s);
    EXPECT_FALSE(app->Get<SendRuns>().TakeTarget(u"test"_s));
    EXPECT_EQ(app->Status(), u"Skipping for another reason"_s);
    EXPECT_EQ(app->state.lngSkippedCount, 2);
    app->state.intCurrentIDIndex = 0;
    app->SetStatus(u"Working"_s);
    app->Get<SendRuns>().TakeTarget(u"test"_s);
    EXPECT_EQ(app->Status(), u"Skipping ID's you've sent to before..."_s);
}

// How each campaign starts, up to its first step.
struct StartCase {
    const char16_t* word;
    qint16 RunState::*step;
    qint16 firstStep;
    QLatin1StringView sentLabel;
    const char16_t* sent;
    QLatin1StringView checkLogBox;
    bool endsRunningOne;
};

class StartTest : public CursorTest, public testing::WithParamInterface<StartCase> {
protected:
    StartTest() {
        Fill({u"11"_s});
        app->state.CurrentAction.clear();
        for (const auto& field : {"txtMsgSubject"_L1, "txtMsgMessage"_L1, "txtComment"_L1})
            app->controls.SetText(field, u"text"_s);
    }
    // Up to the first step, which is the machine's.
    void Start() {
        Campaign campaign = *FindCampaign(QString::fromUtf16(GetParam().word));
        campaign.activity.stepRoutine = nullptr;
        app->Get<SendRuns>().Start(campaign);
    }
};

TEST_P(StartTest, ResetsTheRunAndEntersItsFirstStep) {
    RunState& state = app->state;
    state.lngSkippedCount = state.lngFilteredCount = state.lngSessionMsg = state.lngSessionCom = 5;
    state.intCurrentIDIndex = 7;
    state.blnLinkFound = state.blnWaitingForCaptcha = state.blnSkipCurrentID = state.blnSkipRequested = true;
    state.blnHoldLinkCheck = true;
    state.strLinkType = state.strLinkValue = state.strFRResumeURL = u"old"_s;
    app->timers->tmrCheckLinkLoaded.Restart();
    app->webHide().ZOrder(0);
    app->controls.SetText(GetParam().sentLabel, u"of the run before"_s);
    Start();
    EXPECT_EQ(state.CurrentAction, QString::fromUtf16(GetParam().word));
    EXPECT_EQ(state.*GetParam().step, GetParam().firstStep);
    EXPECT_EQ(app->controls.Text(GetParam().sentLabel), QString::fromUtf16(GetParam().sent));
    EXPECT_FALSE(app->timers->tmrCheckLinkLoaded.Enabled());
    EXPECT_TRUE(state.strLinkType.isEmpty() && state.strLinkValue.isEmpty() &&
                state.strFRResumeURL.isEmpty());
    EXPECT_FALSE(state.blnLinkFound || state.blnWaitingForCaptcha || state.blnSkipCurrentID ||
                 state.blnSkipRequested || state.blnHoldLinkCheck);
    EXPECT_EQ(state.lngSkippedCount + state.lngFilteredCount, 0);
    EXPECT_EQ(state.intCurrentIDIndex, 0);
    EXPECT_EQ(app->webHide().Position(), 1);
    EXPECT_TRUE(app->WebBrowser1().Silent() && app->webHide().Silent());
}

TEST_P(StartTest, InAChainThatGoesOnKeepsTheCursor) {
    const Chain* chain = FindChain(QString::fromUtf16(GetParam().word));
    if (!chain)
        GTEST_SKIP() << "no campaign that goes on";
    app->state.intCurrentIDIndex = 7;
    app->state.SwitchingAccount = true;
    app->controls.SetTicked(chain->on, true);
    Start();
    EXPECT_EQ(app->state.intCurrentIDIndex, 7);
    EXPECT_TRUE(app->state.blnChaining);
    app->controls.SetTicked(chain->off, true);
    app->state.SwitchingAccount = true;
    Start();
    EXPECT_EQ(app->state.intCurrentIDIndex, 0);
    EXPECT_FALSE(app->state.blnChaining);
}

TEST_P(StartTest, LooksInTheLogByItsBox) {
    Start();
    EXPECT_FALSE(app->state.blnCheckLog);
    app->controls.SetTicked(GetParam().checkLogBox, true);
    Start();
    EXPECT_TRUE(app->state.blnCheckLog);
}

TEST_P(StartTest, EndsARunningCampaignFirstOrNot) {
    app->state.CurrentAction = u"FR"_s;
    app->state.intFRStep = 8;
    Start();
    EXPECT_EQ(app->state.intFRStep, GetParam().endsRunningOne ? 0 : 8);
}

TEST_P(StartTest, ARefusedStartChangesNothing) {
    app->controls.SetItems("lstFriendIDs"_L1, {});
    app->state.lngSkippedCount = 5;
    Start();
    EXPECT_TRUE(app->state.CurrentAction.isEmpty());
    EXPECT_EQ(app->state.lngSkippedCount, 5);
}

INSTANTIATE_TEST_SUITE_P(Campaigns, StartTest,
                         testing::Values(StartCase{u"MSG", &RunState::intMsgStep, 4, "lblMsgSentCount"_L1,
                                                   u"Messages sent: 0", "chkMsgDontSendAgain"_L1, false},
                                         StartCase{u"COM", &RunState::intComStep, 4, "lblComSentCount"_L1,
                                                   u"Comments sent: 0", "chkComDontSendAgain"_L1, true}));

// What a start asks, in its place: nothing has been touched when it says no.
TEST_F(CursorTest, TheQuestionOfAStartComesAfterTheChecksAndBeforeTheReset) {
    static int asked;
    asked = 0;
    Campaign campaign = FriendRequests;
    campaign.mayStart = [](App& program, const Campaign& started) {
        ++asked;
        return started.Word() == FriendRequests.Word() && program.controls.Ticked("chkFRNote"_L1);
    };
    app->state.lngSkippedCount = 5;
    app->Get<SendRuns>().Start(campaign);
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(dialogs.messages.size(), 1U);
    Fill({u"11"_s});
    app->state.CurrentAction.clear();
    app->Get<SendRuns>().Start(campaign);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(app->state.lngSkippedCount, 5);
    EXPECT_TRUE(app->state.CurrentAction.isEmpty());
    app->controls.SetTicked("chkFRNote"_L1, true);
    app->Get<SendRuns>().Start(campaign);
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(app->state.lngSkippedCount, 0);
    EXPECT_EQ(app->state.CurrentAction, u"FR"_s);
}

// The report names its file by the definition; whoever is passed over stands in it.
TEST_F(CursorTest, EachCampaignWithTargetsReportsThemInItsOwnFile) {
    struct Case {
        const Campaign& campaign;
        const char16_t* file;
    };
    Fill({u"11"_s});
    app->controls.SetTicked("chkMsgDontSendAgain"_L1, true);
    app->controls.SetTicked("chkComDontSendAgain"_L1, true);
    for (const auto& field : {"txtMsgSubject"_L1, "txtMsgMessage"_L1, "txtComment"_L1})
        app->controls.SetText(field, u"text"_s);
    for (const Case& each : {Case{Messages, u"MessagesReport.txt"}, Case{Comments, u"CommentsReport.txt"}}) {
        app->state.CurrentAction.clear();
        app->files.WriteLines(SentLog(*app, &each.campaign).Path(), {u"11"_s});
        app->Get<SendRuns>().Start(each.campaign);
        EXPECT_FALSE(app->Get<SendRuns>().TakeTarget(u"test"_s));
        app->Get<SendRuns>().Finish();
        const QString path = app->ProgramFile(QString::fromUtf16(each.file));
        ASSERT_TRUE(app->files.FileExists(path));
        const ReportedRun run = RunsIn(app->files.ReadLines(path))[0];
        ASSERT_EQ(run.rows.size(), 1);
        EXPECT_EQ(run.rows[0].why, u"You sent to this one before"_s);
        EXPECT_EQ(run.how, u"All targets were gone through"_s);
    }
    EXPECT_FALSE(app->files.FileExists(app->ProgramFile(u"FriendsReport.txt"_s)));
}

// The log is the only guard of friend requests, whatever the messenger's box says.
TEST_F(CursorTest, AFriendRequestRunAlwaysLooksInTheLog) {
    Fill({u"11"_s});
    app->state.CurrentAction.clear();
    app->Get<SendRuns>().Start(FriendRequests);
    EXPECT_TRUE(app->state.blnCheckLog);
    EXPECT_EQ(app->controls.Text("lblFrSentCount"_L1), u"Friends requested: 0"_s);
}

// Each campaign tells its counts on its own tab, and what is part of another tells none.
TEST_F(CursorTest, TheCountsOfARunStandOnItsOwnTab) {
    RunState& state = app->state;
    state.lngSkippedCount = 2;
    state.lngFilteredCount = 1;
    state.lngFailedCount = 4;
    const QStringList labels{u"lblFr"_s, u"lblMsg"_s, u"lblCom"_s};
    const QStringList words{u"FR"_s, u"MSG"_s, u"COM"_s};
    auto shown = [this](const QString& label) {
        return app->controls.Text(QLatin1StringView((label + u"SkippedCount"_s).toLatin1())) + u' ' +
               app->controls.Text(QLatin1StringView((label + u"FailedCount"_s).toLatin1()));
    };
    for (qsizetype campaign = 0; campaign < words.size(); ++campaign) {
        state.CurrentAction = words[campaign];
        app->Get<SendRuns>().ShowCounts();
        for (qsizetype other = 0; other < labels.size(); ++other)
            EXPECT_EQ(shown(labels[other]),
                      other <= campaign ? u"Skipped: 3 Failed: 4"_s : u"Skipped: 0 Failed: 0"_s);
    }
    state.lngFailedCount = 5;
    for (const QString& word : {u"MSG"_s, u"COM"_s}) {
        state.CurrentAction = word;
        state.strAcceptMode = word;
        app->Get<SendRuns>().ShowCounts();
    }
    EXPECT_EQ(shown(u"lblMsg"_s), u"Skipped: 3 Failed: 4"_s);
    EXPECT_EQ(shown(u"lblCom"_s), u"Skipped: 3 Failed: 4"_s);
    state.CurrentAction.clear();
    app->Get<SendRuns>().ShowCounts();
    EXPECT_EQ(shown(u"lblFr"_s), u"Skipped: 3 Failed: 4"_s);
}

TEST_F(CursorTest, EachCampaignHasItsButtons) {
    for (const QString& button : {u"piccmdAddFriends"_s, u"piccmdAddFriendsStop"_s, u"piccmdFrClearLog"_s,
                                  u"picCmdBulSend"_s, u"piccmdBulStop"_s, u"piccmdSendStatusUpdates"_s})
        EXPECT_TRUE(app->commands.Has(button + u"_Click"_s)) << button.toStdString();
    // Its runs are stopped by the window's Stop.
    EXPECT_FALSE(app->commands.Has(u"_Click"_s));
}

} // namespace
} // namespace qlm
