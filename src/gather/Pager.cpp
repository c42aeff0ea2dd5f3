// SPDX-License-Identifier: MIT
#include "gather/Pager.h"

#include "browser/PageSigns.h"
#include "browser/PageView.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/Text.h"
#include "gather/NextLinkRules.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

// Which link of the new layout leads on, by the page's address; the first row that fits is asked alone.
const std::vector<Pager::PageRow>& Pager::PageRows() {
    static const std::vector<PageRow> rows{
        {u"/friends", [](Pager& pager) { return pager.LinkTitledNextPage(false); }},
        {u"{SiteDomain}/browse", [](Pager& pager) { return pager.CaptionToClick(); }},
        {u"{SiteDomain}/search/", [](Pager& pager) { return pager.LinkTitledNextPage(false); }},
        {u"{SiteDomain}/music/charts", [](Pager& pager) { return pager.ShowMoreOfChart(); }},
        {u"{SiteDomain}/forums/t/", [](Pager& pager) { return pager.LinkWithText(u"next »"_s); }},
    };
    return rows;
}

QString Pager::GetNextPageHref() {
    for (const PageRow& row : PageRows())
        if (m_app.Get<PageSigns>().AddressContains(QString::fromUtf16(row.address)))
            return row.find(*this);
    return {};
}

QString Pager::CaptionToClick() {
    const QString caption = LinkTitledNextPage(true);
    m_app.state.blnClickNextLink = !caption.isEmpty();
    return caption;
}

// False when the run is over.
bool Pager::TurnOn(const Document& document) {
    m_app.waiting.Turn();
    if (m_app.state.CurrentAction != ActivityWord::Gathering)
        return false;
    if (!document.IsPresent())
        throw BrowserError();
    return true;
}

// Each link has its turn of the message loop, but all are read before the first: a turn lets go of what is
// known of the page.
QString Pager::WalkLinks(ElementText which, const LinkAnswer& answer) {
    const Document document = m_app.WebBrowser1().Document();
    std::vector<std::pair<Element, QString>> links;
    for (const Element& link : document.Links())
        links.emplace_back(link, link.Read(which).trimmed().toLower());
    for (const auto& [link, text] : links) {
        if (!TurnOn(document))
            return {};
        if (const std::optional<QString> found = answer(link, text))
            return *found;
    }
    return {};
}

QString Pager::LinkTitledNextPage(bool wantText) {
    return WalkLinks(ElementText::Title,
                     [wantText](const Element& link, const QString& title) -> std::optional<QString> {
                         if (title != u"next page"_s || Has(link.OuterHTML(), u"disabled"_s))
                             return std::nullopt;
                         return wantText ? link.InnerText().trimmed() : link.Href();
                     });
}

QString Pager::LinkWithText(const QString& wanted) {
    return WalkLinks(ElementText::InnerText,
                     [&wanted](const Element& link, const QString& text) -> std::optional<QString> {
                         return text == wanted ? std::optional(link.Href()) : std::nullopt;
                     });
}

QString Pager::ShowMoreOfChart() {
    const Element more = m_app.WebBrowser1().Document().GetElementById(u"showMoreChartItems"_s);
    if (more.IsNull())
        return {};
    QString href = more.Href();
    if (href.isEmpty()) {
        const std::vector<Element> links = more.Tags(u"a"_s);
        href = links.empty() ? QString() : links.front().Href();
    }
    const QString next = ChartPageFive(href);
    return next.isEmpty() ? u"DONTLOOKAGAIN"_s : next;
}

namespace {

std::vector<NextLinkCandidate> Candidates(const Document& document) {
    std::vector<NextLinkCandidate> candidates;
    for (const Element& link : document.Links()) {
        const QString text = link.InnerText().trimmed();
        candidates.push_back(
            {PlainHref(link.Href()), text, text.toLower(), [link] { return link.OuterHTML(); }});
    }
    return candidates;
}

} // namespace

QString Pager::FindNextLink() {
    const Document document = m_app.WebBrowser1().Document();
    const QString nextPage = u"nextPage"_s;
    const bool hasNextPage = !document.GetElementById(nextPage).IsNull();
    const KeptPage page({.address = m_app.Get<PageSigns>().LocationURL(),
                         .ids = hasNextPage ? QStringList{nextPage} : QStringList()},
                        [this](const QString& text) { return m_app.Expand(text); });
    for (const NextLinkCandidate& candidate : Candidates(document)) {
        if (!TurnOn(document))
            return {};
        if (const std::optional<NextLink> next = MatchNextLink(candidate, page)) {
            m_app.diagnostics.Debug(u"debuggather.txt"_s, u"GPP12 - FOUND! - "_s + candidate.href);
            m_app.state.blnClickNextLink = next->click;
            return next->link;
        }
    }
    return {};
}

bool Pager::ClickNextPageLink(const QString& caption, const QString& newHref) {
    m_app.Get<PageSigns>().WaitForDocument();
    m_app.WebBrowser1().SetSilent(true);
    const bool onEventForm = m_app.state.CurrentAction == ActivityWord::Invites &&
                             m_app.Get<PageSigns>().AddressContains(u"{EventsHost}/event/addedit"_s);
    const Document document = m_app.WebBrowser1().Document();
    for (const Element& link : document.Links()) {
        if (link.InnerText().trimmed().toLower() != caption.trimmed().toLower())
            continue;
        if (onEventForm) {
            const QString className = link.Read(ElementText::ClassName);
            if (className != u"myspacepaginationDiv"_s && !Has(className, u"myspace-paginate"_s))
                continue;
        } else if (!newHref.isEmpty()) {
            link.SetAttribute(u"href"_s, newHref);
            m_app.diagnostics.Debug(u"debugevinv.txt"_s, u"NEXT LINK REPLACED"_s);
        }
        link.Click();
        m_app.waiting.Pump();
        m_app.diagnostics.DebugForAction(u"NEXT LINK CLICKED"_s);
        return true;
    }
    m_app.diagnostics.DebugForAction(u"CNPL3 (NOT CLICKED) - "_s + document.BodyHTML());
    return false;
}

} // namespace qlm
