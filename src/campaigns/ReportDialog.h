// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MessageQueue.h"
#include "steps/ReportRows.h"

#include <functional>

namespace qlm {

class App;
class RunReport;
struct ReportKind;

// The window that shows the report of a run, the newest one first, and keeps up with one that is going on.
class ReportDialog {
public:
    ReportDialog(App& app, RunReport& report);

    // The reports of that campaign.
    void Show(const ReportKind& kind);
    // Empty without a run.
    const QList<ReportRow>& Rows() const { return m_shown.rows; }
    // Told when there are other rows to show. Set by the form while it is there.
    std::function<void()> onRows;

private:
    void cmdSaveCSV_Click();
    void cmdTakeOffLog_Click();
    // Who of the shown run stands in a log although nobody knows whether anything was sent.
    QStringList Unsent() const;
    void Load();
    void ShowRun(qsizetype run);
    void KeepUp();

    App& m_app;
    RunReport& m_report;
    Timer m_clock;
    const ReportKind* m_kind = nullptr; // what is shown
    QList<ReportedRun> m_runs;          // newest first
    ReportedRun m_shown;
    bool m_isStale = false;
};

} // namespace qlm
