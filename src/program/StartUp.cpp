// SPDX-License-Identifier: MIT
#include "program/StartUp.h"

#include "accounts/AccountScreens.h"
#include "core/App.h"
#include "core/ProductServer.h"
#include "core/Text.h"
#include "maintenance/Restore.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int LocalApplicationData = 28;
constexpr int PatienceMs = 1000;
const QString Notice = u"frmStarting"_s;
} // namespace

StartUp::StartUp(App& app) : m_app(app), m_slowServer(app.platform.Pump().Queue(), PatienceMs, false) {
    // A server that says nothing may take its whole time limit, twice; nobody should look at an empty screen.
    m_slowServer.SetHandler([this] {
        m_slowServer.SetEnabled(false);
        m_app.platform.Dialogs().ShowForm(Notice);
    });
    app.commands.Add(Notice + u".cmdClose_Click"_s, [this] { m_app.Close(); });
}

void StartUp::Main() {
    try {
        SettleFolders();
        m_slowServer.Restart();
        m_app.diagnostics.Trap("TestServerOnline", [this] { TestServerOnline(); });
        LookUpServer();
        m_slowServer.SetEnabled(false);
        if (m_app.deployment.UsesPracticeSite())
            m_app.controls.SetText(
                "frmInteken.lblPracticeSite"_L1,
                u"This program works on its own practice site. Sign in there as a@example.com (to "
                "j@example.com) with the password \"secret\"."_s);
        m_app.diagnostics.Trap("Main", [this] { m_app.Get<AccountScreens>().ShowLoginScreen(); });
        m_app.platform.Dialogs().CloseForm(Notice);
        if (const QString problem = m_app.platform.Settings().TakeProblem(); !problem.isEmpty())
            m_app.ShowMessage(problem);
    } catch (const ProgramEnding&) {
        // The product server could not be reached and the user has been told, or they would not wait for it.
        m_slowServer.SetEnabled(false);
    }
}

void StartUp::SettleFolders() {
    RunState& state = m_app.state;
    state.DataFolder =
        FileSystem::Join(m_app.platform.SpecialFolderPath(LocalApplicationData), u"Quillmere"_s);
    state.ProgramFolder = TestUserRights() ? m_app.platform.InstallationFolder() : state.DataFolder;
    state.ErrorLogPath = FileSystem::Join(state.DataFolder, u"Error.log"_s);
    Diagnostics::IgnoreErrors([this] { m_app.files.CreateFolder(m_app.state.DataFolder); });
    m_app.Get<Restore>().FinishLast();
    Diagnostics::IgnoreErrors([this] { BringInstalledFiles(); });
    const QString logging =
        m_app.platform.Settings().GetSetting(u"General"_s, u"mnuEnableLogging"_s, u"False"_s);
    state.blnLoggingEnabled = ToBoolean(logging);
}

// Where the installation folder can't be written, the program works in its data folder and needs its pages
// there.
void StartUp::BringInstalledFiles() {
    for (const QString& name : {u"timedelay.htm"_s, u"blip.wav"_s}) {
        const QString installed = FileSystem::Join(m_app.platform.InstallationFolder(), name);
        if (m_app.files.FileExists(installed) && !m_app.files.FileExists(m_app.ProgramFile(name)))
            m_app.files.CopyFile(installed, m_app.ProgramFile(name));
    }
}

bool StartUp::TestUserRights() {
    return m_app.files.IsWritable(m_app.platform.InstallationFolder(), u"UserRightsTest.txt"_s);
}

// An empty answer of the alternate server chooses it; any other, also none at all, the main one.
void StartUp::TestServerOnline() {
    m_app.state.ServerBaseURL = m_app.Expand(u"{ProductServer}"_s);
    const QString answer =
        m_app.Get<ProductServer>().TestGet(m_app.Expand(u"{ProductServerAlternate}/online.htm"_s));
    if (answer.isEmpty())
        m_app.state.ServerBaseURL = m_app.Expand(u"{ProductServerAlternate}"_s);
}

void StartUp::LookUpServer() {
    Diagnostics& diagnostics = m_app.diagnostics;
    diagnostics.Debug(u"debuginitial.txt"_s, u"LAUNCH - "_s + m_app.NowText());
    Launch(u"LAUNCH2"_s);
    diagnostics.Trap("CheckVersion", [this] { m_app.Get<ProductServer>().CheckVersion(); });
    Launch(u"LAUNCH3"_s);
    diagnostics.Trap("CheckIssueAlert", [this] { m_app.Get<ProductServer>().CheckIssueAlert(); });
    Launch(u"LAUNCH4"_s);
    diagnostics.Trap("CheckLoginMessage", [this] { m_app.Get<ProductServer>().CheckLoginMessage(); });
    Launch(u"LAUNCH5"_s);
}

void StartUp::Launch(const QString& mark) {
    m_app.diagnostics.Debug(u"debugreg.txt"_s, mark);
}

} // namespace qlm
