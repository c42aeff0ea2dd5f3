// SPDX-License-Identifier: MIT
#pragma once

#include "core/RunState.h"

#include <QString>
#include <vector>

namespace qlm {

// What the five campaigns differ in, one row each. Texts are parts of the sentences that they share. The
// first three walk the gathered list; the others have no targets, and what belongs to those is empty.
struct Campaign {
    QLatin1StringView word; // of CurrentAction

    // Start and stop.
    const char* send; // the button
    const char* stop; // the button; "" for none of its own
    const char* log;  // the button; "" for a campaign without log
    const char* startProcedure;
    const char* stopReason;
    qint16 firstStep;
    bool stopsRunningOne; // a campaign that still runs is ended before the reset

    // Counting.
    qint32 RunState::*session;
    qint32 RunState::*daily;
    QLatin1StringView sentLabel;
    const char* sentAtStart;  // its text at the start and
    const char* sentSoFar;    // behind a send, up to the number; their case differs
    QLatin1StringView amount; // the limit; of a campaign without targets the number of posts
    QLatin1StringView period; // "this session" or "per day"
    const char* limitReason;  // trace word of the stop at the limit

    // Targets.
    const char* what;              // "friend requests"
    const char* logFile;           // below the folder of the kind "Log"
    const char* whatLogRecords;    // "sent friend requests to"
    QLatin1StringView checkLogBox; // empty: the log is always looked at
    const char* traceWord;         // that StopAll gets at the end of a run
    bool endClearsChain;

    bool HasTargets() const { return logFile[0] != 0; }
};

const std::vector<Campaign>& Campaigns();
// nullptr for a word that is no campaign.
const Campaign* FindCampaign(const QString& word);
// nullptr for a campaign without targets too.
const Campaign* FindTargetCampaign(const QString& word);

} // namespace qlm
