// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"

#include <QString>

namespace qlm {

// The home page's status box and stream.

// The box that takes the text has come, and in the older layout the stream's filter.
bool HasStatusBox(const Document& page, bool newLayout);
// The box invites to write: it takes a text now.
bool InvitesToShare(const QString& pageText);
Element StatusBox(const Document& page);
// Presses whatever shares the text in the box. False when nothing does.
bool PressShare(const Document& page);

// What deletes an update, in the older layout.
// Narrows the stream to the user's own updates.
void ShowOwnUpdates(const Document& page);
void ConfirmOldDeletion(const Document& page);

// And in the newer one: the class of the stream while it is loading.
bool IsStreamLoading(const Document& page);
void PressDeleteUpdate(const Document& page);
void ConfirmNewDeletion(const Document& page);

} // namespace qlm
