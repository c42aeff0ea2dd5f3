// SPDX-License-Identifier: MIT
#include "EngineWorld.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

EngineTest::EngineTest()
    : profile(CreateEngineProfile(&owner)), browser(std::make_unique<QtBrowser>(pump, *profile)) {
    browser->SetSilent(true);
    browser->events.beforeNavigate2 = [this](const NavigationRequest& request) {
        events += u"before "_s + QUrl(request.url).path();
        return false;
    };
    browser->events.newWindow2 = [this](const QString& url) {
        events += u"window "_s + QUrl(url).path();
        return false;
    };
    browser->events.documentComplete = [this](bool topLevel, const QString& url) {
        events += (topLevel ? u"complete "_s : u"frame "_s) + QUrl(url).path();
    };
    browser->events.statusTextChange = [this](const QString& text) { events += u"status "_s + text; };
}

EngineTest::~EngineTest() {
    browser.reset();
}

void EngineTest::Serve(const QString& path, const QByteArray& body) {
    LoopbackAnswer answer;
    answer.body = body;
    server.Answer(path, answer);
}

bool EngineTest::WaitUntil(const std::function<bool()>& condition, int limitMs) {
    const qint64 end = pump.NowMs() + limitMs;
    while (!condition()) {
        if (pump.NowMs() > end)
            return false;
        pump.PumpMessages();
        pump.Sleep(10);
    }
    return true;
}

QString EngineTest::Text() {
    const Document document = browser->Document();
    if (!document || !document.Body())
        return {};
    return document.BodyText();
}

bool EngineTest::WaitForText(const QString& text, int limitMs) {
    return WaitUntil([&] { return Text().contains(text); }, limitMs);
}

bool EngineTest::Open(const QString& path) {
    const int before = CountEvents(u"complete "_s + path);
    Go(path);
    return WaitUntil([&] { return CountEvents(u"complete "_s + path) > before; });
}

void EngineTest::PumpFor(int milliseconds) {
    const qint64 end = pump.NowMs() + milliseconds;
    WaitUntil([&] { return pump.NowMs() >= end; }, milliseconds + 1000);
}

int EngineTest::CountEvents(const QString& start) const {
    return static_cast<int>(std::count_if(events.begin(), events.end(),
                                          [&](const QString& event) { return event.startsWith(start); }));
}

} // namespace qlm
