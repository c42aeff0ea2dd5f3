// SPDX-License-Identifier: MIT
#pragma once

#include "platform/BrowserControl.h"

namespace qlm {

// While one stands, the control refuses every navigation that the page or the user begins: the program walks
// the document for a click, fetches profiles beside it, or rewrites a script. It ends with the run that it
// belongs to, whoever still holds it.
class NavigationGuard {
public:
    explicit NavigationGuard(BrowserControl& browser)
        : m_browser(browser), m_number(browser.BeginRefusal()) {}
    ~NavigationGuard() { m_browser.EndRefusal(m_number); }
    NavigationGuard(const NavigationGuard&) = delete;
    NavigationGuard& operator=(const NavigationGuard&) = delete;

private:
    BrowserControl& m_browser;
    const quint64 m_number;
};

} // namespace qlm
