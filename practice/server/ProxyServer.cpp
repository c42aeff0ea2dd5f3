// SPDX-License-Identifier: MIT
#include "ProxyServer.h"

#include "../PracticeSite.h"
#include "Connection.h"
#include "ThreadPerConnection.h"

#include <QRegularExpression>
#include <cstdint>
#include <mutex>
#include <stdexcept>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

namespace qlm::practice {

namespace {

constexpr int idleTimeoutMs = 60000;
constexpr const char* loopback = "127.0.0.1";

// The library hands its handlers no connection, so each serving thread remembers its own.
thread_local Connection* servedHere = nullptr;

QString Text(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// A browser that uses a proxy sends whole addresses; the host in them outranks the Host header.
Request Translate(const httplib::Request& from) {
    Request request;
    request.method = Text(from.method);
    request.path = Text(from.target);
    request.host = Text(from.get_header_value("Host"));
    if (request.path.startsWith(u"http://"_s, Qt::CaseInsensitive)) {
        const QString rest = request.path.sliced(7);
        const qsizetype end = rest.indexOf(QRegularExpression(u"[/?#]"_s));
        request.host = end < 0 ? rest : rest.first(end);
        request.path = end < 0 ? QString() : rest.sliced(end);
    }
    if (!request.path.startsWith(u'/'))
        request.path.prepend(u'/');
    request.body = QByteArray(from.body.data(), static_cast<qsizetype>(from.body.size()));
    for (const auto& [name, value] : from.headers)
        request.headers.insert(Text(name).toLower(), Text(value));
    return request;
}

void Translate(const Response& from, httplib::Response& to) {
    to.status = from.status;
    for (const auto& [name, value] : from.headers)
        to.set_header(name.toStdString(), value.toStdString());
    to.set_content(from.body.toStdString(), from.contentType.toStdString());
}

// What the fault of an answer does to its connection, apart from the answer itself.
void PlayFault(const Response& response) {
    switch (response.fault) {
    case Response::Fault::None:
    case Response::Fault::NoBody:
        return;
    case Response::Fault::Slow:
        servedHere->Dawdle(response.delayMs);
        return;
    case Response::Fault::Hang:
        servedHere->Dawdle(-1);
        servedHere->Break();
        return;
    case Response::Fault::Reset:
        servedHere->Break();
        return;
    }
}

} // namespace

class ProxyServer::Engine : public httplib::Server {
public:
    explicit Engine(PracticeSite& site) : m_site(site), m_wakeFd(::eventfd(0, EFD_CLOEXEC)) {
        if (m_wakeFd < 0)
            throw std::runtime_error("no event descriptor");
        new_task_queue = [] { return new ThreadPerConnection; };
        set_keep_alive_timeout(idleTimeoutMs / 1000);
        set_payload_max_length(1 << 20);
        // The library's own choice would let a second server share a port in use.
        set_socket_options([](socket_t listening) {
            const int on = 1;
            ::setsockopt(listening, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
        });
        const auto serve = [this](const httplib::Request& request, httplib::Response& response) {
            Serve(request, response);
        };
        Get(R"([\s\S]*)", serve);
        Post(R"([\s\S]*)", serve);
        // Whatever is neither of the two never gets as far as a handler.
        set_pre_routing_handler([this](const httplib::Request& request, httplib::Response& response) {
            if (request.method == "GET" || request.method == "HEAD" || request.method == "POST")
                return HandlerResponse::Unhandled;
            Refuse(request, response);
            return HandlerResponse::Handled;
        });
    }

    ~Engine() override { ::close(m_wakeFd); }

    // The library queues five connections; a browser opens more at once, and each one turned away is tried
    // again only a second later.
    void WidenQueue() { ::listen(svr_sock_, SOMAXCONN); }

    // Also right when listening hasn't begun yet, which the library's own stop would miss.
    void EndAll() {
        const std::uint64_t one = 1;
        if (::write(m_wakeFd, &one, sizeof one) != sizeof one)
            std::terminate();
        const socket_t listening = svr_sock_.exchange(INVALID_SOCKET);
        if (listening != INVALID_SOCKET) {
            ::shutdown(listening, SHUT_RDWR);
            ::close(listening);
        }
    }

private:
    bool process_and_close_socket(socket_t socket) override {
        Connection connection(socket, m_wakeFd);
        servedHere = &connection;
        bool closed = false;
        bool good = true;
        while (good && !closed && !connection.IsBroken() && connection.AwaitRequest(idleTimeoutMs))
            good = process_request(connection, false, closed, nullptr);
        servedHere = nullptr;
        return good;
    }

    void Serve(const httplib::Request& request, httplib::Response& response) {
        const Response answer = Ask(Translate(request));
        PlayFault(answer);
        Translate(answer, response);
    }

    // A tunnel has no host to look up.
    void Refuse(const httplib::Request& request, httplib::Response& response) {
        response.status = 405;
        response.set_content("The practice site knows only GET, HEAD and POST; " + request.method +
                                 " is refused.\n",
                             "text/plain; charset=utf-8");
    }

    Response Ask(const Request& request) {
        const std::lock_guard lock(m_mutex);
        return m_site.Answer(request);
    }

    PracticeSite& m_site;
    std::mutex m_mutex;
    int m_wakeFd;
};

ProxyServer::ProxyServer(PracticeSite& site) : m_engine(std::make_unique<Engine>(site)) {}

ProxyServer::~ProxyServer() = default;

int ProxyServer::Bind(int port) {
    int bound = port;
    if (port == 0)
        bound = m_engine->bind_to_any_port(loopback);
    else if (!m_engine->bind_to_port(loopback, port))
        bound = -1;
    if (bound > 0)
        m_engine->WidenQueue();
    return bound;
}

bool ProxyServer::Run() {
    return m_engine->listen_after_bind();
}

void ProxyServer::Stop() {
    m_engine->EndAll();
}

} // namespace qlm::practice
