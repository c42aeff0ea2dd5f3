// SPDX-License-Identifier: MIT
#include "gather/StandingPage.h"

#include "core/App.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int SecondsUnchanged = 20;
constexpr int LookEveryMs = 1000;
} // namespace

void StandingPage::Begin() {
    m_left.clear();
    m_seen.clear();
    m_sinceMs = m_lookedMs = m_app.Pump().NowMs();
}

void StandingPage::Leave() {
    Begin();
    Diagnostics::IgnoreErrors([this] { m_left = Look(); });
}

// Address and markup together; empty for a page that isn't all there.
QString StandingPage::Look() const {
    const QString address = m_app.WebBrowser1().LocationURL();
    if (address == u"about:blank"_s || m_app.WebBrowser1().ReadyState() != 4)
        return {};
    return address + u'\n' + m_app.WebBrowser1().Document().BodyHTML();
}

bool StandingPage::Stands() {
    const qint64 nowMs = m_app.Pump().NowMs();
    if (nowMs - m_lookedMs < LookEveryMs)
        return false;
    m_lookedMs = nowMs;
    const QString seen = Look();
    if (seen.isEmpty() || seen == m_left || seen != m_seen) {
        m_seen = seen;
        m_sinceMs = nowMs;
        return false;
    }
    return m_app.waiting.SecondsSince(m_sinceMs) >= SecondsUnchanged;
}

} // namespace qlm
