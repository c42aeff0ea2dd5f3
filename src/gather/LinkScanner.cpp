// SPDX-License-Identifier: MIT
#include "gather/LinkScanner.h"

#include "browser/PageSigns.h"
#include "browser/ProfileLinkRules.h"
#include "browser/ProfileLinks.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/Text.h"
#include "gather/GatherDriver.h"
#include "gather/GatheredList.h"
#include "gather/IdResolution.h"
#include "gather/Pager.h"
#include "gather/ProfileFilters.h"
#include "steps/StopResume.h"

#include <QSet>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int SecondsForFirstPage = 5;
constexpr qsizetype RememberedPages = 1000;
constexpr size_t LinksJudgedAtOnce = 50;
} // namespace

bool LinkScanner::IsCommentsOrNotificationsPage() {
    return IsCommentsOrNotificationsAddress(m_app.Get<PageSigns>().LocationURL());
}

void LinkScanner::Trace(const QString& text) {
    m_app.diagnostics.Debug(u"debuggather.txt"_s, text);
}

void LinkScanner::GatherPageProfiles() {
    const Waiting::Owned owned(m_app.waiting);
    Diagnostics::Guard([&] { RunPass(); }, [&](const std::exception& error) { HandleError(error); });
}

void LinkScanner::HandleError(const std::exception& error) {
    m_app.waiting.LeaveIfObsolete();
    Trace(u"GPP ERROR: "_s + Diagnostics::Numbered(error));
    if (!m_app.state.blnHoldLinkCheck)
        m_app.state.blnRetryGatherPage = true;
}

void LinkScanner::RunPass() {
    RunState& state = m_app.state;
    Pass pass;
    m_app.WebBrowser1().SetSilent(true);
    pass.lngStartCount = static_cast<qint32>(m_app.controls.Items("lstFriendIDs"_L1).size());
    pass.lngArrayCount = static_cast<qint32>(state.arrFriendIDs.size());
    state.intCurrentIDIndex = 0;
    m_app.Get<PageSigns>().WaitForDocument();
    state.blnClickNextLink = false;
    Trace(u"GPP0a0a0 - "_s + QString::number(m_app.Get<GatheredList>().UBound()) + u", "_s +
          QString::number(state.arrBlacklistIDs.size() - 1));
    if (state.strNextPageLink.isEmpty() && !IsCommentsOrNotificationsPage())
        WaitForFirstPage();
    m_app.waiting.LeaveIfObsolete();
    m_app.timers->tmrAutoResume.Restart();
    state.strNextPageLink.clear();
    state.strGatherStartURL = m_app.Get<PageSigns>().LocationURL();
    state.arrSeenLinks = {};
    Trace(u"GPP1.2"_s);
    PrepareFullGather(pass);
    ShowScanStatus();
    m_app.waiting.Pump();
    ScanLinks(pass);
    m_app.waiting.LeaveIfObsolete();
    FindNextPage();
    RemindOfFullGather(pass);
    pass.guard.reset();
    Trace(u"GPP13 - NEXT PAGE LINK: "_s + state.strNextPageLink);
    if (m_app.Get<GatherDriver>().FilterPassWanted())
        FilterNewProfiles(pass);
}

void LinkScanner::ShowScanStatus() {
    m_app.SetStatus(m_app.state.blnComparingIDs
                        ? u"Comparing ID's on the current page to the gathered list..."_s
                        : u"Gathering ID's from the current page..."_s);
}

void LinkScanner::WaitForFirstPage() {
    m_app.SetStatus(u"Waiting for the page to finish loading..."_s);
    m_app.Get<StopResume>().PauseLinkCheck();
    m_app.waiting.WaitWhile(
        [&] {
            // A page that is just being replaced can't be read and shows no sign yet.
            bool shows = false;
            Diagnostics::IgnoreErrors([&] { shows = m_app.Get<Pager>().ShowsNextPageSign(); });
            return !shows;
        },
        SecondsForFirstPage);
    m_app.Get<StopResume>().ResumeLinkCheck();
    Trace(u"GPP1 - "_s + m_app.WebBrowser1().Document().BodyHTML());
    Trace(u"GPP1.1"_s);
}

// While profiles are fetched in the hidden browser the page must stay where it is.
void LinkScanner::PrepareFullGather(Pass& pass) {
    if (!m_app.controls.Ticked("optFullGather"_L1))
        return;
    if (m_app.state.lstAlreadyFullGatheredPageIDs.size() > RememberedPages) {
        m_app.state.lstAlreadyFullGatheredPageIDs.clear();
        return;
    }
    m_app.WebBrowser1().Stop();
    m_app.waiting.Pump();
    pass.guard.emplace(m_app.WebBrowser1());
    Trace(u"GPP1.3"_s);
}

// Of a page that grows in place only the new part is looked at, in a copy. The copy stands at about:blank, so
// it has to be told where its relative addresses lead.
Document LinkScanner::ChooseDocument() {
    Trace(u"GPP1.4"_s);
    if (!IsCommentsOrNotificationsPage())
        return m_app.WebBrowser1().Document();
    const QString html = m_app.WebBrowser1().Document().BodyHTML().mid(m_app.state.lngPageScanOffset);
    m_app.webTemp().Navigate(u"about:blank"_s);
    m_app.Get<PageSigns>().WaitForDocument(m_app.webTemp());
    m_app.webTemp().Document().Body().SetInnerHTML(
        u"<base href=\""_s + m_app.Get<PageSigns>().LocationURL().toHtmlEscaped() + u"\">"_s + html);
    return m_app.webTemp().Document();
}

struct LinkScanner::LinkInTurn {
    QString href;
    bool isProfile = false;
    std::optional<JudgedLink> judged; // of a profile link, with all that its turn asks for
    bool remember = true;
    bool seen = false;
};

// The links are walked over with a turn of the message loop for each, and each turn lets go of what is known
// of the page. So some of them are judged at once, before their turns come.
void LinkScanner::ScanLinks(Pass& pass) {
    const Document document = ChooseDocument();
    const std::vector<Element> links = document.Links();
    const auto page = std::make_shared<PageFacts>();
    for (size_t begin = 0; begin < links.size(); begin += LinksJudgedAtOnce) {
        const size_t end = std::min(begin + LinksJudgedAtOnce, links.size());
        const auto first = links.begin() + static_cast<qsizetype>(begin);
        const auto last = links.begin() + static_cast<qsizetype>(end);
        std::vector<LinkInTurn> inTurn = JudgeLinks(document, {first, last}, page);
        for (LinkInTurn& link : inTurn) {
            m_app.waiting.Turn();
            if (m_app.state.blnHoldLinkCheck)
                return;
            if (!document.IsPresent())
                throw BrowserError();
            if (!WalkOver(pass, link))
                return;
        }
    }
}

std::vector<LinkScanner::LinkInTurn> LinkScanner::JudgeLinks(const Document& document,
                                                             const std::vector<Element>& links,
                                                             const std::shared_ptr<PageFacts>& page) const {
    m_app.Pump().Queue().EndTurn();
    document.Expect(links);
    page->ForgetSmall();
    std::vector<LinkInTurn> inTurn;
    QSet<QString> seenHere;
    for (const Element& element : links) {
        LinkInTurn& link = inTurn.emplace_back();
        link.href = element.Href();
        link.seen = seenHere.contains(link.href) || IsInArray(link.href, m_app.state.arrSeenLinks);
        if (link.seen)
            continue;
        JudgedLink judged(m_app, element, page);
        link.isProfile = m_app.Get<ProfileLinks>().IsProfileLink(judged, false);
        link.remember = judged.remember;
        if (link.remember)
            seenHere.insert(link.href);
        if (!link.isProfile)
            continue;
        // What the link's turn will ask for is read now and kept.
        judged.facts.Id();
        judged.facts.Text();
        judged.facts.Text(2);
        m_app.Get<IdResolution>().ResolveFromPage(judged);
        link.judged.emplace(std::move(judged));
    }
    return inTurn;
}

bool LinkScanner::WalkOver(Pass& pass, LinkInTurn& link) {
    m_app.state.blnRememberLink = true;
    if (link.seen) {
        ++pass.lngRepeats;
        return true;
    }
    if (link.isProfile)
        LookAtLink(pass, *link.judged);
    if (m_app.state.blnHoldLinkCheck)
        return false;
    m_app.state.blnRememberLink = link.remember;
    if (link.remember)
        m_app.state.arrSeenLinks.append(link.href);
    return true;
}

void LinkScanner::LookAtLink(Pass& pass, JudgedLink& link) {
    const RunState& state = m_app.state;
    const QString href = link.facts.Href();
    Trace(u"GPP3 - "_s + href);
    if (state.optFilterOnlineNow && state.optFilterWhenGathering &&
        !m_app.Get<ProfileFilters>().IsUserOnline(link))
        return;
    const bool whosOnline = Has(link.facts.Id(), u"whosonline"_s);
    if (state.CurrentAction == ActivityWord::Accepting && !whosOnline) {
        CollectRequest(link);
        return;
    }
    QString id;
    if (!IsFoundersLink(link) && !whosOnline) {
        const bool fetchedBefore =
            m_app.controls.Ticked("optFullGather"_L1) && m_app.Get<GatheredList>().IsInList(href, true);
        if (!fetchedBefore)
            id = m_app.Get<IdResolution>().GetFriendIDFromLink(link);
        m_app.waiting.LeaveIfObsolete();
        Trace(u"GPP4 - "_s + id);
    }
    if (!id.trimmed().isEmpty())
        Consider(pass, id.trimmed());
}

void LinkScanner::CollectRequest(JudgedLink& link) {
    if (m_app.Get<GatheredList>().IsInList(link.facts.Href(), true))
        return;
    const QString id = m_app.Get<IdResolution>().GetFriendIDFromLink(link).trimmed();
    // Fetching a profile takes a while; the run may be over.
    m_app.waiting.LeaveIfObsolete();
    if (!id.isEmpty() && id != m_app.state.MyProfileID && !m_app.Get<GatheredList>().IsInList(id, false))
        m_app.controls.AddItem("lstAcceptIDs"_L1, id);
}

bool LinkScanner::IsFoundersLink(JudgedLink& link) const {
    const QString address = m_app.deployment.Value(u"FounderAddress"_s);
    const QString& href = link.facts.Href();
    if (!address.isEmpty() && (href.compare(address, Qt::CaseInsensitive) == 0 ||
                               href.compare(address + u'/', Qt::CaseInsensitive) == 0))
        return true;
    const QString name = m_app.deployment.Value(u"FounderName"_s);
    return !name.isEmpty() && link.facts.Text().trimmed() == name;
}

void LinkScanner::Consider(Pass& pass, const QString& id) {
    const RunState& state = m_app.state;
    GatheredList& list = m_app.Get<GatheredList>();
    const bool listed = list.IsInList(id, false);
    if (state.blnComparingIDs) {
        Trace(u"GPP5 - "_s + id);
        if (!listed)
            return;
        Trace(u"GPP6 - ALREADY IN LIST"_s);
        const auto index = static_cast<qint32>(state.arrFriendIDs.indexOf(id));
        list.Remove(index, u"ScanForProfiles - 1"_s);
        return;
    }
    Trace(u"GPP7 - "_s + id);
    if (listed) {
        Trace(u"GPP8 - "_s + id);
        pass.blnFoundButKnown = true;
        return;
    }
    Trace(u"GPP9 - "_s + id);
    if (IsInArray(id, state.arrBlacklistIDs)) {
        Trace(u"GPP10 - IN BLACK LIST"_s);
        return;
    }
    if (id == state.MyProfileID)
        return;
    Trace(u"GPP11 - "_s + id + u", ADD TO LIST"_s);
    list.Add(id, u"ScanForProfiles"_s);
}

void LinkScanner::FindNextPage() {
    RunState& state = m_app.state;
    if (!m_app.controls.Ticked("optScanFollowing"_L1) || !state.strNextPageLink.isEmpty() ||
        state.CurrentAction != ActivityWord::Gathering || IsCommentsOrNotificationsPage())
        return;
    m_app.SetStatus(u"Searching for the next page link..."_s);
    if (state.blnNewLayout)
        state.strNextPageLink = m_app.Get<Pager>().GetNextPageHref();
    if (state.strNextPageLink.isEmpty() && state.CurrentAction == ActivityWord::Gathering)
        state.strNextPageLink = m_app.Get<Pager>().FindNextLink();
    if (state.strNextPageLink == u"DONTLOOKAGAIN"_s)
        state.strNextPageLink.clear();
}

void LinkScanner::RemindOfFullGather(const Pass& pass) {
    const RunState& state = m_app.state;
    const bool grew = state.arrFriendIDs.size() > pass.lngArrayCount ||
                      m_app.controls.Items("lstFriendIDs"_L1).size() > pass.lngStartCount;
    if (!state.strNextPageLink.isEmpty() || grew || state.CurrentAction != ActivityWord::Gathering ||
        !m_app.controls.Ticked("optScanCurrentPage"_L1) || !m_app.controls.Ticked("optQuickGather"_L1) ||
        (state.optFilterOnlineNow && state.optFilterWhenGathering) || state.blnComparingIDs ||
        pass.blnFoundButKnown)
        return;
    m_app.Get<GatherDriver>().ShowPrompt(u"frmFullGatherReminder"_s);
}

} // namespace qlm
