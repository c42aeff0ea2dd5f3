// SPDX-License-Identifier: MIT
#include "Judge.h"
#include "campaigns/Campaigns.h"
#include "campaigns/SendRuns.h"
#include "steps/RunReport.h"

#include <QFile>

namespace qlm::fire {

using namespace Qt::Literals::StringLiterals;

namespace {

// Without the program's own tests of the page, which may turn the message loop.
bool ShowsConfirmation(App& app) {
    const Document document = app.WebBrowser1().Document();
    return document && !document.Body().IsNull() && document.BodyText().contains(u"Request Sent!"_s);
}

} // namespace

void Judge::Demand(bool holds, const QString& promise) {
    if (!holds)
        throw Broken(promise);
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

// A turn after the page check has found the confirmation, the disk knows of it. What it has found on the
// older page is the button at first, which the user may press before the step has looked.
void Judge::Watch(App& app, bool diskRefuses) {
    const RunState& state = app.state;
    // The note is tried once, as soon as the confirmation shows, which may be before the check has found it.
    if (diskRefuses && state.CurrentAction == u"FR"_s && ShowsConfirmation(app))
        m_refused = state.lngTargetNumber;
    const bool mayShow = state.CurrentAction == u"FR"_s && state.intFRStep == 8 && state.blnLinkFound &&
                         state.strLinkType == u"Text"_s;
    if (!mayShow || m_confirmed.contains(state.strCurrentID) || !ShowsConfirmation(app))
        return;
    if (std::exchange(m_confirming, state.lngTargetNumber) != state.lngTargetNumber ||
        m_refused == state.lngTargetNumber)
        return;
    ReadLog();
    Demand(m_logged.contains(state.strCurrentID) || IsNoted(state.strCurrentID),
           state.strCurrentID + u" is confirmed, and neither logged nor noted"_s);
    m_confirmed.insert(state.strCurrentID);
}

// A line that a power cut left unfinished is closed by the next one: it is the beginning of an ID that was
// asked, and no ID.
void Judge::TakeLine(const QByteArray& line) {
    const QString id = QString::fromLatin1(line);
    if (!m_plan.ids.contains(id)) {
        const bool begins = std::any_of(m_asked.begin(), m_asked.end(),
                                        [&id](const QString& asked) { return asked.startsWith(id); });
        Demand(begins && ++m_tornLines <= m_kills, u"the log holds \"%1\", which is no ID"_s.arg(id));
        return;
    }
    Demand(m_asked.contains(id), id + u" is logged and was not asked"_s);
    Demand(!m_logged.contains(id), id + u" stands in the log twice"_s);
    m_logged.insert(id);
    m_logOrder.append(id);
    m_unlogged.remove(id);
    Tell(u"logged "_s + id);
}

// Every count of the day belongs to a line of the log, but for those whose line did not come to be.
void Judge::CountStored(int stored, bool mayDiffer) {
    const int surplus = stored - static_cast<int>(m_logged.size()) - m_missed;
    if (surplus > 0 && mayDiffer) {
        m_missed += surplus;
        return;
    }
    Demand(surplus == 0,
           u"the counter says %1, the log holds %2 lines and %3 are known to be missing"_s.arg(stored)
               .arg(m_logged.size())
               .arg(m_missed));
}

void Judge::Excuse(const QString& why) {
    for (const QString& id : std::as_const(m_unlogged))
        Tell(id + u" is not logged: "_s + why);
    m_excused.unite(m_unlogged);
    m_unlogged.clear();
}

void Judge::OnStart() {
    m_confirming = -1;
    m_refused = -1;
    m_limitPagesInARow = 0;
    m_skippedSeen = 0;
}

void Judge::OnRun(qint32 dailyCount) {
    m_countedAtRun = dailyCount;
    OnStart();
}

void Judge::BeforeRequest(const QString& id) {
    ReadLog();
    Demand(!m_logged.contains(id), id + u" is in the log and its request page was opened"_s);
    Demand(!m_confirmed.contains(id), id + u" was confirmed and its request page was opened again"_s);
    for (const QString& asked : std::as_const(m_unlogged))
        Demand(asked == id, asked + u" was asked, isn't in the log, and the next one is being asked"_s);
    m_visited.insert(id);
}

void Judge::AfterRequest(const QString& id, const QStringList& journal, const QString& page) {
    for (const QString& line : journal) {
        Tell(u"site: "_s + line);
        const QString word = line.section(u' ', 0, 0);
        if (word == u"asked"_s) {
            Demand(!m_asked.contains(id), id + u" was asked twice"_s);
            m_asked.insert(id);
            m_unlogged.insert(id);
            if (m_plan.losesAnswer.contains(id))
                Excuse(u"the site's answer was lost"_s);
            if (m_plan.redirects.contains(id))
                Excuse(u"the site answered with its error page"_s);
            if (m_givenUp.contains(id))
                Excuse(u"the user gave up while it was on its way"_s);
        } else if (word == u"asked-again"_s) {
            ++m_askedAgain;
            Demand(m_excused.contains(id), id + u" was opened again although nothing came between"_s);
        }
    }
    m_givenUp.remove(id);
    const bool isLimit = page.contains(u"maximum limit of friend requests for the day"_s) ||
                         page.contains(u"their daily useage"_s) || page.contains(u"your daily useage"_s);
    m_limitPagesInARow = isLimit                             ? m_limitPagesInARow + 1
                         : page.contains(u"Request Sent!"_s) ? 0
                                                             : m_limitPagesInARow;
}

void Judge::Look(App& app, int stored, bool diskRefuses) {
    ReadLog();
    CountStored(stored, diskRefuses);
    if (diskRefuses)
        Excuse(u"the disk refused the line"_s);
    const RunState& state = app.state;
    if (state.lngSkippedCount > m_skippedSeen)
        m_limitPagesInARow = 0;
    m_skippedSeen = state.lngSkippedCount;
    if (state.CurrentAction != u"FR"_s)
        return;
    Demand(app.controls.Text("lblFrTotalToday"_L1) == u"Total Today: "_s + QString::number(stored),
           u"the window's counter and the stored one differ"_s);
    Demand(state.lngSessionFR == stored - m_countedAtRun,
           u"the run's counter is not what the day's has grown by"_s);
}

void Judge::OnMessage(App& app, const QString& text) {
    Tell(u"message: "_s + text);
    ReadLog();
    const RunState& state = app.state;
    if (text == u"Your specified limit has been reached"_s) {
        const int counted = m_plan.limitPerDay ? state.lngDailyFR : state.lngSessionFR;
        Demand(counted >= m_plan.limit,
               u"stopped at the limit of %1 with %2"_s.arg(m_plan.limit).arg(counted));
        if (!m_plan.limitPerDay)
            Demand(counted == m_plan.limit,
                   u"%1 were counted against a limit of %2"_s.arg(counted).arg(m_plan.limit));
        Demand(m_unlogged.size() == 1, u"%1 instead of one stand beyond the limit"_s.arg(m_unlogged.size()));
        for (const QString& id : std::as_const(m_unlogged))
            if (IsNoted(id)) // otherwise the disk has refused it
                m_confirmed.insert(id);
        Excuse(u"it met the user's limit"_s);
    } else if (text.startsWith(u"You have reached the maximum limit"_s)) {
        Demand(m_limitPagesInARow == 3, u"%1 limit pages in a row stopped the run"_s.arg(m_limitPagesInARow));
        m_limitPagesInARow = 0;
    }
    Demand(m_limitPagesInARow < 3, u"the site's third limit page did not stop the run"_s);
}

void Judge::OnKill(int stored) {
    ++m_kills;
    ReadLog();
    const int missedBefore = m_missed;
    CountStored(stored, true);
    Demand(m_missed - missedBefore <= 1, u"a kill lost more than one line"_s);
    Demand(m_unlogged.size() <= 1, u"a kill found more than one request without a line"_s);
    Excuse(u"the program died in between"_s);
}

void Judge::OnUserGivesUp(const QString& id) {
    ReadLog();
    m_visited.insert(id); // skipped before its page was opened, too
    m_givenUp.insert(id);
    Excuse(u"the user pressed Skip or Stop in between"_s);
}

void Judge::OnEnd(App& app) {
    ReadLog();
    Demand(m_unlogged.isEmpty(), u"somebody was asked and is not logged at the end"_s);
    Demand(m_limitPagesInARow < 3, u"the site's third limit page did not stop the run"_s);
    if (!m_plan.filter)
        for (const QString& id : m_plan.ids)
            Demand(m_logged.contains(id) || m_visited.contains(id), id + u" was left out"_s);
    CheckReport(app);
}

// The report and the log tell the same story. Of more runs than it keeps, only the other way round.
void Judge::CheckReport(App& app) {
    constexpr qsizetype keptRuns = 20;
    const QList<ReportedRun> runs = app.Get<RunReport>().Runs(FriendRequests.report);
    QSet<QString> reported;
    for (const ReportedRun& run : runs)
        for (const ReportRow& row : run.rows) {
            if (row.result == ReportResult::Sent)
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
           u"%1 logged requests are in no report"_s.arg(missing));
}

} // namespace qlm::fire
