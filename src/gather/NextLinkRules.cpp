// SPDX-License-Identifier: MIT
#include "gather/NextLinkRules.h"

#include "browser/PageView.h"
#include "core/Text.h"
#include "gather/IdResolution.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

enum class HrefTest { Contains, ContainsExact, BeginsWith };

// {Role}s are replaced.
struct HrefMark {
    const char16_t* text;
    HrefTest test = HrefTest::Contains;
};
using HrefMarks = std::vector<HrefMark>;

enum class TextTest { Any, Is, Contains, BeginsWith };

using LinkSign = bool (*)(const NextLinkCandidate&);
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

bool IsPagingAllowed(const NextLinkCandidate& c) {
    return !Has(c.outerHTML(), u"disablePaging"_s);
}

bool IsShort(const NextLinkCandidate& c) {
    return c.text.size() <= 5;
}

struct NextLinkRow {
    TextTest test;
    std::vector<const char16_t*> texts; // one of them passes the test
    std::vector<HrefMarks> hrefs;       // all marks of one group hold; none: any address
    Store store = Href;
    PageKinds pages = {};    // that the link stands on; none: any page
    LinkSign sign = nullptr; // and this holds; nullptr: nothing more is asked
};

const std::vector<NextLinkRow>& NextLinkRows() {
    using enum TextTest;
    constexpr HrefTest Exact = HrefTest::ContainsExact;
    constexpr HrefTest Begins = HrefTest::BeginsWith;
    static const PageKinds MailWithNextPage{{{In::Address, u"fuseaction=mail."}, {In::Element, u"nextPage"}}};
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
        {Is, {u"next"}, {{{u"javascript:"}}}, Click, {}, IsPagingAllowed},
        {Any, {}, {}, ClickElement, MailWithNextPage},
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
        {Is, {u"next »"}, {}, VideoPage, At(u"http://{VideoHost}")},
        {BeginsWith, {u"more"}, {}, ChartPage, At(u"{SiteDomain}/music/charts"), IsShort},
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

bool Holds(const HrefMark& mark, const QString& href, const PageView& page) {
    const QString text = page.Expand(QString::fromUtf16(mark.text));
    switch (mark.test) {
    case HrefTest::Contains:
        return Has(href, text);
    case HrefTest::ContainsExact:
        return href.contains(text);
    case HrefTest::BeginsWith:
        return href.startsWith(text, Qt::CaseInsensitive);
    }
    return false;
}

bool HrefFits(const NextLinkRow& row, const QString& href, const PageView& page) {
    if (row.hrefs.empty())
        return true;
    return std::any_of(row.hrefs.begin(), row.hrefs.end(), [&](const HrefMarks& group) {
        return std::all_of(group.begin(), group.end(),
                           [&](const HrefMark& mark) { return Holds(mark, href, page); });
    });
}

bool Fits(const NextLinkRow& row, const NextLinkCandidate& candidate, const PageView& page) {
    return TextFits(row, candidate.lower) && HrefFits(row, candidate.href, page) && page.IsOneOf(row.pages) &&
           (!row.sign || row.sign(candidate));
}

} // namespace

std::optional<NextLink> MatchNextLink(const NextLinkCandidate& candidate, const PageView& page) {
    for (const NextLinkRow& row : NextLinkRows())
        if (Fits(row, candidate, page))
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
