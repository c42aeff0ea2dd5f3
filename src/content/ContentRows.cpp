// SPDX-License-Identifier: MIT
#include "content/ContentRows.h"

#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString UnselectedFlag = u"&Selected=0"_s;
// The comment in front of its flag is looked for without the "=".
const QString CommentEnd = u"&usenonhtml"_s;

bool HasSubject(ContentKind kind) {
    return kind == ContentKind::Message || kind == ContentKind::Bulletin;
}

bool IsTicked(const QString& line) {
    return FlagTextOf(line).mid(SelectedMarker.size()).trimmed() == u"1"_s;
}

// Up to the first line break, unless the text begins with one.
QString FirstLineOf(const QString& text) {
    const qsizetype end = text.indexOf(u"%nl%"_s);
    return end >= 1 ? text.left(end) : text;
}

bool Holds(const QString& line, const QString& marker) {
    return FindMarker(line, marker) >= 0;
}

// All that an entry holds, escapes undone; of a comment the alternative also where it isn't used.
ContentFields WholeFieldsOf(ContentKind kind, const QString& line) {
    const QString text = WithoutFlag(line);
    ContentFields fields;
    if (HasSubject(kind)) {
        const QString& marker = RowMarkerOf(kind);
        fields.subject = TextBefore(text, marker);
        fields.text = UnescapeLine(TextBehind(text, marker));
    } else if (kind == ContentKind::Comment) {
        fields.text = UnescapeLine(TextBefore(text, CommentEnd));
        const bool isWhole = Holds(text, UseNonHTMLMarker) && Holds(text, NonHTMLMarker);
        const QString rest = isWhole ? TextBehind(text, UseNonHTMLMarker) : QString();
        fields.usesNonHTML = isWhole && TextBefore(rest, NonHTMLMarker) == u"1"_s;
        fields.nonHTML = isWhole ? UnescapeLine(TextBehind(rest, NonHTMLMarker)) : QString();
    } else {
        fields.text = UnescapeLine(text);
    }
    return fields;
}

// What tells the entry that is being edited from the other lines: all but its subject and flag, written as
// the program writes it. Null for a line that is none.
QString IdentityOf(ContentKind kind, ContentFields fields) {
    fields.subject.clear();
    return LineOf(kind, fields, u"."_s);
}

QString IdentityOf(ContentKind kind, const QString& line) {
    const QString& marker = kind == ContentKind::Comment ? CommentEnd : RowMarkerOf(kind);
    const bool isEntry = kind == ContentKind::Status ? !line.trimmed().isEmpty() : Holds(line, marker);
    return isEntry ? IdentityOf(kind, WholeFieldsOf(kind, line)) : QString();
}

void DropBlankLines(QStringList& lines) {
    lines.removeIf([](const QString& line) { return line.trimmed().isEmpty(); });
}

// Where the rows stand among the lines.
std::vector<qsizetype> PlacesOfRows(ContentKind kind, const QStringList& lines) {
    std::vector<qsizetype> places;
    for (qsizetype place = 0; place < lines.size(); ++place)
        if (!lines[place].trimmed().isEmpty() && RowOf(kind, lines[place]))
            places.push_back(place);
    return places;
}

// Row by row, so that what stands between the entries keeps its place.
void Shift(QStringList& lines, const std::vector<qsizetype>& places, int from, int to) {
    const auto count = static_cast<int>(places.size());
    if (from < 0 || from >= count || to < 0 || to >= count)
        return;
    for (int step = from < to ? 1 : -1; from != to; from += step)
        lines.swapItemsAt(places[static_cast<size_t>(from)], places[static_cast<size_t>(from + step)]);
}

} // namespace

const QString& RowMarkerOf(ContentKind kind) {
    switch (kind) {
    case ContentKind::Message:
        return MessageMarker;
    case ContentKind::Bulletin:
        return BulletinMarker;
    case ContentKind::Comment:
        return CommentEnd;
    case ContentKind::Status:
        break;
    }
    return SelectedMarker;
}

std::optional<QString> RowOf(ContentKind kind, const QString& line) {
    const qsizetype end = FindMarker(line, RowMarkerOf(kind));
    if (end < 0)
        return std::nullopt;
    return HasSubject(kind) ? line.left(end) : FirstLineOf(line.left(end));
}

FilledRows RowsOf(ContentKind kind, const QStringList& lines) {
    FilledRows filled;
    for (qsizetype place = 0; place < lines.size(); ++place) {
        if (lines[place].trimmed().isEmpty())
            continue;
        if (const std::optional<QString> row = RowOf(kind, lines[place]))
            filled.rows.push_back({*row, IsTicked(lines[place])});
        else if (filled.brokenLine == 0)
            filled.brokenLine = static_cast<int>(place) + 1;
    }
    return filled;
}

std::vector<std::pair<int, bool>> TicksOf(ContentKind kind, const QStringList& lines, const QString& row) {
    std::vector<std::pair<int, bool>> ticks;
    int number = 0;
    for (const qsizetype place : PlacesOfRows(kind, lines)) {
        if (RowOf(kind, lines[place]) == row)
            ticks.emplace_back(number, IsTicked(lines[place]));
        ++number;
    }
    return ticks;
}

std::optional<ContentFields> DetailsOf(ContentKind kind, const QStringList& lines, const QString& row) {
    for (const QString& line : lines)
        if (const std::optional<QString> own = RowOf(kind, line); own && FirstLineOf(*own) == row)
            return WholeFieldsOf(kind, line);
    return std::nullopt;
}

std::vector<RemovedLine> RemoveRow(ContentKind kind, QStringList& lines, const QString& row) {
    std::vector<RemovedLine> removed;
    QStringList kept;
    for (qsizetype place = 0; place < lines.size(); ++place)
        if (RowOf(kind, lines[place]) == row)
            removed.push_back({place, lines[place]});
        else
            kept.append(lines[place]);
    lines = kept;
    return removed;
}

void RestoreLines(QStringList& lines, const std::vector<RemovedLine>& removed) {
    for (const RemovedLine& each : removed)
        lines.insert(std::min(each.place, lines.size()), each.line);
}

void MoveRow(ContentKind kind, QStringList& lines, const QString& row, Direction direction) {
    DropBlankLines(lines);
    const std::vector<qsizetype> places = PlacesOfRows(kind, lines);
    const auto found =
        std::ranges::find_if(places, [&](qsizetype place) { return RowOf(kind, lines[place]) == row; });
    if (found == places.end())
        return;
    const auto number = static_cast<int>(found - places.begin());
    Shift(lines, places, number, direction == Direction::Up ? number - 1 : number + 1);
}

void MoveRowTo(ContentKind kind, QStringList& lines, int from, int to) {
    DropBlankLines(lines);
    Shift(lines, PlacesOfRows(kind, lines), from, to);
}

void TickRow(ContentKind kind, QStringList& lines, const QString& row, bool ticked) {
    const auto found =
        std::ranges::find_if(lines, [&](const QString& line) { return RowOf(kind, line) == row; });
    if (found != lines.end())
        *found = WithoutFlag(*found) + (ticked ? SelectedFlag : UnselectedFlag);
}

bool ReplaceEntry(ContentKind kind, QStringList& lines, const ContentFields& fields,
                  const ContentFields& edited) {
    const QString wanted = IdentityOf(kind, edited);
    bool isFound = false;
    for (QString& line : lines)
        if (IdentityOf(kind, line) == wanted) {
            line = LineOf(kind, fields, FlagTextOf(line));
            isFound = true;
        }
    return isFound;
}

} // namespace qlm
