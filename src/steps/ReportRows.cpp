// SPDX-License-Identifier: MIT
#include "steps/ReportRows.h"

#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Mark = u"."_s;
const QString RunWord = u"run"_s;
const QString BegunWord = u"at"_s;
const QString EndWord = u"end"_s;

struct ResultName {
    ReportResult result;
    QLatin1StringView word; // in the file
    QLatin1StringView text;
};

const std::vector<ResultName>& ResultNames() {
    static const std::vector<ResultName> rows{
        {ReportResult::Sent, "sent"_L1, "Sent"_L1},
        {ReportResult::SentNotLogged, "unlogged"_L1, "Sent, not logged"_L1},
        {ReportResult::Skipped, "skipped"_L1, "Skipped"_L1},
        {ReportResult::PutOff, "putoff"_L1, "Put off"_L1},
        {ReportResult::Accepted, "accepted"_L1, "Accepted"_L1},
        {ReportResult::Denied, "denied"_L1, "Denied"_L1},
        {ReportResult::Cancelled, "cancelled"_L1, "Canceled"_L1},
        {ReportResult::Failed, "failed"_L1, "Failed"_L1},
        {ReportResult::Unfinished, "unfinished"_L1, "Unfinished"_L1},
    };
    return rows;
}

const ResultName& NameOf(ReportResult result) {
    for (const ResultName& name : ResultNames())
        if (name.result == result)
            return name;
    return ResultNames().front();
}

// Nothing in a field may look like the end of it.
QString Line(QStringList fields) {
    for (QString& field : fields)
        field = field.simplified();
    return (fields << Mark).join(u'\t');
}

QString Quoted(const QString& field) {
    const bool plain =
        !field.contains(u',') && !field.contains(u'"') && !field.contains(u'\r') && !field.contains(u'\n');
    return plain ? field : u'"' + QString(field).replace(u'"', u"\"\""_s) + u'"';
}

} // namespace

QString ResultText(ReportResult result) {
    return NameOf(result).text;
}

QString RunLine(const QString& time, const QString& account, const QString& about) {
    return Line(about.isEmpty() ? QStringList{RunWord, time, account}
                                : QStringList{RunWord, time, account, about});
}

QString BegunLine(const ReportRow& row) {
    return Line({BegunWord, QString::number(row.number), row.time, row.id});
}

QString ResultLine(const ReportRow& row) {
    return Line({NameOf(row.result).word, QString::number(row.number), row.time, row.id,
                 QString::number(row.pageClass), row.why});
}

QString EndLine(const QString& time, const QString& how) {
    return Line({EndWord, time, how});
}

bool IsRunLine(QByteArrayView line) {
    return line.startsWith("run\t") && line.endsWith("\t.");
}

void ReportReader::Take(const QString& line) {
    const QStringList fields = line.split(u'\t');
    if (fields.size() < 3 || fields.constLast() != Mark)
        return;
    if ((fields.size() == 4 || fields.size() == 5) && fields[0] == RunWord)
        Begin({fields[1], fields[2], fields.size() == 5 ? fields[3] : QString(), {}, {}, {}});
    else if (m_runs.isEmpty())
        return;
    else if (fields.size() == 4 && fields[0] == EndWord)
        End(fields[1], fields[2]);
    else if (fields.size() == 5 && fields[0] == BegunWord)
        Put({fields[1].toInt(), fields[2], fields[3], ReportResult::Unfinished, 0, {}});
    else if (fields.size() == 7)
        TakeResult(fields);
}

void ReportReader::Begin(const ReportedRun& run) {
    m_runs.append(run);
    m_places.clear();
}

void ReportReader::End(const QString& time, const QString& how) {
    m_runs.last().ended = time;
    m_runs.last().how = how;
}

void ReportReader::TakeResult(const QStringList& fields) {
    for (const ResultName& name : ResultNames())
        if (fields[0] == name.word)
            Put({fields[1].toInt(), fields[2], fields[3], name.result, fields[4].toInt(), fields[5]});
}

// A line that was written a second time, since the first came to a torn end, takes its place.
void ReportReader::Put(const ReportRow& row) {
    QList<ReportRow>& rows = m_runs.last().rows;
    const auto known = m_places.constFind(row.number);
    if (known == m_places.constEnd()) {
        m_places.insert(row.number, rows.size());
        rows.append(row);
    } else {
        rows[*known] = row;
    }
}

QList<ReportedRun> RunsIn(const QStringList& lines) {
    ReportReader reader;
    for (const QString& line : lines)
        reader.Take(line);
    return reader.Runs();
}

QByteArray ReportAsCsv(const ReportedRun& run) {
    QString text = u"Time,Profile ID,Result,Page class,Why\r\n"_s;
    for (const ReportRow& row : run.rows) {
        const QString pageClass = row.pageClass == 0 ? QString() : QString::number(row.pageClass);
        QStringList fields{row.time, row.id, ResultText(row.result), pageClass, row.why};
        for (QString& field : fields)
            field = Quoted(field);
        text += fields.join(u',') + u"\r\n"_s;
    }
    return text.toUtf8();
}

} // namespace qlm
