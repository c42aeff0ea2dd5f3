// SPDX-License-Identifier: MIT
#include "Judge.h"

#include "RequestJudge.h"
#include "WritingJudge.h"
#include "steps/RunReport.h"

#include <QFile>

#include <algorithm>

namespace qlm::fire {

using namespace Qt::Literals::StringLiterals;

void Judge::Demand(bool holds, const QString& promise) {
    if (!holds)
        throw Broken{promise};
}

void Judge::Tell(const QString& text) const {
    if (trace)
        trace(text);
}

void Judge::ReadLog() {
    QFile file(m_logPath);
    if (!file.open(QIODevice::ReadOnly))
        return;
    Demand(file.size() >= m_logRead, u"the log became shorter"_s);
    file.seek(m_logRead);
    const QByteArray fresh = file.readAll();
    m_logRead += fresh.size();
    QByteArray text = m_openLine + fresh;
    for (qsizetype end = text.indexOf("\r\n"); end >= 0; end = text.indexOf("\r\n")) {
        TakeLine(text.left(end));
        text.remove(0, end + 2);
    }
    m_openLine = text;
}

bool Judge::IsNoted(const QString& id) const {
    QFile file(m_notesPath);
    return file.open(QIODevice::ReadOnly) && file.readAll().split('\n').contains(id.toLatin1() + "\t.\r");
}

// A line that a power cut left unfinished is closed by the next one: it is the beginning of an ID, and no ID.
void Judge::TakeLine(const QByteArray& line) {
    const QString id = QString::fromLatin1(line);
    if (!m_plan.ids.contains(id)) {
        const QSet<QString>& people = MayBeLogged();
        const bool begins = std::any_of(people.begin(), people.end(),
                                        [&id](const QString& person) { return person.startsWith(id); });
        Demand(begins && ++m_tornLines <= m_kills, u"the log holds \"%1\", which is no ID"_s.arg(id));
        return;
    }
    Demand(!m_logged.contains(id), id + u" stands in the log twice"_s);
    OnLogged(id);
    m_logged.insert(id);
    Tell(u"logged "_s + id);
}

void Judge::CountStored(int stored, bool mayDiffer) {
    const int surplus = stored - static_cast<int>(m_logged.size()) - m_missed;
    if (surplus > 0 && mayDiffer) {
        m_missed += surplus;
        return;
    }
    Demand(surplus == 0 || (surplus < 0 && CountsLater()),
           u"the counter says %1, the log holds %2 lines and %3 are known to be missing"_s.arg(stored)
               .arg(m_logged.size())
               .arg(m_missed));
}

void Judge::OnRun(qint32 dailyCount) {
    m_countedAtRun = dailyCount;
    OnStart();
}

void Judge::CheckCounters(App& app, int stored) const {
    const Campaign& campaign = *m_plan.campaign;
    if (app.state.CurrentAction != campaign.Word())
        return;
    Demand(app.controls.Text(campaign.today.label) == u"Total Today: "_s + QString::number(stored),
           u"the window's counter and the stored one differ"_s);
    Demand(app.state.*campaign.session == stored - m_countedAtRun,
           u"the run's counter is not what the day's has grown by"_s);
}

void Judge::CheckLimit(App& app) const {
    const Campaign& campaign = *m_plan.campaign;
    const int counted = app.state.*(m_plan.limitPerDay ? campaign.today.count : campaign.session);
    Demand(counted >= m_plan.limit, u"stopped at the limit of %1 with %2"_s.arg(m_plan.limit).arg(counted));
    if (!m_plan.limitPerDay)
        Demand(counted == m_plan.limit,
               u"%1 were counted against a limit of %2"_s.arg(counted).arg(m_plan.limit));
}

void Judge::CheckVisits() const {
    if (!m_plan.filter)
        for (const QString& id : m_plan.ids)
            Demand(m_logged.contains(id) || m_visited.contains(id), id + u" was left out"_s);
}

// The report and the log tell the same story. Of more runs than it keeps, only the other way round.
void Judge::CheckReport(App& app) {
    constexpr qsizetype keptRuns = 20;
    const QList<ReportedRun> runs = app.Get<RunReport>().Runs(m_plan.campaign->report);
    QSet<QString> reported;
    for (const ReportedRun& run : runs)
        for (const ReportRow& row : run.rows) {
            if (IsAboutLogged(row))
                reported.insert(row.id);
            Demand(row.result != ReportResult::Sent || m_logged.contains(row.id),
                   row.id + u" is reported as sent and isn't logged"_s);
        }
    Demand(runs.constLast().how == u"All targets were gone through"_s,
           u"the report does not know how the run ended"_s);
    int missing = 0;
    for (const QString& id : std::as_const(m_logged))
        missing += reported.contains(id) ? 0 : 1;
    // A kill between the two lines leaves the report's out, and one under a disk that refuses what it kept.
    Demand(runs.size() >= keptRuns || missing <= m_kills + m_missed,
           u"%1 logged ones are in no report"_s.arg(missing));
}

std::unique_ptr<Judge> MakeJudge(const Plan& plan, const QString& logPath, const QString& notesPath) {
    if (plan.campaign == &FriendRequests)
        return std::make_unique<RequestJudge>(plan, logPath, notesPath);
    return std::make_unique<WritingJudge>(plan, logPath, notesPath);
}

} // namespace qlm::fire
