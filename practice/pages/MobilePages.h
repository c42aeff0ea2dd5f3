// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

// The mobile pages, with a sign-in of their own.
Response MobileHome(Visit& visit);
Response MobileSignIn(Visit& visit);
Response MobileSignOut(Visit& visit);
/// Whom the account has asked and who hasn't answered.
Response MobileSentRequests(Visit& visit);
/// One of these, and the way to take it back.
Response MobileSentRequest(Visit& visit);

} // namespace qlm::practice
