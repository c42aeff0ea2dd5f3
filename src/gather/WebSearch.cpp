// SPDX-License-Identifier: MIT
#include "gather/WebSearch.h"

#include "browser/ProfileLinkRules.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/Text.h"
#include "gather/GatheredList.h"
#include "gather/IdResolution.h"
#include "gather/ProfileFilters.h"
#include "gather/ProfileVisit.h"
#include "steps/StopResume.h"

#include <QRegularExpression>
#include <QScopeGuard>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int ResultsOnAPage = 100;
constexpr int SecondsForProfile = 15;
constexpr auto FetchLabel = "frmGoogleSearch.lblFullGatheringID"_L1;
} // namespace

WebSearch::WebSearch(App& app) : m_app(app) {
    RegisterForm();
}

void WebSearch::Trace(const QString& text) {
    m_app.diagnostics.Debug(u"debuggoogle.txt"_s, text);
}

bool WebSearch::IsOwn(qint32 entry) const {
    return m_app.state.CurrentAction == ActivityWord::Gathering && entry == m_app.state.lngEntryNumber;
}

bool WebSearch::Goes() const {
    return IsOwn(m_entry) && !m_app.state.blnStopGoogle;
}

void WebSearch::Run() {
    m_app.state.blnStopGoogle = false;
    m_app.state.blnHoldLinkCheck = false;
    const qint32 entry = ++m_app.state.lngEntryNumber;
    const bool asked = AskForTerm();
    // Whoever has begun anew meanwhile has the window now.
    if (!IsOwn(entry))
        return;
    m_entry = entry;
    if (asked) {
        ShowProgress();
        ExtractGoogleProfiles(m_app.controls.Text("frmGoogleSearch.txtGoogleTerm"_L1));
        if (m_app.state.optFilterWhenGathering && !m_app.Get<ProfileFilters>().AllOff())
            FilterWholeList();
    }
    if (!IsOwn(entry)) {
        if (entry == m_entry)
            m_app.platform.Dialogs().CloseForm(u"frmGoogleSearch"_s);
        return;
    }
    if (asked)
        Finish();
    m_app.platform.Dialogs().CloseForm(u"frmGoogleSearch"_s);
    if (IsOwn(entry))
        m_app.Get<StopResume>().StopAll(StopReason::WebSearchBegins);
}

void WebSearch::Finish() {
    if (m_app.Get<StopResume>().DoFinishedExit())
        return;
    QString text = u"Finished extracting Google results."_s;
    if (m_app.controls.Ticked("optQuickGather"_L1))
        text += u"\r\n\r\nYou might get more results if you select the 'full-gather' option."_s;
    m_app.ShowMessage(text);
}

void WebSearch::ExtractGoogleProfiles(const QString& term) {
    m_app.diagnostics.Trap("ExtractGoogleProfiles", [&] {
        const QString address = m_app.Expand(u"http://{WebSearchHost}/search?q=site%3A{SiteDomain}+"_s) +
                                UrlEncode(term) + u"&num=100&hl=en&start="_s;
        m_app.diagnostics.Debug(u"debuggoogle.txt"_s, u"START - "_s + m_app.NowText(), true);
        Trace(term);
        Trace(address + u'0');
        qint32 before = 0;
        int page = 0;
        do {
            before = m_app.Get<GatheredList>().UBound();
            m_app.waiting.Pump();
            m_app.waiting.Pump();
            // A page that can't be had is one without results.
            const QString html = m_app.platform.Http()
                                     .Get(address + QString::number(page * ResultsOnAPage))
                                     .value_or(QString());
            Trace(html);
            ExtractIDsFromText(html);
            m_app.waiting.Pump();
            m_app.waiting.Pump();
            m_app.Get<GatheredList>().SetScannedLabel();
            ++page;
        } while (Goes() && m_app.Get<GatheredList>().UBound() != before);
    });
}

// Neither the black list nor the own ID is asked here.
void WebSearch::ExtractIDsFromText(const QString& html) {
    m_app.diagnostics.Trap("ExtractIDsFromText", [&] {
        const bool quick = m_app.controls.Ticked("optQuickGather"_L1);
        const QRegularExpression pattern(
            quick ? u"friendid=[0-9]+"_s
                  : QRegularExpression::escape(m_app.Expand(u"http://{SiteRootHost}/"_s)) + u"[A-Za-z0-9]+"_s,
            QRegularExpression::CaseInsensitiveOption);
        int matches = 0;
        int duplicates = 0;
        for (auto found = pattern.globalMatch(html); found.hasNext();) {
            const QString match = found.next().captured();
            ++matches;
            if (!Goes())
                continue;
            const QString id = quick ? m_app.Get<IdResolution>().ExtractFriendID(match) : FetchProfile(match);
            if (id.isEmpty() || !IsOwn(m_entry))
                continue;
            if (m_app.Get<GatheredList>().IsInList(id, false))
                ++duplicates;
            else
                m_app.Get<GatheredList>().Add(id, u"ExtractIDsFromText"_s);
        }
        Trace(u"COUNT: "_s + QString::number(matches) + u" ("_s + QString::number(duplicates) +
              u" duplicates)"_s);
    });
}

QString WebSearch::FetchProfile(const QString& address) {
    Trace(u"URL: "_s + address);
    QString id;
    if (!m_app.Get<GatheredList>().IsInList(address, true)) {
        m_app.controls.SetText(FetchLabel, u"Fetching "_s + VanityName(address) + u"'s ID"_s);
        id = m_app.Get<IdResolution>().FetchFriendIDInBackground(address);
        m_app.controls.SetText(FetchLabel, u".................................."_s);
    }
    Trace(u"ID: "_s + id);
    return id;
}

// The IDs that stood in the list before are looked at too.
void WebSearch::FilterWholeList() {
    const ProfileVisit visit{m_app, [this] { return Goes(); }, SecondsForProfile};
    qint32 index = 0;
    while (Goes() && !m_app.Get<GatheredList>().IsEmpty() && index <= m_app.Get<GatheredList>().UBound()) {
        m_app.state.strCurrentID = m_app.state.arrFriendIDs.at(index);
        const bool remove = visit.Fails(m_app.state.strCurrentID);
        if (!Goes())
            return;
        const qsizetype before = m_app.state.arrFriendIDs.size();
        if (remove)
            m_app.Get<GatheredList>().Remove(index, u"picScanStart_Click"_s);
        // An entry beyond the view stays.
        if (m_app.state.arrFriendIDs.size() == before)
            ++index;
    }
}

} // namespace qlm
