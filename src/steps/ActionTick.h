// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <memory>

namespace qlm {

class App;
class LongWait;

// The two ticks that carry every page-driven activity: tmrCheckLinkLoaded decides whether the page is there,
// Timer1 does the next thing.
class ActionTick {
public:
    explicit ActionTick(App& app);
    ~ActionTick();

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
    QString AwaitedInWords() const;

    App& m_app;
    std::unique_ptr<LongWait> m_wait;
};

} // namespace qlm
