// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>
#include <stdexcept>

namespace qlm {

class App;
struct Campaign;

// Which text goes to the next target: the accepter's, one of the list, or the one typed on the tab. Names are
// not put in yet.

struct SubjectAndBody {
    QString subject;
    QString body;
};

// The list has been emptied, or its last tick taken away, since the run began.
struct NoEntrySelected : std::runtime_error {
    NoEntrySelected() : std::runtime_error("No entry of the list is selected") {}
};

// The next entry of the campaign's list, in order or by chance; moves the list's index on. Messages step by
// two. Throws NoEntrySelected, and an error when the index passes 16 bits.
QString PickContentLine(App& app, const Campaign& campaign);

// Of a campaign without subject that is empty. The message after a friend request shares the messenger's list
// and index.
SubjectAndBody ChooseText(App& app, const Campaign& campaign);

// A comment, and what a profile gets in its place that refuses HTML: nothing where such a target is skipped.
struct CommentChoice {
    QString text;
    std::optional<QString> nonHTML;
};

CommentChoice ChooseComment(App& app);

// What the source view of a rich text editor gets: each carriage return as "<br>", the line feed stays.
QString ForRichEditor(const QString& text);

} // namespace qlm
