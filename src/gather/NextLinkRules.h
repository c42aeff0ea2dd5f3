// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <vector>

namespace qlm {

// A link as the ordered table of next-page links sees it.
struct NextLinkCandidate {
    QString href;  // %20 and &amp; undone, trimmed
    QString text;  // trimmed
    QString lower; // the same in lower case
    std::function<QString()> outerHTML;
};

// The page that the candidates stand on.
struct NextLinkPage {
    QString address;
    std::function<QString(const QString&)> expand; // replaces the {Role}s
    std::function<bool()> hasNextPageElement;      // an element with the id "nextPage" exists
};

struct NextLink {
    QString link;
    bool click = false; // link is a caption to click, not an address
};

// The first row of the table that fits the link answers; nothing when none does.
std::optional<NextLink> MatchNextLink(const NextLinkCandidate& candidate, const NextLinkPage& page);

// Undoes what the address may have been escaped with.
QString PlainHref(const QString& href);
// A chart's "more" link with its trailing page number replaced everywhere by 5; "" when that ends in no
// digit.
QString ChartPageFive(const QString& href);

} // namespace qlm
