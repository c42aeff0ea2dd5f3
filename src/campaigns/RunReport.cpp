// SPDX-License-Identifier: MIT
#include "campaigns/RunReport.h"

#include "campaigns/SentLog.h"
#include "core/App.h"

#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype KeptRuns = 20;
constexpr qsizetype PassedOverAtOnce = 100;

// What a reason of StopAll means to the user, and what it makes of the target that is being worked on.
struct EndRow {
    QLatin1StringView reason;
    const char* how;
    ReportResult openTarget;
    const char* why;
};

const std::vector<EndRow>& EndRows() {
    static const std::vector<EndRow> rows{
        {"IAF"_L1, "All targets were gone through", ReportResult::Unfinished, ""},
        {"AFC"_L1, "Your limit was reached", ReportResult::SentNotLogged,
         "The request that met your limit: it is sent, but neither counted nor logged"},
        {"LF2"_L1, "The site's daily limit was reached", ReportResult::Failed, ""},
        {"ADDSTOP"_L1, "You pressed Stop", ReportResult::Unfinished, "You pressed Stop"},
        {"MAINSTOP"_L1, "You pressed Stop", ReportResult::Unfinished, "You pressed Stop"},
        {"FU"_L1, "The program was closed", ReportResult::Unfinished, "The program was closed"},
    };
    return rows;
}

EndRow RowFor(const QString& reason) {
    for (const EndRow& row : EndRows())
        if (reason == row.reason)
            return row;
    return {{}, "The run was ended", ReportResult::Unfinished, "The run was ended"};
}

} // namespace

QString RunReport::Path() {
    QString path = m_app.sentLog->PathFor(u"FR"_s);
    return path.replace(u"FriendsLog.txt"_s, u"FriendsReport.txt"_s);
}

void RunReport::BeginRun() {
    // A start over a running run gets no stop in between.
    if (m_running)
        EndRun(u"begun anew"_s);
    m_running = true;
    m_problemTold = false;
    m_row = {};
    if (const QString path = Path(); path != m_path) {
        m_path = path;
        m_lines.clear();
    }
    DropOldRuns();
    m_lines.append(RunLine(m_app.NowText(), m_app.state.AccountEmail));
    Write(Durability::Synced);
}

void RunReport::DropOldRuns() {
    Diagnostics::IgnoreErrors([this] {
        if (!m_app.files.FileExists(m_path))
            return;
        const QStringList lines = m_app.files.ReadLines(m_path);
        QList<qsizetype> begins;
        for (qsizetype i = 0; i < lines.size(); ++i)
            if (IsRunLine(lines[i]))
                begins.append(i);
        if (begins.size() >= KeptRuns)
            m_app.files.WriteLines(m_path, lines.mid(begins[begins.size() - KeptRuns + 1]),
                                   Readers::OwnerAlone);
    });
}

void RunReport::EndRun(const QString& reason) {
    if (!m_running)
        return;
    const EndRow row = RowFor(reason);
    Close(row.openTarget, QString::fromLatin1(row.why));
    m_lines.append(EndLine(m_app.NowText(), QString::fromLatin1(row.how)));
    Write(Durability::Synced);
    m_running = false;
    Changed();
}

void RunReport::PassOver(const QString& id, const QString& why) {
    if (!m_running)
        return;
    m_row = {m_row.number + 1, m_app.NowText(), id, ReportResult::Skipped, 0, why};
    m_lines.append(ResultLine(m_row));
    if (++m_passedOver % PassedOverAtOnce == 0)
        Write(Durability::Quick);
}

void RunReport::Open(const QString& id) {
    if (!m_running)
        return;
    Close(ReportResult::Unfinished);
    m_row = {m_row.number + 1, m_app.NowText(), id, ReportResult::Unfinished, 0, {}};
    m_isOpen = true;
    m_lines.append(BegunLine(m_row));
    Write(Durability::Quick);
}

void RunReport::Remark(const QString& why, int pageClass) {
    if (!m_isOpen)
        return;
    m_row.why = why;
    m_row.pageClass = pageClass;
}

void RunReport::RemarkPage(int pageClass) {
    Remark(RefusalText(pageClass), pageClass);
}

void RunReport::Close(ReportResult result, const QString& why) {
    if (!m_isOpen)
        return;
    m_isOpen = false;
    m_row.result = result;
    m_row.time = m_app.NowText();
    if (m_row.why.isEmpty())
        m_row.why = why;
    m_lines.append(ResultLine(m_row));
    Write(Durability::Synced);
}

void RunReport::Flush() {
    if (!m_lines.isEmpty())
        Write(Durability::Quick);
}

// Whole lines in one write, so that only the last of them can be torn.
void RunReport::Write(Durability durability) {
    auto write = [this, durability] {
        m_app.files.AppendLine(m_path, m_lines.join(u"\r\n"_s), Readers::OwnerAlone, durability);
        m_lines.clear();
        m_problem.clear();
    };
    if (m_problemTold)
        Diagnostics::Guard(write, [this](const QString& error) { m_problem = error; });
    else
        m_problem = m_app.diagnostics.Trap("WriteRunReport", write);
    m_problemTold = m_problemTold || !m_problem.isEmpty();
    Changed();
}

void RunReport::Changed() const {
    if (onChange)
        onChange();
}

QList<ReportedRun> RunReport::Runs() {
    const QString path = m_running ? m_path : Path();
    QStringList lines;
    if (m_app.files.FileExists(path))
        lines = m_app.files.ReadLines(path);
    // Another account's report has nothing to do with what this one could not write.
    if (path == m_path)
        lines += m_lines;
    return RunsIn(lines);
}

} // namespace qlm
