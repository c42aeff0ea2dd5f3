// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"

namespace qlm {

// The button that sends the login form.
struct LoginButton {
    Element element; // null when the page has none of the known ones
    bool stopFirst = false;
};

// Writes e-mail and password into whatever login form the page has.
void FillLoginForm(const Document& document, const QString& email, const QString& password);
LoginButton FindLoginButton(const Document& document);

} // namespace qlm
