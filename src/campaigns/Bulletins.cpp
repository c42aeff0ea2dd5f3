// SPDX-License-Identifier: MIT
// The campaign "bulletins", which has no targets. It waits for its machine.
#include "campaigns/Campaigns.h"
#include "core/ActivityWords.h"
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

} // namespace

constinit const Campaign Bulletins{
    .activity = {.word = ActivityWord::Bulletins,
                 .step = &RunState::intBulStep,
                 .debugFile = "debugbul.txt",
                 .resumable = true,
                 .stepAfterSkip = BulletinStep::None,
                 .onErrorPage = [](App& app) { TraceErrorPage(app, u"Maint: "_s); }},
    .send = "picCmdBulSend",
    .startProcedure = "cmdBulSend_Click",
    .stop = "piccmdBulStop",
    .checks = Checks,
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
    .goesOnInChain = true,
};

} // namespace qlm
