// SPDX-License-Identifier: MIT
#include "steps/BrowserHost.h"

#include "browser/Cover.h"
#include "browser/PageBoxes.h"
#include "browser/PageSigns.h"
#include "browser/ProfileLinks.h"
#include "browser/ScriptEdits.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/Text.h"
#include "steps/ActionTick.h"
#include "steps/Steps.h"

#include <algorithm>
#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int ResumeIntervalMs = 30000;
constexpr int ResumeSoonIntervalMs = 2000;
const QString InitialTrail = u"debuginitial.txt"_s;
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
                               [&] { allow = m_app.Get<PageBoxes>().hGlobalDoc_oncontextmenu(); });
        return allow;
    };
}

bool BrowserHost::WebBrowser1_BeforeNavigate2(const NavigationRequest& request) {
    RunState& state = m_app.state;
    LearnTypedPasswords(request);
    if (m_app.WebBrowser1().RefusesNavigations() && !request.isProgram)
        return true;
    if (request.url == u"javascript:void()"_s &&
        m_app.Get<PageSigns>().AddressContains(u"{MessagingHost}/index.cfm?fuseaction=mail"_s))
        return true;
    const bool isComposePage = m_app.Get<PageSigns>().AddressContains(ComposePage, Qt::CaseSensitive);
    if (isComposePage && !m_app.WebBrowser1().Document().IsNull())
        ChangeJavascriptMessaging(m_app);
    else
        NoteFocusWindow(request.url);
    if (m_app.WebBrowser1().Document().IsNull() || request.url == u"about:blank"_s)
        return false;
    // A finished request may be redirected to an error page: that stays behind the cover until the next
    // target.
    if (state.intFRStep == FriendStep::AfterSend)
        m_app.Get<Cover>().Show();

    const bool loggingIn = state.CurrentAction == ActivityWord::Login;
    if (loggingIn && Has(request.headers, m_app.Expand(u"{CreativeHost}"_s))) {
        m_app.diagnostics.Debug(InitialTrail, u"WebBefNav-Flash-Cancel"_s);
        return true;
    }
    if (loggingIn)
        m_app.diagnostics.Debug(InitialTrail, u"URL: "_s + request.url + u", Header: "_s + request.headers);

    const bool clickToGather = m_app.controls.Ticked("optImportClickedProfiles"_L1);
    if (clickToGather && state.CurrentAction.isEmpty() && request.headers.isEmpty() &&
        Has(request.url, m_app.Expand(u"{SiteDomain}"_s)))
        return gatherClicked(request.url);
    if (!clickToGather && state.blnUserNavigated && state.CurrentAction != ActivityWord::Invites &&
        request.url.contains(m_app.Expand(u"{GroupsHost}"_s), Qt::CaseSensitive))
        return true;
    if (loggingIn)
        ReadTypedLogin(request);
    return false;
}

bool BrowserHost::WebBrowser1_NewWindow2() {
    const Document document = m_app.WebBrowser1().Document();
    if (document.IsNull())
        return false;
    const Element active = document.ActiveElement();
    if (active.IsNull() || !m_app.Get<ProfileLinks>().IsProfileLink(active, true))
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
        m_app.Get<ActionTick>().tmrCheckLinkLoaded_Timer();
        if (!timers.Timer1.Enabled())
            timers.tmrAutoResume.SetInterval(ResumeSoonIntervalMs);
    }
    if (timers.tmrAutoResume.Enabled() && m_app.state.CurrentAction != ActivityWord::Invites) {
        timers.tmrAutoResume.SetInterval(ResumeIntervalMs);
        timers.tmrAutoResume.Restart();
    }
}

void BrowserHost::WebBrowser1_StatusTextChange(const QString& text) {
    m_app.WebBrowser1().SetSilent(true);
    const bool hidden = std::any_of(HiddenStatusTexts().begin(), HiddenStatusTexts().end(),
                                    [&](const QString& part) { return Has(text, m_app.Expand(part)); });
    if (!hidden && !m_app.Get<PageSigns>().AddressContains(u"{GroupsHost}"_s, Qt::CaseSensitive))
        m_app.controls.SetText("lblStatus"_L1, m_app.diagnostics.WithoutPasswords(text) + u"  "_s);
}

} // namespace qlm
