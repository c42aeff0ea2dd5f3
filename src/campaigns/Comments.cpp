// SPDX-License-Identifier: MIT
// The campaign "comments". Commenter is its machine.
#include "campaigns/CampaignErrorPages.h"
#include "campaigns/Campaigns.h"
#include "campaigns/Commenter.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/Text.h"
#include "steps/Steps.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

bool LacksAlternative(App& app, const Campaign& campaign) {
    return !IsFromList(app, campaign) && app.controls.Ticked("optCOMHTMLBLocked(2)"_L1) &&
           (IsBlank(app, "txtCommentNonHTML"_L1) ||
            Has(app.controls.Text("txtCommentNonHTML"_L1), u"Enter non-HTML comment here"_s));
}

const std::vector<StartCheck>& Checks() {
    static const std::vector<StartCheck> rows{
        WaitForLogin,
        WaitForShuffle,
        EmptyList,
        {LacksText, u"Please enter a comment.", "txtComment"},
        {LacksAlternative, u"Please enter an alternate non-HTML comment, or disable the setting.",
         "txtCommentNonHTML"},
        {AmountIsNoNumber, u"Please enter a valid number of comments to send.", "txtComStopAt"},
        {ListLacksEntries,
         u"You have selected 'send from list', but you havent added any comments to the list yet."},
        {ListLacksSelected, u"Please select at least one comment in the list to send."},
        {LogIsIllegible,
         u"The log of everybody you have sent comments to is written in UTF-16 (\"Unicode\"). "
         u"Nobody in it would be recognised, and all would get another comment. "
         u"Please save it as plain text (ANSI or UTF-8), or clear it."},
    };
    return rows;
}

bool IsPartOfAnother(const RunState& state) {
    return !state.strAcceptMode.isEmpty();
}

} // namespace

constinit const Campaign Comments{
    .activity = {.word = ActivityWord::Comments,
                 .step = &RunState::intComStep,
                 .stepRoutine = [](App& app) { app.Get<Commenter>().IterateSendComments(); },
                 .debugFile = "debugcom.txt",
                 .stopMark = "COM stop - (",
                 .resumable = true,
                 .worksOnList = true,
                 .tracesFound = true,
                 .sends = true,
                 .lent = &RunState::blnResumeCom,
                 .nextTarget = CommentStep::NextTarget,
                 .tracesPageClasses = true,
                 .stepAfterSkip = CommentStep::AfterSend,
                 .onErrorPage = HandleCommenterErrorPage},
    .makeMachine = [](Families& families, App& app) { families.Make<Commenter>(app); },
    .tab = u"Auto Commenter",
    .send = "picCmdComSend",
    .startProcedure = "cmdComSend_Click",
    .stop = "picCmdComStop",
    .checks = Checks,
    .firstStep = CommentStep::NextTarget,
    .stopsRunningOne = true,
    .reasons = {.finished = StopReason::CommentsDone,
                .limitMet = StopReason::CommentLimit,
                .stopped = StopReason::CommentStop},
    .what = "comments",
    .content = {.kind = ContentKind::Comment,
                .fromList = "optSendFromList(1)"_L1,
                .text = "txtComment"_L1,
                .acceptText = "txtAcceptComment"_L1,
                .listIndex = &RunState::intCommentListIndex},
    .session = &RunState::lngSessionCom,
    .today = {"Daily Comments Count", "Daily Comments Count", &RunState::lngDailyCom, "lblComTotalToday"_L1},
    .isPartOfAnother = IsPartOfAnother,
    .sentLabel = "lblComSentCount"_L1,
    .failedLabel = "lblComFailedCount"_L1,
    .skippedLabel = "lblComSkippedCount"_L1,
    .sentAtStart = "Comments sent: ",
    .sentSoFar = "Comments sent: ",
    .amount = "txtComStopAt"_L1,
    .period = "cboCOMPerDayOrSession"_L1,
    .log = "piccmdComClearLog",
    .logFile = "CommentsLog.txt",
    .whatLogRecords = "sent comments to",
    .checkLogBox = "chkComDontSendAgain"_L1,
    .acceptLogBox = "mnuAddToLogWhenAccepting"_L1,
    .reportButton = "piccmdComReport",
    .report = {.file = "CommentsReport.txt", .title = "Comments"},
};

} // namespace qlm
