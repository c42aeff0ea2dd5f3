// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Pump.h"

#include <functional>

namespace qlm {

// The time of a test. It moves only when somebody sleeps or the loop is idle. Monotonic milliseconds and the
// wall clock advance together; the wall clock alone can be set.
class VirtualClock {
public:
    qint64 NowMs() const { return m_nowMs; }
    QDateTime Now() const {
        const QDateTime wall = m_wallAtZero.addMSecs(m_nowMs);
        return QDateTime(wall.date(), wall.time());
    }
    void SetNow(const QDateTime& now) {
        m_wallAtZero = QDateTime(now.date(), now.time(), Qt::UTC).addMSecs(-m_nowMs);
    }
    void Advance(qint64 milliseconds) { m_nowMs += milliseconds; }

private:
    qint64 m_nowMs = 0;
    // Counted in UTC and shown as local time, so that no clock change of the test machine skips an hour.
    QDateTime m_wallAtZero = QDateTime(QDate(2009, 6, 1), QTime(10, 0), Qt::UTC);
};

// The message loop of tests. Each turn delivers what is due on the virtual clock; a loop that only pumps
// still sees time pass, one millisecond a turn that had nothing to do.
class SimPump : public Pump {
public:
    explicit SimPump(VirtualClock& clock);

    void PumpMessages() override;
    void Sleep(int milliseconds) override;
    QDateTime Now() const override { return m_clock.Now(); }
    MessageQueue& Queue() override { return m_queue; }

    // The message loop of an idle program: goes from one due entry to the next until the predicate holds
    // (true), or until the limit has passed or nothing is left to come (then what the predicate says).
    bool RunUntil(const std::function<bool()>& predicate, qint64 limitMs);
    // Lets exactly that much time pass, delivering all that falls due.
    void RunFor(qint64 milliseconds);

    // Called at each turn before anything is delivered: a test looks in, or acts, in the middle of a wait.
    std::function<void()> onPump;

private:
    VirtualClock& m_clock;
    MessageQueue m_queue;
    bool m_sleptSinceLastTurn = true;
};

} // namespace qlm
