// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace qlm {

class Timer;

// Thrown out of a wait when the program is ending, so that every step on the stack is left at once. It passes
// through all traps, is no error, and ends where the message loop called the program.
class ProgramEnding {};

// The one place where timers and browser events wait for their turn. Both platforms own exactly one and feed
// it their own clock (milliseconds, monotonic). Nothing in it runs until Deliver() is called, and Deliver()
// is called by the pump alone; so a property read, a sleep or a page call can never run a handler.
//
// What fell due until the moment of the call is delivered in the order in which it fell due, equal times in
// the order in which they were set. A handler may pump: the nested Deliver() goes on with what is left. A
// timer never fires inside its own handler.
class MessageQueue {
public:
    explicit MessageQueue(std::function<qint64()> nowMs);

    void Post(std::function<void()> event);
    // Posts an event that falls due later, e.g. a simulated page's arrival. Returns a number for Cancel().
    quint64 PostAt(qint64 dueMs, std::function<void()> event);
    void Cancel(quint64 number);
    void Deliver();
    // When the next event or timer falls due; nothing when the queue is at rest. Timers inside their handler
    // don't count.
    std::optional<qint64> NextDueMs() const;
    qint64 NowMs() const { return m_nowMs(); }

    // A turn is the stretch between two moments at which something may have changed: the page's answers are
    // cached for one turn. Pumping, sleeping, clicking, writing and navigating end it.
    quint64 Turn() const { return m_turn; }
    void EndTurn() { ++m_turn; }

    // Called whenever the next due time may have moved, so that a real event loop can set its alarm clock.
    std::function<void()> onDueTimeChanged;

private:
    friend class Timer;
    struct Entry {
        qint64 dueMs;
        quint64 sequence;
        std::function<void()> event;
    };

    void Add(Timer* timer);
    void Remove(Timer* timer);
    void DueTimeChanged() const;
    bool DeliverNext(qint64 untilMs, quint64 beforeSequence);
    bool FireTimer(Timer* timer);

    std::function<qint64()> m_nowMs;
    std::vector<Entry> m_events;
    std::vector<Timer*> m_timers;
    quint64 m_nextSequence = 1;
    quint64 m_turn = 1;
};

// A periodic timer of the program, delivered by the pump. Its owner outlives it or destroys it; a stopped
// timer never fires. An interval of 0 means that it never fires, whether enabled or not.
class Timer {
public:
    Timer(MessageQueue& queue, int intervalMs, bool enabled, std::function<void()> handler = {});
    ~Timer();
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    void SetHandler(std::function<void()> handler) { m_handler = std::move(handler); }
    void SetEnabled(bool enabled);
    // Begins the interval anew when the timer is enabled.
    void SetInterval(int intervalMs);
    void Restart();
    bool Enabled() const { return m_enabled; }
    int Interval() const { return m_intervalMs; }

    // While it lives the timer fires even though its handler is on the stack: what that one runs is parked.
    class Anew {
    public:
        explicit Anew(Timer& timer) : m_timer(timer), m_wasInHandler(timer.m_inHandler) {
            timer.m_inHandler = false;
            timer.m_queue.DueTimeChanged();
        }
        ~Anew() { m_timer.m_inHandler = m_wasInHandler; }
        Anew(const Anew&) = delete;
        Anew& operator=(const Anew&) = delete;

    private:
        Timer& m_timer;
        const bool m_wasInHandler;
    };

private:
    friend class MessageQueue;
    void Arm();
    bool IsArmed() const { return m_enabled && m_intervalMs > 0; }

    MessageQueue& m_queue;
    std::function<void()> m_handler;
    int m_intervalMs;
    bool m_enabled;
    bool m_inHandler = false;
    qint64 m_dueMs = 0;
    quint64 m_sequence = 0;
    // Tells a running delivery that the timer was destroyed by its own handler.
    std::shared_ptr<bool> m_alive = std::make_shared<bool>(true);
};

} // namespace qlm
