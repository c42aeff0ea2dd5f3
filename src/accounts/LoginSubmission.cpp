// SPDX-License-Identifier: MIT
#include "accounts/LoginFlow.h"
#include "accounts/LoginForm.h"
#include "browser/PageBoxes.h"
#include "browser/PageSigns.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "steps/Steps.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int CompletePageSeconds = 15;
constexpr int FirstProblemLookMs = 36000;
constexpr int NextProblemLookMs = 2000;
} // namespace

void LoginFlow::DoLogin() {
    const QString error = m_app.diagnostics.Trap("DoLogin", [this] { FillAndSubmit(); });
    if (!error.isEmpty() && m_app.state.CurrentAction == ActivityWord::Login)
        m_app.timers->tmrCheckLinkLoaded.Restart();
}

void LoginFlow::FillAndSubmit() {
    RunState& state = m_app.state;
    const Waiting::Owned owned(m_app.waiting);
    m_app.WebBrowser1().SetSilent(true);
    m_app.SetStatus(u"Waiting for the page to load completely..."_s);
    WaitForCompletePage();
    WaitUntilIdle();
    const QString zone = u"Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Zones\\3"_s;
    Log(u"Submit Nonencrypted Form Data - "_s +
        m_app.platform.Settings().GetSetting(zone, u"1601"_s, u"x"_s));

    const Document document = m_app.WebBrowser1().Document();
    const bool isFilled =
        FillLoginForm(m_app.deployment, document, state.AccountEmail, state.AccountPassword);
    if (isFilled)
        if (const LoginButton button = FindLoginButton(m_app.deployment, document); button.element)
            Press(button.element, button.stopFirst);
    state.blnLinkFound = false;
    m_app.timers->tmrCheckLinkLoaded.Restart();
    m_app.SetStatus(
        isFilled
            ? u"Login details submitted, waiting for login to complete..."_s
            : u"This page is not the site's: nothing was typed into it. Waiting for a page of the site..."_s);
}

void LoginFlow::WaitForCompletePage() {
    qint64 lastLogged = 0;
    m_app.waiting.WaitWhile(
        [this, &lastLogged] {
            const int ready = m_app.WebBrowser1().ReadyState();
            const qint64 second = m_app.Pump().Now().toSecsSinceEpoch();
            if (ready == 4)
                return false;
            if (second % 5 == 0 && second != lastLogged) {
                Log(u"waiting for readystate: "_s + QString::number(ready));
                lastLogged = second;
            }
            return true;
        },
        CompletePageSeconds);
}

void LoginFlow::WaitUntilIdle() {
    m_app.waiting.WaitFor(u"the page to be complete"_s, [this] { return m_app.WebBrowser1().Busy(); });
}

void LoginFlow::Press(const Element& button, bool stopFirst) {
    if (stopFirst)
        m_app.WebBrowser1().Stop();
    m_app.state.intLoginStep = LoginStep::Finish;
    Await(u"Link"_s, u"signout"_s, u"password?"_s);
    if (!m_app.state.blnChaining) {
        m_app.timers->tmrLoginProblem.SetInterval(FirstProblemLookMs);
        m_app.timers->tmrLoginProblem.Restart();
    }
    button.Click();
    m_app.waiting.Pump();
}

void LoginFlow::StopProblemTimer() {
    Timer& timer = m_app.timers->tmrLoginProblem;
    timer.SetEnabled(false);
    m_app.Get<PageBoxes>().ClosePopup(u"Login problem"_s);
}

void LoginFlow::tmrLoginProblem_Timer() {
    m_app.diagnostics.Trap("tmrLoginProblem_Timer", [this] {
        Timer& timer = m_app.timers->tmrLoginProblem;
        Log(u"tmrLoginProblem"_s);
        const bool formShown = m_app.Get<PageSigns>().IsLoggedOutPage();
        m_app.waiting.WaitFor(u"the page to be complete"_s,
                              [this, &timer] { return m_app.WebBrowser1().Busy() && timer.Enabled(); });
        if (!timer.Enabled())
            return;
        if (formShown && timer.Interval() != NextProblemLookMs) {
            Log(u"tmrLoginProblem - "_s + m_app.WebBrowser1().Document().BodyHTML());
            m_app.platform.Dialogs().ShowForm(u"frmLoginProblem"_s);
            timer.SetInterval(NextProblemLookMs);
        } else if (!formShown) {
            if (timer.Interval() == NextProblemLookMs)
                m_app.Get<PageBoxes>().ClosePopup(u"Login problem"_s);
            timer.SetInterval(0);
            timer.SetEnabled(false);
        }
    });
}

} // namespace qlm
