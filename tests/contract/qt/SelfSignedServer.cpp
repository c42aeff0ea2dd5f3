// SPDX-License-Identifier: MIT
#include "SelfSignedServer.h"

#include <QFile>
#include <QProcess>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <stdexcept>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray Contents(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("openssl has made no " + path.toStdString());
    return file.readAll();
}

} // namespace

SelfSignedServer::SelfSignedServer() {
    const QString key = m_folder.filePath(u"key.pem"_s);
    const QString certificate = m_folder.filePath(u"certificate.pem"_s);
    QProcess openssl;
    openssl.start(u"openssl"_s,
                  u"req -x509 -newkey rsa:2048 -nodes -batch -subj /CN=127.0.0.1 -keyout %1 -out %2"_s
                      .arg(key, certificate)
                      .split(u' '));
    openssl.waitForFinished();
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(QSslCertificate(Contents(certificate)));
    configuration.setPrivateKey(QSslKey(Contents(key), QSsl::Rsa));
    m_server.setSslConfiguration(configuration);
    if (!m_server.listen(QHostAddress::LocalHost))
        throw std::runtime_error("no loopback port");
    QObject::connect(&m_server, &QSslServer::pendingConnectionAvailable, &m_server, [this] {
        while (QTcpSocket* socket = m_server.nextPendingConnection()) {
            ++m_connections;
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket] {
                socket->write("HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\n\r\n"
                              "<body>nobody may read this");
                socket->disconnectFromHost();
            });
        }
    });
}

} // namespace qlm
