// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// What somebody's friends wrote, newest first. The page shows some and grows in place: its "more" link
/// fetches the next part and hides when there is no more.
Response CommentsPage(Visit& visit);

} // namespace qlm::practice
