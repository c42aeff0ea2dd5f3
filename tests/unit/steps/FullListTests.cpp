// SPDX-License-Identifier: MIT
#include "BrowserTest.h"
#include "steps/FullListRules.h"
#include "steps/StepDispatcher.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

enum class Links { Profiles, Images, Videos };

QString Repeated(const QString& text, int count) {
    return QStringList(count, text).join(u' ');
}

// Is a list page full enough to be gathered from?
class GatherPageTest : public BrowserTest {
protected:
    GatherPageTest() {
        State().CurrentAction = u"SCANNING"_s;
        kind = Links::Profiles;
    }

    // On a page of that body with so many links.
    bool IsFull(const QString& address, const QString& body, int links, bool complete = true) {
        QString page = u"<p>"_s + body + u"</p>"_s;
        for (int i = 0; i < links; ++i)
            page += Link(1000 + i);
        Show(address, page, complete ? SimFault::None : SimFault::Incomplete);
        EXPECT_EQ(app->WebBrowser1().ReadyState() == 4, complete);
        return IsGatherPageComplete(*app);
    }
    // Full with so many links and not with one fewer.
    void ExpectThreshold(int links, const QString& address, const QString& body, bool complete = true) {
        SCOPED_TRACE(address.toStdString() + " " + body.toStdString());
        EXPECT_FALSE(IsFull(address, body, links - 1, complete));
        EXPECT_TRUE(IsFull(address, body, links, complete));
    }
    QString Link(int id) const {
        const QString number = QString::number(id);
        if (kind == Links::Videos)
            return u"<a href='http://vids.site.example.com/?ChannelID="_s + number + u"'>v</a>"_s;
        const QString href =
            u"http://profile.site.example.com/index.cfm?fuseaction=user.viewprofile&friendID="_s;
        return u"<a href='"_s + href + number + u"'>"_s +
               (kind == Links::Images ? u"<img src=a.gif>"_s : u"Ann"_s) + u"</a>"_s;
    }

    Links kind;
    const QString Plain = u"{SiteRootHost}/list"_s;
    const QString BrowseElement = u"<i id=ctl00_Main_browseList_ctl08_regularItemView></i>"_s;
};

TEST_F(GatherPageTest, ABrowsePageWithNamesNeedsItsEighthItem) {
    for (const QString& heading : {u"Set Browse Criteria"_s, u"set advanced browse criteria"_s}) {
        EXPECT_TRUE(IsFull(Plain, heading + u" First Name: Gender: <i id=x_ctl08_regularItemView></i>"_s, 0));
        EXPECT_FALSE(
            IsFull(Plain, heading + u" First Name: Gender: <i id=x_ctl07_regularItemView></i>"_s, 99));
        EXPECT_FALSE(IsFull(Plain, heading + u" First Name: <i id=x_ctl08_regularItemView></i>"_s, 99));
    }
    EXPECT_FALSE(IsFull(Plain, u"First Name: Gender: <i id=x_ctl08_regularItemView></i>"_s, 99));
}

TEST_F(GatherPageTest, ABrowsePageWithoutNamesNeedsItsThirtySecondItem) {
    EXPECT_TRUE(IsFull(Plain, u"set browse criteria Gender: <i id=x_ctl32></i>"_s, 0));
    EXPECT_FALSE(IsFull(Plain, u"set browse criteria Gender: <i id=x_ctl31></i>"_s, 99));
    // The rule of the criteria is final, whatever else is there.
    EXPECT_FALSE(IsFull(Plain, u"set browse criteria Gender: "_s + BrowseElement, 99));
    EXPECT_FALSE(IsFull(Plain, u"set browse criteria <i id=x_ctl32></i>"_s, 99));
}

TEST_F(GatherPageTest, AListWithItsEighthBrowseItemIsFull) {
    EXPECT_TRUE(IsFull(Plain, BrowseElement, 0));
    EXPECT_FALSE(IsFull(Plain, u"<i id=ctl00_Main_browseList_ctl07_regularItemView></i>"_s, 99));
}

TEST_F(GatherPageTest, AForumIsFullWithOneOfItsElements) {
    const QString post =
        u"<i id=ctl00_ctl00_ctl00_cpMain_cpMain_bcr_PostList_ctl01_PostView_PostNameAnchor></i>"_s;
    EXPECT_TRUE(IsFull(u"{ForumHost}/t?x=1&PageIndex=2"_s, post, 0));
    EXPECT_FALSE(IsFull(u"{ForumHost}/t?x=1"_s, post, 99));
    EXPECT_FALSE(IsFull(u"{SiteRootHost}/forums?x=1&PageIndex=2"_s, post, 99));
    EXPECT_FALSE(IsFull(u"{ForumHost}/t?x=1&PageIndex=2"_s, u"x"_s, 99));
    EXPECT_TRUE(IsFull(u"{ForumHost}/t?x=1&page=2"_s, u"<i id=UserDataNode2></i>"_s, 0));
    EXPECT_FALSE(IsFull(u"{ForumHost}/t?x=1"_s, u"<i id=UserDataNode2></i>"_s, 99));
    EXPECT_FALSE(IsFull(u"{SiteRootHost}/t?x=1&page=2"_s, u"<i id=UserDataNode2></i>"_s, 99));
    EXPECT_FALSE(IsFull(u"{ForumHost}/t?x=1&page=2"_s, u"<i id=UserDataNode3></i>"_s, 99));
    EXPECT_TRUE(IsFull(Plain, u"Band Name: <i id=UserDataNode29></i>"_s, 0));
    EXPECT_FALSE(IsFull(Plain, u"Band: <i id=UserDataNode29></i>"_s, 99));
    EXPECT_FALSE(IsFull(Plain, u"band name: <i id=UserDataNode28></i>"_s, 99));
}

TEST_F(GatherPageTest, AnEventsGuestListIsFull) {
    EXPECT_TRUE(IsFull(Plain, u"return to event page"_s, 0));
}

TEST_F(GatherPageTest, AFriendsListIsFullWhenCompleteOrWithThirtyThree) {
    for (const QString& text :
         {u"You can search for display name display:"_s, u"search within friends is disabled display:"_s}) {
        ExpectThreshold(33, Plain, text, false);
        EXPECT_TRUE(IsFull(Plain, text, 0));
    }
    EXPECT_FALSE(IsFull(Plain, u"you can search for display name"_s, 99));
    EXPECT_FALSE(IsFull(Plain, u"display:"_s, 99));
    // Not full by this rule, the page may be by another.
    EXPECT_TRUE(IsFull(u"{SiteRootHost}/1/friends/page/2"_s, u"search within friends is disabled display:"_s,
                       20, false));
}

TEST_F(GatherPageTest, ANewFriendsListIsFullWhenCompleteOrWithTwenty) {
    ExpectThreshold(20, u"{SiteRootHost}/1/friends/page/2"_s, u"x"_s, false);
    EXPECT_TRUE(IsFull(u"{SiteRootHost}/1/FRIENDS/PAGE/2"_s, u"x"_s, 0));
    EXPECT_FALSE(IsFull(u"{SiteRootHost}/1/friends"_s, u"x"_s, 99));
    EXPECT_FALSE(IsFull(u"{SiteRootHost}/1/page/2"_s, u"x"_s, 99));
    // The rule is final.
    const QString commands = Repeated(u"<i class=commentCommands></i>"_s, 41);
    EXPECT_FALSE(IsFull(u"{SiteRootHost}/1/friends/page/2/comments?x"_s, commands, 0, false));
}

TEST_F(GatherPageTest, ACommentsPageIsFullWhenCompleteOrWithFortyOneCommands) {
    const QString address = u"{SiteRootHost}/1/comments?page=2"_s;
    EXPECT_FALSE(IsFull(address, Repeated(u"<i class=commentCommands></i>"_s, 40), 0, false));
    EXPECT_TRUE(IsFull(address, Repeated(u"<i class=COMMENTCOMMANDS></i>"_s, 41), 0, false));
    EXPECT_TRUE(IsFull(address, u"x"_s, 0));
    EXPECT_FALSE(IsFull(u"{SiteRootHost}/1/comments"_s, u"x"_s, 99));
    EXPECT_FALSE(IsFull(u"{SiteDomain}/browse/comments?x"_s, u"x"_s, 36, false));
}

TEST_F(GatherPageTest, ABrowsePageIsFullWithThirtySixOrWithEightOfTheNewKind) {
    ExpectThreshold(36, u"{SiteDomain}/browse/people"_s, u"x"_s);
    ExpectThreshold(36, u"{BrowseUsersHost}/Browse/Browse.aspx?x"_s, u"x"_s);
    EXPECT_FALSE(IsFull(u"{BrowseUsersHost}/Browse/Other.aspx"_s, u"x"_s, 99));
    ExpectThreshold(8, u"{SiteDomain}/browse/people"_s, u"<i class=gapAddFriend></i>"_s);
    EXPECT_FALSE(IsFull(Plain, u"<i class=gapAddFriend></i>"_s, 99));
}

TEST_F(GatherPageTest, NotificationsAreFullWithTheirSeventhRow) {
    const QString address = u"{MessagingHost}/x.cfm?fuseaction=mail.notifications"_s;
    EXPECT_TRUE(IsFull(address, u"<i id=tr7></i>"_s, 0));
    EXPECT_FALSE(IsFull(address, u"<i id=tr6></i>"_s, 0));
    EXPECT_FALSE(IsFull(Plain, u"<i id=tr7></i>"_s, 99));
    EXPECT_TRUE(IsFull(address, u"Artist Signup Set Search Criteria <i id=tr7></i>"_s, 0));
}

TEST_F(GatherPageTest, AnArtistSearchNeedsNine) {
    ExpectThreshold(9, Plain, u"artist signup, set search criteria"_s);
    EXPECT_FALSE(IsFull(Plain, u"artist signup"_s, 99));
    EXPECT_FALSE(IsFull(Plain, u"set search criteria"_s, 99));
    ExpectThreshold(9, u"{SearchServiceHost}/x"_s, u"artist signup, set search criteria"_s);
}

TEST_F(GatherPageTest, ABareSearchPageIsFullOnlyForMusic) {
    ExpectThreshold(10, u"{SearchServiceHost}/x?a&type=Music&b"_s, u"x"_s);
    EXPECT_FALSE(IsFull(u"{SearchServiceHost}/x?a&type=People&b"_s, u"x"_s, 99));
    EXPECT_FALSE(IsFull(u"{SiteRootHost}/x?a&type=Music&b"_s, u"x"_s, 99));
}

TEST_F(GatherPageTest, ASearchWithResultsNeedsSix) {
    for (const QString& text : {u"Results for"_s, u"find a friend"_s, u"displaying 1"_s}) {
        ExpectThreshold(6, u"{SearchServiceHost}/x"_s, text);
        EXPECT_FALSE(IsFull(Plain, text, 99));
    }
    // Music too, as soon as there are results.
    ExpectThreshold(6, u"{SearchServiceHost}/x?a&type=Music&b"_s, u"results for"_s);
    // The rule is final.
    EXPECT_FALSE(IsFull(u"{SearchServiceHost}/x?u=site.example.com/my/mail"_s, u"results for"_s, 5));
}

TEST_F(GatherPageTest, ImageResultsAreCountedByTheirPictures) {
    const QString address = u"{SearchServiceHost}/x?type=images"_s;
    EXPECT_FALSE(IsFull(address, u"results for"_s, 99));
    kind = Links::Images;
    ExpectThreshold(6, address, u"results for"_s);
}

TEST_F(GatherPageTest, AMailFolderNeedsOne) {
    ExpectThreshold(1, u"{SiteDomain}/my/mail/inbox"_s, u"x"_s);
    ExpectThreshold(1, u"{MessagingHost}/index.cfm?fuseaction=mail.inbox"_s, u"x"_s);
    EXPECT_FALSE(IsFull(u"{MessagingHost}/index.cfm?fuseaction=x"_s, u"x"_s, 99));
}

TEST_F(GatherPageTest, AFriendSearchIsFullWithItsEighthItem) {
    EXPECT_TRUE(IsFull(Plain, u"find a friend, results for <i id=x_ctl08_y></i>"_s, 0));
    EXPECT_FALSE(IsFull(Plain, u"find a friend, results for <i id=x_ctl07_y></i>"_s, 99));
    EXPECT_FALSE(IsFull(Plain, u"find a friend <i id=x_ctl08_y></i>"_s, 99));
    EXPECT_FALSE(IsFull(Plain, u"results for <i id=x_ctl08_y></i>"_s, 99));
}

TEST_F(GatherPageTest, ABulletinBoardIsFullWithItsTwelfthRow) {
    const QString text = u"Show Bulletins I've Posted <i id=bulletins_Repeater_ctl12></i>"_s;
    EXPECT_TRUE(IsFull(Plain, text, 0));
    EXPECT_FALSE(IsFull(Plain, u"Show Bulletins I've Posted <i id=bulletins_Repeater_ctl11></i>"_s, 99));
    EXPECT_FALSE(IsFull(Plain, u"<i id=bulletins_Repeater_ctl12></i>"_s, 99));
    EXPECT_TRUE(IsFull(u"{VideoHost}/x"_s, text, 0));
}

TEST_F(GatherPageTest, AVideoPageNeedsSeventeenChannels) {
    const QString friends = u"view all friends, listing 1 : friends (2)"_s;
    EXPECT_FALSE(IsFull(u"{VideoHost}/x"_s, friends, 99));
    kind = Links::Videos;
    ExpectThreshold(17, u"{VideoHost}/x"_s, u"x"_s);
}

TEST_F(GatherPageTest, AFriendsListOfTheOldKindNeedsThirtyThree) {
    ExpectThreshold(33, Plain, u"View All Friends, listing 1 : friends (2)"_s);
    for (const QString& text : {u"listing 1 : friends (2)"_s, u"view all friends : friends (2)"_s,
                                u"view all friends, listing 1"_s})
        EXPECT_FALSE(IsFull(Plain, text, 99)) << text.toStdString();
}

TEST_F(GatherPageTest, PagesOfTheOtherHostsNeedTheirNumber) {
    ExpectThreshold(17, u"{SchoolHost}/x"_s, u"members (20)"_s);
    EXPECT_FALSE(IsFull(u"{SchoolHost}/x"_s, u"x"_s, 99));
    EXPECT_FALSE(IsFull(Plain, u"members (20)"_s, 99));
    ExpectThreshold(10, u"{TopArtistsHost}/x"_s, u"x"_s);
    ExpectThreshold(8, u"{MusicHost}/x"_s, u"Shows In Your Area"_s);
    EXPECT_FALSE(IsFull(u"{MusicHost}/x"_s, u"x"_s, 99));
    EXPECT_FALSE(IsFull(Plain, u"shows in your area"_s, 99));
    ExpectThreshold(20, u"{GroupsHost}/x"_s, u"view all members"_s);
    ExpectThreshold(20, u"group.site.example.com/x"_s, u"view all members"_s);
    EXPECT_FALSE(IsFull(u"{GroupsHost}/x"_s, u"x"_s, 99));
    EXPECT_FALSE(IsFull(Plain, u"view all members"_s, 99));
}

// A kind of list that is full: what its page says, and what stands in its markup.
struct FullPage {
    QString address;
    QStringList texts;
    QString markup;
    int links;
};

// What a page says counts in any letter case, and not when its markup alone says it; its address counts
// within another one, too.
TEST_F(GatherPageTest, AKindOfListIsKnownByWhatItShows) {
    const QString eighth = u"<i id=x_ctl08_regularItemView></i>"_s;
    const QString thirtySecond = u"<i id=x_ctl32></i>"_s;
    const QString post =
        u"<i id=ctl00_ctl00_ctl00_cpMain_cpMain_bcr_PostList_ctl01_PostView_PostNameAnchor></i>"_s;
    const std::vector<FullPage> pages{
        {Plain, {u"set browse criteria"_s, u"First Name:"_s, u"Gender:"_s}, eighth, 0},
        {Plain, {u"set advanced browse criteria"_s, u"First Name:"_s, u"Gender:"_s}, eighth, 0},
        {Plain, {u"set browse criteria"_s, u"Gender:"_s}, thirtySecond, 0},
        {Plain, {u"set advanced browse criteria"_s, u"Gender:"_s}, thirtySecond, 0},
        {u"{ForumHost}/forums?x=1&PageIndex=2"_s, {}, post, 0},
        {u"{ForumHost}/t?x=1&page=2"_s, {}, u"<i id=UserDataNode2></i>"_s, 0},
        {Plain, {u"band name:"_s}, u"<i id=UserDataNode29></i>"_s, 0},
        {Plain, {u"Return to event page"_s}, {}, 0},
        {Plain, {u"you can search for display name"_s, u"display:"_s}, {}, 33},
        {Plain, {u"search within friends is disabled"_s, u"display:"_s}, {}, 33},
        {u"{SiteDomain}/browse/people"_s, {}, {}, 36},
        {u"{BrowseUsersHost}/Browse/Browse.aspx?x"_s, {}, {}, 36},
        {u"{SiteDomain}/browse/people"_s, {}, u"<i class=gapAddFriend></i>"_s, 8},
        {u"{SiteDomain}/x?fuseaction=mail.notifications&x"_s, {}, u"<i id=tr7></i>"_s, 0},
        {Plain, {u"Artist Signup"_s, u"Set Search Criteria"_s}, {}, 9},
        {u"{SiteDomain}/my/mail/inbox"_s, {}, {}, 1},
        {u"{MessagingHost}/index.cfm?fuseaction=mail.inbox"_s, {}, {}, 1},
        {Plain, {u"find a friend"_s, u"results for"_s}, u"<i id=x_ctl08_y></i>"_s, 0},
        {Plain, {u"Show Bulletins I've Posted"_s}, u"<i id=bulletins_Repeater_ctl12></i>"_s, 0},
        {Plain, {u"view all friends"_s, u"listing "_s, u" : friends ("_s}, {}, 33},
        {u"{SchoolHost}/x"_s, {u"members ("_s}, {}, 17},
        {u"{TopArtistsHost}/x"_s, {}, {}, 10},
        {u"{MusicHost}/x"_s, {u"shows in your area"_s}, {}, 8},
        {u"{GroupsHost}/x"_s, {u"view all members"_s}, {}, 20},
        {u"group.site.example.com/x"_s, {u"view all members"_s}, {}, 20},
    };
    for (const FullPage& page : pages) {
        SCOPED_TRACE((page.address + u' ' + page.texts.join(u' ') + page.markup).toStdString());
        const QString texts = page.texts.join(u" x "_s) + u" x "_s;
        EXPECT_TRUE(IsFull(page.address, texts.toUpper() + page.markup, page.links));
        EXPECT_TRUE(IsFull(u"stranger.com/go?to="_s + page.address, texts + page.markup, page.links));
        for (const QString& hidden : page.texts) {
            QStringList shown = page.texts;
            shown.removeOne(hidden);
            const QString body = shown.join(u" x "_s) + u" x <u title=\""_s + hidden + u"\">x</u> "_s;
            EXPECT_FALSE(IsFull(page.address, body + page.markup, page.links)) << hidden.toStdString();
        }
    }
}

TEST_F(GatherPageTest, AnElementIsKnownByItsID) {
    for (const QString& id :
         {u"ctl00_Main_browseList_ctl08_regularItemView"_s, u"UserDataNode2"_s, u"UserDataNode29"_s,
          u"ctl00_ctl00_ctl00_cpMain_cpMain_bcr_PostList_ctl01_PostView_PostNameAnchor"_s})
        EXPECT_FALSE(IsFull(u"{ForumHost}/forums?x=1&PageIndex=2&page=2"_s,
                            u"band name: <i class="_s + id + u"></i>"_s, 99))
            << id.toStdString();
}

TEST_F(GatherPageTest, AnyOtherPageIsNotReady) {
    EXPECT_FALSE(IsFull(Plain, u"x"_s, 99));
}

TEST_F(GatherPageTest, TheSameAddressCountsOnce) {
    Show(u"{TopArtistsHost}/x"_s, Repeated(Link(1), 30));
    EXPECT_FALSE(IsGatherPageComplete(*app));
}

TEST_F(GatherPageTest, TheDispatcherAsksForTheWordListOfIDs) {
    IsFull(Plain, u"return to event page"_s, 0);
    Await(u"ID"_s, u"ListOfIDs"_s);
    EXPECT_TRUE(app->Get<StepDispatcher>().CheckLinkFound());
    IsFull(Plain, u"<i id=ListOfIDs></i>"_s, 0);
    Await(u"ID"_s, u"ListOfIDs"_s);
    EXPECT_FALSE(app->Get<StepDispatcher>().CheckLinkFound());
}

} // namespace
} // namespace qlm
