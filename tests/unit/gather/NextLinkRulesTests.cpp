// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "gather/NextLinkRules.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

struct Case {
    QString text;
    QString href;
    QString stored; // "" for no hit, "click:" in front of a caption
    QString address = u"http://www.example.com/x"_s;
    QString outerHTML = {};
    bool nextPageElement = false;
};

QString Expand(const QString& text) {
    QString expanded = text;
    return expanded.replace(u"{SiteDomain}"_s, u"example.com"_s)
        .replace(u"{SearchServiceHost}"_s, u"search.example.com"_s)
        .replace(u"{CommentHost}"_s, u"comment.example.com"_s)
        .replace(u"{VideoHost}"_s, u"vids.example.com"_s)
        .replace(u"{ForumHost}"_s, u"forum.example.com"_s);
}

class NextLinkRule : public testing::TestWithParam<Case> {};

TEST_P(NextLinkRule, StoresWhatTheRowSays) {
    const Case& c = GetParam();
    NextLinkCandidate candidate{PlainHref(c.href), c.text.trimmed(), c.text.trimmed().toLower(),
                                [&c] { return c.outerHTML; }};
    const NextLinkPage page{c.address, Expand, [&c] { return c.nextPageElement; }};
    const std::optional<NextLink> found = MatchNextLink(candidate, page);
    const QString stored = !found ? QString() : found->click ? u"click:"_s + found->link : found->link;
    EXPECT_EQ(stored, c.stored) << c.text.toStdString() << " | " << c.href.toStdString();
}

const QString Browse = u"javascript:__doPostBack('ctl00$cpMain$Browse$PagingTop','2')"_s;
const QString Videos = u"http://vids.example.com/list"_s;
const QString Charts = u"http://www.example.com/music/charts/songs"_s;

const QString Comments =
    u"javascript:__doPostBack('ctl00$cpMain$UserViewCommentsControl_Skin$pagerTop','2')"_s;
const QString CommentsOfOld = u"x$ctl00$cpMain$UserViewCommentsControl$pagerTop','2'"_s;
const QString CommentPage =
    u"http://comment.example.com/index.cfm?fuseaction=user.viewComments&friendID=1&page=2"_s;
const QString Inbox = u"http://m/index.cfm?fuseaction=mail.inbox"_s;

INSTANTIATE_TEST_SUITE_P(
    Table, NextLinkRule,
    testing::Values(
        Case{u"Next"_s, u"javascript:%20gotopage(2)"_s, u"javascript: gotopage(2)"_s},
        Case{u"NEXT"_s, u"javascript:nextPage(2)"_s, u"javascript:nextPage(2)"_s},
        Case{u"Next ›"_s, u"x$SchoolMembersDisplay$pagerTop','2'"_s,
             u"x$SchoolMembersDisplay$pagerTop','2'"_s},
        Case{u"Next 10"_s, u"http://search.example.com/index.cfm?fuseaction=sitesearch.results&amp;pg=2"_s,
             u"http://search.example.com/index.cfm?fuseaction=sitesearch.results&pg=2"_s},
        Case{u"next page"_s, u"http://www.example.com/search/x?q&page=2"_s,
             u"http://www.example.com/search/x?q&page=2"_s},
        Case{u"Next"_s, u"http://forum.example.com/a?b&PageIndex=2"_s,
             u"http://forum.example.com/a?b&PageIndex=2"_s},
        Case{u"Next"_s, u"http://FORUM.example.com/a?b&PageIndex=2"_s, u""_s},
        Case{u"Next >"_s, u"http://www.example.com/7/comments?page=2"_s,
             u"http://www.example.com/7/comments?page=2"_s},
        Case{u"Next ›"_s, u"http://x/y?a&page=3"_s, u"http://x/y?a&page=3"_s},
        Case{u"Next >"_s, u"http://x/y?a&page=3"_s, u""_s},
        Case{u"Next"_s, u"javascript:gotonextpage()"_s, u"javascript:gotonextpage()"_s},
        Case{u"next ›"_s, u"javascript:requestlist.GoToPage(2)"_s, u"javascript:requestlist.GoToPage(2)"_s},
        Case{u"Next"_s, u"javascript:void(0)"_s, u"click:Next"_s},
        Case{u"Next"_s, u"javascript:void(0)"_s, u""_s, u"http://www.example.com/x"_s,
             u"<a class='disablePaging'>Next</a>"_s},
        Case{u"anything"_s,
             u"http://x/"_s,
             u"CLICKID=nextPage"_s,
             u"http://m/index.cfm?fuseaction=mail.inbox"_s,
             {},
             true},
        Case{u"anything"_s, u"http://x/"_s, u""_s, u"http://m/index.cfm?fuseaction=home"_s, {}, true},
        Case{u"Next >"_s, Browse, Browse},
        Case{u"Next page"_s, u"http://www.example.com/browse/people?page=2"_s, u"click:Next page"_s},
        Case{u"the next"_s, u"http://x/index.cfm?fuseaction=user.viewfriends&friendID=1&p=2"_s,
             u"http://x/index.cfm?fuseaction=user.viewfriends&friendID=1&p=2"_s},
        Case{u"Next 40"_s, u"http://www.example.com/7/friends?p=2"_s,
             u"http://www.example.com/7/friends?p=2"_s},
        Case{u"Next"_s, u"http://www.example.com/7/Friends/Page/2"_s,
             u"http://www.example.com/7/Friends/Page/2"_s},
        Case{u"Next"_s, u"http://www.example.com/notificationslist.GoToPage(2)"_s,
             u"http://www.example.com/notificationslist.GoToPage(2)"_s},
        Case{u"Next »"_s, u"http://vids.example.com/list?a&page=2"_s,
             u"http://vids.example.com/list?a&page=2"_s, Videos},
        Case{u"Next »"_s, u"http://vids.example.com/list#"_s, u"click:Next »"_s, Videos},
        Case{u"Next »"_s, u"http://vids.example.com/list"_s, u""_s, Videos},
        Case{u"More"_s, u"http://www.example.com/music/charts/songs/2"_s,
             u"http://www.example.com/music/charts/songs/5"_s, Charts},
        Case{u"More songs"_s, u"http://www.example.com/music/charts/songs/2"_s, u""_s, Charts},
        Case{u"Next >"_s, Comments, Comments}, Case{u"Next ›"_s, CommentsOfOld, CommentsOfOld},
        Case{u"Next >"_s, CommentPage, CommentPage},
        Case{u"Next"_s, u"x$UserViewCommentsControl$pagerTop','2'"_s, u""_s},
        Case{u"Next ›"_s, u"x$ucUpdateMembers$pagerTop','2'"_s, u"x$ucUpdateMembers$pagerTop','2'"_s},
        Case{u"Next >"_s, u"x$messagingMain$MessageList_Skin$pagingTop','2'"_s,
             u"x$messagingMain$MessageList_Skin$pagingTop','2'"_s},
        Case{u"Next"_s, u"x$ctl00$ctl00$Main$messagingMain"_s, u"x$ctl00$ctl00$Main$messagingMain"_s},
        Case{u"Next"_s, u"x$cpMain$cpMain$messagingMain"_s, u"x$cpMain$cpMain$messagingMain"_s},
        Case{u"Next ›"_s, u"javascript: __msgPostRedirect('Page:2')"_s,
             u"javascript: __msgPostRedirect('Page:2')"_s},
        // What the row above says holds where two would do.
        Case{u"Next"_s, u"javascript:void(0)"_s, u"click:Next"_s, Inbox, {}, true},
        Case{u"Next >"_s, Browse, u"CLICKID=nextPage"_s, Inbox, {}, true},
        Case{u"Next >"_s, Browse + u".example.com/browse/"_s, Browse + u".example.com/browse/"_s},
        Case{u"Next 4"_s, u"x.example.com/browse/ctl00$cpMain$pager"_s, u"click:Next 4"_s},
        Case{u"Next >"_s, u"x$CPMain$Browse$PagingTop','2'"_s, u""_s},
        Case{u"Next >"_s, u"x$cpMain$Browse.skin$PagingTop','2'"_s, u"x$cpMain$Browse.skin$PagingTop','2'"_s},
        Case{u"Next ›"_s, u"x$cpMain$Browse_skin$PagingTop','2'"_s, u"x$cpMain$Browse_skin$PagingTop','2'"_s},
        Case{u"the next"_s, u"x$ctl00$cpMain$pager"_s, u"x$ctl00$cpMain$pager"_s},
        Case{u"the next"_s, u"x$ctl00$cpMain$FriendsView$pagerTop"_s,
             u"x$ctl00$cpMain$FriendsView$pagerTop"_s},
        Case{u"the next"_s, u"x$ctl00$cpMain$FriendsView_skin$pagerTop"_s,
             u"x$ctl00$cpMain$FriendsView_skin$pagerTop"_s},
        Case{u"Next 40"_s, u"http://x/friends/categories/3?p=2"_s, u"http://x/friends/categories/3?p=2"_s},
        Case{u"Next 40"_s, u"http://x/friends?a&p=2"_s, u"http://x/friends?a&p=2"_s},
        Case{u"Next 40"_s, u"http://x/Friends?a&p=2"_s, u""_s},
        Case{u"Next >"_s, u"x$ctl00$Main$pager"_s, u"x$ctl00$Main$pager"_s},
        Case{u"Next ›"_s, u"x$ctl00$cpMain$BirthdayList$PagerTop"_s,
             u"x$ctl00$cpMain$BirthdayList$PagerTop"_s},
        Case{u"Next"_s, u"http://www.example.com/7/friends/all"_s, u""_s},
        Case{u"Previous"_s, u"http://www.example.com/7/friends/page/1"_s, u""_s}));

TEST(ChartPageFive, ReplacesTheLastNumberEverywhere) {
    EXPECT_EQ(ChartPageFive(u"http://x/charts/2"_s), u"http://x/charts/5"_s);
    EXPECT_EQ(ChartPageFive(u"http://x/2/charts/2"_s), u"http://x/5/charts/5"_s);
    EXPECT_EQ(ChartPageFive(u"http://x/charts/12/"_s), u"http://x/charts/5"_s);
    EXPECT_EQ(ChartPageFive(u"http://x/charts/songs"_s), QString());
    EXPECT_EQ(ChartPageFive({}), QString());
}

} // namespace
} // namespace qlm
