// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// An event's main page.
Response EventPage(Visit& visit);
/// Where its host invites friends.
Response EventGuestPage(Visit& visit);
/// The frame of the oldest one of these pages.
Response EventFriendBox(Visit& visit);

} // namespace qlm::practice
