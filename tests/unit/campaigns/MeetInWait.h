// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sim/SimPlatform.h"

namespace qlm {

// Lets something arrive in a wait, as a message of its own, once what tells of the wait has held for so long
// without a break. False when that never was, or when the wait went on after it.
inline bool MeetInWait(SimPump& pump, const std::function<bool()>& stands, int standsMs,
                       const std::function<void()>& act) {
    constexpr int LongestMs = 600'000;
    const qint64 startMs = pump.Queue().NowMs();
    qint64 sinceMs = startMs;
    qint64 actedMs = -1;
    pump.onPump = [&] {
        const qint64 nowMs = pump.Queue().NowMs();
        if (nowMs - startMs > LongestMs)
            throw SimPowerCut(); // nothing else leaves every wait
        if (!stands())
            sinceMs = nowMs;
        if (actedMs >= 0 || nowMs - sinceMs < standsMs)
            return;
        actedMs = nowMs;
        pump.Queue().Post(act);
    };
    try {
        pump.RunUntil([&actedMs] { return actedMs >= 0; }, LongestMs);
    } catch (const SimPowerCut&) {
        actedMs = -1;
    }
    pump.onPump = {};
    return actedMs >= 0 && pump.Queue().NowMs() - actedMs < 100;
}

} // namespace qlm
