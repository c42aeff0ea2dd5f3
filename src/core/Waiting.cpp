// SPDX-License-Identifier: MIT
#include "core/Waiting.h"

#include "core/App.h"

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

void Waiting::WaitSeconds(int seconds) {
    const qint64 startMs = m_app.platform.Pump().NowMs();
    while (SecondsSince(startMs) <= seconds && !m_app.state.blnHoldLinkCheck)
        Turn();
}

bool Waiting::WaitWhile(const std::function<bool()>& condition, int limitSeconds) {
    const qint64 startMs = m_app.platform.Pump().NowMs();
    while (condition()) {
        if (limitSeconds > 0 && SecondsSince(startMs) >= limitSeconds)
            return false;
        Turn();
    }
    return true;
}

} // namespace qlm
