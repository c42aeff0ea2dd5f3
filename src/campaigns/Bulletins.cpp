// SPDX-License-Identifier: MIT
// The campaign "bulletins", which has no targets. BulletinPoster is its machine.
#include "campaigns/BulletinPoster.h"
#include "campaigns/Campaigns.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "steps/Steps.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const std::vector<StartCheck>& Checks() {
    static const std::vector<StartCheck> rows{
        WaitForLogin,
        {AmountIsBelowOne, u"Please specify how many times to post the bulletin.", "txtPostAmount"},
        {LacksSubject, u"Please enter a subject.", "txtBulSubject"},
        {LacksText, u"Please enter a message.", "txtBulMessage"},
        {ListLacksEntries,
         u"You have selected 'send from list', but you havent added any bulletins to the list yet."},
        {ListLacksSelected, u"Please select at least one bulletin in the list to post."},
    };
    return rows;
}

void LeaveErrorPage(App& app) {
    TraceErrorPage(app, u"Maint: "_s);
    app.Get<RunReport>().RemarkPage(app.state.intPageClass);
}

} // namespace

constinit const Campaign Bulletins{
    .activity = {.word = ActivityWord::Bulletins,
                 .step = &RunState::intBulStep,
                 .stepRoutine = [](App& app) { app.Get<BulletinPoster>().IterateSendBulletins(); },
                 .debugFile = "debugbul.txt",
                 .resumable = true,
                 .waits = &RunState::blnBulletinWaiting,
                 .stepAfterSkip = BulletinStep::None,
                 .onErrorPage = LeaveErrorPage},
    .makeMachine = [](Families& families, App& app) { families.Make<BulletinPoster>(app); },
    .tab = u"Timed Bulletins",
    .send = "picCmdBulSend",
    .startProcedure = "cmdBulSend_Click",
    .stop = "piccmdBulStop",
    .checks = Checks,
    .prepare = [](App& app) { app.Get<BulletinPoster>().Repair(); },
    .onStart = [](App& app) { app.Get<BulletinPoster>().BeginRun(); },
    .firstStep = BulletinStep::Open,
    .stopsRunningOne = true,
    .reasons = {.stopped = StopReason::BulletinStop},
    .what = "bulletins",
    .content = {.kind = ContentKind::Bulletin,
                .fromList = "optSendFromList(2)"_L1,
                .subject = "txtBulSubject"_L1,
                .text = "txtBulMessage"_L1,
                .listIndex = &RunState::intBulletinListIndex},
    .session = &RunState::lngSessionBul,
    .today = {"Daily Bulletins Count", "Daily Bulletins Count", &RunState::lngDailyBul, {}},
    .sentLabel = "lblBulSentCount"_L1,
    .sentAtStart = "Bulletins sent: ",
    .sentSoFar = "Bulletins sent: ",
    .amount = "txtPostAmount"_L1,
    .reportButton = "piccmdBulReport",
    .report = {.file = "BulletinsReport.txt", .title = "Bulletins", .allDone = "All were posted"},
    .timing = {.timer = &Timers::tmrBulletinWait,
               .from = "txtBulTimerFrom"_L1,
               .to = "txtBulTimerTo"_L1,
               .fromAtTick = "2",
               .tickRepairsAll = true,
               .tellsEachMinute = true,
               .keepsPageOfLender = true,
               .elapsed = &RunState::lngBulMinutesElapsed,
               .drawn = &RunState::lngBulWaitMinutes,
               .busyLabel = "lblBulBusy"_L1,
               .dueLabel = "lblBulDue"_L1,
               .posted = "Bulletin successfully posted",
               .finished = "Finished posting bulletins",
               .noteFile = "BulletinsLog.txt"},
};

} // namespace qlm
