// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MessageQueue.h"

#include <QDateTime>

namespace qlm {

// The message loop as the program's waits see it. All time of the logic comes from here.
class Pump {
public:
    virtual ~Pump() = default;

    // Lets the user's input, timers and browser events in that are due now, then returns. Handlers run inside
    // this call, so the caller must assume that any state has changed.
    virtual void PumpMessages() = 0;

    // Lets the given time pass. No handler runs: what falls due meanwhile waits for the next PumpMessages().
    virtual void Sleep(int milliseconds) = 0;

    // Local wall clock.
    virtual QDateTime Now() const = 0;

    virtual MessageQueue& Queue() = 0;

    // Monotonic milliseconds, the clock of the queue and of every measured wait.
    qint64 NowMs() { return Queue().NowMs(); }
};

} // namespace qlm
