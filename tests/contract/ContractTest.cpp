// SPDX-License-Identifier: MIT
#include "ContractTest.h"

namespace qlm {

ContractTest::ContractTest() : world(MakeContractWorld()), browser(world->Browser()), pump(world->Pump()) {
    browser.SetSilent(true);
    Record();
}

ContractTest::~ContractTest() {
    browser.events = {};
}

void ContractTest::Record() {
    browser.events.beforeNavigate2 = [this](const NavigationRequest& request) {
        seen.questions.push_back(request);
        seen.order += u"before"_s;
        return cancelNavigations;
    };
    browser.events.newWindow2 = [this](const QString& url) {
        seen.windows += url;
        return cancelWindows;
    };
    browser.events.navigateComplete2 = [this](const QString& url) {
        seen.arrived += url;
        seen.order += u"arrived"_s;
    };
    browser.events.documentComplete = [this](bool topLevel, const QString& url) {
        (topLevel ? seen.completed : seen.frames) += url;
        if (topLevel)
            seen.order += u"completed"_s;
    };
    browser.events.titleChange = [this](const QString& title) { seen.title = title; };
}

void ContractTest::Serve(const QString& path, const QString& html, const ServeOptions& options) {
    world->Serve(At(path), html, options);
}

void ContractTest::ServeBody(const QString& path, const QString& body, const ServeOptions& options) {
    Serve(path,
          u"<!DOCTYPE html><html><head><title>"_s + path + u"</title></head><body>"_s + body +
              u"</body></html>"_s,
          options);
}

bool ContractTest::WaitUntil(const std::function<bool()>& condition, qint64 limitMs) {
    const qint64 endMs = pump.NowMs() + limitMs;
    while (!condition()) {
        if (pump.NowMs() > endMs)
            return false;
        pump.PumpMessages();
        pump.Sleep(10);
    }
    return true;
}

void ContractTest::PumpFor(qint64 milliseconds) {
    const qint64 endMs = pump.NowMs() + milliseconds;
    WaitUntil([&] { return pump.NowMs() >= endMs; }, milliseconds + defaultLimitMs);
}

bool ContractTest::WaitForCompletions(int count) {
    return WaitUntil([&] { return seen.completed.size() >= count; });
}

Document ContractTest::Go(const QString& path) {
    const qsizetype before = seen.completed.size();
    browser.Navigate(At(path));
    EXPECT_TRUE(WaitForCompletions(static_cast<int>(before) + 1))
        << "never completed: " << path.toStdString();
    return browser.Document();
}

Document ContractTest::Show(const QString& body, const QString& path) {
    ServeBody(path, body);
    return Go(path);
}

QString ContractTest::Text() {
    const Document document = browser.Document();
    return document && document.Body() ? document.BodyText() : QString();
}

bool ContractTest::WaitForText(const QString& text) {
    return WaitUntil([&] { return Text().contains(text); });
}

} // namespace qlm
