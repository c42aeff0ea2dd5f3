// SPDX-License-Identifier: MIT
#pragma once

#include "Judge.h"
#include "platform/sim/SimWeb.h"

#include <array>

namespace qlm::practice {
class PracticeSite;
}

namespace qlm::fire {

// Bulletins and status updates that fall due at any turn of a run: it plays the user who starts, skips and
// stops them and makes the site fail under them, and holds that what the site has got, what was counted and
// what is noted on the disk agree.
class PostFire {
public:
    PostFire(quint64 seed, const Plan& plan, practice::PracticeSite& site, QString logFolder);

    // What the trial lends it.
    std::function<void(const QString&)> trace;
    std::function<void(const QString&)> press; // a command
    std::function<int(const Campaign&)> storedCount;
    std::function<void(const QString& id, bool isGivenUp)> onLoan;

    void SetUp();
    void OnStart(App& app);
    // Both wait for their next post, and nothing else runs.
    static bool Rests(App& app);
    // The user begins one of them before the lender. False when none is left to begin.
    bool BeginsOne(App& app, bool diskRefuses);
    // Once a virtual second, and at each turn of the message loop.
    void Look(App& app, bool diskRefuses);
    void Watch(App& app);
    void LookAtPost(App& app, bool isTold, bool diskRefuses);
    void OnRequest(App& app, const SimRequest& request, bool diskRefuses);
    void OnLenderStarted(App& app);
    // Whatever was on its way may have arrived; the note says so.
    void OnStop(bool diskRefuses);
    void OnKill();
    void OnEnd(App& app);

    int Arrived() const { return m_sides[0].arrived + m_sides[1].arrived; }
    int Loans() const { return m_loans; }

private:
    struct Side {
        const Campaign* campaign;
        QString page;    // where it posts
        QByteArray sign; // in what is sent there
        QString name;    // of each post, in the note
        int arrived = 0; // at the site, refused or not
        int counted = 0;
        int excused = 0;     // arrived and, for a reason that is known, not counted
        bool isOpen = false; // arrived and not counted yet
        bool wantsStart = false;
        bool mustTell = false;  // a note stood there when the run began
        int dueIn = -1;         // turns
        bool isHurried = false; // its clock runs in a millisecond
        qint32 elapsedThen = 0;
    };
    Timer& Clock(App& app, const Side& side) const;
    static bool Waits(App& app, const Side& side);
    Side* AtWork(App& app);
    bool IsNoted(const Side& side) const;
    void TakeCounts();
    void Close(Side& side, bool diskRefuses);
    void Begin(App& app, Side& side, bool diskRefuses);
    void FillIn(App& app, const Side& side);
    void HurryClock(App& app, Side& side);
    void CheckTold(App& app, Side& side);
    void CheckReport(App& app, const Side& side) const;
    void CheckOutcomes(App& app) const;
    void BreakPage(const Side& side);
    void Tell(const QString& text) const;
    static void Demand(bool holds, const QString& promise);

    const Plan& m_plan;
    practice::PracticeSite& m_site;
    const QString m_logFolder;
    Dice m_dice;
    std::array<Side, 2> m_sides;
    int m_dueInThousandLooks;
    int m_faultsInThousandLooks;
    int m_interferesInThousandLooks;
    int m_clockMs = 0;
    int m_kills = 0;
    int m_loans = 0;
    bool m_wasLent = false;
    bool m_hasDiskRefused = false;
};

} // namespace qlm::fire
