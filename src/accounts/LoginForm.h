// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"

namespace qlm {

class Deployment;

// The button that sends the login form.
struct LoginButton {
    Element element; // null when the page has none of the known ones
    bool stopFirst = false;
};

// False for what a form would send elsewhere.
bool StaysOnTheSite(const Deployment& site, const Element& control);
// Writes e-mail and password into whatever login form the page has. Does nothing, and answers false, on a
// page that isn't the site's; a form of its page that would be sent elsewhere stays empty.
bool FillLoginForm(const Deployment& site, const Document& document, const QString& email,
                   const QString& password);
// Never one that would send its form elsewhere.
LoginButton FindLoginButton(const Deployment& site, const Document& document);

} // namespace qlm
