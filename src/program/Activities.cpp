// SPDX-License-Identifier: MIT
#include "steps/Activities.h"
#include "accounts/LoginErrorPages.h"
#include "accounts/LoginFlow.h"
#include "campaigns/CampaignErrorPages.h"
#include "campaigns/FriendRequester.h"
#include "core/App.h"
#include "gather/GatherDriver.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

void BeginPendingDeletionAnew(App& app) {
    app.state.intDelPenStep = 1;
    app.Get<StopResume>().ResumeNext();
}

} // namespace

// The tick compares in this order.
const std::vector<Activity>& Activities() {
    static const std::vector<Activity> activities{
        {.word = "SCANNING"_L1,
         .step = &RunState::intGatherStep,
         .stepRoutine = [](App& app) { app.Get<GatherDriver>().IterateGatherProfiles(); },
         .debugFile = "debuggather.txt",
         .stopMark = "GATHER stop - (",
         .resumable = true,
         .onSignedInAgain = [](App& app) { app.Get<GatherDriver>().ReturnToList(); }},
        {.word = "FR"_L1,
         .step = &RunState::intFRStep,
         .stepRoutine = [](App& app) { app.Get<FriendRequester>().IterateAddFriends(); },
         .debugFile = "debugfr.txt",
         .stopMark = "FR stop - ",
         .resumable = true,
         .stepAfterSkip = 9,
         .onErrorPage = HandleRequesterErrorPage,
         .onConfirmed = [](App& app) { app.Get<FriendRequester>().NoteConfirmation(); }},
        {.word = "MSG"_L1,
         .step = &RunState::intMsgStep,
         .debugFile = "debugmsg.txt",
         .stopMark = "MSG stop - (",
         .resumable = true,
         .stepAfterSkip = 8,
         .onErrorPage = HandleMessengerErrorPage},
        {.word = "COM"_L1,
         .step = &RunState::intComStep,
         .debugFile = "debugcom.txt",
         .stopMark = "COM stop - (",
         .resumable = true,
         .stepAfterSkip = 8,
         .onErrorPage = HandleCommenterErrorPage},
        {.word = "BUL"_L1,
         .step = &RunState::intBulStep,
         .debugFile = "debugbul.txt",
         .resumable = true,
         .stepAfterSkip = 0,
         .onErrorPage = [](App& app) { TraceErrorPage(app, u"Maint: "_s); }},
        {.word = "ACC"_L1,
         .step = &RunState::intAccStep,
         .debugFile = "debugacc.txt",
         .stopMark = "ACC stop - (",
         .resumable = true},
        {.word = "LOGIN"_L1,
         .step = &RunState::intLoginStep,
         .stepRoutine = [](App& app) { app.Get<LoginFlow>().IterateLoginAccount(); },
         .debugFile = "debuginitial.txt",
         .stopMark = "LOGIN stop - (",
         .onErrorPage = HandleLoginErrorPage},
        {.word = "DEL PEN"_L1,
         .step = &RunState::intDelPenStep,
         .resumable = true,
         .onErrorPage = BeginPendingDeletionAnew},
        {.word = "INV"_L1, .debugFile = "debugevinv.txt", .stopMark = "EVINV stop - ("},
        {.word = "STATUSUPDATES"_L1},
        {.word = "RANDOMIZING"_L1},
    };
    return activities;
}

} // namespace qlm
