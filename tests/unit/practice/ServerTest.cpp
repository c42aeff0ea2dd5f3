// SPDX-License-Identifier: MIT
#include "SiteClient.h"
#include "practice/server/ProxyServer.h"

#include <QProcess>
#include <arpa/inet.h>
#include <cerrno>
#include <httplib.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace qlm::practice {
namespace {

// A bare connection, for what a well-behaved client never shows.
class RawSocket {
public:
    explicit RawSocket(int port) : m_socket(::socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<std::uint16_t>(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        void* pointer = &address;
        m_connected = ::connect(m_socket, static_cast<sockaddr*>(pointer), sizeof address) == 0;
        const timeval limit{10, 0};
        ::setsockopt(m_socket, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
    }
    ~RawSocket() { ::close(m_socket); }
    RawSocket(const RawSocket&) = delete;
    RawSocket& operator=(const RawSocket&) = delete;

    bool Connected() const { return m_connected; }
    void Send(const std::string& text) {
        ASSERT_EQ(::send(m_socket, text.data(), text.size(), MSG_NOSIGNAL),
                  static_cast<ssize_t>(text.size()));
    }
    // What comes until the other side ends; `m_error` tells how it ended.
    std::string ReadAll() {
        std::string all;
        char piece[4096];
        ssize_t got = 0;
        while ((got = ::recv(m_socket, piece, sizeof piece, 0)) > 0)
            all.append(piece, static_cast<size_t>(got));
        m_error = got < 0 ? errno : 0;
        return all;
    }
    int Error() const { return m_error; }

private:
    int m_socket;
    bool m_connected = false;
    int m_error = 0;
};

class Server : public testing::Test {
protected:
    Server() : server(site), port(server.Bind(0)), serving([this] { ok = server.Run(); }) {}
    ~Server() override { End(); }

    void End() {
        server.Stop();
        if (serving.joinable())
            serving.join();
    }
    // As a browser asks through its proxy.
    httplib::Result Through(const std::string& host, const std::string& path) {
        httplib::Client client(host);
        client.set_proxy("127.0.0.1", port);
        return client.Get(path);
    }
    void Control(const std::string& line) {
        httplib::Client client("control.myspace.example.com");
        client.set_proxy("127.0.0.1", port);
        const auto answer = client.Post("/control", {{"Sec-Practice-Control", "1"}}, line, "text/plain");
        ASSERT_TRUE(answer);
        ASSERT_EQ(answer->status, 200) << answer->body;
    }
    std::string Raw(const std::string& request) {
        RawSocket raw(port);
        raw.Send(request);
        return raw.ReadAll();
    }

    PracticeSite site;
    ProxyServer server;
    int port;
    bool ok = false;
    std::thread serving;
};

TEST_F(Server, AnswersWholeAddressesAsAProxyDoes) {
    const auto page = Through("www.myspace.example.com", "/browse/people?page=2");
    ASSERT_TRUE(page);
    EXPECT_EQ(page->status, 200);
    EXPECT_NE(page->body.find("Showing 41-80 of"), std::string::npos);
}

TEST_F(Server, AnswersDirectRequestsByTheirHostHeader) {
    const std::string answer = Raw(
        "GET /version.htm HTTP/1.1\r\nHost: product.myspace.example.com:8080\r\nConnection: close\r\n\r\n");
    EXPECT_EQ(answer.rfind("HTTP/1.1 200", 0), 0U) << answer;
    EXPECT_NE(answer.find("version 0.0.0"), std::string::npos);
}

TEST_F(Server, TheHostInTheAddressOutranksTheHeader) {
    const std::string answer = Raw("GET http://product.myspace.example.com/online.htm HTTP/1.1\r\n"
                                   "Host: example.org\r\nConnection: close\r\n\r\n");
    EXPECT_EQ(answer.rfind("HTTP/1.1 200", 0), 0U) << answer;
}

TEST_F(Server, RefusesStrangeHostsAndTunnels) {
    EXPECT_EQ(Raw("GET http://example.org/ HTTP/1.1\r\nHost: example.org\r\nConnection: close\r\n\r\n")
                  .rfind("HTTP/1.1 403", 0),
              0U);
    EXPECT_EQ(Raw("GET / HTTP/1.1\r\nHost: 127.0.0.1\r\nConnection: close\r\n\r\n").rfind("HTTP/1.1 403", 0),
              0U);
    EXPECT_EQ(Raw("CONNECT example.org:443 HTTP/1.1\r\nHost: example.org:443\r\nConnection: close\r\n\r\n")
                  .rfind("HTTP/1.1 405", 0),
              0U);
}

TEST_F(Server, SignsInAndKeepsTheSession) {
    httplib::Client client("login.myspace.example.com");
    client.set_proxy("127.0.0.1", port);
    const auto answer =
        client.Post("/index.cfm?fuseaction=login.process",
                    "ctl00$Main$Email_Textbox=a@example.com&ctl00$Main$Password_Textbox=secret",
                    "application/x-www-form-urlencoded");
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->status, 302);
    const std::string cookie = answer->get_header_value("Set-Cookie");
    httplib::Client home("home.myspace.example.com");
    home.set_proxy("127.0.0.1", port);
    const auto page =
        home.Get("/index.cfm?fuseaction=home", {{"Cookie", cookie.substr(0, cookie.find(';'))}});
    ASSERT_TRUE(page);
    EXPECT_NE(page->body.find("\"UserId\":900001,"), std::string::npos);
}

TEST_F(Server, SeveralRequestsShareAConnection) {
    const std::string one = "GET http://product.myspace.example.com/online.htm HTTP/1.1\r\nHost: x\r\n\r\n";
    const std::string last = "GET http://product.myspace.example.com/version.htm HTTP/1.1\r\nHost: x\r\n"
                             "Connection: close\r\n\r\n";
    const std::string answers = Raw(one + one + last);
    EXPECT_NE(answers.find("version 0.0.0"), std::string::npos) << answers;
}

TEST_F(Server, AResetBreaksTheConnectionWithoutAWord) {
    Control("fault www.myspace.example.com/100003 reset");
    RawSocket raw(port);
    raw.Send("GET http://www.myspace.example.com/100003 HTTP/1.1\r\nHost: x\r\n\r\n");
    EXPECT_EQ(raw.ReadAll(), "");
    EXPECT_EQ(raw.Error(), ECONNRESET);
}

TEST_F(Server, AnAnswerWithoutABodyHasHeadersOnly) {
    Control("fault www.myspace.example.com/100003 nobody");
    const auto page = Through("www.myspace.example.com", "/100003");
    ASSERT_TRUE(page);
    EXPECT_EQ(page->status, 200);
    EXPECT_EQ(page->body, "");
}

TEST_F(Server, PagesThatHangHoldUpNobodyAndEndWithTheServer) {
    Control("fault www.myspace.example.com/100003 hang");
    std::vector<std::unique_ptr<RawSocket>> hung;
    for (int i = 0; i < 40; ++i) {
        hung.push_back(std::make_unique<RawSocket>(port));
        ASSERT_TRUE(hung.back()->Connected());
        hung.back()->Send("GET http://www.myspace.example.com/100003 HTTP/1.1\r\nHost: x\r\n\r\n");
    }
    const auto page = Through("www.myspace.example.com", "/100004");
    ASSERT_TRUE(page);
    EXPECT_EQ(page->status, 200);
    End();
    EXPECT_TRUE(ok);
    for (const auto& raw : hung) {
        EXPECT_EQ(raw->ReadAll(), "");
        EXPECT_NE(raw->Error(), EAGAIN);
    }
}

TEST_F(Server, ASlowPageDoesNotOutliveTheServer) {
    Control("fault www.myspace.example.com/100003 slow 600000");
    RawSocket raw(port);
    raw.Send("GET http://www.myspace.example.com/100003 HTTP/1.1\r\nHost: x\r\n\r\n");
    End();
    raw.ReadAll();
    EXPECT_NE(raw.Error(), EAGAIN);
}

TEST(ServerStop, MayComeBeforeServingHasBegun) {
    PracticeSite site;
    ProxyServer server(site);
    ASSERT_GT(server.Bind(0), 0);
    server.Stop();
    server.Run();
}

TEST(ServerPort, ThatIsTakenIsRefused) {
    PracticeSite site;
    ProxyServer first(site);
    ProxyServer second(site);
    const int port = first.Bind(0);
    std::thread serving([&first] { first.Run(); });
    EXPECT_EQ(second.Bind(port), -1);
    first.Stop();
    serving.join();
}

class Program : public testing::Test {
protected:
    void Start(const QStringList& arguments) {
        process.start(QStringLiteral(PRACTICE_SITE_PROGRAM), arguments);
        ASSERT_TRUE(process.waitForStarted());
        while (!process.canReadLine())
            ASSERT_TRUE(process.waitForReadyRead()) << process.readAllStandardError().toStdString();
        const QString line = QString::fromUtf8(process.readLine()).trimmed();
        ASSERT_TRUE(line.startsWith(u"port "_s)) << line.toStdString();
        port = line.sliced(5).toInt();
    }

    QProcess process;
    int port = 0;
};

TEST_F(Program, SaysItsPortServesAndEndsWithItsInput) {
    ASSERT_NO_FATAL_FAILURE(Start({u"--port"_s, u"0"_s, u"--seed"_s, u"7"_s}));
    httplib::Client client("www.myspace.example.com");
    client.set_proxy("127.0.0.1", port);
    const auto page = client.Get("/100001");
    ASSERT_TRUE(page);
    SiteClient seventh(7);
    EXPECT_EQ(FirstBetween(QString::fromStdString(page->body), u"<title>"_s, u"</title>"_s),
              FirstBetween(seventh.Text(SiteClient::root + u"/100001"_s), u"<title>"_s, u"</title>"_s));
    process.closeWriteChannel();
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 0);
}

TEST_F(Program, RefusesOptionsItDoesNotKnow) {
    process.start(QStringLiteral(PRACTICE_SITE_PROGRAM), {u"--port"_s, u"abc"_s});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 2);
}

} // namespace
} // namespace qlm::practice
