// SPDX-License-Identifier: MIT
#pragma once

#include "core/RunState.h"

#include <vector>

namespace qlm {

class App;

// One row an activity: its word, its step, what runs the step, and its debug file. The tick, stop and resume
// walk the table in its order.
struct Activity {
    QLatin1StringView word;
    qint16 RunState::*step;    // nullptr for an activity without steps
    void (*stepRoutine)(App&); // nullptr when the tick runs nothing for it
    const char* debugFile;     // "" for none
    const char* stopMark;      // what StopAll writes before the reason; "" writes nothing
    bool resumable;            // ResumeNext runs the step routine
};

const std::vector<Activity>& Activities();
// nullptr for the empty word and unknown ones.
const Activity* FindActivity(const QString& word);

} // namespace qlm
