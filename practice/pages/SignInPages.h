// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// The name of the session cookie. The mobile pages have one of their own, so that signing in or out there
/// changes nothing here.
QString SessionCookie(Role role);
/// The header that sets it for all hosts; `more` stands behind.
QString CookieHeader(Role role, const QString& value, const QString& more = {});

/// The sign-in page, with `message` over the form; also what a wrong password and a sign-out answer.
Response SignInPage(const Visit& visit, const QString& message);

Response LoginPage(Visit& visit);
Response LoginProcess(Visit& visit);
Response SignOut(Visit& visit);
Response SignUp(Visit& visit);
Response RetrievePassword(Visit& visit);

} // namespace qlm::practice
