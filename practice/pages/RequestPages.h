// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

#include <optional>

namespace qlm::practice {

/// The newer request page: visiting it is the request.
Response AddToFriends(Visit& visit);

/// The older one: a form whose button is the request.
Response AddFriendVerify(Visit& visit);

/// The image of a CAPTCHA; the address holds target and round.
Response CaptchaImage(Visit& visit);

/// A CAPTCHA in front of any other page, answered at that page's own address.
/// Nothing when the visitor has just answered it: the page itself is due then.
std::optional<Response> CaptchaGate(Visit& visit);

} // namespace qlm::practice
