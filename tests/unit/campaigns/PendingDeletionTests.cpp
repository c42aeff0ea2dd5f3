// SPDX-License-Identifier: MIT
// The desktop site's way to take pending requests back, which nothing starts.
#include "InboundRun.h"
#include "inbound/PendingRequests.h"
#include "steps/Steps.h"

namespace qlm {
namespace {

class PendingDeletionTest : public InboundRun {
protected:
    PendingDeletionTest() {
        world.web.responder = [this](const SimRequest& request) { return AnswerOf(request); };
        app->controls.SetText("txtDelPenFRStartPage"_L1, u"1"_s);
    }

    SimAnswer AnswerOf(const SimRequest& request) {
        const bool isPost = request.method == u"POST";
        asked.append(request.method.left(1) + request.url.section(u'/', 3));
        const qsizetype page = request.url.contains(u"page="_s) ? request.url.right(1).toInt() : 1;
        if (isPost)
            pages.removeAt(page - 1);
        SimAnswer answer;
        answer.html = u"<html><body><a href='/home'>Home</a>"_s +
                      (isPost ? u"<p>Your sent request has been cancelled.</p>"_s : BodyOfPage(page)) +
                      u"</body></html>"_s;
        return answer;
    }

    QString BodyOfPage(qsizetype page) const {
        if (pages.isEmpty())
            return u"There are 0 requests in this folder"_s;
        const QString link =
            hasLink ? u"<a href=\"javascript: requestlist.GoToPage('%1,0')\" data-on-click='goto "
                      "http://mail.site.example.com/list?page=%1'>%1</a>"_s.arg(pages.size())
                    : QString();
        return u"<p>Listing %1</p>"_s.arg(pages[page - 1]) + marker + head +
               u"<form id=all method=post action='/list?page=%1'></form>"_s.arg(page) +
               u"<div class=pagingLink>Page 1 of <b>%1</b></div>"_s.arg(pages.size()) + link;
    }

    void Begin() {
        State().CurrentAction = u"DEL PEN"_s;
        State().intDelPenStep = PendingStep::OpenList;
        app->Get<PendingRequests>().IterateDelPenFR();
    }
    void RunOn(int limitMs = 300'000) {
        platform->Pump().RunUntil([this] { return State().CurrentAction.isEmpty(); }, limitMs);
    }
    QStringList Trail() const {
        QStringList lines;
        for (const QString& line : trail)
            if (line.startsWith(u"IDP "_s) || line.startsWith(u"DelPenReq "_s))
                lines.append(line.section(u" - "_s, 0, 0));
        return lines;
    }
    const QString List = u"Gindex.cfm?fuseaction=mail.pendingFriendRequests"_s;
    QStringList pages{u"1-2 of 3"_s, u"3-3 of 3"_s}; // what each says of itself
    QStringList asked;
    QString marker = u"<p>Currently awaiting approval from Anna</p>"_s;
    QString head =
        u"<input type=checkbox id=chktop data-on-click='set #top class ticked'><b id=top></b><span "
        "id=spancanceltop data-on-click='submit #all'>Cancel Request</span>"_s;
    bool hasLink = true;
};

TEST_F(PendingDeletionTest, TheListIsWorkedFromItsLastPageUntilItIsEmpty) {
    Begin();
    EXPECT_EQ(State().intDelPenStep, PendingStep::LastPage);
    EXPECT_EQ(State().strLinkType, u"Text"_s);
    EXPECT_EQ(State().strLinkValue, u"currently awaiting approval from"_s);
    RunOn();
    EXPECT_EQ(State().CurrentAction, QString());
    const QStringList expected{List, u"Glist?page=2"_s, u"Plist?page=2"_s, List, u"Plist?page=1"_s, List};
    EXPECT_EQ(asked, expected);
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Finished deleting Pending Requests"_s});
    const QStringList deletion{u"IDP 2.2 (FIRSTPAGE)"_s, u"IDP 3 (LASTPAGE)"_s, u"DelPenReq 1"_s,
                               u"DelPenReq 3"_s};
    const QStringList end{u"IDP 2.2 (FIRSTPAGE)"_s, u"IDP 2.4"_s, u"IDP 5"_s};
    EXPECT_EQ(Trail(), deletion + deletion + end) << trail.join(u'\n').toStdString();
}

TEST_F(PendingDeletionTest, ItsTrailTellsThePages) {
    Begin();
    RunOn();
    EXPECT_TRUE(SaidBeginningWith(u"IDP 2.2 (FIRSTPAGE) - <a"_s));
    EXPECT_TRUE(SaidBeginningWith(u"IDP 3 (LASTPAGE) - <a"_s));
    EXPECT_TRUE(SaidBeginningWith(u"DelPenReq 1 - 20"_s));
    EXPECT_TRUE(Said(u"DelPenReq 3 - DELETED - "_s));
    EXPECT_TRUE(Said(u"IDP 2.4"_s));
    EXPECT_TRUE(Said(u"IDP 5 - FINISHED"_s));
}

TEST_F(PendingDeletionTest, TheLastPageIsAwaitedByItsButton) {
    Begin();
    platform->Pump().RunUntil([this] { return State().intDelPenStep == PendingStep::Delete; }, 60'000);
    EXPECT_EQ(State().strLinkType, u"Text"_s);
    EXPECT_EQ(State().strLinkValue, u"cancel request"_s);
    EXPECT_TRUE(app->timers->tmrCheckLinkLoaded.Enabled());
    platform->Pump().RunUntil([this] { return State().intDelPenStep == PendingStep::OpenList; }, 60'000);
    EXPECT_EQ(State().strLinkValue, u"your sent request has been cancel"_s);
    EXPECT_TRUE(app->timers->tmrCheckLinkLoaded.Enabled());
}

TEST_F(PendingDeletionTest, WithoutALinkToItTheFirstPageIsWorkedOn) {
    hasLink = false;
    Begin();
    RunOn();
    EXPECT_EQ(asked.mid(0, 3), (QStringList{List, u"Plist?page=1"_s, List}));
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Finished deleting Pending Requests"_s});
}

TEST_F(PendingDeletionTest, FewerPagesThanTheStartPageAreLeftAlone) {
    app->controls.SetText("txtDelPenFRStartPage"_L1, u"3"_s);
    Begin();
    RunOn();
    EXPECT_EQ(asked, QStringList{List});
    EXPECT_EQ(pages.size(), 2);
    EXPECT_EQ(Trail(), (QStringList{u"IDP 2.2 (FIRSTPAGE)"_s, u"IDP 2.4"_s, u"IDP 5"_s}));
}

TEST_F(PendingDeletionTest, AStartPageThatIsNoNumberIsTheFirst) {
    app->controls.SetText("txtDelPenFRStartPage"_L1, u"abc"_s);
    Begin();
    EXPECT_EQ(app->controls.Text("txtDelPenFRStartPage"_L1), u"1"_s);
}

// A page without a mark of a pending request is one without requests, whatever it lists.
TEST_F(PendingDeletionTest, WithoutTheMarkNothingIsTakenBack) {
    marker.clear();
    Begin();
    platform->Pump().RunFor(10'000);
    EXPECT_EQ(State().CurrentAction, u"DEL PEN"_s); // still awaited
    State().blnLinkFound = true;
    app->Get<PendingRequests>().IterateDelPenFR();
    RunOn();
    EXPECT_EQ(asked, QStringList{List});
    EXPECT_EQ(pages.size(), 2);
}

TEST_F(PendingDeletionTest, ABoxThatComesLateIsWaitedFor) {
    const QString late = std::exchange(
        head,
        u"<b id=top></b><span id=spancanceltop data-on-click='submit #all'>Cancel Request</span><p id=q "
        "data-on-load='after 5s append #q <input type=checkbox id=chktop>'></p>"_s);
    pages.removeLast();
    Begin();
    RunOn();
    EXPECT_EQ(asked, (QStringList{List, u"Plist?page=1"_s, List}));
}

TEST_F(PendingDeletionTest, StopEndsTheWaitForTheBox) {
    head = u"<span id=spancanceltop data-on-click='submit #all'>Cancel Request</span>"_s;
    Begin();
    platform->Pump().Queue().PostAt(world.clock.NowMs() + 15'000, [this] {
        EXPECT_EQ(State().intDelPenStep, PendingStep::Delete);
        app->commands.Run(u"picDeletePendingRequestsStop_Click"_s);
    });
    RunOn(20'000);
    platform->Pump().RunFor(60'000);
    EXPECT_EQ(asked, (QStringList{List, u"Glist?page=2"_s}));
    EXPECT_EQ(dialogs.Texts(), QStringList());
}

TEST_F(PendingDeletionTest, TheProgramClosesAfterItWhereThatIsWanted) {
    State().blnExitWhenFinished = true;
    pages.clear();
    Begin();
    RunOn();
    EXPECT_TRUE(State().blnClosing);
    EXPECT_EQ(dialogs.Texts(), QStringList());
}

} // namespace
} // namespace qlm
