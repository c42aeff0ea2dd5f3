// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

// What the campaigns over targets differ in, one row each. Texts are parts of the sentences that they all
// share.
struct Campaign {
    QLatin1StringView word;     // of CurrentAction
    const char* what;           // "friend requests"
    const char* logFile;        // below the folder of the kind "Log"
    const char* traceWord;      // that StopAll gets at the end of a run
    const char* whatLogRecords; // "sent friend requests to"
};

// nullptr for a word that is no campaign over targets.
const Campaign* FindCampaign(const QString& word);

} // namespace qlm
