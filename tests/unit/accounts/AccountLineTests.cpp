// SPDX-License-Identifier: MIT
#include "accounts/AccountFile.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

TEST(AccountLine, IsUpperCaseHexadecimalOfEachCharacter) {
    EXPECT_EQ(EncodeAccountLine(u"a@b;jk"_s), u"6140623B6A6B"_s);
}

TEST(AccountLine, PadsCodesBelowSixteen) {
    EXPECT_EQ(EncodeAccountLine(u"\t"_s), u"09"_s);
}

TEST(AccountLine, TakesTheCodePageOfTheFile) {
    EXPECT_EQ(EncodeAccountLine(u"é€"_s), u"E980"_s);
    EXPECT_EQ(EncodeAccountLine(u"☃"_s), u"3F"_s);
}

TEST(AccountLine, ComesBackAsItWas) {
    for (int code = 1; code < 256; ++code) {
        const QString digits = QString::number(code, 16).toUpper().rightJustified(2, u'0');
        EXPECT_EQ(EncodeAccountLine(DecodeAccountLine(digits)), digits);
    }
}

TEST(AccountLine, DecodesALoneLastDigitAsOneCharacter) {
    EXPECT_EQ(DecodeAccountLine(u"41429"_s), u"AB\t"_s);
}

TEST(AccountLine, DecodesLowerCaseDigitsToo) {
    EXPECT_EQ(DecodeAccountLine(u"6a6B"_s), u"jk"_s);
}

TEST(AccountLine, DecodesOtherTextToGarbageOfHalfTheLength) {
    EXPECT_EQ(DecodeAccountLine(u"hello!"_s).size(), 3);
}

TEST(AccountLine, EmptyStaysEmpty) {
    EXPECT_TRUE(EncodeAccountLine({}).isEmpty());
    EXPECT_TRUE(DecodeAccountLine({}).isEmpty());
}

} // namespace
} // namespace qlm
