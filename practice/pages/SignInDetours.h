// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// A page that comes in the middle of a sign-in, in place of what the handler answers; a welcome signs in all
/// the same. A fault of another kind has none.
Response SignInDetour(Visit& visit, FaultKind kind, Handler handler);

} // namespace qlm::practice
