// SPDX-License-Identifier: MIT
#include "maintenance/Restore.h"

#include "SimulatedProgram.h"

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

using Answer = Dialogs::Answer;
const QString ClosingWords =
    u"Backup set successfully restored!\r\nQuillmere needs to be restarted for the new "
    "settings to take effect. The program will now close."_s;

// FriendsLog.txt in small letters and a list of an account, as common tools pack them.
constexpr auto ByInfoZip =
    "UEsDBAoAAAAAAG6kdl14LTxfBgAAAAYAAAAOABwAZnJpZW5kc2xvZy50eHRVVAkAAxBSA2sQUgNrdXgLAAEEAAAAAAQAAAAA"
    "MTAwMQ0KUEsDBAoAAAAAAG6kdl0AAAAAAAAAAAAAAAAJABwAQUNDT1VOVFMvVVQJAAMQUgNrEFIDa3V4CwABBAAAAAAEAAAA"
    "AFBLAwQKAAAAAABupHZdAAAAAAAAAAAAAAAAFwAcAEFDQ09VTlRTL2FAZXhhbXBsZS5jb20vVVQJAAMQUgNrEFIDa3V4CwAB"
    "BAAAAAAEAAAAAFBLAwQKAAAAAABupHZd9sFwlh0AAAAdAAAAJwAcAEFDQ09VTlRTL2FAZXhhbXBsZS5jb20vTWVzc2FnZXNM"
    "aXN0LnR4dFVUCQADEFIDaxBSA2t1eAsAAQQAAAAABAAAAABIaSZNZXNzYWdlPUhlbGxvJlNlbGVjdGVkPTENClBLAQIeAwoA"
    "AAAAAG6kdl14LTxfBgAAAAYAAAAOABgAAAAAAAEAAACkgQAAAABmcmllbmRzbG9nLnR4dFVUBQADEFIDa3V4CwABBAAAAAAE"
    "AAAAAFBLAQIeAwoAAAAAAG6kdl0AAAAAAAAAAAAAAAAJABgAAAAAAAAAEADtQU4AAABBQ0NPVU5UUy9VVAUAAxBSA2t1eAsA"
    "AQQAAAAABAAAAABQSwECHgMKAAAAAABupHZdAAAAAAAAAAAAAAAAFwAYAAAAAAAAABAA7UGRAAAAQUNDT1VOVFMvYUBleGFt"
    "cGxlLmNvbS9VVAUAAxBSA2t1eAsAAQQAAAAABAAAAABQSwECHgMKAAAAAABupHZd9sFwlh0AAAAdAAAAJwAYAAAAAAABAAAA"
    "pIHiAAAAQUNDT1VOVFMvYUBleGFtcGxlLmNvbS9NZXNzYWdlc0xpc3QudHh0VVQFAAMQUgNrdXgLAAEEAAAAAAQAAAAAUEsF"
    "BgAAAAAEAAQAbQEAAGABAAAAAA==";
constexpr auto ByPython =
    "UEsDBBQAAAAIAG6kdl14LTxfCAAAAAYAAAAOAAAAZnJpZW5kc2xvZy50eHQzNDAw5OUCAFBLAwQUAAAACABupHZd9sFwlh8A"
    "AAAdAAAAJwAAAEFDQ09VTlRTL2FAZXhhbXBsZS5jb20vTWVzc2FnZXNMaXN0LnR4dPPIVPNNLS5OTE+19UjNyclXC07NSU0u"
    "SU2xNeTlAgBQSwECFAMUAAAACABupHZdeC08XwgAAAAGAAAADgAAAAAAAAAAAAAAgAEAAAAAZnJpZW5kc2xvZy50eHRQSwEC"
    "FAMUAAAACABupHZd9sFwlh8AAAAdAAAAJwAAAAAAAAAAAAAAgAE0AAAAQUNDT1VOVFMvYUBleGFtcGxlLmNvbS9NZXNzYWdl"
    "c0xpc3QudHh0UEsFBgAAAAACAAIAkQAAAJgAAAAAAA==";

class RestoreTest : public SimulatedProgram {
protected:
    QString In(const QString& name) const { return app->ProgramFile(name); }
    QByteArray Read(const QString& name) { return app->files.ReadBytes(In(name)); }
    void SetUp() override {
        SimulatedProgram::SetUp();
        app->files.WriteBytes(In(u"FriendsLog.txt"_s), "old");
    }
    void RestoreFrom(const QByteArray& bytes) {
        app->files.WriteBytes(archive, bytes);
        dialogs.answers = {Answer::Ok};
        dialogs.files.push_back(archive);
        app->commands.Run(u"mnuRestore_Click"_s);
    }
    void RestoreFiles(const std::vector<ArchiveFile>& files) {
        RestoreFrom(platform->Archive().Write(files));
    }
    // What the box before the closing one says.
    QString Told() const { return dialogs.Texts().value(1); }

    const QString archive = folder.filePath(u"some.qlm"_s);
};

} // namespace

TEST_F(RestoreTest, BringsTheFilesBackAndEndsTheProgramUnsaved) {
    RestoreFiles({{u"friendslog.txt"_s, "1\r\n"},
                  {u"ScaleModeLight.txt"_s, "secret"},
                  {u"chainingfr.txt"_s, "chain"},
                  {u"ACCOUNTS/b@example.com/"_s, {}},
                  {u"ACCOUNTS/a@example.com/MessagesList.txt"_s, "list"}});
    EXPECT_EQ(Read(u"FriendsLog.txt"_s), "1\r\n");
    EXPECT_EQ(Read(u"ACCOUNTS/a@example.com/MessagesList.txt"_s), "list");
    EXPECT_TRUE(app->files.FolderExists(In(u"ACCOUNTS/b@example.com"_s)));
    EXPECT_FALSE(app->files.FolderExists(In(u"Restoring"_s)));
    EXPECT_EQ(dialogs.Texts(),
              (QStringList{u"Your existing logs, settings, etc. will be replaced... continue?"_s,
                           u"Restored files: 4"_s, ClosingWords}));
    EXPECT_EQ(dialogs.messages[0].title, u"Restore"_s);
    EXPECT_EQ(dialogs.messages[0].buttons, Dialogs::Buttons::OkCancel);
    EXPECT_EQ(dialogs.fileDialogs.value(0).section(u'\n', 0, 0), u"Specify the backup file to restore:"_s);
    EXPECT_TRUE(app->state.blnNoSaveOnExit);
    for (const QString& name : {u"scalemodelight.txt"_s, u"chainingfr.txt"_s}) {
        struct stat status {};
        ASSERT_EQ(stat(In(name).toUtf8(), &status), 0);
        EXPECT_EQ(status.st_mode & 077, 0U) << name.toStdString();
    }
}

TEST_F(RestoreTest, ArchivesOfOtherToolsComeBackToo) {
    for (const char* made : {ByInfoZip, ByPython}) {
        RestoreFrom(QByteArray::fromBase64(made));
        EXPECT_EQ(Told(), u"Restored files: 2"_s);
        EXPECT_EQ(Read(u"FriendsLog.txt"_s), "1001\r\n");
        EXPECT_EQ(Read(u"ACCOUNTS/a@example.com/MessagesList.txt"_s), "Hi&Message=Hello&Selected=1\r\n");
        dialogs.messages.clear();
        app->files.WriteBytes(In(u"FriendsLog.txt"_s), "old");
    }
}

TEST_F(RestoreTest, NothingHappensWithoutAYesOrAnArchive) {
    dialogs.answers = {Answer::Cancel};
    app->commands.Run(u"mnuRestore_Click"_s);
    EXPECT_EQ(dialogs.fileDialogs, QStringList());
    dialogs.answers = {Answer::Ok};
    app->commands.Run(u"mnuRestore_Click"_s);
    EXPECT_EQ(dialogs.Texts().size(), 2);
    EXPECT_FALSE(app->state.blnNoSaveOnExit);
}

TEST_F(RestoreTest, WhatNoBackupHoldsIsPassedOverAndNamed) {
    RestoreFiles(
        {{u"FriendsLog.txt"_s, "new"}, {u"deployment.ini"_s, "[Hosts]"}, {u"quillmere"_s, "program"}});
    EXPECT_EQ(Read(u"FriendsLog.txt"_s), "new");
    EXPECT_FALSE(app->files.FileExists(In(u"deployment.ini"_s)));
    EXPECT_EQ(
        Told(),
        u"Restored files: 1\n\nPassed over, since no backup holds such files:\ndeployment.ini\nquillmere"_s);
}

TEST_F(RestoreTest, OfManyThatArePassedOverTheFirstTenAreNamed) {
    std::vector<ArchiveFile> files{{u"FriendsLog.txt"_s, "new"}};
    for (int i = 0; i < 12; ++i)
        files.push_back({u"x%1"_s.arg(i), "x"});
    RestoreFiles(files);
    EXPECT_TRUE(Told().endsWith(u"\nx9\nand 2 more"_s)) << Told().toStdString();
}

TEST_F(RestoreTest, AnArchiveThatMeansHarmChangesNothing) {
    RestoreFiles({{u"FriendsLog.txt"_s, "new"}, {u"../outside.txt"_s, "x"}});
    EXPECT_EQ(Told(), u"Nothing was restored: a name in it leads out of the folder: \"../outside.txt\"."_s);
    EXPECT_EQ(dialogs.Texts().last(), ClosingWords);
    EXPECT_EQ(Read(u"FriendsLog.txt"_s), "old");
    EXPECT_FALSE(QFile::exists(folder.filePath(u"outside.txt"_s)));
}

TEST_F(RestoreTest, WhatIsNoArchiveOrHoldsNothingOfABackupChangesNothing) {
    RestoreFrom("just a text");
    EXPECT_TRUE(Told().startsWith(u"Nothing was restored: "_s));
    EXPECT_GT(Told().size(), 25);
    dialogs.messages.clear();
    RestoreFiles({{u"other.txt"_s, "x"}, {u"ACCOUNTS/"_s, {}}});
    EXPECT_EQ(Told(), u"Nothing was restored: it holds no file of a backup."_s);
    EXPECT_EQ(Read(u"FriendsLog.txt"_s), "old");
}

TEST_F(RestoreTest, WhatCannotBeWrittenChangesNothing) {
    const QByteArray bytes =
        platform->Archive().Write({{u"FriendsLog.txt"_s, "new"}, {u"Gathered.txt"_s, "new"}});
    app->files.WriteBytes(archive, bytes);
    world.gate.readOnlyFolders = {In(u"Restoring"_s)};
    dialogs.answers = {Answer::Ok};
    dialogs.files.push_back(archive);
    app->commands.Run(u"mnuRestore_Click"_s);
    EXPECT_TRUE(Told().startsWith(u"Nothing was restored: Cannot write "_s)) << Told().toStdString();
    world.gate.readOnlyFolders.clear();
    EXPECT_EQ(Read(u"FriendsLog.txt"_s), "old");
    EXPECT_EQ(dialogs.Texts().last(), ClosingWords);
}

TEST_F(RestoreTest, WhatAnEarlierOneLeftUnfinishedIsNotTakenAlong) {
    app->files.CreateFolder(In(u"Restoring/files"_s));
    app->files.WriteBytes(In(u"Restoring/files/Gathered.txt"_s), "left");
    RestoreFiles({{u"FriendsLog.txt"_s, "new"}});
    EXPECT_EQ(Read(u"FriendsLog.txt"_s), "new");
    EXPECT_FALSE(app->files.FileExists(In(u"Gathered.txt"_s)));
}

// A place that is taken by a folder: the rest stands, and the next start tries again.
TEST_F(RestoreTest, WhatCannotTakeItsPlaceYetIsTold) {
    app->files.CreateFolder(In(u"Gathered.txt"_s));
    RestoreFiles({{u"FriendsLog.txt"_s, "new"}, {u"Gathered.txt"_s, "1"}});
    EXPECT_TRUE(
        Told().startsWith(u"Restored files: 2\n\nNot all could take their places yet: Cannot replace "_s))
        << Told().toStdString();
    EXPECT_TRUE(Told().endsWith(u"They will when Quillmere starts again."_s));
    app->files.DeleteFolder(In(u"Gathered.txt"_s));
    app->Get<Restore>().FinishLast();
    EXPECT_EQ(Read(u"FriendsLog.txt"_s), "new");
    EXPECT_EQ(Read(u"Gathered.txt"_s), "1");
}

TEST_F(RestoreTest, ARunIsStoppedBeforeFilesAreWritten) {
    app->state.CurrentAction = u"FR"_s;
    QString actionWhenTold;
    dialogs.onMessage = [&] {
        actionWhenTold = dialogs.messages.size() == 2 ? app->state.CurrentAction : actionWhenTold;
        // The clock's own starts hold back from here on.
        EXPECT_EQ(app->state.blnNoSaveOnExit, dialogs.messages.size() >= 2);
    };
    RestoreFiles({{u"FriendsLog.txt"_s, "new"}});
    EXPECT_EQ(actionWhenTold, QString());
    EXPECT_EQ(app->state.CurrentAction, QString());
}

} // namespace qlm
