// SPDX-License-Identifier: MIT
#include "core/PasswordMask.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}

namespace qlm {
namespace {

QString Masked(const QString& password, const QString& text) {
    PasswordMask mask;
    mask.Learn(password);
    return mask.Masked(text);
}

TEST(PasswordMask, HidesALearnedPasswordWhereItIsAWholeValue) {
    EXPECT_EQ(Masked(u"Tr0ub4dor"_s, u"<input value=\"Tr0ub4dor\">xTr0ub4dory, Tr0ub4dor."_s),
              u"<input value=\"****\">xTr0ub4dory, ****."_s);
    EXPECT_EQ(
        Masked(u"word"_s, u"a='word' b=word c=\"words\" {\"p\":\"word\"} &quot;word&quot; \\\"word\\\""_s),
        u"a='****' b=**** c=\"words\" {\"p\":\"****\"} &quot;****&quot; \\\"****\\\""_s);
    EXPECT_EQ(Masked(u"word"_s, u"<textarea>word</textarea><b>word</b>"_s),
              u"<textarea>****</textarea><b>word</b>"_s);
    EXPECT_EQ(Masked(u"word"_s, u"http://x/?a=word&b=word#c http://x/?a=word"_s),
              u"http://x/?a=****&b=****#c http://x/?a=****"_s);
}

// What is missing would tell what it was.
TEST(PasswordMask, LeavesAWordThatIsAPartOfSomethingElse) {
    for (const QString& line :
         {u"checking: ... Found = True"_s, u"URL: http://www.myspace.example.com/?a=user.viewfriends"_s,
          u"<a class=\"my word\" href=\"/word/x\">a word of it</a>"_s})
        for (const QString& password :
             {u"checking"_s, u"Found"_s, u"myspace"_s, u"viewfriends"_s, u"word"_s, u"http"_s})
            EXPECT_EQ(Masked(password, line), line) << password.toStdString();
}

TEST(PasswordMask, KeepsTextThatHoldsNoPassword) {
    const QString text = u"URL: http://x.example.com/?a=1&b=2, checking... - Link, signout"_s;
    EXPECT_EQ(Masked(u"Tr0ub4dor"_s, text), text);
    EXPECT_EQ(PasswordMask().Masked(text), text);
    EXPECT_EQ(Masked({}, text), text);
}

TEST(PasswordMask, TheLetterCaseOfAPasswordCounts) {
    EXPECT_EQ(Masked(u"Tr0ub4dor"_s, u"tr0ub4dor"_s), u"tr0ub4dor"_s);
}

struct Writing {
    const char16_t* password;
    const char16_t* written;
};

class PasswordWriting : public testing::TestWithParam<Writing> {};

TEST_P(PasswordWriting, IsHidden) {
    const QString written = QString::fromUtf16(GetParam().written);
    EXPECT_EQ(Masked(QString::fromUtf16(GetParam().password), u"=\""_s + written + u"\">"_s), u"=\"****\">"_s)
        << written.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Writings, PasswordWriting,
    testing::Values(Writing{u"a b&c/d", u"a+b%26c%2Fd"}, Writing{u"a b&c/d", u"a%20b%26c%2fd"},
                    Writing{u"a b&c/d", u"a%2520b%2526c%252Fd"}, Writing{u"abcdef", u"%61%62%63%64%65%66"},
                    Writing{u"gr\u00fc\u00dfe!", u"gr%C3%BC%C3%9Fe!"},
                    Writing{u"gr\u00fc\u00dfe!", u"gr%FC%DFe%21"},
                    Writing{u"gr\u00fc\u00dfe!", u"gr\\u00fc\\xDFe!"},
                    Writing{u"a<b>'\"&", u"a&lt;b&gt;&#39;&quot;&amp;"},
                    Writing{u"a<b>'\"&", u"a&#x3C;b&#62;&apos;&#34;&amp;"},
                    Writing{u"a'b\"cd", u"a\\'b\\\"cd"}, Writing{u"one.*two(", u"one.*two("},
                    Writing{u"\U0001F511key", u"%F0%9F%94%91key"}));

TEST(PasswordMask, AnAddressInsideAnAddressIsOneToo) {
    EXPECT_EQ(Masked(u"word"_s, u"next=%3Fa%3Dword%26b%3Dwords"_s), u"next=%3Fa%3D****%26b%3Dwords"_s);
}

TEST(PasswordMask, RemembersEveryPasswordTheLongestFirst) {
    PasswordMask mask;
    mask.Learn(u"secret"_s);
    mask.Learn(u"secret-too"_s);
    EXPECT_EQ(mask.Masked(u"a=secret&b=secret-too&c=\"secret\""_s), u"a=****&b=****&c=\"****\""_s);
}

TEST(PasswordMask, AnAddressHidesWhatItGivesForAPasswordNobodyKnows) {
    const PasswordMask mask;
    EXPECT_EQ(
        mask.Masked(u"GET http://x.example.com/in?email=a%40b&ctl00%24Password_Textbox=hun+ter2&x=1#p"_s),
        u"GET http://x.example.com/in?email=a%40b&ctl00%24Password_Textbox=****&x=1#p"_s);
    EXPECT_EQ(mask.Masked(u"\"/in?pwd=hunter2\""_s), u"\"/in?pwd=****\""_s);
    EXPECT_EQ(mask.Masked(u"?fuseaction=user.retrievepassword&x=1"_s),
              u"?fuseaction=user.retrievepassword&x=1"_s);
}

TEST(PasswordMask, AnAddressIsShownButForTheValueOfALoginFormsField) {
    PasswordMask mask;
    mask.Learn(u"my space"_s, u"ctl00$Main$word"_s);
    const QString other = u"http://www.myspace.example.com/in?p=my+space&q=1"_s;
    EXPECT_EQ(mask.MaskedAddress(other), other);
    EXPECT_EQ(mask.MaskedAddress(u"http://x/in?ctl00%24Main%24word=my+space&x=my%20space#my space"_s),
              u"http://x/in?ctl00%24Main%24word=****&x=my%20space#my space"_s);
    EXPECT_EQ(mask.MaskedAddress(u"http://x/in?ctl00%24Main%24word=2"_s),
              u"http://x/in?ctl00%24Main%24word=2"_s);
    EXPECT_EQ(mask.MaskedAddress(u"http://x/in?a=1&Password=what+ever&b=2"_s),
              u"http://x/in?a=1&Password=****&b=2"_s);
    EXPECT_EQ(mask.MaskedAddress(u"about:blank"_s), u"about:blank"_s);
}

} // namespace
} // namespace qlm
