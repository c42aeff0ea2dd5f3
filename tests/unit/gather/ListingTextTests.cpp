// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "gather/ListingText.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

QString Expand(const QString& text) {
    QString expanded = text;
    return expanded.replace(u"{SiteDomain}"_s, u"example.com"_s)
        .replace(u"{SiteRootHost}"_s, u"www.example.com"_s)
        .replace(u"{GroupsHost}"_s, u"groups.example.com"_s)
        .replace(u"{SearchServiceHost}"_s, u"search.example.com"_s)
        .replace(u"{ForumHost}"_s, u"forum.example.com"_s)
        .replace(u"{EventsHost}"_s, u"events.example.com"_s);
}

ListingPage Page(const QString& address, const QString& text, const QString& html) {
    return {address, text, html, Expand};
}

QString OfText(const QString& address, const QString& text) {
    return ListingText(Page(address, text, {}));
}

TEST(ListingText, AFriendsListNamesItsSlice) {
    EXPECT_EQ(OfText(u"http://www.example.com/7/friends"_s, u"x Listing 1-40 of 212"_s), u"Listing 1-40 "_s);
    EXPECT_EQ(OfText(u"http://www.example.com/7/friends?p=2"_s, u"x listing 41-80 of 212"_s),
              u"listing 41-80 "_s);
}

TEST(ListingText, AMailListIsReadFromTheMarkupAndTrimmed) {
    EXPECT_EQ(ListingText(Page(u"http://mail.example.com/x"_s, u"Mail Centre"_s,
                               u"<div> Listing 1-10 of 35 </div>"_s)),
              u"Listing 1-10 of 35"_s);
}

TEST(ListingText, AForumMaySayDisplayingInstead) {
    EXPECT_EQ(ListingText(Page(u"http://forum.example.com/a"_s, {}, u"<p>Displaying 1 of 9</p>"_s)),
              u"Displaying 1 "_s);
    EXPECT_EQ(
        ListingText(Page(u"http://forum.example.com/a"_s, {}, u"<p>Displaying 1 of 9, listing 3 of 4</p>"_s)),
        u"listing 3 "_s);
}

TEST(ListingText, AMusicSearchIsReadBehindItsLink) {
    EXPECT_EQ(OfText(u"http://search.example.com/x?a&type=Music&b"_s,
                     u"View All (3 www.example.com/ 1-10 matches on y"_s),
              u"www.example.com/ 1-10 "_s);
    EXPECT_EQ(
        OfText(u"http://search.example.com/x?a&type=Music&b"_s, u"View All (3 www.example.com/ 1-10 of y"_s),
        u"www.example.com/ 1-10 "_s);
}

TEST(ListingText, TheSingularGroupHostCountsToo) {
    EXPECT_EQ(OfText(u"http://group.example.com/a"_s, u"listing 1-9 of 20"_s), u"listing 1-9 "_s);
}

TEST(ListingText, AnyPageMaySayShowing) {
    EXPECT_EQ(OfText(u"http://www.example.com/browse/people"_s, u"Showing 1-40 of 900"_s),
              u"Showing 1-40 "_s);
    // The page's own kind gave nothing.
    EXPECT_EQ(OfText(u"http://www.example.com/7/friends"_s, u"Showing 1-40 of 900"_s), u"Showing 1-40 "_s);
}

TEST(ListingText, WithoutALabelThereIsNone) {
    EXPECT_EQ(OfText(u"http://www.example.com/7/friends"_s, u"listing without an end"_s), QString());
    EXPECT_EQ(OfText(u"http://www.example.com/x"_s, u"listing 1-3 of 4"_s), QString());
}

TEST(ListingMarkup, ABrowsePageGivesItsFirstProfile) {
    EXPECT_EQ(
        ListingMarkup(Page(u"http://www.example.com/browse/people"_s, {}, u"a miniProfile 7<ul>b<ul>"_s)),
        u"miniProfile 7"_s);
    EXPECT_EQ(
        ListingMarkup(Page(u"http://www.example.com/search/x"_s, {}, u"a gapAddFriend 1 gapAddFriend 2"_s)),
        u"gapAddFriend 1 "_s);
}

TEST(ListingMarkup, ARequestsPageGivesTheSurroundingsOfItsFirstNewFriend) {
    const QString html = QString(60, u'x') + u"is now your friend and more and more"_s;
    const QString piece = ListingMarkup(Page(u"http://www.example.com/my/requests"_s, {}, html));
    EXPECT_EQ(piece.size(), 73);
    EXPECT_TRUE(piece.startsWith(QString(50, u'x') + u"is now"_s));
    EXPECT_EQ(ListingMarkup(Page(u"http://www.example.com/my/requests"_s, {}, u"is now your friend"_s)),
              QString());
}

TEST(ListingMarkup, AThreadGivesItsFirstReply) {
    EXPECT_EQ(ListingMarkup(Page(u"http://www.example.com/forums/t/1"_s, {}, u"<a id=Reply_55 x"_s)),
              u"Reply_55"_s);
}

} // namespace
} // namespace qlm
