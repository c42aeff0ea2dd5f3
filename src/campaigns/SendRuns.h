// SPDX-License-Identifier: MIT
#pragma once

#include "campaigns/LogDialog.h"
#include "campaigns/ReportDialog.h"
#include "campaigns/RunReport.h"

#include <QString>

namespace qlm {

class App;

// What the campaigns share: start, the cursor over the targets, the end of a run, the log dialog.
class SendRuns {
public:
    explicit SendRuns(App& app);

    void cmdAddFriends_Click();
    RunReport& Report() { return m_report; }
    ReportDialog& ReportWindow() { return m_reportDialog; }
    // The end step of the running campaign; reason is the trace word of the stop.
    void Finish(const QString& reason);

    // A target is left: yes unless the cursor is behind the end or the list is empty.
    bool TargetLeft() const;
    // Takes the target under the cursor into strCurrentID.
    void BeginTarget();
    // Moves on behind the target under the cursor: the index, or with chkRemoveAfterSent the head of the
    // list.
    void AdvanceAfterUse(const QString& caller);
    // With chkRemoveAfterSent unticked, moves the cursor before the page of the target is loaded.
    void MoveCursor();
    // Undoes that for a target that still stands before the cursor.
    void MoveCursorBack();
    // With chkRemoveAfterSent ticked, takes the used target off the head of the list.
    void RemoveUsedTarget(const QString& caller);
    // lblFrSkippedCount and lblFrFailedCount.
    void ShowCounts();

private:
    void StopFriendRequests();
    void ResetFriendRun();
    void chkRemoveAfterSent_MouseDown();

    App& m_app;
    LogDialog m_logDialog;
    RunReport m_report;
    ReportDialog m_reportDialog;
};

} // namespace qlm
