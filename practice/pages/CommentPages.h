// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// What friends wrote to somebody, below the box for a comment of one's own. The page grows in place: its
/// script fetches part after part.
Response CommentsPage(Visit& visit);

/// What has happened to whoever is signed in; grows in the same way.
Response NotificationsPage(Visit& visit);

} // namespace qlm::practice
