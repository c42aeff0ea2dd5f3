// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <vector>

namespace qlm {

class PageView;

// A link as the ordered table of next-page links sees it.
struct NextLinkCandidate {
    QString href;  // %20 and &amp; undone, trimmed
    QString text;  // trimmed
    QString lower; // the same in lower case
    std::function<QString()> outerHTML;
};

struct NextLink {
    QString link;
    bool click = false; // link is a caption to click, not an address
};

// The first row of the table that fits the link on its page answers; nothing when none does.
std::optional<NextLink> MatchNextLink(const NextLinkCandidate& candidate, const PageView& page);

// Undoes what the address may have been escaped with.
QString PlainHref(const QString& href);
// A chart's "more" link with its trailing page number replaced everywhere by 5; "" when that ends in no
// digit.
QString ChartPageFive(const QString& href);

} // namespace qlm
