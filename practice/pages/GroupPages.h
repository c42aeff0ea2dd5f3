// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// A group's main page.
Response GroupPage(Visit& visit);
/// Where its members invite their friends.
Response GroupInvitePage(Visit& visit);
/// The frame of the older one of these pages, on whichever host.
Response GroupFriendBox(Visit& visit);

} // namespace qlm::practice
