// SPDX-License-Identifier: MIT
#include "EnginePages.h"

#include <QTcpSocket>
#include <QTimer>
#include <QUrl>
#include <stdexcept>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

QString HeaderValue(const QByteArray& head, const QByteArray& name) {
    for (const QByteArray& line : head.split('\n'))
        if (line.toLower().startsWith(name.toLower() + ':'))
            return QString::fromUtf8(line.mid(name.size() + 1).trimmed());
    return {};
}

// On its way a line end is CR LF; in the page, and so for whoever expects it, LF.
QString Decoded(const QByteArray& part) {
    return QUrl::fromPercentEncoding(QByteArray(part).replace('+', ' ')).replace(u"\r\n"_s, u"\n"_s);
}

std::vector<SimField> FieldsOf(const QByteArray& body) {
    std::vector<SimField> fields;
    for (const QByteArray& pair : body.split('&')) {
        const qsizetype equals = pair.indexOf('=');
        if (equals >= 0)
            fields.push_back({Decoded(pair.left(equals)), Decoded(pair.mid(equals + 1))});
    }
    return fields;
}

QByteArray HeadOf(const SimAnswer& answer, qsizetype length) {
    QByteArray head =
        "HTTP/1.1 " + QByteArray::number(answer.status) +
        " X\r\nContent-Type: text/html; charset=utf-8\r\nCache-Control: no-store\r\nContent-Length: " +
        QByteArray::number(length) + "\r\n";
    if (!answer.redirectTo.isEmpty())
        head += "Location: " + answer.redirectTo.toUtf8() + "\r\n";
    for (const QString& cookie : answer.setCookies)
        head += "Set-Cookie: " + cookie.toUtf8() + "\r\n";
    return head + "\r\n";
}

} // namespace

EnginePages::EnginePages(SimWeb& web, int speed) : m_web(web), m_speed(speed) {
    if (!m_server.listen(QHostAddress::LocalHost))
        throw std::runtime_error("no loopback port");
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* socket = m_server.nextPendingConnection()) {
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { OnReadable(socket); });
            connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
                m_withheld.erase(socket);
                socket->deleteLater();
            });
        }
    });
}

void EnginePages::OnReadable(QTcpSocket* socket) {
    const QByteArray data = socket->property("pending").toByteArray() + socket->readAll();
    const qsizetype end = data.indexOf("\r\n\r\n");
    const QByteArray head = data.left(end);
    const qsizetype length = HeaderValue(head, "Content-Length").toLongLong();
    if (end < 0 || data.size() < end + 4 + length) {
        socket->setProperty("pending", data);
        return;
    }
    socket->setProperty("pending", data.mid(end + 4 + length));
    const QList<QByteArray> first = head.left(head.indexOf('\r')).split(' ');
    SimRequest request;
    request.method = QString::fromLatin1(first.value(0));
    request.url = QString::fromUtf8(first.value(1));
    request.body = data.mid(end + 4, length);
    request.contentType = HeaderValue(head, "Content-Type");
    request.cookies = HeaderValue(head, "Cookie");
    request.referrer = HeaderValue(head, "Referer");
    Serve(socket, request);
}

void EnginePages::Serve(QTcpSocket* socket, const SimRequest& request) {
    onRequest();
    // Browsers ask for it of their own accord; no scenario speaks of it.
    if (request.method == u"CONNECT" || request.url.endsWith(u"/favicon.ico"))
        return socket->abort();
    if (request.method == u"POST")
        m_posted.push_back({request.url, FieldsOf(request.body)});
    const SimAnswer answer = m_web.Answer(request);
    const int latencyMs = answer.latencyMs.value_or(m_web.defaultLatencyMs);
    for (SimAnswer::Swap swap : answer.swaps) {
        swap.afterMs += latencyMs;
        onSwap(request.url, swap);
    }
    QTimer::singleShot(latencyMs / m_speed, Qt::PreciseTimer, socket,
                       [this, socket, answer] { Reply(socket, answer); });
}

void EnginePages::Reply(QTcpSocket* socket, const SimAnswer& answer) {
    if (answer.fault == SimFault::Hang || answer.fault == SimFault::Incomplete)
        m_withheld.insert(socket);
    if (answer.fault == SimFault::Hang)
        return;
    if (answer.fault == SimFault::Reset)
        return socket->abort();
    const QByteArray body = answer.html.toUtf8();
    // The rest of a page that never completes is never sent.
    const qsizetype missing = answer.fault == SimFault::Incomplete ? 1000 : 0;
    socket->write(HeadOf(answer, body.size() + missing) + body);
}

} // namespace qlm::scenario
