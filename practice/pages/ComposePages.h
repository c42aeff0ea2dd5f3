// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// The form for a message to somebody, at its old address and at its new one; and what becomes of the
/// message.
Response ComposeOld(Visit& visit);
Response ComposeNew(Visit& visit);

/// Where an account is led that has no mail set up.
Response CreateMailAccount(Visit& visit);

} // namespace qlm::practice
