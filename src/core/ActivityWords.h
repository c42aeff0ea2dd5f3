// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>

namespace qlm {

// The words that CurrentAction takes, which trails and stored settings show too. What else differs between
// activities stands in their rows (program/Activities.cpp) and definitions, not in comparisons of words.
namespace ActivityWord {
inline constexpr QLatin1StringView Gathering{"SCANNING"};
inline constexpr QLatin1StringView FriendRequests{"FR"};
inline constexpr QLatin1StringView Messages{"MSG"};
inline constexpr QLatin1StringView Comments{"COM"};
inline constexpr QLatin1StringView Bulletins{"BUL"};
inline constexpr QLatin1StringView Accepting{"ACC"};
inline constexpr QLatin1StringView Login{"LOGIN"};
inline constexpr QLatin1StringView DeletingPending{"DEL PEN"};
inline constexpr QLatin1StringView Invites{"INV"};
inline constexpr QLatin1StringView StatusUpdates{"STATUSUPDATES"};
inline constexpr QLatin1StringView Shuffling{"RANDOMIZING"};
} // namespace ActivityWord

} // namespace qlm
