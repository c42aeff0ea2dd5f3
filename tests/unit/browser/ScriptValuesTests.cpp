// SPDX-License-Identifier: MIT
#include "browser/ScriptValues.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

TEST(ScriptValues, StandsInAScriptBehindKeyAndColon) {
    EXPECT_EQ(ValueBehindFirstKey(u"var me = {UserId: 12345, Name: 'x'}"_s, u"UserId"_s), u"12345"_s);
}

TEST(ScriptValues, StandsInAScriptBehindAQuotedKey) {
    EXPECT_EQ(ValueBehindFirstKey(u"{\"UserId\":\"12345\",\"x\":1}"_s, u"UserId"_s), u"12345"_s);
}

TEST(ScriptValues, IsLookedUpInAnyCase) {
    EXPECT_EQ(ValueBehindFirstKey(u"userid:77,"_s, u"UserId"_s), u"77"_s);
}

TEST(ScriptValues, AKeyWithoutColonIsNoKey) {
    EXPECT_TRUE(ValueBehindFirstKey(u"UserId = 12345, x"_s, u"UserId"_s).isNull());
}

TEST(ScriptValues, IsCutBehindTheFirstKeyOfTheScript) {
    EXPECT_EQ(ValueBehindFirstKey(u"UserIdKnown, UserId:5, x"_s, u"UserId"_s), u"Known"_s);
}

TEST(ScriptValues, WithoutCommaReachesToTheEnd) {
    EXPECT_EQ(ValueBehindFirstKey(u"UserId:12345"_s, u"UserId"_s), u"12345"_s);
}

TEST(ScriptValues, TheReportLinkEndsAtTheNextParameter) {
    EXPECT_EQ(ReportedUserId(u"<a href=\"/report?reportedUserId=987&amp;x=1\">"_s), u"987"_s);
    EXPECT_TRUE(ReportedUserId(u"<p>nothing</p>"_s).isEmpty());
}

TEST(ScriptValues, ThePageNamesItWithoutQuotes) {
    EXPECT_EQ(UserIdInPage(u"<script>x = {userid:\"4321\", y: 2}</script>"_s), u"4321"_s);
    EXPECT_TRUE(UserIdInPage(u"<p>nothing</p>"_s).isEmpty());
}

} // namespace
} // namespace qlm
