// SPDX-License-Identifier: MIT
#pragma once

#include "platform/BrowserControl.h"

namespace qlm {

class App;

// The handlers of WebBrowser1's events. They arrive from the message pump, so a step may be waiting further
// down.
class BrowserHost {
public:
    explicit BrowserHost(App& app) : m_app(app) {}

    // Attaches the handlers; called when the main window loads.
    void Attach();

private:
    bool WebBrowser1_BeforeNavigate2(const NavigationRequest& request);
    bool WebBrowser1_NewWindow2();
    void WebBrowser1_DocumentComplete(bool topLevel, const QString& url);
    void WebBrowser1_StatusTextChange(const QString& text);
    // FocusHelper.cpp
    void NoteFocusWindow(const QString& url);
    void tmrHelper_Timer();
    bool GatherClickedProfile(const QString& url);
    Element FindProfileLink(const QString& url);
    void AddClickedProfile(const Element& link);
    // TypedLogin.cpp
    void LearnTypedPasswords(const NavigationRequest& request);
    void ReadTypedLogin(const NavigationRequest& request);

    App& m_app;
};

} // namespace qlm
