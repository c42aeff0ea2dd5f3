// SPDX-License-Identifier: MIT
#pragma once

#include "campaigns/StartChecks.h"
#include "content/ContentLine.h"
#include "core/Families.h"
#include "core/RunState.h"
#include "steps/Activities.h"
#include "steps/RunReport.h"

#include <QString>
#include <optional>
#include <vector>

namespace qlm {

class App;
class Timer;
struct Timers;

// Where the text of a campaign comes from: its list, or the fields of its tab.
struct CampaignContent {
    ContentKind kind = ContentKind::Message;
    QLatin1StringView fromList{}; // the option that takes the texts from the list
    QLatin1StringView subject{};  // the fields of a single text; empty for a campaign without subject
    QLatin1StringView text{};
    QLatin1StringView acceptSubject{};     // the fields that an accept run sends in their place; empty for a
    QLatin1StringView acceptText{};        // campaign that no accept run borrows
    qint16 RunState::*listIndex = nullptr; // the line that was used last
    int linesBetween = 0;                  // lines that each step of the walk passes over
};

// What StopAll is told when the campaign ends; the first two of one with targets alone.
struct CampaignEnds {
    std::optional<StopReason> finished = std::nullopt; // all targets were gone through
    std::optional<StopReason> limitMet = std::nullopt; // the user's limit
    StopReason stopped = StopReason::WindowStop;       // its own Stop
};

// What was sent on a day: belongs to the account, and stands in the settings store.
struct DailyCounter {
    const char* key = "";
    const char* resetKey = ""; // where a new day writes its 0
    qint32 RunState::*count = nullptr;
    QLatin1StringView label{}; // empty for none
};

// What a campaign that posts by the clock waits by: an amount of posts, minutes between two of them.
struct CampaignTiming {
    Timer Timers::*timer = nullptr; // nullptr for a campaign that walks over targets
    QLatin1StringView from{};       // the fields of the interval
    QLatin1StringView to{};
    // What a "from" that is no number becomes at a minute's tick; at the start that is an hour.
    const char* fromAtTick = "60";
    bool tickRepairsAll = false;    // the amount too, and a "from" that is too long
    bool tellsEachMinute = false;   // in the status line, whatever else is running
    bool keepsPageOfLender = false; // the lender's page is loaded again; else its target is given up
    qint32 RunState::*elapsed = nullptr;
    qint32 RunState::*drawn = nullptr;
    QLatin1StringView busyLabel{};
    QLatin1StringView dueLabel{};
    const char* posted = "";   // "Bulletin successfully posted"
    const char* finished = ""; // "Finished posting bulletins"
    const char* noteFile = ""; // a post that is being sent is noted beside a log of that name
};

// The definition of a campaign: all that it differs in from the others, in a file of its own. Start, the walk
// over the targets, pause, limit, log, report and end are shared and read it. Texts are parts of the
// sentences that are shared.
struct Campaign {
    Activity activity; // its row among the activities
    // nullptr while it waits for its machine.
    void (*makeMachine)(Families&, App&) = nullptr;
    const char16_t* tab = u""; // caption of its tab

    // Start and stop. The start is: the checks, the question, the reset, the first step.
    const char* send = "";           // the button
    const char* startProcedure = ""; // of that button, in the error log
    const char* stop = "";           // the button; "" for none of its own
    const std::vector<StartCheck>& (*checks)() = nullptr;
    // Asks the user; false ends the start. nullptr asks nothing.
    bool (*mayStart)(App&, const Campaign&) = nullptr;
    // Before the checks, and between reset and first step; nullptr for nothing.
    void (*prepare)(App&) = nullptr;
    void (*onStart)(App&) = nullptr;
    qint16 firstStep = 0;
    void (*run)(App&) = nullptr;  // in the place of the first step, of one that has no steps
    bool stopsRunningOne = false; // a campaign that still runs is ended before the reset
    const char* startMark = "";   // in its trail, with the number of the mark; "" for none
    CampaignEnds reasons{};

    // What goes out; a friend request has no text of its own.
    const char* what = ""; // "friend requests"
    CampaignContent content{};

    // Counting.
    qint32 RunState::*session = nullptr;
    DailyCounter today{};
    // A send that is part of another activity and counts nothing; nullptr for none.
    bool (*isPartOfAnother)(const RunState&) = nullptr;
    QLatin1StringView sentLabel{};
    QLatin1StringView failedLabel{}; // empty, like the next, without targets
    QLatin1StringView skippedLabel{};
    const char* sentAtStart = ""; // its text at the start and
    const char* sentSoFar = "";   // after a send, up to the number; their case differs
    QLatin1StringView amount{};   // the limit; of a campaign without targets the number of posts
    QLatin1StringView period{};   // "this session" or "per day"; empty for a campaign without limit
    bool limitComesFirst = false; // tested before the count, so that a limit of N sends N + 1

    // Targets: the gathered list. A campaign without log has none.
    const char* log = "";            // the button
    const char* logFile = "";        // below the folder of the kind "Log"
    const char* whatLogRecords = ""; // "sent friend requests to"
    // What the report says of somebody who is noted beside the log without standing in it.
    const char* noteSays = "Quillmere ended while sending to this one; it may have been sent";
    QLatin1StringView checkLogBox{}; // empty: the log is always looked at
    // Ticked, an accept run looks at it whatever that one says; empty: never.
    QLatin1StringView acceptLogBox{};
    const char* reportButton = ""; // "" for none yet
    ReportKind report{};

    CampaignTiming timing{};

    QLatin1StringView Word() const { return activity.word; }
    bool HasTargets() const { return logFile[0] != 0; }
};

// One definition each.
extern const Campaign FriendRequests;
extern const Campaign Messages;
extern const Campaign Comments;
extern const Campaign Bulletins;
extern const Campaign StatusUpdates;

const std::vector<const Campaign*>& Campaigns();
// nullptr for a word that is no campaign.
const Campaign* FindCampaign(const QString& word);
// nullptr for a campaign without targets too.
const Campaign* FindTargetCampaign(const QString& word);

} // namespace qlm
