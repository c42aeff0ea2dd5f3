// SPDX-License-Identifier: MIT
#pragma once

#include "core/ActivitySet.h"
#include "core/RunState.h"

#include <optional>
#include <vector>

namespace qlm {

class App;

// One row an activity: whatever differs between what the program can be busy with stands here. The ticks,
// stop, resume, skip and the judge of pages walk the table in its order.
struct Activity {
    QLatin1StringView word;              // of CurrentAction
    qint16 RunState::*step = nullptr;    // nullptr for an activity without steps
    void (*stepRoutine)(App&) = nullptr; // nullptr when the tick runs nothing for it
    const char* debugFile = "";          // "" for none
    const char* stopMark = "";           // what StopAll writes before the reason; "" writes nothing
    bool resumable = false;              // ResumeNext runs the step routine
    bool worksOnList = false;            // fills or walks over the gathered list, which nobody else touches
    // What the trail says of each check of the page, and whether also of one that found what was expected.
    const char* checkMark = "checking...";
    bool tracesFound = false;
    bool sends = false; // to one person after the other
    // Says that the browser is lent to a post that fell due; nullptr for an activity that doesn't lend it.
    bool RunState::*lent = nullptr;
    // The step that takes up the next target; while it stands there nothing has been asked for that one.
    qint16 nextTarget = 0;
    // What the page of the present target was opened for has been done: it need not come again. nullptr:
    // that can't be told.
    bool (*isDone)(App&) = nullptr;
    // Says that it waits for its next post, and that the browser is free; nullptr for one that never waits so.
    bool RunState::*waits = nullptr;
    bool tracesPageClasses = false; // whatever page the classifier knows is noted in the debug file
    // The step after the one that sends, for Skip; 0 where the step goes on as it stands, nothing where
    // there is no target to skip.
    std::optional<qint16> stepAfterSkip = std::nullopt;
    // A page that the classifier knows as an error came instead of the awaited one. nullptr: it is left
    // alone.
    void (*onErrorPage)(App&) = nullptr;
    // The site confirms what was sent. nullptr: nothing is to be noted.
    void (*onConfirmed)(App&) = nullptr;
    // The session was lost, and the account is signed in again. nullptr: the target is passed over.
    void (*onSignedInAgain)(App&) = nullptr;
};

// All of them; the program's own list, since it names every family.
const std::vector<Activity>& Activities();
// nullptr for the empty word and unknown ones.
const Activity* FindActivity(const QString& word);
// The row of the running activity; nullptr when none runs.
const Activity* RunningActivity(const App& app);
// Whether one of the activities runs, at one of the steps; without steps at whichever.
bool IsRunning(const App& app, const ActivitySet& activities, const std::vector<qint16>& steps = {});
// The debug file of that activity; empty when it has none.
QString TrailOf(const QString& word);
// What the running activity notes when the site confirms what was sent.
void NoteConfirmation(App& app);
// "MARK: " and the class of the error page into the trail of the running activity.
void TraceErrorPage(App& app, const QString& mark);

} // namespace qlm
