// SPDX-License-Identifier: MIT
#include "core/Activities.h"

#include "accounts/LoginFlow.h"
#include "campaigns/FriendRequester.h"
#include "core/App.h"
#include "gather/GatherDriver.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

// The tick compares in this order.
const std::vector<Activity>& Activities() {
    static const std::vector<Activity> activities{
        {"SCANNING"_L1, &RunState::intGatherStep, [](App& app) { app.gatherDriver->IterateGatherProfiles(); },
         "debuggather.txt", "GATHER stop - (", true},
        {"FR"_L1, &RunState::intFRStep, [](App& app) { app.friendRequester->IterateAddFriends(); },
         "debugfr.txt", "FR stop - ", true},
        {"MSG"_L1, &RunState::intMsgStep, nullptr, "debugmsg.txt", "MSG stop - (", true},
        {"COM"_L1, &RunState::intComStep, nullptr, "debugcom.txt", "COM stop - (", true},
        {"BUL"_L1, &RunState::intBulStep, nullptr, "debugbul.txt", "", true},
        {"ACC"_L1, &RunState::intAccStep, nullptr, "debugacc.txt", "ACC stop - (", true},
        {"LOGIN"_L1, &RunState::intLoginStep, [](App& app) { app.loginFlow->IterateLoginAccount(); },
         "debuginitial.txt", "LOGIN stop - (", false},
        {"DEL PEN"_L1, &RunState::intDelPenStep, nullptr, "", "", true},
        {"INV"_L1, nullptr, nullptr, "debugevinv.txt", "EVINV stop - (", false},
        {"STATUSUPDATES"_L1, nullptr, nullptr, "", "", false},
        {"RANDOMIZING"_L1, nullptr, nullptr, "", "", false},
    };
    return activities;
}

const Activity* FindActivity(const QString& word) {
    for (const Activity& activity : Activities())
        if (word == activity.word)
            return &activity;
    return nullptr;
}

} // namespace qlm
