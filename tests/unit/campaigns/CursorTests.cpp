// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "campaigns/SendRuns.h"
#include "gather/GatheredList.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

// How a run walks the list.
class CursorTest : public SimulatedProgram {
protected:
    void Fill(const QStringList& ids) {
        for (const QString& id : ids)
            app->gatheredList->ProcessArrayAndList(u"ADD"_s, 0, id, u"test"_s);
        app->state.CurrentAction = u"FR"_s;
    }
    void RemoveAfterSent() { app->controls.SetTicked("chkRemoveAfterSent"_L1, true); }
    QStringList Walk() {
        QStringList walked;
        while (app->sendRuns->TargetLeft() && walked.size() < 10) {
            app->sendRuns->BeginTarget();
            walked.append(app->state.strCurrentID + u' ' + app->controls.Text("lblProgress"_L1));
            app->sendRuns->AdvanceAfterUse(u"test"_s);
        }
        return walked;
    }
};

TEST_F(CursorTest, WalksByIndexAndLeavesTheList) {
    Fill({u"11"_s, u"12"_s});
    EXPECT_EQ(Walk(), (QStringList{u"11 ID 1 of 2"_s, u"12 ID 2 of 2"_s}));
    EXPECT_EQ(app->state.arrFriendIDs.size(), 2);
}

TEST_F(CursorTest, WithRemovalWalksTheHeadAndKeepsTheNumbering) {
    Fill({u"11"_s, u"12"_s, u"13"_s});
    RemoveAfterSent();
    EXPECT_EQ(Walk(), (QStringList{u"11 ID 1 of 3"_s, u"12 ID 2 of 3"_s, u"13 ID 3 of 3"_s}));
    EXPECT_TRUE(app->gatheredList->IsEmpty());
}

// An import of one line fills the array and not the box; REMOVE needs a row.
TEST_F(CursorTest, AnEntryThatCannotBeRemovedDoesNotHoldTheWalk) {
    app->state.arrFriendIDs = {u"11"_s};
    RemoveAfterSent();
    EXPECT_EQ(Walk().size(), 1);
}

TEST_F(CursorTest, AnEntryTheUserHasTakenAwayHimselfIsNotTakenTwice) {
    Fill({u"11"_s, u"12"_s});
    RemoveAfterSent();
    app->sendRuns->BeginTarget();
    app->gatheredList->ProcessArrayAndList(u"REMOVE"_s, 0, {}, u"lstFriendIDs_KeyDown"_s);
    app->sendRuns->RemoveUsedTarget(u"test"_s);
    EXPECT_EQ(app->state.arrFriendIDs, QStringList{u"12"_s});
}

TEST_F(CursorTest, TheEmptyListHasNoTarget) {
    EXPECT_FALSE(app->sendRuns->TargetLeft());
}

TEST_F(CursorTest, TheEndTellsWhatWasPassedOver) {
    Fill({u"11"_s});
    app->state.lngSkippedCount = 2;
    app->state.lngFilteredCount = 1;
    app->sendRuns->Finish(u"IAF"_s);
    EXPECT_EQ(
        dialogs.Texts(),
        QStringList{u"Finished sending friend requests.\n\n2 ID's were skipped because you sent to them "
                    "previously.\n\n1 ID's didn't match your filter settings."_s});
    EXPECT_TRUE(app->state.CurrentAction.isEmpty());
}

TEST_F(CursorTest, TheEndOfAChainedRunTellsNoCounts) {
    Fill({u"11"_s});
    app->state.lngSkippedCount = 2;
    app->state.blnChaining = true;
    app->sendRuns->Finish(u"IAF"_s);
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Finished sending friend requests."_s});
    EXPECT_FALSE(app->state.blnChaining);
}

} // namespace
} // namespace qlm
