// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// The reader's own start page; the sign-in page for whoever isn't signed in.
Response HomePage(Visit& visit);

} // namespace qlm::practice
