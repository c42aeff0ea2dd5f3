// SPDX-License-Identifier: MIT
#pragma once

#include "Answers.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <utility>

namespace qlm::practice {

/// Who has asked an account to become friends and waits for its answer. Some have asked from the start, by
/// the seed; accounts that ask each other stand there, too.
class Incoming {
public:
    explicit Incoming(quint64 seed);

    static constexpr int perPage = 25;
    static constexpr int most = 5000;

    /// What becomes of accepting somebody.
    Answers answers;

    /// Newest first.
    QList<qint64> Of(qint64 account) const;
    /// In place of those who have asked so far.
    void SetCount(qint64 account, int count);
    /// People of the crowd from the other end, for whom the account may have asked.
    QList<qint64> SomeOthers(qint64 account, int count) const;
    void Add(qint64 account, qint64 requester);
    /// False when that one isn't waiting.
    bool Remove(qint64 account, qint64 requester);

    void MakeFriends(qint64 one, qint64 other) {
        m_friends << std::pair{one, other} << std::pair{other, one};
    }
    bool AreFriends(qint64 one, qint64 other) const { return m_friends.contains({one, other}); }

    /// The design that a control has set for that account or, before that, for everybody; "" for the first.
    QString FormOf(qint64 account) const { return m_forms.value(account, m_form); }
    void SetForm(qint64 account, const QString& design) { m_forms.insert(account, design); }
    void SetFormOfAll(const QString& design) {
        m_form = design;
        m_forms.clear();
    }

private:
    QList<qint64> Drawn(qint64 account, int count) const;
    QList<qint64>& ListOf(qint64 account);

    quint64 m_seed;
    QHash<qint64, QList<qint64>> m_lists; // oldest first; those that have been touched
    QSet<std::pair<qint64, qint64>> m_friends;
    QString m_form;
    QHash<qint64, QString> m_forms;
};

} // namespace qlm::practice
