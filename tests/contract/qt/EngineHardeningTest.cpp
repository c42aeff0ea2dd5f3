// SPDX-License-Identifier: MIT
#include "EngineWorld.h"

#include <signal.h>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

class EngineHardening : public EngineTest {
protected:
    // Opens a page whose script says, once the page is complete, that it begins, and then doesn't let go
    // before the loop ends; the page's text is its name.
    void OpenBusyPage(const QString& name, const QByteArray& loop) {
        Serve(u"/begun"_s, "");
        Serve(u'/' + name, "<body>" + name.toLatin1() +
                               "<script>setTimeout(() => { const begun = new XMLHttpRequest();"
                               "begun.open('GET', '/begun', false); begun.send();" +
                               loop + "}, 100)</script>");
        ASSERT_TRUE(Open(u'/' + name));
        ASSERT_TRUE(WaitUntil([&] { return server.CountRequests(u"/begun"_s) == 1; }));
    }
    void OpenEndlessPage() { ASSERT_NO_FATAL_FAILURE(OpenBusyPage(u"endless"_s, "for (;;);")); }
};

TEST_F(EngineHardening, ARendererThatDiesGivesTheErrorPageAndTheNextPageLoads) {
    Serve(u"/a"_s, "<body>alpha");
    Serve(u"/b"_s, "<body>beta");
    ASSERT_TRUE(Open(u"/a"_s));
    const qint64 process = browser->RendererProcessId();
    ASSERT_GT(process, 0);
    const Document before = browser->Document();
    ::kill(static_cast<pid_t>(process), SIGKILL);
    ASSERT_TRUE(WaitForText(u"The page cannot be displayed"_s));
    EXPECT_EQ(browser->LocationURL(), server.Address(u"/a"_s));
    EXPECT_THROW(before.BodyText(), BrowserError);
    EXPECT_TRUE(WaitUntil([&] { return CountEvents(u"complete /a"_s) == 2; }));
    ASSERT_TRUE(Open(u"/b"_s));
    EXPECT_EQ(Text(), u"beta"_s);
    EXPECT_NE(browser->RendererProcessId(), process);
}

TEST_F(EngineHardening, ARendererThatDiesBehindTheBlankPageLeavesItBlank) {
    Serve(u"/a"_s, "<body>alpha");
    ASSERT_TRUE(Open(u"/a"_s));
    browser->Navigate(u"about:blank"_s);
    PumpFor(100);
    ::kill(static_cast<pid_t>(browser->RendererProcessId()), SIGKILL);
    PumpFor(300);
    EXPECT_EQ(browser->LocationURL(), u"about:blank"_s);
    EXPECT_EQ(Text(), QString());
    ASSERT_TRUE(Open(u"/a"_s));
}

TEST_F(EngineHardening, AnEndlessScriptHoldsNoCallLongerThanASecond) {
    ASSERT_NO_FATAL_FAILURE(OpenEndlessPage());
    EXPECT_LT(PageCalls::answerMs, 1000);
    EXPECT_EQ(Text(), QString()); // comes back, though the script doesn't end
    EXPECT_FALSE(browser->Document());
    EXPECT_TRUE(browser->Busy());
    // From now on nothing is asked, and nothing waited for.
    const qint64 asked = browser->EngineCalls();
    EXPECT_EQ(Text(), QString());
    EXPECT_EQ(browser->EngineCalls(), asked);
}

TEST_F(EngineHardening, AnEndlessScriptIsLeftByTheNextNavigation) {
    Serve(u"/b"_s, "<body>beta");
    ASSERT_NO_FATAL_FAILURE(OpenEndlessPage());
    EXPECT_EQ(Text(), QString());
    browser->Navigate(u"about:blank"_s);
    EXPECT_EQ(browser->LocationURL(), u"about:blank"_s);
    EXPECT_TRUE(browser->Document());
    ASSERT_TRUE(Open(u"/b"_s));
    EXPECT_EQ(Text(), u"beta"_s);
}

TEST_F(EngineHardening, AnEndlessScriptThatNobodyNoticedIsLeftToo) {
    Serve(u"/b"_s, "<body>beta");
    ASSERT_NO_FATAL_FAILURE(OpenEndlessPage());
    browser->Navigate(u"about:blank"_s);
    ASSERT_TRUE(Open(u"/b"_s));
    EXPECT_EQ(Text(), u"beta"_s);
}

TEST_F(EngineHardening, WhatIsOnItsWayIntoAStuckPageIsAskedForOnce) {
    browser->SetGiveUpAfter(1500);
    Serve(u"/endless"_s, "<body>endless<script>setTimeout(() => { for (;;); }, 100)</script>");
    LoopbackAnswer slow;
    slow.body = "<body>beta";
    slow.delayMs = 400;
    Serve(u"/b"_s, slow);
    ASSERT_TRUE(Open(u"/endless"_s));
    Go(u"/b"_s);
    EXPECT_TRUE(WaitUntil([&] {
        const QString text = Text();
        return text == u"beta"_s || text.contains(u"The page cannot be displayed"_s);
    }));
    EXPECT_EQ(browser->LocationURL(), server.Address(u"/b"_s));
    EXPECT_EQ(server.CountRequests(u"/b"_s), 1);
}

TEST_F(EngineHardening, APageThatIsSilentTooLongIsGivenUp) {
    browser->SetGiveUpAfter(1500);
    ASSERT_NO_FATAL_FAILURE(OpenEndlessPage());
    EXPECT_EQ(Text(), QString());
    EXPECT_TRUE(WaitForText(u"The page cannot be displayed"_s));
    EXPECT_EQ(browser->LocationURL(), server.Address(u"/endless"_s));
}

TEST_F(EngineHardening, APageThatIsOnlySlowAnswersLater) {
    ASSERT_NO_FATAL_FAILURE(
        OpenBusyPage(u"slow"_s, "const end = Date.now() + 1500; while (Date.now() < end);"));
    EXPECT_EQ(Text(), QString());
    EXPECT_TRUE(WaitForText(u"slow"_s, 5000));
}

TEST_F(EngineHardening, APageWhoseEveryAnswerIsLateIsReadInTheEnd) {
    Serve(u"/heavy"_s,
          "<body>heavy<script>"
          "setInterval(() => { const end = Date.now() + 1200; while (Date.now() < end); }, 1);</script>");
    ASSERT_TRUE(Open(u"/heavy"_s));
    EXPECT_TRUE(WaitForText(u"heavy"_s, 12'000));
}

TEST_F(EngineHardening, AStormOfBoxesIsSurvived) {
    Serve(u"/storm"_s,
          "<body>storm<script>setTimeout(() => { for (;;) { alert(1); confirm(2); prompt(3); } }, 50)"
          "</script>");
    Serve(u"/b"_s, "<body>beta");
    ASSERT_TRUE(Open(u"/storm"_s));
    PumpFor(200);
    Text(); // comes back, though the boxes don't end
    browser->Navigate(u"about:blank"_s);
    ASSERT_TRUE(Open(u"/b"_s));
    EXPECT_EQ(Text(), u"beta"_s);
}

TEST_F(EngineHardening, AStormOfWindowsIsLimited) {
    Serve(u"/pop"_s, "<body>pop<script>for (let i = 0; i < 40; ++i) window.open('/w' + i);</script>");
    ASSERT_TRUE(Open(u"/pop"_s));
    EXPECT_TRUE(WaitUntil([&] { return CountEvents(u"window "_s) >= 1; }));
    PumpFor(500);
    EXPECT_LE(CountEvents(u"window "_s), static_cast<int>(QtBrowser::popupLimit));
}

TEST_F(EngineHardening, ARedirectLoopEndsOnTheErrorPage) {
    Serve(u"/loop"_s, {"", "text/html", 302, "Location: /loop\r\n", 0, LoopbackAnswer::Fault::None});
    Go(u"/loop"_s);
    EXPECT_TRUE(WaitForText(u"The page cannot be displayed"_s));
    EXPECT_EQ(browser->LocationURL(), server.Address(u"/loop"_s));
    EXPECT_TRUE(WaitUntil([&] { return CountEvents(u"complete /loop"_s) == 1; }));
    EXPECT_FALSE(browser->Busy());
}

TEST_F(EngineHardening, ADownloadIsRefusedAndThePageStays) {
    Serve(u"/a"_s, "<body>alpha");
    Serve(u"/down"_s, {"abcd", "application/zip", 200, "Content-Disposition: attachment; filename=x.zip\r\n",
                       0, LoopbackAnswer::Fault::None});
    ASSERT_TRUE(Open(u"/a"_s));
    Go(u"/down"_s);
    EXPECT_TRUE(WaitUntil([&] { return CountEvents(u"status A download was refused: x.zip"_s) == 1; }));
    EXPECT_TRUE(WaitUntil([&] { return !browser->Busy(); }));
    EXPECT_EQ(Text(), u"alpha"_s);
}

struct Ending {
    const char* name;
    LoopbackAnswer answer;
    const char* shown;
};

void PrintTo(const Ending& ending, std::ostream* out) {
    *out << ending.name;
}

class EngineEnding : public EngineTest {
protected:
    // Complete by its own account; a frame that never comes keeps the engine from ending its load.
    void OpenUnended(const QString& path, const QByteArray& body) {
        LoopbackAnswer hanging;
        hanging.fault = LoopbackAnswer::Fault::Hang;
        server.Answer(u"/never"_s, hanging);
        Serve(path, "<body>" + body +
                        "<script>addEventListener('load', () => {"
                        "const frame = document.createElement('iframe'); frame.src = '/never';"
                        "document.body.append(frame); });</script>");
        ASSERT_TRUE(Open(path));
        ASSERT_TRUE(WaitUntil([&] { return server.CountRequests(u"/never"_s) == 1; }));
    }
    void FailFromNowOn(const QString& path) {
        server.AnswerOnly(path, {"", "text/html", 200, "", 0, LoopbackAnswer::Fault::Reset});
    }
    void ExpectErrorPage() {
        EXPECT_TRUE(WaitForText(u"The page cannot be displayed"_s));
        EXPECT_TRUE(WaitUntil([&] { return !browser->Busy(); }));
    }
};

class EngineEndings : public EngineEnding, public ::testing::WithParamInterface<Ending> {};

TEST_P(EngineEndings, AreHeardThoughTheEngineIsNotDoneWithThePageBefore) {
    ASSERT_NO_FATAL_FAILURE(OpenUnended(u"/a"_s, "alpha"));
    Serve(u"/next"_s, GetParam().answer);
    Go(u"/next"_s);
    EXPECT_TRUE(WaitUntil([&] { return server.CountRequests(u"/next"_s) == 1; }));
    EXPECT_TRUE(WaitUntil([&] { return !browser->Busy(); }));
    EXPECT_TRUE(WaitForText(QString::fromLatin1(GetParam().shown))) << Text().toStdString();
}

TEST_F(EngineEnding, OfALinkIsHeardToo) {
    ASSERT_NO_FATAL_FAILURE(OpenUnended(u"/a"_s, "alpha <a id=l href=/next>go</a>"));
    FailFromNowOn(u"/next"_s);
    browser->Document().GetElementById(u"l"_s).Click();
    ExpectErrorPage();
    EXPECT_EQ(browser->LocationURL(), server.Address(u"/next"_s));
}

TEST_F(EngineEnding, OfAReloadIsHeardToo) {
    ASSERT_NO_FATAL_FAILURE(OpenUnended(u"/a"_s, "alpha"));
    FailFromNowOn(u"/a"_s);
    browser->Refresh();
    ExpectErrorPage();
}

TEST_F(EngineEnding, OfAStepBackIsHeardToo) {
    Serve(u"/first"_s,
          {"<body>first", "text/html", 200, "Cache-Control: no-store\r\n", 0, LoopbackAnswer::Fault::None});
    ASSERT_TRUE(Open(u"/first"_s));
    ASSERT_NO_FATAL_FAILURE(OpenUnended(u"/a"_s, "alpha"));
    FailFromNowOn(u"/first"_s);
    browser->GoBack();
    ExpectErrorPage();
}

using Fault = LoopbackAnswer::Fault;
INSTANTIATE_TEST_SUITE_P(
    All, EngineEndings,
    ::testing::Values(
        Ending{"Page", {"<body>beta", "text/html", 200, "", 0, Fault::None}, "beta"},
        Ending{"Reset", {"", "text/html", 200, "", 0, Fault::Reset}, "The page cannot be displayed"},
        Ending{"EmptyErrorPage", {"", "text/html", 404, "", 0, Fault::None}, "The page cannot be displayed"},
        Ending{
            "CutToNothing", {"", "text/html", 200, "", 0, Fault::BreakOff}, "The page cannot be displayed"},
        Ending{"NoContent", {"", "text/html", 204, "", 0, Fault::None}, "alpha"},
        Ending{"Download",
               {"abcd", "application/zip", 200, "Content-Disposition: attachment\r\n", 0, Fault::None},
               "alpha"}),
    [](const auto& tested) { return std::string(tested.param.name); });

TEST_F(EngineHardening, APermissionThatAPageAsksForIsDenied) {
    Serve(u"/ask"_s,
          "<body>ask<script>Notification.requestPermission().then(answer => { document.body.innerText = "
          "'notice ' + answer; });</script>");
    ASSERT_TRUE(Open(u"/ask"_s));
    EXPECT_TRUE(WaitForText(u"notice denied"_s));
}

TEST_F(EngineHardening, APageCannotSpeakInTheProgramsName) {
    Serve(u"/fake"_s,
          "<body>fake<script>"
          "const fake = JSON.stringify(['arrived', 'x', 'http://elsewhere.example.com/']);"
          "prompt(fake); console.log(fake); for (const word of ['', '0', 'quillmere', 'secret']) {"
          " prompt(word + fake); console.log(word + fake); }"
          "document.title = typeof quillmere + typeof quillmereWatches;"
          "document.body.append(' ' + document.title);"
          "</script>");
    ASSERT_TRUE(Open(u"/fake"_s));
    PumpFor(200);
    EXPECT_EQ(browser->LocationURL(), server.Address(u"/fake"_s));
    EXPECT_EQ(Text(), u"fake undefinedundefined"_s);
}

TEST_F(EngineHardening, FiveMegabytesOfTextAreRead) {
    QByteArray body = "<body>start";
    while (body.size() < 5 * 1024 * 1024)
        body += "<p>The quick brown fox jumps over the lazy dog.</p>\n";
    Serve(u"/big"_s, body + "end");
    ASSERT_TRUE(Open(u"/big"_s));
    ASSERT_TRUE(WaitForText(u"end"_s));
    EXPECT_GT(browser->Document().BodyHTML().size(), 5 * 1024 * 1024);
}

TEST_F(EngineHardening, APageBrokenOffInTheMiddleIsShownAsFarAsItCame) {
    Serve(u"/half"_s, {"<body>first half", "text/html", 200, "", 0, LoopbackAnswer::Fault::Stall});
    Go(u"/half"_s);
    EXPECT_TRUE(WaitForText(u"first half"_s));
    EXPECT_TRUE(browser->Busy());
    server.DropStalled();
    EXPECT_TRUE(WaitUntil([&] { return !browser->Busy(); }));
    EXPECT_TRUE(WaitUntil([&] { return CountEvents(u"complete /half"_s) == 1; }));
    EXPECT_EQ(Text(), u"first half"_s);
}

TEST_F(EngineHardening, ThePageIsExchangedAfterManyLoads) {
    Serve(u"/a"_s, "<body>alpha");
    ASSERT_TRUE(Open(u"/a"_s));
    const qint64 first = browser->RendererProcessId();
    for (int i = 0; i < QtBrowser::loadsPerPage; ++i)
        ASSERT_TRUE(Open(u"/a"_s));
    EXPECT_EQ(browser->RendererProcessId(), first);
    browser->Navigate(u"about:blank"_s);
    ASSERT_TRUE(Open(u"/a"_s));
    EXPECT_EQ(Text(), u"alpha"_s);
    EXPECT_NE(browser->RendererProcessId(), first);
}

} // namespace qlm
