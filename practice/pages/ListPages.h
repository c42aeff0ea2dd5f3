// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// Somebody's friends, forty a page. The number of the page stands in the address; a number past the end
/// shows the last page.
Response FriendsPage(Visit& visit);

/// The address that old links to somebody's friends use: leads to the list.
Response OldFriendsAddress(Visit& visit);

/// Everybody on the site who is a person, forty a page.
Response BrowsePage(Visit& visit);

} // namespace qlm::practice
