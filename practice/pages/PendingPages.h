// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// Whom the account has asked and who hasn't answered, on the older mail pages. An account that has never
/// asked anybody sees the list of the same address that is made for gathering.
Response PendingRequests(Visit& visit);
bool HasPendingRequests(const Visit& visit);

} // namespace qlm::practice
