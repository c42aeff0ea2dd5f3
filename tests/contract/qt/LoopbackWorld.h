// SPDX-License-Identifier: MIT
#pragma once

#include "LoopbackServer.h"
#include "NoDialogs.h"
#include "platform/qt/QtPlatform.h"

#include <QTcpServer>
#include <QTemporaryDir>
#include <QUdpSocket>
#include <functional>
#include <gtest/gtest.h>

namespace qlm {

// Hears whatever arrives at one port of this machine, at any of its addresses and by either protocol.
class Listener {
public:
    Listener();
    quint16 Port() const { return m_tcp.serverPort(); }
    // "HOST:PORT" for each way of writing this machine.
    QList<QByteArray> Spellings() const;
    QStringList heard;

private:
    QTcpServer m_tcp;
    QUdpSocket m_udp;
};

// The program's platform on a page of a stranger's that wants to reach this machine. The engine of a process
// is confined once, so that all tests of one program share the stranger's server and so the deployment.
class LoopbackWorld : public ::testing::Test {
protected:
    // stranger: how the page's site is written in addresses; deployment: what is said of the network.
    LoopbackWorld(LoopbackServer& site, const QString& stranger, const QByteArray& deployment);
    ~LoopbackWorld() override;

    // The page runs the script, which knows "attack(hosts)" and "follow(address)", and then asks its own site
    // for "/over".
    void Visit(const QByteArray& script);
    void Open(const QString& path);
    bool WaitUntil(const std::function<bool()>& condition);
    // How often the stranger's site was asked for a path.
    int Count(const QString& path) const { return site.CountRequests(Key(path)); }
    void Answer(const QString& path, const LoopbackAnswer& answer) { site.Answer(Key(path), answer); }

    // By every spelling of the listener's address, asked for and followed to in every way.
    void AskForTheMachine();
    void FollowRedirects();
    void MoveThePage();

    LoopbackServer& site;
    QTemporaryDir folder;
    NoDialogs dialogs;
    std::optional<QtPlatform> platform;

private:
    // With a proxy the server is asked for whole addresses.
    QString Key(const QString& path) const { return m_stranger.contains(u':') ? path : m_stranger + path; }
    qsizetype AskedQueries() const;
    QString m_stranger;
};

} // namespace qlm
