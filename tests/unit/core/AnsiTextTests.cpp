// SPDX-License-Identifier: MIT
#include "core/AnsiText.h"

#include <gtest/gtest.h>

using namespace qlm;
using namespace Qt::Literals::StringLiterals;

TEST(AnsiText, EveryByteSurvivesTheWayThereAndBack) {
    QByteArray all;
    for (int code = 0; code < 256; ++code)
        all.append(static_cast<char>(code));
    EXPECT_EQ(ToAnsi(FromAnsi(all)), all);
}

TEST(AnsiText, TypographicCharactersHaveTheirOwnCodes) {
    EXPECT_EQ(ToAnsi(u"€’™ÿ"_s), QByteArray("\x80\x92\x99\xFF"));
    EXPECT_EQ(FromAnsi("\x93quoted\x94"), u"“quoted”"_s);
}

TEST(AnsiText, WhatTheCodePageLacksBecomesOneQuestionMark) {
    EXPECT_EQ(ToAnsi(u"a日b"_s), QByteArray("a?b"));
    EXPECT_EQ(ToAnsi(u"a😀b"_s), QByteArray("a?b"));
}

TEST(AnsiText, WhatFitsIsWhatComesBack) {
    EXPECT_TRUE(FitsAnsi(u"na\u00efve \u20ac \u2122"_s));
    for (const QString& text : {u"\u043f"_s, u"a\u65e5b"_s, u"\U0001F600"_s, u"\u0080"_s})
        EXPECT_FALSE(FitsAnsi(text)) << text.toStdString();
}

TEST(AnsiText, ATextsMarkAndItsLineEndsAreUnderstood) {
    const QStringList lines{u"\u00e9"_s, QString(), u"b"_s};
    EXPECT_EQ(LinesOfText("\xE9\r\n\r\nb\r\n"), lines);
    EXPECT_EQ(LinesOfText("\xE9\n\nb"), lines);
    EXPECT_EQ(LinesOfText("\xE9\r\rb\r"), lines);
    EXPECT_EQ(LinesOfText("\xEF\xBB\xBF\xC3\xA9\n\nb\n"), lines);
    EXPECT_EQ(LinesOfText(QByteArray("\xFF\xFE\xE9\0\n\0\n\0b\0", 10)), lines);
    EXPECT_EQ(LinesOfText(QByteArray("\xFE\xFF\0\xE9\0\r\0\n\0\r\0\n\0b", 14)), lines);
    EXPECT_EQ(LinesOfText(""), QStringList());
    EXPECT_EQ(LinesOfText("\n"), QStringList{QString()});
}
