// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Pump.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <functional>

namespace qlm {

// The pump on Qt's event loop. While the program is idle, or while a dialog's own loop turns, an alarm clock
// delivers what falls due; during a sleep or a call into a page it is held, so that neither ever runs a
// handler.
class QtPump final : public QObject, public Pump {
    Q_OBJECT

public:
    // While one of these lives, nothing is delivered but by PumpMessages().
    class Hold {
    public:
        explicit Hold(QtPump& pump);
        ~Hold();
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;

    private:
        QtPump& m_pump;
    };

    // A rate above 1 lets the logic's time go by so many times faster than the wall's: its waits and timers
    // are shortened, what the engine and the network need is not.
    explicit QtPump(int clockRate = 1);

    void PumpMessages() override;
    void Sleep(int milliseconds) override;
    QDateTime Now() const override;
    MessageQueue& Queue() override { return m_queue; }

    // Instead of the machine's own wall clock.
    void SetWallClock(std::function<QDateTime()> clock) { m_wallClock = std::move(clock); }
    // Called at each turn that is asked for, before anything is delivered.
    std::function<void()> onPump;

    // Leaves the application's event loop as soon as no delivery is under way: waits that are still on the
    // stack come to their end first.
    void Quit();

private:
    void DeliverDue();
    void QuitIfIdle();
    void SetAlarm();
    void OnAlarm();

    const int m_clockRate;
    std::function<QDateTime()> m_wallClock;
    QElapsedTimer m_clock;
    MessageQueue m_queue;
    QTimer m_alarm;
    int m_holds = 0;
    int m_deliveries = 0;
    bool m_isQuitting = false;
};

} // namespace qlm
