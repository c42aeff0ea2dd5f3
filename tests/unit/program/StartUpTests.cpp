// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "core/SettingsFields.h"
#include "gather/GatheredList.h"
#include "program/MainForm.h"
#include "program/StartUp.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

const QString Main = u"http://product.example.com"_s;
const QString Alternate = u"http://product2.example.com"_s;

class StartUpTest : public SimulatedProgram {
protected:
    StartUpTest() {
        app.reset();
        platform.emplace(world, dialogs);
        app.emplace(*platform);
        for (const QString& base : {Main, Alternate}) {
            world.http.Set(base + u"/version.htm"_s, u"version 0.0.1"_s);
            world.http.Set(base + u"/issuealert.ini"_s, u"none"_s);
            world.http.Set(base + u"/login/showloginmessage.htm"_s, u"1"_s);
        }
        world.http.Set(Alternate + u"/online.htm"_s, u"online"_s);
    }
    void Start() { app->Get<StartUp>().Main(); }
    bool LoginScreenIsUp() { return dialogs.IsFormOpen(u"frmInteken"_s); }
};

TEST_F(StartUpTest, TheFoldersAreSettled) {
    Start();
    EXPECT_EQ(app->state.DataFolder, folder.filePath(u"data/Quillmere"_s));
    EXPECT_EQ(app->state.ProgramFolder, world.installationFolder);
    EXPECT_EQ(app->state.ErrorLogPath, folder.filePath(u"data/Quillmere/Error.log"_s));
    EXPECT_TRUE(QDir(app->state.DataFolder).exists());
    EXPECT_FALSE(QFile::exists(folder.filePath(u"program/UserRightsTest.txt"_s)));
    EXPECT_TRUE(LoginScreenIsUp());
}

TEST_F(StartUpTest, AnInstallationFolderThatCannotBeWrittenIsReplacedByTheDataFolder) {
    QFile page(folder.filePath(u"program/timedelay.htm"_s));
    ASSERT_TRUE(page.open(QIODevice::WriteOnly));
    page.close();
    world.gate.readOnlyFolders = {world.installationFolder};
    Start();
    EXPECT_EQ(app->state.ProgramFolder, app->state.DataFolder);
    EXPECT_TRUE(QFile::exists(app->ProgramFile(u"timedelay.htm"_s)));
    EXPECT_TRUE(LoginScreenIsUp());
}

TEST_F(StartUpTest, AnEmptyAnswerChoosesTheAlternateServer) {
    world.http.Set(Alternate + u"/online.htm"_s, {});
    Start();
    EXPECT_EQ(app->state.ServerBaseURL, Alternate);
    EXPECT_TRUE(world.http.asked.contains(Alternate + u"/version.htm"_s));
}

TEST_F(StartUpTest, AnyOtherAnswerAndNoneAtAllChooseTheMainServer) {
    Start();
    EXPECT_EQ(app->state.ServerBaseURL, Main);
    world.http.Fail(Alternate + u"/online.htm"_s);
    app->state.ServerBaseURL.clear();
    Start();
    EXPECT_EQ(app->state.ServerBaseURL, Main);
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(StartUpTest, AServerThatCannotBeReachedEndsTheProgram) {
    world.http.Fail(Main + u"/version.htm"_s);
    Start();
    ASSERT_EQ(dialogs.messages.size(), 1);
    EXPECT_TRUE(dialogs.Texts().first().startsWith(
        u"There seems to be a temporary Internet connection problem. Please check your internet connection"_s));
    EXPECT_TRUE(platform->Shell().hasQuit);
    EXPECT_FALSE(LoginScreenIsUp());
}

TEST_F(StartUpTest, TheNoticeOfASlowServerComesUpOnce) {
    world.http.Hang(Alternate + u"/online.htm"_s);
    Start();
    EXPECT_EQ(dialogs.shownForms.count(u"frmStarting"_s), 1);
    EXPECT_FALSE(dialogs.IsFormOpen(u"frmStarting"_s));
}

TEST_F(StartUpTest, NoNoticeComesUpBehindTheWordsOnAServerThatCannotBeReached) {
    world.http.Fail(Main + u"/version.htm"_s);
    dialogs.onMessage = [this] { platform->Pump().RunFor(100); };
    Start();
    ASSERT_EQ(dialogs.messages.size(), 1);
    platform->Pump().RunFor(5000);
    EXPECT_FALSE(dialogs.shownForms.contains(u"frmStarting"_s));
}

TEST_F(StartUpTest, SettingsThatCannotBeReadAreToldBehindTheLoginScreen) {
    world.settings.problem = u"The settings are damaged."_s;
    bool hadScreen = false;
    dialogs.onMessage = [&] { hadScreen = LoginScreenIsUp(); };
    Start();
    EXPECT_EQ(dialogs.Texts(), QStringList{u"The settings are damaged."_s});
    EXPECT_TRUE(hadScreen);
}

TEST_F(StartUpTest, AnEmptyLoginMessageMeansToWaitForTheLogin) {
    Start();
    EXPECT_FALSE(app->state.blnWaitForLoginFirst);
    world.http.Set(Main + u"/login/showloginmessage.htm"_s, {});
    Start();
    EXPECT_TRUE(app->state.blnWaitForLoginFirst);
}

TEST_F(StartUpTest, TheLaunchLeavesItsMarks) {
    world.settings.SaveSetting(u"General"_s, u"mnuEnableLogging"_s, u"True"_s);
    Start();
    EXPECT_EQ(app->files.ReadLines(app->DataFile(u"debugreg.txt"_s)),
              (QStringList{u"LAUNCH2"_s, u"LAUNCH3"_s, u"LAUNCH4"_s, u"LAUNCH5"_s}));
    EXPECT_TRUE(
        app->files.ReadLines(app->DataFile(u"debuginitial.txt"_s)).constFirst().startsWith(u"LAUNCH - "_s));
}

TEST_F(StartUpTest, ANewerVersionIsNoted) {
    Start();
    EXPECT_FALSE(app->state.blnNewVersionAvailable);
    world.http.Set(Main + u"/version.htm"_s, u"version "_s + app->Version());
    Start();
    EXPECT_FALSE(app->state.blnNewVersionAvailable);
    world.http.Set(Main + u"/version.htm"_s, u"version 99.0.0\r\n"_s);
    Start();
    EXPECT_TRUE(app->state.blnNewVersionAvailable);
}

TEST_F(StartUpTest, AMissingLibraryIsToldInWordsForTheUser) {
    for (const auto& [error, isLibrary] : {std::pair("Component \"mscomctl.ocx\" is missing", true),
                                           {"COMDLG32.OCX", true},
                                           {"ieframe.dll", true},
                                           {"MyFramePanel", true},
                                           {"Overflow", false}}) {
        SCOPED_TRACE(error);
        Start();
        app->controls.SetItems("frmInteken.lstAccounts"_L1, {u"a@example.com"_s});
        app->controls.SetSelected("frmInteken.lstAccounts"_L1, 0);
        app->controls.SetTicked("frmInteken.chkTOS"_L1, true);
        const int listener = app->controls.AddListener([&](const Control& control, Controls::Change, int) {
            if (control.name == "frmInteken.cmdContinue"_L1 && !control.enabled)
                throw std::runtime_error(error);
        });
        dialogs.messages.clear();
        app->commands.Run(u"frmInteken.cmdContinue_Click"_s);
        app->controls.RemoveListener(listener);
        EXPECT_EQ(dialogs.Texts(),
                  isLibrary ? QStringList{u"One of the files that Quillmere needs to run has been corrupted. "
                                          u"Please reinstall this program."_s}
                            : QStringList());
        EXPECT_TRUE(app->controls["frmInteken.cmdContinue"_L1].enabled);
        EXPECT_EQ(app->controls.Text("frmInteken.cmdContinue"_L1), u"Continue"_s);
    }
}

class MainWindowTest : public StartUpTest {
protected:
    MainWindowTest() {
        world.http.responder = [](const QString&) { return std::optional(u"2009-06-02"_s); };
        Start();
        app->state.AccountEmail = u"a@example.com"_s;
    }
};

TEST_F(MainWindowTest, LoadingBeginsTheLogin) {
    QString title;
    app->Get<MainForm>().setTitle = [&title](const QString& text) { title = text; };
    app->Get<MainForm>().Form_Load();
    EXPECT_EQ(title, u"Quillmere v"_s + app->Version() + u" – Start Growing Your MySpace Friends!"_s);
    EXPECT_EQ(app->state.CurrentAction, u"LOGIN"_s);
    EXPECT_EQ(app->webHide().Position(), 1);
    EXPECT_EQ(app->webHide().LocationURL(), u"about:blank"_s);
    EXPECT_EQ(app->WebBrowser1().Position(), 0);
    EXPECT_FALSE(app->controls[("ucpanelFullGatherIDNotify"_L1)].visible);
    EXPECT_FALSE(app->timers->tmrNewVersionAvailable.Enabled());
    platform->Pump().RunFor(500);
    EXPECT_EQ(platform->Browser(BrowserName::webNews).Visited(), QStringList{Main + u"/news.htm"_s});
}

TEST_F(MainWindowTest, ANewVersionBlinks) {
    app->state.blnNewVersionAvailable = true;
    app->Get<MainForm>().Form_Load();
    EXPECT_TRUE(app->timers->tmrNewVersionAvailable.Enabled());
}

TEST_F(MainWindowTest, ALateLoadBehindTheEndEndsTheProcess) {
    app->state.blnClosing = true;
    app->Get<MainForm>().Form_Load();
    EXPECT_TRUE(platform->Shell().hasEnded);
    EXPECT_NE(app->state.CurrentAction, u"LOGIN"_s);
}

TEST_F(MainWindowTest, UnloadingSavesClosesTheFormsAndEnds) {
    app->Get<MainForm>().Form_Load();
    dialogs.ShowForm(u"frmMain"_s);
    dialogs.ShowForm(u"frmLog"_s);
    app->controls.SetText("txtFRNote"_L1, u"kept"_s);
    QStringList told;
    app->controls.AddListener([&told](const Control& control, Controls::Change, int) {
        if (control.name == "myfraCurrentAction"_L1)
            told.append(control.text);
    });
    app->Get<MainForm>().Form_Unload();
    EXPECT_EQ(told.value(0), u"Exiting Quillmere, saving all your settings..."_s);
    EXPECT_EQ(world.settings.GetSetting(u"Field Entries"_s, u"txtFRNote"_s, {}), u"kept"_s);
    EXPECT_TRUE(world.settings.HasSetting(u"General"_s, u"mnuCaptchaSound"_s));
    EXPECT_EQ(dialogs.OpenForms(), QStringList{u"frmMain"_s});
    EXPECT_EQ(app->state.CurrentAction, QString());
    EXPECT_TRUE(app->state.blnClosing);
    EXPECT_TRUE(platform->Shell().hasQuit);
}

TEST_F(MainWindowTest, TheBadgeTellsWhetherThePracticeSiteRuns) {
    StartOn(world.deploymentText + u"Proxy=practice\n"_s);
    app->Get<MainForm>().ShowPracticeSite(false);
    app->Get<MainForm>().Form_Load();
    EXPECT_EQ(app->controls.Text("lblPracticeSite"_L1), u"Practice site: not running"_s);
    app->Get<MainForm>().ShowPracticeSite(true);
    EXPECT_EQ(app->controls.Text("lblPracticeSite"_L1), u"Practice site"_s);
}

TEST_F(MainWindowTest, WithoutAPracticeSiteThereIsNoBadge) {
    app->Get<MainForm>().Form_Load();
    app->Get<MainForm>().ShowPracticeSite(false);
    EXPECT_EQ(app->controls.Text("lblPracticeSite"_L1), QString());
}

TEST_F(MainWindowTest, UnloadingWithoutSavingSavesNothing) {
    app->Get<MainForm>().Form_Load();
    app->state.blnNoSaveOnExit = true;
    app->controls.SetText("txtFRNote"_L1, u"lost"_s);
    app->Get<MainForm>().Form_Unload();
    EXPECT_FALSE(world.settings.HasSetting(u"Field Entries"_s, u"txtFRNote"_s));
    EXPECT_FALSE(world.settings.HasSetting(u"General"_s, u"mnuCaptchaSound"_s));
}

class UnsavedListTest : public MainWindowTest {
protected:
    UnsavedListTest() {
        app->Get<MainForm>().Form_Load();
        dialogs.ShowForm(u"frmMain"_s);
        app->controls.SetTicked("chkSaveScanned"_L1, true);
        app->Get<SettingsFields>().stores.saveGathered = [] { return false; };
        app->state.blnExitWhenFinished = true;
    }
};

TEST_F(UnsavedListTest, WhoStaysForItHasTheProgramAsItWas) {
    app->SetStatus(u"Working"_s);
    dialogs.answers = {Dialogs::Answer::Cancel};
    EXPECT_FALSE(app->Get<MainForm>().Form_Unload());
    EXPECT_EQ(dialogs.Texts(), QStringList{u"The gathered list could not be saved."_s});
    EXPECT_EQ(app->Status(), u"Working"_s);
    EXPECT_FALSE(app->state.blnExitWhenFinished);
    EXPECT_FALSE(app->state.blnClosing);
}

// Nobody may be there to answer when the desktop logs out.
TEST_F(UnsavedListTest, KeepsNoProgramOpenThatTheDesktopEnds) {
    app->Get<MainForm>().UnloadUnasked();
    EXPECT_FALSE(dialogs.IsFormOpen(u"frmMain"_s));
    EXPECT_TRUE(app->Get<MainForm>().Form_Unload());
    EXPECT_EQ(dialogs.Texts(), QStringList());
    EXPECT_TRUE(platform->Shell().hasQuit);
}

} // namespace
} // namespace qlm
