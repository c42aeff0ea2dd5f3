// SPDX-License-Identifier: MIT
#include "core/Waiting.h"

#include "core/App.h"
#include "core/LongWait.h"

#include <QScopedValueRollback>
#include <utility>

namespace qlm {

Waiting::Scope::Scope(Waiting& waiting, std::optional<RunMark> owned)
    : m_waiting(waiting), m_around(std::exchange(waiting.m_owned, owned)) {}

bool Waiting::Scope::IsCurrent() const {
    return m_waiting.m_owned && m_waiting.IsCurrent(*m_waiting.m_owned);
}

RunMark Waiting::NextEntry() {
    ++m_app.state.lngEntryNumber;
    return Mark();
}

void Waiting::LeaveIfObsolete() const {
    if (m_owned)
        LeaveUnlessCurrent(*m_owned);
}

void Waiting::OwnTarget() {
    if (m_owned)
        m_owned = Mark();
}

void Waiting::Deliver() {
    {
        const Unowned handlers(*this);
        m_app.platform.Pump().PumpMessages();
    }
    if (m_app.state.blnClosing)
        throw ProgramEnding();
}

void Waiting::Pump() {
    Deliver();
    if (IsParked())
        WaitUntilReadmitted();
    LeaveIfObsolete();
}

// The ticks are the borrower's now, whichever of them the parked step was entered by.
void Waiting::WaitUntilReadmitted() {
    const Timer::Anew step(m_app.timers->Timer1);
    const Timer::Anew check(m_app.timers->tmrCheckLinkLoaded);
    while (IsParked() && !m_parked->is) {
        m_app.platform.Pump().Sleep(10);
        Deliver();
    }
}

void Waiting::Turn() {
    Pump();
    m_app.platform.Pump().Sleep(10);
}

qint64 Waiting::SecondsSince(qint64 startMs) const {
    return (m_app.platform.Pump().NowMs() - startMs) / 1000;
}

RunMark Waiting::Mark() const {
    return {m_app.state.lngRunNumber, m_app.state.lngTargetNumber, m_app.state.lngEntryNumber};
}

bool Waiting::IsCurrent(const RunMark& mark) const {
    return mark == Mark() || (m_parked && m_parked->was == mark && m_parked->is == Mark());
}

void Waiting::Park() {
    const RunMark mark = Mark();
    OutdateSteps();
    m_parked = {mark};
}

void Waiting::Readmit() {
    const std::optional<Parked> parked = m_parked;
    OutdateSteps();
    if (parked)
        m_parked = {parked->was, Mark()};
}

void Waiting::LeaveUnlessCurrent(const RunMark& mark) const {
    if (!IsCurrent(mark))
        throw RunEnded();
}

void Waiting::OutdateSteps() {
    ++m_app.state.lngRunNumber;
    m_parked.reset();
    m_app.state.intBlankTicks = 0;
    m_app.WebBrowser1().EndRefusals();
}

void Waiting::WaitSeconds(int seconds) {
    const RunMark mark = Mark();
    const qint64 startMs = m_app.platform.Pump().NowMs();
    while (SecondsSince(startMs) <= seconds && !m_app.state.blnHoldLinkCheck && IsCurrent(mark))
        Turn();
}

bool Waiting::WaitWhile(const std::function<bool()>& condition, int limitSeconds) {
    const qint64 startMs = m_app.platform.Pump().NowMs();
    while (condition()) {
        if (SecondsSince(startMs) >= limitSeconds)
            return false;
        Turn();
    }
    return true;
}

void Waiting::WaitFor(const QString& what, const std::function<bool()>& condition, const QString& help) {
    if (!condition())
        return;
    LongWait wait(m_app, what, m_innermost, help);
    const QScopedValueRollback<const LongWait*> innermost(m_innermost, &wait);
    do {
        wait.Tell();
        Turn();
    } while (condition());
}

} // namespace qlm
