// SPDX-License-Identifier: MIT
#include "EngineWorld.h"

#include <QCoreApplication>
#include <QMouseEvent>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

class EngineNavigation : public EngineTest {
protected:
    void HoldQuestions() {
        browser->events.beforeNavigate2 = [this](const NavigationRequest& request) {
            asked.push_back(request);
            return isCancelling;
        };
    }
    Element ById(const QString& id) { return browser->Document().GetElementById(id); }

    std::vector<NavigationRequest> asked;
    bool isCancelling = false;
};

TEST_F(EngineNavigation, AClickedLinkIsAskedForAndThenFollowedWithItsReferrer) {
    HoldQuestions();
    Serve(u"/a"_s, "<body>alpha <a id=l href='/b?x=1#part'>go</a>");
    Serve(u"/b"_s, "<body>beta<script>document.body.append(' from ' + document.referrer)</script>");
    ASSERT_TRUE(Open(u"/a"_s));
    asked.clear();
    ById(u"l"_s).Click();
    ASSERT_TRUE(WaitForText(u"beta"_s));
    ASSERT_EQ(asked.size(), 1U);
    EXPECT_EQ(asked[0].url, server.Address(u"/b?x=1#part"_s));
    EXPECT_TRUE(asked[0].topLevel);
    EXPECT_FALSE(asked[0].isForm);
    EXPECT_EQ(asked[0].headers, QString());
    EXPECT_EQ(Text(), u"beta from "_s + server.Address(u"/a"_s));
    EXPECT_EQ(server.CountRequests(u"/b"_s), 1);
}

TEST_F(EngineNavigation, ACancelledLinkIsNeverAskedFromTheServer) {
    HoldQuestions();
    Serve(u"/a"_s, "<body>alpha <a id=l href='/b'>go</a>");
    Serve(u"/b"_s, "<body>beta");
    ASSERT_TRUE(Open(u"/a"_s));
    isCancelling = true;
    ById(u"l"_s).Click();
    EXPECT_TRUE(WaitUntil([&] { return asked.size() == 2; }));
    PumpFor(200);
    EXPECT_EQ(server.CountRequests(u"/b"_s), 0);
    EXPECT_EQ(Text(), u"alpha go"_s);
    EXPECT_FALSE(browser->Busy());
    isCancelling = false;
    ById(u"l"_s).Click();
    EXPECT_TRUE(WaitForText(u"beta"_s));
}

TEST_F(EngineNavigation, AFormTellsItsPagesInputsHoweverItIsSent) {
    HoldQuestions();
    const QByteArray page =
        "<body><input id=outside name=o value=0>"
        "<form id=f method=post action=/post><input id=mail name=m><input name=n value=two>"
        "<input type=submit id=s name=go value=Send></form>"
        "<script>function send() { document.getElementById('f').submit(); }</script>";
    Serve(u"/form"_s, page);
    Serve(u"/post"_s, "<body>posted");
    const std::function<void()> ways[] = {
        [this] { ById(u"s"_s).Click(); },
        [this] { ById(u"f"_s).Submit(); },
        [this] { browser->Navigate(u"javascript:send()"_s); },
    };
    for (const auto& send : ways) {
        ASSERT_TRUE(Open(u"/form"_s));
        asked.clear();
        ById(u"mail"_s).SetValue(u"a@example.com"_s);
        send();
        const auto isForm = [](const NavigationRequest& request) { return request.isForm; };
        ASSERT_TRUE(WaitUntil([&] { return std::any_of(asked.begin(), asked.end(), isForm); }));
        ASSERT_TRUE(WaitForText(u"posted"_s));
        const auto form = std::find_if(asked.begin(), asked.end(), isForm);
        ASSERT_EQ(form->inputs.size(), 4U);
        EXPECT_EQ(form->inputs[1].id, u"mail"_s);
        EXPECT_EQ(form->inputs[1].name, u"m"_s);
        EXPECT_EQ(form->inputs[1].value, u"a@example.com"_s);
        EXPECT_EQ(form->url, server.Address(u"/post"_s));
    }
    EXPECT_EQ(server.CountRequests(u"/post"_s), 3);
}

// A script may read a form's fields for itself.
TEST_F(EngineNavigation, AFormThatIsOnlyReadKeepsNobodyWaiting) {
    Serve(u"/form"_s, "<body><form id=f><input name=q value=1></form><b id=b "
                      "onclick=\"new FormData(document.getElementById('f'))\">read</b>");
    ASSERT_TRUE(Open(u"/form"_s));
    ASSERT_TRUE(WaitUntil([&] { return !browser->Busy(); }));
    ById(u"b"_s).Click();
    EXPECT_TRUE(browser->Busy());
    EXPECT_TRUE(WaitUntil([&] { return !browser->Busy(); }));
    EXPECT_EQ(browser->ReadyState(), 4);
}

TEST_F(EngineNavigation, AFormsQuestionComesBeforeTheEventsOfWhatItLeadsTo) {
    Serve(u"/form"_s, "<body><form id=f method=get action=/got><input name=q value=1></form>");
    Serve(u"/got"_s, "<body>got");
    ASSERT_TRUE(Open(u"/form"_s));
    events.clear();
    ById(u"f"_s).Submit();
    ASSERT_TRUE(WaitUntil([&] { return CountEvents(u"complete /got"_s) == 1; }));
    EXPECT_EQ(events, (QStringList{u"before /got"_s, u"complete /got"_s}));
}

TEST_F(EngineNavigation, RefusedNavigationsAreNotReported) {
    HoldQuestions();
    Serve(u"/a"_s, "<body>alpha <a id=l href=/b>go</a><form id=f action=/b></form>");
    ASSERT_TRUE(Open(u"/a"_s));
    asked.clear();
    browser->BeginRefusal();
    ById(u"l"_s).Click();
    ById(u"f"_s).Submit();
    PumpFor(200);
    EXPECT_TRUE(asked.empty());
    EXPECT_EQ(server.CountRequests(u"/b"_s), 0);
    EXPECT_FALSE(browser->Busy());
}

TEST_F(EngineNavigation, APagesOwnMoveWhileItLoadsIsAskedFor) {
    Serve(u"/early"_s, "<body>early<script>location = '/b'</script>");
    Serve(u"/b"_s, "<body>beta");
    Go(u"/early"_s);
    ASSERT_TRUE(WaitUntil([&] { return CountEvents(u"complete /b"_s) == 1; }));
    EXPECT_EQ(CountEvents(u"before /b"_s), 1);
    EXPECT_EQ(Text(), u"beta"_s);
    EXPECT_FALSE(browser->Busy());
}

TEST_F(EngineNavigation, ARedirectIsNotAskedFor) {
    Serve(u"/from"_s, {"", "text/html", 302, "Location: /b\r\n", 0, LoopbackAnswer::Fault::None});
    Serve(u"/b"_s, "<body>beta");
    Go(u"/from"_s);
    ASSERT_TRUE(WaitForText(u"beta"_s));
    EXPECT_EQ(CountEvents(u"before /b"_s), 0);
    EXPECT_EQ(browser->LocationURL(), server.Address(u"/b"_s));
}

TEST_F(EngineNavigation, BackAndForwardAreAskedForAndCanBeCancelled) {
    HoldQuestions();
    Serve(u"/a"_s, "<body>alpha");
    Serve(u"/b"_s, "<body>beta");
    ASSERT_TRUE(Open(u"/a"_s));
    ASSERT_TRUE(Open(u"/b"_s));
    asked.clear();
    isCancelling = true;
    browser->GoBack();
    ASSERT_TRUE(WaitUntil([&] { return asked.size() == 1; }));
    PumpFor(200);
    EXPECT_EQ(Text(), u"beta"_s);
    isCancelling = false;
    browser->GoBack();
    ASSERT_TRUE(WaitForText(u"alpha"_s));
    browser->GoForward();
    ASSERT_TRUE(WaitForText(u"beta"_s));
    ASSERT_EQ(asked.size(), 3U);
    EXPECT_EQ(asked[1].url, server.Address(u"/a"_s));
}

TEST_F(EngineNavigation, AnOlderPageNeverComesAfterTheBlankOne) {
    Serve(u"/late"_s, {"<body>late", "text/html", 200, "", 150, LoopbackAnswer::Fault::None});
    Serve(u"/b"_s, "<body>beta");
    for (int waitMs : {0, 20, 140, 150, 160}) {
        Go(u"/late"_s);
        PumpFor(waitMs);
        browser->Navigate(u"about:blank"_s);
        EXPECT_EQ(browser->LocationURL(), u"about:blank"_s);
        EXPECT_EQ(browser->ReadyState(), 4);
        events.clear();
        Go(u"/b"_s);
        ASSERT_TRUE(WaitUntil([&] {
            EXPECT_NE(Text(), u"late"_s);
            return CountEvents(u"complete /b"_s) == 1;
        }));
        EXPECT_EQ(Text(), u"beta"_s);
    }
}

TEST_F(EngineNavigation, TheBlankPageCanBeLeftForTheSamePageAgain) {
    Serve(u"/a"_s, "<body>alpha <input id=i>");
    ASSERT_TRUE(Open(u"/a"_s));
    for (int i = 0; i < 5; ++i) {
        ById(u"i"_s).SetValue(u"typed"_s);
        const Element old = ById(u"i"_s);
        browser->Navigate(u"about:blank"_s);
        EXPECT_THROW(old.Value(), BrowserError);
        EXPECT_EQ(Text(), QString());
        ASSERT_TRUE(Open(u"/a"_s));
        EXPECT_EQ(ById(u"i"_s).Value(), QString());
    }
}

TEST_F(EngineNavigation, StopEndsALoadThatNeverAnswers) {
    Serve(u"/a"_s, "<body>alpha");
    Serve(u"/hang"_s, {"", "text/html", 200, "", 0, LoopbackAnswer::Fault::Hang});
    ASSERT_TRUE(Open(u"/a"_s));
    Go(u"/hang"_s);
    PumpFor(200);
    EXPECT_TRUE(browser->Busy());
    browser->Stop();
    EXPECT_FALSE(browser->Busy());
    PumpFor(100);
    EXPECT_EQ(Text(), u"alpha"_s);
    EXPECT_EQ(browser->LocationURL(), server.Address(u"/a"_s));
}

TEST_F(EngineNavigation, AResetConnectionGivesTheErrorPageUnderTheAskedAddress) {
    Serve(u"/reset"_s, {"", "text/html", 200, "", 0, LoopbackAnswer::Fault::Reset});
    Serve(u"/b"_s, "<body>beta");
    Go(u"/reset"_s);
    ASSERT_TRUE(WaitUntil([&] { return CountEvents(u"complete /reset"_s) == 1; }));
    EXPECT_TRUE(Text().contains(u"The page cannot be displayed"_s));
    EXPECT_EQ(browser->LocationURL(), server.Address(u"/reset"_s));
    server.Clear();
    Serve(u"/reset"_s, "<body>here again");
    browser->Refresh();
    EXPECT_TRUE(WaitForText(u"here again"_s));
}

TEST_F(EngineNavigation, AnEmptyAnswerWithAnErrorStatusGivesTheErrorPage) {
    Serve(u"/empty"_s, {"", "text/html", 500, "", 0, LoopbackAnswer::Fault::None});
    Go(u"/empty"_s);
    EXPECT_TRUE(WaitForText(u"The page cannot be displayed"_s));
    EXPECT_EQ(browser->LocationURL(), server.Address(u"/empty"_s));
}

TEST_F(EngineNavigation, AnAddressThatAScriptPushesIsShownWithoutALoad) {
    Serve(u"/a"_s, "<body>alpha<a id=l href='#part'>part</a>");
    ASSERT_TRUE(Open(u"/a"_s));
    browser->Navigate(u"javascript:history.pushState(1, '', '/pushed')"_s);
    EXPECT_TRUE(WaitUntil([&] { return browser->LocationURL() == server.Address(u"/pushed"_s); }));
    EXPECT_FALSE(browser->Busy());
    ById(u"l"_s).Click();
    EXPECT_TRUE(WaitUntil([&] { return browser->LocationURL() == server.Address(u"/pushed#part"_s); }));
    EXPECT_FALSE(browser->Busy());
    EXPECT_EQ(CountEvents(u"complete"_s), 1);
}

TEST_F(EngineNavigation, AMailAddressLeadsNowhere) {
    Serve(u"/a"_s, "<body>alpha<a id=l href='mailto:a@example.com'>mail</a>");
    ASSERT_TRUE(Open(u"/a"_s));
    ById(u"l"_s).Click();
    PumpFor(200);
    EXPECT_FALSE(browser->Busy());
    EXPECT_EQ(Text(), u"alphamail"_s);
}

TEST_F(EngineNavigation, AFrameIsReportedAsOne) {
    HoldQuestions();
    Serve(u"/framed"_s, "<body>outer<iframe src=/inner></iframe>");
    Serve(u"/inner"_s, "<body>inner");
    ASSERT_TRUE(Open(u"/framed"_s));
    EXPECT_EQ(CountEvents(u"frame /inner"_s), 1);
    ASSERT_EQ(asked.size(), 2U);
    EXPECT_FALSE(asked[1].topLevel);
    EXPECT_FALSE(asked[1].headers.isEmpty());
}

TEST_F(EngineNavigation, AWindowOpensOnlyWhenItIsLet) {
    bool isCancelled = true;
    QString address;
    browser->events.newWindow2 = [&](const QString& url) {
        address = url;
        return isCancelled;
    };
    Serve(u"/a"_s, "<body>alpha <a id=l href=/w target=_blank>open</a>");
    Serve(u"/w"_s, "<body>window");
    ASSERT_TRUE(Open(u"/a"_s));
    ById(u"l"_s).Click();
    ASSERT_TRUE(WaitUntil([&] { return !address.isEmpty(); }));
    EXPECT_EQ(address, server.Address(u"/w"_s));
    PumpFor(200);
    EXPECT_EQ(server.CountRequests(u"/w"_s), 0);
    isCancelled = false;
    ById(u"l"_s).Click();
    EXPECT_TRUE(WaitUntil([&] { return server.CountRequests(u"/w"_s) == 1; }));
}

TEST_F(EngineNavigation, ASlashedPathIsAFile) {
    browser->Navigate(u"/nowhere/timedelay.htm"_s);
    EXPECT_TRUE(WaitForText(u"The page cannot be displayed"_s));
    EXPECT_EQ(browser->LocationURL(), u"file:///nowhere/timedelay.htm"_s);
}

TEST_F(EngineNavigation, NothingIsDeliveredByAReadOrASleep) {
    Serve(u"/a"_s, "<body>alpha");
    ASSERT_TRUE(Open(u"/a"_s));
    int fired = 0;
    pump.Queue().Post([&] { ++fired; });
    for (int i = 0; i < 20; ++i) {
        Text();
        pump.Sleep(1);
    }
    EXPECT_EQ(fired, 0);
    pump.PumpMessages();
    EXPECT_EQ(fired, 1);
}

TEST_F(EngineNavigation, TheAlarmDeliversWhileTheEventLoopIsIdle) {
    int fired = 0;
    Timer timer(pump.Queue(), 20, true, [&] { ++fired; });
    const qint64 end = pump.NowMs() + 5000;
    while (fired < 3 && pump.NowMs() < end)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    EXPECT_EQ(fired, 3);
}

TEST_F(EngineNavigation, ThePagesMenuComesUpOnlyWhenItIsLet) {
    int asks = 0;
    browser->events.contextMenu = [&] {
        ++asks;
        return false;
    };
    // The engine drops what the mouse does on a page that has not been painted yet, so the page says when it
    // has.
    Serve(u"/a"_s, "<body>alpha<script>new PerformanceObserver(() => document.body.append(' painted'))"
                   ".observe({type: 'paint', buffered: true})</script>");
    browser->View()->show();
    ASSERT_TRUE(Open(u"/a"_s));
    ASSERT_TRUE(WaitForText(u"painted"_s));
    QWidget* page = browser->View()->focusProxy();
    ASSERT_TRUE(page);
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, QPointF(5, 5), page->mapToGlobal(QPointF(5, 5)), Qt::RightButton,
                          type == QEvent::MouseButtonPress ? Qt::RightButton : Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(page, &event);
    }
    EXPECT_EQ(asks, 0);
    EXPECT_TRUE(WaitUntil([&] { return asks == 1; }));
}

} // namespace qlm
