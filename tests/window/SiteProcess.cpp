// SPDX-License-Identifier: MIT
#include "SiteProcess.h"

#include <QRegularExpression>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

SiteProcess::SiteProcess() : m_server(QStringLiteral(PRACTICE_SITE)), m_controls(m_server.Port()) {
    Tell(u"share sent 100"_s);
    Tell(u"journal visits on"_s);
}

QStringList TargetsOf(const QStringList& journal, const QString& word) {
    QStringList targets;
    for (const QString& line : journal)
        if (const QStringList words = line.split(u' '); words.first() == word)
            targets.append(words.value(2));
    return targets;
}

QSet<QString> VisitedTargets(const QStringList& journal) {
    static const QRegularExpression page(u"^visit .*(?:/addtofriends/|addfriend_verify&friendid=)(\\d+)"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    QSet<QString> targets;
    for (const QString& line : journal)
        if (const auto match = page.match(line); match.hasMatch())
            targets.insert(match.captured(1));
    return targets;
}

QString RequestPage(const QString& id) {
    return u"www.myspace.example.com/my/friends/addtofriends/"_s + id;
}

} // namespace qlm
