// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// The old page with a form for a comment; what is sent from it; and the page that wants it confirmed.
Response CommentForm(Visit& visit);

} // namespace qlm::practice
