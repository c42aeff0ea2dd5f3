// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sim/SimTree.h"

namespace qlm {

// How an element takes its place among the text around it.
enum class Display { None, Inline, Block, Row, Cell, Replaced, Break };

// By its tag, the hidden attribute, its own style and the page's style elements.
Display DisplayOf(const SimTree& tree, int node);

// Neither the element nor an ancestor is hidden, and it is of a kind that shows.
bool IsShown(const SimTree& tree, int node);

} // namespace qlm
