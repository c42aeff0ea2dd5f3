// SPDX-License-Identifier: MIT
#pragma once

#include "browser/CheckBox.h"
#include "platform/Document.h"

#include <QString>
#include <vector>

namespace qlm {

class PageSigns;

// The site's lists of friend requests, incoming and sent, in both layouts.

// The newer list of what comes in.
inline const QString IncomingRequests = QStringLiteral("{SiteRootHost}/my/requests/friendrequest?viewall=1");

// GetLastPageNumber: the number of the list's last page, always digits.
QString LastPageNumberOf(const Document& page);

// Older layout: clicks the pager's link to that page, whose address begins so. False when there is none.
bool ClickLinkToPage(PageSigns& page, const QString& beginning, const QString& number);

// The boxes that choose requests, in page order.
std::vector<Element> RequestBoxes(const Document& page);
// Newer layout: the box of one request.
bool IsRequestBox(const Element& box);
// The ID between the first two commas of the box's "mode"; empty where there is none.
QString IdOfBox(const Element& box);
// Older layout: the box above the list that ticks all the others, and the one for somebody's updates.
bool IsBoxOfAll(const Element& box);
bool IsUpdatesBox(const Element& box);

// Newer layout: what accepts one request.
bool IsAcceptButton(const Element& button);
// Older layout: the page has what approves the ticked ones.
bool HasApproveButton(const Document& page);

// The spans that deny the requests of those whose profiles are gone, and nobody else's: each is the next one
// after the words that say so.
std::vector<Element> FindDeniesOfVanished(const Document& page);

} // namespace qlm
