// SPDX-License-Identifier: MIT
#include "ContractTest.h"

namespace qlm {

using EventsContract = ContractTest;

TEST_F(EventsContract, AReadDeliversNothing) {
    const Document document = Show(u"<a id=a href=/x>x</a>"_s);
    int ticks = 0;
    const Timer timer(pump.Queue(), 20, true, [&] { ++ticks; });
    pump.Sleep(60);
    EXPECT_EQ(document.BodyText(), u"x"_s);
    EXPECT_EQ(document.Links()[0].OuterHTML(), u"<a id=\"a\" href=\"/x\">x</a>"_s);
    EXPECT_EQ(browser.LocationURL(), At(u"page"_s));
    EXPECT_EQ(ticks, 0);
    pump.PumpMessages();
    EXPECT_EQ(ticks, 1);
}

TEST_F(EventsContract, AWriteAndAClickDeliverNothing) {
    Show(u"<input id=a><button type=button id=b>b</button>"_s);
    int ticks = 0;
    const Timer timer(pump.Queue(), 20, true, [&] { ++ticks; });
    pump.Sleep(60);
    ById(u"a"_s).SetValue(u"x"_s);
    ById(u"b"_s).Click();
    EXPECT_EQ(ticks, 0);
}

TEST_F(EventsContract, ASleepDeliversNothing) {
    ServeBody(u"page"_s, u"x"_s);
    browser.Navigate(At(u"page"_s));
    int ticks = 0;
    const Timer timer(pump.Queue(), 10, true, [&] { ++ticks; });
    for (int i = 0; i < 30; ++i)
        pump.Sleep(10);
    EXPECT_EQ(ticks, 0);
    EXPECT_TRUE(seen.order.isEmpty());
}

TEST_F(EventsContract, TimersFireInTheOrderInWhichTheyFellDue) {
    QStringList order;
    const Timer late(pump.Queue(), 50, true, [&] { order += u"late"_s; });
    const Timer early(pump.Queue(), 20, true, [&] { order += u"early"_s; });
    pump.Sleep(80);
    pump.PumpMessages();
    EXPECT_EQ(order, (QStringList{u"early"_s, u"late"_s}));
}

TEST_F(EventsContract, TheEventsOfALoadComeInOrder) {
    Show(u"x"_s);
    EXPECT_EQ(seen.order, (QStringList{u"before"_s, u"arrived"_s, u"completed"_s}));
    EXPECT_EQ(seen.arrived, QStringList{At(u"page"_s)});
    EXPECT_EQ(seen.completed, QStringList{At(u"page"_s)});
}

TEST_F(EventsContract, TheProgramsOwnNavigationIsAskedFromThePump) {
    ServeBody(u"page"_s, u"x"_s);
    browser.Navigate(At(u"page"_s));
    EXPECT_TRUE(seen.questions.empty());
    pump.PumpMessages();
    ASSERT_EQ(seen.questions.size(), 1u);
    EXPECT_EQ(seen.questions[0].url, At(u"page"_s));
    EXPECT_TRUE(seen.questions[0].topLevel);
    EXPECT_FALSE(seen.questions[0].isForm);
    EXPECT_TRUE(seen.completed.isEmpty());
}

TEST_F(EventsContract, ACancelledNavigationLeavesThePage) {
    Show(u"the first"_s, u"one"_s);
    ServeBody(u"two"_s, u"the second"_s);
    cancelNavigations = true;
    browser.Navigate(At(u"two"_s));
    PumpFor(settleMs);
    EXPECT_EQ(Text(), u"the first"_s);
    EXPECT_EQ(browser.LocationURL(), At(u"one"_s));
    EXPECT_FALSE(browser.Busy());
    EXPECT_EQ(browser.ReadyState(), 4);
    EXPECT_EQ(seen.completed.size(), 1);
}

TEST_F(EventsContract, AClickedLinkIsAskedWithoutHeaders) {
    ServeBody(u"target"_s, u"the target"_s);
    Show(u"<a id=go href='/target'>go</a>"_s);
    seen.questions.clear();
    ById(u"go"_s).Click();
    EXPECT_TRUE(seen.questions.empty());
    ASSERT_TRUE(WaitForText(u"the target"_s));
    ASSERT_EQ(seen.questions.size(), 1u);
    EXPECT_EQ(seen.questions[0].url, At(u"target"_s));
    EXPECT_EQ(seen.questions[0].headers, QString());
    EXPECT_FALSE(seen.questions[0].isForm);
    EXPECT_EQ(browser.LocationURL(), At(u"target"_s));
}

TEST_F(EventsContract, ACancelledClickStaysOnThePage) {
    ServeBody(u"target"_s, u"the target"_s);
    Show(u"<a id=go href='/target'>go</a>"_s);
    cancelNavigations = true;
    ById(u"go"_s).Click();
    PumpFor(settleMs);
    EXPECT_EQ(Text(), u"go"_s);
    EXPECT_EQ(seen.questions.size(), 2u);
    EXPECT_FALSE(browser.Busy());
    cancelNavigations = false;
    ById(u"go"_s).Click();
    EXPECT_TRUE(WaitForText(u"the target"_s));
}

TEST_F(EventsContract, APageThatMovesOnByItselfIsAskedToo) {
    ServeBody(u"target"_s, u"the target"_s);
    Show(
        u"<button type=button id=go onclick=\"location.href='/target'\" data-on-click='goto /target'>go</button>"_s);
    seen.questions.clear();
    ById(u"go"_s).Click();
    ASSERT_TRUE(WaitForText(u"the target"_s));
    ASSERT_EQ(seen.questions.size(), 1u);
    EXPECT_EQ(seen.questions[0].url, At(u"target"_s));
}

TEST_F(EventsContract, TheQuestionMayReadThePageAndPump) {
    ServeBody(u"target"_s, u"the target"_s);
    Show(u"<a id=go href='/target'>go</a><p id=note>noted</p>"_s);
    QString read;
    browser.events.beforeNavigate2 = [&](const NavigationRequest&) {
        pump.PumpMessages();
        pump.Sleep(30);
        pump.PumpMessages();
        read = ById(u"note"_s).InnerText();
        ById(u"note"_s).SetInnerText(u"changed"_s);
        return false;
    };
    ById(u"go"_s).Click();
    EXPECT_TRUE(WaitForText(u"the target"_s));
    EXPECT_EQ(read, u"noted"_s);
}

TEST_F(EventsContract, RefusedNavigationsAreNotReported) {
    ServeBody(u"target"_s, u"the target"_s);
    Show(u"<a id=go href='/target'>go</a><form id=f action='/target'><input name=a></form>"_s);
    seen.questions.clear();
    browser.BeginRefusal();
    ById(u"go"_s).Click();
    PumpFor(settleMs);
    ById(u"f"_s).Submit();
    PumpFor(settleMs);
    browser.EndRefusals();
    PumpFor(settleMs);
    EXPECT_TRUE(seen.questions.empty());
    EXPECT_EQ(browser.LocationURL(), At(u"page"_s));
    EXPECT_FALSE(browser.Busy());
    ById(u"go"_s).Click();
    EXPECT_TRUE(WaitForText(u"the target"_s));
}

TEST_F(EventsContract, ACompletionMayBeginTheNextLoad) {
    ServeBody(u"one"_s, u"one"_s);
    ServeBody(u"two"_s, u"two"_s);
    browser.events.documentComplete = [this](bool topLevel, const QString& url) {
        seen.completed += url;
        if (topLevel && url == At(u"one"_s))
            browser.Navigate(At(u"two"_s));
    };
    browser.Navigate(At(u"one"_s));
    ASSERT_TRUE(WaitForCompletions(2));
    EXPECT_EQ(Text(), u"two"_s);
}

TEST_F(EventsContract, ACompletionMayWaitForTheNextLoadInside) {
    ServeBody(u"one"_s, u"one"_s);
    ServeBody(u"two"_s, u"two"_s);
    ServeBody(u"three"_s, u"three"_s);
    QStringList insideTexts;
    browser.events.documentComplete = [&](bool, const QString& url) {
        seen.completed += url;
        if (url == At(u"three"_s))
            return;
        browser.Navigate(At(url == At(u"one"_s) ? u"two"_s : u"three"_s));
        const qsizetype before = seen.completed.size();
        EXPECT_TRUE(WaitUntil([&] { return seen.completed.size() > before; }));
        insideTexts += Text();
    };
    browser.Navigate(At(u"one"_s));
    ASSERT_TRUE(WaitUntil([&] { return insideTexts.size() == 2; }));
    EXPECT_EQ(insideTexts, (QStringList{u"three"_s, u"three"_s}));
    EXPECT_EQ(seen.completed, (QStringList{At(u"one"_s), At(u"two"_s), At(u"three"_s)}));
}

TEST_F(EventsContract, ATimerMayDriveThePageWhileAWaitPumps) {
    Show(u"<p id=out>waiting</p>"_s);
    Timer timer(pump.Queue(), 50, true, [&] {
        timer.SetEnabled(false);
        ById(u"out"_s).SetInnerText(u"driven"_s);
    });
    EXPECT_TRUE(WaitForText(u"driven"_s));
}

TEST_F(EventsContract, ALinkToAnotherWindowIsAsked) {
    Show(u"<a id=go href='/popup' target=_blank>go</a>"_s);
    ById(u"go"_s).Click();
    ASSERT_TRUE(WaitUntil([this] { return !seen.windows.isEmpty(); }));
    EXPECT_EQ(seen.windows, QStringList{At(u"popup"_s)});
    PumpFor(100);
    EXPECT_EQ(browser.LocationURL(), At(u"page"_s));
    EXPECT_EQ(seen.completed.size(), 1);
}

TEST_F(EventsContract, APopUpMayBeSentToThisBrowser) {
    ServeBody(u"popup"_s, u"in the same window"_s);
    Show(u"<a id=go href='/popup' target=_blank>go</a>"_s);
    browser.events.newWindow2 = [this](const QString& url) {
        browser.Navigate(url);
        return true;
    };
    ById(u"go"_s).Click();
    EXPECT_TRUE(WaitForText(u"in the same window"_s));
    EXPECT_EQ(browser.LocationURL(), At(u"popup"_s));
}

TEST_F(EventsContract, AMoveInTheHistoryIsAskedToo) {
    Show(u"page one"_s, u"one"_s);
    Show(u"page two"_s, u"two"_s);
    seen.questions.clear();
    cancelNavigations = true;
    browser.GoBack();
    PumpFor(settleMs);
    EXPECT_EQ(Text(), u"page two"_s);
    EXPECT_FALSE(browser.Busy());
    cancelNavigations = false;
    browser.GoBack();
    ASSERT_TRUE(WaitForText(u"page one"_s));
    ASSERT_EQ(seen.questions.size(), 2u);
    EXPECT_EQ(seen.questions[1].url, At(u"one"_s));
}

TEST_F(EventsContract, TheCleanSlateIsToldAndCannotBeHeld) {
    Show(u"old"_s);
    seen.questions.clear();
    cancelNavigations = true;
    browser.Navigate(u"about:blank"_s);
    PumpFor(settleMs);
    ASSERT_EQ(seen.questions.size(), 1u);
    EXPECT_EQ(seen.questions[0].url, u"about:blank"_s);
    EXPECT_EQ(browser.LocationURL(), u"about:blank"_s);
    EXPECT_EQ(seen.completed.last(), u"about:blank"_s);
}

TEST_F(EventsContract, TheQuestionMaySendTheBrowserElsewhere) {
    ServeBody(u"target"_s, u"the target"_s);
    ServeBody(u"elsewhere"_s, u"elsewhere"_s);
    Show(u"<a id=go href='/target'>go</a>"_s);
    browser.events.beforeNavigate2 = [this](const NavigationRequest& request) {
        if (request.url != At(u"target"_s))
            return false;
        browser.Navigate(At(u"elsewhere"_s));
        return true;
    };
    ById(u"go"_s).Click();
    EXPECT_TRUE(WaitForText(u"elsewhere"_s));
    PumpFor(settleMs);
    EXPECT_EQ(browser.LocationURL(), At(u"elsewhere"_s));
    EXPECT_FALSE(browser.Busy());
}

TEST_F(EventsContract, ACompletionMayThrowAndTheBrowserGoesOn) {
    ServeBody(u"one"_s, u"one"_s);
    browser.events.documentComplete = [](bool, const QString&) { throw BrowserError(); };
    browser.Navigate(At(u"one"_s));
    EXPECT_THROW(PumpFor(defaultLimitMs), BrowserError);
    Record();
    Show(u"two"_s, u"two"_s);
    EXPECT_EQ(Text(), u"two"_s);
}

TEST_F(EventsContract, TheTitleIsTold) {
    ServeBody(u"titled"_s, u"x"_s);
    Go(u"titled"_s);
    EXPECT_TRUE(WaitUntil([this] { return seen.title == u"titled"; }));
}

} // namespace qlm
