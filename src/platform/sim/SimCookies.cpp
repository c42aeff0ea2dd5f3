// SPDX-License-Identifier: MIT
#include "platform/sim/SimCookies.h"

#include <QStringList>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

bool Reaches(const QString& domain, const QString& host) {
    return domain.startsWith(u'.') ? host == domain.mid(1) || host.endsWith(domain) : host == domain;
}

} // namespace

void SimCookies::Take(const QString& host, const QString& header) {
    const QStringList parts = header.split(u';');
    const QString name = parts[0].section(u'=', 0, 0).trimmed();
    const QString value = parts[0].section(u'=', 1).trimmed();
    QString domain = host;
    bool isOver = false;
    for (qsizetype i = 1; i < parts.size(); ++i) {
        const QString key = parts[i].section(u'=', 0, 0).trimmed().toLower();
        const QString setting = parts[i].section(u'=', 1).trimmed().toLower();
        if (key == u"domain" && !setting.isEmpty())
            domain = setting.startsWith(u'.') ? setting : u'.' + setting;
        isOver = isOver || (key == u"max-age" && setting.toInt() <= 0) ||
                 (key == u"expires" && setting.contains(u"1970"));
    }
    // A host cannot set a cookie for a domain it is no part of.
    if (name.isEmpty() || !Reaches(domain, host))
        return;
    if (isOver)
        m_values.erase({domain, name});
    else
        m_values[{domain, name}] = value;
}

QString SimCookies::For(const QString& host) const {
    QStringList pairs;
    for (const auto& [key, value] : m_values)
        if (Reaches(key.domain, host))
            pairs += key.name + u'=' + value;
    return pairs.join(u"; "_s);
}

} // namespace qlm
