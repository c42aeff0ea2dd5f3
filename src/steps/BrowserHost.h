// SPDX-License-Identifier: MIT
#pragma once

#include "platform/BrowserControl.h"

#include <functional>

namespace qlm {

class App;

// The handlers of WebBrowser1's events. They arrive from the message pump, so a step may be waiting further
// down.
class BrowserHost {
public:
    explicit BrowserHost(App& app) : m_app(app) {}

    // Attaches the handlers; called when the main window loads.
    void Attach();

    // Set by the gathering. The user has clicked a link while clicked profiles are gathered: answers whether
    // the navigation is to be refused.
    std::function<bool(const QString& url)> gatherClicked;

private:
    bool WebBrowser1_BeforeNavigate2(const NavigationRequest& request);
    bool WebBrowser1_NewWindow2();
    void WebBrowser1_DocumentComplete(bool topLevel, const QString& url);
    void WebBrowser1_StatusTextChange(const QString& text);
    // FocusHelper.cpp
    void NoteFocusWindow(const QString& url);
    void tmrHelper_Timer();
    // TypedLogin.cpp
    void LearnTypedPasswords(const NavigationRequest& request);
    void ReadTypedLogin(const NavigationRequest& request);

    App& m_app;
};

} // namespace qlm
