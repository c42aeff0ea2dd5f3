// SPDX-License-Identifier: MIT
#pragma once

#include "core/Waiting.h"
#include "invites/InviteKind.h"
#include "invites/InviteLog.h"
#include "platform/Document.h"

#include <QStringList>
#include <functional>
#include <optional>

namespace qlm {

class App;

// One run of invitations, as all the site's pages need it. It lives in the procedure that began it, which
// stays on the stack until the end. A stop doesn't end the procedure: its waits come back, and the user is
// asked what becomes of those who have been chosen. Only where something else has begun meanwhile every wait
// throws RunEnded.
class InviteRun {
public:
    InviteRun(App& app, const InviteKind& kind) : m_app(app), m_kind(kind) {}
    InviteRun(const InviteRun&) = delete;
    InviteRun& operator=(const InviteRun&) = delete;

    // Ends whatever runs.
    void Begin();
    // The log of the group or event of that name; what becomes of whom is reported from here on.
    void OpenLog(const QString& name);
    void LimitToGathered(bool isLimited) { m_isLimitedToGathered = isLimited; }

    // The user, or whatever else, has ended the run.
    bool IsStopped() const;
    // Until the condition holds or the run is stopped; what stands after "for" in what a long wait tells.
    void Wait(const QString& what, const std::function<bool()>& condition);
    void WaitForText(const QString& what, const QString& text);
    void WaitUntilComplete();
    void WaitUntilIdle();
    void WaitSeconds(int seconds);

    // Of WebBrowser1, without waiting for anything. A page that hasn't come holds nothing, nor does one of a
    // stranger's host: no wait ends on it.
    bool Has(const QString& text) const;
    bool HasMarkup(const QString& text) const;
    bool HasElement(const QString& id) const;
    bool IsComplete() const;
    // Clicks the element of that ID; false where there is none.
    bool Press(const QString& id) const;
    // What differs between two pages of a list.
    QString PageMark() const;
    // Another page than that one has come, and is complete.
    bool HasTurned(const QString& mark) const { return IsComplete() && PageMark() != mark; }

    // Somebody whom the log doesn't hold.
    bool IsNew(const QString& id) const;
    // Somebody whom the log or the gathered list leaves out isn't invited.
    bool MayInvite(const QString& id);
    // Into the log, then onto the page.
    void Choose(const QString& id, const std::function<void()>& choose);
    bool IsChosen(const QString& id) const { return m_chosen.contains(id); } // in this batch
    int Chosen() const { return static_cast<int>(m_chosen.size()); }

    void BeginBatch();
    // Nothing without a stop. The answer Yes takes it back: then those who have been chosen are still sent
    // to. True where it was Yes.
    bool FinishAfterStop();
    // Takes a stop back without asking; nothing without one.
    void Resume();
    // Counts those who have been chosen; submit() returns when the site has confirmed them or at a stop.
    // False where nobody has been chosen, or the run is stopped.
    bool SendBatch(const std::function<void()>& submit);
    void SaveDailyCount();
    void ShowWaiting(const QString& forWhat);
    // The site has confirmed the batch.
    void ConfirmBatch();

private:
    Document Page() const;
    void LeaveIfReplaced() const;
    void ShowBatch(const QString& state);

    App& m_app;
    const InviteKind& m_kind;
    RunMark m_mark;
    std::optional<InviteLog> m_log;
    bool m_isLimitedToGathered = false;
    int m_batch = 0;
    int m_sent = 0; // in this run
    QStringList m_chosen;
};

} // namespace qlm
