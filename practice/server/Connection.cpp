// SPDX-License-Identifier: MIT
#include "Connection.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace qlm::practice {

Connection::~Connection() {
    if (m_broken) {
        // Closing with a linger time of zero makes the kernel send a reset in place of an orderly end.
        const linger atOnce{1, 0};
        ::setsockopt(m_socket, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
    }
    ::close(m_socket);
}

// True when the socket is ready; false on time out, and always once the server ends.
bool Connection::Poll(short events, int timeoutMs) const {
    std::array<pollfd, 2> fds{{{m_socket, events, 0}, {m_wakeFd, POLLIN, 0}}};
    int ready = 0;
    do
        ready = ::poll(fds.data(), fds.size(), timeoutMs);
    while (ready < 0 && errno == EINTR);
    return ready > 0 && fds[1].revents == 0 && fds[0].revents != 0;
}

bool Connection::AwaitRequest(int timeoutMs) {
    if (m_used < m_buffer.size())
        return true;
    if (!Poll(POLLIN | POLLRDHUP, timeoutMs))
        return false;
    char first = 0;
    return ::recv(m_socket, &first, 1, MSG_PEEK) == 1;
}

void Connection::Dawdle(int delayMs) {
    Poll(POLLRDHUP, delayMs);
}

bool Connection::is_readable() const {
    return m_used < m_buffer.size() || Poll(POLLIN, ioTimeoutMs);
}

bool Connection::is_writable() const {
    return m_broken || Poll(POLLOUT, ioTimeoutMs);
}

ssize_t Connection::read(char* data, size_t size) {
    if (m_used == m_buffer.size()) {
        if (!Poll(POLLIN, ioTimeoutMs))
            return -1;
        m_buffer.resize(8192);
        m_used = 0;
        const ssize_t got = ::recv(m_socket, m_buffer.data(), m_buffer.size(), 0);
        m_buffer.resize(static_cast<size_t>(std::max<ssize_t>(got, 0)));
        if (got <= 0)
            return got;
    }
    const size_t count = std::min(size, m_buffer.size() - m_used);
    std::copy_n(m_buffer.data() + m_used, count, data);
    m_used += count;
    return static_cast<ssize_t>(count);
}

ssize_t Connection::write(const char* data, size_t size) {
    if (m_broken)
        return static_cast<ssize_t>(size);
    if (!Poll(POLLOUT, ioTimeoutMs))
        return -1;
    return ::send(m_socket, data, size, MSG_NOSIGNAL);
}

// Nothing here looks at addresses: only the own machine can connect.
void Connection::get_remote_ip_and_port(std::string& ip, int& port) const {
    ip = "127.0.0.1";
    port = 0;
}

void Connection::get_local_ip_and_port(std::string& ip, int& port) const {
    ip = "127.0.0.1";
    port = 0;
}

} // namespace qlm::practice
