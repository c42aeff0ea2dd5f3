// SPDX-License-Identifier: MIT
#include "browser/PageSigns.h"
#include "core/Diagnostics.h"
#include "core/ProductServer.h"
#include "core/Text.h"

#include <gtest/gtest.h>

using namespace qlm;
using namespace Qt::Literals::StringLiterals;

TEST(Text, NumbersAreRecognisedAsAPersonWouldWriteThem) {
    for (const QString& number : {u"5"_s, u" 12 "_s, u"-3"_s, u"+4"_s, u"1.5"_s, u".5"_s, u"7."_s})
        EXPECT_TRUE(IsNumeric(number)) << number.toStdString();
    for (const QString& other : {u""_s, u" "_s, u"12a"_s, u"1 2"_s, u"."_s, u"--1"_s, u"１"_s})
        EXPECT_FALSE(IsNumeric(other)) << other.toStdString();
}

TEST(Text, ConversionRoundsHalfToEvenAndKnowsItsBounds) {
    EXPECT_EQ(ToLong(u"2.5"_s), 2);
    EXPECT_EQ(ToLong(u"3.5"_s), 4);
    EXPECT_EQ(ToLong(u"2147483647"_s), 2147483647);
    EXPECT_EQ(ToLong(u"2147483648"_s), std::nullopt);
    EXPECT_EQ(ToLong(u"abc"_s), std::nullopt);
}

TEST(Text, AStoredTextThatIsNoBooleanIsTrue) {
    EXPECT_TRUE(ToBoolean(u"True"_s));
    EXPECT_FALSE(ToBoolean(u"False"_s));
    EXPECT_FALSE(ToBoolean(u"0"_s));
    EXPECT_TRUE(ToBoolean(u"-1"_s));
    EXPECT_TRUE(ToBoolean(u"nonsense"_s));
}

TEST(Text, QueryValuesEndAtTheNextAmpersand) {
    EXPECT_EQ(GetQueryStringValue(u"http://a/b?friendID=12&x=y"_s, u"friendid"_s), u"12"_s);
    EXPECT_EQ(GetQueryStringValue(u"http://a/b?x=y"_s, u"z"_s), QString());
    EXPECT_EQ(GetQueryStringValue(u"http://a/b?friendid=1&myid=2&id=3"_s, u"id"_s), u"3"_s);
    EXPECT_EQ(GetQueryStringValue(u"http://a/id=4"_s, u"id"_s), QString());
    // A key that ends like another is another.
    EXPECT_EQ(GetQueryStringValue(u"http://a/b?oldfriendID=1&friendID=2"_s, u"friendid"_s), u"2"_s);
    EXPECT_EQ(GetQueryStringValue(u"http://a/b?oldfriendID=1"_s, u"friendid"_s), QString());
}

TEST(Text, EndsOfTexts) {
    EXPECT_EQ(GetNumberFromEnd(u"page/12"_s), u"12"_s);
    EXPECT_EQ(GetNumberFromEnd(u"page"_s), QString());
    EXPECT_EQ(GetStringFromEnd(u"a/b/c"_s, u"/"_s), u"c"_s);
    EXPECT_EQ(GetHTMLTagValue(u"<p>x</p><Title lang=en>Home</title>"_s, u"title"_s), u"Home"_s);
    EXPECT_EQ(CleanupFileName(u"a/b:c*?.txt"_s), u"abc.txt"_s);
    EXPECT_EQ(LeadingZero(7), u"07"_s);
    EXPECT_EQ(LeadingZero(123), u"123"_s);
}

TEST(Text, AddressesAreEncodedWithCapitalDigits) {
    EXPECT_EQ(UrlEncode(u"a b&é/9"_s), u"a+b%26%E9%2F9"_s);
    EXPECT_EQ(UrlEncode(u"€\nж😀"_s), u"%80%0A%3F%3F"_s);
}

TEST(Text, DatesAreReadAsTheProgramAndAsTheServerWriteThem) {
    EXPECT_EQ(ParseDate(u"2009-06-01"_s), QDate(2009, 6, 1));
    EXPECT_EQ(ParseDate(u"6/1/2009"_s), QDate(2009, 6, 1));
    EXPECT_EQ(ParseDate(u" 6/1/2009 10:15:00 AM\n"_s), QDate(2009, 6, 1));
    EXPECT_EQ(ParseDate(u"2009-06-01T10:00"_s), QDate(2009, 6, 1));
    for (const QString& other : {u""_s, u"today"_s, u"13/40/2009"_s, u"2009-02-30"_s})
        EXPECT_EQ(ParseDate(other), std::nullopt) << other.toStdString();
}

TEST(Text, OccurrencesStepOneCharacterPastEachFind) {
    EXPECT_EQ(CountOccurrences(u"Age: age: AGE:"_s, u"age:"_s), 3);
    EXPECT_EQ(CountOccurrences(u"aaaa"_s, u"aa"_s), 3);
    EXPECT_EQ(CountOccurrences(u"aaaa"_s, u""_s), 0);
}

TEST(Diagnostics, TrailLinesKeepPrintableSignsAlone) {
    EXPECT_EQ(Diagnostics::CleanText(u"FR 11 - \x01\x7F"
                                     "é ok [x]{y}~`"_s),
              u"FR 11 -  ok [x]{y}~`"_s);
}

TEST(Text, HexadecimalNeedsItsPrefix) {
    EXPECT_EQ(FromHexadecimal(u"&H1f"_s), 31);
    EXPECT_EQ(FromHexadecimal(u"&hFF"_s), 255);
    for (const QString& other : {u"1F"_s, u"&H"_s, u"&HG"_s, u"&H-1"_s, u"&H 1"_s, u"0x1F"_s, QString()})
        EXPECT_EQ(FromHexadecimal(other), std::nullopt) << other.toStdString();
}

TEST(Text, Base36GoesToZ) {
    EXPECT_EQ(ToBase36(35), u"z"_s);
    EXPECT_EQ(ToBase36(36), u"10"_s);
    EXPECT_EQ(ToBase36(-46655), u"-zzz"_s);
    EXPECT_EQ(FromBase36(u"zzz"_s), 46655);
    EXPECT_EQ(FromBase36(u"Z"_s), 35);
    EXPECT_EQ(FromBase36(u"a!"_s), std::nullopt);
    EXPECT_EQ(FromBase36({}), std::nullopt);
}
