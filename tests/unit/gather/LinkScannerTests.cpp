// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "gather/GatheredList.h"
#include "gather/LinkScanner.h"
#include "gather/ProfileVisit.h"
#include "steps/StopResume.h"

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
    void ShowProfiles(const QStringList& names) {
        QString body;
        for (const QString& name : names)
            body += u"<p><a href='http://www.example.com/"_s + name + u"'>"_s + name + u"</a></p>"_s;
        Show(u"http://www.example.com/any"_s, body);
    }
    QStringList Ids() const { return app->state.arrFriendIDs.ToStringList(); }
};

TEST_F(LinkScannerTest, TheMemoryOfFetchedPagesIsClearedBehindAThousand) {
    ShowProfiles({u"11"_s});
    app->controls.SetTicked("optFullGather"_L1, true);
    for (int i = 0; i < 1000; ++i)
        app->state.lstAlreadyFullGatheredPageIDs.append(QString::number(i));
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_EQ(app->state.lstAlreadyFullGatheredPageIDs.size(), 1000);
    app->state.lstAlreadyFullGatheredPageIDs.append(u"one more"_s);
    bool held = false;
    platform->Pump().onPump = [&] { held = held || app->WebBrowser1().RefusesNavigations(); };
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_TRUE(app->state.lstAlreadyFullGatheredPageIDs.isEmpty());
    EXPECT_FALSE(held);
}

TEST_F(LinkScannerTest, WhoWasFetchedBeforeIsLeftOutOfAFullGatherAlone) {
    ShowProfiles({u"11"_s, u"12"_s});
    app->state.lstAlreadyFullGatheredPageIDs.append(u"http://www.example.com/11"_s);
    app->controls.SetTicked("optFullGather"_L1, true);
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_EQ(Ids(), QStringList{u"12"_s});
    app->controls.SetTicked("optQuickGather"_L1, true);
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_EQ(Ids(), (QStringList{u"12"_s, u"11"_s}));
}

TEST_F(LinkScannerTest, APassSilencesThePageFirst) {
    ShowProfiles({u"11"_s});
    app->state.blnLoggingEnabled = true;
    app->WebBrowser1().SetSilent(false);
    QList<bool> silent;
    app->diagnostics.onLine = [&](const QString& line) {
        if (line.startsWith(u"GPP0a0a0"_s))
            silent += app->WebBrowser1().Silent();
    };
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_EQ(silent, QList<bool>{true});
}

TEST_F(LinkScannerTest, AVisitThatIsStoppedAtItsBeginningOpensNoProfile) {
    ShowProfiles({u"11"_s});
    const ProfileVisit visit{*app, [this] { return !app->state.CurrentAction.isEmpty(); }, 20};
    platform->Browser(BrowserName::WebBrowser1).TakeVisited();
    app->Pump().Queue().Post([this] { app->Get<StopResume>().StopAll(StopReason::WindowStop); });
    visit.Fails(u"11"_s);
    platform->Pump().RunFor(1000);
    EXPECT_EQ(platform->Browser(BrowserName::WebBrowser1).TakeVisited(), QStringList());
    EXPECT_EQ(app->Status(), QString());
}

TEST_F(LinkScannerTest, WhoIsOnlineIsFurniture) {
    const QString body = u"<p><a id=ctl_WhosOnline1 href='http://www.example.com/11'>x</a></p>"
                         "<p><a href='http://www.example.com/12'>y</a></p>"_s;
    Show(u"http://www.example.com/any"_s, body);
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_EQ(Ids(), QStringList{u"12"_s});
    app->state.CurrentAction = u"ACC"_s;
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_EQ(app->controls.Items("lstAcceptIDs"_L1), QStringList{u"12"_s});
}

TEST_F(LinkScannerTest, EachAddressIsLookedAtOnceHoweverFarApartItStands) {
    app->state.blnLoggingEnabled = true;
    QStringList names;
    for (int i = 0; i < 120; ++i)
        names.append(QString::number(100 + i % 60));
    ShowProfiles(names);
    int looks = 0;
    app->diagnostics.onLine = [&](const QString& line) { looks += line.startsWith(u"GPP3 - "_s) ? 1 : 0; };
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_EQ(looks, 60);
    EXPECT_EQ(Ids().size(), 60);
}

TEST_F(LinkScannerTest, AHeldLinkCheckEndsTheWalk) {
    ShowProfiles({u"11"_s, u"12"_s, u"13"_s});
    app->state.strNextPageLink = u"not the first page"_s;
    platform->Pump().onPump = [this] { app->state.blnHoldLinkCheck = Ids() == QStringList{u"11"_s}; };
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_EQ(Ids(), QStringList{u"11"_s});
    EXPECT_FALSE(app->state.blnRetryGatherPage);
}

TEST_F(LinkScannerTest, ThePageMayMoveAgainBehindAFullGather) {
    ShowProfiles({u"11"_s});
    app->controls.SetTicked("optFullGather"_L1, true);
    bool refusedInside = false;
    platform->Pump().onPump = [&] {
        refusedInside = refusedInside || app->WebBrowser1().RefusesNavigations();
    };
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_TRUE(refusedInside);
    EXPECT_FALSE(app->WebBrowser1().RefusesNavigations());
}

TEST_F(LinkScannerTest, EachLinkLetsTheMessageLoopTurn) {
    ShowProfiles({u"11"_s, u"12"_s, u"13"_s});
    app->state.strNextPageLink = u"not the first page"_s;
    const qint64 startMs = platform->Pump().NowMs();
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_GE(platform->Pump().NowMs() - startMs, 30);
    EXPECT_EQ(Ids(), (QStringList{u"11"_s, u"12"_s, u"13"_s}));
}

TEST_F(LinkScannerTest, AStopEndsThePassAtOnce) {
    ShowProfiles({u"11"_s, u"12"_s, u"13"_s});
    app->state.strNextPageLink = u"not the first page"_s;
    platform->Pump().onPump = [this] {
        if (!app->Get<GatheredList>().IsEmpty())
            app->Get<StopResume>().StopAll(StopReason::WindowStop);
    };
    Waiting::LeaveHere([this] { app->Get<LinkScanner>().GatherPageProfiles(); });
    EXPECT_EQ(Ids(), QStringList{u"11"_s});
    EXPECT_FALSE(app->state.blnRetryGatherPage);
}

TEST_F(LinkScannerTest, TheFirstPageIsGivenFiveSecondsToShowItsPager) {
    ShowProfiles({u"11"_s});
    const qint64 startMs = platform->Pump().NowMs();
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_GE(platform->Pump().NowMs() - startMs, 5000);
    Show(u"http://www.example.com/any"_s, u"<p>Next ›</p>"_s);
    app->state.strNextPageLink.clear();
    const qint64 againMs = platform->Pump().NowMs();
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_LT(platform->Pump().NowMs() - againMs, 1000);
}

// Twenty thousand links, half of them under one roof and half in blocks of their own.
TEST_F(LinkScannerTest, TwentyThousandLinksTakeTheirTenMillisecondsEachAndNoMore) {
    QString body = u"<div>"_s;
    for (int i = 0; i < 20000; ++i) {
        const QString link =
            u"<a href='http://www.example.com/"_s + QString::number(1000 + i) + u"'>x</a> "_s;
        body += i % 2 ? link : u"<div><p>"_s + link + u"</p></div>"_s;
    }
    Show(u"http://www.example.com/any"_s, body);
    app->state.strNextPageLink = u"not the first page"_s;
    app->controls.SetTicked("optScanCurrentPage"_L1, true);
    const qint64 startMs = platform->Pump().NowMs();
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_EQ(Ids().size(), 20000);
    EXPECT_NEAR(static_cast<double>(platform->Pump().NowMs() - startMs), 200000.0, 1000.0);
}

TEST_F(LinkScannerTest, LinksWithoutAnAddressFramesAndOddNamesAreNoObstacle) {
    Show(
        u"http://www.example.com/any"_s,
        u"<p><a name=top>no address</a></p><p><a href=''>empty</a></p><p><a href='#'>#</a></p>"
        "<p><a href='javascript:void(0)'>script</a></p><p><a href='mailto:a@example.com'>mail</a></p>"
        "<p><a href='http://'>broken</a></p><p><a href='http://www.example.com/٣٤'>\u05d0\u05d1\u05d2</a></p>"
        "<iframe src='http://www.example.com/frame'></iframe>"
        "<p><a href='http://www.example.com/11'>\u202e\u05e9\u05dc\u05d5\u05dd \U0001f600\u200f</a></p>"
        "<p><area href='http://www.example.com/12'></p>"_s);
    world.web.SetPage(u"http://www.example.com/frame"_s,
                      u"<html><body><p><a href='http://www.example.com/13'>Framed</a></p></body></html>"_s);
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_EQ(Ids(), (QStringList{u"11"_s, u"12"_s}));
    EXPECT_FALSE(app->state.blnRetryGatherPage);
}

TEST_F(LinkScannerTest, APageThatIsReplacedMeanwhileEndsThePassAndAsksForAnother) {
    ShowProfiles({u"11"_s, u"12"_s, u"13"_s});
    world.web.SetPage(u"http://www.example.com/other"_s, u"<html><body>other</body></html>"_s);
    app->state.strNextPageLink = u"not the first page"_s;
    platform->Pump().onPump = [this] {
        if (Ids() == QStringList{u"11"_s} && app->WebBrowser1().LocationURL().endsWith(u"any"_s))
            app->WebBrowser1().Navigate(u"about:blank"_s);
    };
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_EQ(Ids(), QStringList{u"11"_s});
    EXPECT_TRUE(app->state.blnRetryGatherPage);
}

TEST_F(LinkScannerTest, WhileAcceptingTheRequestsAreCollected) {
    app->state.CurrentAction = u"ACC"_s;
    app->state.MyProfileID = u"12"_s;
    ShowProfiles({u"11"_s, u"12"_s, u"13"_s, u"11"_s});
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_EQ(app->controls.Items("lstAcceptIDs"_L1), (QStringList{u"11"_s, u"13"_s}));
    // Whose page was fetched before is not collected again.
    app->controls.SetItems("lstAcceptIDs"_L1, {});
    app->state.lstAlreadyFullGatheredPageIDs.append(u"http://www.example.com/13"_s);
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_EQ(app->controls.Items("lstAcceptIDs"_L1), QStringList{u"11"_s});
    EXPECT_TRUE(app->Get<GatheredList>().IsEmpty());
}

// Top friends are no entries of the list and are forgotten, so that one counts where he stands as an entry.
TEST_F(LinkScannerTest, AForgottenAddressIsLookedAtAgain) {
    const QString ann = u"<a href='http://www.example.com/11'>Ann</a>"_s;
    const QString top = u"<div><div title=topFriendsList><ul><li>"_s + ann + u"</li></ul></div></div>"_s;
    const QString entry = u"<div class=miniProfile><p>"_s + ann + u"</p></div>"_s;
    QString others;
    for (int i = 0; i < 60; ++i)
        others += u"<a href='http://www.example.com/x"_s + QString::number(i) + u"'>x</a>"_s;
    for (const QString& between : {QString(), others}) {
        Show(u"http://www.example.com/7/friends"_s, top + between + entry);
        app->Get<GatheredList>().Clear();
        app->Get<LinkScanner>().GatherPageProfiles();
        EXPECT_EQ(Ids(), QStringList{u"11"_s});
    }
}

TEST_F(LinkScannerTest, APassBeginsWithoutWhatTheLastLeft) {
    ShowProfiles({u"11"_s});
    app->state.strNextPageLink = u"not the first page"_s;
    app->state.blnClickNextLink = true;
    app->timers->tmrAutoResume.SetEnabled(false);
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_EQ(app->state.strNextPageLink, QString());
    EXPECT_FALSE(app->state.blnClickNextLink);
    EXPECT_TRUE(app->timers->tmrAutoResume.Enabled());
}

// Such a page grows in place: no pager is waited for, no next page looked for.
TEST_F(LinkScannerTest, OfACommentsPageTheNewPartIsScannedAndNoPagerSought) {
    auto entry = [](const QString& id) {
        return u"<div class=miniProfile><p><a href='/"_s + id + u"'>x</a></p></div>"_s;
    };
    Show(u"http://www.example.com/7/comments"_s,
         entry(u"11"_s) + entry(u"12"_s) + u"<a href='javascript:more()'>Next</a>"_s);
    const QString html = app->WebBrowser1().Document().BodyHTML();
    app->state.lngPageScanOffset = static_cast<qint32>(html.lastIndexOf(u"<div"_s));
    app->controls.SetTicked("optScanFollowing"_L1, true);
    const qint64 startMs = platform->Pump().NowMs();
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_LT(platform->Pump().NowMs() - startMs, 4000);
    EXPECT_EQ(Ids(), QStringList{u"12"_s});
    const QString newPart = html.mid(app->state.lngPageScanOffset);
    EXPECT_TRUE(app->webTemp().Document().BodyHTML().endsWith(u'>' + newPart));
    EXPECT_EQ(app->state.strNextPageLink, QString());
}

TEST_F(LinkScannerTest, TheReminderIsForAQuickGatherOfThisPageThatFoundNobody) {
    ShowProfiles({u"ann"_s});
    RunState& state = app->state;
    auto reminded = [&] {
        const qsizetype before = dialogs.shownForms.count(u"frmFullGatherReminder"_s);
        state.strNextPageLink = u"not the first page"_s;
        app->Get<LinkScanner>().GatherPageProfiles();
        return dialogs.shownForms.count(u"frmFullGatherReminder"_s) > before;
    };
    EXPECT_FALSE(reminded());
    app->controls.SetTicked("optScanCurrentPage"_L1, true);
    EXPECT_TRUE(reminded());
    state.optFilterOnlineNow = true;
    EXPECT_TRUE(reminded());
    state.optFilterWhenGathering = true;
    EXPECT_FALSE(reminded());
    state.optFilterOnlineNow = false;
    EXPECT_TRUE(reminded());
    state.blnComparingIDs = true;
    EXPECT_FALSE(reminded());
    state.blnComparingIDs = false;
    app->controls.SetTicked("optFullGather"_L1, true);
    EXPECT_FALSE(reminded());
}

TEST_F(LinkScannerTest, AStopDuringAFetchCollectsNothingMore) {
    app->state.CurrentAction = u"ACC"_s;
    world.web.SetPage(u"http://www.example.com/ann"_s,
                      u"<html><body><script>a={\"DisplayFriendId\":4711,x}</script></body></html>"_s);
    ShowProfiles({u"11"_s, u"ann"_s});
    app->controls.SetVisible("ucpanelFullGatherIDNotify"_L1, false);
    platform->Pump().onPump = [this] {
        if (app->controls["ucpanelFullGatherIDNotify"_L1].visible)
            app->Get<StopResume>().StopAll(StopReason::WindowStop);
    };
    Waiting::LeaveHere([this] { app->Get<LinkScanner>().GatherPageProfiles(); });
    EXPECT_EQ(app->controls.Items("lstAcceptIDs"_L1), QStringList{u"11"_s});
    platform->Pump().onPump = {};
    app->state.CurrentAction = u"ACC"_s;
    app->state.lstAlreadyFullGatheredPageIDs.clear();
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_EQ(app->controls.Items("lstAcceptIDs"_L1), (QStringList{u"11"_s, u"4711"_s}));
}

TEST_F(LinkScannerTest, ComparingTakesOutTheFirstExactMatchAlone) {
    app->state.blnComparingIDs = true;
    for (const QString& id : {u"1"_s, u"11"_s, u"111"_s, u"11"_s})
        app->Get<GatheredList>().Add(id, u"test"_s);
    ShowProfiles({u"11"_s, u"12"_s});
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_EQ(Ids(), (QStringList{u"1"_s, u"111"_s, u"11"_s}));
}

} // namespace
} // namespace qlm
