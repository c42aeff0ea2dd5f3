// SPDX-License-Identifier: MIT
#include "core/Waiting.h"

#include "core/App.h"
#include "core/LongWait.h"

#include <QScopedValueRollback>

namespace qlm {

void Waiting::Pump() {
    m_app.platform.Pump().PumpMessages();
    if (m_app.state.blnClosing)
        throw ProgramEnding();
}

void Waiting::Turn() {
    Pump();
    m_app.platform.Pump().Sleep(10);
}

qint64 Waiting::SecondsSince(qint64 startMs) const {
    return (m_app.platform.Pump().NowMs() - startMs) / 1000;
}

RunMark Waiting::Mark() const {
    return {m_app.state.lngRunNumber, m_app.state.lngTargetNumber};
}

bool Waiting::IsCurrent(const RunMark& mark) const {
    return mark.run == m_app.state.lngRunNumber && mark.target == m_app.state.lngTargetNumber;
}

void Waiting::LeaveUnlessCurrent(const RunMark& mark) const {
    if (!IsCurrent(mark))
        throw RunEnded();
}

void Waiting::OutdateSteps() {
    ++m_app.state.lngRunNumber;
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
