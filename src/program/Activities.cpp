// SPDX-License-Identifier: MIT
#include "steps/Activities.h"
#include "accounts/LoginErrorPages.h"
#include "accounts/LoginFlow.h"
#include "campaigns/Campaigns.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "gather/GatherDriver.h"
#include "inbound/AcceptFriends.h"
#include "inbound/PendingRequests.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

void BeginPendingDeletionAnew(App& app) {
    app.state.intDelPenStep = PendingStep::OpenList;
    app.Get<StopResume>().ResumeNext();
}

// The login has led away from the list.
void OpenRequestsAnew(App& app) {
    app.state.intAccStep = AcceptStep::OpenList;
    app.Get<StopResume>().ResumeNext();
}

// Those of campaigns stand in their definitions.
std::vector<Activity> AllActivities() {
    std::vector<Activity> activities{
        {.word = ActivityWord::Gathering,
         .step = &RunState::intGatherStep,
         .stepRoutine = [](App& app) { app.Get<GatherDriver>().IterateGatherProfiles(); },
         .debugFile = "debuggather.txt",
         .stopMark = "GATHER stop - (",
         .resumable = true,
         .worksOnList = true,
         .tracesFound = true,
         .tracesPageClasses = true,
         .onSignedInAgain = [](App& app) { app.Get<GatherDriver>().ReturnToList(); }},
        {.word = ActivityWord::Accepting,
         .step = &RunState::intAccStep,
         .stepRoutine = [](App& app) { app.Get<AcceptFriends>().IterateAcceptFriends(); },
         .debugFile = "debugacc.txt",
         .stopMark = "ACC stop - (",
         .resumable = true,
         .onSignedInAgain = OpenRequestsAnew},
        {.word = ActivityWord::Login,
         .step = &RunState::intLoginStep,
         .stepRoutine = [](App& app) { app.Get<LoginFlow>().IterateLoginAccount(); },
         .debugFile = "debuginitial.txt",
         .stopMark = "LOGIN stop - (",
         .checkMark = "checking: ",
         .tracesFound = true,
         .onErrorPage = HandleLoginErrorPage},
        {.word = ActivityWord::DeletingPending,
         .step = &RunState::intDelPenStep,
         .stepRoutine = [](App& app) { app.Get<PendingRequests>().IterateDelPenFR(); },
         .resumable = true,
         .onErrorPage = BeginPendingDeletionAnew},
        {.word = ActivityWord::Invites, .debugFile = "debugevinv.txt", .stopMark = "EVINV stop - ("},
        {.word = ActivityWord::Shuffling},
    };
    for (const Campaign* campaign : Campaigns())
        activities.push_back(campaign->activity);
    return activities;
}

} // namespace

const std::vector<Activity>& Activities() {
    static const std::vector<Activity> activities = AllActivities();
    return activities;
}

} // namespace qlm
