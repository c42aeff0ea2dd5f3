// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;

// Whether the page in WebBrowser1 is made as those of the new layout are. The way through the filter leads to
// the newer pages on both.
bool IsNewerPage(App& app);
// The target's display name as the page in WebBrowser1 shows it; empty when there is none or it holds more
// than letters, digits, hyphens and two blanks. html is that page's; kind is "Message", "Comment" or "Friend
// Request".
QString GetTargetName(App& app, const QString& html, const QString& kind);
// The first name, with a capital letter and small ones after it.
QString CleanTargetName(const QString& name);
// Puts a name in the place of every "&NAME&", in any letter case; an empty one just takes it away.
QString PutName(QString text, const QString& name);
// The same with the target's name.
QString ReplaceTargetName(App& app, const QString& text, const QString& html, const QString& kind);

} // namespace qlm
