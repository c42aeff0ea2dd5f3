// SPDX-License-Identifier: MIT
#include "maintenance/BackupSet.h"

#include "SimulatedProgram.h"

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

using Answer = Dialogs::Answer;

class BackupTest : public SimulatedProgram {
protected:
    void SetUp() override {
        SimulatedProgram::SetUp();
        app->files.CreateFolder(folder.filePath(u"out"_s));
    }
    QString In(const QString& name) const { return app->ProgramFile(name); }
    void Write(const QString& name, const QByteArray& content = "x") {
        app->files.CreateFolder(In(name).section(u'/', 0, -2));
        app->files.WriteBytes(In(name), content);
    }
    void BackUp() {
        dialogs.files.push_back(target);
        app->commands.Run(u"mnuBackup_Click"_s);
    }
    QStringList NamesInTarget() {
        const auto archive = platform->Archive().Read(app->files.ReadBytes(target));
        QStringList names;
        for (const ArchiveEntry& entry : archive->Entries())
            names.append(entry.name);
        return names;
    }
    QStringList Trail() { return app->files.ReadLines(app->DataFile(u"debugbackup.txt"_s)); }

    const QString target = folder.filePath(u"out/QLM-Backup.qlm"_s);
};

} // namespace

TEST_F(BackupTest, HoldsTheSetInItsOrderWithWhatIsBelowItsFolders) {
    for (const QString& name : {u"Gathered.txt"_s,
                                u"BookmarksList.txt"_s,
                                u"blacklistedids.txt"_s,
                                u"chainingbul.txt"_s,
                                u"chainingmsg.txt"_s,
                                u"chainingfr.txt"_s,
                                u"CategoriesList.txt"_s,
                                u"BulletinsList.txt"_s,
                                u"MessagesList.txt"_s,
                                u"CommentsList.txt"_s,
                                u"scalemodelight.txt"_s,
                                u"MessagesLog.txt"_s,
                                u"CommentsLog.txt"_s,
                                u"FriendsLog.txt"_s,
                                u"GROUP INVITE LOGS/Cats \u00e9 \u0436.txt"_s,
                                u"EVENT INVITE LOGS/Party.txt"_s,
                                u"ACCOUNTS/a@example.com/MessagesList.txt"_s,
                                u"ACCOUNTS/a@example.com/deep/er.txt"_s,
                                u"deployment.ini"_s,
                                u"Error.log"_s,
                                u"temp/x.png"_s})
        Write(name);
    app->files.CreateFolder(In(u"ACCOUNTS/b@example.com"_s));
    BackUp();
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Backup successful!"_s});
    EXPECT_EQ(
        dialogs.fileDialogs,
        QStringList{
            u"Specify where to save the backup file to:\nQLM-Backup.qlm\nqlm (qlm)|*.qlm;|All files (*.*)|*.*"_s});
    EXPECT_EQ(
        NamesInTarget(),
        (QStringList{u"FriendsLog.txt"_s, u"CommentsLog.txt"_s, u"MessagesLog.txt"_s, u"scalemodelight.txt"_s,
                     u"CommentsList.txt"_s, u"MessagesList.txt"_s, u"BulletinsList.txt"_s,
                     u"CategoriesList.txt"_s, u"chainingfr.txt"_s, u"chainingmsg.txt"_s, u"chainingbul.txt"_s,
                     u"blacklistedids.txt"_s, u"BookmarksList.txt"_s, u"Gathered.txt"_s,
                     u"ACCOUNTS/a@example.com/MessagesList.txt"_s, u"ACCOUNTS/a@example.com/deep/er.txt"_s,
                     u"ACCOUNTS/b@example.com/"_s, u"EVENT INVITE LOGS/Party.txt"_s,
                     u"GROUP INVITE LOGS/Cats \u00e9 \u0436.txt"_s}));
}

TEST_F(BackupTest, FindsFilesInAnyLetterCaseUnderTheirRealNames) {
    Write(u"friendslog.TXT"_s, "lower");
    Write(u"GATHERED.txt"_s);
    Write(u"accounts/A@example.com/x.txt"_s);
    BackUp();
    EXPECT_EQ(NamesInTarget(),
              (QStringList{u"friendslog.TXT"_s, u"GATHERED.txt"_s, u"accounts/A@example.com/x.txt"_s}));
}

// Such an archive would be refused.
TEST_F(BackupTest, OfTwoNamesThatDifferInCapitalsTheProgramsOwnGoesInAndTheOtherIsTold) {
    Write(u"FRIENDSLOG.txt"_s, "other");
    Write(u"FriendsLog.txt"_s, "own");
    Write(u"GROUP INVITE LOGS/Cats.txt"_s);
    Write(u"GROUP INVITE LOGS/cats.txt"_s);
    BackUp();
    EXPECT_EQ(NamesInTarget(), (QStringList{u"FriendsLog.txt"_s, u"GROUP INVITE LOGS/Cats.txt"_s}));
    EXPECT_EQ(
        dialogs.Texts(),
        (QStringList{u"Not in the backup, since another file's name differs in capital letters only:\n\n"
                     "FRIENDSLOG.txt\nGROUP INVITE LOGS/cats.txt"_s,
                     u"Backup successful!"_s}));
}

TEST_F(BackupTest, ALinkToAFolderLeadsIntoNoCircle) {
    Write(u"ACCOUNTS/a@example.com/x.txt"_s);
    ASSERT_TRUE(QFile::link(In(u"ACCOUNTS"_s), In(u"ACCOUNTS/a@example.com/loop"_s)));
    BackUp();
    EXPECT_EQ(NamesInTarget(), QStringList{u"ACCOUNTS/a@example.com/x.txt"_s});
}

TEST_F(BackupTest, NothingChosenMakesNothing) {
    Write(u"FriendsLog.txt"_s);
    app->commands.Run(u"mnuBackup_Click"_s);
    EXPECT_EQ(dialogs.Texts(), QStringList());
}

TEST_F(BackupTest, AFileThatIsThereIsAskedAboutAndReplacedByAWholeOneOnly) {
    Write(u"FriendsLog.txt"_s, "1\r\n");
    app->files.WriteBytes(target, "older");
    dialogs.answers = {Answer::Cancel};
    BackUp();
    EXPECT_EQ(dialogs.Texts(), QStringList{u"That file already exists, replace?"_s});
    EXPECT_EQ(dialogs.messages[0].title, u"Backup"_s);
    EXPECT_EQ(dialogs.messages[0].buttons, Dialogs::Buttons::OkCancel);
    EXPECT_EQ(app->files.ReadBytes(target), "older");

    dialogs.messages.clear();
    dialogs.answers = {Answer::Ok};
    world.gate.readOnlyFolders = {folder.filePath(u"out"_s)};
    BackUp();
    EXPECT_EQ(dialogs.Texts().value(1), u"Backup failed, please contact support"_s);
    EXPECT_EQ(app->files.ReadBytes(target), "older");

    world.gate.readOnlyFolders.clear();
    dialogs.answers = {Answer::Ok};
    BackUp();
    EXPECT_EQ(dialogs.Texts().last(), u"Backup successful!"_s);
    EXPECT_EQ(NamesInTarget(), QStringList{u"FriendsLog.txt"_s});
    struct stat status {};
    ASSERT_EQ(stat(target.toUtf8(), &status), 0);
    EXPECT_EQ(status.st_mode & 077, 0U) << "it holds passwords";
}

TEST_F(BackupTest, WritesItsTrail) {
    Write(u"FriendsLog.txt"_s);
    app->state.blnLoggingEnabled = true;
    BackUp();
    const QStringList trail = Trail();
    EXPECT_EQ(trail.value(0), u"1 - "_s + app->state.ProgramFolder);
    EXPECT_EQ(trail.value(1), u"2 - "_s + target);
    EXPECT_EQ(trail.value(2), u"ZIP - adding: FriendsLog.txt"_s);
    EXPECT_TRUE(trail.contains(u"ZipServiceCB1 - 100"_s));
    EXPECT_EQ(trail.last(), u"3 SUCCESS - True"_s);
}

TEST_F(BackupTest, WhatCannotBeReadFailsItAndIsLogged) {
    app->state.blnLoggingEnabled = true;
    BackUp(); // nothing is there at all
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Backup failed, please contact support"_s});
    EXPECT_EQ(Trail().last(), u"3 SUCCESS - False"_s);
    EXPECT_FALSE(app->files.FileExists(target));
    EXPECT_TRUE(app->files.ReadLines(app->state.ErrorLogPath).join(u'\n').contains(u"Proc: VBZip"_s));
}

// The window closes while the archive is being made.
TEST_F(BackupTest, TheProgramsEndCallsItOff) {
    Write(u"FriendsLog.txt"_s, QByteArray(100'000, 'x'));
    app->state.blnLoggingEnabled = true;
    app->files.WriteBytes(target, "older");
    dialogs.answers = {Answer::Ok};
    Timer closing(platform->Pump().Queue(), 1, false);
    closing.SetHandler([this] { app->Close(); });
    closing.Restart();
    BackUp();
    EXPECT_EQ(dialogs.Texts(), QStringList{u"That file already exists, replace?"_s});
    EXPECT_EQ(app->files.ReadBytes(target), "older");
    EXPECT_EQ(Trail().last(), u"ZipServiceCB2 CANCEL!"_s);
}

TEST_F(BackupTest, ASecondOneWaitsForTheFirst) {
    Write(u"FriendsLog.txt"_s);
    app->SetStatus(u"Login successful!"_s);
    QString status;
    Timer second(platform->Pump().Queue(), 1, false);
    second.SetHandler([&] {
        second.SetEnabled(false);
        status = app->Status();
        app->commands.Run(u"mnuBackup_Click"_s);
    });
    second.Restart();
    BackUp();
    EXPECT_EQ(dialogs.fileDialogs.size(), 1);
    EXPECT_TRUE(status.startsWith(u"Making the backup... "_s)) << status.toStdString();
    EXPECT_EQ(app->Status(), u"Login successful!"_s);
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Backup successful!"_s});
}

TEST_F(BackupTest, WhatARunSaysMeanwhileIsKept) {
    Write(u"FriendsLog.txt"_s, QByteArray(100'000, 'x'));
    app->SetStatus(u"before"_s);
    Timer run(platform->Pump().Queue(), 1, false);
    run.SetHandler([&] {
        run.SetEnabled(false);
        app->SetStatus(u"Friend request sent"_s);
    });
    run.Restart();
    BackUp();
    EXPECT_EQ(app->Status(), u"Friend request sent"_s);
}

TEST_F(BackupTest, LeftOversOfEarlierVersionsGo) {
    const QString left = platform->TemporaryFolder() + u"/QLMUpdate/backup_temp.zip"_s;
    app->files.CreateFolder(left.section(u'/', 0, -2));
    app->files.WriteBytes(left, "x");
    Write(u"FriendsLog.txt"_s);
    BackUp();
    EXPECT_FALSE(app->files.FileExists(left));
}

TEST_F(BackupTest, AnEntryGoesWhereTheProgramLooks) {
    Write(u"ACCOUNTS/a@example.com/own.TXT"_s);
    Write(u"ACCOUNTS/B@example.com/x.txt"_s);
    Write(u"ACCOUNTS/b@example.com/y.txt"_s);
    const BackupSet set(app->files, app->state.ProgramFolder);
    auto place = [&set](const QString& entry) {
        const auto found = set.PlaceOf(entry);
        return found ? found->name + (found->readers == Readers::OwnerAlone ? u" (owner)"_s : QString())
                     : u"-"_s;
    };
    EXPECT_EQ(place(u"friendslog.txt"_s), u"FriendsLog.txt"_s);
    EXPECT_EQ(place(u"SCALEMODELIGHT.TXT"_s), u"scalemodelight.txt (owner)"_s);
    for (const QString& chain : {u"chainingfr.txt"_s, u"chainingmsg.txt"_s, u"chainingbul.txt"_s})
        EXPECT_EQ(place(chain), chain + u" (owner)"_s);
    EXPECT_EQ(place(u"accounts\\A@example.com\\OWN.txt"_s), u"ACCOUNTS/a@example.com/own.TXT"_s);
    EXPECT_EQ(place(u"accounts/new@example.com/messageslist.txt"_s),
              u"ACCOUNTS/new@example.com/MessagesList.txt"_s);
    EXPECT_EQ(place(u"./friendslog.txt"_s), u"FriendsLog.txt"_s);
    EXPECT_EQ(place(u"ACCOUNTS/B@example.com/z.txt"_s), u"ACCOUNTS/B@example.com/z.txt"_s);
    EXPECT_EQ(place(u"Event Invite Logs/"_s), u"EVENT INVITE LOGS/"_s);
    EXPECT_EQ(place(u"ACCOUNTS/x@example.com/"_s), u"ACCOUNTS/x@example.com/"_s);
    for (const QString& stranger : {u"deployment.ini"_s, u"sub/FriendsLog.txt"_s, u"FriendsLog.txt/"_s,
                                    u"ACCOUNTS"_s, u"Preview Templates/previewtemplateBUL.htm"_s, u"/"_s})
        EXPECT_EQ(place(stranger), u"-"_s) << stranger.toStdString();
}

} // namespace qlm
