// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// The control host: lines in, journal out, as plain text.
Response ControlPage(Visit& visit);
Response JournalPage(Visit& visit);
Response JournalTake(Visit& visit);

} // namespace qlm::practice
