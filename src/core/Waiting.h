// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <exception>
#include <functional>

namespace qlm {

class App;
class LongWait;

// What a step has to find unchanged behind a wait: no stop and no start, and no other target, meanwhile.
struct RunMark {
    qint32 run = 0;
    qint32 target = 0;
};

// Thrown by a step that finds its run or its target gone, so that nothing more is done for it. It is no
// error: traps end there and tell nobody.
class RunEnded : public std::exception {
public:
    const char* what() const noexcept override { return "the run has ended"; }
};

// The waits of the steps: the message loop turns, with sleeps of 10 ms. Every turn may run timers, browser
// events and the user's clicks; throws ProgramEnding once the program is closing.
class Waiting {
public:
    explicit Waiting(App& app) : m_app(app) {}

    void Turn();
    void Pump();
    // Taken before a wait; behind it IsCurrent() tells whether the step may go on.
    RunMark Mark() const;
    bool IsCurrent(const RunMark& mark) const;
    void LeaveUnlessCurrent(const RunMark& mark) const; // throws RunEnded
    // Whatever waits is obsolete from here on: its mark is none any more, and the page may move again.
    void OutdateSteps();
    // Turns until more than the given whole seconds have gone by, the link check is held, or the step is
    // obsolete.
    void WaitSeconds(int seconds);
    // Turns while the condition holds, at most so many whole seconds. The condition is asked before each
    // turn. True when it stopped holding, false on the time-out.
    bool WaitWhile(const std::function<bool()>& condition, int limitSeconds);
    // Turns while the condition holds, however long that takes; the window tells of a long wait by these
    // words ("the next page"). help says what ends a wait that isn't a run's: without it Skip and Stop are
    // named, and nothing is told while nothing runs.
    void WaitFor(const QString& what, const std::function<bool()>& condition, const QString& help = {});
    // Whether Skip would take the running activity on. Set by what knows the activities.
    std::function<bool()> skipHelps;
    // Whole seconds that have passed since that reading of Pump::NowMs().
    qint64 SecondsSince(qint64 startMs) const;

private:
    App& m_app;
    const LongWait* m_innermost = nullptr;
};

} // namespace qlm
