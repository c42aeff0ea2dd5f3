// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "campaigns/SentLog.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class SentLogTest : public SimulatedProgram {
protected:
    SentLogTest() {
        app->state.CurrentAction = u"FR"_s;
        app->state.blnCheckLog = true;
    }
    void Log(const QStringList& lines) { app->files.WriteLines(app->Get<SentLog>().PathFor(u"FR"_s), lines); }
    bool Exists(const QString& id) { return app->Get<SentLog>().LogEntryExists(id); }
};

TEST_F(SentLogTest, EachCampaignHasItsFileAndOthersHaveNone) {
    EXPECT_EQ(app->Get<SentLog>().PathFor(u"FR"_s), app->ProgramFile(u"FriendsLog.txt"_s));
    EXPECT_EQ(app->Get<SentLog>().PathFor(u"MSG"_s), app->ProgramFile(u"MessagesLog.txt"_s));
    EXPECT_EQ(app->Get<SentLog>().PathFor(u"COM"_s), app->ProgramFile(u"CommentsLog.txt"_s));
    EXPECT_TRUE(app->Get<SentLog>().PathFor(u"BUL"_s).isEmpty());
    EXPECT_TRUE(app->Get<SentLog>().PathFor({}).isEmpty());
}

TEST_F(SentLogTest, ALineMatchesWholeWithSpacesAroundIt) {
    Log({u"1001"_s, u"  1002 "_s, u"1003 and more"_s});
    EXPECT_TRUE(Exists(u"1001"_s));
    EXPECT_TRUE(Exists(u"1002"_s));
    EXPECT_TRUE(Exists(u" 1001 "_s));
    EXPECT_FALSE(Exists(u"1003"_s));
    EXPECT_FALSE(Exists(u"100"_s));
}

TEST_F(SentLogTest, AMissingLogIsCreatedAndHoldsNobody) {
    EXPECT_FALSE(Exists(u"1001"_s));
    EXPECT_TRUE(app->files.FileExists(app->Get<SentLog>().PathFor(u"FR"_s)));
}

TEST_F(SentLogTest, IsReadOnlyWhenAskedFor) {
    Log({u"1001"_s});
    app->state.blnCheckLog = false;
    EXPECT_FALSE(Exists(u"1001"_s));
    EXPECT_TRUE(app->Get<SentLog>().LogEntryExists(u"1001"_s, false, true));
}

TEST_F(SentLogTest, AnActivityWithoutLogFindsAndWritesNothing) {
    Log({u"1001"_s});
    app->state.CurrentAction = u"BUL"_s;
    app->state.strCurrentID = u"1002"_s;
    EXPECT_FALSE(Exists(u"1001"_s));
    app->Get<SentLog>().WriteLogEntry();
    EXPECT_EQ(app->files.ReadLines(app->Get<SentLog>().PathFor(u"FR"_s)), QStringList{u"1001"_s});
}

TEST_F(SentLogTest, EntriesAreAppendedInTheOrderSent) {
    for (const QString& id : {u"7"_s, u"5"_s, u"6"_s}) {
        app->state.strCurrentID = id;
        app->Get<SentLog>().WriteLogEntry();
    }
    EXPECT_EQ(app->files.ReadLines(app->Get<SentLog>().PathFor(u"FR"_s)),
              (QStringList{u"7"_s, u"5"_s, u"6"_s}));
}

TEST_F(SentLogTest, ALogThatCannotBeWrittenLosesTheEntryAndIsReported) {
    world.gate.readOnlyFolders = {world.installationFolder};
    app->state.strCurrentID = u"1001"_s;
    app->Get<SentLog>().WriteLogEntry();
    EXPECT_FALSE(Exists(u"1001"_s));
    EXPECT_TRUE(app->files.ReadLines(app->state.ErrorLogPath).contains(u"Proc: WriteLogEntry"_s));
}

TEST_F(SentLogTest, ALineThatAPowerCutHasTornGluesToNothing) {
    app->state.strCurrentID = u"123456"_s;
    world.gate.CrashAtWrite(1);
    EXPECT_THROW(app->Get<SentLog>().WriteLogEntry(), SimPowerCut);
    world.gate.Mend();
    app->state.strCurrentID = u"777"_s;
    app->Get<SentLog>().WriteLogEntry();
    EXPECT_TRUE(Exists(u"777"_s));
    EXPECT_FALSE(Exists(u"123456"_s));
}

// A long log takes more than a tick.
TEST_F(SentLogTest, ThePageCheckRestsWhileTheLogIsRead) {
    auto look = [&](bool noPause) {
        app->state.blnHoldLinkCheck = true;
        app->timers->tmrAutoResume.SetEnabled(false);
        app->Get<SentLog>().LogEntryExists(u"1001"_s, noPause);
        return !app->state.blnHoldLinkCheck && app->timers->tmrAutoResume.Enabled();
    };
    EXPECT_TRUE(look(false));
    EXPECT_FALSE(look(true));
    // An error while it is read is told with the check held.
    app->files.DeleteFile(app->Get<SentLog>().PathFor(u"FR"_s));
    world.gate.readOnlyFolders = {world.installationFolder};
    app->state.blnHoldLinkCheck = false;
    bool held = false;
    app->controls.AddListener(
        [&](const Control&, Controls::Change, int) { held = app->state.blnHoldLinkCheck; });
    app->Get<SentLog>().LogEntryExists(u"1001"_s);
    EXPECT_TRUE(held);
}

} // namespace
} // namespace qlm
