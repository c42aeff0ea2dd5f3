// SPDX-License-Identifier: MIT
#include "ContractTest.h"

namespace qlm {

// about:blank is the program's clean slate: nothing that was there before may be taken for the page that
// comes after.
class BlankContract : public ContractTest {
protected:
    void ExpectBlank() {
        EXPECT_EQ(browser.LocationURL(), u"about:blank"_s);
        ASSERT_FALSE(browser.Document().IsNull());
        EXPECT_TRUE(browser.Document().Body());
        EXPECT_TRUE(browser.Document().HasLinks());
        EXPECT_EQ(browser.Document().BodyText(), QString());
        EXPECT_TRUE(browser.Document().Links().empty());
        EXPECT_TRUE(browser.Document().GetElementById(u"mark"_s).IsNull());
    }
    void GoBlank() { browser.Navigate(u"about:blank"_s); }
};

TEST_F(BlankContract, IsThereAtOnce) {
    Show(u"<a id=mark href=/x>old</a>"_s);
    GoBlank();
    ExpectBlank();
    EXPECT_EQ(browser.ReadyState(), 4);
    EXPECT_FALSE(browser.Busy());
}

TEST_F(BlankContract, IsThereAtOnceInANewBrowser) {
    GoBlank();
    ExpectBlank();
    EXPECT_EQ(browser.ReadyState(), 4);
}

TEST_F(BlankContract, StaysWhileTheEngineCatchesUp) {
    Show(u"<a id=mark href=/x>old</a>"_s);
    GoBlank();
    PumpFor(settleMs);
    ExpectBlank();
    EXPECT_EQ(browser.ReadyState(), 4);
}

TEST_F(BlankContract, OldElementsAreGoneAtOnce) {
    const Document old = Show(u"<p id=mark>old</p>"_s);
    const Element mark = old.GetElementById(u"mark"_s);
    GoBlank();
    EXPECT_THROW(mark.InnerText(), BrowserError);
    EXPECT_THROW(old.BodyText(), BrowserError);
    EXPECT_THROW(mark.Click(), BrowserError);
}

TEST_F(BlankContract, CompletesAsAnAddressOfItsOwn) {
    Show(u"old"_s);
    GoBlank();
    ASSERT_TRUE(WaitForCompletions(2));
    EXPECT_EQ(seen.completed.last(), u"about:blank"_s);
}

TEST_F(BlankContract, TwiceQuicklyIsBlankStill) {
    Show(u"<p id=mark>old</p>"_s);
    GoBlank();
    GoBlank();
    ExpectBlank();
    PumpFor(settleMs);
    ExpectBlank();
    EXPECT_EQ(seen.completed.last(), u"about:blank"_s);
}

TEST_F(BlankContract, ASlowPageThatWasGivenUpNeverShows) {
    ServeBody(u"slow"_s, u"<p id=mark>late</p>"_s, {.delayMs = 300});
    browser.Navigate(At(u"slow"_s));
    PumpFor(50);
    GoBlank();
    ExpectBlank();
    PumpFor(300 + settleMs);
    ExpectBlank();
    EXPECT_FALSE(seen.completed.contains(At(u"slow"_s)));
}

TEST_F(BlankContract, LiesBetweenTwoReadingsOfTheSamePage) {
    Show(u"<p id=mark>reading one</p>"_s);
    ServeBody(u"page"_s, u"<p id=mark>reading two</p>"_s, {.delayMs = 100});
    GoBlank();
    browser.Navigate(At(u"page"_s));
    ExpectBlank();
    EXPECT_TRUE(browser.Busy());
    int blankLooks = 0;
    const bool arrived = WaitUntil([&] {
        if (browser.LocationURL() != u"about:blank")
            return true;
        EXPECT_EQ(Text(), QString());
        ++blankLooks;
        return false;
    });
    ASSERT_TRUE(arrived);
    EXPECT_GT(blankLooks, 1);
    ASSERT_TRUE(WaitForCompletions(2));
    EXPECT_EQ(Text(), u"reading two"_s);
    EXPECT_EQ(browser.LocationURL(), At(u"page"_s));
}

TEST_F(BlankContract, OnePumpThenTheNextPage) {
    Show(u"<p id=mark>page one</p>"_s, u"one"_s);
    ServeBody(u"two"_s, u"page two"_s);
    GoBlank();
    pump.PumpMessages();
    browser.Navigate(At(u"two"_s));
    EXPECT_EQ(Text(), QString());
    ASSERT_TRUE(WaitForText(u"page two"_s));
    EXPECT_EQ(browser.LocationURL(), At(u"two"_s));
    EXPECT_TRUE(WaitUntil([this] { return seen.completed.last() == At(u"two"_s); }));
}

TEST_F(BlankContract, ManySlatesAndPagesInARow) {
    for (int i = 0; i < 10; ++i) {
        const QString path = u"page%1"_s.arg(i);
        ServeBody(path, u"this is "_s + path);
        GoBlank();
        ExpectBlank();
        browser.Navigate(At(path));
        ASSERT_TRUE(WaitUntil([this] { return browser.ReadyState() == 4 && !browser.Busy(); }));
        EXPECT_EQ(Text(), u"this is "_s + path);
    }
}

TEST_F(BlankContract, StopsAPageThatIsBuilding) {
    Show(u"<p id=mark>old</p>"_s);
    Serve(u"hung"_s, {}, {.fault = ServeFault::Hang});
    browser.Navigate(At(u"hung"_s));
    PumpFor(50);
    GoBlank();
    ExpectBlank();
    EXPECT_FALSE(browser.Busy());
    EXPECT_EQ(browser.ReadyState(), 4);
}

} // namespace qlm
