// SPDX-License-Identifier: MIT
#include "core/LongWait.h"

#include "core/App.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int SecondsUntilTold = 120;
constexpr auto Line = "lblWaitingFor"_L1;
} // namespace

LongWait::LongWait(App& app, const QString& what, const LongWait* around, const QString& help)
    : m_app(app), m_what(what), m_help(help), m_sinceMs(app.Pump().NowMs()), m_since(app.Pump().Now()) {
    if (!around || around->m_what != what)
        return;
    m_sinceMs = around->m_sinceMs;
    m_since = around->m_since;
}

// Another wait may have the line by now.
LongWait::~LongWait() {
    if (m_app.controls.Text(Line) == m_shown)
        m_app.controls.SetText(Line, {});
}

void LongWait::Tell() {
    // With nothing running there is nothing that a button could end.
    if ((m_app.state.CurrentAction.isEmpty() && m_help.isEmpty()) ||
        m_app.waiting.SecondsSince(m_sinceMs) < SecondsUntilTold)
        return;
    // Every turn comes by here; the words are put together anew only when another button helps.
    if (const QString help = Help(); m_shown.isEmpty() || !m_shown.endsWith(help))
        m_shown =
            u"Waiting since "_s + m_since.toString(u"hh:mm:ss"_s) + u" for "_s + m_what + u". "_s + help;
    if (m_app.controls.Text(Line) != m_shown)
        m_app.controls.SetText(Line, m_shown);
}

QString LongWait::Help() const {
    if (!m_help.isEmpty())
        return m_help;
    return m_app.waiting.skipHelps() ? u"Press Skip or Stop to go on without it."_s
                                     : u"Press Stop to go on without it."_s;
}

} // namespace qlm
