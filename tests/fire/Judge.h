// SPDX-License-Identifier: MIT
#pragma once

#include "Plan.h"
#include "campaigns/Campaigns.h"
#include "core/App.h"

#include <QSet>
#include <functional>
#include <memory>

namespace qlm::fire {

// A promise that was not kept. Of no family of exceptions, so that the program under trial takes it for no
// error of its own.
struct Broken {
    QString promise;
};

// Holds what the program does against what it has promised, after each event. Knows the site's side (requests
// and journal) and the disk's (log, notes and stored counter); of the program's memory it looks only at what
// the window shows.
class Judge {
public:
    Judge(const Plan& plan, const QString& logPath, const QString& notesPath)
        : m_plan(plan), m_logPath(logPath), m_notesPath(notesPath) {}
    virtual ~Judge() = default;

    // The program has started anew, or begins a run.
    virtual void OnStart() {}
    virtual void OnRun(qint32 dailyCount);
    // Before and after the site answers a page that is for that person; isPost: something is sent with it.
    virtual void BeforeRequest(const QString& id, bool isPost) = 0;
    virtual void AfterRequest(const QString& id, const QStringList& journal, const QString& page) = 0;
    // At each turn of the message loop with something written.
    virtual void Look(App& app, int stored, bool diskRefuses) = 0;
    // At every turn: what the program has before its eyes.
    virtual void Watch(App&, bool /*diskRefuses*/) {}
    virtual void OnMessage(App& app, const QString& text) = 0;
    // The process has just ended, at whatever place.
    virtual void OnKill(int stored) = 0;
    // The user takes the target from under the program.
    virtual void OnUserGivesUp(const QString& id) = 0;
    // A post takes the browser; the target is given up or its page loaded again.
    virtual void OnLoan(const QString& id, bool isGivenUp) = 0;
    // The list has been walked to its end.
    virtual void OnEnd(App& app) = 0;

    // The judge's own account, for the sum of all trials.
    int Asked() const { return static_cast<int>(m_asked.size()); }
    int Logged() const { return static_cast<int>(m_logged.size()); }
    virtual int AskedAgain() const { return 0; }
    std::function<void(const QString&)> trace;

protected:
    // Of each whole line of the log that holds an ID of the list, for the first time.
    virtual void OnLogged(const QString& id) = 0;
    // A line may stand before its count, and without one.
    virtual bool CountsLater() const { return false; }
    // Whom a line of the log may belong to that a power cut has torn.
    virtual const QSet<QString>& MayBeLogged() const = 0;
    // The row of the report is about something that the log has a line for.
    virtual bool IsAboutLogged(const ReportRow& row) const { return row.result == ReportResult::Sent; }

    void ReadLog();
    bool IsNoted(const QString& id) const;
    // Every count of the day belongs to a line of the log, but for those whose line did not come to be.
    void CountStored(int stored, bool mayDiffer);
    // The window's counters and the stored one say the same.
    void CheckCounters(App& app, int stored) const;
    void CheckLimit(App& app) const;
    void CheckVisits() const;
    void CheckReport(App& app);
    void Tell(const QString& text) const;
    static void Demand(bool holds, const QString& promise);

    const Plan& m_plan;
    QSet<QString> m_asked;  // by the site's journal: who has got it
    QSet<QString> m_logged; // whole lines
    QSet<QString> m_visited;
    int m_kills = 0;
    int m_missed = 0; // counted, and the log line did not come to be

private:
    void TakeLine(const QByteArray& line);

    const QString m_logPath;
    const QString m_notesPath;
    qint64 m_logRead = 0;
    QByteArray m_openLine; // the end of the log, without its line end
    int m_tornLines = 0;
    int m_countedAtRun = 0;
};

std::unique_ptr<Judge> MakeJudge(const Plan& plan, const QString& logPath, const QString& notesPath);

} // namespace qlm::fire
