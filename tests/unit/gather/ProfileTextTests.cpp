// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "gather/ProfileText.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

TEST(ProfileAge, IsReadFromTheFirstPlaceThatGivesANumber) {
    EXPECT_EQ(GetProfileAge({}, u"x &quot;Age: 31&quot;, y"_s), u"31"_s);
    EXPECT_EQ(GetProfileAge({}, u"x \"Age: 32, Town\""_s), u"32"_s);
    EXPECT_EQ(GetProfileAge({}, u"<span class=\"age\">33</span>"_s), u"33"_s);
    EXPECT_EQ(GetProfileAge({}, u"<SPAN class=age>34</SPAN>"_s), u"34"_s);
    EXPECT_EQ(GetProfileAge(u"Male\n35 years old\nTown"_s, {}), u"35"_s);
    EXPECT_EQ(GetProfileAge(u"36 years old"_s, u"<span class=\"age\">unknown</span>"_s), u"36"_s);
}

TEST(ProfileAge, ANonNumberIsGivenAsItIs) {
    EXPECT_EQ(GetProfileAge(u"xx years old"_s, {}), u"xx"_s);
    EXPECT_EQ(GetProfileAge({}, {}), QString());
}

TEST(BasicInfoBlock, OfANewLayout) {
    EXPECT_EQ(GetBasicInfoBlock(u"a UserBasicInformation x<br>y<br>Town, UK<br>Profile Views: 3"_s, true),
              u"<br>Town, UK<br>"_s);
}

TEST(BasicInfoBlock, OfAClassicProfile) {
    const QString block = GetBasicInfoBlock(
        u"<div class=profileInfo>xxxxxxxxxx<br>Female<br>27 years<br>Leeds<br>Last Login: 1/1/2009"_s, false);
    EXPECT_TRUE(block.contains(u"Leeds"_s)) << block.toStdString();
    EXPECT_FALSE(block.contains(u"Last Login"_s));
}

TEST(BasicInfoBlock, OfAProfileWithoutGender) {
    EXPECT_EQ(GetBasicInfoBlock(u"<i id=profileDemographics>Film<br>Leeds<br>last login"_s, false),
              u">Film<br>Leeds<br>"_s);
    EXPECT_EQ(
        GetBasicInfoBlock(u"<i id=profileDemographics>Film<br>Leeds<p id=profileDemographicsEnd>"_s, false),
        u">Film<br>Leeds<p id="_s);
}

TEST(BasicInfoBlock, FallsBackToTheGenderList) {
    EXPECT_EQ(GetBasicInfoBlock(u"<ul><li>gender: x<li>Leeds</ul>"_s, false), u"gender: x<li>Leeds<"_s);
    EXPECT_EQ(GetBasicInfoBlock(u"UserBasicInformation <br><br>never ends, gender Leeds</ul>"_s, true),
              u"gender Leeds<"_s);
    EXPECT_EQ(GetBasicInfoBlock(u"nothing"_s, true), QString());
}

TEST(Places, OneOfThemIsEnoughInAnyLetterCase) {
    EXPECT_TRUE(HoldsOnePlace(u"<br>LEEDS, Yorkshire"_s, u"York Town, leeds"_s));
    EXPECT_FALSE(HoldsOnePlace(u"<br>Hull"_s, u"York Town, leeds, ,"_s));
    EXPECT_FALSE(HoldsOnePlace({}, u"leeds"_s));
}

TEST(Gender, IsReadInEachLayoutsWay) {
    EXPECT_TRUE(SaysMale({}, u"<b>Male</b>"_s));
    EXPECT_TRUE(SaysMale(u"x\n Male"_s, {}));
    EXPECT_TRUE(SaysMale({}, u"gender&quot;:&quot;Male"_s));
    EXPECT_TRUE(SaysMale({}, u"\"gender\":\"Male\""_s));
    EXPECT_FALSE(SaysMale({}, u"<b>Female</b>"_s));
    EXPECT_TRUE(SaysFemale({}, u"<b>Female</b>"_s));
    EXPECT_TRUE(SaysFemale(u"x\nFemale"_s, {}));
    EXPECT_TRUE(SaysFemale({}, u"\"gender\":\"Female\""_s));
    EXPECT_FALSE(SaysFemale(u"x\nMale"_s, u"<b>Male</b>"_s));
}

TEST(Gender, AFemaleLineThatBeginsWithABlankCountsForMenToo) {
    EXPECT_TRUE(SaysMale(u"x\n Female"_s, {}));
    EXPECT_FALSE(SaysMale(u"x\nFemale"_s, {}));
}

TEST(Online, TheMarkStandsInFrontOfTheLastLogin) {
    const QString filler(200, u'x');
    EXPECT_TRUE(SaysOnline(filler + u"<span class=userOnline></span>Last Login: 1/1/2009<a>"_s));
    EXPECT_FALSE(SaysOnline(filler + u"userOnline"_s + filler + u"Last Login: 1/1/2009"_s));
    EXPECT_FALSE(SaysOnline(filler + u"<a>userOnline Last Login: 1/1/2009"_s));
    EXPECT_FALSE(SaysOnline(u"userOnline Last Login: 1/1/2009"_s));
    // At the twelfth character the slice may begin, before it not.
    const QString mark = u"userOnline"_s + QString(140, u'x') + u"Last Login:"_s;
    EXPECT_TRUE(SaysOnline(QString(11, u'x') + mark));
    EXPECT_FALSE(SaysOnline(QString(10, u'x') + mark));
    EXPECT_FALSE(SaysOnline(filler + u"nothing of both"_s));
}

TEST(LastLogin, IsCutOutOfTheMarkup) {
    EXPECT_EQ(LastLoginText(u"Last Login: 3/4/2011<br>"_s), u"3/4/2011"_s);
    EXPECT_EQ(LastLoginText(u"Last Login:<span class=x>\r\n\t3/4/2011&nbsp;</span>"_s), u"3/4/2011"_s);
    EXPECT_EQ(LastLoginText(u"last login:</span> <LI>3/4/2011</LI>"_s), QString());
    EXPECT_EQ(LastLoginText(u"nothing"_s), QString());
}

TEST(LastLogin, AMarkBeginsNearByAndADateEndsNearBy) {
    EXPECT_EQ(LastLoginText(u"Last Login:12345<b>6/1/2009</b>"_s), u"6/1/2009"_s);
    EXPECT_EQ(LastLoginText(u"Last Login:123456<b>6/1/2009</b>"_s), u"123456"_s);
    const QString hundred(100, u'x');
    EXPECT_EQ(LastLoginText(u"Last Login:"_s + hundred + u"<b>y</b><span>"_s), hundred);
    EXPECT_EQ(LastLoginText(u"Last Login:x"_s + hundred + u"<b>y</b> <LI>&nbsp;<SPAN>"_s),
              u'x' + hundred + u"<b>y</b>"_s);
}

TEST(LastLogin, AYearOfTwoDigitsIsOfThisCentury) {
    EXPECT_TRUE(LastLoginWithin(u"6/1/09"_s, QDate(2009, 6, 3), 2));
    EXPECT_FALSE(LastLoginWithin(u"6/1/08"_s, QDate(2009, 6, 3), 2));
}

TEST(LastLogin, PassesInEitherOrderOfDayAndMonth) {
    const QDate today(2011, 4, 5);
    EXPECT_TRUE(LastLoginWithin(u"3/4/2011"_s, today, 2));   // the third of April
    EXPECT_TRUE(LastLoginWithin(u"4/3/2011"_s, today, 2));   // April the third
    EXPECT_FALSE(LastLoginWithin(u"2/3/2011"_s, today, 30)); // 2 March or 3 February
    EXPECT_TRUE(LastLoginWithin(u"2/3/2011"_s, today, 34));
    EXPECT_TRUE(LastLoginWithin(u"25/3/2011"_s, today, 11));
    EXPECT_FALSE(LastLoginWithin(u"25/3/2011"_s, today, 10));
}

TEST(LastLogin, TheLimitIsInclusive) {
    EXPECT_TRUE(LastLoginWithin(u"4/13/2011"_s, QDate(2011, 4, 20), 7));
    EXPECT_FALSE(LastLoginWithin(u"4/13/2011"_s, QDate(2011, 4, 21), 7));
}

TEST(LastLogin, WhatIsNoDateFails) {
    EXPECT_FALSE(LastLoginWithin(u"yesterday"_s, QDate(2011, 4, 5), 400));
    EXPECT_FALSE(LastLoginWithin({}, QDate(2011, 4, 5), 400));
    EXPECT_FALSE(LastLoginWithin(u"30/30/2011"_s, QDate(2011, 4, 5), 400));
}

} // namespace
} // namespace qlm
