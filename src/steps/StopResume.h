// SPDX-License-Identifier: MIT
#pragma once

#include "steps/StopReason.h"

namespace qlm {

class App;
struct Activity;

// Ending, resuming and skipping what runs.
class StopResume {
public:
    explicit StopResume(App& app) : m_app(app) {}

    // Ends any activity and resets all steps; goes on past errors.
    void StopAll(StopReason reason);
    // Re-enters the step routine of the running activity at its present step.
    void ResumeNext();
    // Abandons the current profile, or cuts a running delay short.
    void SkipProfile();
    // Whether SkipProfile would take the running activity on.
    bool SkipHelps() const;
    void PauseLinkCheck();
    void ResumeLinkCheck();
    // At the end of every activity: true when the program was set to exit now and the main window has been
    // unloaded.
    bool DoFinishedExit();
    // What a chain of accounts does when one of them has done its share: saves its entries and has the next
    // one logged in, which replaces the running activity. False without chaining.
    bool HandOverInChain();
    // Whatever runs goes on with the account in use alone.
    void EndChain();
    // Another activity begins: the chain is that of the campaign started last, unless it waits for its
    // minute.
    void EndChainOfOthers(QLatin1StringView word);

private:
    bool IsChainWaiting() const;
    // What waits for its minute ends as well, and whoever has lent the browser.
    void EndTimedPosts();
    void SkipTo(const Activity& activity);

    App& m_app;
};

} // namespace qlm
