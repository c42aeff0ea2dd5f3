// SPDX-License-Identifier: MIT
#pragma once

#include "campaigns/ContentChoice.h"
#include "platform/Document.h"

namespace qlm {

// The site's pages of bulletins: the form, and the list of those that have been posted.

void TypeSubject(const Document& page, const QString& subject);
// The newer form has an editor, whose source view must stand open; the older one a plain box.
void TypeBulletin(const Document& page, const QString& body, bool newLayout);
// The form's boxes that let people comment are as they are wanted.
void AllowComments(const Document& page, bool isAllowed);
// What posts the form; null where the page has none.
Element FindPostButton(const Document& page);
// What confirms it on the page that some sites put in between.
Element FindBulletinConfirmation(const Document& page);

// The list has come.
bool HasBulletinList(const Document& page);
// Ticks the newest bulletin and presses what deletes the ticked ones.
void DeleteNewest(const Document& page);

} // namespace qlm
