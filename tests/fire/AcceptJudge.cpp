// SPDX-License-Identifier: MIT
#include "AcceptJudge.h"

#include "Judge.h"
#include "inbound/InboundReports.h"
#include "steps/RunReport.h"

#include <QFile>

namespace qlm::fire {

using namespace Qt::Literals::StringLiterals;

namespace {

bool HoldsLine(const QString& path, const QByteArray& line) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.readAll().split('\n').contains(line + '\r');
}

} // namespace

AcceptJudge::AcceptJudge(const AcceptPlan& plan, QString logPath)
    : m_plan(plan), m_logPath(std::move(logPath)) {}

void AcceptJudge::Demand(bool holds, const QString& promise) {
    if (!holds)
        throw Broken{promise};
}

// Logged, or noted beside the log.
bool AcceptJudge::IsKnown(const QString& id) const {
    const QByteArray line = id.toLatin1();
    QString notes = m_logPath;
    notes.replace(u".txt"_s, u".open.txt"_s);
    return HoldsLine(m_logPath, line) || HoldsLine(notes, line + "\t.");
}

void AcceptJudge::OnRun() {
    OnCutOff(u"a run begins"_s);
    for (const QString& id : std::as_const(m_got))
        if (!m_accepted.contains(id))
            m_early.insert(id);
    m_tried.clear();
}

void AcceptJudge::OnJournal(const QStringList& lines) {
    for (const QString& line : lines) {
        if (trace)
            trace(u"site: "_s + line);
        const QString word = line.section(u' ', 0, 0);
        const QString id = line.section(u' ', 2, 2);
        if (word == u"accepted"_s) {
            Demand(!m_accepted.contains(id), id + u" was accepted twice"_s);
            m_accepted.insert(id);
            m_settled.insert(id);
            if (m_plan.followUp && !m_tried.contains(id))
                m_due.insert(id);
        } else if (word == u"denied"_s) {
            Demand(m_plan.gone.contains(id), id + u" was denied and is no vanished profile"_s);
            m_settled.insert(id);
        } else if (word == u"accept"_s && line.endsWith(u" error"_s)) {
            m_settled.insert(id);
        } else if (word == u"messaged"_s || word == u"commented"_s) {
            // Where the list doesn't show who has been refused, another run doesn't know of it.
            const bool mayKnow = m_plan.isLogged || !m_early.contains(id);
            Demand(!m_got.contains(id) || !mayKnow, id + u" got it twice"_s);
            m_got.insert(id);
        }
    }
}

void AcceptJudge::OnFollowUp(const QString& id, bool isPost) {
    if (isPost)
        Demand(IsKnown(id), id + u" is being sent to, and neither logged nor noted"_s);
    m_tried.insert(id);
    m_due.remove(id);
}

void AcceptJudge::OnCutOff(const QString& why) {
    if (!m_due.isEmpty() && trace)
        trace(QString::number(m_due.size()) + u" get nothing: "_s + why);
    m_cutOff += static_cast<int>(m_due.size());
    m_due.clear();
}

// The log may know somebody from before.
void AcceptJudge::CheckNobodyLeftOut(const QString& when) {
    for (const QString& id : std::as_const(m_due))
        Demand(m_tried.contains(id) || (m_plan.isLogged && IsKnown(id)),
               id + u" was accepted and left out "_s + when);
    m_due.clear();
}

void AcceptJudge::OnFinished(bool wasStopped) {
    if (wasStopped) {
        OnCutOff(u"the user stopped it"_s);
        return;
    }
    CheckNobodyLeftOut(u"at the end of the run"_s);
    Demand(IsDone(),
           u"the run says that it is through, and %1 still wait"_s.arg(m_plan.ids.size() - m_settled.size()));
}

void AcceptJudge::OnEnd(App& app) {
    for (const QString& id : m_plan.ids)
        Demand(m_settled.contains(id), id + u" was left standing"_s);
    CheckReport(app);
}

// Of more runs than it keeps nothing can be told.
void AcceptJudge::CheckReport(App& app) const {
    constexpr qsizetype keptRuns = 20;
    const QList<ReportedRun> runs = app.Get<RunReport>().Runs(AcceptReport);
    if (m_hasDiskRefused || runs.size() >= keptRuns)
        return;
    QSet<QString> named;
    for (const ReportedRun& run : runs)
        for (const ReportRow& row : run.rows)
            named.insert(row.id);
    for (const QString& id : std::as_const(m_accepted))
        Demand(named.contains(id), id + u" was accepted and is in no report"_s);
}

} // namespace qlm::fire
