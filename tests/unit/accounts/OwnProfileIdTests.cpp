// SPDX-License-Identifier: MIT
#include "accounts/OwnProfileId.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

TEST(OwnProfileId, StandsInAScriptBehindKeyAndColon) {
    EXPECT_EQ(ValueBehindFirstKey(u"var me = {UserId: 12345, Name: 'x'}"_s, u"UserId"_s), u"12345"_s);
}

TEST(OwnProfileId, StandsInAScriptBehindAQuotedKey) {
    EXPECT_EQ(ValueBehindFirstKey(u"{\"UserId\":\"12345\",\"x\":1}"_s, u"UserId"_s), u"12345"_s);
}

TEST(OwnProfileId, IsLookedUpInAnyCase) {
    EXPECT_EQ(ValueBehindFirstKey(u"userid:77,"_s, u"UserId"_s), u"77"_s);
}

TEST(OwnProfileId, AKeyWithoutColonIsNoKey) {
    EXPECT_TRUE(ValueBehindFirstKey(u"UserId = 12345, x"_s, u"UserId"_s).isNull());
}

TEST(OwnProfileId, IsCutBehindTheFirstKeyOfTheScript) {
    EXPECT_EQ(ValueBehindFirstKey(u"UserIdKnown, UserId:5, x"_s, u"UserId"_s), u"Known"_s);
}

TEST(OwnProfileId, WithoutCommaReachesToTheEnd) {
    EXPECT_EQ(ValueBehindFirstKey(u"UserId:12345"_s, u"UserId"_s), u"12345"_s);
}

TEST(OwnProfileId, TheReportLinkEndsAtTheNextParameter) {
    EXPECT_EQ(ReportedUserId(u"<a href=\"/report?reportedUserId=987&amp;x=1\">"_s), u"987"_s);
    EXPECT_TRUE(ReportedUserId(u"<p>nothing</p>"_s).isEmpty());
}

TEST(OwnProfileId, ThePageNamesItWithoutQuotes) {
    EXPECT_EQ(UserIdInPage(u"<script>x = {userid:\"4321\", y: 2}</script>"_s), u"4321"_s);
    EXPECT_TRUE(UserIdInPage(u"<p>nothing</p>"_s).isEmpty());
}

} // namespace
} // namespace qlm
