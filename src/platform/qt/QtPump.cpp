// SPDX-License-Identifier: MIT
#include "platform/qt/QtPump.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <algorithm>

namespace qlm {

namespace {

struct Counted {
    explicit Counted(int& counter) : m_counter(counter) { ++m_counter; }
    ~Counted() { --m_counter; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

private:
    int& m_counter;
};

} // namespace

QtPump::Hold::Hold(QtPump& pump) : m_pump(pump) {
    ++m_pump.m_holds;
}

QtPump::Hold::~Hold() {
    if (--m_pump.m_holds == 0)
        m_pump.SetAlarm();
}

QtPump::QtPump(int clockRate)
    : m_clockRate(clockRate), m_queue([this] { return m_clock.elapsed() * m_clockRate; }) {
    m_clock.start();
    m_alarm.setSingleShot(true);
    m_alarm.setTimerType(Qt::PreciseTimer);
    connect(&m_alarm, &QTimer::timeout, this, &QtPump::OnAlarm);
    m_queue.onDueTimeChanged = [this] { SetAlarm(); };
}

void QtPump::PumpMessages() {
    if (onPump)
        onPump();
    {
        const Counted delivery(m_deliveries);
        QCoreApplication::processEvents();
        DeliverDue();
    }
    QuitIfIdle();
}

void QtPump::DeliverDue() {
    m_queue.EndTurn();
    m_queue.Deliver();
    m_queue.EndTurn();
}

void QtPump::Quit() {
    m_isQuitting = true;
    QMetaObject::invokeMethod(this, &QtPump::QuitIfIdle, Qt::QueuedConnection);
}

// A loop that is told to exit takes every nested one with it, and none can be entered afterwards.
void QtPump::QuitIfIdle() {
    if (m_isQuitting && m_deliveries == 0 && m_holds == 0)
        QCoreApplication::exit();
}

// The engine lives on this thread's event loop: a thread that really slept would starve it.
void QtPump::Sleep(int milliseconds) {
    const Hold hold(*this);
    QEventLoop loop;
    QTimer::singleShot(std::max(milliseconds, 0) / m_clockRate, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    m_queue.EndTurn();
}

QDateTime QtPump::Now() const {
    return m_wallClock ? m_wallClock() : QDateTime::currentDateTime();
}

void QtPump::SetAlarm() {
    if (m_holds > 0)
        return;
    const std::optional<qint64> due = m_queue.NextDueMs();
    if (!due) {
        m_alarm.stop();
        return;
    }
    constexpr qint64 longestMs = 60 * 60 * 1000;
    const qint64 wallMs = (*due - m_queue.NowMs() + m_clockRate - 1) / m_clockRate;
    m_alarm.start(static_cast<int>(std::clamp(wallMs, qint64(0), longestMs)));
}

void QtPump::OnAlarm() {
    if (m_holds > 0)
        return;
    // Before the handlers, one of which may bring up a modal form: its loop has to deliver what is left.
    SetAlarm();
    {
        const Counted delivery(m_deliveries);
        DeliverDue();
    }
    SetAlarm();
    QuitIfIdle();
}

} // namespace qlm
