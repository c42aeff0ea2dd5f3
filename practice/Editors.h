// SPDX-License-Identifier: MIT
#pragma once

#include "Address.h"

namespace qlm::practice {

/// What a form has for its text.
enum class Editor {
    Plain,  ///< a text area
    Frame,  ///< a rich editor: a frame with an editable document
    Source, ///< the same with a source view, which takes markup as text; its switch leads back, too
    Views,  ///< the same; its switch leads to the source and never back
};

inline bool HasSource(Editor editor) {
    return editor == Editor::Source || editor == Editor::Views;
}

/// What a rich editor makes of a line break on sending.
enum class Breaks { Br, Div };

/// The markup. `name` is name and id of the field that is sent; parts of an editor have it with an end of
/// their own: "_f" the frame, "_editsource" the place of the switch, "_editsourcearea" the source.
QString EditorMarkup(Editor editor, const QString& name, Breaks breaks, const QString& text = {});

/// What was typed into it.
QString EditorText(Editor editor, const QString& name, const Fields& form);

/// The scripts of pages with forms.
QString FormScripts();

} // namespace qlm::practice
