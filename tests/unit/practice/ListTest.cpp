// SPDX-License-Identifier: MIT
#include "SiteClient.h"

#include <QSet>

namespace qlm::practice {
namespace {

const QString friendsUrl = SiteClient::root + u"/900001/friends"_s;

// The address of the living "next page" link, or "" on the last page.
QString NextPage(const QString& page) {
    for (const QString& link : Between(page, u"<a "_s, u"</a>"_s))
        if (link.contains(u"title=\"next page\""_s) && !link.contains(u"disabled"_s))
            return FirstBetween(link, u"href=\""_s, u"\""_s);
    return {};
}

QStringList Blocks(const QString& page) {
    return Between(page, u"<div class=\"miniProfile\">"_s, u"</div>\n</div>"_s);
}

// Whose block it is: the picture's number.
QString Whose(const QString& block) {
    return FirstBetween(block, u"/pictures/"_s, u".svg"_s);
}

TEST(FriendsList, ShowsEverybodyOnceOverItsPages) {
    SiteClient client;
    client.Control(u"friends 900001 212"_s);
    QStringList seen;
    int pages = 0;
    for (QString url = friendsUrl; !url.isEmpty(); ++pages) {
        const QString page = client.Text(url);
        EXPECT_TRUE(
            Holds(page, u"Listing %1-%2 of 212"_s.arg(pages * 40 + 1).arg(std::min(212, pages * 40 + 40))));
        EXPECT_TRUE(Holds(page, u"/page/"_s));
        for (const QString& block : Blocks(page))
            seen.append(Whose(block));
        url = NextPage(page);
        EXPECT_EQ(url, pages == 5 ? QString() : friendsUrl + u"/page/%1"_s.arg(pages + 2));
    }
    EXPECT_EQ(pages, 6);
    EXPECT_EQ(seen.size(), 212);
    EXPECT_EQ(QSet<QString>(seen.begin(), seen.end()).size(), 212);
    EXPECT_EQ(seen.first(), u"6221"_s);
}

TEST(FriendsList, ALongListInTheCrowdLeavesItsOwnerOut) {
    SiteClient client;
    client.Control(u"friends 100010 4900"_s);
    QSet<QString> seen;
    for (QString url = SiteClient::root + u"/100010/friends"_s; !url.isEmpty();) {
        const QString page = client.Text(url);
        for (const QString& block : Blocks(page))
            seen.insert(Whose(block));
        url = NextPage(page);
    }
    EXPECT_EQ(seen.size(), 4900);
    EXPECT_FALSE(seen.contains(u"100010"_s));
}

TEST(FriendsList, NamesItsOwnerAndCarriesTheWordsItIsKnownBy) {
    SiteClient client;
    const QString page = client.Text(friendsUrl);
    EXPECT_TRUE(Holds(page, u"\"DisplayFriendId\":900001,"_s));
    EXPECT_TRUE(Holds(page, u"you can search for display name"_s));
    EXPECT_TRUE(Holds(page, u"display:"_s));
    EXPECT_TRUE(Holds(page, u"view all friends"_s));
    EXPECT_TRUE(Holds(page, u" : friends ("_s));
}

TEST(FriendsList, EveryFriendIsLinkedTwiceInASmallBlock) {
    SiteClient client;
    int vanities = 0;
    for (const QString& block : Blocks(client.Text(friendsUrl))) {
        const QStringList links = Between(block, u"<a href=\""_s, u"\""_s);
        ASSERT_GE(links.size(), 2);
        EXPECT_EQ(links[0], links[1]);
        EXPECT_LT(block.size(), 2000);
        EXPECT_TRUE(Holds(block, u"Send Message"_s));
        const bool numeric = links[0] == SiteClient::root + u"/"_s + Whose(block);
        vanities += numeric ? 0 : 1;
        // Only whoever is listed by number may be given away by the message link.
        EXPECT_EQ(block.contains(u"?t="_s), numeric) << block.toStdString();
    }
    EXPECT_GT(vanities, 1);
}

TEST(FriendsList, TheFounderLeadsUnderTheVanityAddress) {
    SiteClient client;
    const QString block = Blocks(client.Text(friendsUrl)).value(0);
    EXPECT_TRUE(Holds(block, u"<a href=\"http://www.myspace.example.com/tam\">Tam</a>"_s));
}

TEST(FriendsList, OnTheLastPageNextIsThereButDead) {
    SiteClient client;
    client.Control(u"friends 900001 41"_s);
    const QString page = client.Text(friendsUrl + u"/page/2"_s);
    const QString next = Between(page, u"<a "_s, u"</a>"_s).filter(u"title=\"next page\""_s).value(0);
    EXPECT_TRUE(Holds(next, u"disabled"_s));
    EXPECT_FALSE(FirstBetween(next, u"href=\""_s, u"\""_s).contains(u"/page/"_s));
    EXPECT_EQ(client.Text(friendsUrl + u"/page/99"_s), page);
}

// The pager stands above the list and below it.
TEST(FriendsList, APagerLeavesAGapOnlyWherePagesAreLeftOut) {
    SiteClient client;
    client.Control(u"friends 900001 199"_s);
    for (const int page : {1, 2, 5})
        EXPECT_EQ(client.Text(friendsUrl + u"/page/%1"_s.arg(page)).count(u"class=\"gap\""_s), 0) << page;
    client.Control(u"friends 900001 400"_s);
    EXPECT_EQ(client.Text(friendsUrl + u"/page/6"_s).count(u"class=\"gap\""_s), 2);
    EXPECT_EQ(client.Text(friendsUrl + u"/page/5"_s).count(u"class=\"gap\""_s), 2);
    client.Control(u"friends 900001 900"_s);
    EXPECT_EQ(client.Text(friendsUrl + u"/page/10"_s).count(u"class=\"gap\""_s), 4);
}

TEST(FriendsList, LengthsDifferAndEmptyListsSaySo) {
    SiteClient client;
    EXPECT_NE(
        FirstBetween(client.Text(friendsUrl), u"Listing 1-40 of "_s, u"<"_s),
        FirstBetween(client.Text(SiteClient::root + u"/900002/friends"_s), u"Listing 1-40 of "_s, u"<"_s));
    client.Control(u"friends 900001 0"_s);
    EXPECT_TRUE(Holds(client.Text(friendsUrl), u"Nobody yet."_s));
    EXPECT_EQ(NextPage(client.Text(friendsUrl)), QString());
}

TEST(FriendsList, NobodysListIsNotFound) {
    SiteClient client;
    EXPECT_EQ(client.Get(SiteClient::root + u"/77/friends"_s).status, 404);
}

TEST(Browse, AFullPageShowsFortyAgesAndAWayOn) {
    SiteClient client;
    const QString url = SiteClient::root + u"/browse/people"_s;
    const QString page = client.Text(url);
    EXPECT_EQ(page.count(u"Age:"_s), 40);
    EXPECT_EQ(Blocks(page).size(), 40);
    EXPECT_EQ(NextPage(page), url + u"?page=2"_s);
    EXPECT_TRUE(Holds(page, u"title=\"next page\">Next</a>"_s));
    EXPECT_TRUE(Holds(page, u"Showing 1-40 of "_s));
}

TEST(Browse, ShowsEveryPersonOnce) {
    SiteClient client;
    QStringList seen;
    for (QString url = SiteClient::root + u"/browse/people"_s; !url.isEmpty();) {
        const QString page = client.Text(url);
        for (const QString& block : Blocks(page))
            seen.append(Whose(block));
        url = NextPage(page);
    }
    EXPECT_GT(seen.size(), 3500);
    EXPECT_EQ(QSet<QString>(seen.begin(), seen.end()).size(), seen.size());
}

} // namespace
} // namespace qlm::practice
