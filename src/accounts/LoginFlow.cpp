// SPDX-License-Identifier: MIT
#include "accounts/LoginFlow.h"

#include "browser/Cover.h"
#include "browser/PageSigns.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/SettingsFields.h"
#include "core/Text.h"
#include "steps/Lending.h"
#include "steps/RunReport.h"
#include "steps/StepDispatcher.h"
#include "steps/Steps.h"
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

void LoginFlow::Await(const QString& type, const QString& value, const QString& excludedText) {
    RunState& state = m_app.state;
    state.strLinkType = type;
    state.strLinkValue = value;
    state.strLastPageText = excludedText;
    state.strLastPageHref.clear();
    state.blnLastPageAsHTML = false;
    state.blnLinkFound = false;
}

const StepMachine<LoginFlow>& LoginFlow::Machine() {
    static const StepMachine<LoginFlow> machine{
        .word = ActivityWord::Login,
        .step = &RunState::intLoginStep,
        .procedure = "IterateLoginAccount",
        .begin = &LoginFlow::BeginStep,
        .states = {{LoginStep::OpenSite, &LoginFlow::OpenSite},
                   {LoginStep::SignOut, &LoginFlow::SignOut},
                   {LoginStep::OpenLoginPage, &LoginFlow::OpenLoginPage},
                   {LoginStep::SendForm, &LoginFlow::SendForm},
                   {LoginStep::Finish, &LoginFlow::FinishLogin}},
        .errorData = nullptr,
    };
    return machine;
}

void LoginFlow::IterateLoginAccount() {
    if (RunSteps(m_app, *this, Machine()).isEmpty())
        return;
    // The machine has kept its state: with the page looked at again, the step is repeated.
    m_app.state.blnLinkFound = false;
    m_app.timers->tmrCheckLinkLoaded.Restart();
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
    LoginFormWins();
}

// A login form on the screen wins over whatever the machine was waiting for.
void LoginFlow::LoginFormWins() {
    RunState& state = m_app.state;
    PageSigns& page = m_app.Get<PageSigns>();
    const bool formShown = page.IsLoggedOutPage() && !page.IsTextInPage(u"Login again?"_s);
    if (!formShown || state.intLoginStep == LoginStep::SendForm)
        return;
    const bool skipsRestoring =
        (state.intLoginStep == LoginStep::OpenSite || state.intLoginStep == LoginStep::SignOut) &&
        !state.AccountsLoadedOnce;
    state.intLoginStep = LoginStep::SendForm;
    Log(u"ILP! Change!"_s);
    // Otherwise the new account would work, and save, with the fields and counters of the one before it.
    if (skipsRestoring)
        RestoreAccount();
}

void LoginFlow::RestoreAccount() {
    {
        // Half of an account's fields would be saved as another's.
        const Waiting::Unowned whole(m_app.waiting);
        m_app.Get<SettingsFields>().RestoreAccountSettings();
        m_app.Get<SettingsFields>().RestoreAccountSpecificFields();
    }
    m_app.waiting.LeaveIfObsolete();
}

Next LoginFlow::OpenSite() {
    RestoreAccount();
    m_app.state.AccountsLoadedOnce = true;
    m_app.SetStatus(u"Waiting for the MySpace homepage to load..."_s);
    m_app.controls.SetText("lblLoggedInAs"_L1, u"busy logging in..."_s);
    m_app.state.intLoginStep = LoginStep::SignOut;
    Await(u"Link"_s, u"home"_s);
    m_app.WebBrowser1().Navigate(m_app.Expand(u"{SiteRootHost}"_s));
    m_app.timers->tmrCheckLinkLoaded.Restart();
    return Next::Wait;
}

Next LoginFlow::SignOut() {
    if (!m_app.state.AccountsLoadedOnce)
        RestoreAccount();
    m_app.state.AccountsLoadedOnce = false;
    m_app.controls.SetText("lblLoggedInAs"_L1, u"busy logging in..."_s);
    bool loggedIn = false;
    for (const Element& link : m_app.WebBrowser1().Document().Links()) {
        const QString href = link.Href();
        loggedIn = loggedIn || Has(href, u"/signout?"_s) || Has(href, u"index.cfm?fuseaction=signout"_s);
    }
    m_app.state.intLoginStep = LoginStep::OpenLoginPage;
    if (!loggedIn)
        return Next::Again;
    m_app.SetStatus(u"Logging out of the current account..."_s);
    Await(u"Text"_s, u"sign up"_s);
    ClickSignOutLink();
    m_app.timers->tmrCheckLinkLoaded.SetEnabled(false);
    m_app.timers->tmrCheckLinkLoaded.Restart();
    return Next::Wait;
}

void LoginFlow::ClickSignOutLink() {
    bool told = false;
    m_app.waiting.WaitFor(u"a link that signs out"_s, [this, &told] {
        if (m_app.Get<PageSigns>().ClickLinkFromHref(u"/signout?"_s, u"WebBrowser1"_s))
            return false;
        if (!told)
            Log(u"ILoginAcc 1.3.2... CLICK AGAIN!!"_s);
        told = true;
        return true;
    });
}

Next LoginFlow::OpenLoginPage() {
    m_app.SetStatus(u"Waiting for the MySpace homepage to load..."_s);
    m_app.state.intLoginStep = LoginStep::SendForm;
    Await(u"Text"_s, u"password?"_s);
    m_app.ClearPage();
    m_app.WebBrowser1().Navigate(m_app.Expand(u"{HomeHost}/index.cfm?fuseaction=home"_s));
    m_app.state.blnLinkFound = false;
    m_app.timers->tmrCheckLinkLoaded.Restart();
    return Next::Wait;
}

Next LoginFlow::SendForm() {
    DoLogin();
    return Next::Wait;
}

Next LoginFlow::FinishLogin() {
    WaitUntilIdle();
    Log(u"ILoginAcc 4 - "_s + m_app.WebBrowser1().Document().BodyHTML());
    StopProblemTimer();
    m_app.SetStatus(u"Login successful, retrieving your Profile ID..."_s);
    ReadProfileID();
    Log(m_app.state.MyProfileID);
    ShowLoggedInAs();
    m_app.state.AccountsLoadedOnce = false;
    if (m_app.state.blnChaining) {
        goOnInChain();
        return Next::Wait;
    }
    m_app.Get<StopResume>().StopAll(StopReason::LoginDone);
    m_app.SetStatus(u"Login successful!"_s);
    m_app.Get<StopResume>().DoFinishedExit();
    return Next::Wait;
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
        if (m_app.controls.Text("lblLoggedInAs"_L1).contains(u'@'))
            m_app.Get<SettingsFields>().SaveListsAndSettings();
        BeginWith(email, password, LoginStep::SignOut);
    });
}

void LoginFlow::LogInChainedAccount(const QString& email, const QString& password) {
    StopProblemTimer();
    BeginWith(email, password, LoginStep::OpenSite);
}

void LoginFlow::BeginWith(const QString& email, const QString& password, qint16 step) {
    RunState& state = m_app.state;
    m_app.Get<Cover>().Hide();
    m_app.waiting.OutdateSteps();
    m_app.timers->Timer1.SetEnabled(false);
    m_app.Get<Lending>().Forget();
    m_app.Get<RunReport>().FinishRun(Ending::Other);
    // Nothing of the run before this is left, whoever skips or resumes meanwhile.
    static_cast<RunFields&>(state) = {};
    state.SwitchingAccount = true;
    state.AccountEmail = email.trimmed().toLower();
    state.AccountPassword = password.trimmed();
    // What a login that came to no end has restored belongs to another account.
    state.AccountsLoadedOnce = false;
    state.CurrentAction = ActivityWord::Login;
    state.blnHoldLinkCheck = false;
    state.intLoginStep = step;
    IterateLoginAccount();
}

} // namespace qlm
