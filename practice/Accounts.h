// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMap>
#include <QSet>
#include <QString>

namespace qlm::practice {

/// Somebody who can sign in.
struct Account {
    QString mail; ///< lower case
    QString password;
    qint64 id = 0;
};

/// Accounts and the sessions that are open. A session lives until it is dropped.
class Accounts {
public:
    /// a@example.com (900001) to j@example.com (900010), all with the password "secret".
    Accounts() { Restore(); }

    /// Back to those ten, with no session open and all with mail.
    void Restore();

    void Add(const QString& mail, const QString& password, qint64 id);
    const QList<Account>& All() const { return m_accounts; }
    bool IsMember(qint64 id) const;

    /// nullptr unless mail (letter case and blanks around it don't matter) and password fit.
    const Account* Check(const QString& mail, const QString& password) const;

    /// Opens a session and returns what the cookie has to hold.
    QString OpenSession(quint64 seed, const Account& account);
    /// Whose session that is; nullptr for an unknown one. Good until the next Add.
    const Account* Session(const QString& token) const;
    void DropSession(const QString& token) { m_sessions.remove(token); }
    void DropAllSessions() { m_sessions.clear(); }

    /// An account that has never set up its mail can write to nobody.
    void SetMail(qint64 id, bool has) {
        if (has)
            m_noMail.remove(id);
        else
            m_noMail.insert(id);
    }
    bool HasNoMail(qint64 id) const { return m_noMail.contains(id); }

private:
    QList<Account> m_accounts;
    QMap<QString, QString> m_sessions; // token to mail
    QSet<qint64> m_noMail;
    quint64 m_opened = 0;
};

} // namespace qlm::practice
