// SPDX-License-Identifier: MIT
#pragma once

#include "Judge.h"

namespace qlm::fire {

// Messages and comments: noted before the press, and whoever is noted or logged is left alone for ever.
class WritingJudge : public Judge {
public:
    using Judge::Judge;

    void OnStart() override { m_current.clear(); }
    void BeforeRequest(const QString& id, bool isPost) override;
    void AfterRequest(const QString& id, const QStringList& journal, const QString& page) override;
    void Look(App& app, int stored, bool diskRefuses) override;
    void OnMessage(App& app, const QString& text) override;
    void OnKill(int stored) override;
    void OnUserGivesUp(const QString& id) override;
    void OnLoan(const QString& id, bool isGivenUp) override;
    void OnEnd(App& app) override;

private:
    void OnLogged(const QString& id) override;
    bool CountsLater() const override { return m_plan.campaign == &Comments; }
    const QSet<QString>& MayBeLogged() const override { return m_visited; }
    bool IsAboutLogged(const ReportRow& row) const override { return row.result != ReportResult::Skipped; }
    bool IsRemembered(const QString& id) const { return m_logged.contains(id) || IsNoted(id); }
    void CheckRemembered() const;
    void Excuse();

    QString m_current;         // whose page the program has before it
    QSet<QString> m_pressed;   // the site has heard of a press
    QSet<QString> m_unpressed; // logged, and the site has not heard of it yet
    QSet<QString> m_open;      // has got it, and was not found in the log yet
};

} // namespace qlm::fire
