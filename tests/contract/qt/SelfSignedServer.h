// SPDX-License-Identifier: MIT
#pragma once

#include <QSslServer>
#include <QTemporaryDir>

namespace qlm {

// A server on the loopback address whose certificate nobody vouches for. It is made anew each time, by the
// openssl program.
class SelfSignedServer {
public:
    SelfSignedServer();

    QString Address() const { return QStringLiteral("https://127.0.0.1:%1/").arg(m_server.serverPort()); }
    int Connections() const { return m_connections; }

private:
    QTemporaryDir m_folder;
    QSslServer m_server;
    int m_connections = 0;
};

} // namespace qlm
