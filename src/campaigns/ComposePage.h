// SPDX-License-Identifier: MIT
#pragma once

#include "campaigns/ContentChoice.h"
#include "platform/Document.h"

namespace qlm {

// The site's compose page, whichever of its designs it is.

// Types subject and body into every field, editor frame and source view that the page offers; what it lacks
// is passed over. newLayout: the page has an editor, too, whose source view wants "<br>" for a line end.
void TypeMessage(const Document& page, const SubjectAndBody& text, bool newLayout);

// Into the source view of the last text area's editor, which takes the markup.
void TypeIntoEditor(const Document& page, const QString& text);

// What sends. A span stands for a button that may be disabled until the first press.
struct SendButton {
    Element element; // null where the page has none
    bool isSpan = false;
};
SendButton FindSendButton(const Document& page);
// Presses the span once more unless its button is still disabled.
void PressWokenSpan(const Document& page);

} // namespace qlm
