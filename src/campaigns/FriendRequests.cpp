// SPDX-License-Identifier: MIT
// The campaign "friend requests". FriendRequester is its machine.
#include "campaigns/CampaignErrorPages.h"
#include "campaigns/Campaigns.h"
#include "campaigns/FriendRequester.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "steps/Steps.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

bool SendsMessageAfter(const App& app) {
    return app.controls.Ticked("chkFrSendMessage"_L1);
}

bool LacksMessageSubject(App& app, const Campaign&) {
    return SendsMessageAfter(app) && IsBlank(app, Messages.content.subject);
}

bool LacksMessageText(App& app, const Campaign&) {
    return SendsMessageAfter(app) && IsBlank(app, Messages.content.text);
}

bool LacksMessages(App& app, const Campaign&) {
    return SendsMessageAfter(app) && ListLacksEntries(app, Messages);
}

bool LacksSelectedMessage(App& app, const Campaign&) {
    return SendsMessageAfter(app) && ListLacksSelected(app, Messages);
}

bool LacksCategory(App& app, const Campaign&) {
    static const QStringList noCategories{u"Retrieving, please wait..."_s,
                                          u"Press button to fill list -> -> ->"_s,
                                          u"Select a category from the list"_s};
    return app.controls.Ticked("chkFRAddToCategory"_L1) &&
           noCategories.contains(app.controls.Text("cboFRCategories"_L1));
}

const std::vector<StartCheck>& Checks() {
    static const std::vector<StartCheck> rows{
        WaitForLogin,
        WaitForShuffle,
        EmptyList,
        {AmountIsNoNumber,
         u"Please specify a numeric value for the number of friend requests to send.\n"
         u"You can leave the entry blank to send an unlimited number of requests.",
         "txtFriendRequestsToSend"},
        {LacksMessageSubject,
         u"You have selected to send a message after each friend request. "
         u"Please enter subject for the message.",
         "txtMsgSubject", Messages.tab},
        {LacksMessageText,
         u"You have selected to send a message after each friend request. Please enter a message.",
         "txtMsgMessage", Messages.tab},
        {LacksCategory,
         u"You have selected to add the requested friends to a category, "
         u"but no category has been selected.",
         "cboFRCategories"},
        {LacksMessages, u"You have selected to send a message with the friend request. "
                        u"On the messenger tab you selected 'send from list', "
                        u"but you havent added any messages to the list yet."},
        {LacksSelectedMessage, u"You have selected to send a message with the friend request. "
                               u"On the messenger tab you selected 'send from list', "
                               u"but you havent selected any of the messages in your list."},
        {LogIsIllegible, u"The log of everybody you have asked is written in UTF-16 (\"Unicode\"). "
                         u"Nobody in it would be recognised, and all would be asked again. "
                         u"Please save it as plain text (ANSI or UTF-8), or clear it."},
    };
    return rows;
}

} // namespace

// The log is the only guard against asking somebody twice: it is always looked at.
constinit const Campaign FriendRequests{
    .activity = {.word = ActivityWord::FriendRequests,
                 .step = &RunState::intFRStep,
                 .stepRoutine = [](App& app) { app.Get<FriendRequester>().IterateAddFriends(); },
                 .debugFile = "debugfr.txt",
                 .stopMark = "FR stop - ",
                 .resumable = true,
                 .worksOnList = true,
                 .tracesFound = true,
                 .sends = true,
                 .lent = &RunState::varResumeFR,
                 .nextTarget = FriendStep::NextTarget,
                 .isDone = [](App& app) { return app.Get<FriendRequester>().IsConfirmed(); },
                 .tracesPageClasses = true,
                 .stepAfterSkip = FriendStep::AfterSend,
                 .onErrorPage = HandleRequesterErrorPage,
                 .onConfirmed = [](App& app) { app.Get<FriendRequester>().NoteConfirmation(); }},
    .makeMachine = [](Families& families, App& app) { families.Make<FriendRequester>(app); },
    .tab = u"Friend Requester",
    .send = "piccmdAddFriends",
    .startProcedure = "cmdAddFriends_Click",
    .stop = "piccmdAddFriendsStop",
    .checks = Checks,
    .firstStep = FriendStep::NextTarget,
    .startMark = "FR BEGIN",
    .reasons = {.finished = StopReason::RequestsDone,
                .limitMet = StopReason::RequestLimit,
                .stopped = StopReason::RequestStop},
    .what = "friend requests",
    .session = &RunState::lngSessionFR,
    .today = {"Daily Friends Count", "Daily Friends Count", &RunState::lngDailyFR, "lblFrTotalToday"_L1},
    .sentLabel = "lblFrSentCount"_L1,
    .failedLabel = "lblFrFailedCount"_L1,
    .skippedLabel = "lblFrSkippedCount"_L1,
    .sentAtStart = "Friends requested: ",
    .sentSoFar = "Friends Requested: ",
    .amount = "txtFriendRequestsToSend"_L1,
    .period = "cboFRPerDayOrSession"_L1,
    .limitComesFirst = true,
    .log = "piccmdFrClearLog",
    .logFile = "FriendsLog.txt",
    .whatLogRecords = "sent friend requests to",
    .noteSays = "You sent to this one before, although your log doesn't say so",
    .reportButton = "piccmdFrReport",
    .report = {.file = "FriendsReport.txt",
               .title = "Friend requests",
               .overLimit = "The request that met your limit: it is sent, but neither counted nor logged"},
};

} // namespace qlm
