// SPDX-License-Identifier: MIT
#pragma once

#include <QNetworkAccessManager>
#include <QStringList>

namespace qlm {

// Speaks to the controls of the practice site that runs on that port of this machine. Throws
// std::runtime_error when it doesn't answer. Turns a local loop while it waits.
class PracticeControls {
public:
    explicit PracticeControls(quint16 port) : m_port(port) {}

    void Tell(const QString& line);
    QStringList Journal();
    // The lines since the last take.
    QStringList TakeJournal();

private:
    QByteArray Fetch(const QString& path, const QByteArray* body);

    quint16 m_port;
    QNetworkAccessManager m_network;
};

} // namespace qlm
