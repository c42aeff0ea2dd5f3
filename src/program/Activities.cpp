// SPDX-License-Identifier: MIT
#include "steps/Activities.h"
#include "accounts/LoginErrorPages.h"
#include "accounts/LoginFlow.h"
#include "campaigns/CampaignErrorPages.h"
#include "campaigns/FriendRequester.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "gather/GatherDriver.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

void BeginPendingDeletionAnew(App& app) {
    app.state.intDelPenStep = PendingStep::OpenList;
    app.Get<StopResume>().ResumeNext();
}

} // namespace

// The tick compares in this order.
const std::vector<Activity>& Activities() {
    static const std::vector<Activity> activities{
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
        {.word = ActivityWord::FriendRequests,
         .step = &RunState::intFRStep,
         .stepRoutine = [](App& app) { app.Get<FriendRequester>().IterateAddFriends(); },
         .debugFile = "debugfr.txt",
         .stopMark = "FR stop - ",
         .resumable = true,
         .worksOnList = true,
         .tracesFound = true,
         .sends = true,
         .tracesPageClasses = true,
         .stepAfterSkip = FriendStep::AfterSend,
         .onErrorPage = HandleRequesterErrorPage,
         .onConfirmed = [](App& app) { app.Get<FriendRequester>().NoteConfirmation(); }},
        {.word = ActivityWord::Messages,
         .step = &RunState::intMsgStep,
         .debugFile = "debugmsg.txt",
         .stopMark = "MSG stop - (",
         .resumable = true,
         .worksOnList = true,
         .tracesFound = true,
         .sends = true,
         .tracesPageClasses = true,
         .stepAfterSkip = MessageStep::AfterSend,
         .onErrorPage = HandleMessengerErrorPage},
        {.word = ActivityWord::Comments,
         .step = &RunState::intComStep,
         .debugFile = "debugcom.txt",
         .stopMark = "COM stop - (",
         .resumable = true,
         .worksOnList = true,
         .tracesFound = true,
         .sends = true,
         .tracesPageClasses = true,
         .stepAfterSkip = CommentStep::AfterSend,
         .onErrorPage = HandleCommenterErrorPage},
        {.word = ActivityWord::Bulletins,
         .step = &RunState::intBulStep,
         .debugFile = "debugbul.txt",
         .resumable = true,
         .stepAfterSkip = BulletinStep::None,
         .onErrorPage = [](App& app) { TraceErrorPage(app, u"Maint: "_s); }},
        {.word = ActivityWord::Accepting,
         .step = &RunState::intAccStep,
         .debugFile = "debugacc.txt",
         .stopMark = "ACC stop - (",
         .resumable = true},
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
         .resumable = true,
         .onErrorPage = BeginPendingDeletionAnew},
        {.word = ActivityWord::Invites, .debugFile = "debugevinv.txt", .stopMark = "EVINV stop - ("},
        {.word = ActivityWord::StatusUpdates},
        {.word = ActivityWord::Shuffling},
    };
    return activities;
}

} // namespace qlm
