// SPDX-License-Identifier: MIT
// What fails on an account screen is reported under the name of its procedure.
#include "SimulatedProgram.h"
#include "accounts/AccountFile.h"
#include "accounts/AccountScreens.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class AccountScreensTest : public SimulatedProgram {
protected:
    AccountScreensTest() { app->Get<AccountFile>().Add(u"a@example.com"_s, u"secret"_s); }

    void ReplaceByFolder(const QString& path) {
        QFile::remove(path);
        QDir().mkpath(path);
    }
    QStringList Reported() {
        QStringList names;
        if (app->files.FileExists(app->state.ErrorLogPath))
            for (const QString& line : app->files.ReadLines(app->state.ErrorLogPath))
                if (line.startsWith(u"Proc: "_s))
                    names.append(line.mid(6));
        return names;
    }
};

TEST_F(AccountScreensTest, AListThatCannotBeReadIsReportedAndTheScreenComesUp) {
    ReplaceByFolder(app->Get<AccountFile>().Path());
    app->Get<AccountScreens>().ShowLoginScreen();
    EXPECT_EQ(Reported(), QStringList{u"FillAccountsList - frmInteken"_s});
    EXPECT_TRUE(app->platform.Dialogs().IsFormOpen(u"frmInteken"_s));
}

TEST_F(AccountScreensTest, TheSwitchScreensListHasItsOwnName) {
    ReplaceByFolder(app->Get<AccountFile>().Path());
    app->commands.Run(u"mnuSwitchLogin_Click"_s);
    EXPECT_EQ(Reported(), QStringList{u"FillAccountsList - frmSwitchAccount"_s});
}

TEST_F(AccountScreensTest, ADeleteThatFailsLeavesTheList) {
    app->Get<AccountScreens>().ShowLoginScreen();
    world.gate.readOnlyFolders = {world.installationFolder};
    app->commands.Run(u"frmInteken.cmdDelete_Click"_s);
    EXPECT_EQ(Reported(), QStringList{u"cmdDelete_Click - frmInteken"_s});
    EXPECT_EQ(app->controls.Items("frmInteken.lstAccounts"_L1), QStringList{u"a@example.com"_s});
}

TEST_F(AccountScreensTest, AContinueThatFailsIsReported) {
    app->Get<AccountScreens>().ShowLoginScreen();
    app->controls.SetTicked("frmInteken.chkTOS"_L1, true);
    ReplaceByFolder(app->Get<AccountFile>().Path());
    app->commands.Run(u"frmInteken.cmdContinue_Click"_s);
    EXPECT_EQ(Reported(), QStringList{u"cmdContinue_Click"_s});
    EXPECT_TRUE(app->platform.Dialogs().IsFormOpen(u"frmInteken"_s));
}

TEST_F(AccountScreensTest, ALoginScreenThatCannotBeFilledComesUp) {
    app->controls.AddListener([](const Control& control, Controls::Change, int) {
        if (control.name == "frmInteken.lblHeading"_L1)
            throw std::runtime_error("no window");
    });
    app->Get<AccountScreens>().ShowLoginScreen();
    EXPECT_EQ(Reported(), QStringList{u"Form_Load - frmInteken"_s});
    EXPECT_TRUE(app->platform.Dialogs().IsFormOpen(u"frmInteken"_s));
}

// The list shows the file's accounts already; the store keeps its own.
TEST_F(AccountScreensTest, AnImportThatFailsIsReported) {
    const QString path = folder.filePath(u"list.txt"_s);
    app->files.WriteBytes(path, "b@example.com;word\r\n");
    const QByteArray before = app->files.ReadBytes(app->Get<AccountFile>().Path());
    world.gate.readOnlyFolders = {world.installationFolder};
    dialogs.answers = {Dialogs::Answer::Yes};
    dialogs.files = {path};
    app->commands.Run(u"frmSwitchAccount.cmdImport_Click"_s);
    EXPECT_EQ(Reported(), QStringList{u"cmdImport_Click"_s});
    EXPECT_EQ(app->controls.Items("frmSwitchAccount.lstAccounts"_L1), QStringList{u"b@example.com"_s});
    EXPECT_EQ(app->files.ReadBytes(app->Get<AccountFile>().Path()), before);
}

TEST_F(AccountScreensTest, AnExportThatFailsIsReported) {
    const QString path = folder.filePath(u"list.txt"_s);
    QDir().mkpath(path);
    dialogs.files = {path};
    app->commands.Run(u"frmSwitchAccount.cmdExport_Click"_s);
    EXPECT_EQ(Reported(), QStringList{u"SaveList"_s});
}

// The list takes a double click also while the main window is being loaded.
TEST_F(AccountScreensTest, AContinueThatIsUnderWayIsNotBegunAgain) {
    app->Get<AccountScreens>().ShowLoginScreen();
    app->controls.SetTicked("frmInteken.chkTOS"_L1, true);
    app->controls.SetEnabled("frmInteken.cmdContinue"_L1, false);
    app->commands.Run(u"frmInteken.lstAccounts_DblClick"_s);
    EXPECT_EQ(app->state.AccountEmail, QString());
    EXPECT_TRUE(dialogs.IsFormOpen(u"frmInteken"_s));
    app->controls.SetEnabled("frmInteken.cmdContinue"_L1, true);
    app->commands.Run(u"frmInteken.lstAccounts_DblClick"_s);
    EXPECT_EQ(app->state.AccountEmail, u"a@example.com"_s);
}

// Whoever draws while the list is being written sees that the dialog is busy.
TEST_F(AccountScreensTest, TheDetailsShowThatTheyAreBusy) {
    QList<bool> usable;
    platform->Pump().onPump = [this, &usable] {
        usable = {app->controls["frmAccountDetails.cmdOK"_L1].enabled,
                  app->controls["frmAccountDetails.cmdCancel"_L1].enabled,
                  app->controls["frmAccountDetails.fraFields"_L1].visible};
    };
    dialogs.onModal[u"frmAccountDetails"_s] = [this] {
        for (const auto& [field, text] : {std::pair{"txtEmail", u"b@example.com"_s},
                                          {"txtPassword", u"word"_s},
                                          {"txtConfirmPassword", u"word"_s}})
            app->controls.SetText(QLatin1StringView("frmAccountDetails." + QByteArray(field)), text);
        app->commands.Run(u"frmAccountDetails.cmdOK_Click"_s);
    };
    app->commands.Run(u"frmInteken.cmdAdd_Click"_s);
    EXPECT_EQ(usable, (QList<bool>{false, false, false}));
    EXPECT_TRUE(app->controls["frmAccountDetails.cmdOK"_L1].enabled);
}

TEST_F(AccountScreensTest, WithoutASelectionContinueAsksForOne) {
    app->Get<AccountScreens>().ShowLoginScreen();
    app->controls.SetTicked("frmInteken.chkTOS"_L1, true);
    app->controls.SetSelected("frmInteken.lstAccounts"_L1, -1);
    app->commands.Run(u"frmInteken.cmdContinue_Click"_s);
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Please select an account to log in with"_s});
    EXPECT_EQ(app->state.AccountEmail, QString());
}

// A list of blank lines alone is not an empty list, though there is nothing to choose.
TEST_F(AccountScreensTest, BlankLinesAreEntriesOfTheLoginScreenAlone) {
    app->files.WriteBytes(app->Get<AccountFile>().Path(), "\r\n  \r\n");
    app->Get<AccountScreens>().ShowLoginScreen();
    EXPECT_EQ(app->controls.Items("frmInteken.lstAccounts"_L1).size(), 2);
    dialogs.onModal[u"frmSwitchAccount"_s] = [this] {
        EXPECT_TRUE(app->controls.Items("frmSwitchAccount.lstAccounts"_L1).isEmpty());
        EXPECT_TRUE(app->controls["frmSwitchAccount.cmdOK"_L1].enabled);
        app->commands.Run(u"frmSwitchAccount.cmdOK_Click"_s);
    };
    app->commands.Run(u"mnuSwitchLogin_Click"_s);
    EXPECT_EQ(app->state.CurrentAction, QString());
}

} // namespace
} // namespace qlm
