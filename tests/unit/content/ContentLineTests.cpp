// SPDX-License-Identifier: MIT
#include "content/ContentLine.h"

#include <gtest/gtest.h>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

constexpr ContentKind AllKinds[] = {ContentKind::Message, ContentKind::Comment, ContentKind::Bulletin,
                                    ContentKind::Status};

TEST(ContentLine, HoldsTheFieldsOfItsKindInOrder) {
    const ContentFields fields{u"Hi"_s, u"Hello"_s, true, u"Plain"_s};
    EXPECT_EQ(LineOf(ContentKind::Message, fields, SelectedFlag), u"Hi&Message=Hello&Selected=1"_s);
    EXPECT_EQ(LineOf(ContentKind::Bulletin, fields, u"&Selected=0"_s), u"Hi&Bulletin=Hello&Selected=0"_s);
    EXPECT_EQ(LineOf(ContentKind::Comment, fields, SelectedFlag),
              u"Hello&usenonhtml=1&nonhtmlcomment=Plain&Selected=1"_s);
    EXPECT_EQ(LineOf(ContentKind::Comment, {{}, u"Hello"_s, false, {}}, SelectedFlag),
              u"Hello&usenonhtml=0&nonhtmlcomment=&Selected=1"_s);
    EXPECT_EQ(LineOf(ContentKind::Status, fields, SelectedFlag), u"Hello&Selected=1"_s);
}

TEST(ContentLine, EscapesLineBreaksAndSemicolons) {
    for (const ContentKind kind : AllKinds)
        EXPECT_EQ(EscapeField(kind, u"a;b\r\nc"_s), u"a%cln%b%nl%c"_s);
}

TEST(ContentLine, EscapesALoneLineFeedOfAllButMessages) {
    EXPECT_EQ(EscapeField(ContentKind::Message, u"a\nb"_s), u"a\nb"_s);
    for (const ContentKind kind : {ContentKind::Comment, ContentKind::Bulletin, ContentKind::Status})
        EXPECT_EQ(EscapeField(kind, u"a\nb"_s), u"a%nl%b"_s);
}

TEST(ContentLine, GivesBackWhatWasEscaped) {
    const QString text = u"one; two\r\n\r\nthree;;"_s;
    for (const ContentKind kind : AllKinds)
        EXPECT_EQ(UnescapeLine(EscapeField(kind, text)), text);
    EXPECT_EQ(UnescapeLine(EscapeField(ContentKind::Status, u"a\nb"_s)), u"a\r\nb"_s);
}

TEST(ContentLine, UndoesTheSemicolonBehindTheLineBreak) {
    EXPECT_EQ(UnescapeLine(u"%nl%cln%"_s), u"\r\ncln%"_s);
}

TEST(ContentLine, IsCutAtItsMarkersInAnyLetterCase) {
    const ContentFields message = FieldsOf(ContentKind::Message, u"Hi&MESSAGE=Hello&selected=0"_s);
    EXPECT_EQ(message.subject, u"Hi"_s);
    EXPECT_EQ(message.text, u"Hello"_s);
    const ContentFields bulletin = FieldsOf(ContentKind::Bulletin, u"Hi&bulletin=Hello&SELECTED=1"_s);
    EXPECT_EQ(bulletin.subject, u"Hi"_s);
    EXPECT_EQ(bulletin.text, u"Hello"_s);
    EXPECT_EQ(FieldsOf(ContentKind::Status, u"Hello&selected=1"_s).text, u"Hello"_s);
    const ContentFields comment =
        FieldsOf(ContentKind::Comment, u"Hello&UseNonHTML=1&NonHTMLComment=Plain&Selected=1"_s);
    EXPECT_EQ(comment.text, u"Hello"_s);
    EXPECT_TRUE(comment.usesNonHTML);
    EXPECT_EQ(comment.nonHTML, u"Plain"_s);
}

TEST(ContentLine, OnlyTheFigureOneUsesTheAlternative) {
    auto uses = [](const QString& flag) {
        return FieldsOf(ContentKind::Comment, u"A&usenonhtml="_s + flag + u"&nonhtmlcomment=B&Selected=1"_s)
            .usesNonHTML;
    };
    EXPECT_TRUE(uses(u"1"_s));
    EXPECT_FALSE(uses(u"0"_s));
    EXPECT_FALSE(uses(u"2"_s));
    EXPECT_FALSE(uses(u"True"_s));
}

TEST(ContentLine, AnEmptyAlternativeThatIsUsedIsLegal) {
    const ContentFields comment =
        FieldsOf(ContentKind::Comment, u"A&usenonhtml=1&nonhtmlcomment=&Selected=1"_s);
    EXPECT_TRUE(comment.usesNonHTML);
    EXPECT_EQ(comment.nonHTML, QString());
}

TEST(ContentLine, WithoutItsMarkerCannotBeCut) {
    EXPECT_THROW(FieldsOf(ContentKind::Message, u"Hello&Selected=1"_s), std::invalid_argument);
    EXPECT_THROW(FieldsOf(ContentKind::Bulletin, u"Hello&Selected=1"_s), std::invalid_argument);
    EXPECT_THROW(FieldsOf(ContentKind::Comment, u"Hello&Selected=1"_s), std::invalid_argument);
    EXPECT_THROW(FieldsOf(ContentKind::Status, u"Hello"_s), std::invalid_argument);
}

// No guard exists against a text that holds a marker itself.
TEST(ContentLine, ATextThatHoldsAMarkerBreaksIt) {
    const QString line = LineOf(ContentKind::Message, {u"Hi"_s, u"a&Selected=0b"_s, false, {}}, SelectedFlag);
    EXPECT_EQ(FieldsOf(ContentKind::Message, line).text, u"a"_s);
    EXPECT_EQ(FlagTextOf(line), u"&Selected=0b&Selected=1"_s);
}

TEST(ContentLine, WithoutAFlagCountsAsSelected) {
    EXPECT_EQ(FlagTextOf(u"Hi&Message=Hello"_s), u"&Selected=1"_s);
    EXPECT_EQ(FlagTextOf(u"Hi&Message=Hello&selected=0"_s), u"&selected=0"_s);
    EXPECT_EQ(WithoutFlag(u"Hi&Message=Hello&selected=0"_s), u"Hi&Message=Hello"_s);
    EXPECT_EQ(WithoutFlag(u"Hi&Message=Hello"_s), u"Hi&Message=Hello"_s);
}

} // namespace
} // namespace qlm
