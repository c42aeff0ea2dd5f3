// SPDX-License-Identifier: MIT
#include "Accounts.h"

#include "Chance.h"

#include <algorithm>

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

void Accounts::Restore() {
    m_accounts.clear();
    m_sessions.clear();
    m_noMail.clear();
    for (int i = 0; i < 10; ++i)
        Add(QChar(u'a' + i) + u"@example.com"_s, u"secret"_s, 900001 + i);
}

void Accounts::Add(const QString& mail, const QString& password, qint64 id) {
    const QString known = mail.trimmed().toLower();
    m_accounts.removeIf([&](const Account& account) { return account.mail == known; });
    m_accounts.append({known, password, id});
}

bool Accounts::IsMember(qint64 id) const {
    return std::ranges::any_of(m_accounts, [id](const Account& account) { return account.id == id; });
}

const Account* Accounts::Check(const QString& mail, const QString& password) const {
    const QString known = mail.trimmed().toLower();
    for (const Account& account : m_accounts)
        if (account.mail == known && account.password == password)
            return &account;
    return nullptr;
}

QString Accounts::OpenSession(quint64 seed, const Account& account) {
    ++m_opened;
    const QString token = u"s%1-%2"_s.arg(m_opened).arg(Mix(seed, m_opened, 5), 16, 16, QLatin1Char('0'));
    m_sessions.insert(token, account.mail);
    return token;
}

const Account* Accounts::Session(const QString& token) const {
    const auto mail = m_sessions.constFind(token);
    if (mail == m_sessions.constEnd())
        return nullptr;
    const auto account = std::find_if(m_accounts.begin(), m_accounts.end(),
                                      [&](const Account& candidate) { return candidate.mail == *mail; });
    return account == m_accounts.end() ? nullptr : &*account;
}

} // namespace qlm::practice
