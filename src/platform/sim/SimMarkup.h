// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sim/SimTree.h"

namespace qlm {

// The page written back as HTML, as browsers write it: tag names in lower case, every attribute value quoted.
QString InnerHTML(const SimTree& tree, int node);
QString OuterHTML(const SimTree& tree, int node);

} // namespace qlm
