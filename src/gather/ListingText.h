// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>

namespace qlm {

// A list page as the search for its slice label sees it.
struct ListingPage {
    QString address;
    QString text;                                  // of the body
    QString html;                                  // of the body
    std::function<QString(const QString&)> expand; // replaces the {Role}s
};

// The label that names the visible slice of the list ("listing 1-40 "), read in the way of the page's kind;
// "" when there is none. It says later whether the browser still shows this page.
QString ListingText(const ListingPage& page);

// A piece of markup that differs from page to page of the same list, for lists without such a label; "" when
// there is none.
QString ListingMarkup(const ListingPage& page);

} // namespace qlm
