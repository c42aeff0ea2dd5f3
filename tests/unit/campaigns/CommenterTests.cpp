// SPDX-License-Identifier: MIT
#include "BrowserTest.h"
#include "campaigns/Campaigns.h"
#include "campaigns/Commenter.h"
#include "campaigns/OpenNotes.h"
#include "campaigns/SentLog.h"
#include "gather/GatheredList.h"
#include "steps/RunReport.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

// Whether the site shows the newer or the older comment page.
class CommenterTest : public BrowserTest, public testing::WithParamInterface<bool> {
protected:
    CommenterTest() {
        ShowPages();
        Prepare();
    }

    void ShowPages() {
        const QString comments = app->Expand(u"http://{CommentHost}/"_s);
        SetPage(comments + u"done"_s, u"Your comment has been posted!"_s);
        SetPage(app->Expand(u"http://{SiteRootHost}/posted"_s), u"x"_s);
        for (const QString& id : {u"1001"_s, u"1002"_s}) {
            SetPage(app->Expand(u"http://{SiteRootHost}/%1/comments"_s).arg(id), NewPage(id));
            SetPage(comments + u"index.cfm?fuseaction=user.viewProfile_commentForm&friendID="_s + id,
                    OldPage(id));
            SetPage(comments + u"confirm/"_s + id,
                    u"<form method=post action=/done><input type=submit value='Post a Comment'></form>"_s);
        }
    }
    void SetPage(const QString& url, const QString& body) {
        world.web.SetPage(url, u"<html><body><a href='/home'>Home</a>"_s + body + u"</body></html>"_s);
    }
    static QString NewPage(const QString& id) {
        return u"<p id=hint>Post a comment...</p>"
               "<form id=form method=post action='/posted?%1' target=sink><div id=frame>"
               "<textarea id=box name=comment placeholder='Post a comment' data-on-input='hide #hint'"
               " data-on-focus='set #frame class absolute'></textarea></div></form>"
               "<iframe name=sink srcdoc=x></iframe>"
               "<button data-on-click='submit #form'>Post</button>"_s.arg(id);
    }
    QString OldPage(const QString& id) {
        return app->Expand(
            u"<a href='http://{ProfileHost}/index.cfm?fuseaction=user.viewprofile&friendID=1'>x"
            "</a><form method=post action='/confirm/%1'><textarea name=commentText></textarea>"
            "<input type=submit value='Post a Comment'></form>"_s.arg(id));
    }

    // A program that has just been started.
    void Prepare() {
        State().blnNewLayout = GetParam();
        for (const QString& id : {u"1001"_s, u"1002"_s})
            app->Get<GatheredList>().Add(id, u"test"_s);
        app->controls.SetText("txtComment"_L1, u"Hello"_s);
        app->controls.SetText("txtAcceptComment"_L1, u"Welcome"_s);
        app->controls.SetTicked("chkComDontSendAgain"_L1, true);
    }
    void Run() {
        app->commands.Run(u"picCmdComSend_Click"_s);
        RunOn();
    }
    void RunOn() {
        platform->Pump().RunUntil([this] { return State().CurrentAction != u"COM"_s; }, 600'000);
    }
    void RunAccepting(const QStringList& ids) {
        State().strAcceptMode = u"COM"_s;
        State().CurrentAction = u"COM"_s;
        State().intComStep = 4;
        State().intCurrentIDIndex = 7;
        app->controls.SetItems("lstAcceptIDs"_L1, ids);
        app->Get<Commenter>().IterateSendComments();
        RunOn();
    }
    // What was posted to whom, since the last look.
    QStringList Posted() {
        QStringList posted;
        for (const auto& form : Browser().TakePosted())
            if (form.url.contains(u"/posted?"_s) || form.url.contains(u"/confirm/"_s))
                posted += form.url.right(4) + u' ' + form.fields.at(0).value;
        return posted;
    }
    QStringList Log() {
        const QString path = SentLog(*app, &Comments).Path();
        return app->files.FileExists(path) ? app->files.ReadLines(path) : QStringList();
    }
    QStringList Notes() { return OpenNotes(app->files, SentLog(*app, &Comments).Path()).All(); }
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
    EXPECT_EQ(State().intAccStep, 2);
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
    SetPage(app->Expand(u"http://{SiteRootHost}/1001/comments"_s),
            NewPage(u"1001"_s) + u"This user disables HTML comments"_s);
    SetPage(app->Expand(
                u"http://{CommentHost}/index.cfm?fuseaction=user.viewProfile_commentForm&friendID=1001"_s),
            OldPage(u"1001"_s) + u"This user disables HTML comments"_s);
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
