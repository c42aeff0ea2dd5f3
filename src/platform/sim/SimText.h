// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sim/SimTree.h"

namespace qlm {

// The text of an element as a reader sees it: lines where blocks begin and end, white space folded, nothing
// of what is hidden by the hidden attribute or an inline style. Style sheets are not looked at. Of an element
// that is itself hidden the plain text comes back, as browsers do it.
QString InnerText(const SimTree& tree, int node);

} // namespace qlm
