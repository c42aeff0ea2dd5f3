// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "browser/PageView.h"
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
        .replace(u"{VideoHost}"_s, u"vids.example.com"_s)
        .replace(u"{BulletinsHost}"_s, u"bulletins.example.com"_s)
        .replace(u"{TopArtistsHost}"_s, u"top.example.com"_s)
        .replace(u"{BrowseUsersHost}"_s, u"browse.example.com"_s)
        .replace(u"{MusicHost}"_s, u"music.example.com"_s)
        .replace(u"{EventsHost}"_s, u"events.example.com"_s);
}

KeptPage Page(const QString& address, const QString& text, const QString& html) {
    return KeptPage({.address = address, .text = text, .markup = html}, Expand);
}

QString OfText(const QString& address, const QString& text) {
    return ListingText(Page(address, text, {}));
}

TEST(ListingText, AFriendsListNamesItsSlice) {
    EXPECT_EQ(OfText(u"http://www.example.com/7/friends"_s, u"x Listing 1-40 of 212"_s), u"Listing 1-40 "_s);
    EXPECT_EQ(OfText(u"http://www.example.com/7/friends?p=2"_s, u"x listing 41-80 of 212"_s),
              u"listing 41-80 "_s);
    EXPECT_EQ(OfText(u"http://www.example.com/7/friends/2"_s, u"x listing 41-80 of 212"_s), QString());
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

TEST(ListingText, AMusicSearchIsTheSearchHostsForMusic) {
    const QString text = u"www.example.com/ 0 View All (3 www.example.com/ 1-10 of y, displaying 2 of 3"_s;
    EXPECT_EQ(OfText(u"http://search.example.com/x?a&type=Music&b"_s, text), u"www.example.com/ 1-10 "_s);
    EXPECT_EQ(OfText(u"http://search.example.com/x?a"_s, text), u"displaying 2 "_s);
    EXPECT_EQ(OfText(u"http://x/x?a&type=Music&b"_s, text), QString());
}

TEST(ListingText, TheSingularGroupHostCountsToo) {
    EXPECT_EQ(OfText(u"http://group.example.com/a"_s, u"listing 1-9 of 20"_s), u"listing 1-9 "_s);
}

QString OfMarkup(const QString& address, const QString& text, const QString& html) {
    return ListingText(Page(address, text, html));
}

TEST(ListingText, ACommentListIsReadFromTheMarkup) {
    EXPECT_EQ(OfMarkup(u"http://x/7/comments?page=2"_s, u"Add Comment"_s, u"<p>Listing 1-50 of 70"_s),
              u"Listing 1-50 "_s);
    EXPECT_EQ(OfMarkup(u"http://x/7/comments"_s, u"Add Comment"_s, u"<p>Listing 1-50 of 70"_s), QString());
    EXPECT_EQ(OfMarkup(u"http://x/7/comments?page=2"_s, {}, u"<p>Listing 1-50 of 70"_s), QString());
}

TEST(ListingText, AnEventsCommentsAreReadBehindTheirFirstFriend) {
    EXPECT_EQ(OfMarkup(u"http://x/e"_s, u"Return to event page Comments"_s,
                       u"font-weight: bold;0</span> friendID=1 <i style='font-weight: bold;'>3 </span>"_s),
              u"font-weight: bold;'>3 "_s);
    for (const QString& text : {u"Return to event page"_s, u"Comments"_s})
        EXPECT_EQ(OfMarkup(u"http://x/e"_s, text, u"friendID=1 font-weight: bold;3</span>"_s), QString());
}

TEST(ListingText, EachOfTheOldListPagesNamesItsSliceInTheMarkup) {
    const QString html = u"<p>Listing 1-10 of 35"_s;
    for (const QString& address :
         {u"http://forum.example.com/index.cfm?fuseaction=messageboard.viewThread"_s,
          u"http://bulletins.example.com/index.cfm?fuseaction=bulletin.read"_s, u"http://top.example.com/"_s,
          u"http://x/index.cfm?fuseaction=user.viewComments"_s, u"http://browse.example.com/"_s,
          u"http://music.example.com/"_s})
        EXPECT_EQ(OfMarkup(address, {}, html), u"Listing 1-10 "_s) << address.toStdString();
    EXPECT_EQ(OfMarkup(u"http://vids.example.com/v"_s, u"Add Comment"_s, html), u"Listing 1-10 "_s);
    EXPECT_EQ(OfMarkup(u"http://vids.example.com/v"_s, {}, html), QString());
    EXPECT_EQ(OfMarkup(u"http://x/index.cfm?fuseaction=messageboard.viewThread"_s, {}, html), QString());
}

TEST(ListingText, ASearchNamesItsSliceInTheText) {
    EXPECT_EQ(OfText(u"http://search.example.com/x"_s, u"Displaying 1-10 of 35"_s), u"Displaying 1-10 "_s);
    EXPECT_EQ(OfText(u"http://x/search"_s, u"Displaying 1-10 of 35"_s), QString());
}

TEST(ListingText, AGroupsMembersAndAnInvitationsFriendsDoToo) {
    for (const QString& address :
         {u"http://x/index.cfm?fuseaction=groups.updateMembers&groupID=3"_s,
          u"http://x/index.cfm?fuseaction=groups.viewMembers&groupID=3"_s, u"http://groups.example.com/a"_s,
          u"http://x.example.com/index.cfm?fuseaction=groups.groupInvite&groupID=3"_s,
          u"http://events.example.com/Event/3"_s})
        EXPECT_EQ(OfText(address, u"listing 1-9 of 20, showing 2 of 3"_s), u"listing 1-9 "_s)
            << address.toStdString();
}

// A page of two kinds is read as the upper one of the table.
TEST(ListingText, TheOrderOfTheKindsCounts) {
    const QString event = u"friendID=1 font-weight: bold; 3</span>"_s;
    EXPECT_EQ(OfMarkup(u"http://x/7/comments?page=2"_s, u"Add Comment, Return to event page, Comments"_s,
                       event + u"listing 1 of 2"_s),
              u"listing 1 "_s);
    EXPECT_EQ(OfMarkup(u"http://x/e"_s, u"Mail Center, Return to event page, Comments"_s,
                       event + u"Listing 1 of 2</div>"_s),
              u"font-weight: bold; 3"_s);
    EXPECT_EQ(OfMarkup(u"http://forum.example.com/a"_s, u"Mail Center"_s, u"Listing 1 of 2 </div>"_s),
              u"Listing 1 of 2"_s);
    EXPECT_EQ(OfMarkup(u"http://search.example.com/fuseaction=user.viewComments&type=Music&"_s,
                       u"View All (2 www.example.com/ 3 of 4"_s, u"listing 1 of 2"_s),
              u"listing 1 "_s);
    EXPECT_EQ(OfText(u"http://search.example.com/x&type=Music&"_s,
                     u"displaying 1 of 2 View All (2 www.example.com/ 3 of 4"_s),
              u"www.example.com/ 3 "_s);
    EXPECT_EQ(OfText(u"http://search.example.com/7/friends?p=2"_s, u"listing 1 of 2 displaying 3 of 4"_s),
              u"displaying 3 "_s);
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
