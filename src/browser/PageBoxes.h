// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>

namespace qlm {

class App;

// What keeps a page's own boxes and menus from disturbing a run.
class PageBoxes {
public:
    explicit PageBoxes(App& app) : m_app(app) {}

    // Closes the window of that title; with an empty one the box of a page's script. ClosePopupResult tells
    // "CLOSED" or "NOT FOUND".
    void ClosePopup(const QString& title);
    // May the page's own menu come up? The answer to a right-click in WebBrowser1.
    bool hGlobalDoc_oncontextmenu();

    // Whether the running activity sends. Set by the program, which knows the activities.
    std::function<bool()> isSending;

private:
    App& m_app;
};

} // namespace qlm
