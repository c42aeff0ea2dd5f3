// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "campaigns/OpenNotes.h"
#include "campaigns/SentLog.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class OpenNotesTest : public SimulatedProgram {
protected:
    OpenNotesTest() {
        app->state.CurrentAction = u"FR"_s;
        app->state.blnCheckLog = true;
    }
    void Log(const QStringList& lines) { app->files.WriteLines(logPath, lines); }
    bool Exists(const QString& id) { return RunningLog(*app).LogEntryExists(id); }
    void Work(const QString& id) { app->state.strCurrentID = id; }

    const QString logPath = app->ProgramFile(u"FriendsLog.txt"_s);
    OpenNotes notes{app->files, logPath};
};

TEST_F(OpenNotesTest, StandBesideTheirLog) {
    EXPECT_EQ(notes.Path(), app->ProgramFile(u"FriendsLog.open.txt"_s));
    EXPECT_EQ(OpenNotes(app->files, u"/a.b/log"_s).Path(), u"/a.b/log.open"_s);
}

TEST_F(OpenNotesTest, HoldWhoIsNotedUntilThatIsStruckOut) {
    for (const QString& id : {u"1001"_s, u"1002"_s, u"1001"_s, u"1003"_s})
        notes.Note(id);
    EXPECT_EQ(notes.All(), (QStringList{u"1001"_s, u"1002"_s, u"1003"_s}));
    EXPECT_TRUE(notes.Holds(u" 1002 "_s));
    EXPECT_FALSE(notes.Holds(u"100"_s));
    EXPECT_FALSE(notes.Holds({}));
    notes.StrikeOut({u"1001"_s, u"1003"_s});
    EXPECT_EQ(notes.All(), QStringList{u"1002"_s});
    notes.StrikeOut({u"1002"_s});
    EXPECT_FALSE(app->files.FileExists(notes.Path()));
}

TEST_F(OpenNotesTest, ANoteThatWasTornAtAnyByteIsNobody) {
    notes.Note(u"10015"_s);
    const QByteArray whole = app->files.ReadBytes(notes.Path());
    ASSERT_EQ(whole, "10015\t.\r\n");
    for (qsizetype length = 0; length < whole.size() - 2; ++length) {
        app->files.WriteBytes(notes.Path(), whole.left(length));
        for (const QString& id : {u"1"_s, u"10"_s, u"100"_s, u"1001"_s, u"10015"_s})
            EXPECT_FALSE(notes.Holds(id)) << length;
        EXPECT_TRUE(notes.All().isEmpty());
        notes.Note(u"777"_s);
        EXPECT_EQ(notes.All(), QStringList{u"777"_s}) << length;
        notes.StrikeOut({u"777"_s});
        EXPECT_FALSE(app->files.FileExists(notes.Path()));
    }
}

TEST_F(OpenNotesTest, AStrikeOutThatIsCutOffLeavesTheNotesWhole) {
    notes.Note(u"1001"_s);
    notes.Note(u"1002"_s);
    world.gate.CrashAtWrite(1);
    EXPECT_THROW(notes.StrikeOut({u"1001"_s}), SimPowerCut);
    world.gate.Mend();
    EXPECT_EQ(notes.All(), (QStringList{u"1001"_s, u"1002"_s}));
}

TEST_F(OpenNotesTest, WhoIsNotedCountsAsLogged) {
    Work(u"1001"_s);
    EXPECT_TRUE(RunningLog(*app).NoteContact());
    EXPECT_TRUE(Exists(u"1001"_s));
    EXPECT_TRUE(RunningLog(*app).IsNoted(u"1001"_s));
    EXPECT_FALSE(Exists(u"1002"_s));
    // Where the log isn't read, neither are they; another campaign has its own.
    app->state.blnCheckLog = false;
    EXPECT_FALSE(Exists(u"1001"_s));
    EXPECT_TRUE(RunningLog(*app).LogEntryExists(u"1001"_s, false, true));
    app->state.blnCheckLog = true;
    app->state.CurrentAction = u"MSG"_s;
    EXPECT_FALSE(Exists(u"1001"_s));
    EXPECT_TRUE(RunningLog(*app).NoteContact());
    EXPECT_TRUE(app->files.FileExists(app->ProgramFile(u"MessagesLog.open.txt"_s)));
    app->state.CurrentAction = u"BUL"_s;
    EXPECT_FALSE(Exists(u"1001"_s));
    EXPECT_FALSE(app->files.FileExists(app->state.ErrorLogPath));
}

TEST_F(OpenNotesTest, ALogThatCannotBeReadLeavesTheNotes) {
    notes.Note(u"1001"_s);
    world.gate.readOnlyFolders = {world.installationFolder};
    EXPECT_TRUE(Exists(u"1001"_s));
}

TEST_F(OpenNotesTest, TheLogLineStrikesItsNoteOut) {
    notes.Note(u"1000"_s);
    Work(u"1001"_s);
    RunningLog(*app).NoteContact();
    EXPECT_TRUE(RunningLog(*app).WriteLogEntry());
    EXPECT_EQ(notes.All(), QStringList{u"1000"_s});
    EXPECT_EQ(app->files.ReadLines(logPath), QStringList{u"1001"_s});
}

TEST_F(OpenNotesTest, ALineThatCannotBeWrittenLeavesTheNote) {
    Work(u"1001"_s);
    RunningLog(*app).NoteContact();
    world.gate.readOnlyFolders = {world.installationFolder};
    EXPECT_FALSE(RunningLog(*app).WriteLogEntry());
    EXPECT_EQ(notes.All(), QStringList{u"1001"_s});
    EXPECT_FALSE((Work(u"1002"_s), RunningLog(*app).NoteContact()));
}

TEST_F(OpenNotesTest, NotesOfThoseWhoAreLoggedAreSettled) {
    for (const QString& id : {u"1001"_s, u"1002"_s, u"1003"_s})
        notes.Note(id);
    RunningLog(*app).SettleNotes();
    EXPECT_EQ(notes.All().size(), 3);
    Log({u"1001"_s, u"1003"_s});
    RunningLog(*app).SettleNotes();
    EXPECT_EQ(notes.All(), QStringList{u"1002"_s});
}

} // namespace
} // namespace qlm
