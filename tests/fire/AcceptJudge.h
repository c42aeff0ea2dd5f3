// SPDX-License-Identifier: MIT
#pragma once

#include "AcceptPlan.h"
#include "core/App.h"

#include <functional>

namespace qlm::fire {

// Holds by the site's journal, the requests and the disk: everybody is accepted once, and gets what follows
// once; nobody who was accepted is left out of it, but for what the user, a kill or a disk has cut off.
class AcceptJudge {
public:
    AcceptJudge(const AcceptPlan& plan, QString logPath);
    std::function<void(const QString&)> trace;

    // A run begins, in whatever process.
    void OnRun();
    void OnJournal(const QStringList& lines);
    // Somebody's page is opened, or sent.
    void OnFollowUp(const QString& id, bool isPost);
    void OnSkip(const QString& id) { m_tried.insert(id); }
    // The user, a kill or a disk that refuses a note ends what was to follow.
    void OnCutOff(const QString& why);
    void OnDiskRefuses() { m_hasDiskRefused = true; }
    // The run says that it has come to its end.
    void OnFinished(bool wasStopped);
    void OnEnd(App& app);

    // Whose request the site has no longer.
    bool IsDone() const { return m_settled.size() == m_plan.ids.size(); }
    qsizetype Settled() const { return m_settled.size(); }
    int Accepted() const { return static_cast<int>(m_accepted.size()); }
    int FollowedUp() const { return static_cast<int>(m_got.size()); }
    int CutOff() const { return m_cutOff; }

private:
    bool IsKnown(const QString& id) const;
    void CheckNobodyLeftOut(const QString& when);
    void CheckReport(App& app) const;
    static void Demand(bool holds, const QString& promise);

    const AcceptPlan& m_plan;
    const QString m_logPath;
    QSet<QString> m_settled; // accepted, denied, or lost by the site
    QSet<QString> m_accepted;
    QSet<QString> m_due;   // accepted in this run, and what follows has not been tried
    QSet<QString> m_tried; // what follows, in this run
    QSet<QString> m_got;   // what follows
    QSet<QString> m_early; // got it in an earlier run, before they were accepted
    bool m_hasDiskRefused = false;
    int m_cutOff = 0;
};

} // namespace qlm::fire
