// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "browser/PageView.h"
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
    const KeptPage page(
        {.address = c.address, .ids = c.nextPageElement ? QStringList{u"nextPage"_s} : QStringList()},
        Expand);
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
        Case{u"Next » 2"_s, u"http://vids.example.com/list#"_s, u""_s, Videos},
        Case{u"The next »"_s, u"http://vids.example.com/list#"_s, u""_s, Videos},
        Case{u"Next »"_s, u"http://vids.example.com/list#"_s, u""_s, Charts},
        Case{u"More"_s, u"http://www.example.com/music/charts/songs/2"_s,
             u"http://www.example.com/music/charts/songs/5"_s, Charts},
        Case{u"More!"_s, u"http://www.example.com/music/charts/songs/2"_s,
             u"http://www.example.com/music/charts/songs/5"_s, Charts},
        Case{u"Go on"_s, u"http://www.example.com/music/charts/songs/2"_s, u""_s, Charts},
        Case{u"+more"_s, u"http://www.example.com/music/charts/songs/2"_s, u""_s, Charts},
        Case{u"More"_s, u"http://www.example.com/music/charts/songs/2"_s, u""_s},
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

enum class Text { Is, Contains, BeginsWith };

// A row of the table, in which links around it are tried: groups of marks of which one must hold whole. "="
// in front of a mark: in this letter case alone; "^": at the beginning.
struct RowAround {
    Text test;
    QStringList texts;
    QList<QStringList> groups;
    QString nearAddress = {}; // what a link with another address stores
    bool click = false;
};

QString Stored(const QString& text, const QString& href) {
    const NextLinkCandidate candidate{href, text, text.toLower(), [] { return QString(); }};
    const KeptPage page({.address = u"http://www.example.com/x"_s}, Expand);
    const std::optional<NextLink> found = MatchNextLink(candidate, page);
    return !found ? QString() : found->click ? u"click:"_s + found->link : found->link;
}

class NextLinkRowAround : public testing::TestWithParam<RowAround> {
protected:
    static QString Plain(const QString& mark) {
        return mark.startsWith(u'=') || mark.startsWith(u'^') ? mark.mid(1) : mark;
    }
    // An address that holds the marks, each somewhere in it unless it has to begin it.
    static QString Address(const QStringList& marks) {
        QString address = marks.value(0).startsWith(u'^') ? QString() : u"x-"_s;
        for (const QString& mark : marks)
            address += Plain(mark) + u"2"_s;
        return address;
    }
    static QString Kept(const QString& text, const QString& href) {
        return GetParam().click ? u"click:"_s + text : href;
    }
};

TEST_P(NextLinkRowAround, WantsItsTextAsItSays) {
    const RowAround& row = GetParam();
    for (const QStringList& group : row.groups) {
        const QString href = Address(group);
        for (const QString& text : row.texts) {
            for (const QString& hit : {text, text.toUpper()})
                EXPECT_EQ(Stored(hit, href), Kept(hit, href))
                    << hit.toStdString() << " | " << href.toStdString();
            const QString longer = text + u" x"_s;
            EXPECT_EQ(Stored(longer, href), row.test == Text::Is ? QString() : Kept(longer, href));
            const QString inside = u"the "_s + text;
            EXPECT_EQ(Stored(inside, href), row.test == Text::Contains ? Kept(inside, href) : QString());
        }
        EXPECT_EQ(Stored(u"Go on"_s, href), QString()) << href.toStdString();
    }
}

TEST_P(NextLinkRowAround, WantsItsAddressAsItSays) {
    const RowAround& row = GetParam();
    for (const QStringList& group : row.groups)
        for (qsizetype i = 0; i < group.size(); ++i) {
            QStringList marks = group;
            marks[i] =
                group[i].startsWith(u'^') ? u'^' + group[i].mid(1).toUpper() : Plain(group[i]).toUpper();
            const QString shouted = Address(marks);
            EXPECT_EQ(Stored(row.texts[0], shouted),
                      group[i].startsWith(u'=') ? row.nearAddress : Kept(row.texts[0], shouted))
                << shouted.toStdString();
            marks = group;
            marks.removeAt(i);
            EXPECT_EQ(Stored(row.texts[0], Address(marks)), QString()) << Address(marks).toStdString();
            if (group[i].startsWith(u'^')) {
                EXPECT_EQ(Stored(row.texts[0], u"x"_s + Address(group)), row.nearAddress);
            }
        }
}

const QString Results = u"http://search.example.com/index.cfm?fuseaction=sitesearch.results"_s;
const QString ViewComments = u"http://comment.example.com/index.cfm?fuseaction=user.viewComments&friendID="_s;

INSTANTIATE_TEST_SUITE_P(
    Table, NextLinkRowAround,
    testing::Values(
        RowAround{Text::Is, {u"next"_s}, {{u"^javascript: gotopage"_s}}, u"click:next"_s},
        RowAround{Text::Is, {u"next"_s}, {{u"^javascript:nextpage"_s}}, u"click:next"_s},
        RowAround{Text::Is, {u"next ›"_s}, {{u"SchoolMembersDisplay$pagerTop','"_s}}},
        RowAround{Text::Contains, {u"next"_s}, {{Results, u"&pg="_s}}},
        RowAround{Text::Contains, {u"next"_s}, {{u"example.com/search/"_s, u"&page="_s}}},
        RowAround{Text::Contains, {u"next"_s}, {{u"=http://forum.example.com/"_s, u"&PageIndex="_s}}},
        RowAround{Text::Is,
                  {u"next >"_s, u"next ›"_s},
                  {{u"javascript:__doPostBack('ctl00$cpMain$UserViewCommentsControl_Skin$pagerTop','"_s},
                   {u"ctl00$cpMain$UserViewCommentsControl$pagerTop','"_s},
                   {ViewComments, u"&page="_s},
                   {u"/comments?page="_s}}},
        RowAround{Text::Is, {u"next ›"_s}, {{u"&page="_s}}},
        RowAround{Text::Is, {u"next ›"_s}, {{u"ucUpdateMembers$pagerTop','"_s}}},
        RowAround{Text::Is,
                  {u"next >"_s, u"next ›"_s, u"next"_s},
                  {{u"messagingMain$MessageList_Skin$pagingTop','"_s},
                   {u"ctl00$ctl00$Main$messagingMain"_s},
                   {u"cpMain$cpMain$messagingMain"_s},
                   {u"javascript: __msgPostRedirect('Page:"_s},
                   {u"gotonextpage()"_s},
                   {u"requestlist.GoToPage("_s}}},
        RowAround{Text::Is, {u"next"_s}, {{u"javascript:"_s}}, {}, true},
        RowAround{Text::Is,
                  {u"next >"_s, u"next ›"_s},
                  {{u"=$cpMain$Browse.skin$PagingTop','"_s},
                   {u"=$cpMain$Browse$PagingTop','"_s},
                   {u"=$cpMain$Browse_skin$PagingTop','"_s}}},
        RowAround{Text::BeginsWith, {u"next"_s}, {{u"=example.com/browse/"_s}}, {}, true},
        RowAround{Text::Contains,
                  {u"next"_s},
                  {{u"ctl00$cpMain$pager"_s},
                   {u"ctl00$cpMain$FriendsView$pagerTop"_s},
                   {u"ctl00$cpMain$FriendsView_skin$pagerTop"_s},
                   {u"fuseaction=user.viewfriends&"_s, u"&p="_s},
                   {u"/friends/categories/"_s, u"?p="_s},
                   {u"=/friends?"_s, u"?p="_s},
                   {u"=/friends?"_s, u"&p="_s}}},
        RowAround{Text::Contains, {u"next"_s}, {{u"/FRIENDS/"_s, u"/PAGE/"_s}}},
        RowAround{Text::Is, {u"next >"_s, u"next ›"_s}, {{u"ctl00$Main$pager"_s}}},
        RowAround{Text::Is, {u"next >"_s, u"next ›"_s}, {{u"ctl00$cpMain$BirthdayList$PagerTop"_s}}},
        RowAround{Text::Is, {u"next"_s}, {{u"notificationslist.GoToPage("_s}}}));

TEST(ChartPageFive, ReplacesTheLastNumberEverywhere) {
    EXPECT_EQ(ChartPageFive(u"http://x/charts/2"_s), u"http://x/charts/5"_s);
    EXPECT_EQ(ChartPageFive(u"http://x/2/charts/2"_s), u"http://x/5/charts/5"_s);
    EXPECT_EQ(ChartPageFive(u"http://x/charts/12/"_s), u"http://x/charts/5"_s);
    EXPECT_EQ(ChartPageFive(u"http://x/charts/songs"_s), QString());
    EXPECT_EQ(ChartPageFive({}), QString());
}

} // namespace
} // namespace qlm
