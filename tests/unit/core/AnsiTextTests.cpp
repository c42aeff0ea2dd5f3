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
