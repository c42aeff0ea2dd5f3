// SPDX-License-Identifier: MIT
#pragma once

#include <httplib.h>

namespace qlm::practice {

/// One browser's connection as the HTTP library reads and writes it. Every wait also ends when `wakeFd`
/// becomes readable, which is how the server gets rid of connections that would last for ever.
/// Owns the socket. Used by the one thread that serves the connection.
class Connection : public httplib::Stream {
public:
    Connection(socket_t socket, int wakeFd) : m_socket(socket), m_wakeFd(wakeFd) {}
    ~Connection() override;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Waits for the next request; false when the browser has gone, the server ends, or time is up.
    bool AwaitRequest(int timeoutMs);

    /// Waits `delayMs`, for ever with -1; less when the browser goes away or the server ends.
    void Dawdle(int delayMs);

    /// From here on nothing is written any more, and the end of the connection is a reset.
    void Break() { m_broken = true; }
    bool IsBroken() const { return m_broken; }

    bool is_readable() const override;
    bool is_writable() const override;
    ssize_t read(char* data, size_t size) override;
    ssize_t write(const char* data, size_t size) override;
    void get_remote_ip_and_port(std::string& ip, int& port) const override;
    void get_local_ip_and_port(std::string& ip, int& port) const override;
    socket_t socket() const override { return m_socket; }

private:
    bool Poll(short events, int timeoutMs) const;

    static constexpr int ioTimeoutMs = 10000;

    socket_t m_socket;
    int m_wakeFd;
    bool m_broken = false;
    std::string m_buffer;
    size_t m_used = 0;
};

} // namespace qlm::practice
