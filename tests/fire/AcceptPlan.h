// SPDX-License-Identifier: MIT
#pragma once

#include "Plan.h"

namespace qlm::fire {

// What a seed decides of a run that accepts whoever has asked, and sends each of them something after it.
struct AcceptPlan {
    AcceptPlan(quint64 seed, int targets);

    // What follows an approval: Messages, Comments, or nothing.
    const Campaign* followUp = nullptr;
    QStringList ids;        // who has asked
    QSet<QString> gone;     // whose profile has vanished since
    QSet<QString> stuck;    // whose request stays for a while, whatever is pressed
    QStringList controls;   // for the practice site
    QStringList listFaults; // met by the list, one at a time
    bool oldLayout = false;
    bool fromOldest = false;
    bool isLogged = false; // the follow-ups stand in the log, which is looked at
    int listFaultsInThousandLooks = 0;
    int killsInThousandLooks = 0;
    int skipsInThousandLooks = 0;
    int stopsInThousandLooks = 0;
    int startsInThousandLooks = 0; // in the middle of a run
    int lostAnswersInThousand = 0; // of what is sent
    int refusedDisksInThousandLooks = 0;

    QString Describe() const;

private:
    void PlanRequest(Dice& dice, const QString& id, int oddities);
    void PlanFollowUp(Dice& dice, const QString& id, int faults);
    QString PageOf(const QString& id) const;
};

} // namespace qlm::fire
