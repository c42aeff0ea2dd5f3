// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// The map of all forms for messages and comments: each with somebody whose page shows it.
Response FormMap(Visit& visit);

} // namespace qlm::practice
