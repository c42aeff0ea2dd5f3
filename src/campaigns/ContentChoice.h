// SPDX-License-Identifier: MIT
#pragma once

#include "content/ContentLine.h"

#include <QString>
#include <optional>

namespace qlm {

class App;

// Which text goes to the next target: the accepter's, one of the list, or the one typed on the tab. Names are
// not put in yet.

struct SubjectAndBody {
    QString subject;
    QString body;
};

// The next entry of the list, in order or by chance; moves the list's index on. Messages step by two. Throws
// when no entry is selected, and when the index passes 16 bits.
QString PickContentLine(App& app, ContentKind kind);

// Also for the message behind a friend request, which shares the messenger's list and index.
SubjectAndBody ChooseMessage(App& app);
// refusesHTML: the profile disables HTML comments. Nothing when the target is skipped for it;
// blnSkipCurrentID then says so.
std::optional<QString> ChooseComment(App& app, bool refusesHTML);
SubjectAndBody ChooseBulletin(App& app);
QString ChooseStatus(App& app);

// What the source view of a rich text editor gets: each carriage return as "<br>", the line feed stays.
QString ForRichEditor(const QString& text);

} // namespace qlm
