// SPDX-License-Identifier: MIT
// The campaign "status updates", which has no targets. StatusUpdater is its machine, without steps.
#include "campaigns/Campaigns.h"
#include "campaigns/StatusUpdater.h"
#include "core/ActivityWords.h"
#include "core/App.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const std::vector<StartCheck>& Checks() {
    static const std::vector<StartCheck> rows{
        WaitForLogin,
        {AmountIsBelowOne, u"Please specify how many status updates to post in total.",
         "txtStatusPostAmount"},
        {LacksText, u"Please enter a status update.", "txtStatusBody"},
        {ListLacksEntries,
         u"You have selected 'send from list', but you havent added any statuses to the list yet."},
        {ListLacksSelected, u"Please select at least one status in the list to post."},
    };
    return rows;
}

} // namespace

// A new day writes the counter's 0 under a key of its own, so the stored one stands until it is next saved.
constinit const Campaign StatusUpdates{
    .activity = {.word = ActivityWord::StatusUpdates, .waits = &RunState::blnStatusWaiting},
    .makeMachine = [](Families& families, App& app) { families.Make<StatusUpdater>(app); },
    .tab = u"Status Updater",
    .send = "piccmdSendStatusUpdates",
    .startProcedure = "cmdstatusesSend_Click",
    .checks = Checks,
    .prepare = [](App& app) { app.Get<StatusUpdater>().Repair(); },
    .onStart = [](App& app) { app.Get<StatusUpdater>().BeginRun(); },
    .run = [](App& app) { app.Get<StatusUpdater>().SendStatusUpdates(); },
    .reasons = {.stopped = StopReason::StatusStop},
    .what = "status updates",
    .content = {.kind = ContentKind::Status,
                .fromList = "optSendFromList(3)"_L1,
                .text = "txtStatusBody"_L1,
                .listIndex = &RunState::intStatusListIndex},
    .session = &RunState::lngSessionStatus,
    .today = {"Daily Statuses Count", "Daily Status Updates Count", &RunState::lngDailyStatus, {}},
    .sentLabel = "lblStatusSentCount"_L1,
    .sentAtStart = "Statuses posted: ",
    .sentSoFar = "Statuses posted: ",
    .amount = "txtStatusPostAmount"_L1,
    .reportButton = "piccmdStatusReport",
    .report = {.file = "StatusesReport.txt", .title = "Status updates", .allDone = "All were posted"},
    .timing = {.timer = &Timers::tmrStatusUpdatesWait,
               .from = "txtStatusTimerFrom"_L1,
               .to = "txtStatusTimerTo"_L1,
               .elapsed = &RunState::lngStatusMinutesElapsed,
               .drawn = &RunState::lngStatusWaitMinutes,
               .busyLabel = "lblStatusBusy"_L1,
               .dueLabel = "lblStatusDue"_L1,
               .posted = "Status update successfully posted",
               .finished = "Finished posting status updates",
               .noteFile = "StatusesLog.txt"},
};

} // namespace qlm
