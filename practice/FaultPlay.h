// SPDX-License-Identifier: MIT
#pragma once

#include "Visit.h"

namespace qlm::practice {

/// Answers a visit that a fault has met, running the page itself where the fault leaves it a chance.
Response AnswerThrough(const Fault& fault, Visit& visit, Handler handler);

} // namespace qlm::practice
