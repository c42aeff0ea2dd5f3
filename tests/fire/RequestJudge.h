// SPDX-License-Identifier: MIT
#pragma once

#include "Judge.h"

namespace qlm::fire {

// Friend requests: the page is the request, and its confirmation the log line.
class RequestJudge : public Judge {
public:
    using Judge::Judge;

    void OnStart() override;
    void BeforeRequest(const QString& id, bool isPost) override;
    void AfterRequest(const QString& id, const QStringList& journal, const QString& page) override;
    void Look(App& app, int stored, bool diskRefuses) override;
    void Watch(App& app, bool diskRefuses) override;
    void OnMessage(App& app, const QString& text) override;
    void OnKill(int stored) override;
    void OnUserGivesUp(const QString& id) override;
    void OnLoan(const QString& id, bool isGivenUp) override;
    void OnEnd(App& app) override;
    int AskedAgain() const override { return m_askedAgain; }

private:
    void OnLogged(const QString& id) override;
    const QSet<QString>& MayBeLogged() const override { return m_asked; }
    void Excuse(const QString& why);

    QSet<QString> m_unlogged;  // asked, and neither logged nor excused
    QSet<QString> m_excused;   // asked and, for a reason that is known, not logged
    QSet<QString> m_confirmed; // by a page that the program has looked at, and no disk refused to note it
    qint32 m_confirming = -1;  // number of the target that a page has just confirmed
    qint32 m_refused = -1;     // of one whose note the disk may have refused
    QString m_lastAsked;
    QSet<QString> m_givenUp; // a request that was on its way may still come to the site
    int m_limitPagesInARow = 0;
    int m_skippedSeen = 0;
    int m_askedAgain = 0;
};

} // namespace qlm::fire
