// SPDX-License-Identifier: MIT
#pragma once

#include "platform/BrowserControl.h"

namespace qlm {

// While one stands, the control refuses every navigation that the page or the user begins: the program walks
// the document for a click, or rewrites a script.
class NavigationGuard {
public:
    explicit NavigationGuard(BrowserControl& browser) : m_browser(browser) {
        m_browser.SetRefuseNavigations(true);
    }
    ~NavigationGuard() { m_browser.SetRefuseNavigations(false); }
    NavigationGuard(const NavigationGuard&) = delete;
    NavigationGuard& operator=(const NavigationGuard&) = delete;

private:
    BrowserControl& m_browser;
};

} // namespace qlm
