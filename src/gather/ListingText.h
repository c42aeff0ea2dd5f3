// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class PageView;

// The label that names the visible slice of the list ("listing 1-40 "), read in the way of the page's kind;
// "" when there is none. It says later whether the browser still shows this page.
QString ListingText(const PageView& page);

// A piece of markup that differs from page to page of the same list, for lists without such a label; "" when
// there is none.
QString ListingMarkup(const PageView& page);

} // namespace qlm
