// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

#include <optional>

namespace qlm::practice {

/// How long a slow answer takes.
inline constexpr int slowMs = 5000;
bool IsSlow(const Visit& visit, qint64 requester);

/// What the site says when the account answers that request; nothing when it never does.
std::optional<QString> SaidBy(const Visit& visit, qint64 requester, bool isAccepted);

/// The same, and what it says has become true.
std::optional<QString> AnswerRequest(Visit& visit, qint64 requester, bool isAccepted);

} // namespace qlm::practice
