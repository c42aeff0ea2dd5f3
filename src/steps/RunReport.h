// SPDX-License-Identifier: MIT
#pragma once

#include "core/FileSystem.h"
#include "steps/ReportRows.h"
#include "steps/StopReason.h"

#include <functional>
#include <optional>

namespace qlm {

class App;

// What the report of a campaign differs in.
struct ReportKind {
    const char* file = "";      // below the folder of the kind "Log"; "" for a campaign without report
    const char* title = "";     // "Friend requests"
    const char* overLimit = ""; // why the target that met the limit was sent, but not counted; "" when the
                                // limit is tested between targets
};

// What became of each target of a run, so that the run can be explained afterwards: a file beside the sent
// log, written as the run goes. A result is on the disk before the run goes on, like the log's line; of a
// target that is only passed over there may be up to a hundred lines to come. The log alone decides who is
// asked; nothing reads this file but the report's window.
//
// A file that can't be written is told once a run, as an error; the run goes on, and what could not be
// written is kept and tried again with the next line.
class RunReport {
public:
    explicit RunReport(App& app) : m_app(app) {}

    // Of a run without report nothing is written.
    void BeginRun(const ReportKind& kind);
    // The run is over, for the reason that StopAll was given. Does nothing without a run.
    void EndRun(StopReason reason);

    // A target that needs no page.
    void PassOver(const QString& id, const QString& why);
    // The page of this target is being opened: it is the open one until it gets a result.
    void Open(const QString& id);
    // Says beforehand why the open target will end as it will.
    void Remark(const QString& why, int pageClass = 0);
    void RemarkPage(int pageClass);
    // A page of the site's has refused the open target.
    bool HasRefusal() const { return m_isOpen && m_row.pageClass != 0; }
    // The site has confirmed the request to the open target: however it ends now, it was sent.
    void Confirm();
    // The open target has been sent to, and is in the log or could not be written there: an unfinished end
    // counts as that.
    void MarkSent(bool isLogged);
    // The open target's result; words given here stand in for a missing remark. Nothing when none is open.
    void Close(ReportResult result, const QString& why = {});
    // Lines that are still in memory go to the file.
    void Flush();

    QString PathOf(const ReportKind& kind);
    // The runs in the file, oldest first, with what is not yet written there.
    QList<ReportedRun> Runs(const ReportKind& kind);
    bool IsRunning(const ReportKind& kind) const;
    // Why the file could not be written; empty when it can.
    QString Problem() const { return m_problem; }

    // Told of every change.
    std::function<void()> onChange;

private:
    void End(Ending ending);
    void DropOldRuns();
    void Write(Durability durability);
    void Changed() const;

    App& m_app;
    bool m_running = false;
    ReportKind m_kind;
    QString m_path;
    QStringList m_lines; // not yet written
    qsizetype m_passedOver = 0;
    ReportRow m_row; // the open target, or the last one
    bool m_isOpen = false;
    bool m_isConfirmed = false;
    std::optional<ReportResult> m_sentAs;
    QString m_problem;
    bool m_problemTold = false;
};

} // namespace qlm
