// SPDX-License-Identifier: MIT
#include "program/MainForm.h"

#include "campaigns/Pacing.h"
#include "campaigns/StartChecks.h"
#include "content/Bookmarks.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/BrowserSounds.h"
#include "core/SettingsFields.h"
#include "core/Tabs.h"
#include "core/Text.h"
#include "gather/BlackList.h"
#include "schedule/AutoStart.h"
#include "steps/ActionTick.h"
#include "steps/BrowserHost.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

MainForm::MainForm(App& app) : m_app(app) {
    m_app.controls.SetItems("TabStrip1"_L1, TabCaptions());
    m_app.controls.SetSelected("TabStrip1"_L1, 0);
    RegisterCommands();
}

void MainForm::RegisterCommands() {
    Commands& commands = m_app.commands;
    commands.Add(u"picSkip_Click"_s, [this] { picSkip_Click(); });
    commands.Add(u"picStop_Click"_s, [this] { picStop_Click(); });
    commands.Add(u"picGO_Click"_s, [this] { picGO_Click(); });
    commands.Add(u"picBack_Click"_s, [this] { picBack_Click(); });
    commands.Add(u"picForward_Click"_s, [this] { picForward_Click(); });
    commands.Add(u"picHome_Click"_s, [this] { picHome_Click(); });
    commands.Add(u"picRefresh_Click"_s, [this] { picRefresh_Click(); });
    commands.Add(u"mnuExitWhenFinished_Click"_s, [this] { mnuExitWhenFinished_Click(); });
    commands.Add(u"mnuExit_Click"_s, [this] { m_app.Close(); });
    commands.Add(u"mnuGoToQLMDataFolder_Click"_s,
                 [this] { m_app.platform.Shell().OpenFolder(m_app.state.DataFolder); });
    commands.Add(u"mnuEnableLogging_Click"_s, [this] {
        m_app.state.blnLoggingEnabled = !m_app.controls.Ticked("mnuEnableLogging"_L1);
        m_app.controls.SetTicked("mnuEnableLogging"_L1, m_app.state.blnLoggingEnabled);
    });
    commands.Add(u"TabStrip1_Click"_s, [this](int tab) { TabStrip1_Click(TabCaptions().value(tab)); });
    commands.Add(u"frmError.cmdOK_Click"_s, [this] { m_app.platform.Dialogs().CloseForm(u"frmError"_s); });
    commands.Add(u"frmError.cmdOpenFolder_Click"_s,
                 [this] { m_app.platform.Shell().OpenFolder(m_app.state.DataFolder); });
    commands.Add(u"frmError.lblHowToClick_Click"_s, [this] {
        m_app.controls.SetText(
            "frmError.lblHowTo"_L1,
            u"Click the button below to open the folder mentioned above\n"
            "Inside you will see a text file that is named \"error.log\". Can you please e-mail this log to "
            "us? This "
            "will let us know exactly why and where this error is occurring so we can Fix it! =)"_s);
    });
}

void MainForm::Form_Load() {
    m_app.diagnostics.Trap("Form_Load", [this] {
        RunState& state = m_app.state;
        // A late timer can bring the window up again after it has closed.
        if (state.blnClosing) {
            m_app.platform.Shell().EndProcess();
            return;
        }
        m_app.diagnostics.Debug(u"debuginitial.txt"_s, u"frmLoad 1"_s);
        m_app.Get<BrowserHost>().Attach();
        m_app.webHide().ZOrder(1);
        m_app.webHide().Navigate(u"about:blank"_s);
        m_app.waiting.Pump();
        m_app.WebBrowser1().ZOrder(0);
        m_app.controls.SetVisible("ucpanelFullGatherIDNotify"_L1, false);
        if (setTitle)
            setTitle(u"Quillmere v"_s + m_app.Version() + u" – Start Growing Your MySpace Friends!"_s);
        m_app.WebBrowser1().SetSilent(true);
        m_app.WebBrowser1().Navigate(u"about:blank"_s);
        m_app.webNews().Navigate(state.ServerBaseURL + u"/news.htm"_s);
        state.arrFriendIDs = IdList{QString()};
        m_app.diagnostics.Debug(u"debuginitial.txt"_s, u"frmLoad 2"_s);
        m_app.Get<SettingsFields>().RestoreGeneralPrevious();
        m_app.diagnostics.Trap("mnuAutoStart_Click", [this] { m_app.Get<AutoStart>().ReadSettings(); });
        m_app.Get<Pacing>().ReadBounds();
        m_app.Get<Pacing>().UpdateTimeDelayLabel();
        m_app.Get<BlackList>().FillArrayFromFile(u"arrBlacklistIDs"_s, m_app.Get<BlackList>().Path());
        m_app.Get<Bookmarks>().LoadBookmarksMenu();
        m_app.ShowTab(TabCaptions().first());
        m_app.timers->tmrNewVersionAvailable.SetEnabled(state.blnNewVersionAvailable);
        Diagnostics::IgnoreErrors([this] { m_app.files.CreateFolder(m_app.state.DataFolder); });
        m_app.diagnostics.Debug(u"debuginitial.txt"_s, u"frmLoad 3"_s);
        m_app.controls.SetText("lblLoggedInAs"_L1, {});
        ShowPracticeSite(m_practiceSiteRuns);
        state.intLoginStep = LoginStep::OpenSite;
        m_app.waiting.OutdateSteps();
        state.CurrentAction = ActivityWord::Login;
        m_app.timers->tmrCheckLinkLoaded.Restart();
        m_app.Get<ActionTick>().Timer1_Timer();
        m_app.waiting.Pump();
    });
}

bool MainForm::SaveAll() {
    bool isListSaved = true;
    m_app.diagnostics.Trap("Form_Unload", [&] {
        if (m_app.state.blnNoSaveOnExit)
            return;
        isListSaved = m_app.Get<SettingsFields>().SaveListsAndSettings();
        m_app.Get<SettingsFields>().SaveGeneral();
    });
    return isListSaved;
}

// A list that is lost at the end is lost for good.
bool MainForm::MayClose() {
    const QString status = m_app.Status();
    if (!m_app.state.blnNoSaveOnExit)
        m_app.SetStatus(u"Exiting Quillmere, saving all your settings..."_s);
    if (SaveAll() || !m_asks)
        return true;
    const Dialogs::Answer answer = m_app.platform.Dialogs().ShowMessage(
        u"The gathered list could not be saved."_s, {}, Dialogs::Buttons::OkOrStay);
    if (answer != Dialogs::Answer::Cancel)
        return true;
    m_app.SetStatus(status);
    m_app.state.blnExitWhenFinished = false;
    return false;
}

bool MainForm::Form_Unload() {
    if (m_unloading)
        return m_app.state.blnClosing;
    m_unloading = true;
    if (!MayClose() && m_asks) {
        m_unloading = false;
        return false;
    }
    m_app.diagnostics.Trap("Form_Unload", [this] {
        if (m_app.controls.Ticked("mnuDisableBrowserSounds"_L1))
            m_app.Get<BrowserSounds>().Restore();
    });
    m_app.Get<StopResume>().StopAll(StopReason::Closing);
    m_app.CloseForms(u"frmMain"_s);
    m_app.state.blnClosing = true;
    m_app.platform.Shell().Quit();
    return true;
}

void MainForm::UnloadUnasked() {
    m_asks = false;
    m_app.Close();
}

void MainForm::ShowPracticeSite(bool runs) {
    m_practiceSiteRuns = runs;
    const QString badge = runs ? u"Practice site"_s : u"Practice site: not running"_s;
    m_app.controls.SetText("lblPracticeSite"_L1, m_app.deployment.UsesPracticeSite() ? badge : QString());
}

void MainForm::picSkip_Click() {
    m_app.webHide().ZOrder(1);
    m_app.Get<StopResume>().SkipProfile();
}

void MainForm::picStop_Click() {
    m_app.WebBrowser1().SetSilent(true);
    m_app.WebBrowser1().Stop();
    m_app.state.blnUserNavigated = true;
    m_app.webHide().ZOrder(1);
    m_app.Get<StopResume>().StopAll(StopReason::WindowStop);
}

void MainForm::picGO_Click() {
    const QString address = m_app.controls.Text("txtAddress"_L1);
    if (Has(address, u"fuseaction=login"_s)) {
        m_app.ShowMessage(
            u"If you need to log in with a different account, please restart Quillmere and log in "
            "from there"_s);
        return;
    }
    m_app.webHide().ZOrder(1);
    // What the bar shows of a page with a password in its address stands for that page.
    const QString shown = m_app.WebBrowser1().LocationURL();
    m_app.WebBrowser1().Navigate(address == m_app.diagnostics.WithoutPasswords(shown) ? shown : address);
}

void MainForm::Browse(const std::function<void()>& move) {
    m_app.state.blnUserNavigated = true;
    m_app.webHide().ZOrder(1);
    move();
}

void MainForm::picBack_Click() {
    Browse([this] { m_app.WebBrowser1().GoBack(); });
}

void MainForm::picForward_Click() {
    Browse([this] { m_app.WebBrowser1().GoForward(); });
}

void MainForm::picHome_Click() {
    Browse([this] { m_app.WebBrowser1().Navigate(m_app.Expand(u"{HomeHost}/index.cfm?fuseaction=home"_s)); });
}

void MainForm::picRefresh_Click() {
    m_app.WebBrowser1().SetSilent(true);
    m_app.webHide().ZOrder(1);
    m_app.WebBrowser1().Refresh();
}

void MainForm::mnuExitWhenFinished_Click() {
    if (m_app.AskYesNo(u"Are you sure you want Quillmere to exit when the current operation is finished?"_s))
        m_app.state.blnExitWhenFinished = true;
}

void MainForm::TabStrip1_Click(const QString& caption) {
    // Click to gather can't outlive its tab.
    if (caption != TabCaptions().first() && m_app.controls.Ticked("optImportClickedProfiles"_L1))
        m_app.controls.SetTicked("optScanFollowing"_L1, true);
    m_app.ShowTab(caption);
}

} // namespace qlm
