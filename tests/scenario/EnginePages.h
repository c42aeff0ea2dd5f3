// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sim/SimBrowser.h"

#include <QTcpServer>
#include <set>

class QTcpSocket;

namespace qlm::scenario {

// The simulated network as a proxy of the engine: every host that a scenario speaks of, with its faults.
// Lives on the engine's thread, so that pages arrive only while the program's message loop turns.
class EnginePages : public QObject {
public:
    EnginePages(SimWeb& web, int speed);

    quint16 Port() const { return m_server.serverPort(); }
    // An answer was begun or awaited that will never be whole, and the engine still listens.
    bool WithholdsPage() const { return !m_withheld.empty(); }
    std::vector<SimBrowser::Posted> TakePosted() { return std::exchange(m_posted, {}); }

    std::function<void()> onRequest;
    // A page was asked for whose body is to be another one so many milliseconds later.
    std::function<void(const QString& url, const SimAnswer::Swap& swap)> onSwap;

private:
    void OnReadable(QTcpSocket* socket);
    void Serve(QTcpSocket* socket, const SimRequest& request);
    void Reply(QTcpSocket* socket, const SimAnswer& answer);

    SimWeb& m_web;
    const int m_speed;
    std::set<QTcpSocket*> m_withheld; // before the server, whose end disconnects them
    QTcpServer m_server;
    std::vector<SimBrowser::Posted> m_posted;
};

} // namespace qlm::scenario
