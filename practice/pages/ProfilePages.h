// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// A profile in the newer layout, by number or by vanity name in the address.
Response ProfilePage(Visit& visit);
Response VanityProfile(Visit& visit);

/// The same profile as it looked before. Which of the two it is shows in its markup alone: the newer one
/// holds "userBadgeSideBar", the older one "friendSpace".
Response ClassicProfile(Visit& visit);
/// The classic page at its old address, with the ID in the query.
Response OldProfileAddress(Visit& visit);

} // namespace qlm::practice
