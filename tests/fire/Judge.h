// SPDX-License-Identifier: MIT
#pragma once

#include "Plan.h"
#include "core/App.h"

#include <QSet>
#include <functional>
#include <stdexcept>

namespace qlm::fire {

// A promise that was not kept.
struct Broken : std::logic_error {
    explicit Broken(const QString& what) : std::logic_error(what.toStdString()) {}
};

// Holds what the program does against what it has promised, after each event. Knows the site's side (requests
// and journal) and the disk's (log and stored counter); of the program's memory it looks only at what the
// window shows.
class Judge {
public:
    Judge(const Plan& plan, const QString& logPath, const QString& notesPath)
        : m_plan(plan), m_logPath(logPath), m_notesPath(notesPath) {}

    // The program has started anew, or begins a run.
    void OnStart();
    void OnRun(qint32 dailyCount);
    // Before the site answers a request page. shownTarget is whom the page is for.
    void BeforeRequest(const QString& id);
    void AfterRequest(const QString& id, const QStringList& journal, const QString& page);
    // At each turn of the message loop.
    void Look(App& app, int stored, bool diskRefuses);
    // The same, also when nothing was written: what the program has before its eyes.
    void Watch(App& app, bool diskRefuses);
    void OnMessage(App& app, const QString& text);
    // The process has just ended, at whatever place.
    void OnKill(int stored);
    // The user takes the target from under the program.
    void OnUserGivesUp(const QString& id);
    // The list has been walked to its end.
    void OnEnd(App& app);

    // The judge's own account, for the sum of all trials.
    int Asked() const { return static_cast<int>(m_asked.size()); }
    int Logged() const { return static_cast<int>(m_logged.size()); }
    int AskedAgain() const { return m_askedAgain; }
    std::function<void(const QString&)> trace;

private:
    void ReadLog();
    bool IsNoted(const QString& id) const;
    void TakeLine(const QByteArray& line);
    void CountStored(int stored, bool mayDiffer);
    void Excuse(const QString& why);
    void Tell(const QString& text) const;
    void CheckReport(App& app);
    static void Demand(bool holds, const QString& promise);

    const Plan& m_plan;
    const QString m_logPath;
    const QString m_notesPath;
    qint64 m_logRead = 0;
    QByteArray m_openLine;  // the end of the log, without its line end
    QSet<QString> m_logged; // whole lines
    QStringList m_logOrder;
    QSet<QString> m_asked;     // by the site's journal
    QSet<QString> m_unlogged;  // asked, and neither logged nor excused
    QSet<QString> m_excused;   // asked and, for a reason that is known, not logged
    QSet<QString> m_confirmed; // by a page that the program has looked at, and no disk refused to note it
    qint32 m_confirming = -1;  // number of the target that a page has just confirmed
    qint32 m_refused = -1;     // of one whose note the disk may have refused
    QSet<QString> m_visited;
    QSet<QString> m_givenUp; // a request that was on its way may still come to the site
    int m_tornLines = 0;
    int m_kills = 0;
    int m_missed = 0; // counted, and the log line did not come to be
    int m_countedAtRun = 0;
    int m_limitPagesInARow = 0;
    int m_skippedSeen = 0;
    int m_askedAgain = 0;
};

} // namespace qlm::fire
