// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "gather/GatheredList.h"
#include "gather/LinkScanner.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

// One pass over the page in the browser, outside of any run of the driver.
class LinkScannerTest : public SimulatedProgram {
protected:
    LinkScannerTest() {
        app->state.blnNewLayout = true;
        app->state.CurrentAction = u"SCANNING"_s;
    }
    void Show(const QString& url, const QString& body) {
        world.web.SetPage(url, u"<html><body>"_s + body + u"</body></html>"_s);
        app->WebBrowser1().Navigate(url);
        platform->Pump().RunFor(1000);
    }
    void ShowProfiles(const QStringList& names) {
        QString body;
        for (const QString& name : names)
            body += u"<p><a href='http://www.example.com/"_s + name + u"'>"_s + name + u"</a></p>"_s;
        Show(u"http://www.example.com/any"_s, body);
    }
    const QStringList& Ids() const { return app->state.arrFriendIDs; }
};

TEST_F(LinkScannerTest, TheMemoryOfFetchedPagesIsClearedBehindAThousand) {
    ShowProfiles({u"11"_s});
    app->controls.SetTicked("optFullGather"_L1, true);
    for (int i = 0; i < 1000; ++i)
        app->state.lstAlreadyFullGatheredPageIDs.append(QString::number(i));
    app->linkScanner->GatherPageProfiles();
    EXPECT_EQ(app->state.lstAlreadyFullGatheredPageIDs.size(), 1000);
    app->state.lstAlreadyFullGatheredPageIDs.append(u"one more"_s);
    app->linkScanner->GatherPageProfiles();
    EXPECT_TRUE(app->state.lstAlreadyFullGatheredPageIDs.isEmpty());
}

TEST_F(LinkScannerTest, ThePageMayMoveAgainBehindAFullGather) {
    ShowProfiles({u"11"_s});
    app->controls.SetTicked("optFullGather"_L1, true);
    bool refusedInside = false;
    platform->Pump().onPump = [&] {
        refusedInside = refusedInside || app->WebBrowser1().RefusesNavigations();
    };
    app->linkScanner->GatherPageProfiles();
    EXPECT_TRUE(refusedInside);
    EXPECT_FALSE(app->WebBrowser1().RefusesNavigations());
}

TEST_F(LinkScannerTest, EachLinkLetsTheMessageLoopTurn) {
    ShowProfiles({u"11"_s, u"12"_s, u"13"_s});
    app->state.strNextPageLink = u"not the first page"_s;
    const qint64 startMs = platform->Pump().NowMs();
    app->linkScanner->GatherPageProfiles();
    EXPECT_GE(platform->Pump().NowMs() - startMs, 30);
    EXPECT_EQ(Ids(), (QStringList{u"11"_s, u"12"_s, u"13"_s}));
}

TEST_F(LinkScannerTest, AStopEndsThePassAtOnce) {
    ShowProfiles({u"11"_s, u"12"_s, u"13"_s});
    app->state.strNextPageLink = u"not the first page"_s;
    platform->Pump().onPump = [this] {
        if (!app->gatheredList->IsEmpty())
            app->state.CurrentAction.clear();
    };
    app->linkScanner->GatherPageProfiles();
    EXPECT_EQ(Ids(), QStringList{u"11"_s});
    EXPECT_FALSE(app->state.blnRetryGatherPage);
}

TEST_F(LinkScannerTest, TheFirstPageIsGivenFiveSecondsToShowItsPager) {
    ShowProfiles({u"11"_s});
    const qint64 startMs = platform->Pump().NowMs();
    app->linkScanner->GatherPageProfiles();
    EXPECT_GE(platform->Pump().NowMs() - startMs, 5000);
    Show(u"http://www.example.com/any"_s, u"<p>Next ›</p>"_s);
    app->state.strNextPageLink.clear();
    const qint64 againMs = platform->Pump().NowMs();
    app->linkScanner->GatherPageProfiles();
    EXPECT_LT(platform->Pump().NowMs() - againMs, 1000);
}

TEST_F(LinkScannerTest, WhileAcceptingTheRequestsAreCollected) {
    app->state.CurrentAction = u"ACC"_s;
    app->state.MyProfileID = u"12"_s;
    ShowProfiles({u"11"_s, u"12"_s, u"13"_s, u"11"_s});
    app->linkScanner->GatherPageProfiles();
    EXPECT_EQ(app->controls.Items("lstAcceptIDs"_L1), (QStringList{u"11"_s, u"13"_s}));
    EXPECT_TRUE(app->gatheredList->IsEmpty());
}

TEST_F(LinkScannerTest, ComparingTakesOutTheFirstExactMatchAlone) {
    app->state.blnComparingIDs = true;
    for (const QString& id : {u"1"_s, u"11"_s, u"111"_s, u"11"_s})
        app->gatheredList->ProcessArrayAndList(u"ADD"_s, 0, id, u"test"_s);
    ShowProfiles({u"11"_s, u"12"_s});
    app->linkScanner->GatherPageProfiles();
    EXPECT_EQ(Ids(), (QStringList{u"1"_s, u"111"_s, u"11"_s}));
}

} // namespace
} // namespace qlm
