// SPDX-License-Identifier: MIT
#pragma once

#include "content/ContentLine.h"

#include <optional>
#include <utility>
#include <vector>

namespace qlm {

// What the list screens do with the lines of a list. An entry is known by the text of its row; of several
// with one text the first is meant, unless said otherwise. Lines that are no entries stay where they are,
// blank ones go with the first move.

struct ListRow {
    QString text;
    bool ticked = false;
};
struct FilledRows {
    std::vector<ListRow> rows;
    int brokenLine = 0; // the first line that lacks its marker, counted from 1; 0 when none does
};

// What the row of a line shows: the subject, or the first line of a text without one. Nothing for a line
// without its marker.
std::optional<QString> RowOf(ContentKind kind, const QString& line);
const QString& RowMarkerOf(ContentKind kind);
FilledRows RowsOf(ContentKind kind, const QStringList& lines);

// The numbers of the rows of that text, from 0, and whether they are ticked.
std::vector<std::pair<int, bool>> TicksOf(ContentKind kind, const QStringList& lines, const QString& row);

// The entry as its entry screen shows it. A subject with a line break in it hides its entry.
std::optional<ContentFields> DetailsOf(ContentKind kind, const QStringList& lines, const QString& row);

struct RemovedLine {
    qsizetype place;
    QString line;
};
// Takes out all entries of that row.
std::vector<RemovedLine> RemoveRow(ContentKind kind, QStringList& lines, const QString& row);
// Puts lines back where they stood, or at the end of what is shorter now.
void RestoreLines(QStringList& lines, const std::vector<RemovedLine>& removed);

enum class Direction { Up, Down };
// Swaps the entry with its neighbour; one at the end stays.
void MoveRow(ContentKind kind, QStringList& lines, const QString& row, Direction direction);
// Takes the entry of that number to another one's place, both counted as rows from 0.
void MoveRowTo(ContentKind kind, QStringList& lines, int from, int to);
void TickRow(ContentKind kind, QStringList& lines, const QString& row, bool ticked);

// Writes an entry in the place of every line that is the edited one; false when none is.
bool ReplaceEntry(ContentKind kind, QStringList& lines, const ContentFields& fields,
                  const ContentFields& edited);

} // namespace qlm
