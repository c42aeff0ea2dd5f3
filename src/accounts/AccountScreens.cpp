// SPDX-License-Identifier: MIT
#include "accounts/AccountScreens.h"

#include "accounts/AccountFile.h"
#include "accounts/LoginFlow.h"
#include "core/App.h"
#include "core/SettingsFields.h"
#include "core/Text.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString NoAccounts = u"No Accounts added..."_s;
const QString FieldEntries = u"Field Entries"_s;
const QString TextFiles = u"Text files (txt)|*.txt;|All files (*.*)|*.*"_s;

const AccountScreen& LoginScreen() {
    static const AccountScreen screen{u"frmInteken"_s,
                                      "frmInteken.lstAccounts"_L1,
                                      {"frmInteken.cmdDelete"_L1, "frmInteken.cmdEdit"_L1},
                                      true,
                                      "FillAccountsList - frmInteken",
                                      "cmdDelete_Click - frmInteken"};
    return screen;
}

const AccountScreen& SwitchScreen() {
    static const AccountScreen screen{
        u"frmSwitchAccount"_s,
        "frmSwitchAccount.lstAccounts"_L1,
        {"frmSwitchAccount.cmdDelete"_L1, "frmSwitchAccount.cmdEdit"_L1, "frmSwitchAccount.cmdOK"_L1},
        false,
        "FillAccountsList - frmSwitchAccount",
        "cmdDelete_Click - frmSwitchAccount"};
    return screen;
}

bool NamesMissingLibrary(const QString& error) {
    static const QStringList libraries{u"MSCOMCTL"_s, u"COMDLG32"_s, u"ieframe"_s, u"MyFramePanel"_s};
    return std::any_of(libraries.begin(), libraries.end(),
                       [&error](const QString& library) { return Has(error, library); });
}

} // namespace

AccountScreens::AccountScreens(App& app) : m_app(app), m_details(app) {
    RegisterShared(LoginScreen());
    RegisterShared(SwitchScreen());
    RegisterLoginScreen();
    RegisterSwitchScreen();
}

void AccountScreens::RegisterShared(const AccountScreen& screen) {
    Commands& commands = m_app.commands;
    commands.Add(screen.form + u".cmdAdd_Click"_s, "cmdAdd_Click", [this, &screen] { cmdAdd_Click(screen); });
    commands.Add(screen.form + u".cmdEdit_Click"_s, "cmdEdit_Click",
                 [this, &screen] { cmdEdit_Click(screen); });
    commands.Add(screen.form + u".cmdDelete_Click"_s, screen.deleteName,
                 [this, &screen] { cmdDelete_Click(screen); });
}

void AccountScreens::FillAccountsList(const AccountScreen& screen, const QString& path, bool encrypted) {
    m_app.diagnostics.Trap(screen.fillName, [&] {
        Controls& controls = m_app.controls;
        controls.SetItems(screen.list, {});
        const auto [emails, hadLines, tooLong] =
            m_app.Get<AccountFile>().Emails(path, encrypted, !screen.isLoginScreen);
        if (hadLines) {
            controls.SetItems(screen.list, emails);
            controls.SetSelected(screen.list, 0);
        } else if (screen.isLoginScreen) {
            controls.SetItems(screen.list, {NoAccounts});
        }
        for (const QLatin1StringView button : screen.accountButtons)
            controls.SetEnabled(button, hadLines);
        if (tooLong > 0 && !std::exchange(m_tooLongTold, true))
            m_app.ShowMessage(
                u"The account list holds a line that is too long to be an account. It is passed over and "
                "stays in the file."_s);
    });
}

void AccountScreens::FillFromAccountFile(const AccountScreen& screen) {
    FillAccountsList(screen, m_app.Get<AccountFile>().Path(), true);
}

void AccountScreens::SelectEmail(const AccountScreen& screen, const QString& email) {
    if (email.isEmpty())
        return;
    const QStringList& rows = m_app.controls.Items(screen.list);
    for (int row = 0; row < rows.size(); ++row)
        if (rows[row].compare(email, Qt::CaseInsensitive) == 0) {
            m_app.controls.SetSelected(screen.list, row);
            return;
        }
}

void AccountScreens::cmdAdd_Click(const AccountScreen& screen) {
    const QString stored = m_details.Show({}, {});
    FillFromAccountFile(screen);
    SelectEmail(screen, stored);
}

void AccountScreens::cmdEdit_Click(const AccountScreen& screen) {
    if (m_app.controls.Selected(screen.list) < 0)
        return;
    const QString email = m_app.controls.SelectedText(screen.list);
    const QString stored = m_details.Show(email, m_app.Get<AccountFile>().GetPasswordFromEmail(email));
    FillFromAccountFile(screen);
    SelectEmail(screen, stored);
}

void AccountScreens::cmdDelete_Click(const AccountScreen& screen) {
    if (m_app.controls.Selected(screen.list) < 0)
        return;
    m_app.Get<AccountFile>().Delete(m_app.controls.SelectedText(screen.list));
    FillFromAccountFile(screen);
}

void AccountScreens::RegisterLoginScreen() {
    Commands& commands = m_app.commands;
    commands.Add(u"frmInteken.cmdContinue_Click"_s, [this] { cmdContinue_Click(); });
    commands.Add(u"frmInteken.lstAccounts_DblClick"_s, [this] { cmdContinue_Click(); });
    commands.Add(u"frmInteken.lblTOS_Click"_s, "lblTOS_Click", [this] { lblTOS_Click(); });
    commands.Add(u"frmTerms.cmdClose_Click"_s, [this] { m_app.platform.Dialogs().CloseForm(u"frmTerms"_s); });
}

// In a window of the program's own: no other browser knows the practice site.
void AccountScreens::lblTOS_Click() {
    m_app.controls.SetText("frmTerms.txtTerms"_L1, u"Please wait..."_s);
    m_app.platform.Dialogs().ShowForm(u"frmTerms"_s);
    const std::optional<QString> terms =
        m_app.platform.Http().Get(m_app.Expand(u"{ProductServer}/terms.php"_s));
    m_app.controls.SetText(
        "frmTerms.txtTerms"_L1,
        terms.value_or(u"The Terms of Service could not be fetched. Please try again later."_s));
}

void AccountScreens::ShowLoginScreen() {
    m_app.diagnostics.Trap("Form_Load - frmInteken", [this] {
        const SettingsStore& settings = m_app.platform.Settings();
        FillFromAccountFile(LoginScreen());
        m_app.controls.SetText("frmInteken.lblHeading"_L1, u"Quillmere v"_s + m_app.Version());
        m_app.controls.SetTicked("frmInteken.chkTOS"_L1,
                                 settings.GetSetting(FieldEntries, u"Login - chkTOS"_s, u"0"_s) == u"1"_s);
        SelectEmail(LoginScreen(), settings.GetSetting(FieldEntries, u"Login - txtEmail"_s, {}));
    });
    m_app.platform.Dialogs().ShowForm(u"frmInteken"_s);
}

bool AccountScreens::MayContinue() {
    const Controls& controls = m_app.controls;
    auto refuse = [this](const QString& text, const QString& title, QLatin1StringView focus) {
        m_app.ShowMessage(text, title);
        m_app.controls.SetFocus(focus);
        return false;
    };
    if (controls.Items(LoginScreen().list).value(0) == NoAccounts)
        return refuse(u"Please add an account to log in with"_s, NoAccounts, "frmInteken.cmdAdd"_L1);
    if (controls.Selected(LoginScreen().list) < 0)
        return refuse(u"Please select an account to log in with"_s, {}, LoginScreen().list);
    if (!controls.Ticked("frmInteken.chkTOS"_L1))
        return refuse(
            u"You must agree with the Quillmere Terms of Service before you may use this program."_s, {},
            "frmInteken.chkTOS"_L1);
    return true;
}

void AccountScreens::cmdContinue_Click() {
    // A double click on the list comes here too, also while the main window is already being loaded.
    if (!m_app.controls["frmInteken.cmdContinue"_L1].enabled)
        return;
    const QString error = m_app.diagnostics.Trap("cmdContinue_Click", [this] {
        if (MayContinue())
            Continue();
    });
    if (error.isEmpty())
        return;
    if (NamesMissingLibrary(error))
        m_app.ShowMessage(
            u"One of the files that Quillmere needs to run has been corrupted. Please reinstall this program."_s);
    m_app.controls.SetEnabled("frmInteken.cmdContinue"_L1, true);
    m_app.controls.SetText("frmInteken.cmdContinue"_L1, u"Continue"_s);
}

void AccountScreens::Continue() {
    RunState& state = m_app.state;
    SettingsStore& settings = m_app.platform.Settings();
    m_app.controls.SetText("frmInteken.cmdContinue"_L1, u"Please Wait..."_s);
    m_app.controls.SetEnabled("frmInteken.cmdContinue"_L1, false);
    state.AccountEmail = m_app.controls.SelectedText(LoginScreen().list).trimmed().toLower();
    state.AccountPassword = m_app.Get<AccountFile>().GetPasswordFromEmail(state.AccountEmail);
    settings.SaveSetting(FieldEntries, u"Login - chkTOS"_s, u"1"_s);
    settings.SaveSetting(FieldEntries, u"Login - txtEmail"_s, state.AccountEmail);
    settings.SaveSetting(FieldEntries, u"Login - txtPassword"_s, state.AccountPassword);
    m_app.Get<SettingsFields>().Sync();
    m_app.platform.Dialogs().ShowForm(u"frmMain"_s);
    m_app.platform.Dialogs().CloseForm(u"frmInteken"_s);
}

void AccountScreens::RegisterSwitchScreen() {
    Commands& commands = m_app.commands;
    for (const QString& event : {u"cmdOK_Click"_s, u"lstAccounts_DblClick"_s})
        commands.Add(u"frmSwitchAccount."_s + event, "cmdOK_Click - frmSwitchAccount",
                     [this] { cmdOK_Click(); });
    commands.Add(u"frmSwitchAccount.cmdClear_Click"_s, "cmdClear_Click", [this] { cmdClear_Click(); });
    commands.Add(u"frmSwitchAccount.cmdExport_Click"_s, "cmdExport_Click", [this] { cmdExport_Click(); });
    commands.Add(u"frmSwitchAccount.cmdImport_Click"_s, "cmdImport_Click", [this] { cmdImport_Click(); });
    commands.Add(u"frmSwitchAccount.cmdCancel_Click"_s,
                 [this] { m_app.platform.Dialogs().CloseForm(u"frmSwitchAccount"_s); });
    commands.Add(u"mnuSwitchLogin_Click"_s, [this] { mnuSwitchLogin_Click(); });
}

void AccountScreens::mnuSwitchLogin_Click() {
    m_switchEmail.clear();
    m_switchPassword.clear();
    FillFromAccountFile(SwitchScreen());
    m_app.platform.Dialogs().ShowModal(u"frmSwitchAccount"_s);
    if (!m_switchEmail.isEmpty())
        m_app.Get<LoginFlow>().LogInSpecifiedAccount(m_switchEmail, m_switchPassword);
}

void AccountScreens::cmdOK_Click() {
    m_switchEmail = m_app.controls.SelectedText(SwitchScreen().list);
    m_switchPassword = m_app.Get<AccountFile>().GetPasswordFromEmail(m_switchEmail);
    m_app.platform.Dialogs().CloseForm(u"frmSwitchAccount"_s);
}

void AccountScreens::cmdClear_Click() {
    if (!m_app.AskYesNo(u"Are you sure you want to clear all the accounts form the list?"_s, u"Clear"_s))
        return;
    m_app.Get<AccountFile>().Clear();
    FillFromAccountFile(SwitchScreen());
}

void AccountScreens::cmdExport_Click() {
    const QString path = m_app.platform.Dialogs().ChooseFileToSave(u"Export Accounts"_s, {}, TextFiles);
    if (path.isEmpty())
        return;
    m_app.diagnostics.Trap("SaveList", [this, &path] {
        m_app.Get<AccountFile>().Export(path, m_app.controls.Items(SwitchScreen().list));
    });
}

void AccountScreens::cmdImport_Click() {
    if (!m_app.AskYesNo(
            u"You can import a list of accounts from a text file where the accounts are listed one "
            "per line in the following format:\n\nemail;password\n\nContinue?"_s,
            u"Import Accounts"_s))
        return;
    const QString path = m_app.platform.Dialogs().ChooseFileToOpen(u"Import Accounts"_s, TextFiles);
    if (path.isEmpty())
        return;
    if (const QString problem = m_app.Get<AccountFile>().ImportProblem(path); !problem.isEmpty()) {
        m_app.ShowMessage(problem, u"Import Accounts"_s);
        return;
    }
    FillAccountsList(SwitchScreen(), path, false);
    m_app.Get<AccountFile>().Import(path);
}

} // namespace qlm
