// SPDX-License-Identifier: MIT
#pragma once

#include "platform/BrowserControl.h"

#include <QString>

namespace qlm {

// What the site's pages of invitations are made of. Letter case counts nowhere.

// A page that hasn't come holds nothing.
bool PageHas(BrowserControl& browser, const QString& text);
bool PageHasMarkup(BrowserControl& browser, const QString& text);
QString TitleOf(const Document& page);

// GetGroupPageNum: the number in the first element of class "currentpage"; 0 where there is none.
qint16 PageNumberOf(const Document& page);
// The first p - 4 characters of the title, p being where "MySpace Groups" begins; empty without it.
QString GroupNameIn(const QString& title);
// GetEventName: what stands before " | MySpace", without a leading "Editing ".
QString EventNameIn(const QString& title);
// Its own style hides it.
bool IsHidden(const Element& element);
// The link of that very text; null where there is none.
Element LinkReading(const Document& page, const QString& text);

} // namespace qlm
