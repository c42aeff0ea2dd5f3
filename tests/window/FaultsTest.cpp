// SPDX-License-Identifier: MIT
// What may be wrong with the machine that the program is started on: no server, damaged files, no room.
#include "PrintText.h"
#include "ProgramProcess.h"
#include "SiteProcess.h"
#include "UsedProgram.h"
#include "steps/ReportRows.h"

#include <QDir>
#include <QFileInfo>
#include <QTcpServer>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace qlm {
namespace {

const QString NoConnection = u"There seems to be a temporary Internet connection problem."_s;

// A port of this machine at which nobody listens.
quint16 ClosedPort() {
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

class Faults : public testing::Test {
protected:
    Faults() { folders.SaveList(ids); }

    // Runs the program to its end and expects all targets to be asked and logged.
    void ExpectWholeRun();
    void ExpectEnd(ProgramProcess& program, int exitCode);

    SiteProcess site;
    UsedProgram folders{site.Port()};
    const QStringList ids = SomeTargets(3);
    QString output;
};

void Faults::ExpectEnd(ProgramProcess& program, int exitCode) {
    ASSERT_TRUE(program.WaitForEnd(2 * GenerousMs)) << program.Output().toStdString();
    output = program.Output();
    EXPECT_FALSE(program.HasCrashed()) << output.toStdString();
    EXPECT_EQ(program.ExitCode(), exitCode) << output.toStdString();
}

void Faults::ExpectWholeRun() {
    ProgramProcess program(folders.Arguments());
    ExpectEnd(program, 0);
    EXPECT_EQ(TargetsOf(site.Journal(), u"asked"_s), ids);
}

} // namespace

TEST_F(Faults, WithoutAServerAtTheStartTheUserIsToldAndTheProgramEnds) {
    const UsedProgram offline(ClosedPort());
    ProgramProcess program(offline.Arguments());
    ExpectEnd(program, 1);
    EXPECT_EQ(output.count(NoConnection), 1) << output.toStdString();
    EXPECT_FALSE(output.contains(u"login screen"_s));
}

TEST_F(Faults, AProductServerThatResetsEveryConnectionCountsAsNone) {
    site.Tell(u"fault product reset"_s);
    ProgramProcess program(folders.Arguments());
    ExpectEnd(program, 1);
    EXPECT_EQ(output.count(NoConnection), 1) << output.toStdString();
}

TEST_F(Faults, ASettingsFileCutInHalfIsToldKeptAndWorkedWithAsFarAsItGoes) {
    folders.Set(u"General"_s, u"Zoo"_s, u"a value that stands behind the cut"_s);
    const QByteArray whole = folders.Read(folders.SettingsFile());
    // In the middle of the terms' value, with a line that makes no sense after.
    const QByteArray half = whole.left(whole.indexOf("Login") + 3) + QByteArray("\n[\x00\xff\x01", 5);
    folders.Write(folders.SettingsFile(), half);
    ProgramProcess program(folders.Arguments());
    // Which list to restore stood after the cut; so there is nobody to send to, and that is said.
    ExpectEnd(program, 1);
    EXPECT_TRUE(output.contains(u"message: The settings file was damaged."_s)) << output.toStdString();
    EXPECT_TRUE(output.contains(u"message: Your Gathered ID's List is Empty!"_s)) << output.toStdString();
    EXPECT_EQ(folders.Read(folders.SettingsFile() + u".damaged"_s), half);
    EXPECT_EQ(folders.Read(folders.File(u"Gathered.txt"_s)), ids.join(u"\r\n"_s).toLatin1() + "\r\n");

    // The next start finds settings that are in order, agreed terms among them.
    folders.Set(u"Field Entries"_s, u"chkSaveScanned"_s, u"1"_s);
    ExpectWholeRun();
    EXPECT_FALSE(output.contains(u"damaged"_s)) << output.toStdString();
    EXPECT_EQ(folders.Log(), ids);
}

TEST_F(Faults, GarbageInTheAccountFileHidesNoAccount) {
    const QString path = folders.File(u"scalemodelight.txt"_s);
    const QByteArray good = folders.Read(path);
    const QByteArray garbage = QByteArray("\r\n\x00\x01\x02 not digits at all\r\n41424\r\nZZZZ\r\n", 37) +
                               QByteArray(9000, 'F') + "\r\n";
    folders.Write(path, garbage + good + "\r\n3B3B3B3B\r\nxx");
    ExpectWholeRun();
    EXPECT_EQ(folders.Log(), ids);
    EXPECT_EQ(folders.Read(path), garbage + good + "\r\n3B3B3B3B\r\nxx");
}

TEST_F(Faults, AnInstallationFolderThatRefusesFilesSendsTheProgramToItsDataFolder) {
    // A folder by the name of the file that tries the rights: not even root can write it.
    QDir().mkpath(folders.File(u"UserRightsTest.txt"_s));
    for (const QString& file : {u"scalemodelight.txt"_s, u"Gathered.txt"_s})
        ASSERT_TRUE(QFile::rename(folders.File(file), folders.DataFile(file)));
    ExpectWholeRun();
    EXPECT_FALSE(QFile::exists(folders.File(u"FriendsLog.txt"_s)));
    EXPECT_EQ(folders.Read(folders.DataFile(u"FriendsLog.txt"_s)), ids.join(u"\r\n"_s).toLatin1() + "\r\n");
    EXPECT_TRUE(QFile::exists(folders.DataFile(u"timedelay.htm"_s)));
}

TEST_F(Faults, ADataFolderThatCannotBeMadeIsToldAndTheProgramGoesOnWithoutSettings) {
    ASSERT_TRUE(QDir(folders.File(u"local"_s)).removeRecursively());
    folders.Write(folders.File(u"local"_s), "a file in the folder's place");
    ProgramProcess program(folders.Arguments());
    ExpectEnd(program, 1);
    EXPECT_TRUE(output.contains(u"message: The settings in "_s)) << output.toStdString();
    // It has logged in; only the list's restoring was a setting.
    EXPECT_EQ(TargetsOf(site.Journal(), u"signed-in"_s).size(), 1);
    EXPECT_TRUE(output.contains(u"message: Your Gathered ID's List is Empty!"_s)) << output.toStdString();
    EXPECT_EQ(folders.Read(folders.File(u"local"_s)), "a file in the folder's place");
}

// The limit stands for a disk without room: the log can take three more bytes, smaller files are not
// affected. It must leave the engine its own shared memory.
TEST_F(Faults, ALogThatCannotGrowIsReportedAndNoLineOfItIsLost) {
    constexpr int limit = 48 * 1024 * 1024;
    QByteArray log = (QByteArray(1022, '#') + "\r\n").repeated(limit / 1024);
    log.chop(1024);
    log += QByteArray(1024 - 3 - 2 - 8, '#') + "\r\n" + ids[0].toLatin1() + "\r\n";
    ASSERT_EQ(log.size(), limit - 3);
    folders.Write(folders.File(u"FriendsLog.txt"_s), log);
    ProgramProcess program(folders.Arguments(), [] {
        const rlimit size{limit, limit};
        ::setrlimit(RLIMIT_FSIZE, &size);
        std::signal(SIGXFSZ, SIG_IGN);
    });
    ExpectEnd(program, 0);
    const QStringList others = ids.mid(1);
    EXPECT_EQ(TargetsOf(site.Journal(), u"asked"_s), others);
    const QString errors = QString::fromLatin1(folders.Read(folders.DataFile(u"Error.log"_s)));
    EXPECT_TRUE(errors.contains(u"Proc: WriteLogEntry"_s)) << errors.toStdString();
    EXPECT_TRUE(folders.LogBytes().startsWith(log));
    EXPECT_LE(folders.LogBytes().size(), limit);

    // With room again nobody is asked a second time: who was asked and could not be logged is noted beside
    // the log.
    site.Tell(u"seed 1"_s);
    site.Tell(u"share sent 100"_s);
    site.TakeJournal();
    ProgramProcess again(folders.Arguments());
    ExpectEnd(again, 0);
    EXPECT_TRUE(TargetsOf(site.TakeJournal(), u"asked"_s).isEmpty());
    const QByteArray notes = folders.Read(folders.File(u"FriendsLog.open.txt"_s));
    for (const QString& id : others)
        EXPECT_TRUE(notes.contains(id.toLatin1())) << notes.toStdString();
    EXPECT_EQ(folders.Log().count(ids[0]), 1);
}

TEST_F(Faults, ASecondProgramOnTheFolderIsToldAndEndsAndAKilledOneLeavesNoLock) {
    folders.SetDelay(2);
    ProgramProcess first(folders.Arguments());
    ASSERT_TRUE(WaitUntil([&] { return !TargetsOf(site.Journal(), u"asked"_s).isEmpty(); }));
    ProgramProcess second(folders.Arguments());
    ExpectEnd(second, 1);
    EXPECT_TRUE(output.contains(u"Quillmere is already running"_s)) << output.toStdString();
    EXPECT_EQ(TargetsOf(site.Journal(), u"signed-in"_s).size(), 1);
    EXPECT_TRUE(first.IsRunning());
    first.Kill();
    ExpectWholeRun();
    // Killed between the site's word and the log line, the first target stands in the notes.
    const QByteArray known = folders.LogBytes() + folders.Read(folders.File(u"FriendsLog.open.txt"_s));
    for (const QString& id : ids)
        EXPECT_TRUE(known.contains(id.toLatin1())) << known.toStdString();
}

TEST_F(Faults, ToldToEndTheProgramSavesAndEndsAsByItsCloseButton) {
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        folders.SetDelay(60);
        folders.SaveList(ids);
        QFile::remove(folders.File(u"FriendsLog.txt"_s));
        QFile::remove(folders.File(u"FriendsReport.txt"_s));
        site.Tell(u"seed 1"_s);
        site.Tell(u"share sent 100"_s);
        site.TakeJournal();
        ProgramProcess program(folders.Arguments());
        ASSERT_TRUE(WaitUntil([&] { return folders.LogBytes().contains(ids[0].toLatin1()); }));
        ASSERT_TRUE(QFile::remove(folders.File(u"Gathered.txt"_s)));
        ::kill(static_cast<pid_t>(program.ProcessId()), signal);
        // The guided run that was cut off calls itself failed.
        ExpectEnd(program, 1);
        EXPECT_EQ(folders.Read(folders.File(u"Gathered.txt"_s)), ids.join(u"\r\n"_s).toLatin1() + "\r\n");
        EXPECT_TRUE(folders.Read(folders.File(u"FriendsReport.txt"_s)).contains("The program was closed"));
    }
}

TEST_F(Faults, ToldToEndTheProgramAsksNobodyAboutAListThatCannotBeSaved) {
    folders.SetDelay(60);
    ProgramProcess program(folders.Arguments());
    ASSERT_TRUE(WaitUntil([&] { return folders.LogBytes().contains(ids[0].toLatin1()); }));
    ASSERT_TRUE(QDir().mkpath(folders.File(u"Gathered.txt.new/in the way"_s)));
    ::kill(static_cast<pid_t>(program.ProcessId()), SIGTERM);
    ExpectEnd(program, 1);
    EXPECT_FALSE(output.contains(u"could not be saved"_s)) << output.toStdString();
    EXPECT_TRUE(folders.Read(folders.DataFile(u"Error.log"_s)).contains("Proc: SaveScannedList"));
}

TEST_F(Faults, ALogThatIsAPipeIsToldAndHoldsNothingUp) {
    const QString log = folders.File(u"FriendsLog.txt"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(log).constData(), 0600), 0);
    ExpectWholeRun();
    const QString errors = QString::fromLatin1(folders.Read(folders.DataFile(u"Error.log"_s)));
    EXPECT_TRUE(errors.contains(u"it is not an ordinary file"_s)) << errors.toStdString();
}

TEST_F(Faults, ALogOfOneLineOfTwoHundredMegabytesHoldsNothingUp) {
    folders.Write(folders.File(u"FriendsLog.txt"_s), ids[0].toLatin1() + "\r\n" + QByteArray(200 << 20, '7') +
                                                         "\r\n" + ids[1].toLatin1() + "\r\n");
    ProgramProcess program(folders.Arguments());
    ExpectEnd(program, 0);
    EXPECT_EQ(TargetsOf(site.Journal(), u"asked"_s), ids.mid(2));
}

TEST_F(Faults, ALogInUtf16RefusesTheStart) {
    folders.Write(folders.File(u"FriendsLog.txt"_s), QByteArray("\xFF\xFE"
                                                                "1\0",
                                                                4));
    ProgramProcess program(folders.Arguments());
    ExpectEnd(program, 1);
    EXPECT_TRUE(output.contains(u"is written in UTF-16"_s)) << output.toStdString();
    EXPECT_TRUE(TargetsOf(site.Journal(), u"asked"_s).isEmpty());
}

TEST_F(Faults, AReportGrownToAHundredAndFiftyMegabytesIsCutAndHoldsNothingUp) {
    const QString report = folders.File(u"FriendsReport.txt"_s);
    ReportRow row;
    row.time = u"2009-06-01 10:00:00"_s;
    row.id = u"1001"_s;
    row.result = ReportResult::Sent;
    const QByteArray run = RunLine(row.time, u"a@example.com"_s).toLatin1() + "\r\n" +
                           (ResultLine(row).toLatin1() + "\r\n").repeated(50000);
    folders.Write(report, run.repeated((150 << 20) / run.size()));
    ExpectWholeRun();
    EXPECT_LT(QFileInfo(report).size(), 9 << 20);
}

TEST_F(Faults, SettingsThatCannotBeSavedAnyMoreStopARunWithALimitPerDay) {
    const QString fields = u"Field Entries"_s;
    folders.Set(fields, u"txtFriendRequestsToSend"_s, u"50"_s);
    folders.Set(fields, u"cboFRPerDayOrSession"_s, u"per day"_s);
    folders.SetDelay(2);
    ProgramProcess program(folders.Arguments());
    ASSERT_TRUE(WaitUntil([&] { return folders.LogBytes().contains(ids[0].toLatin1()); }));
    ASSERT_TRUE(QFile::rename(folders.SettingsFile(), folders.SettingsFile() + u".away"_s));
    ASSERT_TRUE(QDir().mkpath(folders.SettingsFile() + u"/in the way"_s));
    ASSERT_TRUE(program.WaitForEnd(2 * GenerousMs)) << program.Output().toStdString();
    output = program.Output();
    EXPECT_TRUE(output.contains(u"can't save how many you have sent today"_s)) << output.toStdString();
    EXPECT_EQ(TargetsOf(site.Journal(), u"asked"_s), ids.mid(0, 2));
    EXPECT_EQ(folders.Log(), ids.mid(0, 2));
}

} // namespace qlm
