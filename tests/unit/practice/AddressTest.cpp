// SPDX-License-Identifier: MIT
#include "SiteClient.h"
#include "practice/Chance.h"
#include "practice/Html.h"
#include "practice/SiteHosts.h"

#include <QSet>

namespace qlm::practice {
namespace {

TEST(Address, TakesPathAndQueryApart) {
    const Address address = ParseAddress(u"/a/b%20c//d?fuseaction=user.viewProfile&FriendID=12+3%26"_s);
    EXPECT_EQ(address.segments, (QStringList{u"a"_s, u"b c"_s, u"d"_s}));
    EXPECT_EQ(address.query.value(u"fuseaction"_s), u"user.viewProfile"_s);
    EXPECT_EQ(address.query.value(u"friendid"_s), u"12 3&"_s);
}

TEST(Address, FindsACookieAmongOthers) {
    EXPECT_EQ(CookieValue(u"a=1; SESSION=x=y; b=2"_s, u"SESSION"_s), u"x=y"_s);
    EXPECT_EQ(CookieValue(u"XSESSION=1"_s, u"SESSION"_s), QString());
}

TEST(Address, HostsAreKnownInAnyLetterCaseAndWithAPort) {
    EXPECT_EQ(RoleOf(u"WWW.MySpace.Example.com:8080"_s), Role::SiteRoot);
    EXPECT_EQ(RoleOf(u"product2.myspace.example.com"_s), Role::ProductAlternate);
    EXPECT_EQ(RoleOf(u"myspace.example.com.evil.org"_s), std::nullopt);
    EXPECT_EQ(Url(Role::Video, u"/x"_s), u"http://vids.myspace.example.com/x"_s);
}

TEST(Html, EscapesEverythingThatCouldEndATextOrAnAttribute) {
    EXPECT_EQ(Escape(u"<a href='x'>\"&\""_s), u"&lt;a href=&#39;x&#39;&gt;&quot;&amp;&quot;"_s);
}

TEST(Html, FillsPlaceholdersEscapedUnlessMarkedAsMarkup) {
    EXPECT_EQ(Fill(u"<p>{a}{!a}{b}</p>", {{u"a", u"<i>"_s}, {u"b", u"{a}"_s}}), u"<p>&lt;i&gt;<i>{a}</p>"_s);
}

TEST(Html, APlaceholderWithoutAValueIsAnError) {
    EXPECT_THROW(Fill(u"{missing}", {}), std::logic_error);
    EXPECT_THROW(Fill(u"{open", {{u"open", {}}}), std::logic_error);
}

TEST(Chance, AShuffleMeetsEveryNumberOnce) {
    const Shuffle shuffle(42, 5000);
    QSet<int> met;
    for (int place = 0; place < 5000; ++place) {
        const int at = shuffle.At(place);
        ASSERT_GE(at, 0);
        ASSERT_LT(at, 5000);
        met.insert(at);
    }
    EXPECT_EQ(met.size(), 5000);
}

} // namespace
} // namespace qlm::practice
