// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "campaigns/Campaigns.h"
#include "campaigns/LogDialog.h"
#include "campaigns/OpenNotes.h"
#include "campaigns/SentLog.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class LogDialogTest : public SimulatedProgram {
protected:
    void Show(const QString& action) {
        const Campaign& campaign = *FindCampaign(action);
        dialog.Show({*app, &campaign}, QString::fromLatin1(campaign.whatLogRecords));
    }
    QString Path(const QString& action = u"FR"_s) { return SentLog(*app, FindCampaign(action)).Path(); }
    void Press(const QString& button) { app->commands.Run(u"frmLog."_s + button + u"_Click"_s); }

    LogDialog dialog{*app};
};

TEST_F(LogDialogTest, SaysWhatTheLogOfEachCampaignRecords) {
    struct Case {
        const char16_t* action;
        const char16_t* heading;
    };
    for (const Case& each :
         {Case{u"FR", u"The log file keeps a record of everyone you have sent friend requests "
                      u"to, and prevents duplicates from being sent."},
          Case{u"MSG", u"The log file keeps a record of everyone you have sent messages to, "
                       u"and prevents duplicates from being sent."},
          Case{u"COM", u"The log file keeps a record of everyone you have sent comments to, "
                       u"and prevents duplicates from being sent."}}) {
        dialogs.shownForms.clear();
        Show(QString::fromUtf16(each.action));
        EXPECT_EQ(app->controls.Text("frmLog.lblHeading"_L1), QString::fromUtf16(each.heading));
        EXPECT_EQ(dialogs.shownForms, QStringList{u"frmLog"_s});
    }
    EXPECT_EQ(app->controls.Text("frmLog.Label1"_L1), u"What do you want to do with the log?"_s);
}

TEST_F(LogDialogTest, ClearingAsksFirst) {
    Show(u"MSG"_s);
    app->files.WriteLines(Path(u"MSG"_s), {u"1"_s});
    app->files.WriteLines(Path(), {u"2"_s});
    dialogs.answers = {Dialogs::Answer::No, Dialogs::Answer::Yes, Dialogs::Answer::Yes};
    Press(u"cmdClearLog"_s);
    EXPECT_TRUE(app->files.FileExists(Path(u"MSG"_s)));
    Press(u"cmdClearLog"_s);
    EXPECT_FALSE(app->files.FileExists(Path(u"MSG"_s)));
    EXPECT_TRUE(app->files.FileExists(Path()));
    // One that is missing is cleared already.
    Press(u"cmdClearLog"_s);
    EXPECT_EQ(dialogs.Texts().last(), u"Log cleared"_s);
}

TEST_F(LogDialogTest, EditingOpensTheFileAndCreatesAMissingOne) {
    Show(u"FR"_s);
    Press(u"cmdEditLog"_s);
    EXPECT_EQ(platform->Shell().opened, QStringList{u"file "_s + Path()});
    EXPECT_TRUE(app->files.FileExists(Path()));
}

TEST_F(LogDialogTest, EditingLooksFirstInTheCopyThatTheSystemKeepsOfTheFolder) {
    const QString copy =
        FileSystem::Join(platform->SpecialFolderPath(28), u"VirtualStore/Program Files/Quillmere"_s);
    Show(u"FR"_s);
    QDir().mkpath(copy);
    Press(u"cmdEditLog"_s);
    EXPECT_EQ(platform->Shell().opened,
              QStringList{u"file "_s + FileSystem::Join(copy, u"FriendsLog.txt"_s)});
    // A data folder is never redirected.
    app->state.ProgramFolder = world.dataFolder;
    Show(u"FR"_s);
    Press(u"cmdEditLog"_s);
    EXPECT_EQ(platform->Shell().opened.last(),
              u"file "_s + FileSystem::Join(world.dataFolder, u"FriendsLog.txt"_s));
}

TEST_F(LogDialogTest, ImportOverwritesWithoutMerging) {
    Show(u"FR"_s);
    app->files.WriteLines(Path(), {u"1"_s, u"2"_s});
    const QString other = folder.filePath(u"other.txt"_s);
    app->files.WriteLines(other, {u"3"_s});
    dialogs.files = {other, QString()};
    Press(u"cmdImportLog"_s);
    EXPECT_EQ(app->files.ReadLines(Path()), QStringList{u"3"_s});
    Press(u"cmdImportLog"_s);
    EXPECT_EQ(app->files.ReadLines(Path()), QStringList{u"3"_s});
    EXPECT_FALSE(app->files.FileExists(app->state.ErrorLogPath));
}

TEST_F(LogDialogTest, AnImportThatNobodyWouldBeRecognisedInIsRefused) {
    Show(u"FR"_s);
    app->files.WriteLines(Path(), {u"1"_s});
    const QString other = folder.filePath(u"other.txt"_s);
    app->files.WriteBytes(other, QByteArray("\xFF\xFE"
                                            "3\0\r\0\n\0",
                                            8));
    dialogs.files = {other};
    Press(u"cmdImportLog"_s);
    EXPECT_EQ(app->files.ReadLines(Path()), QStringList{u"1"_s});
    ASSERT_EQ(dialogs.messages.size(), 1U);
    EXPECT_TRUE(dialogs.messages[0].text.contains(u"UTF-16"_s));
}

TEST_F(LogDialogTest, TheFileDialogsOfferTextFiles) {
    Show(u"FR"_s);
    dialogs.files = {QString(), QString()};
    Press(u"cmdExportLog"_s);
    Press(u"cmdImportLog"_s);
    const QString filter = u"Text files (txt)|*.txt;|All files (*.*)|*.*"_s;
    EXPECT_EQ(dialogs.fileDialogs, (QStringList{u"Export Log\n\n"_s + filter, u"Import Log\n\n"_s + filter}));
}

TEST_F(LogDialogTest, ExportOverwritesTheChosenFile) {
    Show(u"FR"_s);
    app->files.WriteLines(Path(), {u"1"_s});
    const QString chosen = folder.filePath(u"chosen.txt"_s);
    app->files.WriteLines(chosen, {u"old"_s, u"older"_s});
    dialogs.files = {chosen};
    Press(u"cmdExportLog"_s);
    EXPECT_EQ(app->files.ReadLines(chosen), QStringList{u"1"_s});
}

TEST_F(LogDialogTest, ClearingAndImportingClearTheNotes) {
    Show(u"FR"_s);
    OpenNotes notes(app->files, Path());
    const QString other = folder.filePath(u"other.txt"_s);
    app->files.WriteLines(other, {u"3"_s});
    notes.Note(u"1"_s);
    dialogs.files = {QString(), folder.filePath(u"missing.txt"_s), other};
    Press(u"cmdImportLog"_s); // cancelled
    Press(u"cmdImportLog"_s); // nothing there to import
    EXPECT_EQ(notes.All(), QStringList{u"1"_s});
    Press(u"cmdImportLog"_s);
    EXPECT_TRUE(notes.All().isEmpty());
    notes.Note(u"2"_s);
    dialogs.answers = {Dialogs::Answer::No, Dialogs::Answer::Yes};
    Press(u"cmdClearLog"_s);
    EXPECT_EQ(notes.All(), QStringList{u"2"_s});
    Press(u"cmdClearLog"_s);
    EXPECT_TRUE(notes.All().isEmpty());
}

TEST_F(LogDialogTest, FilesAreChosenAmongTextFiles) {
    Show(u"FR"_s);
    Press(u"cmdExportLog"_s);
    Press(u"cmdImportLog"_s);
    const QString filter = u"Text files (txt)|*.txt;|All files (*.*)|*.*"_s;
    ASSERT_EQ(dialogs.fileDialogs.size(), 2);
    for (const QString& opened : dialogs.fileDialogs)
        EXPECT_TRUE(opened.endsWith(u'\n' + filter)) << opened.toStdString();
}

} // namespace
} // namespace qlm
