// SPDX-License-Identifier: MIT
#pragma once

#include "AcceptJudge.h"
#include "Trial.h"

namespace qlm::fire {

// One seed of accepting: a user who starts it again until nobody waits any more, whatever the site, the disk
// and the process do meanwhile.
class AcceptTrial {
public:
    AcceptTrial(quint64 seed, int targets, Telling telling);
    ~AcceptTrial();

    // Nothing, or the promise that was broken.
    QString Run();
    QString Describe() const;

private:
    static constexpr qint64 LookEveryMs = 1000;
    static constexpr qint64 LongestTrialMs = 47LL * 60 * 60 * 1000;

    void SetUp();
    void StartProgram();
    void DropProgram();
    void LiveOn();
    SimAnswer AnswerPage(const SimRequest& request);
    void OnMessage(const QString& text);
    void Watch();
    void Look();
    void MaybeKill();
    void MaybeRefuseDisk();
    void LookAtIdleProgram();
    void LookAtRunningProgram();
    void LookAtAccepting();
    void FillIn();
    void Begin();
    void StopAll();
    void LiftObstacles();
    void Do(const QString& command);
    bool IsAccepting() const;
    void Trace(const QString& text) const;

    const quint64 m_seed;
    const Telling m_telling;
    const AcceptPlan m_plan;
    Dice m_dice;
    QTemporaryDir m_folder;
    SimWorld m_world;
    practice::PracticeSite m_site;
    FormsWithoutWidgets m_dialogs;
    AcceptJudge m_judge;
    std::unique_ptr<SimPlatform> m_platform;
    std::unique_ptr<App> m_app;

    bool m_isOver = false;
    bool m_isHeld = false;    // the run has stopped with words, and waits for the user
    bool m_isStopped = false; // the user has asked this run to end
    int m_kills = 0;
    int m_runs = 0;
    int m_holds = 0;
    int m_killAtTurn = -1;
    QString m_standing; // what the program was at, at the last look
    qint64 m_standingSinceMs = 0;
    qint64 m_diskRefusesUntilMs = -1;
    qint64 m_turnsSinceLook = 0;
    QString m_traced;
};

} // namespace qlm::fire
