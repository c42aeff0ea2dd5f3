// SPDX-License-Identifier: MIT
#include "content/ContentRows.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}

namespace qlm {
namespace {

QString Row(ContentKind kind, const QString& line) {
    return RowOf(kind, line).value_or(u"none"_s);
}

QStringList Swapped(QStringList lines, const QString& row, Direction direction) {
    MoveRow(ContentKind::Bulletin, lines, row, direction);
    return lines;
}

// Bulletins of one letter each.
QStringList Bulletins(const QString& letters) {
    QStringList lines;
    for (const QChar letter : letters)
        lines.append(letter + u"&Bulletin=text&Selected=1"_s);
    return lines;
}

QString Letters(const QStringList& lines) {
    QString letters;
    for (const QString& line : lines)
        letters += line.left(1);
    return letters;
}

} // namespace

TEST(ContentRows, ShowTheSubjectOrTheFirstLine) {
    EXPECT_EQ(Row(ContentKind::Message, u"a%cln%b%nl%c&message=x"_s), u"a%cln%b%nl%c"_s);
    EXPECT_EQ(Row(ContentKind::Bulletin, u"a&BULLETIN=x&Selected=0"_s), u"a"_s);
    EXPECT_EQ(Row(ContentKind::Comment, u"a%nl%b&UseNonHTML=0"_s), u"a"_s);
    EXPECT_EQ(Row(ContentKind::Status, u"a%nl%b&selected=1"_s), u"a"_s);
    // What begins with a line break would have no row to be known by.
    EXPECT_EQ(Row(ContentKind::Status, u"%nl%b&Selected=1"_s), u"%nl%b"_s);
    EXPECT_EQ(Row(ContentKind::Message, u"&Message=x"_s), QString());
}

TEST(ContentRows, ALineWithoutItsMarkerHasNone) {
    EXPECT_EQ(Row(ContentKind::Message, u"a&Bulletin=x&Selected=1"_s), u"none"_s);
    EXPECT_EQ(Row(ContentKind::Bulletin, u"a&Message=x&Selected=1"_s), u"none"_s);
    EXPECT_EQ(Row(ContentKind::Comment, u"a&Selected=1"_s), u"none"_s);
    EXPECT_EQ(Row(ContentKind::Status, u"a"_s), u"none"_s);
}

TEST(ContentRows, AreTickedUnlessTheFlagSaysOtherwise) {
    const FilledRows filled = RowsOf(ContentKind::Message, {u"a&Message=x&Selected=1"_s,
                                                            {},
                                                            u"  "_s,
                                                            u"b&Message=x"_s,
                                                            u"c&Message=x&Selected=0"_s,
                                                            u"d&Message=x&Selected="_s,
                                                            u"e&Message=x&Selected=1 "_s});
    ASSERT_EQ(filled.rows.size(), 5U);
    EXPECT_EQ(filled.brokenLine, 0);
    const bool ticked[] = {true, true, false, false, true};
    for (size_t i = 0; i < 5; ++i)
        EXPECT_EQ(filled.rows[i].ticked, ticked[i]) << i;
}

TEST(ContentRows, TellTheFirstBrokenLineAndShowTheRest) {
    const FilledRows filled =
        RowsOf(ContentKind::Bulletin, {u"a&Bulletin=x"_s, {}, u"torn&Bull"_s, u"torn"_s, u"b&Bulletin=x"_s});
    EXPECT_EQ(filled.rows.size(), 2U);
    EXPECT_EQ(filled.brokenLine, 3);
}

TEST(ContentRows, GiveBackTheirEntryWithItsEscapesUndone) {
    const auto message = DetailsOf(ContentKind::Message,
                                   {u"torn"_s, u"b&Message=x&Selected=1"_s,
                                    u"a&message=x%nl%y%cln%z&selected=0"_s, u"a&Message=later"_s},
                                   u"a"_s);
    ASSERT_TRUE(message.has_value());
    EXPECT_EQ(message->subject, u"a"_s);
    EXPECT_EQ(message->text, u"x\r\ny;z"_s);
    const auto comment =
        DetailsOf(ContentKind::Comment, {u"a%nl%b&usenonhtml=0&nonhtmlcomment=p%cln%&Selected=1"_s}, u"a"_s);
    ASSERT_TRUE(comment.has_value());
    EXPECT_EQ(comment->text, u"a\r\nb"_s);
    EXPECT_FALSE(comment->usesNonHTML);
    EXPECT_EQ(comment->nonHTML, u"p;"_s);
    const auto status = DetailsOf(ContentKind::Status, {u"a%nl%b&Selected=1"_s}, u"a"_s);
    ASSERT_TRUE(status.has_value());
    EXPECT_EQ(status->text, u"a\r\nb"_s);
}

// The row of such a subject is the whole of it, and what it is looked for is its first line.
TEST(ContentRows, ASubjectWithALineBreakHidesItsEntry) {
    const QStringList lines{u"a%nl%b&Bulletin=x&Selected=1"_s};
    EXPECT_FALSE(DetailsOf(ContentKind::Bulletin, lines, u"a%nl%b"_s).has_value());
}

TEST(ContentRows, OnlyAFlagOfOneMeansTheAlternative) {
    for (const auto& [flag, uses] :
         {std::pair{u"1"_s, true}, {u"0"_s, false}, {u"11"_s, false}, {u""_s, false}}) {
        const auto fields = DetailsOf(
            ContentKind::Comment, {u"a&usenonhtml="_s + flag + u"&nonhtmlcomment=b&Selected=1"_s}, u"a"_s);
        ASSERT_TRUE(fields.has_value());
        EXPECT_EQ(fields->usesNonHTML, uses) << flag.toStdString();
        EXPECT_EQ(fields->nonHTML, u"b"_s);
    }
}

TEST(ContentRows, OfOneNameAreRemovedTogetherAndComeBackWhereTheyStood) {
    const QStringList before{u"a&Bulletin=1"_s, u"b&Bulletin=2"_s, u"torn"_s, u"a&bulletin=3"_s};
    QStringList lines = before;
    const auto removed = RemoveRow(ContentKind::Bulletin, lines, u"a"_s);
    EXPECT_EQ(lines, (QStringList{u"b&Bulletin=2"_s, u"torn"_s}));
    RestoreLines(lines, removed);
    EXPECT_EQ(lines, before);
    QStringList shorter;
    RestoreLines(shorter, removed);
    EXPECT_EQ(shorter, (QStringList{u"a&Bulletin=1"_s, u"a&bulletin=3"_s}));
}

TEST(ContentRows, ChangePlacesWithTheirNeighbour) {
    EXPECT_EQ(Letters(Swapped(Bulletins(u"abc"_s), u"a"_s, Direction::Down)), u"bac"_s);
    EXPECT_EQ(Letters(Swapped(Bulletins(u"abc"_s), u"c"_s, Direction::Up)), u"acb"_s);
    EXPECT_EQ(Letters(Swapped(Bulletins(u"abc"_s), u"a"_s, Direction::Up)), u"abc"_s);
    EXPECT_EQ(Letters(Swapped(Bulletins(u"abc"_s), u"c"_s, Direction::Down)), u"abc"_s);
    EXPECT_EQ(Letters(Swapped(Bulletins(u"abc"_s), u"x"_s, Direction::Down)), u"abc"_s);
}

TEST(ContentRows, OfOneNameTheFirstMoves) {
    EXPECT_EQ(Letters(Swapped(Bulletins(u"xaya"_s), u"a"_s, Direction::Down)), u"xyaa"_s);
    EXPECT_EQ(Letters(Swapped(Bulletins(u"xaya"_s), u"a"_s, Direction::Up)), u"axya"_s);
}

TEST(ContentRows, AMoveDropsBlankLinesAndLeavesBrokenOnesInTheirPlace) {
    QStringList lines = Bulletins(u"ab"_s);
    lines.insert(1, u" "_s);
    lines.insert(1, u"torn"_s);
    EXPECT_EQ(Letters(Swapped(lines, u"a"_s, Direction::Down)), u"bta"_s);
    EXPECT_EQ(Letters(Swapped(lines, u"b"_s, Direction::Up)), u"bta"_s);
}

TEST(ContentRows, AreDraggedToAnyPlace) {
    for (const auto& [from, to, after] : {std::tuple{0, 3, u"bcda"_s},
                                          {3, 0, u"dabc"_s},
                                          {1, 2, u"acbd"_s},
                                          {2, 2, u"abcd"_s},
                                          {0, 4, u"abcd"_s},
                                          {-1, 0, u"abcd"_s}}) {
        QStringList lines = Bulletins(u"abcd"_s);
        MoveRowTo(ContentKind::Bulletin, lines, from, to);
        EXPECT_EQ(Letters(lines), after) << from << ' ' << to;
    }
}

TEST(ContentRows, ATickReplacesTheFlagOfTheFirstOfItsName) {
    QStringList lines{u"b&Bulletin=x"_s, u"a&Bulletin=x"_s, u"a&Bulletin=x&selected=0&more"_s};
    TickRow(ContentKind::Bulletin, lines, u"a"_s, false);
    EXPECT_EQ(lines[1], u"a&Bulletin=x&Selected=0"_s);
    TickRow(ContentKind::Bulletin, lines, u"a"_s, true);
    EXPECT_EQ(lines[1], u"a&Bulletin=x&Selected=1"_s);
    EXPECT_EQ(lines[0], u"b&Bulletin=x"_s);
    EXPECT_EQ(lines[2], u"a&Bulletin=x&selected=0&more"_s);
    TickRow(ContentKind::Bulletin, lines, u"c"_s, false);
    EXPECT_EQ(lines[1], u"a&Bulletin=x&Selected=1"_s);
}

// What was written by hand is found by what it says, however that is written.
TEST(ContentRows, AnEditFindsALineThatWasWrittenByHand) {
    QStringList lines{u"a&Message=x;y&Selected=0"_s, u"b&usenonhtml=2&nonhtmlcomment=p;&Selected=0"_s};
    const QStringList before = lines;
    EXPECT_TRUE(ReplaceEntry(ContentKind::Message, lines, {u"n"_s, u"new"_s, false, {}},
                             *DetailsOf(ContentKind::Message, before, u"a"_s)));
    EXPECT_EQ(lines[0], u"n&Message=new&Selected=0"_s);
    EXPECT_TRUE(ReplaceEntry(ContentKind::Comment, lines, {{}, u"new"_s, true, u"q"_s},
                             *DetailsOf(ContentKind::Comment, before, u"b"_s)));
    EXPECT_EQ(lines[1], u"new&usenonhtml=1&nonhtmlcomment=q&Selected=0"_s);
}

TEST(ContentRows, AnEditSaysWhenItFindsNothing) {
    QStringList lines{u"a&Message=x&Selected=0"_s};
    EXPECT_FALSE(ReplaceEntry(ContentKind::Message, lines, {u"n"_s, u"new"_s, false, {}},
                              {u"a"_s, u"y"_s, false, {}}));
    EXPECT_EQ(lines, QStringList{u"a&Message=x&Selected=0"_s});
}

} // namespace qlm
