// SPDX-License-Identifier: MIT
#include "SiteClient.h"

namespace qlm::practice {
namespace {

const QString commentsUrl = SiteClient::root + u"/100001/comments"_s;

QStringList Writers(const QString& page) {
    return Between(page, u"/pictures/"_s, u".svg"_s);
}

TEST(Comments, ThePageGrowsByPartsUntilEverybodyHasBeenShownOnce) {
    SiteClient client;
    client.Control(u"friends 100001 46"_s);
    QStringList seen = Writers(client.Text(commentsUrl));
    EXPECT_EQ(seen.size(), 20);
    seen += Writers(client.Text(commentsUrl + u"?from=20"_s));
    seen += Writers(client.Text(commentsUrl + u"?from=40"_s));
    EXPECT_EQ(seen.size(), 45) << "the founder writes to nobody";
    seen.removeDuplicates();
    EXPECT_EQ(seen.size(), 45);
}

TEST(Comments, TheMoreLinkHidesWhenThereIsNoMore) {
    SiteClient client;
    client.Control(u"friends 100001 46"_s);
    EXPECT_FALSE(client.Text(commentsUrl).contains(u"DISPLAY: none"_s));
    client.Control(u"friends 100001 11"_s);
    EXPECT_TRUE(client.Text(commentsUrl).contains(u"DISPLAY: none"_s));
}

TEST(Comments, OldFriendsAddressesLeadToTheList) {
    SiteClient client;
    const Response response = client.Get(
        u"http://friends.myspace.example.com/index.cfm?fuseaction=user.viewfriends&friendID=100001"_s);
    EXPECT_EQ(SiteClient::Header(response, u"Location"_s), SiteClient::root + u"/100001/friends"_s);
}

} // namespace
} // namespace qlm::practice
