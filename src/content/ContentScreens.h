// SPDX-License-Identifier: MIT
#pragma once

#include "content/ContentLine.h"

#include <span>

namespace qlm {

// The four list screens and the four entry screens, a row each: their controls by their full names, and what
// they say and do differently. Window and logic read it.
struct ContentScreen {
    ContentKind kind;

    // The list screen.
    const char* form;
    const char* list;
    const char* add;
    const char* edit;
    const char* remove;
    const char* preview; // empty: without one
    const char* sendInOrder;
    const char* randomize;
    const char* text;    // view of the chosen entry; empty: none
    const char* nonHTML; // views of a comment's alternative; empty: none
    const char* usesNonHTML;
    const char16_t* entries; // "bulletins"
    const char16_t* placeholder;
    const char16_t* noEntry; // beside the placeholder, a row that is none; empty: there is no such
    const char16_t* noEdit;  // what is said when nothing is chosen
    const char16_t* noDelete;
    const char16_t* noPreview;
    const char16_t* previewKind;
    const char16_t* clearOffer; // of a file that can't be read; empty: none
    const char* fillTag;
    const char* deleteTag;
    const char* moveDownTag;
    const char* moveUpTag;
    const char* tickTag;
    const char* editList; // the tab's button

    // The entry screen.
    const char* entryForm;
    const char* subject; // inputs; empty: none
    const char* body;
    const char* alternative;
    const char* useAlternative;
    const char* entryPreview;
};

std::span<const ContentScreen> ContentScreens();

// Of the list screens, without the form's name in front.
inline constexpr const char* ContentMoveUp = "cmdMoveUp";
inline constexpr const char* ContentMoveDown = "cmdMoveDown";
inline constexpr const char* ContentUndoDelete = "cmdUndoDelete";
inline constexpr const char* ContentClose = "Command1";

} // namespace qlm
