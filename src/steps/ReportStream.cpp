// SPDX-License-Identifier: MIT
#include "steps/ReportStream.h"

#include "core/AnsiText.h"
#include "core/App.h"
#include "core/LineReader.h"
#include "core/SettingsFields.h"

#include <algorithm>
#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype KeptRuns = 20;
// Of the runs before the last as many as fit: the report is read at once when its window opens.
constexpr qint64 LargestReport = 8 << 20;
constexpr qsizetype PartBytes = 1 << 18;
constexpr qsizetype PassedOverAtOnce = 100;

// What an ending means to the user, and what it makes of the target that is being worked on.
struct EndRow {
    Ending ending;
    const char* how;
    ReportResult openTarget;
    const char* why;
};

EndRow RowFor(Ending ending, const ReportKind& kind) {
    constexpr auto Unfinished = ReportResult::Unfinished;
    static constexpr EndRow rows[] = {
        {Ending::AllDone, "All targets were gone through", Unfinished, ""},
        {Ending::LimitMet, "Your limit was reached", Unfinished, ""},
        {Ending::Stopped, "You pressed Stop", Unfinished, "You pressed Stop"},
        {Ending::Closed, "The program was closed", Unfinished, "The program was closed"},
        {Ending::Uncounted, "The count of today could not be saved", Unfinished, ""},
        {Ending::Unnoted, "Whom to send to could not be noted", Unfinished, "It was not sent"},
        {Ending::NoText, "No text in the list was selected any more", Unfinished, ""},
        {Ending::Flooding, "The site says that you are flooding comments", ReportResult::Failed,
         "The site takes no more comments for now"},
        {Ending::DailyLimit, "The site's daily limit was reached", ReportResult::Failed, ""},
        {Ending::Other, "The run was ended", Unfinished, "The run was ended"},
    };
    EndRow row = *std::find_if(std::begin(rows), std::end(rows),
                               [ending](const EndRow& each) { return each.ending == ending; });
    if (ending == Ending::AllDone && kind.allDone[0])
        row.how = kind.allDone;
    if (ending == Ending::LimitMet && kind.overLimit[0]) {
        row.openTarget = ReportResult::SentNotLogged;
        row.why = kind.overLimit;
    }
    return row;
}

// How many runs at the file's beginning are too many.
qsizetype RunsTooMany(const QString& path, qsizetype mostRuns) {
    QList<qint64> sizes;
    LineReader reader(path);
    while (const auto line = reader.Next()) {
        if (IsRunLine(*line))
            sizes.append(0);
        if (!sizes.isEmpty())
            sizes.last() += line->size() + 2;
    }
    qint64 bytes = 0;
    qsizetype kept = 0;
    while (kept < std::min(sizes.size(), mostRuns)) {
        bytes += sizes[sizes.size() - 1 - kept];
        if (kept > 0 && bytes > LargestReport)
            break;
        ++kept;
    }
    return sizes.size() - kept;
}

// The next line of the runs after the first so many.
std::optional<QByteArrayView> NextBehind(LineReader& reader, qsizetype& runsToLeave) {
    auto line = reader.Next();
    while (line && runsToLeave >= 0) {
        if (IsRunLine(*line) && --runsToLeave < 0)
            break;
        line = reader.Next();
    }
    return line;
}

} // namespace

QString ReportStream::Path() const {
    const QString folder =
        FileSystem::Join(m_app.state.ProgramFolder, m_app.Get<SettingsFields>().AccountDataPath(u"Log"_s));
    return FileSystem::Join(folder, QString::fromLatin1(m_kind.file));
}

void ReportStream::Begin(const QString& about) {
    m_running = true;
    m_isResting = false;
    m_problemTold = false;
    m_row = {};
    m_unsettled.clear();
    if (const QString path = Path(); path != m_path) {
        m_path = path;
        m_lines.clear();
    }
    DropOldRuns();
    m_lines.append(RunLine(m_app.NowText(), m_app.state.AccountEmail, about));
    Write(Durability::Synced);
}

void ReportStream::DropOldRuns() {
    Diagnostics::IgnoreErrors([this] {
        if (!m_app.files.FileExists(m_path))
            return;
        qsizetype toLeave = RunsTooMany(m_path, KeptRuns - 1);
        if (toLeave == 0)
            return;
        LineReader reader(m_path);
        const auto nextPart = [&](QByteArray& part) {
            while (part.size() < PartBytes) {
                const auto line = NextBehind(reader, toLeave);
                if (!line)
                    return false;
                part.append(*line).append("\r\n");
            }
            return true;
        };
        m_app.files.WriteParts(m_path, nextPart, Readers::OwnerAlone, Durability::Quick);
    });
}

void ReportStream::End(Ending ending) {
    if (!m_running)
        return;
    const EndRow row = RowFor(ending, m_kind);
    Close(row.openTarget, QString::fromLatin1(row.why));
    m_lines.append(EndLine(m_app.NowText(), QString::fromLatin1(row.how)));
    Write(Durability::Synced);
    m_running = false;
    Changed();
}

void ReportStream::PassOver(const QString& id, const QString& why) {
    if (!m_running)
        return;
    m_row = {m_row.number + 1, m_app.NowText(), id, ReportResult::Skipped, 0, why};
    m_lines.append(ResultLine(m_row));
    if (++m_passedOver % PassedOverAtOnce == 0)
        Write(Durability::Quick);
}

void ReportStream::Open(const QString& id) {
    if (!m_running)
        return;
    Close(ReportResult::Unfinished);
    m_row = {m_row.number + 1, m_app.NowText(), id, ReportResult::Unfinished, 0, {}};
    m_isOpen = true;
    m_isConfirmed = false;
    m_sentAs.reset();
    m_lines.append(BegunLine(m_row));
    Write(Durability::Quick);
}

void ReportStream::Remark(const QString& why, int pageClass) {
    if (!m_isOpen)
        return;
    m_row.why = why;
    m_row.pageClass = pageClass;
}

void ReportStream::Confirm() {
    m_isConfirmed = m_isOpen;
}

void ReportStream::MarkSent(bool isLogged) {
    if (!m_isOpen)
        return;
    m_sentAs = isLogged ? ReportResult::Sent : ReportResult::SentNotLogged;
    if (!isLogged)
        Remark(u"The log could not be written"_s);
}

void ReportStream::Close(ReportResult result, const QString& why) {
    if (!m_isOpen)
        return;
    m_isOpen = false;
    const bool isMarked = m_sentAs && result == ReportResult::Unfinished;
    const bool wasConfirmed = m_isConfirmed && result != ReportResult::Sent;
    m_row.result = isMarked ? *m_sentAs : wasConfirmed ? ReportResult::SentNotLogged : result;
    m_row.time = m_app.NowText();
    if (m_row.why.isEmpty() && !isMarked)
        m_row.why = why;
    m_lines.append(ResultLine(m_row));
    Write(Durability::Synced);
}

void ReportStream::CloseForNow(const QString& id, const QString& why) {
    if (!m_running)
        return;
    m_row = {m_row.number + 1, m_app.NowText(), id, ReportResult::Unfinished, 0, why};
    m_unsettled.append(m_row);
    m_lines.append(ResultLine(m_row));
    Write(Durability::Synced);
}

void ReportStream::Settle(ReportResult result, const QString& why) {
    for (ReportRow& row : m_unsettled) {
        row.time = m_app.NowText();
        row.result = result;
        row.why = why;
        m_lines.append(ResultLine(row));
    }
    m_unsettled.clear();
    Flush();
}

void ReportStream::Flush() {
    if (!m_lines.isEmpty())
        Write(Durability::Quick);
}

// Whole lines in one write, so that only the last of them can be torn.
void ReportStream::Write(Durability durability) {
    auto write = [this, durability] {
        m_app.files.AppendLine(m_path, m_lines.join(u"\r\n"_s), Readers::OwnerAlone, durability);
        m_lines.clear();
        m_problem.clear();
    };
    if (m_problemTold)
        Diagnostics::Guard(
            write, [this](const std::exception& error) { m_problem = QString::fromUtf8(error.what()); });
    else
        m_problem = m_app.diagnostics.Trap("WriteRunReport", write);
    m_problemTold = m_problemTold || !m_problem.isEmpty();
    Changed();
}

void ReportStream::Changed() const {
    if (onChange)
        onChange();
}

QList<ReportedRun> ReportStream::Runs() const {
    const QString path = m_running ? m_path : Path();
    ReportReader report;
    if (m_app.files.FileExists(path)) {
        qsizetype toLeave = RunsTooMany(path, KeptRuns);
        LineReader reader(path);
        while (const auto line = NextBehind(reader, toLeave))
            report.Take(FromAnsi(*line));
    }
    // Another account's report has nothing to do with what this one could not write.
    if (path == m_path)
        for (const QString& line : m_lines)
            report.Take(line);
    return report.Runs();
}

} // namespace qlm
