// SPDX-License-Identifier: MIT
#include "gather/IdResolution.h"

#include "browser/PageSigns.h"
#include "browser/ProfileLinkRules.h"
#include "browser/ScriptValues.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/Text.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int SecondsForScripts = 20;
constexpr int SecondsForID = 25;
constexpr qsizetype ShortestPageID = 3;
const QString DefaultKey = u"DisplayFriendId"_s;
const QString HiddenBrowser = u"webHide"_s;
} // namespace

void IdResolution::Trace(const QString& text) {
    m_app.diagnostics.Debug(u"debuggather.txt"_s, text);
}

QString IdResolution::ExtractFriendID(const QString& link) {
    QString id;
    m_app.diagnostics.Trap("ExtractFriendID", [&] {
        const bool video = Has(link, m_app.Expand(u"http://{VideoHost}"_s));
        id = DigitsBehind(link, video ? u"channelid="_s : u"friendid="_s);
        if (id.isEmpty() && m_app.state.blnNewLayout)
            id = DigitsBehind(link, u"?t="_s);
    });
    return id;
}

BrowserControl& IdResolution::BrowserOf(const QString& name) const {
    return name == HiddenBrowser ? m_app.webHide() : m_app.WebBrowser1();
}

bool IdResolution::MayFetch() const {
    return m_app.controls.Ticked("optFullGather"_L1) ||
           m_app.controls.Ticked("optImportClickedProfiles"_L1) ||
           m_app.state.CurrentAction == ActivityWord::Accepting;
}

QString IdResolution::GetFriendIDFromLink(const Element& link) {
    JudgedLink judged(m_app, link);
    return GetFriendIDFromLink(judged);
}

QString IdResolution::GetFriendIDFromLink(JudgedLink& link) {
    QString id;
    m_app.diagnostics.Trap("GetFriendIDFromLink", [&] {
        QString found = ResolveFromPage(link);
        if (!IsNumeric(found) && MayFetch() && IsVanityAddress(m_app, link.facts.Href()))
            found = FetchWithNotice(link);
        if (IsNumeric(found))
            id = found;
    });
    m_app.controls.SetVisible("ucpanelFullGatherIDNotify"_L1, false);
    return id;
}

// The cheap routes, the first that gives a number wins. The link's own address alone settles most of them.
QString IdResolution::ResolveFromPage(JudgedLink& link) {
    LinkFacts& facts = link.facts;
    QString id = ExtractFriendID(facts.Href());
    if (id.isEmpty() && link.InnerHas(2, u"friendid"))
        id = ValueAfterKey(facts.InnerHTML(2), u"friendid"_s);
    // There the value has the form ":12345,...".
    if (!IsNumeric(id) && (link.At(u"/my/notifications") || link.At(u"/browse/")))
        if (const qsizetype comma = id.indexOf(u','); comma > 0)
            id = id.mid(1, comma - 1);
    if (!IsNumeric(id)) {
        const QString number = TrailingNumber(facts.Href());
        if (!number.isEmpty() && WithoutScheme(facts.Href()) == m_app.Expand(u"{SiteRootHost}/"_s) + number &&
            !link.TextBegins(0, u"Back to"))
            id = number;
    }
    if (!IsNumeric(id) && link.At(u"fuseaction=mail.pendingfriendrequests") &&
        link.TextHas(2, u"Currently awaiting approval from") &&
        link.InnerHas(1, u"http://{MessagingHost}/index.cfm?fuseaction=mail.message"))
        id = ValueAfterKey(facts.InnerHTML(1), u"friendid"_s).section(u'&', 0, 0);
    if (!IsNumeric(id) && link.At(u"{SiteDomain}/music/charts") &&
        link.InnerHas(3, u"chartArtistAddToFriend"))
        id = ValueAfterKey(facts.InnerHTML(3), u"friendid"_s);
    return id;
}

QString IdResolution::FetchWithNotice(JudgedLink& link) {
    Trace(u"GFID1 - GoFetch"_s);
    const QString href = link.facts.Href();
    const QString name = NameToShow(link.facts.Text(), VanityName(href));
    Trace(u"GFID2 - "_s + name);
    const bool accepting = m_app.state.CurrentAction == ActivityWord::Accepting;
    m_app.controls.SetText("ucpanelFullGatherIDNotify"_L1,
                           accepting ? u"Accepting Friend Requests"_s : u"Full Gather"_s);
    m_app.controls.SetText("lblFullGatherIDNotify"_L1,
                           u"Gathering "_s + name + u"'s ID.\nPlease be patient.\n.........."_s);
    m_app.controls.SetVisible("ucpanelFullGatherIDNotify"_L1, true);
    const QString id = FetchFriendIDInBackground(href);
    Trace(u"GFID3 - "_s + id);
    return id;
}

QString IdResolution::FetchFriendIDInBackground(const QString& href) {
    BrowserControl& browser = m_app.webHide();
    // The hidden browser is left blank, however the run ends.
    const Waiting::Unowned tidy(m_app.waiting);
    const RunMark mark = m_app.waiting.Mark();
    auto goes = [this, &mark] { return m_app.waiting.IsCurrent(mark); };
    QString id;
    auto scriptCount = [&browser] {
        const Document document = browser.Document();
        return document ? document.Scripts().size() : 0;
    };
    Diagnostics::Guard(
        [&] {
            browser.SetSilent(true);
            browser.Navigate(u"about:blank"_s);
            m_app.waiting.Pump();
            browser.Navigate(href);
            m_app.waiting.WaitWhile([&] { return goes() && scriptCount() == 0; }, SecondsForScripts);
            m_app.waiting.WaitWhile(
                [&] {
                    id = goes() ? GetFriendIDFromDocument(HiddenBrowser, {}) : QString();
                    return goes() && !IsNumeric(id);
                },
                SecondsForID);
            if (IsNumeric(id)) {
                Trace(u"BACKGROUND1 - "_s + href + u" ("_s + id + u')');
                m_app.state.lstAlreadyFullGatheredPageIDs.append(href);
            } else if (goes() && m_app.controls.Ticked("optImportClickedProfiles"_L1)) {
                Trace(u"CLICK GATHER FAILED ("_s + QString::number(scriptCount()) + u" scripts) - "_s +
                      browser.Document().BodyHTML());
            }
            // In front it is the cover of a run that has begun since.
            if (!goes() && browser.Position() == 0)
                return;
            browser.Stop();
            m_app.waiting.Pump();
            browser.Navigate(u"about:blank"_s);
            m_app.waiting.Pump();
        },
        [&](const std::exception& error) { Trace(u"BACKGROUND3 - ERR: "_s + Diagnostics::Numbered(error)); });
    return id;
}

QString IdResolution::GetFriendIDFromDocument(const QString& browser, const QString& key) {
    if (const QString id = GetDisplayFriendID(browser, key); IsNumeric(id) && id.size() >= ShortestPageID)
        return id;
    const QString address =
        m_app.Expand(m_app.state.blnNewLayout
                         ? u"http://{SiteRootHost}/my/mail/new?t="_s
                         : u"http://{FriendsHost}/index.cfm?fuseaction=invite.addfriend_verify&friendID="_s);
    const Document document = BrowserOf(browser).Document();
    if (!document)
        return {};
    for (const Element& link : document.Links())
        if (const QString href = link.Href(); Has(href, address))
            return ExtractFriendID(href);
    return {};
}

QString IdResolution::GetDisplayFriendID(const QString& browser, const QString& key) {
    const Document document = BrowserOf(browser).Document();
    if (!document || document.Body().IsNull())
        return {};
    QString id;
    for (const Element& script : document.Scripts())
        if (const auto value = ScriptValue(script.Read(ElementText::Text), key.isEmpty() ? DefaultKey : key))
            id = *value;
    if (!IsNumeric(id))
        id = ReportedUserId(document.BodyHTML());
    return IsNumeric(id) ? id : QString();
}

} // namespace qlm
