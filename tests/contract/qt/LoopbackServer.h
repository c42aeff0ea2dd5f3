// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QHostAddress>
#include <QMutex>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QThread>
#include <optional>
#include <vector>

class QTcpSocket;

namespace qlm {

// What the server answers to one path.
struct LoopbackAnswer {
    // BreakOff and Stall announce more than they send; Stall keeps the connection until DropStalled().
    enum class Fault { None, Hang, Reset, BreakOff, Stall };

    QByteArray body;
    QByteArray contentType = "text/html; charset=utf-8";
    int status = 200;
    QByteArray headers; // whole lines
    int delayMs = 0;
    Fault fault = Fault::None;
};

struct LoopbackRequest {
    QString method;
    QString url; // as the engine sent it: absolute through the proxy
    QByteArray headers;
    QByteArray body;

    QString Header(const QByteArray& name) const;
};

// A server of its own thread, on the loopback address unless told, so that it answers whatever the tested
// program does. It takes absolute addresses too and can play every host as the program's proxy.
class LoopbackServer {
public:
    explicit LoopbackServer(const QHostAddress& address = QHostAddress::LocalHost);
    ~LoopbackServer();

    quint16 Port() const { return m_port; }
    QString Address(const QString& path) const;
    // Answers given in a row for one path, or for one whole address with its query; the last one stays.
    void Answer(const QString& path, const LoopbackAnswer& answer);
    // Takes the place of all answers given before.
    void AnswerOnly(const QString& path, const LoopbackAnswer& answer);
    // What everything else gets; a page that says so unless set.
    void AnswerUnknown(const LoopbackAnswer& answer);
    // Everything that has no answer here is asked of another server on this machine.
    void ForwardUnknownTo(quint16 port);
    void DropStalled();
    void Clear();
    std::vector<LoopbackRequest> Requests() const;
    int CountRequests(const QString& path) const;

private:
    void OnReadable(QTcpSocket* socket);
    void Reply(QTcpSocket* socket, const LoopbackAnswer& answer);
    std::optional<LoopbackAnswer> Next(const QString& url);
    void Forward(QTcpSocket* socket, const QByteArray& request);

    mutable QMutex m_mutex;
    QHash<QString, QList<LoopbackAnswer>> m_answers;
    LoopbackAnswer m_unknown;
    quint16 m_forwardPort = 0;
    std::vector<LoopbackRequest> m_requests;
    QThread m_thread;
    QObject* m_context = nullptr;                // lives in the thread
    std::vector<QPointer<QTcpSocket>> m_stalled; // of the thread alone
    quint16 m_port = 0;
};

} // namespace qlm
