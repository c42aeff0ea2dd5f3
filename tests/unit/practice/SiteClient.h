// SPDX-License-Identifier: MIT
#pragma once

#include "practice/Address.h"
#include "practice/PracticeSite.h"

#include <QRegularExpression>
#include <QTimeZone>
#include <gtest/gtest.h>

// Failing comparisons then show the text and not its bytes.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << text.toStdString();
}
inline void PrintTo(const QStringList& lines, std::ostream* out) {
    *out << lines.join(QChar(u'\n')).toStdString();
}

namespace qlm::practice {

/// A visitor of a site of its own, on a clock that the test moves; keeps the cookie as a browser does.
class SiteClient {
public:
    explicit SiteClient(quint64 seed = 1) : site(seed, [this] { return now; }) {}

    Response Send(const QString& method, const QString& url, const QByteArray& body = {}) {
        Request request;
        request.method = method;
        const QString bare = url.startsWith(u"http://"_s) ? url.sliced(7) : url;
        request.host = bare.section(u'/', 0, 0);
        request.path = bare.sliced(request.host.size());
        request.body = body;
        if (!cookie.isEmpty())
            request.headers.insert(u"cookie"_s, cookie);
        if (steers)
            request.headers.insert(u"sec-practice-control"_s, u"1"_s);
        const Response response = site.Answer(request);
        for (const auto& [name, value] : response.headers)
            if (name == u"Set-Cookie")
                cookie = value.section(u';', 0, 0);
        return response;
    }
    Response Get(const QString& url) { return Send(u"GET"_s, url); }
    Response Post(const QString& url, const QByteArray& body) { return Send(u"POST"_s, url, body); }
    QString Text(const QString& url) { return QString::fromUtf8(Get(url).body); }

    Response SignIn(const QByteArray& mail = "a@example.com", const QByteArray& password = "secret") {
        return Post(u"login.myspace.example.com/index.cfm?fuseaction=login.process"_s,
                    "ctl00%24Main%24Email_Textbox=" + mail + "&ctl00%24Main%24Password_Textbox=" + password);
    }
    QString Ask(qint64 target) { return Text(requestPage + QString::number(target)); }
    void Control(const QString& line) { ASSERT_EQ(site.Control(line), QString()); }

    static QString Header(const Response& response, const QString& wanted) {
        for (const auto& [name, value] : response.headers)
            if (name == wanted)
                return value;
        return {};
    }

    QDateTime now{QDate(2009, 6, 1), QTime(10, 0), QTimeZone::utc()};
    PracticeSite site;
    QString cookie;
    bool steers = false; // as a program does that may use the controls

    static inline const QString root = u"http://www.myspace.example.com"_s;
    static inline const QString requestPage = root + u"/my/friends/addtofriends/"_s;
};

/// All texts between `before` and the next `after`.
inline QStringList Between(const QString& text, const QString& before, const QString& after) {
    QStringList found;
    for (qsizetype at = text.indexOf(before); at >= 0; at = text.indexOf(before, at)) {
        at += before.size();
        found.append(text.mid(at, text.indexOf(after, at) - at));
    }
    return found;
}

/// The first of those.
inline QString FirstBetween(const QString& text, const QString& before, const QString& after) {
    return Between(text, before, after).value(0);
}

/// True when `part` stands in `text`, in any letter case, as pages are looked through.
inline testing::AssertionResult Holds(const QString& text, const QString& part) {
    if (text.contains(part, Qt::CaseInsensitive))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << '"' << part.toStdString() << "\" is not in:\n"
                                       << text.toStdString();
}

} // namespace qlm::practice
