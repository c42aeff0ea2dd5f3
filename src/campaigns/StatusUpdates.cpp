// SPDX-License-Identifier: MIT
// The campaign "status updates", which has no targets. It waits for its machine.
#include "campaigns/Campaigns.h"
#include "core/ActivityWords.h"

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
    .activity = {.word = ActivityWord::StatusUpdates},
    .send = "piccmdSendStatusUpdates",
    .startProcedure = "cmdstatusesSend_Click",
    .checks = Checks,
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
};

} // namespace qlm
