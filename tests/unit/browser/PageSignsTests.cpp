// SPDX-License-Identifier: MIT
#include "BrowserTest.h"
#include "browser/PageClassifier.h"
#include "browser/PageSigns.h"
#include "platform/sim/SimDocument.h"
#include "steps/StopResume.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class PageTestsTest : public BrowserTest {
protected:
    PageSigns& Tests() { return app->Get<PageSigns>(); }
};

TEST_F(PageTestsTest, ATextIsFoundInAnyLetterCaseAndAsAPart) {
    Show(u"<p>Hello World</p>"_s);
    EXPECT_TRUE(Tests().IsTextInPage(u"LO wOr"_s));
    EXPECT_FALSE(Tests().IsTextInPage(u"hello  world"_s));
}

TEST_F(PageTestsTest, AnEmptyTextIsNeverFound) {
    Show({});
    EXPECT_FALSE(Tests().IsTextInPage({}));
    EXPECT_FALSE(Tests().IsTextInPage({}, true));
}

TEST_F(PageTestsTest, MarkupIsLookedAtOnlyWhenAskedFor) {
    Show(u"<span class=Age>20</span>"_s);
    EXPECT_FALSE(Tests().IsTextInPage(u"span"_s));
    EXPECT_TRUE(Tests().IsTextInPage(u"<SPAN"_s, true));
}

TEST_F(PageTestsTest, TheBrowserIsChosenByName) {
    Show(u"<p>main</p>"_s);
    world.web.SetPage(u"http://hidden.example.com/"_s, u"<body>hidden</body>"_s);
    app->webHide().Navigate(u"http://hidden.example.com/"_s);
    platform->Pump().RunFor(500);
    EXPECT_TRUE(Tests().IsTextInPage(u"hidden"_s, false, u"webHide"_s));
    EXPECT_FALSE(Tests().IsTextInPage(u"main"_s, false, u"webHide"_s));
    world.web.SetPage(u"http://worker.example.com/"_s, u"<body>worker</body>"_s);
    app->webTemp().Navigate(u"http://worker.example.com/"_s);
    platform->Pump().RunFor(500);
    EXPECT_TRUE(Tests().IsTextInPage(u"worker"_s, false, u"webTemp"_s));
    EXPECT_FALSE(Tests().IsTextInPage(u"main"_s, false, u"webTemp"_s));
    EXPECT_TRUE(Tests().IsTextInPage(u"main"_s, false, u"anything"_s));
    EXPECT_FALSE(Tests().IsTextInPage(u"main"_s, false, u"webInviteLocation"_s));
}

TEST_F(PageTestsTest, EveryTestSilencesThePage) {
    Show(u"<p>main</p>"_s);
    Browser().SetSilent(false);
    Tests().IsTextInPage(u"x"_s);
    EXPECT_TRUE(Browser().Silent());
    Browser().SetSilent(false);
    Tests().HrefLoaded(u"x"_s, true);
    EXPECT_TRUE(Browser().Silent());
    Browser().SetSilent(false);
    Tests().ImageExists(u"x"_s);
    EXPECT_TRUE(Browser().Silent());
    Browser().SetSilent(false);
    Tests().ClickLink(u"ID"_s, u"x"_s);
    EXPECT_TRUE(Browser().Silent());
    Browser().SetSilent(false);
    Tests().IsAdvertiserProfile();
    EXPECT_TRUE(Browser().Silent());
    app->webTemp().Navigate(u"about:blank"_s);
    app->webTemp().SetSilent(false);
    Tests().IsTextInPage(u"x"_s, false, u"webTemp"_s);
    EXPECT_TRUE(app->webTemp().Silent());
    Browser().SetSilent(false);
    app->webHide().SetSilent(false);
    Tests().ClickLinkFromHref(u"x"_s);
    EXPECT_TRUE(Browser().Silent());
    EXPECT_TRUE(app->webHide().Silent());
}

TEST_F(PageTestsTest, AnAddressIsLoadedWholeOrInPart) {
    Show(u"<a href='http://www.site.example.com/Ann?x=1'>Ann</a><a href='/bob'>Bob</a>"_s);
    EXPECT_TRUE(Tests().HrefLoaded(u"HTTP://www.site.example.com/ann?X=1"_s, false));
    EXPECT_FALSE(Tests().HrefLoaded(u"http://www.site.example.com/ann"_s, false));
    EXPECT_TRUE(Tests().HrefLoaded(u"com/ANN"_s, true));
    EXPECT_FALSE(Tests().HrefLoaded(u"com/ann/"_s, true));
    EXPECT_FALSE(Tests().HrefLoaded({}, true));
    EXPECT_FALSE(Tests().HrefLoaded({}, false));
}

TEST_F(PageTestsTest, AnImageGoesByItsFileNameAnInputByAPartOfItsSource) {
    Show(u"<img src='/i/Send.gif'><input type=image src='/i/buttons/PostNow.gif'>"_s);
    EXPECT_TRUE(Tests().ImageExists(u"send.GIF"_s));
    EXPECT_FALSE(Tests().ImageExists(u"end.gif"_s));
    EXPECT_TRUE(Tests().ImageExists(u"postnow"_s));
    EXPECT_FALSE(Tests().ImageExists(u"postlater"_s));
}

TEST_F(PageTestsTest, TheHomePageIsKnownByItsAddress) {
    for (const QString& address :
         {u"{HomeHost}/index.cfm?fuseaction=home"_s, u"{HomeHost}/INDEX.cfm?fuseaction=home.x&y=1"_s,
          u"{SiteRootHost}/"_s, u"{SiteRootHost}/home"_s}) {
        Show(address, u"x"_s);
        EXPECT_TRUE(Tests().IsHomePageURL()) << address.toStdString();
    }
    for (const QString& address : {u"{SiteRootHost}/home/x"_s, u"{SiteRootHost}/ann"_s, u"{HomeHost}/"_s}) {
        Show(address, u"x"_s);
        EXPECT_FALSE(Tests().IsHomePageURL()) << address.toStdString();
    }
}

TEST_F(PageTestsTest, PagesAreKnownByTheirWords) {
    struct Row {
        bool (PageSigns::*test)();
        QString text;
    };
    const std::vector<Row> rows{
        {&PageSigns::IsLoggedOutPage, u"Forgot your password?"_s},
        {&PageSigns::IsLoggedOutPage, u"FORGOT PASSWORD?"_s},
        {&PageSigns::IsCaptchaPage, u"please enter the text from the image"_s},
        {&PageSigns::IsCaptchaPage, u"Please enter the image text"_s},
        {&PageSigns::IsCaptchaPage, u"Type the two words:"_s},
        {&PageSigns::IsCaptchaPage, u"settings require that you solve a captcha"_s},
        {&PageSigns::IsRequestSentPage, u"request sent!"_s},
        {&PageSigns::IsRequestSentPage, u"fdsfsdafgsdagsdfg"_s},
        {&PageSigns::IsAdvertiserProfile, u"ADVERTISERPROFILE"_s},
    };
    for (const Row& row : rows) {
        Show(u"<p>"_s + row.text + u"</p>"_s);
        EXPECT_TRUE((Tests().*row.test)()) << row.text.toStdString();
        Show(u"<p>nothing of the kind</p>"_s);
        EXPECT_FALSE((Tests().*row.test)()) << row.text.toStdString();
    }
}

TEST_F(PageTestsTest, ALoginFormIsOneOnThePagesOfTheSiteAlone) {
    for (const QString& address : {u"{HomeHost}/x"_s, u"{BrowseUsersHost}/"_s, u"{SiteDomain}/"_s}) {
        Show(address, u"Forgot your password?"_s);
        EXPECT_TRUE(Tests().IsLoggedOutPage()) << address.toStdString();
    }
    for (const QString& address : {u"stranger.com/"_s, u"{SiteRootHost}.com/"_s, u"x{SiteRootHost}/"_s,
                                   u"{SiteRootHost}:81/"_s, u"{CreativeHost}/"_s, u"{LinkRedirectHost}/"_s}) {
        Show(address, u"Forgot your password?"_s);
        EXPECT_FALSE(Tests().IsLoggedOutPage()) << address.toStdString();
        EXPECT_TRUE(Tests().AsksForPassword()) << address.toStdString();
    }
}

TEST_F(PageTestsTest, OccurrencesAreCountedFromEachFindsSecondCharacter) {
    EXPECT_EQ(CountOccurrences(u"aaaa"_s, u"aa"_s), 3);
    EXPECT_EQ(CountOccurrences(u"One one ONE"_s, u"one"_s), 3);
    EXPECT_EQ(CountOccurrences(u"one"_s, {}), 0);
    EXPECT_EQ(CountOccurrences({}, u"one"_s), 0);
    // The number has sixteen bits.
    EXPECT_EQ(CountOccurrences(QString(32767, u'a'), u"A"_s), 32767);
    EXPECT_EQ(CountOccurrences(QString(70000, u'a'), u"a"_s), 32767);
}

TEST_F(PageTestsTest, ALinkIsClickedByTheKindOfItsMatch) {
    const QString link = u"<a id='Go1' title=' My Title ' href='/there'> Click <b>Here</b> </a>"_s;
    const std::vector<std::pair<QString, QString>> hits{{u"Innertext"_s, u"CLICK here"_s},
                                                        {u"InnerHTML"_s, u"<B>here"_s},
                                                        {u"OuterHTML"_s, u"GO1"_s},
                                                        {u"Title"_s, u"my TITLE"_s},
                                                        {u"ID"_s, u"go1"_s}};
    for (const auto& [kind, value] : hits) {
        Show(u"<a href='/other'>Other</a>"_s + link);
        EXPECT_TRUE(Tests().ClickLink(kind, value)) << kind.toStdString();
        platform->Pump().RunFor(500);
        EXPECT_TRUE(Address().endsWith(u"/there"_s)) << kind.toStdString();
    }
    const std::vector<std::pair<QString, QString>> misses{
        {u"Innertext"_s, u"click"_s}, {u"InnerHTML"_s, u"go1"_s}, {u"OuterHTML"_s, u"go2"_s},
        {u"Title"_s, u"my"_s},        {u"ID"_s, u"go"_s},         {u"Other"_s, u"go1"_s}};
    Show(link);
    for (const auto& [kind, value] : misses)
        EXPECT_FALSE(Tests().ClickLink(kind, value)) << kind.toStdString();
}

TEST_F(PageTestsTest, ALinkIsClickedByAPartOfItsAddress) {
    Show(u"<a href='/one'>1</a><a href='/Two?x'>2</a><a href='/two?y'>3</a>"_s);
    EXPECT_FALSE(Tests().ClickLinkFromHref(u"/three"_s));
    EXPECT_TRUE(Tests().ClickLinkFromHref(u"/TWO?"_s));
    platform->Pump().RunFor(500);
    EXPECT_TRUE(Address().endsWith(u"/Two?x"_s));
}

TEST_F(PageTestsTest, ALinkOfTheHiddenBrowserIsClickedThere) {
    Show(u"<a href='/one'>1</a>"_s);
    world.web.SetPage(u"http://hidden.example.com/"_s, u"<body><a href='/one'>1</a></body>"_s);
    app->webHide().Navigate(u"http://hidden.example.com/"_s);
    platform->Pump().RunFor(500);
    EXPECT_TRUE(Tests().ClickLinkFromHref(u"/one"_s, u"webHide"_s));
    platform->Pump().RunFor(500);
    EXPECT_EQ(app->webHide().LocationURL(), u"http://hidden.example.com/one"_s);
    EXPECT_EQ(Address(), u"http://www.site.example.com/page"_s);
    EXPECT_TRUE(Tests().ClickLinkFromHref(u"/one"_s, u"webTemp"_s));
    platform->Pump().RunFor(500);
    EXPECT_EQ(Address(), u"http://www.site.example.com/one"_s);
}

TEST_F(PageTestsTest, OfTheLinksThatOfferContactTheSecondOneCounts) {
    const QString add = u"<a href='/add'>Add to Friends</a>"_s;
    const QString send = u"<a href='/send'>SEND MESSAGE</a>"_s;
    const QString other = u"<a href='/other'>Other</a>"_s;
    Show(other + add + other + send + u"<a href='/third'>send message</a>"_s);
    EXPECT_TRUE(Tests().GetHrefFromSecondID().endsWith(u"/send"_s));
    Show(other + add);
    EXPECT_TRUE(Tests().GetHrefFromSecondID().endsWith(u"/add"_s));
    Show(other);
    EXPECT_EQ(Tests().GetHrefFromSecondID(), QString());
}

TEST_F(PageTestsTest, TheLinksThatOfferContactAreLookedForOnceThePageIsThere) {
    const QString url = u"http://www.site.example.com/late"_s;
    world.web.SetPage(url, u"<body><a href='/send'>Send Message</a></body>"_s);
    app->Pump().Queue().PostAt(app->Pump().NowMs() + 100000, [this, url] { Browser().Navigate(url); });
    EXPECT_TRUE(Tests().GetHrefFromSecondID().endsWith(u"/send"_s));
}

TEST_F(PageTestsTest, APageWithoutABodyIsReloadedAfterThirtySeconds) {
    const QString url = u"http://www.site.example.com/empty"_s;
    world.web.SetFault(url, SimFault::NoBody, 2);
    world.web.SetPage(url, u"<body>there</body>"_s);
    world.web.SetFault(url, SimFault::NoBody, 2);
    Browser().Navigate(url);
    platform->Pump().RunFor(500);
    const qint64 startMs = app->Pump().NowMs();
    Tests().WaitForDocument();
    EXPECT_TRUE(Tests().IsTextInPage(u"there"_s));
    // Twice more than 30 whole seconds, then the page.
    EXPECT_GE(app->Pump().NowMs() - startMs, 62000);
    EXPECT_LT(app->Pump().NowMs() - startMs, 64000);
}

TEST_F(PageTestsTest, AFirstDocumentIsWaitedForWithoutALimit) {
    const QString url = u"http://www.site.example.com/late"_s;
    world.web.SetPage(url, u"<body>late</body>"_s);
    const qint64 startMs = app->Pump().NowMs();
    app->Pump().Queue().PostAt(startMs + 100000, [this, url] { Browser().Navigate(url); });
    EXPECT_TRUE(Tests().IsTextInPage(u"late"_s));
    EXPECT_GE(app->Pump().NowMs() - startMs, 100000);
    EXPECT_EQ(Browser().TakeVisited(), QStringList{url});
}

TEST_F(PageTestsTest, TheOtherBrowsersAreNeverReloadedForABody) {
    const QString url = u"http://www.site.example.com/empty"_s;
    const QString full = u"http://www.site.example.com/full"_s;
    world.web.SetFault(url, SimFault::NoBody, 9);
    world.web.SetPage(full, u"<body>there</body>"_s);
    for (const BrowserName name : {BrowserName::webTemp, BrowserName::webHide}) {
        SimBrowser& browser = platform->Browser(name);
        browser.Navigate(url);
        platform->Pump().RunFor(500);
        const qint64 startMs = app->Pump().NowMs();
        app->Pump().Queue().PostAt(startMs + 100000, [&browser, full] { browser.Navigate(full); });
        Tests().WaitForDocument(browser);
        EXPECT_GE(app->Pump().NowMs() - startMs, 100000);
        EXPECT_EQ(browser.TakeVisited(), (QStringList{url, full}));
    }
}

TEST_F(PageTestsTest, AnAdvertiserIsKnownByTheBodysOwnTagToo) {
    world.web.SetPage(u"http://www.site.example.com/ad"_s,
                      u"<html><body class='AdvertiserProfile'>x</body></html>"_s);
    Browser().Navigate(u"http://www.site.example.com/ad"_s);
    platform->Pump().RunFor(500);
    EXPECT_TRUE(Tests().IsAdvertiserProfile());
}

// Each looks at the page that comes, not at the one that has no body yet.
TEST_F(PageTestsTest, WhoReadsThePageWaitsForItsBody) {
    const QString page = u"{SiteRootHost}/page"_s;
    const QString friends =
        u"<a innertext='add to friends' href='http://www.site.example.com/1'>Add to friends</a>"
        "<a innertext='send message' href='http://www.site.example.com/2'>Send message</a>"_s;
    auto comeLater = [&](const QString& body) {
        Show(page, u"x"_s, SimFault::NoBody);
        ASSERT_TRUE(Browser().Document().Body().IsNull());
        world.web.SetPage(u"http://www.site.example.com/page"_s,
                          u"<html><body>"_s + body + u"</body></html>"_s);
    };
    comeLater(u"server is too busy"_s);
    EXPECT_TRUE(app->Get<PageClassifier>().ClassifyErrorPage());
    EXPECT_EQ(State().intPageClass, 10);
    comeLater(friends);
    EXPECT_EQ(Tests().GetHrefFromSecondID(), u"http://www.site.example.com/2"_s);
    comeLater(u"<p class=advertiserProfile>Buy this</p>"_s);
    EXPECT_TRUE(Tests().IsAdvertiserProfile());
}

TEST_F(PageTestsTest, AWaitForABodyIsNoneAnyMoreBehindAStop) {
    Show(u"{SiteRootHost}/page"_s, u"x"_s, SimFault::NoBody);
    app->Pump().Queue().Post([this] { app->Get<StopResume>().StopAll(StopReason::WindowStop); });
    world.web.SetPage(u"http://www.site.example.com/page"_s, u"<html><body>wanted</body></html>"_s);
    EXPECT_THROW(Tests().IsTextInPage(u"wanted"_s), RunEnded);
    EXPECT_TRUE(Tests().IsTextInPage(u"wanted"_s));
}

TEST_F(PageTestsTest, AWaitForABodyIsNoneAnyMoreBehindAnotherTarget) {
    Show(u"{SiteRootHost}/page"_s, u"x"_s, SimFault::NoBody);
    app->Pump().Queue().Post([this] { ++State().lngTargetNumber; });
    world.web.SetPage(u"http://www.site.example.com/page"_s, u"<html><body>wanted</body></html>"_s);
    EXPECT_THROW(Tests().WaitForDocument(), RunEnded);
}

// The user has stopped the run and gone on to a page that takes its time.
TEST_F(PageTestsTest, AnAbandonedWaitDoesNotCutTheUsersLoadOff) {
    Show(u"{SiteRootHost}/page"_s, u"x"_s, SimFault::NoBody);
    SimAnswer slow;
    slow.html = u"<html><body>slow</body></html>"_s;
    slow.latencyMs = 50000;
    world.web.SetAnswer(u"http://www.site.example.com/slow"_s, slow);
    Browser().TakeVisited();
    app->Pump().Queue().Post([this] {
        app->Get<StopResume>().StopAll(StopReason::WindowStop);
        Browser().Navigate(u"http://www.site.example.com/slow"_s);
    });
    EXPECT_THROW(Tests().WaitForDocument(), RunEnded);
    EXPECT_EQ(Address(), u"http://www.site.example.com/slow"_s);
    EXPECT_EQ(Browser().TakeVisited(), QStringList{u"http://www.site.example.com/slow"_s});
}

// A page of which the links come last.
class LateLinks : public SimDocument {
public:
    using SimDocument::SimDocument;
    bool HasLinks() override { return hasLinks; }
    bool hasLinks = false;
};

class LateLinksBrowser : public BrowserControl, public SimDocumentHost {
public:
    void GoTo(const QString&) override {}
    void Stop() override {}
    void GoBack() override {}
    void GoForward() override {}
    void Refresh() override {}
    qlm::Document Document() override { return qlm::Document(page); }
    QString LocationURL() override { return {}; }
    int ReadyState() override { return 4; }
    bool Busy() override { return false; }
    std::shared_ptr<LateLinks> page =
        std::make_shared<LateLinks>(*this, u"<html><body>x</body></html>"_s, QString());

private:
    void ElementClicked(SimDocument&, int) override {}
    void FormSubmitted(SimDocument&, int) override {}
    void ValueWritten(SimDocument&, int) override {}
    void ChangeFired(SimDocument&, int) override {}
    void GotFocus(SimDocument&, int) override {}
    void ScrolledToEnd(SimDocument&) override {}
    std::shared_ptr<SimDocument> DocumentInFrame(SimDocument&, int) override { return nullptr; }
    void Touched() override {}
};

TEST_F(PageTestsTest, APageWithoutItsLinksIsWaitedFor) {
    LateLinksBrowser late;
    int turns = 0;
    platform->Pump().onPump = [&] { late.page->hasLinks = ++turns == 5; };
    Tests().WaitForDocument(late);
    EXPECT_EQ(turns, 5);
}

} // namespace
} // namespace qlm
