// SPDX-License-Identifier: MIT
#pragma once

#include "ContractWorld.h"
#include "PrintText.h"

#include <gtest/gtest.h>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

// What all contract tests stand on: a world, its browser, and everything that the browser told, in order.
class ContractTest : public ::testing::Test {
protected:
    ContractTest();
    ~ContractTest() override;
    // Listens to all events, in place of whatever a test has set.
    void Record();

    // An address of the site of the tests.
    static QString At(const QString& path) { return u"http://site.example.com/"_s + path; }
    void Serve(const QString& path, const QString& html, const ServeOptions& options = {});
    // The body of a whole page.
    void ServeBody(const QString& path, const QString& body, const ServeOptions& options = {});

    // Waits as the program waits: pump and Sleep(10). The limit only ends a wait that would never end.
    bool WaitUntil(const std::function<bool()>& condition, qint64 limitMs = defaultLimitMs);
    // Lets that much time pass with the pump turning, for what must not happen.
    void PumpFor(qint64 milliseconds);
    // Navigates and waits for the completion of the top document; the new document.
    Document Go(const QString& path);
    // Serves the body and goes there.
    Document Show(const QString& body, const QString& path = u"page"_s);
    bool WaitForCompletions(int count);
    bool WaitForText(const QString& text);
    Element ById(const QString& id) { return browser.Document().GetElementById(id); }
    QString Text();

    struct Seen {
        std::vector<NavigationRequest> questions;
        QStringList arrived;   // navigateComplete2
        QStringList completed; // documentComplete of the top document
        QStringList frames;    // documentComplete of frames
        QStringList windows;   // newWindow2
        QString title;
        QStringList order; // "before", "arrived", "completed" as they came
    };

    static constexpr qint64 defaultLimitMs = 10'000;
    // Long enough for a page without delay to arrive, were it coming.
    static constexpr qint64 settleMs = 400;

    std::unique_ptr<ContractWorld> world;
    BrowserControl& browser;
    Pump& pump;
    Seen seen;
    bool cancelNavigations = false;
    bool cancelWindows = true;
};

} // namespace qlm
