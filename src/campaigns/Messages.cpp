// SPDX-License-Identifier: MIT
// The campaign "messages". Messenger is its machine.
#include "campaigns/CampaignErrorPages.h"
#include "campaigns/Campaigns.h"
#include "campaigns/Messenger.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "steps/Steps.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const std::vector<StartCheck>& Checks() {
    static const std::vector<StartCheck> rows{
        WaitForLogin,
        WaitForShuffle,
        {LacksSubject, u"Please enter subject for the message.", "txtMsgSubject"},
        {LacksText, u"Please enter a message.", "txtMsgMessage"},
        {AmountIsNoNumber, u"Please enter a valid 'stop at' number, or leave it blank for unlimited messages",
         "txtMsgStopAt"},
        EmptyList,
        {ListLacksEntries,
         u"You have selected 'send from list', but you havent added any messages to the list yet."},
        {ListLacksSelected, u"Please select at least one message in the list to send."},
        {LogIsIllegible,
         u"The log of everybody you have sent messages to is written in UTF-16 (\"Unicode\"). "
         u"Nobody in it would be recognised, and all would get another message. "
         u"Please save it as plain text (ANSI or UTF-8), or clear it."},
    };
    return rows;
}

bool IsPartOfAnother(const RunState& state) {
    return !state.strAcceptMode.isEmpty() || !state.strFRResumeURL.isEmpty() || state.blnMsgAfterFR;
}

} // namespace

constinit const Campaign Messages{
    .activity = {.word = ActivityWord::Messages,
                 .step = &RunState::intMsgStep,
                 .stepRoutine = [](App& app) { app.Get<Messenger>().IterateSendMessages(); },
                 .debugFile = "debugmsg.txt",
                 .stopMark = "MSG stop - (",
                 .resumable = true,
                 .worksOnList = true,
                 .tracesFound = true,
                 .sends = true,
                 .lent = &RunState::blnResumeMsg,
                 .nextTarget = MessageStep::NextTarget,
                 .isDone = [](App& app) { return app.Get<Messenger>().HasSent(); },
                 .tracesPageClasses = true,
                 .stepAfterSkip = MessageStep::AfterSend,
                 .onErrorPage = HandleMessengerErrorPage},
    .makeMachine = [](Families& families, App& app) { families.Make<Messenger>(app); },
    .tab = u"Auto Messenger",
    .send = "picCmdMsgSend",
    .startProcedure = "cmdMsgSend_Click",
    .stop = "picCmdMsgStop",
    .checks = Checks,
    .firstStep = MessageStep::NextTarget,
    .reasons = {.finished = StopReason::MessagesDone,
                .limitMet = StopReason::MessageLimit,
                .stopped = StopReason::MessageStop},
    .what = "messages",
    .content = {.kind = ContentKind::Message,
                .fromList = "optSendFromList(0)"_L1,
                .subject = "txtMsgSubject"_L1,
                .text = "txtMsgMessage"_L1,
                .acceptSubject = "txtAcceptSubject"_L1,
                .acceptText = "txtAcceptMessage"_L1,
                .listIndex = &RunState::intMessageListIndex,
                .linesBetween = 1},
    .session = &RunState::lngSessionMsg,
    .today = {"Daily Messages Count", "Daily Messages Count", &RunState::lngDailyMsg, "lblMsgTotalToday"_L1},
    .isPartOfAnother = IsPartOfAnother,
    .sentLabel = "lblMsgSentCount"_L1,
    .failedLabel = "lblMsgFailedCount"_L1,
    .skippedLabel = "lblMsgSkippedCount"_L1,
    .sentAtStart = "Messages sent: ",
    .sentSoFar = "Messages sent: ",
    .amount = "txtMsgStopAt"_L1,
    .period = "cboMSGPerDayOrSession"_L1,
    .log = "piccmdMsgClearLog",
    .logFile = "MessagesLog.txt",
    .whatLogRecords = "sent messages to",
    .checkLogBox = "chkMsgDontSendAgain"_L1,
    .reportButton = "piccmdMsgReport",
    .report = {.file = "MessagesReport.txt", .title = "Messages"},
};

} // namespace qlm
