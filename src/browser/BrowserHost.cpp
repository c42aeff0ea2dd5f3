// SPDX-License-Identifier: MIT
#include "browser/BrowserHost.h"

#include "browser/NavigationGuard.h"
#include "browser/PageBoxes.h"
#include "browser/PageTests.h"
#include "browser/ScriptEdits.h"
#include "campaigns/Pacing.h"
#include "core/ActionTick.h"
#include "core/App.h"
#include "core/Text.h"
#include "gather/GatheredList.h"
#include "gather/IdResolution.h"
#include "gather/ProfileLinks.h"

#include <algorithm>
#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int ResumeIntervalMs = 30000;
constexpr int ResumeSoonIntervalMs = 2000;
const QString InitialTrail = u"debuginitial.txt"_s;
const QString GatherTrail = u"debuggather.txt"_s;
const QString ComposePage = u"{MessagingHost}/index.cfm?fuseaction=mail.message"_s;

// Texts that would expose the program's own step pages.
const std::vector<QString>& HiddenStatusTexts() {
    static const std::vector<QString> rows{
        u"join.processstep3"_s,
        u"join.step3"_s,
        u"{InviteHost}"_s,
    };
    return rows;
}
} // namespace

void BrowserHost::Attach() {
    m_app.timers->tmrHelper.SetHandler(
        [this] { m_app.diagnostics.Trap("tmrHelper_Timer", [this] { tmrHelper_Timer(); }); });
    BrowserEvents& events = m_app.WebBrowser1().events;
    events.beforeNavigate2 = [this](const NavigationRequest& request) {
        bool cancel = false;
        m_app.diagnostics.Trap("WebBrowser1_BeforeNavigate2",
                               [&] { cancel = WebBrowser1_BeforeNavigate2(request); });
        m_app.state.blnUserNavigated = false;
        return cancel;
    };
    events.newWindow2 = [this](const QString&) {
        bool cancel = false;
        m_app.diagnostics.Trap("WebBrowser1_NewWindow2", [&] { cancel = WebBrowser1_NewWindow2(); });
        return cancel;
    };
    events.documentComplete = [this](bool topLevel, const QString& url) {
        m_app.diagnostics.Trap("WebBrowser1_DocumentComplete",
                               [&] { WebBrowser1_DocumentComplete(topLevel, url); });
    };
    events.statusTextChange = [this](const QString& text) {
        m_app.diagnostics.Trap("WebBrowser1_StatusTextChange", [&] { WebBrowser1_StatusTextChange(text); });
    };
    events.contextMenu = [this] {
        bool allow = false;
        m_app.diagnostics.Trap("hGlobalDoc_oncontextmenu",
                               [&] { allow = m_app.pageBoxes->hGlobalDoc_oncontextmenu(); });
        return allow;
    };
}

bool BrowserHost::WebBrowser1_BeforeNavigate2(const NavigationRequest& request) {
    RunState& state = m_app.state;
    LearnTypedPasswords(request);
    if (m_app.WebBrowser1().RefusesNavigations() && !request.isProgram)
        return true;
    if (request.url == u"javascript:void()"_s &&
        m_app.pageTests->AddressContains(u"{MessagingHost}/index.cfm?fuseaction=mail"_s))
        return true;
    const bool isComposePage = m_app.pageTests->AddressContains(ComposePage, Qt::CaseSensitive);
    if (isComposePage && !m_app.WebBrowser1().Document().IsNull())
        ChangeJavascriptMessaging(m_app);
    else
        NoteFocusWindow(request.url);
    if (m_app.WebBrowser1().Document().IsNull() || request.url == u"about:blank"_s)
        return false;
    // A finished request may be redirected to an error page: that stays behind the cover until the next
    // target.
    if (state.intFRStep == 9)
        m_app.pacing->ShowCover();

    const bool loggingIn = state.CurrentAction == u"LOGIN"_s;
    if (loggingIn && Has(request.headers, m_app.Expand(u"{CreativeHost}"_s))) {
        m_app.diagnostics.Debug(InitialTrail, u"WebBefNav-Flash-Cancel"_s);
        return true;
    }
    if (loggingIn)
        m_app.diagnostics.Debug(InitialTrail, u"URL: "_s + request.url + u", Header: "_s + request.headers);

    const bool clickToGather = m_app.controls.Ticked("optImportClickedProfiles"_L1);
    if (clickToGather && state.CurrentAction.isEmpty() && request.headers.isEmpty() &&
        Has(request.url, m_app.Expand(u"{SiteDomain}"_s)))
        return GatherClickedProfile(request.url);
    if (!clickToGather && state.blnUserNavigated &&
        request.url.contains(m_app.Expand(u"{GroupsHost}"_s), Qt::CaseSensitive))
        return true;
    if (loggingIn)
        ReadTypedLogin(request);
    return false;
}

bool BrowserHost::GatherClickedProfile(const QString& url) {
    m_app.diagnostics.Debug(GatherTrail, u"CLICK-GATHER1 - "_s + url);
    const NavigationGuard guard(m_app.WebBrowser1());
    const Element link = FindProfileLink(url);
    if (link.IsNull())
        return false;
    m_app.diagnostics.Debug(GatherTrail, u"CLICK-GATHER4 - "_s + link.Href());
    AddClickedProfile(link);
    return true;
}

Element BrowserHost::FindProfileLink(const QString& url) {
    m_app.diagnostics.Debug(GatherTrail, u"CLICK-GATHER2"_s);
    for (const Element& link : m_app.WebBrowser1().Document().Links())
        if (link.Href().toLower() == url.toLower()) {
            m_app.diagnostics.Debug(GatherTrail, u"CLICK-GATHER3 - "_s + link.Href());
            if (m_app.profileLinks->IsProfileLink(link, true))
                return link;
        }
    return {};
}

void BrowserHost::AddClickedProfile(const Element& link) {
    const RunMark mark = m_app.waiting.Mark();
    const QString id = m_app.idResolution->GetFriendIDFromLink(link);
    // A run that was begun while the profile was fetched has nothing to do with it.
    if (!m_app.waiting.IsCurrent(mark))
        return;
    m_app.diagnostics.Debug(GatherTrail, u"CLICK-GATHER5 - "_s + id);
    if (!IsNumeric(id)) {
        m_app.ShowMessage(
            u"An error has occurred on MySpace's end while trying to retrieve the ID. Please try again."_s);
        return;
    }
    const bool known = m_app.gatheredList->IsInList(id, false);
    m_app.diagnostics.Debug(GatherTrail, u"CLICK-GATHER6 - "_s + FromBoolean(known));
    if (known)
        return;
    m_app.diagnostics.Debug(GatherTrail, u"CLICK-GATHER7 - ADD TO LIST"_s);
    m_app.gatheredList->ProcessArrayAndList(u"ADD"_s, 0, id, u"WebBrowser1_BeforeNavigate2"_s);
}

bool BrowserHost::WebBrowser1_NewWindow2() {
    const Document document = m_app.WebBrowser1().Document();
    if (document.IsNull())
        return false;
    const Element active = document.ActiveElement();
    if (active.IsNull() || !m_app.profileLinks->IsProfileLink(active, true))
        return false;
    m_app.WebBrowser1().Navigate(active.Href());
    return true;
}

void BrowserHost::WebBrowser1_DocumentComplete(bool topLevel, const QString& url) {
    m_app.WebBrowser1().SetSilent(true);
    Timers& timers = *m_app.timers;
    const QString address = m_app.WebBrowser1().LocationURL();
    if (address != u"about:blank"_s)
        m_app.controls.SetText("txtAddress"_L1, m_app.diagnostics.WithoutPasswords(address));
    if (url == u"about:blank"_s || m_app.state.blnHoldLinkCheck)
        return;
    timers.tmrAutoResume.SetInterval(ResumeIntervalMs);
    if (timers.tmrCheckLinkLoaded.Enabled() && topLevel) {
        m_app.actionTick->tmrCheckLinkLoaded_Timer();
        if (!timers.Timer1.Enabled())
            timers.tmrAutoResume.SetInterval(ResumeSoonIntervalMs);
    }
    if (timers.tmrAutoResume.Enabled() && m_app.state.CurrentAction != u"INV"_s) {
        timers.tmrAutoResume.SetInterval(ResumeIntervalMs);
        timers.tmrAutoResume.Restart();
    }
}

void BrowserHost::WebBrowser1_StatusTextChange(const QString& text) {
    m_app.WebBrowser1().SetSilent(true);
    const bool hidden = std::any_of(HiddenStatusTexts().begin(), HiddenStatusTexts().end(),
                                    [&](const QString& part) { return Has(text, m_app.Expand(part)); });
    if (!hidden && !m_app.pageTests->AddressContains(u"{GroupsHost}"_s, Qt::CaseSensitive))
        m_app.controls.SetText("lblStatus"_L1, m_app.diagnostics.WithoutPasswords(text) + u"  "_s);
}

} // namespace qlm
