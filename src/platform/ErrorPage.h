// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

// What a browser shows in place of a page that could not be fetched. The page classifier knows such a page by
// its heading, so both browsers show this one.
inline QString ErrorPageHTML(const QString& url) {
    using namespace Qt::Literals::StringLiterals;
    return u"<!DOCTYPE html><html><head><title>The page cannot be displayed</title></head><body>"
           "<h1>The page cannot be displayed</h1>"
           "<p>Nothing could be loaded from <b>%1</b>.</p>"
           "<p>Check the connection and the address, then try again.</p></body></html>"_s.arg(
               url.toHtmlEscaped());
}

} // namespace qlm
