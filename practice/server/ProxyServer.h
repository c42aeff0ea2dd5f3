// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>
#include <memory>

namespace qlm::practice {

class PracticeSite;

/// Shows a practice site to browsers on this machine, as an HTTP proxy ("GET http://host/path") and to direct
/// requests with the Host header of one of the site's hosts. Every connection has a thread of its own, so a
/// page that never comes holds up nobody else; the site is called under one lock.
class ProxyServer {
public:
    explicit ProxyServer(PracticeSite& site);
    ~ProxyServer();

    /// Takes a port of 127.0.0.1; 0 means any free one. Returns the port, or -1 when it can't be had.
    int Bind(int port);

    /// Serves until Stop; false when listening failed.
    bool Run();

    /// Ends Run and every connection, from any thread.
    void Stop();

private:
    class Engine;
    std::unique_ptr<Engine> m_engine;
};

} // namespace qlm::practice
