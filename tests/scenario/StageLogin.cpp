// SPDX-License-Identifier: MIT
// The short way to a program that has logged in: what a finished login runs, without the site.
#include "Stage.h"
#include "accounts/AccountFile.h"
#include "core/SettingsFields.h"
#include "program/StartUp.h"
#include "steps/StopResume.h"

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype ShownEmailLength = 27;

void ShowLoggedInAs(App& app) {
    const QString& email = app.state.AccountEmail;
    const bool isLong = email.size() > ShownEmailLength;
    app.controls.SetText("lblLoggedInAs"_L1, isLong ? email.left(ShownEmailLength) + u"..."_s : email);
    app.controls.SetToolTip("lblLoggedInAs"_L1, isLong ? email : QString());
}

} // namespace

// The main window's loading restores the account and begins a login, which is then cut short.
void Stage::OpenMainWindow(const QString& email) {
    Build();
    dialogs.quiet = true;
    m_app->Get<StartUp>().Main();
    dialogs.CloseForm(u"frmInteken"_s);
    m_app->state.AccountEmail = email;
    dialogs.ShowForm(u"frmMain"_s);
    dialogs.quiet = false;
}

void Stage::LogIn(const QString& email, const QString& ownID) {
    const QString account = email.trimmed().toLower();
    CollectRecords();
    const std::map<BrowserName, Records> before = m_records;
    if (HasEnded()) {
        OpenMainWindow(account);
    } else {
        m_app->Get<SettingsFields>().SaveListsAndSettings();
        m_app->state.AccountEmail = account;
        m_app->Get<SettingsFields>().RestoreAccountSettings();
        m_app->Get<SettingsFields>().RestoreAccountSpecificFields();
    }
    m_app->state.AccountPassword = m_app->Get<AccountFile>().GetPasswordFromEmail(account);
    m_app->state.MyProfileID = ownID;
    m_app->state.blnNewLayout = true;
    m_app->state.AccountsLoadedOnce = false;
    ShowLoggedInAs(*m_app);
    m_app->Get<StopResume>().StopAll(StopReason::LoginDone);
    Browser(BrowserName::WebBrowser1).Stop();
    Browser(BrowserName::WebBrowser1).Navigate(u"about:blank"_s);
    ThePump().PumpMessages();
    CollectRecords();
    m_records = before;
}

} // namespace qlm::scenario
