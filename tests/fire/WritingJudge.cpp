// SPDX-License-Identifier: MIT
#include "WritingJudge.h"

namespace qlm::fire {

using namespace Qt::Literals::StringLiterals;

void WritingJudge::OnLogged(const QString& id) {
    Demand(m_visited.contains(id), id + u" is logged and the page was never opened"_s);
    if (!m_pressed.contains(id))
        m_unpressed.insert(id);
    m_open.remove(id);
}

// Who has got it is known to the disk, whatever comes next.
void WritingJudge::CheckRemembered() const {
    for (const QString& id : m_open)
        Demand(IsNoted(id), id + u" has got it and is neither logged nor noted"_s);
}

// A press that the site may never hear of.
void WritingJudge::Excuse() {
    m_unpressed.clear();
}

void WritingJudge::BeforeRequest(const QString& id, bool isPost) {
    ReadLog();
    CheckRemembered();
    if (isPost) {
        Demand(IsRemembered(id), id + u" is being sent to, and neither logged nor noted"_s);
        m_pressed.insert(id);
        m_unpressed.remove(id);
        return;
    }
    for (const QString& other : std::as_const(m_unpressed))
        Demand(other == id, other + u" is logged, and the site has not heard of it"_s);
    // The page that answers may be loaded again by its address.
    if (std::exchange(m_current, id) == id)
        return;
    Demand(!m_logged.contains(id), id + u" is in the log and the page was opened"_s);
    Demand(!IsNoted(id), id + u" is noted and the page was opened"_s);
    m_visited.insert(id);
}

void WritingJudge::AfterRequest(const QString& id, const QStringList& journal, const QString&) {
    for (const QString& line : journal) {
        Tell(u"site: "_s + line);
        const QString word = line.section(u' ', 0, 0);
        if (word != u"messaged"_s && word != u"commented"_s)
            continue;
        Demand(!m_asked.contains(id), id + u" got it twice"_s);
        m_asked.insert(id);
        if (!m_logged.contains(id))
            m_open.insert(id);
    }
}

void WritingJudge::Look(App& app, int stored, bool diskRefuses) {
    ReadLog();
    CountStored(stored, diskRefuses);
    CheckCounters(app, stored);
}

void WritingJudge::OnMessage(App& app, const QString& text) {
    Tell(u"message: "_s + text);
    ReadLog();
    if (text != u"Your specified limit has been reached"_s)
        return;
    CheckLimit(app);
    // The end of the run cuts off what is still on its way.
    Excuse();
}

void WritingJudge::OnKill(int stored) {
    ++m_kills;
    ReadLog();
    const int missedBefore = m_missed;
    CountStored(stored, true);
    Demand(m_missed - missedBefore <= 1, u"a kill lost more than one line"_s);
    CheckRemembered();
    Excuse();
}

void WritingJudge::OnUserGivesUp(const QString& id) {
    ReadLog();
    m_visited.insert(id); // skipped before its page was opened, too
    Excuse();
}

void WritingJudge::OnLoan(const QString& id, bool isGivenUp) {
    if (isGivenUp)
        OnUserGivesUp(id);
    else
        Excuse();
}

void WritingJudge::OnEnd(App& app) {
    ReadLog();
    CheckRemembered();
    Demand(m_unpressed.isEmpty(), u"somebody is logged, and the site has not heard of it"_s);
    CheckVisits();
    CheckReport(app);
}

} // namespace qlm::fire
