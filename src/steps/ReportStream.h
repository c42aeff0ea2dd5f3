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
    const char* allDone = "";   // how a run ended that came to its end, where it walks over no targets
};

// The report of one campaign's runs: what became of each target, in a file beside the sent log, written as
// the run goes. A result is on the disk before the run goes on, like the log's line; of a target that is only
// passed over there may be up to a hundred lines to come.
//
// A file that can't be written is told once a run, as an error; the run goes on, and what could not be
// written is kept and tried again with the next line.
class ReportStream {
public:
    ReportStream(App& app, const ReportKind& kind) : m_app(app), m_kind(kind) {}

    // about: what this run is for, where runs differ in that.
    void Begin(const QString& about = {});
    // A run that was ended goes on after all.
    void Reopen() { m_running = true; }
    // Does nothing without a run.
    void End(Ending ending);
    bool IsRunning() const { return m_running; }
    const ReportKind& Kind() const { return m_kind; }
    // Its campaign waits for the next post, and whatever is started meanwhile leaves it alone.
    bool IsResting() const { return m_running && m_isResting; }
    void Rest(bool isResting) { m_isResting = isResting; }

    // As RunReport's.
    void PassOver(const QString& id, const QString& why);
    void Open(const QString& id);
    void Remark(const QString& why, int pageClass = 0);
    bool HasRefusal() const { return m_isOpen && m_row.pageClass != 0; }
    void Confirm();
    void MarkSent(bool isLogged);
    void Close(ReportResult result, const QString& why = {});
    // A target that is done with but for the site's answer, which comes for all of them together. Until then it
    // counts as unfinished, for that reason.
    void CloseForNow(const QString& id, const QString& why);
    void Settle(ReportResult result, const QString& why = {});
    void Flush();

    // Where the account in use has its file.
    QString Path() const;
    QList<ReportedRun> Runs() const;
    QString Problem() const { return m_problem; }

    // Told of every change.
    std::function<void()> onChange;

private:
    void DropOldRuns();
    void Write(Durability durability);
    void Changed() const;

    App& m_app;
    const ReportKind m_kind;
    bool m_running = false;
    bool m_isResting = false;
    QString m_path;
    QStringList m_lines; // not yet written
    qsizetype m_passedOver = 0;
    ReportRow m_row; // the open target, or the last one
    bool m_isOpen = false;
    bool m_isConfirmed = false;
    std::optional<ReportResult> m_sentAs;
    QList<ReportRow> m_unsettled;
    QString m_problem;
    bool m_problemTold = false;
};

} // namespace qlm
