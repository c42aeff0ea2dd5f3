// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>

namespace qlm {

// Why StopAll ends what runs. A campaign's own three stand in its definition.
enum class StopReason {
    // All targets were gone through.
    RequestsDone,
    MessagesDone,
    CommentsDone,
    AcceptDone,
    PendingDone,
    // The limit that the user has set.
    RequestLimit,
    MessageLimit,
    CommentLimit,
    // The Stop button of a tab, or its next start.
    RequestStop,
    MessageStop,
    CommentStop,
    BulletinStop,
    StatusStop,
    AcceptStop,
    PendingStop,
    InviteStop,

    WindowStop,  // the window's Stop
    Closing,     // the program ends
    Uncounted,   // the count of the day can't be saved
    Unnoted,     // who is about to be sent to can't be noted
    NoText,      // nothing in the list of texts is selected any more
    Flooding,    // the site takes no more comments for now
    DailyLimit,  // the site lets the account send nothing more today
    NotEnglish,  // the site speaks another language
    LoginDone,   // the account is signed in
    OtherSignIn, // the user has signed in with an account that can't be named
    ChainEnded,  // no account comes next

    GatherBegins,
    WebSearchBegins,
    RemoveFriendsBegins,
    GatherStop,      // the Stop button of the gathering
    StoppedInFilter, // a stop was found at the return from the filters
    GatherDone,      // no next page
    GroupInvitesBegin,
    GroupInvitesDone,
    GroupInvitesFailed, // an error, or a page that is none of a group's
    EventInvitesBegin,
    EventPagerDone, // each way of inviting to an event has an end of its own
    EventTabsDone,
    EventInvitesDone,
    EventInvitesFailed,
    PendingFailed, // an error has ended the canceling of pending requests
    PagesRepeat,   // the site shows no more than a thousand pages
    LoginAgain,    // the session was lost a second time on the way back to the list
};

// What a reason means to a run that is ended by it.
enum class Ending {
    AllDone,
    LimitMet,
    Stopped,
    Closed,
    Uncounted,
    Unnoted,
    NoText,
    Flooding,
    DailyLimit,
    Other
};

struct StopReasonRow {
    StopReason reason;
    QLatin1StringView tag; // in the trail of the activity; several reasons may share one
    Ending ending = Ending::Other;
    // The activity has come to its end by itself: what waits for its minute goes on waiting.
    bool isOwnEnd = false;
    // The next account of a chain may follow.
    bool leavesChain = false;
};

const StopReasonRow& RowOf(StopReason reason);

} // namespace qlm
