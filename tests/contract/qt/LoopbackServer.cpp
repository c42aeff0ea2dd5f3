// SPDX-License-Identifier: MIT
#include "LoopbackServer.h"

#include <QMutexLocker>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>
#include <memory>
#include <stdexcept>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

QString KeyOf(const QString& url) {
    const QUrl parsed(url);
    const bool isAbsolute = !parsed.host().isEmpty() && parsed.host() != u"127.0.0.1"_s;
    return (isAbsolute ? parsed.host() : QString()) + parsed.path();
}

QByteArray HeaderValue(const QByteArray& headers, const QByteArray& name) {
    for (const QByteArray& line : headers.split('\n'))
        if (line.toLower().startsWith(name.toLower() + ':'))
            return line.mid(name.size() + 1).trimmed();
    return {};
}

} // namespace

QString LoopbackRequest::Header(const QByteArray& name) const {
    return QString::fromUtf8(HeaderValue(headers, name));
}

LoopbackServer::LoopbackServer(const QHostAddress& address) {
    m_unknown.status = 404;
    m_unknown.body = "<body>no such page</body>";
    // The helper object carries the server into its thread and dies there.
    m_context = new QObject;
    m_context->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, m_context, &QObject::deleteLater);
    m_thread.start();
    QMetaObject::invokeMethod(
        m_context,
        [this, address] {
            auto* server = new QTcpServer(m_context);
            if (!server->listen(address))
                throw std::runtime_error("no port to listen at");
            m_port = server->serverPort();
            QObject::connect(server, &QTcpServer::newConnection, server, [this, server] {
                while (QTcpSocket* socket = server->nextPendingConnection()) {
                    QObject::connect(socket, &QTcpSocket::readyRead, socket,
                                     [this, socket] { OnReadable(socket); });
                    QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
                }
            });
        },
        Qt::BlockingQueuedConnection);
}

LoopbackServer::~LoopbackServer() {
    m_thread.quit();
    m_thread.wait();
}

QString LoopbackServer::Address(const QString& path) const {
    return u"http://127.0.0.1:%1%2"_s.arg(m_port).arg(path);
}

void LoopbackServer::Answer(const QString& path, const LoopbackAnswer& answer) {
    const QMutexLocker lock(&m_mutex);
    m_answers[path].append(answer);
}

void LoopbackServer::AnswerOnly(const QString& path, const LoopbackAnswer& answer) {
    const QMutexLocker lock(&m_mutex);
    m_answers[path] = {answer};
}

void LoopbackServer::AnswerUnknown(const LoopbackAnswer& answer) {
    const QMutexLocker lock(&m_mutex);
    m_unknown = answer;
}

void LoopbackServer::ForwardUnknownTo(quint16 port) {
    const QMutexLocker lock(&m_mutex);
    m_forwardPort = port;
}

void LoopbackServer::Clear() {
    const QMutexLocker lock(&m_mutex);
    m_answers.clear();
    m_requests.clear();
}

std::vector<LoopbackRequest> LoopbackServer::Requests() const {
    const QMutexLocker lock(&m_mutex);
    return m_requests;
}

int LoopbackServer::CountRequests(const QString& path) const {
    int count = 0;
    for (const LoopbackRequest& request : Requests())
        count += KeyOf(request.url) == path ? 1 : 0;
    return count;
}

void LoopbackServer::OnReadable(QTcpSocket* socket) {
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
    const LoopbackRequest request{QString::fromLatin1(first.value(0)), QString::fromUtf8(first.value(1)),
                                  head, data.mid(end + 4, length)};
    {
        const QMutexLocker lock(&m_mutex);
        m_requests.push_back(request);
    }
    if (const auto answer = Next(request.url))
        Reply(socket, *answer);
    else
        Forward(socket, data.left(end + 4 + length));
}

// A browser's connection keeps one of its own to the other server, which answers in the same order.
void LoopbackServer::Forward(QTcpSocket* socket, const QByteArray& request) {
    auto* other = socket->findChild<QTcpSocket*>();
    if (!other) {
        other = new QTcpSocket(socket);
        QObject::connect(other, &QTcpSocket::readyRead, socket,
                         [socket, other] { socket->write(other->readAll()); });
        QObject::connect(other, &QTcpSocket::disconnected, socket, &QTcpSocket::disconnectFromHost);
        other->connectToHost(QHostAddress::LocalHost, m_forwardPort);
    }
    other->write(request);
}

std::optional<LoopbackAnswer> LoopbackServer::Next(const QString& url) {
    const QMutexLocker lock(&m_mutex);
    auto found = m_answers.find(url);
    if (found == m_answers.end())
        found = m_answers.find(KeyOf(url));
    if (found == m_answers.end() || found->isEmpty())
        return m_forwardPort == 0 ? std::optional(m_unknown) : std::nullopt;
    return found->size() > 1 ? found->takeFirst() : found->first();
}

void LoopbackServer::Reply(QTcpSocket* socket, const LoopbackAnswer& answer) {
    using Fault = LoopbackAnswer::Fault;
    if (answer.fault == Fault::Hang)
        return;
    if (answer.fault == Fault::Reset) {
        socket->abort();
        return;
    }
    const bool isCutShort = answer.fault == Fault::BreakOff || answer.fault == Fault::Stall;
    const qsizetype promised = answer.body.size() + (isCutShort ? 1000 : 0);
    const QByteArray reply = "HTTP/1.1 " + QByteArray::number(answer.status) +
                             " X\r\nContent-Type: " + answer.contentType +
                             "\r\nContent-Length: " + QByteArray::number(promised) + "\r\n" + answer.headers +
                             "\r\n" + answer.body;
    QTimer::singleShot(answer.delayMs, socket, [this, socket, reply, fault = answer.fault] {
        socket->write(reply);
        if (fault == Fault::BreakOff)
            socket->disconnectFromHost();
        if (fault == Fault::Stall)
            m_stalled.emplace_back(socket);
    });
}

void LoopbackServer::DropStalled() {
    QMetaObject::invokeMethod(m_context, [this] {
        for (const QPointer<QTcpSocket>& socket : std::exchange(m_stalled, {}))
            if (socket)
                socket->disconnectFromHost();
    });
}

} // namespace qlm
