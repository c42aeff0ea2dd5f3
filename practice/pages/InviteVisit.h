// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// One visit of a page on which an account invites friends to a group or an event.
class InviteVisit {
protected:
    InviteVisit(Visit& visit, Gathering kind, qint64 number)
        : m_visit(visit), m_kind(kind), m_number(number), m_account(visit.account->id) {}

    QString Name() const { return Invitations::NameOf(m_kind, m_number); }
    int FriendCount() const { return m_visit.world.friends.Count(m_account); }
    QList<const Person*> Friends(int first, int count) const;

    /// Who was ticked on this page and, by the hidden field of that name, on those before.
    QList<qint64> Ticked(const QString& before = u"chosen"_s) const;
    /// The image and the field for its word, by that name and ID; "" where none is asked for.
    QString WordField(const QString& field, bool wasWrong);
    /// What was typed is right, or nothing has to be typed.
    bool IsWordRight(const QString& field);
    void Invite(const QList<qint64>& ids);
    /// Whom that was, as list entries.
    QString Names(const QList<qint64>& ids) const;

    Visit& m_visit;
    Gathering m_kind;
    qint64 m_number;
    qint64 m_account;
};

QString InviteScripts();
/// "1,2,3"
QString JoinNumbers(const QList<qint64>& numbers);

} // namespace qlm::practice
