// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "gather/GatherDriver.h"
#include "steps/StopResume.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

// Single entries of the step routine, with the state as it is left.
class GatherStepTest : public SimulatedProgram {
protected:
    GatherStepTest() {
        StartOn(world.deploymentText + u"SiteDomain=example.com\n"_s);
        app->state.blnLoggingEnabled = true;
        app->state.CurrentAction = u"SCANNING"_s;
        app->controls.SetTicked("optScanFollowing"_L1, true);
    }
    // A load that is on its way and arrives unless the browser is stopped.
    void BeginLoad() {
        world.web.SetPage(u"http://x.example.com/late"_s, u"<html><body><a href=/>Late</a></body></html>"_s);
        app->WebBrowser1().Navigate(u"http://x.example.com/late"_s);
    }
    void Enter(qint16 step) {
        app->state.intGatherStep = step;
        app->Get<GatherDriver>().IterateGatherProfiles();
    }
};

TEST_F(GatherStepTest, EachEntryForgetsTheMarksOfTheLastPage) {
    app->state.strLastPageText = u"Listing 1-40"_s;
    app->state.strLastPageHref = u"http://x.example.com/1"_s;
    app->state.blnLastPageAsHTML = true;
    Enter(0);
    EXPECT_EQ(app->state.strLastPageText, QString());
    EXPECT_EQ(app->state.strLastPageHref, QString());
    EXPECT_FALSE(app->state.blnLastPageAsHTML);
}

TEST_F(GatherStepTest, AScanForgetsThatACommentFormWasShown) {
    Show(u"http://www.example.com/any"_s, u"<a href='/1'>x</a>"_s);
    app->state.blnCommentFormShown = true;
    bool scanned = false;
    app->diagnostics.onLine = [&](const QString& line) {
        if (!line.startsWith(u"GPP0a0a0"_s))
            return;
        scanned = true;
        EXPECT_FALSE(app->state.blnCommentFormShown);
    };
    Enter(3);
    EXPECT_TRUE(scanned);
}

TEST_F(GatherStepTest, APieceOfMarkupMarksTheLastPageInTheNewLayoutAlone) {
    auto mark = [&](bool newLayout) {
        app->state.CurrentAction = u"SCANNING"_s;
        app->state.blnNewLayout = newLayout;
        app->state.strNextPageLink = u"CLICKID=go"_s;
        Show(u"http://www.example.com/browse/people"_s,
             u"<b id=go>Next</b><a href='/1'>x</a><i class=miniProfile></i><ul></ul>"_s);
        QString told;
        app->diagnostics.onLine = [&](const QString& line) {
            if (!line.startsWith(u"IGP4.2 - "_s))
                return;
            told = app->state.strLastPageText;
            EXPECT_EQ(app->state.blnLastPageAsHTML, newLayout);
            app->state.CurrentAction.clear();
        };
        Enter(4);
        return told;
    };
    EXPECT_TRUE(mark(true).startsWith(u"miniProfile"_s));
    EXPECT_EQ(mark(false), QString());
}

// The link says the same after the next click; what stands around it doesn't.
TEST_F(GatherStepTest, TheOldEndOfNotificationsIsTheTextAroundTheirLink) {
    Show(
        u"http://www.example.com/my/notifications"_s,
        u"<div class=paginationProgress><p>From May to June <a class=moreLink href='javascript:void(0)'>Show "
        "more (10 of 20)</a></p></div>"_s);
    Enter(4);
    EXPECT_EQ(app->state.strLastPageText.simplified(), u"From May to June Show more (10 of 20)"_s);
    EXPECT_EQ(app->state.strNextPageLink, u"temp"_s);
    EXPECT_EQ(app->state.intGatherStep, 3);
    EXPECT_EQ(app->state.strLinkType, u"Text"_s);
    EXPECT_EQ(app->state.strLinkValue, u"e"_s);
    EXPECT_FALSE(app->state.blnLinkFound);
}

TEST_F(GatherStepTest, AListThatGrowsStopsTheBrowserFirst) {
    const QString url = u"http://www.example.com/7/comments"_s;
    Show(url, u"<p><a class=moreComments href='javascript:void(0)'>More</a></p>"_s);
    BeginLoad();
    Enter(4);
    EXPECT_EQ(app->state.strLastPageText, u"More"_s);
    platform->Pump().RunFor(2000);
    EXPECT_EQ(app->WebBrowser1().LocationURL(), url);
}

TEST_F(GatherStepTest, ATurnedPageStopsTheBrowserFirst) {
    const QString url = u"http://www.example.com/any"_s;
    Show(url, u"<b id=go>Next</b><a href='/1'>x</a>"_s);
    app->state.strNextPageLink = u"CLICKID=go"_s;
    BeginLoad();
    Enter(4);
    EXPECT_EQ(app->state.strLinkValue, u"ListOfIDs"_s);
    platform->Pump().RunFor(2000);
    EXPECT_EQ(app->WebBrowser1().LocationURL(), url);
}

// On a browse page a click that nothing follows is made once more after five seconds.
TEST_F(GatherStepTest, OnABrowsePageTheCaptionIsClickedASecondTime) {
    auto clicks = [&](const QString& url) {
        Show(url, u"<a href='javascript:void(0)'>Next</a>"_s);
        app->state.strNextPageLink = u"Next"_s;
        app->state.blnClickNextLink = true;
        int clicked = 0;
        app->diagnostics.onLine = [&](const QString& line) { clicked += line == u"NEXT LINK CLICKED"_s; };
        const qint64 startMs = platform->Pump().NowMs();
        Enter(4);
        EXPECT_FALSE(app->state.blnClickNextLink);
        return std::pair(clicked, (platform->Pump().NowMs() - startMs) / 1000);
    };
    EXPECT_EQ(clicks(u"http://www.example.com/browse/people"_s), std::pair(2, qint64(5)));
    EXPECT_EQ(clicks(u"http://www.example.com/any"_s), std::pair(1, qint64(0)));
}

TEST_F(GatherStepTest, InTheNewLayoutATurnedPageIsNotAwaitedByTheTick) {
    app->state.blnNewLayout = true;
    Show(u"http://www.example.com/any"_s, u"<b id=go>Next</b><a href='/1'>x</a>"_s);
    app->state.strNextPageLink = u"CLICKID=go"_s;
    app->timers->tmrCheckLinkLoaded.Restart();
    bool waited = false;
    app->diagnostics.onLine = [&](const QString& line) {
        if (!line.startsWith(u"NEXTPAGEWAIT1"_s))
            return;
        waited = true;
        EXPECT_FALSE(app->timers->tmrCheckLinkLoaded.Enabled());
        app->state.CurrentAction.clear();
    };
    Enter(4);
    EXPECT_TRUE(waited);
}

TEST_F(GatherStepTest, EachRunBeginsItsTrailAnew) {
    const QString trail = app->DataFile(u"debuggather.txt"_s);
    for (const auto& [button, first] : {std::pair(u"picScanStart_Click"_s, u"START - Curr: "_s),
                                        std::pair(u"picRemoveFriends_Click"_s, u"REMOVE FRIENDS START"_s)}) {
        app->files.WriteLines(trail, {u"the run before"_s});
        app->controls.SetTicked("optImportClickedProfiles"_L1, true);
        app->commands.Run(button);
        EXPECT_TRUE(app->files.ReadLines(trail).value(0).startsWith(first)) << first.toStdString();
    }
}

// Stop at a line of the trail that the turn of a page writes: nothing of the turn comes after it.
TEST_F(GatherStepTest, AStopEndsTheTurnOfAPageWhereItIs) {
    struct Row {
        QString line;
        bool opensThePage;
    };
    for (const Row& row : {Row{u"IGP4.2"_s, false}, Row{u"NEXTPAGEWAIT0"_s, true}}) {
        app->state.CurrentAction = u"SCANNING"_s;
        app->state.blnNewLayout = false;
        app->state.strNextPageLink = u"http://x.example.com/2"_s;
        app->state.blnClickNextLink = false;
        Show(u"http://www.example.com/any"_s, u"<a href='/1'>x</a>"_s);
        platform->Browser(BrowserName::WebBrowser1).TakeVisited();
        app->timers->tmrCheckLinkLoaded.Restart();
        QStringList after;
        bool stopped = false;
        app->diagnostics.onLine = [&](const QString& line) {
            if (stopped)
                after += line;
            if (stopped || !line.startsWith(row.line))
                return;
            app->Get<StopResume>().StopAll(StopReason::WindowStop);
            stopped = true;
        };
        Enter(4);
        app->diagnostics.onLine = {};
        EXPECT_TRUE(stopped);
        EXPECT_EQ(after, QStringList()) << row.line.toStdString();
        EXPECT_EQ(platform->Browser(BrowserName::WebBrowser1).TakeVisited().isEmpty(), !row.opensThePage);
        EXPECT_EQ(app->state.strLinkValue, QString());
        EXPECT_FALSE(app->timers->tmrCheckLinkLoaded.Enabled());
    }
}

} // namespace
} // namespace qlm
