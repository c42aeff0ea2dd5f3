// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace qlm {

enum class ReportResult {
    Sent,
    SentNotLogged, // it went out, and the log doesn't know
    Skipped,
    PutOff, // comes again at the end of the list
    Accepted,
    Denied,
    Cancelled,
    Failed,
    Unfinished, // the run ended, or was ended, while this target was being worked on
};

// One target of a run.
struct ReportRow {
    int number = 0; // counted within the run
    QString time;   // "YYYY-MM-DD hh:mm:ss"
    QString id;
    ReportResult result = ReportResult::Unfinished;
    int pageClass = 0; // of the page that the site showed; 0 for none
    QString why;
};

struct ReportedRun {
    QString begun; // when
    QString account;
    QString about; // what it was for, where runs differ in that
    QString ended; // when; empty for a run without a last line
    QString how;   // why it ended
    QList<ReportRow> rows;
};

// "Sent", as the user reads it.
QString ResultText(ReportResult result);

// The lines of a report's file. Each ends with a mark of its own, so that one which a power cut left
// unfinished is told from a whole one and passed over.
QString RunLine(const QString& time, const QString& account, const QString& about = {});
QString BegunLine(const ReportRow& row);
QString ResultLine(const ReportRow& row);
QString EndLine(const QString& time, const QString& how);
bool IsRunLine(QByteArrayView line);

// Takes the lines of a file in, one after the other.
class ReportReader {
public:
    void Take(const QString& line);
    // Oldest first.
    QList<ReportedRun> Runs() const { return m_runs; }

private:
    void Begin(const ReportedRun& run);
    void End(const QString& time, const QString& how);
    void TakeResult(const QStringList& fields);
    void Put(const ReportRow& row);

    QList<ReportedRun> m_runs;
    QHash<int, qsizetype> m_places; // of the last run's rows, by number
};

// The runs of a file, oldest first.
QList<ReportedRun> RunsIn(const QStringList& lines);

// UTF-8, a heading and a line for each target, quoted as RFC 4180 says.
QByteArray ReportAsCsv(const ReportedRun& run);

} // namespace qlm
