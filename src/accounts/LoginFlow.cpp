// SPDX-License-Identifier: MIT
#include "accounts/LoginFlow.h"

#include "browser/Cover.h"
#include "browser/PageSigns.h"
#include "core/App.h"
#include "core/SettingsFields.h"
#include "core/Text.h"
#include "steps/StepDispatcher.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr qsizetype ShownEmailLength = 27;
} // namespace

LoginFlow::LoginFlow(App& app) : m_app(app) {
    app.Get<StepDispatcher>().logInAgain = [this] { DoLogin(); };
    app.timers->tmrLoginProblem.SetHandler([this] { tmrLoginProblem_Timer(); });
    app.commands.Add(u"frmLoginProblem.cmdClose_Click"_s,
                     [this] { m_app.platform.Dialogs().CloseForm(u"frmLoginProblem"_s); });
}

void LoginFlow::Log(const QString& text) {
    m_app.diagnostics.Debug(u"debuginitial.txt"_s, text);
}

bool LoginFlow::IsLoggingIn(int step) const {
    return m_app.state.CurrentAction == u"LOGIN"_s && m_app.state.intLoginStep == step;
}

void LoginFlow::Await(const QString& type, const QString& value, const QString& excludedText) {
    RunState& state = m_app.state;
    state.strLinkType = type;
    state.strLinkValue = value;
    state.strLastPageText = excludedText;
    state.strLastPageHref.clear();
    state.blnLastPageAsHTML = false;
    state.blnLinkFound = false;
}

void LoginFlow::IterateLoginAccount() {
    const QString error = m_app.diagnostics.Trap("IterateLoginAccount", [this] {
        while (RunStep())
            continue;
    });
    // The machine has kept its state: with the page looked at again, the step is repeated.
    if (error.isEmpty() || m_app.state.CurrentAction != u"LOGIN"_s)
        return;
    m_app.state.blnLinkFound = false;
    m_app.timers->tmrCheckLinkLoaded.Restart();
}

// True when the machine is to run again at once.
bool LoginFlow::RunStep() {
    BeginStep();
    LoginFormWins();
    if (m_app.state.CurrentAction != u"LOGIN"_s)
        return false;
    switch (m_app.state.intLoginStep) {
    case 10:
        OpenSite();
        return false;
    case 1:
        return SignOut();
    case 2:
        OpenLoginPage();
        return false;
    case 3:
        DoLogin();
        return false;
    case 4:
        FinishLogin();
        return false;
    default:
        return false;
    }
}

void LoginFlow::BeginStep() {
    RunState& state = m_app.state;
    m_app.WebBrowser1().SetSilent(true);
    m_app.WebBrowser1().SetVisible(true);
    state.strLastPageText.clear();
    state.strLastPageHref.clear();
    // The site shows every account its newer pages.
    state.blnNewLayout = true;
    Log(u"ILoginAcc - "_s + m_app.NowText() + u", Code: "_s + QString::number(state.intLoginStep));
}

// A login form on the screen wins over whatever the machine was waiting for.
void LoginFlow::LoginFormWins() {
    RunState& state = m_app.state;
    PageSigns& page = m_app.Get<PageSigns>();
    const bool formShown = page.IsLoggedOutPage() && !page.IsTextInPage(u"Login again?"_s);
    if (!formShown || state.CurrentAction != u"LOGIN"_s || state.intLoginStep == 3)
        return;
    const bool skipsRestoring =
        (state.intLoginStep == 10 || state.intLoginStep == 1) && !state.AccountsLoadedOnce;
    state.intLoginStep = 3;
    Log(u"ILP! Change!"_s);
    // Otherwise the new account would work, and save, with the fields and counters of the one before it.
    if (skipsRestoring)
        RestoreAccount();
}

void LoginFlow::RestoreAccount() {
    m_app.Get<SettingsFields>().RestoreAccountSettings();
    m_app.Get<SettingsFields>().RestoreAccountSpecificFields();
}

void LoginFlow::OpenSite() {
    RestoreAccount();
    if (!IsLoggingIn(10))
        return;
    m_app.state.AccountsLoadedOnce = true;
    m_app.SetStatus(u"Waiting for the MySpace homepage to load..."_s);
    m_app.controls.SetText("lblLoggedInAs"_L1, u"busy logging in..."_s);
    m_app.state.intLoginStep = 1;
    Await(u"Link"_s, u"home"_s);
    m_app.WebBrowser1().Navigate(m_app.Expand(u"{SiteRootHost}"_s));
    m_app.timers->tmrCheckLinkLoaded.Restart();
}

bool LoginFlow::SignOut() {
    if (!m_app.state.AccountsLoadedOnce)
        RestoreAccount();
    if (!IsLoggingIn(1))
        return false;
    m_app.state.AccountsLoadedOnce = false;
    m_app.controls.SetText("lblLoggedInAs"_L1, u"busy logging in..."_s);
    bool loggedIn = false;
    for (const Element& link : m_app.WebBrowser1().Document().Links()) {
        const QString href = link.Href();
        loggedIn = loggedIn || Has(href, u"/signout?"_s) || Has(href, u"index.cfm?fuseaction=signout"_s);
    }
    m_app.state.intLoginStep = 2;
    if (!loggedIn)
        return true;
    m_app.SetStatus(u"Logging out of the current account..."_s);
    Await(u"Text"_s, u"sign up"_s);
    if (ClickSignOutLink()) {
        m_app.timers->tmrCheckLinkLoaded.SetEnabled(false);
        m_app.timers->tmrCheckLinkLoaded.Restart();
    }
    return false;
}

bool LoginFlow::ClickSignOutLink() {
    bool told = false;
    m_app.waiting.WaitFor(u"a link that signs out"_s, [this, &told] {
        if (!IsLoggingIn(2) || m_app.Get<PageSigns>().ClickLinkFromHref(u"/signout?"_s, u"WebBrowser1"_s))
            return false;
        if (!told)
            Log(u"ILoginAcc 1.3.2... CLICK AGAIN!!"_s);
        told = true;
        return true;
    });
    return IsLoggingIn(2);
}

void LoginFlow::OpenLoginPage() {
    m_app.SetStatus(u"Waiting for the MySpace homepage to load..."_s);
    m_app.state.intLoginStep = 3;
    Await(u"Text"_s, u"password?"_s);
    m_app.ClearPage();
    if (!IsLoggingIn(3))
        return;
    m_app.WebBrowser1().Navigate(m_app.Expand(u"{HomeHost}/index.cfm?fuseaction=home"_s));
    m_app.state.blnLinkFound = false;
    m_app.timers->tmrCheckLinkLoaded.Restart();
}

void LoginFlow::FinishLogin() {
    const RunMark mark = m_app.waiting.Mark();
    if (!WaitUntilIdle() || !IsLoggingIn(4))
        return;
    Log(u"ILoginAcc 4 - "_s + m_app.WebBrowser1().Document().BodyHTML());
    StopProblemTimer();
    m_app.SetStatus(u"Login successful, retrieving your Profile ID..."_s);
    ReadProfileID();
    m_app.waiting.LeaveUnlessCurrent(mark);
    if (!IsLoggingIn(4))
        return;
    Log(m_app.state.MyProfileID);
    ShowLoggedInAs();
    m_app.state.AccountsLoadedOnce = false;
    if (m_app.state.blnChaining) {
        goOnInChain();
        return;
    }
    m_app.Get<StopResume>().StopAll(u"ILA"_s);
    m_app.SetStatus(u"Login successful!"_s);
    m_app.Get<StopResume>().DoFinishedExit();
}

void LoginFlow::ShowLoggedInAs() {
    const QString& email = m_app.state.AccountEmail;
    const bool tooLong = email.size() > ShownEmailLength;
    m_app.controls.SetText("lblLoggedInAs"_L1, tooLong ? email.left(ShownEmailLength) + u"..."_s : email);
    m_app.controls.SetToolTip("lblLoggedInAs"_L1, tooLong ? email : QString());
}

void LoginFlow::LogInSpecifiedAccount(const QString& email, const QString& password) {
    m_app.diagnostics.Trap("LogInSpecifiedAccount", [&] {
        Log(u"LogSpecAcc1"_s);
        if (email.isEmpty())
            return;
        RunState& state = m_app.state;
        if (m_app.controls.Text("lblLoggedInAs"_L1).contains(u'@'))
            m_app.Get<SettingsFields>().SaveListsAndSettings();
        state.SwitchingAccount = true;
        state.AccountEmail = email.trimmed().toLower();
        state.AccountPassword = password.trimmed();
        m_app.Get<Cover>().Hide();
        m_app.waiting.OutdateSteps();
        m_app.timers->Timer1.SetEnabled(false);
        // What a login that came to no end has restored belongs to another account.
        state.AccountsLoadedOnce = false;
        state.CurrentAction = u"LOGIN"_s;
        state.blnHoldLinkCheck = false;
        state.intLoginStep = 1;
        IterateLoginAccount();
    });
}

} // namespace qlm
