// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"

namespace qlm {

// The box for a comment on the newer page: it grows when it gets the focus, and posts by a button of its own.

// Null where the page has none yet.
Element FindCommentBox(const Document& page);
bool HasGrown(const Element& box);
// Into the box and whatever the page keeps beside it to show its text, but not onto the buttons there.
void WriteIntoBox(const Element& box, const QString& text);

// The first button that posts and can be seen; after is the node of one that has been pressed: the next one
// goes before it. Null where there is none.
Element FindPostButton(const Document& page, int after = 0);

// The site asks once more before it posts such a text.
bool HoldsMarkup(const QString& text);

} // namespace qlm
