// SPDX-License-Identifier: MIT
#pragma once

#include "campaigns/LogDialog.h"
#include "campaigns/ReportDialog.h"

#include <QString>
#include <functional>

namespace qlm {

class App;
struct Campaign;

// What the campaigns share: start, the walk over the targets, the end of a run, the log dialog.
class SendRuns {
public:
    explicit SendRuns(App& app);

    // What a start by the clock says to the command of a button.
    static constexpr int ByClock = 1;
    // The start of a campaign: the checks, the question, the reset, the first step.
    void Start(const Campaign& campaign, bool byClock = false);
    // What any run begins with: nothing of an earlier one is left, and whoever had lent the browser is over.
    void ResetRun(QLatin1StringView word);
    ReportDialog& ReportWindow() { return m_reportDialog; }
    LogDialog& LogWindow() { return m_logDialog; }
    // The end step of the running campaign. In accept mode the accept run goes on instead.
    void Finish();

    // Takes the next target that isn't in the log, and passes over the others without loading a page. False
    // when none is left. caller is the trace word of a removal.
    bool TakeTarget(const QString& caller);
    // A target is left: yes unless the cursor is after the end or the list is empty.
    bool TargetLeft() const;
    // Takes the target under the cursor into strCurrentID.
    void BeginTarget();
    // Notes strCurrentID beside the log, before a click that can't be taken back. False when the disk refuses
    // that: the run is stopped, since a message that nobody remembers may be sent twice.
    bool NoteBeforeSend();
    // Chooses the text of the target. Where nothing in the list of texts is selected any more the run is
    // over, and its step leaves by RunEnded.
    void ChooseOrStop(const std::function<void()>& choose);
    // The page in WebBrowser1 is the site's own. Texts are typed into such pages alone: a stranger's may show
    // the same form.
    bool IsOnSite();
    // Opens the profile that the filters are to judge.
    void OpenProfile();
    // A profile that the filters refuse is counted, its target done with, and the next one is due. caller is
    // the trace word of its removal.
    bool PassesFilter(const QString& caller);
    // Moves on after the target under the cursor: the index, or with chkRemoveAfterSent the head of the
    // list.
    void AdvanceAfterUse(const QString& caller);
    // With chkRemoveAfterSent unticked, moves the cursor before the page of the target is loaded.
    void MoveCursor();
    // Undoes that for a target that still stands before the cursor.
    void MoveCursorBack();
    // With chkRemoveAfterSent ticked, takes the used target off the head of the list. In accept mode the
    // head of lstAcceptIDs goes.
    void RemoveUsedTarget(const QString& caller);
    // How many the running campaign has passed over, and how many have failed.
    void ShowCounts();

private:
    void RegisterCommands(const Campaign& campaign);
    void MarkStart(const Campaign& campaign, int number);
    bool MayStart(const Campaign& campaign);
    void Reset(const Campaign& campaign);
    void Begin(const Campaign& campaign);
    void EndPost();
    void Stop(const Campaign& campaign);
    void chkRemoveAfterSent_MouseDown();
    void ReturnToAccepting();
    void StopWithoutText();
    bool Accepting() const;
    bool IsLogged();
    void ReportSkip();
    void PassOver(const QString& caller);

    App& m_app;
    LogDialog m_logDialog;
    ReportDialog m_reportDialog;
};

} // namespace qlm
