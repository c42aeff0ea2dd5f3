// SPDX-License-Identifier: MIT
// What is promised to outlast a power cut has reached the disk, in an order that leaves the old or the new
// file whole.
#include "SimulatedProgram.h"
#include "campaigns/Campaigns.h"
#include "campaigns/SentLog.h"
#include "core/SettingsFields.h"
#include "gather/GatheredList.h"
#include "steps/RunReport.h"

#include <QFile>
#include <QFileInfo>
#include <sys/syscall.h>
#include <unistd.h>

namespace {
QStringList synced; // by the system, in its order: names without their path
}

// In the place of the system's, which it calls.
extern "C" int fsync(int file) {
    synced += QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/fd/%1").arg(file))).fileName();
    return static_cast<int>(::syscall(SYS_fsync, file));
}

namespace qlm {
namespace {

using namespace Qt::Literals::StringLiterals;

class DurabilityTest : public SimulatedProgram {
protected:
    DurabilityTest() {
        app->state.CurrentAction = u"FR"_s;
        app->state.strCurrentID = u"1001"_s;
        Forget();
    }
    void Forget() {
        world.gate.log.clear();
        synced.clear();
    }
    // What the files' gate has heard, and that the system was told the same.
    void ExpectSteps(const QStringList& steps) {
        EXPECT_EQ(world.gate.log.join(u", "_s), steps.join(u", "_s));
        QStringList wanted = world.gate.log.filter(u"sync "_s);
        wanted.replaceInStrings(u"sync "_s, QString());
        EXPECT_EQ(synced.join(u", "_s), wanted.join(u", "_s));
    }
};

TEST_F(DurabilityTest, ALineOfTheLogIsOnTheDiskWhenItIsWritten) {
    EXPECT_TRUE(RunningLog(*app).WriteLogEntry());
    ExpectSteps({u"write"_s, u"sync FriendsLog.txt"_s, u"sync program"_s});
    Forget();
    EXPECT_TRUE(RunningLog(*app).WriteLogEntry());
    ExpectSteps({u"write"_s, u"sync FriendsLog.txt"_s});
}

TEST_F(DurabilityTest, ANoteIsOnTheDiskBeforeWhatItIsFor) {
    EXPECT_TRUE(RunningLog(*app).NoteContact());
    ExpectSteps({u"write"_s, u"sync FriendsLog.open.txt"_s, u"sync program"_s});
}

TEST_F(DurabilityTest, ALogThatIsMadeByLookingIntoItStandsInItsFolder) {
    app->state.blnCheckLog = true;
    EXPECT_FALSE(RunningLog(*app).LogEntryExists(u"1001"_s));
    ExpectSteps({u"sync program"_s});
}

TEST_F(DurabilityTest, ANewFolderStandsInTheOneAboveIt) {
    app->files.CreateFolder(app->ProgramFile(u"ACCOUNTS/a@example.com"_s));
    ExpectSteps({u"sync program"_s, u"sync ACCOUNTS"_s});
}

TEST_F(DurabilityTest, AListIsWholeOnTheDiskBeforeItTakesTheOldOnesPlace) {
    app->state.arrFriendIDs = IdList{u"1"_s, u"2"_s};
    EXPECT_TRUE(app->Get<GatheredList>().SaveScannedList(app->ProgramFile(u"Gathered.txt"_s)));
    ExpectSteps({u"write"_s, u"sync Gathered.txt.new"_s, u"replace Gathered.txt"_s, u"sync program"_s});
}

TEST_F(DurabilityTest, TheReportsResultIsOnTheDiskBeforeTheRunGoesOn) {
    RunReport report(*app);
    report.BeginRun(FriendRequests.report);
    Forget();
    report.Open(u"1001"_s);
    ExpectSteps({u"write"_s});
    Forget();
    report.Close(ReportResult::Sent);
    ExpectSteps({u"write"_s, u"sync FriendsReport.txt"_s});
}

TEST_F(DurabilityTest, DebugLinesAreNotWaitedFor) {
    app->state.blnLoggingEnabled = true;
    app->diagnostics.Debug(u"debugfr.txt"_s, u"line"_s);
    ExpectSteps({u"write"_s});
}

TEST_F(DurabilityTest, SettingsAreSyncedWithTheFieldsAndWithTheWindow) {
    app->Get<SettingsFields>().RestoreAccountSpecificFields();
    const int before = world.settings.syncs;
    app->Get<SettingsFields>().SaveListsAndSettings();
    EXPECT_EQ(world.settings.syncs, before + 1);
    app->Get<SettingsFields>().SaveGeneral();
    EXPECT_EQ(world.settings.syncs, before + 2);
}

TEST_F(DurabilityTest, ASyncThatFailsIsAFailureAndTheOldListStands) {
    const QString list = app->ProgramFile(u"Gathered.txt"_s);
    app->files.WriteLines(list, {u"5"_s});
    world.gate.refusesSyncs = true;
    EXPECT_FALSE(RunningLog(*app).WriteLogEntry());
    app->state.arrFriendIDs = IdList{u"1"_s};
    EXPECT_FALSE(app->Get<GatheredList>().SaveScannedList(list));
    world.gate.refusesSyncs = false;
    EXPECT_EQ(app->files.ReadLines(list), QStringList{u"5"_s});
}

} // namespace
} // namespace qlm
