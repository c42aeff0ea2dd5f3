// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// Who has asked the account, at the newer address.
Response IncomingNew(Visit& visit);
/// The same at the older one.
Response IncomingOld(Visit& visit);
/// The same in the version before that.
Response IncomingSecond(Visit& visit);

} // namespace qlm::practice
