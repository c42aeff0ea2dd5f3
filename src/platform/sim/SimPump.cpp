// SPDX-License-Identifier: MIT
#include "platform/sim/SimPump.h"

#include <algorithm>

namespace qlm {

SimPump::SimPump(VirtualClock& clock) : m_clock(clock), m_queue([&clock] { return clock.NowMs(); }) {}

void SimPump::PumpMessages() {
    if (onPump)
        onPump();
    const std::optional<qint64> nextDueMs = m_queue.NextDueMs();
    const bool isIdle = !nextDueMs || *nextDueMs > m_clock.NowMs();
    // A wait that pumps without sleeping would otherwise stand still for ever.
    if (isIdle && !m_sleptSinceLastTurn)
        m_clock.Advance(1);
    m_sleptSinceLastTurn = false;
    m_queue.Deliver();
    m_queue.EndTurn();
}

void SimPump::Sleep(int milliseconds) {
    m_clock.Advance(milliseconds);
    m_sleptSinceLastTurn = true;
    m_queue.EndTurn();
}

bool SimPump::RunUntil(const std::function<bool()>& predicate, qint64 limitMs) {
    const qint64 endMs = m_clock.NowMs() + limitMs;
    while (!predicate()) {
        const std::optional<qint64> nextDueMs = m_queue.NextDueMs();
        if (!nextDueMs)
            return false;
        if (*nextDueMs > endMs) {
            m_clock.Advance(std::max<qint64>(0, endMs - m_clock.NowMs()));
            return false;
        }
        m_clock.Advance(std::max<qint64>(0, *nextDueMs - m_clock.NowMs()));
        m_sleptSinceLastTurn = true;
        PumpMessages();
    }
    return true;
}

void SimPump::RunFor(qint64 milliseconds) {
    const qint64 endMs = m_clock.NowMs() + milliseconds;
    auto isLate = [&] { return m_queue.NextDueMs().value_or(endMs + 1) > endMs; };
    RunUntil(isLate, milliseconds);
    m_clock.Advance(std::max<qint64>(0, endMs - m_clock.NowMs()));
    m_queue.EndTurn();
}

} // namespace qlm
