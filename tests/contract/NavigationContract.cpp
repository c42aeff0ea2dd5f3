// SPDX-License-Identifier: MIT
#include "ContractTest.h"

namespace qlm {

using NavigationContract = ContractTest;

TEST_F(NavigationContract, NothingIsThereBeforeTheFirstLoad) {
    EXPECT_TRUE(browser.Document().IsNull());
    EXPECT_FALSE(browser.Busy());
    EXPECT_NE(browser.ReadyState(), 4);
}

TEST_F(NavigationContract, APageArrivesAndIsComplete) {
    const Document document = Show(u"<p>Hello there</p>"_s);
    EXPECT_EQ(document.BodyText(), u"Hello there"_s);
    EXPECT_EQ(browser.LocationURL(), At(u"page"_s));
    EXPECT_EQ(browser.ReadyState(), 4);
    EXPECT_FALSE(browser.Busy());
}

TEST_F(NavigationContract, AnAddressWithoutASchemeGetsOne) {
    ServeBody(u"plain"_s, u"plain"_s);
    browser.Navigate(u"site.example.com/plain"_s);
    ASSERT_TRUE(WaitForCompletions(1));
    EXPECT_EQ(browser.LocationURL(), At(u"plain"_s));
}

TEST_F(NavigationContract, ABareHostNameIsItsTopPage) {
    world->Serve(u"http://site.example.com/"_s, u"<body>top page</body>"_s);
    browser.Navigate(u"site.example.com"_s);
    ASSERT_TRUE(WaitForCompletions(1));
    EXPECT_EQ(browser.LocationURL(), u"http://site.example.com/"_s);
    EXPECT_EQ(Text(), u"top page"_s);
    ASSERT_EQ(seen.questions.size(), 1u);
    EXPECT_EQ(seen.questions[0].url, u"http://site.example.com/"_s);
}

TEST_F(NavigationContract, ThePresentDocumentStaysUntilTheNewOneArrives) {
    Show(u"the old page"_s);
    ServeBody(u"slow"_s, u"the new page"_s, {.delayMs = 300});
    browser.Navigate(At(u"slow"_s));
    EXPECT_TRUE(browser.Busy());
    EXPECT_LT(browser.ReadyState(), 4);
    EXPECT_EQ(Text(), u"the old page"_s);
    EXPECT_EQ(browser.LocationURL(), At(u"page"_s));
    ASSERT_TRUE(WaitForText(u"the new page"_s));
    ASSERT_TRUE(WaitUntil([this] { return !browser.Busy(); }));
    EXPECT_EQ(browser.ReadyState(), 4);
}

TEST_F(NavigationContract, APumpLoopWithoutSleepsSeesTheLoadEnd) {
    Show(u"first"_s);
    ServeBody(u"second"_s, u"second"_s);
    browser.Navigate(At(u"second"_s));
    const qint64 endMs = pump.NowMs() + defaultLimitMs;
    while (browser.Busy() && pump.NowMs() < endMs)
        pump.PumpMessages();
    EXPECT_EQ(Text(), u"second"_s);
}

TEST_F(NavigationContract, ARedirectEndsAtItsLastAddress) {
    Serve(u"one"_s, {}, {.status = 302, .redirectTo = At(u"two"_s)});
    Serve(u"two"_s, {}, {.status = 301, .redirectTo = u"/three"_s});
    ServeBody(u"three"_s, u"arrived"_s);
    Go(u"one"_s);
    EXPECT_EQ(browser.LocationURL(), At(u"three"_s));
    EXPECT_EQ(Text(), u"arrived"_s);
    EXPECT_EQ(seen.completed, QStringList{At(u"three"_s)});
    ASSERT_EQ(seen.questions.size(), 1u);
    EXPECT_EQ(seen.questions[0].url, At(u"one"_s));
}

TEST_F(NavigationContract, ARingOfRedirectsEndsOnTheErrorPage) {
    Serve(u"one"_s, {}, {.status = 302, .redirectTo = At(u"two"_s)});
    Serve(u"two"_s, {}, {.status = 302, .redirectTo = At(u"one"_s)});
    Go(u"one"_s);
    EXPECT_TRUE(Text().contains(u"The page cannot be displayed"_s));
    EXPECT_FALSE(browser.Busy());
}

TEST_F(NavigationContract, AFailedConnectionShowsTheErrorPageAtTheAskedAddress) {
    Serve(u"broken"_s, {}, {.fault = ServeFault::Reset});
    Go(u"broken"_s);
    EXPECT_TRUE(Text().contains(u"The page cannot be displayed"_s)) << Text().toStdString();
    EXPECT_EQ(browser.LocationURL(), At(u"broken"_s));
    EXPECT_EQ(browser.ReadyState(), 4);
    EXPECT_FALSE(browser.Busy());
    EXPECT_EQ(seen.completed, QStringList{At(u"broken"_s)});
}

TEST_F(NavigationContract, APageAfterAFailureLoadsAsEver) {
    Serve(u"broken"_s, {}, {.fault = ServeFault::Reset});
    Go(u"broken"_s);
    Show(u"all is well"_s);
    EXPECT_EQ(Text(), u"all is well"_s);
    EXPECT_EQ(browser.LocationURL(), At(u"page"_s));
}

TEST_F(NavigationContract, AnErrorStatusShowsThePageThatCameWithIt) {
    ServeBody(u"sick"_s, u"an application error occurred on the server"_s, {.status = 500});
    Go(u"sick"_s);
    EXPECT_TRUE(Text().contains(u"application error occurred"_s));
    EXPECT_EQ(browser.LocationURL(), At(u"sick"_s));
}

TEST_F(NavigationContract, AHungLoadStaysBusyUntilItIsStopped) {
    Show(u"the page before"_s);
    Serve(u"hung"_s, {}, {.fault = ServeFault::Hang});
    browser.Navigate(At(u"hung"_s));
    PumpFor(settleMs);
    EXPECT_TRUE(browser.Busy());
    browser.Stop();
    EXPECT_TRUE(WaitUntil([this] { return !browser.Busy(); }));
    EXPECT_EQ(Text(), u"the page before"_s);
    EXPECT_EQ(browser.LocationURL(), At(u"page"_s));
    EXPECT_EQ(browser.ReadyState(), 4);
    EXPECT_EQ(seen.completed.size(), 1);
}

TEST_F(NavigationContract, ANewLoadOvertakesAHungOne) {
    Serve(u"hung"_s, {}, {.fault = ServeFault::Hang});
    browser.Navigate(At(u"hung"_s));
    PumpFor(100);
    Show(u"the other page"_s);
    EXPECT_EQ(Text(), u"the other page"_s);
    EXPECT_EQ(seen.completed, QStringList{At(u"page"_s)});
}

TEST_F(NavigationContract, OfTwoLoadsAtOnceOnlyTheSecondArrives) {
    ServeBody(u"slow"_s, u"slow"_s, {.delayMs = 200});
    ServeBody(u"fast"_s, u"fast"_s);
    browser.Navigate(At(u"slow"_s));
    pump.PumpMessages();
    browser.Navigate(At(u"fast"_s));
    ASSERT_TRUE(WaitForCompletions(1));
    PumpFor(200 + settleMs);
    EXPECT_EQ(Text(), u"fast"_s);
    EXPECT_EQ(seen.completed, QStringList{At(u"fast"_s)});
}

TEST_F(NavigationContract, StopWithNothingUnderWayDoesNothing) {
    browser.Stop();
    Show(u"a page"_s);
    browser.Stop();
    PumpFor(100);
    EXPECT_EQ(Text(), u"a page"_s);
    EXPECT_EQ(browser.ReadyState(), 4);
}

TEST_F(NavigationContract, RefreshLoadsThePageAgain) {
    const Element old = Show(u"<p id=mark>first reading</p>"_s).GetElementById(u"mark"_s);
    ServeBody(u"page"_s, u"<p id=mark>second reading</p>"_s);
    browser.Refresh();
    ASSERT_TRUE(WaitForCompletions(2));
    EXPECT_EQ(Text(), u"second reading"_s);
    EXPECT_EQ(browser.LocationURL(), At(u"page"_s));
    EXPECT_THROW(old.InnerText(), BrowserError);
}

TEST_F(NavigationContract, BackAndForwardWalkTheHistory) {
    Show(u"page one"_s, u"one"_s);
    Show(u"page two"_s, u"two"_s);
    browser.GoBack();
    ASSERT_TRUE(WaitForText(u"page one"_s));
    EXPECT_EQ(browser.LocationURL(), At(u"one"_s));
    ASSERT_TRUE(WaitUntil([this] { return !browser.Busy(); }));
    browser.GoForward();
    ASSERT_TRUE(WaitForText(u"page two"_s));
    EXPECT_EQ(browser.LocationURL(), At(u"two"_s));
}

TEST_F(NavigationContract, BackAtTheBeginningAndForwardAtTheEndDoNothing) {
    Show(u"the only page"_s);
    browser.GoForward();
    PumpFor(settleMs);
    EXPECT_EQ(Text(), u"the only page"_s);
    EXPECT_FALSE(browser.Busy());
}

TEST_F(NavigationContract, AMoveWithinThePageKeepsTheDocument) {
    Show(u"<a id=jump href='#below'>jump</a><p id=below>below</p>"_s);
    const Element link = ById(u"jump"_s);
    link.Click();
    ASSERT_TRUE(WaitUntil([this] { return browser.LocationURL().endsWith(u"#below"); }));
    EXPECT_EQ(link.InnerText(), u"jump"_s);
    EXPECT_FALSE(browser.Busy());
    EXPECT_EQ(seen.completed.size(), 1);
}

TEST_F(NavigationContract, AScriptAddressRunsInThePage) {
    Show(u"<p id=out data-on-script='mark()' data-do='set #out innertext marked'>untouched</p>"_s);
    browser.Navigate(
        u"javascript: function mark(){document.getElementById('out').innerText = 'marked';}; mark();"_s);
    EXPECT_TRUE(WaitForText(u"marked"_s));
    EXPECT_EQ(browser.LocationURL(), At(u"page"_s));
    EXPECT_FALSE(browser.Busy());
}

TEST_F(NavigationContract, ALinkWithAScriptAddressStaysOnThePage) {
    Show(u"<a id=idle href='javascript:void(0)'>idle</a>"
         "<a id=busy href=\"javascript:document.getElementById('out').innerText='ran';void(0)\">busy</a>"
         "<p id=out data-on-script=\"innerText='ran'\" data-do='set #out innertext ran'>waits</p>"_s);
    ById(u"idle"_s).Click();
    PumpFor(100);
    EXPECT_EQ(browser.LocationURL(), At(u"page"_s));
    ById(u"busy"_s).Click();
    EXPECT_TRUE(WaitForText(u"ran"_s));
    EXPECT_EQ(browser.LocationURL(), At(u"page"_s));
}

TEST_F(NavigationContract, AnEmptyPageHasABodyWithoutText) {
    Serve(u"empty"_s, u""_s);
    const Document document = Go(u"empty"_s);
    EXPECT_TRUE(document.Body());
    EXPECT_TRUE(document.HasLinks());
    EXPECT_EQ(document.BodyText(), QString());
    EXPECT_EQ(browser.ReadyState(), 4);
}

TEST_F(NavigationContract, TwoBrowsersGoTheirOwnWaysAndShareCookies) {
    ServeBody(u"login"_s, u"signed in"_s, {.setCookie = u"session=12345; Domain=.example.com; Path=/"_s});
    Go(u"login"_s);
    ServeBody(u"other"_s, u"other page"_s);
    BrowserControl& other = world->OtherBrowser();
    other.Navigate(At(u"other"_s));
    ASSERT_TRUE(WaitUntil([&] { return other.ReadyState() == 4 && !other.Busy(); }));
    EXPECT_EQ(other.Document().BodyText(), u"other page"_s);
    EXPECT_EQ(Text(), u"signed in"_s);
    EXPECT_EQ(seen.completed.size(), 1);
    EXPECT_TRUE(world->Requests().back().cookies.contains(u"session=12345"_s));
}

} // namespace qlm
