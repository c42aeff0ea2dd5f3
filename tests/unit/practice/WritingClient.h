// SPDX-License-Identifier: MIT
#pragma once

#include "SiteClient.h"

#include <QUrl>

namespace qlm::practice {

using Form = QList<std::pair<QString, QString>>;

inline QByteArray Encoded(const Form& form) {
    QByteArray body;
    for (const auto& [name, value] : form)
        body += (body.isEmpty() ? "" : "&") + QUrl::toPercentEncoding(name) + '=' +
                QUrl::toPercentEncoding(value);
    return body;
}

/// Where a page's form sends what was typed.
inline QString ActionOf(const QString& page) {
    return FirstBetween(page, u"<form method=\"post\" action=\""_s, u"\""_s).replace(u"&amp;"_s, u"&"_s);
}

/// A visitor who is signed in and meets no answers but those that a test asks for.
class WritingTest : public testing::Test {
protected:
    WritingTest() {
        for (const QString& line : {u"message-share sent 100"_s, u"comment-share posted 100"_s})
            client.Control(line);
        client.SignIn();
        client.site.TakeJournal();
    }
    QString Text(const QString& url) { return Plain(client.Text(url)); }
    QString Sent(const QString& url, const Form& form) {
        return Plain(QString::fromUtf8(client.Post(url, Encoded(form)).body));
    }
    QStringList Journal() { return client.site.TakeJournal(); }
    static QString Plain(QString page) { return page.replace(u"&#39;"_s, u"'"_s); }

    SiteClient client;
};

} // namespace qlm::practice
