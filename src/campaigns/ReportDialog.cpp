// SPDX-License-Identifier: MIT
#include "campaigns/ReportDialog.h"

#include "campaigns/OpenNotes.h"
#include "campaigns/SentLog.h"
#include "core/App.h"
#include "steps/RunReport.h"

#include <QFileInfo>
#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int KeepUpEveryMs = 1000;
const QString Form = u"frmRunReport"_s;
const QString CsvFiles = u"CSV files (csv)|*.csv;|All files (*.*)|*.*"_s;

QString Summary(const ReportedRun& run) {
    constexpr ReportResult results[] = {
        ReportResult::Sent,      ReportResult::SentNotLogged, ReportResult::Skipped,
        ReportResult::PutOff,    ReportResult::Accepted,      ReportResult::Denied,
        ReportResult::Cancelled, ReportResult::Failed,        ReportResult::Unfinished};
    QStringList counts;
    for (const ReportResult result : results) {
        const auto count = std::count_if(run.rows.begin(), run.rows.end(),
                                         [result](const ReportRow& row) { return row.result == result; });
        if (count > 0)
            counts.append(ResultText(result) + u": "_s + QString::number(count));
    }
    return (counts.isEmpty() ? u"No profiles yet"_s : counts.join(u"   "_s)) + u"\n"_s + run.how +
           (run.ended.isEmpty() ? QString() : u", "_s + run.ended);
}

// What the file can't say of itself: a line for the end is missing while a run goes on, and for ever when the
// program was ended from outside.
void Complete(ReportedRun& run, bool isRunning) {
    if (run.ended.isEmpty())
        run.how = isRunning ? u"The run is going on"_s : u"The program ended in the middle of the run"_s;
    for (ReportRow& row : run.rows)
        if (row.result == ReportResult::Unfinished && row.why.isEmpty())
            row.why = isRunning ? u"Is being worked on"_s
                                : u"The program ended while this one was being worked on"_s;
}

QStringList Captions(const QList<ReportedRun>& runs) {
    QStringList captions;
    for (const ReportedRun& run : runs) {
        QString plain = run.begun;
        for (const QString& more : {run.account, QFileInfo(run.about).completeBaseName()})
            if (!more.isEmpty())
                plain += u"   "_s + more;
        QString caption = plain;
        for (int other = 2; captions.contains(caption); ++other)
            caption = plain + u"   ("_s + QString::number(other) + u')';
        captions.append(caption);
    }
    return captions;
}

} // namespace

ReportDialog::ReportDialog(App& app, RunReport& report)
    : m_app(app), m_report(report), m_clock(app.Pump().Queue(), KeepUpEveryMs, false, [this] { KeepUp(); }) {
    Commands& commands = app.commands;
    commands.Add(Form + u".cboRuns_Click"_s,
                 [this] { ShowRun(m_app.controls.Selected("frmRunReport.cboRuns"_L1)); });
    commands.Add(Form + u".cmdSaveCSV_Click"_s, "cmdSaveCSV_Click", [this] { cmdSaveCSV_Click(); });
    commands.Add(Form + u".cmdTakeOffLog_Click"_s, "cmdTakeOffLog_Click", [this] { cmdTakeOffLog_Click(); });
    commands.Add(Form + u".cmdClose_Click"_s, [this] { m_app.platform.Dialogs().CloseForm(Form); });
    report.onChange = [this] { m_isStale = true; };
}

void ReportDialog::Show(const ReportKind& kind) {
    m_kind = &kind;
    m_app.controls.SetItems("frmRunReport.cboRuns"_L1, {});
    Load();
    m_app.platform.Dialogs().ShowForm(Form);
    m_clock.Restart();
}

void ReportDialog::KeepUp() {
    if (!m_app.platform.Dialogs().IsFormOpen(Form))
        m_clock.SetEnabled(false);
    else if (m_isStale)
        m_app.diagnostics.Trap("tmrRunReport_Timer", [this] { Load(); });
}

void ReportDialog::Load() {
    m_isStale = false;
    m_runs = m_report.Runs(*m_kind);
    std::reverse(m_runs.begin(), m_runs.end());
    for (qsizetype run = 0; run < m_runs.size(); ++run)
        Complete(m_runs[run], run == 0 && m_report.IsRunning(*m_kind));
    Controls& controls = m_app.controls;
    const QStringList captions = Captions(m_runs);
    const QStringList& known = controls.Items("frmRunReport.cboRuns"_L1);
    // A run that has just begun comes to the front unless an older one is being read.
    const qsizetype fromTheEnd = known.size() - controls.Selected("frmRunReport.cboRuns"_L1);
    const bool readsAnOlder = controls.Selected("frmRunReport.cboRuns"_L1) > 0 && !known.isEmpty();
    const qsizetype run = readsAnOlder ? std::max<qsizetype>(0, captions.size() - fromTheEnd) : 0;
    if (captions != known) {
        controls.SetItems("frmRunReport.cboRuns"_L1, captions);
        controls.SetSelected("frmRunReport.cboRuns"_L1, captions.isEmpty() ? -1 : static_cast<int>(run));
    }
    ShowRun(run);
}

void ReportDialog::ShowRun(qsizetype run) {
    m_shown = m_runs.value(run);
    Controls& controls = m_app.controls;
    controls.SetText("frmRunReport.lblSummary"_L1,
                     m_runs.isEmpty() ? u"No run has been reported yet."_s : Summary(m_shown));
    const QString problem = m_report.Problem(*m_kind);
    controls.SetText("frmRunReport.lblProblem"_L1,
                     problem.isEmpty()
                         ? QString()
                         : u"The report can't be written to the disk; it goes on in memory. "_s + problem);
    controls.SetEnabled("frmRunReport.cmdSaveCSV"_L1, !m_shown.rows.isEmpty());
    controls.SetVisible("frmRunReport.cmdTakeOffLog"_L1, !Unsent().isEmpty());
    if (onRows)
        onRows();
}

// Those of a run that goes on may still be sent to.
QStringList ReportDialog::Unsent() const {
    QStringList ids;
    if (m_shown.about.isEmpty() || m_report.IsRunning(*m_kind))
        return ids;
    const QStringList noted = OpenNotes(m_app.files, m_app.ProgramFile(m_shown.about)).All();
    for (const ReportRow& row : m_shown.rows)
        if (row.result == ReportResult::Unfinished && noted.contains(row.id))
            ids.append(row.id);
    return ids;
}

void ReportDialog::cmdTakeOffLog_Click() {
    const QStringList ids = Unsent();
    SentLog(m_app, m_app.ProgramFile(m_shown.about)).TakeOff(ids);
    Load();
    m_app.ShowMessage(QString::number(ids.size()) +
                      u" were taken off the log. The next run may invite them."_s);
}

void ReportDialog::cmdSaveCSV_Click() {
    // What is shown may change while the user looks for a place.
    const ReportedRun run = m_shown;
    const QString name = QString::fromLatin1(m_kind->title) + u' ' + run.begun.left(10) + u".csv"_s;
    const QString chosen = m_app.platform.Dialogs().ChooseFileToSave(u"Save Report"_s, name, CsvFiles);
    if (chosen.isEmpty())
        return;
    QString problem;
    Diagnostics::Guard([&] { m_app.files.WriteBytes(chosen, ReportAsCsv(run)); },
                       [&](const std::exception& error) { problem = QString::fromUtf8(error.what()); });
    if (!problem.isEmpty())
        m_app.ShowMessage(u"The report could not be saved.\n\n"_s + problem);
}

} // namespace qlm
