// SPDX-License-Identifier: MIT
#pragma once

#include "Exchange.h"
#include "Visit.h"

#include <QJsonObject>

namespace qlm::practice {

/// What a page puts into the site's common frame of top bar, tabs and foot.
struct Page {
    QString title;          ///< plain text
    QString main;           ///< markup
    QString tab;            ///< caption of the tab to mark, or ""
    qint64 shownId = 0;     ///< whose page it is; stands in the page's script as "DisplayFriendId"
    QJsonObject facts = {}; ///< further values for the page's script
    int status = 200;
};

/// The whole page as an answer. The script of a signed-in page holds the reader's own ID as "UserId".
///
/// The frame's links stand in list entries three levels below the body, so that nothing which looks for
/// profiles by a link's surroundings takes them for some.
Response Framed(const Visit& visit, const Page& page);

Response Redirect(const QString& url);
/// The way out for whoever isn't signed in.
Response RedirectToSignIn();
Response PlainText(const QString& text, int status = 200);
Response Svg(const QString& drawing);

} // namespace qlm::practice
