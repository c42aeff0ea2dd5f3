// SPDX-License-Identifier: MIT
#include "RequestJudge.h"

namespace qlm::fire {

using namespace Qt::Literals::StringLiterals;

namespace {

// Without the program's own tests of the page, which may turn the message loop.
bool ShowsConfirmation(App& app) {
    const Document document = app.WebBrowser1().Document();
    return document && !document.Body().IsNull() && document.BodyText().contains(u"Request Sent!"_s);
}

} // namespace

// A turn after the page check has found the confirmation, the disk knows of it. What it has found on the
// older page is the button at first, which the user may press before the step has looked.
void RequestJudge::Watch(App& app, bool diskRefuses) {
    const RunState& state = app.state;
    // The note is tried once, as soon as the confirmation shows, which may be before the check has found it.
    if (diskRefuses && state.CurrentAction == u"FR"_s && ShowsConfirmation(app))
        m_refused = state.lngTargetNumber;
    const bool mayShow = state.CurrentAction == u"FR"_s && state.intFRStep == 8 && state.blnLinkFound &&
                         state.strLinkType == u"Text"_s;
    if (!mayShow || m_confirmed.contains(state.strCurrentID) || !ShowsConfirmation(app))
        return;
    if (std::exchange(m_confirming, state.lngTargetNumber) != state.lngTargetNumber ||
        m_refused == state.lngTargetNumber)
        return;
    ReadLog();
    Demand(m_logged.contains(state.strCurrentID) || IsNoted(state.strCurrentID),
           state.strCurrentID + u" is confirmed, and neither logged nor noted"_s);
    m_confirmed.insert(state.strCurrentID);
}

void RequestJudge::OnLogged(const QString& id) {
    Demand(m_asked.contains(id), id + u" is logged and was not asked"_s);
    m_unlogged.remove(id);
}

void RequestJudge::Excuse(const QString& why) {
    for (const QString& id : std::as_const(m_unlogged))
        Tell(id + u" is not logged: "_s + why);
    m_excused.unite(m_unlogged);
    m_unlogged.clear();
}

void RequestJudge::OnStart() {
    m_confirming = -1;
    m_refused = -1;
    m_limitPagesInARow = 0;
    m_skippedSeen = 0;
}

void RequestJudge::BeforeRequest(const QString& id, bool) {
    ReadLog();
    Demand(!m_logged.contains(id), id + u" is in the log and its request page was opened"_s);
    Demand(!m_confirmed.contains(id), id + u" was confirmed and its request page was opened again"_s);
    for (const QString& asked : std::as_const(m_unlogged))
        Demand(asked == id, asked + u" was asked, isn't in the log, and the next one is being asked"_s);
    m_visited.insert(id);
}

void RequestJudge::AfterRequest(const QString& id, const QStringList& journal, const QString& page) {
    for (const QString& line : journal) {
        Tell(u"site: "_s + line);
        const QString word = line.section(u' ', 0, 0);
        if (word == u"asked"_s) {
            Demand(!m_asked.contains(id), id + u" was asked twice"_s);
            m_asked.insert(id);
            m_unlogged.insert(id);
            if (m_plan.losesAnswer.contains(id))
                Excuse(u"the site's answer was lost"_s);
            if (m_plan.redirects.contains(id))
                Excuse(u"the site answered with its error page"_s);
            if (m_givenUp.contains(id))
                Excuse(u"the user gave up while it was on its way"_s);
            m_lastAsked = id;
        } else if (word == u"asked-again"_s) {
            ++m_askedAgain;
            Demand(m_excused.contains(id), id + u" was opened again although nothing came between"_s);
        }
    }
    m_givenUp.remove(id);
    const bool isLimit = page.contains(u"maximum limit of friend requests for the day"_s) ||
                         page.contains(u"their daily useage"_s) || page.contains(u"your daily useage"_s);
    m_limitPagesInARow = isLimit                             ? m_limitPagesInARow + 1
                         : page.contains(u"Request Sent!"_s) ? 0
                                                             : m_limitPagesInARow;
}

void RequestJudge::Look(App& app, int stored, bool diskRefuses) {
    ReadLog();
    CountStored(stored, diskRefuses);
    if (diskRefuses)
        Excuse(u"the disk refused the line"_s);
    const RunState& state = app.state;
    if (state.lngSkippedCount > m_skippedSeen)
        m_limitPagesInARow = 0;
    m_skippedSeen = state.lngSkippedCount;
    CheckCounters(app, stored);
}

void RequestJudge::OnMessage(App& app, const QString& text) {
    Tell(u"message: "_s + text);
    ReadLog();
    if (text == u"Your specified limit has been reached"_s) {
        CheckLimit(app);
        // Its answer came all the same.
        if (m_unlogged.isEmpty() && m_excused.contains(m_lastAsked) && !m_logged.contains(m_lastAsked))
            m_unlogged.insert(m_lastAsked);
        Demand(m_unlogged.size() == 1, u"%1 instead of one stand beyond the limit"_s.arg(m_unlogged.size()));
        for (const QString& id : std::as_const(m_unlogged))
            if (IsNoted(id)) // otherwise the disk has refused it
                m_confirmed.insert(id);
        Excuse(u"it met the user's limit"_s);
    } else if (text.startsWith(u"You have reached the maximum limit"_s)) {
        Demand(m_limitPagesInARow == 3, u"%1 limit pages in a row stopped the run"_s.arg(m_limitPagesInARow));
        m_limitPagesInARow = 0;
    }
    Demand(m_limitPagesInARow < 3, u"the site's third limit page did not stop the run"_s);
}

void RequestJudge::OnKill(int stored) {
    ++m_kills;
    ReadLog();
    const int missedBefore = m_missed;
    CountStored(stored, true);
    Demand(m_missed - missedBefore <= 1, u"a kill lost more than one line"_s);
    Demand(m_unlogged.size() <= 1, u"a kill found more than one request without a line"_s);
    Excuse(u"the program died in between"_s);
}

void RequestJudge::OnUserGivesUp(const QString& id) {
    ReadLog();
    m_visited.insert(id); // skipped before its page was opened, too
    m_givenUp.insert(id);
    Excuse(u"the user pressed Skip or Stop in between"_s);
}

void RequestJudge::OnLoan(const QString& id, bool isGivenUp) {
    ReadLog();
    if (isGivenUp)
        OnUserGivesUp(id);
    else
        Excuse(u"a bulletin took its page"_s);
}

void RequestJudge::OnEnd(App& app) {
    ReadLog();
    Demand(m_unlogged.isEmpty(), u"somebody was asked and is not logged at the end"_s);
    Demand(m_limitPagesInARow < 3, u"the site's third limit page did not stop the run"_s);
    CheckVisits();
    CheckReport(app);
}

} // namespace qlm::fire
