// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// The newer request page: visiting it is the request.
Response AddToFriends(Visit& visit);

/// The older one: a form whose button is the request.
Response AddFriendVerify(Visit& visit);

} // namespace qlm::practice
