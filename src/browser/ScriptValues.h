// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

// What follows the key in a script, up to the next comma, without colons and double quotes; nothing (a null
// text) when the key is not followed by a colon, or by a double quote and a colon, anywhere in it.
QString ValueBehindFirstKey(const QString& script, const QString& key);
// What follows the first "reportedUserId=" up to the next "&".
QString ReportedUserId(const QString& html);
// What follows "UserId:" up to the next comma, without double quotes.
QString UserIdInPage(const QString& html);

} // namespace qlm
