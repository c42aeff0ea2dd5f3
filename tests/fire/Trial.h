// SPDX-License-Identifier: MIT
#pragma once

#include "Judge.h"
#include "PostFire.h"
#include "platform/sim/RecordingDialogs.h"
#include "platform/sim/SimPlatform.h"
#include "practice/PracticeSite.h"

#include <QTemporaryDir>
#include <memory>

namespace qlm::fire {

// Thrown through the program where its process ends. Of no family of exceptions, so that nothing takes it for
// an error.
struct ProcessEnds {};

// The program's forms without widgets; showing the main window runs its loading.
class FormsWithoutWidgets : public RecordingDialogs {
public:
    Answer ShowMessage(const QString& text, const QString& title, Buttons buttons) override;
    void ShowForm(const QString& form) override;

    App* app = nullptr;
    std::function<void(const QString&)> onMessage;
};

// What is told of a trial.
struct Telling {
    bool trace = false;
    bool trail = false;
};

// One seed: a machine, a site, a list, and a user who starts the run again until it has come to its end,
// whatever the site, the disk and the process do meanwhile.
class Trial {
public:
    Trial(quint64 seed, int targets, const Campaign& campaign, bool hasPosts, Telling telling);
    ~Trial();

    // Nothing, or the promise that was broken.
    QString Run();

    const Plan& ThePlan() const { return m_plan; }
    const Judge& TheJudge() const { return *m_judge; }
    // Null for a trial without posts.
    const PostFire* Posts() const { return m_posts.get(); }
    int Kills() const { return m_kills; }
    qint64 VirtualSeconds() const { return m_world.clock.NowMs() / 1000; }

private:
    void AddPosts();
    void SetUp();
    void LiftRefusals();
    void StartProgram();
    void DropProgram();
    void LiveOn();
    SimAnswer AnswerPage(const SimRequest& request);
    void Watch();
    void Look();
    void LookAtIdleProgram();
    void LookAtRunningProgram();
    bool AnswerCaptcha();
    void PressOldButton();
    void MaybeKill();
    void Do(const QString& command);
    void Click(const char* button);
    qint64 AskedTarget() const;
    void Spoil(SimAnswer& answer, const QString& id);
    void RepairForm(const QString& id);
    int StoredCount() const { return StoredCount(m_campaign); }
    int StoredCount(const Campaign& campaign) const;
    bool DiskRefuses() const { return m_diskRefusesUntilMs >= 0; }
    void Trace(const QString& text) const;
    void TraceState();

    const Campaign& m_campaign;
    const quint64 m_seed;
    const Telling m_telling;
    Plan m_plan;
    Dice m_dice;
    QTemporaryDir m_folder;
    SimWorld m_world;
    practice::PracticeSite m_site;
    FormsWithoutWidgets m_dialogs;
    std::unique_ptr<Judge> m_judge;
    std::unique_ptr<PostFire> m_posts;
    std::unique_ptr<SimPlatform> m_platform;
    std::unique_ptr<App> m_app;

    bool m_isOver = false;
    int m_kills = 0;
    int m_runs = 0;
    int m_siteStops = 0;
    int m_killAtTurn = -1;
    int m_writesSeen = -1;
    bool m_limitLifted = false;
    QString m_standing; // what the program was at, at the last look
    qint64 m_standingSinceMs = 0;
    qint64 m_answerAtMs = -1;
    qint32 m_pressedFor = -1;
    qint64 m_diskRefusesUntilMs = -1;
    qint64 m_turnsSinceLook = 0;
    QString m_traced;
};

} // namespace qlm::fire
