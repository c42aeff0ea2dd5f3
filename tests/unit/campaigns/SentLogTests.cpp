// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "campaigns/Campaigns.h"
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
    void Log(const QStringList& lines) {
        app->files.WriteLines(SentLog(*app, &FriendRequests).Path(), lines);
    }
    bool Exists(const QString& id) { return RunningLog(*app).LogEntryExists(id); }
};

TEST_F(SentLogTest, EachCampaignHasItsFileAndOthersHaveNone) {
    EXPECT_EQ(SentLog(*app, &FriendRequests).Path(), app->ProgramFile(u"FriendsLog.txt"_s));
    EXPECT_EQ(SentLog(*app, &Messages).Path(), app->ProgramFile(u"MessagesLog.txt"_s));
    EXPECT_EQ(SentLog(*app, &Comments).Path(), app->ProgramFile(u"CommentsLog.txt"_s));
    EXPECT_TRUE(SentLog(*app, &Bulletins).Path().isEmpty());
    EXPECT_TRUE((app->state.CurrentAction.clear(), RunningLog(*app).Path()).isEmpty());
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
    EXPECT_TRUE(app->files.FileExists(SentLog(*app, &FriendRequests).Path()));
}

TEST_F(SentLogTest, IsReadOnlyWhenAskedFor) {
    Log({u"1001"_s});
    app->state.blnCheckLog = false;
    EXPECT_FALSE(Exists(u"1001"_s));
    EXPECT_TRUE(RunningLog(*app).LogEntryExists(u"1001"_s, false, true));
}

TEST_F(SentLogTest, AnActivityWithoutLogFindsAndWritesNothing) {
    Log({u"1001"_s});
    app->state.CurrentAction = u"BUL"_s;
    app->state.strCurrentID = u"1002"_s;
    EXPECT_FALSE(Exists(u"1001"_s));
    RunningLog(*app).WriteLogEntry();
    EXPECT_EQ(app->files.ReadLines(SentLog(*app, &FriendRequests).Path()), QStringList{u"1001"_s});
}

TEST_F(SentLogTest, EntriesAreAppendedInTheOrderSent) {
    for (const QString& id : {u"7"_s, u"5"_s, u"6"_s}) {
        app->state.strCurrentID = id;
        RunningLog(*app).WriteLogEntry();
    }
    EXPECT_EQ(app->files.ReadLines(SentLog(*app, &FriendRequests).Path()),
              (QStringList{u"7"_s, u"5"_s, u"6"_s}));
}

TEST_F(SentLogTest, ALogThatCannotBeWrittenLosesTheEntryAndIsReported) {
    world.gate.readOnlyFolders = {world.installationFolder};
    app->state.strCurrentID = u"1001"_s;
    RunningLog(*app).WriteLogEntry();
    EXPECT_FALSE(Exists(u"1001"_s));
    EXPECT_TRUE(app->files.ReadLines(app->state.ErrorLogPath).contains(u"Proc: WriteLogEntry"_s));
}

TEST_F(SentLogTest, ALineThatAPowerCutHasTornGluesToNothing) {
    app->state.strCurrentID = u"123456"_s;
    world.gate.CrashAtWrite(1);
    EXPECT_THROW(RunningLog(*app).WriteLogEntry(), SimPowerCut);
    world.gate.Mend();
    app->state.strCurrentID = u"777"_s;
    RunningLog(*app).WriteLogEntry();
    EXPECT_TRUE(Exists(u"777"_s));
    EXPECT_FALSE(Exists(u"123456"_s));
}

// A long log takes more than a tick.
TEST_F(SentLogTest, ThePageCheckRestsWhileTheLogIsRead) {
    auto look = [&](bool noPause) {
        app->state.blnHoldLinkCheck = true;
        app->timers->tmrAutoResume.SetEnabled(false);
        RunningLog(*app).LogEntryExists(u"1001"_s, noPause);
        return !app->state.blnHoldLinkCheck && app->timers->tmrAutoResume.Enabled();
    };
    EXPECT_TRUE(look(false));
    EXPECT_FALSE(look(true));
    // An error while it is read is told with the check held.
    app->files.DeleteFile(SentLog(*app, &FriendRequests).Path());
    world.gate.readOnlyFolders = {world.installationFolder};
    app->state.blnHoldLinkCheck = false;
    bool held = false;
    app->controls.AddListener(
        [&](const Control&, Controls::Change, int) { held = app->state.blnHoldLinkCheck; });
    RunningLog(*app).LogEntryExists(u"1001"_s);
    EXPECT_TRUE(held);
}

} // namespace
} // namespace qlm
