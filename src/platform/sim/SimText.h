// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sim/SimTree.h"

namespace qlm {

// The text of an element as a reader sees it: lines where blocks begin and end, white space folded, letters
// in the case that a style gives them, nothing of what is hidden by the hidden attribute or a style. Of an
// element that is itself hidden the plain text comes back, as browsers do it.
QString InnerText(const SimTree& tree, int node);

} // namespace qlm
