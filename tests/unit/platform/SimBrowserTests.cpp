// SPDX-License-Identifier: MIT
#include "PrintText.h"
#include "platform/sim/SimBrowser.h"

#include <gtest/gtest.h>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

// What the simulation has beyond the contract of all browsers: faults, stand-ins for scripts, the user, the
// records.
class SimBrowserTests : public ::testing::Test {
protected:
    QString Text() { return browser.Document().BodyText(); }
    Element ById(const QString& id) { return browser.Document().GetElementById(id); }
    // Lets the network answer and everything settle that is due at once.
    void Settle(qint64 milliseconds = 200) { pump.RunFor(milliseconds); }
    void Open(const QString& url) {
        browser.Navigate(url);
        Settle();
    }
    void Show(const QString& html) {
        web.SetPage(page, html);
        Open(page);
    }

    const QString page = u"http://site.example.com/page"_s;
    VirtualClock clock;
    SimPump pump{clock};
    SimWeb web;
    SimBrowser browser{web, pump};
};

TEST_F(SimBrowserTests, AnAnswerForANumberOfTimesUncoversTheOneBefore) {
    web.SetPage(page, u"for ever"_s);
    SimAnswer twice;
    twice.html = u"twice"_s;
    web.SetAnswer(page, twice, 2);
    QStringList texts;
    for (int i = 0; i < 4; ++i) {
        Open(page);
        texts += Text();
    }
    EXPECT_EQ(texts, (QStringList{u"twice"_s, u"twice"_s, u"for ever"_s, u"for ever"_s}));
}

TEST_F(SimBrowserTests, TheLastWordOnAnAddressCounts) {
    web.SetFault(page, SimFault::Reset);
    web.SetPage(u"site.example.com/page#part"_s, u"mended"_s);
    Open(page);
    EXPECT_EQ(Text(), u"mended"_s);
}

TEST_F(SimBrowserTests, APageArrivesAfterItsLatency) {
    SimAnswer slow;
    slow.html = u"slow"_s;
    slow.latencyMs = 5000;
    web.SetAnswer(page, slow);
    const qint64 startMs = clock.NowMs();
    browser.Navigate(page);
    EXPECT_TRUE(pump.RunUntil([&] { return browser.ReadyState() == 4; }, 60'000));
    EXPECT_EQ(clock.NowMs() - startMs, 5000);
}

TEST_F(SimBrowserTests, APageWithoutABodyCompletesWithoutOne) {
    web.SetFault(page, SimFault::NoBody);
    Open(page);
    EXPECT_FALSE(browser.Document().IsNull());
    EXPECT_FALSE(browser.Document().Body());
    EXPECT_EQ(browser.ReadyState(), 4);
}

TEST_F(SimBrowserTests, ATextAreaHoldsPlainLineEndsAndSendsBothSigns) {
    Show(u"<form id=f action=/send method=post><textarea id=t name=t>a</textarea></form>"_s);
    QByteArray sent;
    web.responder = [&sent](const SimRequest& request) {
        sent = request.body;
        return SimAnswer();
    };
    ById(u"t"_s).SetValue(u"a\r\nb\rc\nd"_s);
    EXPECT_EQ(ById(u"t"_s).Value(), u"a\nb\nc\nd"_s);
    ById(u"f"_s).Submit();
    Settle();
    EXPECT_EQ(browser.TakePosted().at(0).fields.at(0).value, u"a\nb\nc\nd"_s);
    EXPECT_EQ(sent, "t=a%0D%0Ab%0D%0Ac%0D%0Ad");
}

TEST_F(SimBrowserTests, ALoadThatNeverEndsCanNotBecomeReady) {
    web.SetPage(page, u"half there"_s);
    web.SetFault(page, SimFault::Incomplete);
    browser.Navigate(page);
    EXPECT_TRUE(browser.CanBecomeReady());
    Settle();
    EXPECT_TRUE(browser.Busy());
    EXPECT_FALSE(browser.CanBecomeReady());
    browser.Navigate(u"http://site.example.com/other"_s);
    EXPECT_TRUE(browser.CanBecomeReady());
    Settle();
    EXPECT_FALSE(browser.CanBecomeReady());
}

TEST_F(SimBrowserTests, AnIncompletePageShowsItsBodyAndStaysBusy) {
    web.SetPage(page, u"half there"_s);
    web.SetFault(page, SimFault::Incomplete);
    int completed = 0;
    browser.events.documentComplete = [&](bool, const QString&) { ++completed; };
    Open(page);
    Settle(60'000);
    EXPECT_EQ(Text(), u"half there"_s);
    EXPECT_TRUE(browser.Busy());
    EXPECT_EQ(browser.ReadyState(), 3);
    EXPECT_EQ(completed, 0);
}

TEST_F(SimBrowserTests, ABodyIsSwappedSoLongAfterCompletion) {
    web.SetPage(page, u"loading"_s);
    web.AddSwap(page, 3000, u"<p id=done>done</p>"_s);
    Open(page);
    Settle(2500);
    EXPECT_EQ(Text(), u"loading"_s);
    Settle(500);
    EXPECT_EQ(Text(), u"done"_s);
    EXPECT_FALSE(ById(u"done"_s).IsNull());
}

TEST_F(SimBrowserTests, ASwapOfAPageThatWasLeftDoesNothing) {
    web.SetPage(page, u"loading"_s);
    web.AddSwap(page, 3000, u"done"_s);
    web.SetPage(u"http://other.example.com/"_s, u"other"_s);
    Open(page);
    Open(u"other.example.com"_s);
    Settle(10'000);
    EXPECT_EQ(Text(), u"other"_s);
}

TEST_F(SimBrowserTests, TheResponderLiesUnderneath) {
    web.responder = [](const SimRequest& request) -> std::optional<SimAnswer> {
        SimAnswer answer;
        answer.html = request.method + u' ' + request.url + u" cookies: "_s + request.cookies;
        answer.setCookies += u"seen=yes; Domain=.example.com"_s;
        return answer;
    };
    Open(page);
    EXPECT_EQ(Text(), u"GET http://site.example.com/page cookies:"_s);
    Open(u"http://other.example.com/"_s);
    EXPECT_EQ(Text(), u"GET http://other.example.com/ cookies: seen=yes"_s);
    web.SetPage(page, u"on top"_s);
    Open(page);
    EXPECT_EQ(Text(), u"on top"_s);
}

TEST_F(SimBrowserTests, VisitsAreTheLoadsThatWereAskedFor) {
    web.SetPage(page, u"<a href=/next>next</a>"_s);
    web.SetRedirect(u"http://site.example.com/next"_s, u"http://site.example.com/last"_s);
    web.SetPage(u"http://site.example.com/last"_s, u"last"_s);
    browser.Browse(page);
    Settle();
    browser.FollowLink(u"next"_s);
    Settle();
    Open(u"about:blank"_s);
    Open(page);
    EXPECT_EQ(browser.TakeVisited(), (QStringList{u"http://site.example.com/last"_s, page}));
    EXPECT_TRUE(browser.TakeVisited().isEmpty());
}

TEST_F(SimBrowserTests, ACancelledLoadIsNoVisit) {
    web.SetPage(page, u"x"_s);
    browser.events.beforeNavigate2 = [](const NavigationRequest&) { return true; };
    Open(page);
    EXPECT_TRUE(browser.Visited().isEmpty());
}

TEST_F(SimBrowserTests, FormsAreRecordedWithAllTheirFields) {
    Show(u"<form method=post action='/send'><input name=a id=a><input type=image id=go name=go></form>"_s);
    browser.PageType(u"#a"_s, u"typed"_s);
    browser.PageClick(u"#go"_s);
    const std::vector<SimBrowser::Posted> posted = browser.TakePosted();
    ASSERT_EQ(posted.size(), 1u);
    EXPECT_EQ(posted[0].url, u"http://site.example.com/send"_s);
    EXPECT_EQ(EncodedFields(posted[0].fields), u"a=typed&go.x=0&go.y=0"_s);
}

TEST_F(SimBrowserTests, StandInsActOnThePage) {
    Show(
        u"<a id=go href=/elsewhere data-on-click='show #a; hide #b; set #c value x; set #d title two words; "
        u"remove #e;"
        " append #f <i style=\"color: red; top: 0\">new</i>; after 2s set #d innertext later'>go</a>"
        "<p id=a style='display:none'>A</p><p id=b>B</p><input id=c><p id=d>D</p><p id=e>E</p><p id=f>F</p>"_s);
    browser.PageClick(u"#go"_s);
    EXPECT_EQ(Text(), u"go\n\nA\n\nD\n\nFnew"_s);
    EXPECT_EQ(ById(u"c"_s).Value(), u"x"_s);
    EXPECT_EQ(ById(u"d"_s).Read(ElementText::Title), u"two words"_s);
    EXPECT_TRUE(ById(u"f"_s).InnerHTML().contains(u"color: red; top: 0"_s));
    Settle(1900);
    EXPECT_EQ(ById(u"d"_s).InnerText(), u"D"_s);
    Settle(100);
    EXPECT_EQ(ById(u"d"_s).InnerText(), u"later"_s);
    EXPECT_EQ(browser.LocationURL(), page);
    EXPECT_TRUE(web.problems.isEmpty());
}

TEST_F(SimBrowserTests, AFormCanBeSentBesideThePage) {
    QStringList bodies;
    web.responder = [&](const SimRequest& request) {
        bodies += request.method + u' ' + QString::fromLatin1(request.body);
        return std::optional(SimAnswer{});
    };
    Show(u"<form id=f method=post action='/send'><input name=a id=a></form>"
         "<b id=go data-on-click='set #a value x y; send #f; set #go innertext sent'>go</b>"_s);
    browser.PageClick(u"#go"_s);
    Settle();
    EXPECT_EQ(bodies, QStringList{u"POST a=x+y"_s});
    EXPECT_EQ(browser.LocationURL(), page);
    EXPECT_EQ(Text(), u"sent"_s);
}

TEST_F(SimBrowserTests, AStandInThatMakesNoSenseIsAProblem) {
    Show(u"<b id=x data-on-click='jump #a'>x</b><b id=y data-on-click='hide #nowhere'>y</b>"_s);
    browser.PageClick(u"#x"_s);
    browser.PageClick(u"#y"_s);
    EXPECT_EQ(web.problems.size(), 2);
}

TEST_F(SimBrowserTests, AScriptAddressWakesTheStandInThatNamesAPartOfIt) {
    Show(
        u"<p id=out data-on-script=\"__doPostBack('pager','2')\" data-do='set #out innertext page 2'>page 1</p>"_s);
    browser.Navigate(u"javascript:__doPostBack('pager','2')"_s);
    EXPECT_EQ(Text(), u"page 1"_s);
    pump.PumpMessages();
    EXPECT_EQ(Text(), u"page 2"_s);
    EXPECT_EQ(browser.scripts, QStringList{u"javascript:__doPostBack('pager','2')"_s});
}

TEST_F(SimBrowserTests, AScriptOfThePageReachesItsFrames) {
    Show(u"<iframe name=f srcdoc=\"<p id=in data-on-script='mark()' data-do='set #in innertext marked'>no</p>\">"
         "</iframe>"_s);
    browser.Navigate(u"javascript:frames[0].mark()"_s);
    Settle();
    EXPECT_EQ(browser.Document().FrameDocument(u"f"_s).BodyText(), u"marked"_s);
}

TEST_F(SimBrowserTests, ScrollingToTheEndWakesItsStandIns) {
    Show(u"<div id=list data-on-scroll='after 1s append #list <p>more</p>'>one</div>"_s);
    browser.Document().ScrollToEnd();
    Settle(1000);
    EXPECT_EQ(Text(), u"one\n\nmore"_s);
}

TEST_F(SimBrowserTests, AWrittenValueWakesTheFieldsStandIns) {
    Show(
        u"<input id=word data-on-input='set #out innertext written'><p id=out>not yet</p><input id=other>"_s);
    ById(u"other"_s).SetValue(u"x"_s);
    EXPECT_EQ(ById(u"out"_s).InnerText(), u"not yet"_s);
    ById(u"word"_s).SetValue(u"x"_s);
    EXPECT_EQ(ById(u"out"_s).InnerText(), u"written"_s);
    ById(u"out"_s).SetInnerText(u"again"_s);
    browser.PageType(u"#word"_s, u"typed"_s);
    EXPECT_EQ(ById(u"out"_s).InnerText(), u"written"_s);
}

TEST_F(SimBrowserTests, AFrameHasADocumentOfItsOwn) {
    web.SetPage(u"http://site.example.com/in"_s, u"<p>loaded</p>"_s);
    web.SetPage(u"http://site.example.com/sent"_s, u"<p>taken</p>"_s);
    Show(
        u"<iframe name=own srcdoc=\"<p>own</p><a href='/x'>x</a>\"></iframe><iframe name=other "
        u"src='/in'></iframe>"
        "<form id=f action='/sent' target=own><input name=a value=1></form><a href='/in' target=own>go</a>"_s);
    const Document own = browser.Document().FrameDocument(u"own"_s);
    EXPECT_EQ(own.BodyText(), u"own\n\nx"_s);
    EXPECT_EQ(own.Links().front().Href(), u"http://site.example.com/x"_s);
    EXPECT_EQ(browser.Document().FrameDocument(u"other"_s).BodyText(), u"loaded"_s);
    EXPECT_TRUE(browser.Document().FrameDocument(u"none"_s).IsNull());
    web.SetPage(u"http://site.example.com/sent?a=1"_s, u"<p>taken</p>"_s);
    ById(u"f"_s).Submit();
    Settle();
    EXPECT_EQ(browser.Document().FrameDocument(u"own"_s).BodyText(), u"taken"_s);
    EXPECT_FALSE(own.IsPresent());
    EXPECT_EQ(browser.LocationURL(), page);
    ASSERT_EQ(browser.PostedForms().size(), 1u);
    browser.FollowLink(u"go"_s);
    Settle();
    EXPECT_EQ(browser.Document().FrameDocument(u"own"_s).BodyText(), u"loaded"_s);
    Open(u"about:blank"_s);
    EXPECT_TRUE(browser.Document().FrameDocument(u"own"_s).IsNull());
}

TEST_F(SimBrowserTests, WhatAStyleHidesCanBeShown) {
    Show(u"<style>.h{display:none}</style><p id=p class=h data-on-load='after 1s show #p'>x</p>"_s);
    EXPECT_EQ(Text(), QString());
    Settle(1000);
    EXPECT_EQ(Text(), u"x"_s);
}

TEST_F(SimBrowserTests, AMetaRefreshMovesOn) {
    web.SetPage(u"http://site.example.com/next"_s, u"next"_s);
    Show(u"<head><meta http-equiv=Refresh content='3; URL=/next'></head><body>wait</body>"_s);
    Settle(2000);
    EXPECT_EQ(Text(), u"wait"_s);
    Settle(1500);
    EXPECT_EQ(Text(), u"next"_s);
}

TEST_F(SimBrowserTests, AnEmbeddedPartAsksWithHeaders) {
    std::vector<NavigationRequest> questions;
    browser.events.beforeNavigate2 = [&](const NavigationRequest& request) {
        questions.push_back(request);
        return false;
    };
    Show(u"<embed src='http://creative.example.com/advert.swf'>"_s);
    ASSERT_EQ(questions.size(), 2u);
    EXPECT_EQ(questions[1].url, u"http://creative.example.com/advert.swf"_s);
    EXPECT_TRUE(questions[1].headers.contains(u"creative.example.com"_s));
    EXPECT_FALSE(questions[1].topLevel);
}

TEST_F(SimBrowserTests, AnAllowedWindowOpensElsewhere) {
    Show(u"<a id=go href='/popup' target=_blank>go</a>"_s);
    browser.PageClick(u"#go"_s);
    EXPECT_EQ(browser.Document().ActiveElement().Id(), u"go"_s);
    Settle();
    EXPECT_EQ(browser.windows, QStringList{u"http://site.example.com/popup"_s});
    EXPECT_EQ(browser.LocationURL(), page);
}

TEST_F(SimBrowserTests, ARightClickAsksForThePagesMenu) {
    Show(u"x"_s);
    browser.RightClick();
    EXPECT_EQ(browser.contextMenuShown, std::nullopt);
    pump.PumpMessages();
    EXPECT_EQ(browser.contextMenuShown, true);
    browser.events.contextMenu = [] { return false; };
    browser.RightClick();
    pump.PumpMessages();
    EXPECT_EQ(browser.contextMenuShown, false);
}

TEST_F(SimBrowserTests, AStatusTextComesFromThePump) {
    QString status;
    browser.events.statusTextChange = [&](const QString& text) { status = text; };
    browser.ShowStatus(u"Done"_s);
    EXPECT_EQ(status, QString());
    pump.PumpMessages();
    EXPECT_EQ(status, u"Done"_s);
}

TEST_F(SimBrowserTests, TheUserMissesWhatIsNotThere) {
    Show(u"<a href=/x>Next page</a>"_s);
    EXPECT_THROW(browser.FollowLink(u"Previous"_s), BrowserError);
    EXPECT_THROW(browser.PageClick(u"#none"_s), BrowserError);
    EXPECT_THROW(browser.PageType(u"#none"_s, u"x"_s), BrowserError);
    EXPECT_NO_THROW(browser.FollowLink(u"Next"_s));
}

TEST_F(SimBrowserTests, ABrowserThatIsGoneLeavesNothingInTheQueue) {
    web.SetPage(page, u"x"_s);
    Document document;
    {
        SimBrowser shortLived(web, pump);
        shortLived.events.documentComplete = [](bool, const QString&) { FAIL() << "told after its end"; };
        shortLived.Navigate(u"about:blank"_s);
        document = shortLived.Document();
        shortLived.Navigate(page);
        pump.PumpMessages();
    }
    Settle(1000);
    EXPECT_THROW(document.BodyText(), BrowserError);
}

} // namespace qlm
