// SPDX-License-Identifier: MIT
#pragma once

#include "guided/PracticeControls.h"
#include "platform/qt/PracticeServer.h"

#include <QSet>

namespace qlm {

// The practice site as a process of the test's own, which outlives every program that works with it.
class SiteProcess {
public:
    // Everybody can be asked, and page visits are kept in the journal.
    SiteProcess();

    quint16 Port() const { return m_server.Port(); }
    void Tell(const QString& line) { m_controls.Tell(line); }
    QStringList Journal() { return m_controls.Journal(); }
    QStringList TakeJournal() { return m_controls.TakeJournal(); }

private:
    PracticeServer m_server;
    PracticeControls m_controls;
};

// The third word of the journal's lines that begin with the word: who was "asked", who "asked-again".
QStringList TargetsOf(const QStringList& journal, const QString& word);
// Whose request page was visited, in either design.
QSet<QString> VisitedTargets(const QStringList& journal);
// The address of somebody's request page as the site's controls want it; nobody else's begins like it.
QString RequestPage(const QString& id);

} // namespace qlm
