// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <exception>
#include <functional>
#include <optional>

namespace qlm {

class App;
class LongWait;

// What a step has to find unchanged after a wait: no stop and no start, no other target, and no later entry
// into a machine, meanwhile.
struct RunMark {
    qint32 run = 0;
    qint32 target = 0;
    qint32 entry = 0;
    bool operator==(const RunMark&) const = default;
};

// Thrown by a wait that comes back to a run that is no longer its own, so that nothing more is done for it.
// It is no error, and ends at the edge of the machine, or at the trap of who waits without one.
class RunEnded : public std::exception {
public:
    const char* what() const noexcept override { return "the run has ended"; }
};

// The waits of the steps: the message loop turns, with sleeps of 10 ms. Every turn may run timers, browser
// events and the user's clicks; throws ProgramEnding once the program is closing.
class Waiting {
public:
    explicit Waiting(App& app) : m_app(app) {}

    // Until it goes, every wait of its procedure throws RunEnded when it comes back to another mark. What the
    // turns of a wait deliver has nothing to do with it.
    class Scope {
    public:
        ~Scope() { m_waiting.m_owned = m_around; }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;
        bool IsCurrent() const;

    protected:
        Scope(Waiting& waiting, std::optional<RunMark> owned);

    private:
        Waiting& m_waiting;
        const std::optional<RunMark> m_around;
    };
    // The steps of a machine: an earlier entry that still waits is obsolete.
    struct Entry : Scope {
        explicit Entry(Waiting& waiting) : Scope(waiting, waiting.NextEntry()) {}
    };
    // Whatever else belongs to the present run.
    struct Owned : Scope {
        explicit Owned(Waiting& waiting) : Scope(waiting, waiting.Mark()) {}
    };
    // Outlives its run, for what has to come to its end whatever happens. LeaveIfObsolete() after it.
    struct Unowned : Scope {
        explicit Unowned(Waiting& waiting) : Scope(waiting, std::nullopt) {}
    };
    // The edge of a machine: whoever leaves a run that has ended comes out here.
    template <typename Body> static void LeaveHere(Body&& body) {
        try {
            body();
        } catch (const RunEnded&) {
            return;
        }
    }
    bool IsOwned() const { return m_owned.has_value(); }
    void LeaveIfObsolete() const; // throws RunEnded
    // The step itself has taken up the next target.
    void OwnTarget();

    void Turn();
    void Pump();
    // Taken before a wait; after it IsCurrent() tells whether the step may go on.
    RunMark Mark() const;
    bool IsCurrent(const RunMark& mark) const;
    void LeaveUnlessCurrent(const RunMark& mark) const; // throws RunEnded
    // Whatever waits is obsolete from here on: its mark is none any more, and the page may move again.
    void OutdateSteps();
    // The present run is lent out: until Readmit() its waits neither come back nor end. OutdateSteps() ends
    // them.
    void Park();
    // What has been parked goes on, and belongs to the present run.
    void Readmit();
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
    RunMark NextEntry();
    bool IsParked() const { return m_owned && m_parked && *m_owned == m_parked->was; }
    void WaitUntilReadmitted();
    void Deliver();

    App& m_app;
    // A mark that is lent out, and since its return what it stands for.
    struct Parked {
        RunMark was;
        std::optional<RunMark> is{};
    };
    std::optional<RunMark> m_owned; // by the innermost scope
    std::optional<Parked> m_parked;
    const LongWait* m_innermost = nullptr;
};

} // namespace qlm
