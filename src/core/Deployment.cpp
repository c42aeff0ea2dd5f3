// SPDX-License-Identifier: MIT
#include "core/Deployment.h"

#include <QRegularExpression>

#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList& RequiredRoles() {
    static const QStringList roles{u"SiteDomain"_s,
                                   u"SiteRootHost"_s,
                                   u"HomeHost"_s,
                                   u"LoginHost"_s,
                                   u"MessagingHost"_s,
                                   u"FriendsHost"_s,
                                   u"ProfileHost"_s,
                                   u"CommentHost"_s,
                                   u"GroupsHost"_s,
                                   u"EventsHost"_s,
                                   u"BulletinsHost"_s,
                                   u"SearchServiceHost"_s,
                                   u"BrowseUsersHost"_s,
                                   u"VideoHost"_s,
                                   u"MusicHost"_s,
                                   u"TopArtistsHost"_s,
                                   u"ForumHost"_s,
                                   u"SchoolHost"_s,
                                   u"CreativeHost"_s,
                                   u"InviteHost"_s,
                                   u"MobileHost"_s,
                                   u"LinkRedirectHost"_s,
                                   u"WebSearchHost"_s,
                                   u"ProductServer"_s,
                                   u"ProductServerAlternate"_s};
    return roles;
}

// Hosts that are no part of the site: others' pages are searched, shown and redirected to there.
const QStringList& StrangersRoles() {
    static const QStringList roles{u"WebSearchHost"_s, u"LinkRedirectHost"_s, u"CreativeHost"_s,
                                   u"ProductServer"_s, u"ProductServerAlternate"_s};
    return roles;
}

} // namespace

Deployment::Deployment(const QString& iniText) {
    for (const QString& line : iniText.split(u'\n')) {
        const qsizetype equals = line.indexOf(u'=');
        const QString key = line.left(equals).trimmed();
        if (equals > 0 && !key.startsWith(u';') && !key.startsWith(u'#'))
            m_values.insert(key, line.mid(equals + 1).trimmed());
    }
}

QString Deployment::Expand(const QString& text) const {
    if (!text.contains(u'{'))
        return text;
    const auto known = m_expanded.constFind(text);
    if (known != m_expanded.constEnd())
        return *known;
    QString expanded = text;
    for (qsizetype open = expanded.indexOf(u'{'); open >= 0; open = expanded.indexOf(u'{', open + 1)) {
        const qsizetype close = expanded.indexOf(u'}', open);
        const auto value = m_values.constFind(expanded.mid(open + 1, close - open - 1));
        if (close > open && value != m_values.constEnd())
            expanded.replace(open, close - open + 1, *value);
    }
    // Only the code's own literals are worth keeping; addresses with an ID in them would grow without end.
    if (m_expanded.size() < 2000)
        m_expanded.insert(text, expanded);
    return expanded;
}

// Browsers write a page's address in one way: small letters, no usual port. What is written in another way (a
// name before the host, a port, a dot after it) may lead elsewhere than it seems and is nobody's.
bool Deployment::IsSitePage(const QString& address) const {
    static const QRegularExpression plain(u"^https?://([a-z0-9.-]+)(?:[/?#]|$)"_s);
    const QString host = plain.match(address).captured(1);
    const QStringList& roles = RequiredRoles();
    return !host.isEmpty() && std::any_of(roles.begin(), roles.end(), [&](const QString& role) {
        return !StrangersRoles().contains(role) && Role(role).toLower() == host;
    });
}

QStringList Deployment::MissingRoles() const {
    QStringList missing;
    for (const QString& role : RequiredRoles())
        if (m_values.value(role).isEmpty())
            missing.append(role);
    return missing;
}

bool Deployment::UsesPracticeSite() const {
    return m_values.value(u"Proxy"_s) == u"practice"_s;
}

} // namespace qlm
