// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"

namespace qlm {

// The site's older comment form, whichever of its designs it is, and the page between it and the post.

// HasCommentField() is about to be asked: the turn's first look at the page answers it along the way.
void ForeseeCommentField(const Document& page);
// One of the fields is there that say that the form has come.
bool HasCommentField(const Document& page);
// Types the text into every field that the form offers.
void TypeComment(const Document& page, const QString& text);
// Types it into the one field that the designs with an editor share.
void TypeSharedField(const Document& page, const QString& text);
// A design with a rich text editor, by the page's markup.
bool HasEditor(const QString& html);
// The box that such a design shows once its editor stands.
bool HasEditorBox(const Document& page);
// Types into the opened source view. A form without one is left alone.
void TypeSource(const Document& page, const QString& text);

// What posts the form; null where it has nothing.
Element FindFormButton(const Document& page);

// What the page between form and post is confirmed with. A button that can't be pressed yet gives way to one
// that can.
struct ConfirmButton {
    Element element; // null where the page has none
    bool isDisabled = false;
};
ConfirmButton FindConfirmButton(const Document& page);

} // namespace qlm
