// SPDX-License-Identifier: MIT
#include "CommenterTest.h"
#include "campaigns/Commenter.h"
#include "steps/ActionTick.h"
#include "steps/RunReport.h"

#include <utility>

namespace qlm {
namespace {

// Whether the site shows the newer or the older comment page.
class CommenterTest : public CommentRun, public testing::WithParamInterface<bool> {
protected:
    CommenterTest() : CommentRun(GetParam()) {}

    void RunAccepting(const QStringList& ids) {
        State().strAcceptMode = u"COM"_s;
        State().CurrentAction = u"COM"_s;
        State().intComStep = 4;
        State().intCurrentIDIndex = 7;
        app->controls.SetItems("lstAcceptIDs"_L1, ids);
        app->Get<Commenter>().IterateSendComments();
        RunOn();
    }
};

INSTANTIATE_TEST_SUITE_P(Layouts, CommenterTest, testing::Values(true, false));

TEST_P(CommenterTest, ARunPostsToEachTargetOnceAndLogsIt) {
    Run();
    EXPECT_EQ(Posted(), (QStringList{u"1001 Hello"_s, u"1002 Hello"_s}));
    EXPECT_EQ(Log(), (QStringList{u"1001"_s, u"1002"_s}));
    EXPECT_EQ(Notes(), QStringList());
    EXPECT_EQ(State().lngSessionCom, 2);
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Finished sending comments."_s});
}

TEST_P(CommenterTest, AnAcceptedFriendGetsTheAcceptersTextWithoutLineCountOrLimit) {
    app->controls.SetText("txtComStopAt"_L1, u"1"_s);
    State().lngSessionCom = 5;
    RunAccepting({u"1002"_s, u"1001"_s});
    EXPECT_EQ(Posted(), (QStringList{u"1002 Welcome"_s, u"1001 Welcome"_s}));
    EXPECT_EQ(Log(), QStringList());
    EXPECT_EQ(Notes(), QStringList());
    EXPECT_EQ(State().lngSessionCom, 5);
    EXPECT_EQ(State().lngDailyCom, 0);
    EXPECT_TRUE(app->controls.Items("lstAcceptIDs"_L1).isEmpty());
    EXPECT_EQ(State().arrFriendIDs.size(), 2);
    EXPECT_EQ(State().intCurrentIDIndex, 7);
    EXPECT_EQ(State().CurrentAction, u"ACC"_s);
    EXPECT_EQ(State().intAccStep, 3); // its list is being loaded anew
    EXPECT_EQ(State().intComStep, 0);
    EXPECT_TRUE(dialogs.Texts().isEmpty());
}

TEST_P(CommenterTest, AnAcceptedFriendIsLoggedAndPassedOverByWish) {
    app->controls.SetTicked("mnuAddToLogWhenAccepting"_L1, true);
    app->files.WriteLines(SentLog(*app, &Comments).Path(), {u"1002"_s});
    RunAccepting({u"1002"_s, u"1001"_s});
    EXPECT_EQ(Posted(), QStringList{u"1001 Welcome"_s});
    EXPECT_EQ(Log(), (QStringList{u"1002"_s, u"1001"_s}));
    EXPECT_EQ(State().lngSessionCom, 0);
}

// The page on which the accepter's friend refuses HTML.
TEST_P(CommenterTest, AnAcceptedFriendWhoseProfileRefusesHtmlIsSkippedByTheOption) {
    SetPage(CommentPage(u"1001"_s),
            (GetParam() ? NewPage(u"1001"_s) : OldPage(u"1001"_s)) + u"This user disables HTML comments"_s);
    RunAccepting({u"1001"_s, u"1002"_s});
    EXPECT_EQ(Posted(), QStringList{u"1002 Welcome"_s});
    app->controls.SetTicked("optACCcomHTMLBLocked(1)"_L1, true);
    app->controls.SetText("txtAcceptCommentNonHTML"_L1, u"Plain"_s);
    RunAccepting({u"1001"_s});
    EXPECT_EQ(Posted(), QStringList{u"1001 Plain"_s});
}

// A step that is repeated after its press posts nothing more.
TEST_P(CommenterTest, WhateverLeadsBackToAFormThatWasSentItIsSentOnce) {
    QStringList posted;
    bool isRepeated = false;
    platform->Pump().onPump = [&] {
        posted += Posted();
        if (posted.isEmpty() || std::exchange(isRepeated, true))
            return;
        State().intComStep = 7;
        app->Get<StopResume>().ResumeNext();
    };
    Run();
    posted += Posted();
    EXPECT_TRUE(isRepeated);
    EXPECT_EQ(posted, (QStringList{u"1001 Hello"_s, u"1002 Hello"_s}));
    EXPECT_EQ(Log(), (QStringList{u"1001"_s, u"1002"_s}));
}

// Between two targets a check may see the blank page, once with each of them.
TEST_P(CommenterTest, ChecksOfTheBlankPageBetweenTargetsCostNobodyTheirComment) {
    bool isChecked = false;
    platform->Pump().onPump = [&] {
        if (State().strCurrentID == u"1001")
            State().intBlankTicks = 30;
        else if (State().intComStep == 4 && Address() == u"about:blank" && !std::exchange(isChecked, true))
            app->Get<ActionTick>().tmrCheckLinkLoaded_Timer();
    };
    Run();
    EXPECT_TRUE(isChecked);
    EXPECT_EQ(Log(), (QStringList{u"1001"_s, u"1002"_s}));
    EXPECT_EQ(State().lngFailedCount, 0);
}

TEST_P(CommenterTest, ALogThatCannotBeWrittenIsTold) {
    app->files.CreateFolder(SentLog(*app, &Comments).Path());
    app->controls.SetTicked("chkComDontSendAgain"_L1, false);
    Run();
    EXPECT_EQ(Posted().size(), 2);
    const QList<ReportRow> rows = app->Get<RunReport>().Runs(Comments.report).constLast().rows;
    ASSERT_EQ(rows.size(), 2);
    for (const ReportRow& row : rows)
        EXPECT_EQ(ResultText(row.result) + u", "_s + row.why,
                  u"Sent, not logged, The log could not be written"_s);
}

TEST_P(CommenterTest, ACountThatCannotBeSavedEndsARunWithALimitPerDay) {
    world.settings.problem = u"The settings could not be saved."_s;
    app->controls.SetText("txtComStopAt"_L1, u"5"_s);
    app->controls.SetText("cboCOMPerDayOrSession"_L1, u"per day"_s);
    Run();
    EXPECT_EQ(Posted().size(), 1);
    EXPECT_EQ(Log(), QStringList{u"1001"_s});
}

// Both browsers, and what is left of the step before.
TEST_P(CommenterTest, EachEntryOfTheStepMakesTheBrowsersSilentAndForgetsTheLastPage) {
    State().CurrentAction = u"COM"_s;
    State().strLastPageText = State().strLastPageHref = u"old"_s;
    Browser().SetSilent(false);
    app->webHide().SetSilent(false);
    app->webHide().ZOrder(0);
    app->Get<Commenter>().IterateSendComments();
    EXPECT_TRUE(Browser().Silent() && app->webHide().Silent());
    EXPECT_EQ(app->webHide().Position(), 1);
    EXPECT_EQ(State().strLastPageText + State().strLastPageHref, QString());
}

class KilledCommenterTest : public CommenterTest {
protected:
    // Runs until the program dies or is done, and once more on what the disk holds. Nobody gets two.
    // Answers whether it had died.
    bool Dies(const std::function<void()>& arm) {
        bool hasDied = false;
        arm();
        try {
            Run();
        } catch (const SimPowerCut&) {
            hasDied = true;
        }
        world.gate.Mend();
        QStringList posted = Posted();
        const QString deployment = world.deploymentText;
        StartOn(deployment);
        Prepare();
        Run();
        posted += Posted();
        posted.sort();
        EXPECT_LE(posted.count(u"1001 Hello"_s), 1);
        EXPECT_LE(posted.count(u"1002 Hello"_s), 1);
        EXPECT_EQ(posted.contains(u"1001 Hello"_s) || Notes().contains(u"1001"_s), true);
        const QString log = SentLog(*app, &Comments).Path();
        app->files.DeleteFile(log);
        OpenNotes(app->files, log).Clear();
        StartOn(deployment);
        Prepare();
        return hasDied;
    }
};

INSTANTIATE_TEST_SUITE_P(Layouts, KilledCommenterTest, testing::Values(true, false));

TEST_P(KilledCommenterTest, CutOffAtAnyWriteNobodyGetsACommentTwice) {
    int write = 1;
    while (write < 60 && Dies([&] { world.gate.CrashAtWrite(write); })) {
        SCOPED_TRACE(write);
        ++write;
    }
    EXPECT_GT(write, 8);
    EXPECT_LT(write, 60);
}

TEST_P(KilledCommenterTest, KilledAtAnyTurnNobodyGetsACommentTwice) {
    int turn = 1;
    while (turn < 5000 && Dies([&] {
               platform->Pump().onPump = [this, left = turn]() mutable {
                   if (--left == 0)
                       throw SimPowerCut();
               };
           })) {
        SCOPED_TRACE(turn);
        turn += GetParam() ? 7 : 1;
    }
    EXPECT_GT(turn, 10);
    EXPECT_LT(turn, 5000);
}

} // namespace
} // namespace qlm
