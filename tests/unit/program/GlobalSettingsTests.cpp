// SPDX-License-Identifier: MIT
#include "SettingsTest.h"
#include "content/ContentLists.h"
#include "core/SettingsFields.h"
#include "gather/GatheredList.h"
#include "program/MainForm.h"

namespace qlm {
namespace {

class GlobalSettingsTest : public SettingsTest {
protected:
    // Opens the form, lets the user act in it.
    void Open(const std::function<void()>& act) {
        dialogs.onModal[u"frmGlobalSettings"_s] = act;
        app->commands.Run(u"mnuGlobalSettings_Click"_s);
    }
    void Tick(QLatin1StringView box, bool ticked) { Inputs().SetTicked(box, ticked); }
    void Close() { app->commands.Run(u"frmGlobalSettings.cmdClose_Click"_s); }
    void Untick(QLatin1StringView box) {
        Open([this, box] {
            Tick(box, false);
            Close();
        });
    }
};

TEST_F(GlobalSettingsTest, TheBoxesShowTheFlagsAndCloseStoresThem) {
    world.settings.SaveSetting(General, u"blnUseGlobalLogs"_s, u"False"_s);
    Restart();
    Open([this] {
        for (const GlobalFlag& flag : SettingsFields::GlobalFlags()) {
            const QByteArray box = "frmGlobalSettings." + QByteArray(flag.checkBox);
            EXPECT_EQ(Inputs().Ticked(QLatin1StringView(box)), QByteArray(flag.key) != "blnUseGlobalLogs")
                << flag.key;
            // Each the other way round.
            Tick(QLatin1StringView(box), QByteArray(flag.key) == "blnUseGlobalLogs");
        }
        Close();
    });
    for (const GlobalFlag& flag : SettingsFields::GlobalFlags()) {
        const bool isLogs = QByteArray(flag.key) == "blnUseGlobalLogs";
        EXPECT_EQ(Stored(General, QString::fromLatin1(flag.key)), isLogs ? u"True"_s : u"False"_s)
            << flag.key;
        EXPECT_EQ(app->Get<SettingsFields>().GlobalFlagSet(flag), isLogs);
    }
    EXPECT_FALSE(dialogs.IsFormOpen(u"frmGlobalSettings"_s));
}

// What is there after a power cut must be what the user has chosen.
TEST_F(GlobalSettingsTest, CloseAndResetAreWrittenToTheDiskAtOnce) {
    Restart();
    Open([this] {
        Tick("frmGlobalSettings.chkUseGlobalLogs"_L1, false);
        const int before = world.settings.syncs;
        Close();
        // The inputs before the change, and the change.
        EXPECT_EQ(world.settings.syncs, before + 2);
    });
    dialogs.answers = {Dialogs::Answer::Yes};
    const int before = world.settings.syncs;
    app->commands.Run(u"mnuResetSettings_Click"_s);
    EXPECT_GT(world.settings.syncs, before);
}

TEST_F(GlobalSettingsTest, LeavingTheFormWithoutCloseChangesNothing) {
    Restart();
    Open([this] { Tick("frmGlobalSettings.chkUseGlobalLogs"_L1, false); });
    EXPECT_TRUE(app->Get<SettingsFields>().UsesGlobal(u"Log"_s));
    EXPECT_EQ(Stored(General, u"blnUseGlobalLogs"_s), u"none"_s);
}

TEST_F(GlobalSettingsTest, AnAccountThatLeavesTheSharedValuesStartsWithEmptyOnesAndComesBackToThem) {
    Restart();
    Inputs().SetText("txtMsgSubject"_L1, u"shared"_s);
    Inputs().SetText("txtFRNote"_L1, u"shared note"_s);
    Untick("frmGlobalSettings.chkUseGlobalAutoMessengerSettings"_L1);
    EXPECT_EQ(Inputs().Text("txtMsgSubject"_L1), QString());
    EXPECT_EQ(Inputs().Text("txtFRNote"_L1), u"shared note"_s);
    EXPECT_EQ(Stored(Shared, u"txtMsgSubject"_s), u"shared"_s);
    Inputs().SetText("txtMsgSubject"_L1, u"own"_s);
    Open([this] {
        Tick("frmGlobalSettings.chkUseGlobalAutoMessengerSettings"_L1, true);
        Close();
    });
    EXPECT_EQ(Inputs().Text("txtMsgSubject"_L1), u"shared"_s);
    EXPECT_EQ(Stored(OwnOfA, u"txtMsgSubject"_s), u"own"_s);
}

TEST_F(GlobalSettingsTest, TheGatheredListFollowsItsFlagUnlessARunWalksIt) {
    Restart();
    Inputs().SetTicked("chkSaveScanned"_L1, true);
    app->Get<GatheredList>().Add(u"1001"_s, u"test"_s);
    app->state.CurrentAction = u"FR"_s;
    Untick("frmGlobalSettings.chkUseGlobalGatheredIDsList"_L1);
    EXPECT_EQ(app->state.arrFriendIDs.ToStringList(), QStringList{u"1001"_s});
    app->state.CurrentAction.clear();
    Open([this] {
        Tick("frmGlobalSettings.chkUseGlobalGatheredIDsList"_L1, true);
        Close();
    });
    EXPECT_EQ(app->state.arrFriendIDs.ToStringList(), QStringList{u"1001"_s});
    app->Get<GatheredList>().Add(u"1002"_s, u"test"_s);
    Untick("frmGlobalSettings.chkUseGlobalGatheredIDsList"_L1);
    EXPECT_EQ(app->state.arrFriendIDs.ToStringList(), QStringList{u"1001"_s});
}

TEST_F(GlobalSettingsTest, TheListsInFilesFollowTheirFlags) {
    Restart();
    app->files.WriteLines(app->ProgramFile(u"CategoriesList.txt"_s), {u"Shared"_s});
    Untick("frmGlobalSettings.chkUseGlobalFriendRequesterSettings"_L1);
    EXPECT_EQ(Inputs().Items("cboFRCategories"_L1), QStringList());
    Open([this] {
        Tick("frmGlobalSettings.chkUseGlobalFriendRequesterSettings"_L1, true);
        Close();
    });
    EXPECT_EQ(Inputs().Items("cboFRCategories"_L1), QStringList{u"Shared"_s});
}

TEST_F(GlobalSettingsTest, ResetAllDeletesTheTwoSectionsAndEndsWithoutWritingThemBack) {
    Share(false);
    Restart();
    Save();
    world.settings.SaveSetting(u"Counters\\a@example.com"_s, u"Daily Friends Count"_s, u"5"_s);
    dialogs.answers = {Dialogs::Answer::No};
    app->commands.Run(u"frmGlobalSettings.cmdResetAll_Click"_s);
    EXPECT_TRUE(world.settings.HasSection(General));
    dialogs.messages.clear();
    dialogs.answers = {Dialogs::Answer::Yes};
    app->commands.Run(u"frmGlobalSettings.cmdResetAll_Click"_s);
    EXPECT_EQ(dialogs.Texts(),
              (QStringList{u"Are you sure you want to continue?"_s,
                           u"Quillmere needs to be restarted for the settings to take effect.\n\n"
                           "Quillmere will now close."_s}));
    EXPECT_TRUE(platform->Shell().hasQuit);
    app->Get<MainForm>().Form_Unload();
    EXPECT_FALSE(world.settings.HasSection(General));
    EXPECT_FALSE(world.settings.HasSection(Shared));
    EXPECT_EQ(Stored(u"Counters\\a@example.com"_s, u"Daily Friends Count"_s), u"5"_s);
}

TEST_F(GlobalSettingsTest, ResetSettingsDeletesEverythingAndEndsWithoutWritingItBack) {
    Restart();
    Save();
    world.settings.SaveSetting(u"Counters\\a@example.com"_s, u"Daily Friends Count"_s, u"5"_s);
    app->commands.Run(u"mnuResetSettings_Click"_s); // not confirmed
    EXPECT_FALSE(world.settings.All().empty());
    dialogs.messages.clear();
    dialogs.answers = {Dialogs::Answer::Yes};
    app->commands.Run(u"mnuResetSettings_Click"_s);
    ASSERT_EQ(dialogs.messages.size(), 2);
    EXPECT_EQ(dialogs.messages[0].text, u"Are you sure you want to reset all your Quillmere settings?"_s);
    EXPECT_EQ(dialogs.messages[0].title, u"Reset Settings"_s);
    EXPECT_EQ(dialogs.messages[1].text,
              u"Please restart the program for the changes to take effect.\n\nQLM will now close."_s);
    app->Get<MainForm>().Form_Unload();
    EXPECT_TRUE(world.settings.All().empty());
}

// A request that goes out after the last message would count into the store that has just been emptied.
TEST_F(GlobalSettingsTest, AResetStopsTheRunBeforeItsLastMessage) {
    for (const auto* command : {"mnuResetSettings_Click", "frmGlobalSettings.cmdResetAll_Click"}) {
        Restart();
        app->state.CurrentAction = u"FR"_s;
        app->state.blnHoldLinkCheck = false;
        QStringList runningAt;
        dialogs.onMessage = [this, &runningAt] { runningAt.append(app->state.CurrentAction); };
        dialogs.answers = {Dialogs::Answer::Yes};
        app->commands.Run(QString::fromLatin1(command));
        dialogs.onMessage = nullptr;
        EXPECT_EQ(runningAt, (QStringList{u"FR"_s, QString()})) << command;
        EXPECT_TRUE(app->state.blnHoldLinkCheck);
    }
}

} // namespace
} // namespace qlm
