// SPDX-License-Identifier: MIT
#include "platform/MessageQueue.h"

#include <algorithm>
#include <tuple>

namespace qlm {

namespace {

void Run(const std::function<void()>& handler) {
    try {
        if (handler)
            handler();
    } catch (const ProgramEnding&) {
        // The step has been left; whoever waits further down finds out that the program is closing.
        return;
    }
}

} // namespace

MessageQueue::MessageQueue(std::function<qint64()> nowMs) : m_nowMs(std::move(nowMs)) {}

void MessageQueue::Post(std::function<void()> event) {
    PostAt(m_nowMs(), std::move(event));
}

quint64 MessageQueue::PostAt(qint64 dueMs, std::function<void()> event) {
    const quint64 number = m_nextSequence++;
    m_events.push_back({dueMs, number, std::move(event)});
    DueTimeChanged();
    return number;
}

void MessageQueue::Cancel(quint64 number) {
    std::erase_if(m_events, [number](const Entry& entry) { return entry.sequence == number; });
    DueTimeChanged();
}

void MessageQueue::Deliver() {
    const qint64 untilMs = m_nowMs();
    const quint64 beforeSequence = m_nextSequence;
    // The first handler too must find the page as it is now.
    EndTurn();
    while (DeliverNext(untilMs, beforeSequence))
        EndTurn();
}

// What a handler posts while it runs waits for the next delivery, so that a handler that re-posts itself
// cannot keep the pump from returning.
bool MessageQueue::DeliverNext(qint64 untilMs, quint64 beforeSequence) {
    auto isDue = [&](qint64 dueMs, quint64 sequence) {
        return dueMs <= untilMs && sequence < beforeSequence;
    };
    auto order = [](qint64 dueMs, quint64 sequence) { return std::tuple(dueMs, sequence); };

    auto event = m_events.end();
    for (auto it = m_events.begin(); it != m_events.end(); ++it)
        if (isDue(it->dueMs, it->sequence) &&
            (event == m_events.end() ||
             order(it->dueMs, it->sequence) < order(event->dueMs, event->sequence)))
            event = it;

    Timer* timer = nullptr;
    for (Timer* candidate : m_timers)
        if (candidate->IsArmed() && !candidate->m_inHandler &&
            isDue(candidate->m_dueMs, candidate->m_sequence) &&
            (!timer ||
             order(candidate->m_dueMs, candidate->m_sequence) < order(timer->m_dueMs, timer->m_sequence)))
            timer = candidate;

    const bool timerIsFirst = timer && (event == m_events.end() || order(timer->m_dueMs, timer->m_sequence) <
                                                                       order(event->dueMs, event->sequence));
    if (timerIsFirst)
        return FireTimer(timer);
    if (event == m_events.end())
        return false;
    const std::function<void()> run = std::move(event->event);
    m_events.erase(event);
    // A handler may bring up a dialog, whose loop needs the alarm clock set for what is left.
    DueTimeChanged();
    Run(run);
    return true;
}

bool MessageQueue::FireTimer(Timer* timer) {
    timer->Arm();
    timer->m_inHandler = true;
    const std::shared_ptr<bool> alive = timer->m_alive;
    struct Leave {
        Timer* timer;
        const std::shared_ptr<bool>& alive;
        ~Leave() {
            if (!*alive)
                return;
            timer->m_inHandler = false;
            // What fell due during a long handler is swallowed; the interval begins anew.
            if (timer->m_dueMs <= timer->m_queue.NowMs())
                timer->Arm();
            timer->m_queue.DueTimeChanged();
        }
    } leave{timer, alive};
    const std::function<void()> handler = timer->m_handler;
    Run(handler);
    return true;
}

std::optional<qint64> MessageQueue::NextDueMs() const {
    std::optional<qint64> next;
    auto consider = [&next](qint64 dueMs) {
        if (!next || dueMs < *next)
            next = dueMs;
    };
    for (const Entry& entry : m_events)
        consider(entry.dueMs);
    for (const Timer* timer : m_timers)
        if (timer->IsArmed() && !timer->m_inHandler)
            consider(timer->m_dueMs);
    return next;
}

void MessageQueue::Add(Timer* timer) {
    m_timers.push_back(timer);
}

void MessageQueue::Remove(Timer* timer) {
    std::erase(m_timers, timer);
}

void MessageQueue::DueTimeChanged() const {
    if (onDueTimeChanged)
        onDueTimeChanged();
}

Timer::Timer(MessageQueue& queue, int intervalMs, bool enabled, std::function<void()> handler)
    : m_queue(queue), m_handler(std::move(handler)), m_intervalMs(intervalMs), m_enabled(enabled) {
    m_queue.Add(this);
    Arm();
}

Timer::~Timer() {
    *m_alive = false;
    m_queue.Remove(this);
}

void Timer::SetEnabled(bool enabled) {
    if (enabled && !m_enabled) {
        m_enabled = true;
        Arm();
    }
    m_enabled = enabled;
    m_queue.DueTimeChanged();
}

void Timer::SetInterval(int intervalMs) {
    m_intervalMs = intervalMs;
    Arm();
}

void Timer::Restart() {
    m_enabled = true;
    Arm();
}

void Timer::Arm() {
    m_dueMs = m_queue.NowMs() + m_intervalMs;
    m_sequence = m_queue.m_nextSequence++;
    m_queue.DueTimeChanged();
}

} // namespace qlm
