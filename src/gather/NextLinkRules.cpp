// SPDX-License-Identifier: MIT
#include "gather/NextLinkRules.h"

#include "core/Text.h"
#include "gather/IdResolution.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

enum class Where { Contains, ContainsExact, BeginsWith };

struct Mark {
    const char16_t* text;
    Where where = Where::Contains;
};
using AllOf = std::vector<Mark>;

enum class TextTest { Any, Is, Contains, BeginsWith };

using Extra = bool (*)(const NextLinkCandidate&, const NextLinkPage&);
using Store = std::optional<NextLink> (*)(const NextLinkCandidate&);

std::optional<NextLink> Href(const NextLinkCandidate& c) {
    return NextLink{c.href, false};
}

std::optional<NextLink> Click(const NextLinkCandidate& c) {
    return NextLink{c.text, true};
}

std::optional<NextLink> ClickElement(const NextLinkCandidate&) {
    return NextLink{u"CLICKID=nextPage"_s, false};
}

std::optional<NextLink> VideoPage(const NextLinkCandidate& c) {
    if (Has(c.href, u"&page="_s))
        return Href(c);
    return c.href.endsWith(u'#') ? Click(c) : std::nullopt;
}

std::optional<NextLink> ChartPage(const NextLinkCandidate& c) {
    return NextLink{ChartPageFive(c.href), false};
}

bool At(const NextLinkPage& page, const QString& part) {
    return Has(page.address, page.expand(part));
}

bool PagingAllowed(const NextLinkCandidate& c, const NextLinkPage&) {
    return !Has(c.outerHTML(), u"disablePaging"_s);
}

bool IsMailWithNextPage(const NextLinkCandidate&, const NextLinkPage& page) {
    return At(page, u"fuseaction=mail."_s) && page.hasNextPageElement();
}

bool IsVideoPage(const NextLinkCandidate&, const NextLinkPage& page) {
    return At(page, u"http://{VideoHost}"_s);
}

bool IsChartWithMore(const NextLinkCandidate& c, const NextLinkPage& page) {
    return c.text.size() <= 5 && At(page, u"{SiteDomain}/music/charts"_s);
}

// texts: one of them must pass the test. hrefs: one group must hold, all of its marks; none means any
// address.
struct NextLinkRow {
    TextTest test;
    std::vector<const char16_t*> texts;
    std::vector<AllOf> hrefs;
    Store store = Href;
    Extra extra = nullptr;
};

const std::vector<NextLinkRow>& Rows() {
    using enum TextTest;
    constexpr Where Exact = Where::ContainsExact;
    constexpr Where Begins = Where::BeginsWith;
    static const std::vector<NextLinkRow> rows{
        {Is, {u"next"}, {{{u"javascript: gotopage", Begins}}}},
        {Is, {u"next"}, {{{u"javascript:nextpage", Begins}}}},
        {Is, {u"next ›"}, {{{u"SchoolMembersDisplay$pagerTop','"}}}},
        {Contains,
         {u"next"},
         {{{u"http://{SearchServiceHost}/index.cfm?fuseaction=sitesearch.results"}, {u"&pg="}}}},
        {Contains, {u"next"}, {{{u"{SiteDomain}/search/"}, {u"&page="}}}},
        {Contains, {u"next"}, {{{u"http://{ForumHost}/", Exact}, {u"&PageIndex="}}}},
        {Is,
         {u"next >", u"next ›"},
         {{{u"javascript:__doPostBack('ctl00$cpMain$UserViewCommentsControl_Skin$pagerTop','"}},
          {{u"ctl00$cpMain$UserViewCommentsControl$pagerTop','"}},
          {{u"http://{CommentHost}/index.cfm?fuseaction=user.viewComments&friendID="}, {u"&page="}},
          {{u"/comments?page="}}}},
        {Is, {u"next ›"}, {{{u"&page="}}}},
        {Is, {u"next ›"}, {{{u"ucUpdateMembers$pagerTop','"}}}},
        {Is,
         {u"next >", u"next ›", u"next"},
         {{{u"messagingMain$MessageList_Skin$pagingTop','"}},
          {{u"ctl00$ctl00$Main$messagingMain"}},
          {{u"cpMain$cpMain$messagingMain"}},
          {{u"javascript: __msgPostRedirect('Page:"}},
          {{u"gotonextpage()"}},
          {{u"requestlist.GoToPage("}}}},
        {Is, {u"next"}, {{{u"messagingMain$MessageList_Skin$pagingTop','"}}}},
        {Is, {u"next"}, {{{u"javascript:"}}}, Click, PagingAllowed},
        {Any, {}, {}, ClickElement, IsMailWithNextPage},
        {Is,
         {u"next >", u"next ›"},
         {{{u"$cpMain$Browse.skin$PagingTop','", Exact}},
          {{u"$cpMain$Browse$PagingTop','", Exact}},
          {{u"$cpMain$Browse_skin$PagingTop','", Exact}}}},
        {BeginsWith, {u"next"}, {{{u"{SiteDomain}/browse/", Exact}}}, Click},
        {Contains,
         {u"next"},
         {{{u"ctl00$cpMain$pager"}},
          {{u"ctl00$cpMain$FriendsView$pagerTop"}},
          {{u"ctl00$cpMain$FriendsView_skin$pagerTop"}},
          {{u"fuseaction=user.viewfriends&"}, {u"&p="}},
          {{u"/friends/categories/"}, {u"?p="}},
          {{u"/friends?", Exact}, {u"?p="}},
          {{u"/friends?", Exact}, {u"&p="}}}},
        {Contains, {u"next"}, {{{u"/FRIENDS/"}, {u"/PAGE/"}}}},
        {Is, {u"next >", u"next ›"}, {{{u"ctl00$Main$pager"}}}},
        {Is, {u"next >", u"next ›"}, {{{u"ctl00$cpMain$BirthdayList$PagerTop"}}}},
        {Is, {u"next"}, {{{u"notificationslist.GoToPage("}}}},
        {Is, {u"next »"}, {}, VideoPage, IsVideoPage},
        {BeginsWith, {u"more"}, {}, ChartPage, IsChartWithMore},
    };
    return rows;
}

bool TextFits(const NextLinkRow& row, const QString& lower) {
    if (row.test == TextTest::Any)
        return true;
    return std::any_of(row.texts.begin(), row.texts.end(), [&](const char16_t* wanted) {
        const QString text = QString::fromUtf16(wanted);
        return row.test == TextTest::Is         ? lower == text
               : row.test == TextTest::Contains ? lower.contains(text)
                                                : lower.startsWith(text);
    });
}

bool MarkHolds(const Mark& mark, const QString& href, const NextLinkPage& page) {
    const QString text = page.expand(QString::fromUtf16(mark.text));
    switch (mark.where) {
    case Where::Contains:
        return Has(href, text);
    case Where::ContainsExact:
        return href.contains(text);
    case Where::BeginsWith:
        return href.startsWith(text, Qt::CaseInsensitive);
    }
    return false;
}

bool HrefFits(const NextLinkRow& row, const QString& href, const NextLinkPage& page) {
    if (row.hrefs.empty())
        return true;
    return std::any_of(row.hrefs.begin(), row.hrefs.end(), [&](const AllOf& group) {
        return std::all_of(group.begin(), group.end(),
                           [&](const Mark& mark) { return MarkHolds(mark, href, page); });
    });
}

} // namespace

std::optional<NextLink> MatchNextLink(const NextLinkCandidate& candidate, const NextLinkPage& page) {
    for (const NextLinkRow& row : Rows())
        if (TextFits(row, candidate.lower) && HrefFits(row, candidate.href, page) &&
            (!row.extra || row.extra(candidate, page)))
            if (const std::optional<NextLink> found = row.store(candidate))
                return found;
    return std::nullopt;
}

QString PlainHref(const QString& href) {
    QString plain = href;
    return plain.replace(u"%20"_s, u" "_s).replace(u"&amp;"_s, u"&"_s, Qt::CaseInsensitive).trimmed();
}

QString ChartPageFive(const QString& href) {
    QString address = href.endsWith(u'/') ? href.chopped(1) : href;
    const QString digits = GetNumberFromEnd(GetStringFromEnd(address, u"/"_s));
    return digits.isEmpty() ? QString() : address.replace(digits, u"5"_s);
}

} // namespace qlm
