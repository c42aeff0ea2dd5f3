// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;

// The two ticks that carry every page-driven activity: tmrCheckLinkLoaded decides whether the page is there,
// Timer1 does the next thing.
class ActionTick {
public:
    explicit ActionTick(App& app);

    // Waits for the document and runs the step routine of the activity. One-shot. Also called directly.
    void Timer1_Timer();
    // Asks the dispatcher for the expected element. Also called directly, on a top-level DocumentComplete.
    void tmrCheckLinkLoaded_Timer();

private:
    void CheckPage();
    void LogCheck(bool found);
    void StepIsReady();
    void CountBlankTick();
    void TellLongWait();

    App& m_app;
};

} // namespace qlm
