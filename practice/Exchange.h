// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <utility>

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

/// One request, already taken off the wire.
struct Request {
    QString method;                 ///< "GET", "HEAD" or "POST"
    QString host;                   ///< letter case and a port behind it do not matter
    QString path;                   ///< with the query, without the host
    QByteArray body;                ///< form data of a POST, otherwise empty
    QMap<QString, QString> headers; ///< names in lower case
};

/// One answer. Whoever carries it to the browser also plays its fault.
struct Response {
    enum class Fault {
        None,
        Hang,   ///< never answer
        Reset,  ///< break the connection without an answer
        NoBody, ///< headers, then nothing
        Slow,   ///< answer after `delayMs`
    };

    int status = 200;
    QString contentType = u"text/html; charset=utf-8"_s;
    QByteArray body;
    QList<std::pair<QString, QString>> headers; ///< such as Location and Set-Cookie, in this order
    Fault fault = Fault::None;
    int delayMs = 0;
};

} // namespace qlm::practice
