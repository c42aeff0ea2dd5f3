// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>

namespace qlm {

class App;
class LongWait;

// The waits of the steps: the message loop turns, with sleeps of 10 ms. Every turn may run timers, browser
// events and the user's clicks; throws ProgramEnding once the program is closing.
class Waiting {
public:
    explicit Waiting(App& app) : m_app(app) {}

    void Turn();
    void Pump();
    // Turns until more than the given whole seconds have gone by or the link check is held.
    void WaitSeconds(int seconds);
    // Turns while the condition holds, at most so many whole seconds. The condition is asked before each
    // turn. True when it stopped holding, false on the time-out.
    bool WaitWhile(const std::function<bool()>& condition, int limitSeconds);
    // Turns while the condition holds, however long that takes; the window tells of a long wait by these
    // words ("the next page").
    void WaitFor(const QString& what, const std::function<bool()>& condition);
    // Whole seconds that have passed since that reading of Pump::NowMs().
    qint64 SecondsSince(qint64 startMs) const;

private:
    App& m_app;
    const LongWait* m_innermost = nullptr;
};

} // namespace qlm
