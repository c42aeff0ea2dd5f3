// SPDX-License-Identifier: MIT
// What a page may reach on the user's own machine: nothing but the site of the deployment, under its names.
#include "LoopbackServer.h"
#include "NoDialogs.h"
#include "PrintText.h"
#include "platform/qt/LoopbackGuard.h"
#include "platform/qt/QtPlatform.h"

#include <QFile>
#include <QNetworkProxy>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QUdpSocket>
#include <gtest/gtest.h>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Stranger = u"www.stranger.example.com"_s;

// Every way in which a page can ask for an address, one a line; H stands for "HOST:PORT".
constexpr const char* Ways = R"JS(
    const add = (tag, set) => document.body.appendChild(Object.assign(document.createElement(tag), set));
    const ways = h => [
        () => add('img', {src: 'http://' + h + '/img'}),
        () => add('script', {src: 'http://' + h + '/script'}),
        () => add('link', {rel: 'stylesheet', href: 'http://' + h + '/style'}),
        () => add('link', {rel: 'preconnect', href: 'http://' + h}),
        () => add('link', {rel: 'prefetch', href: 'http://' + h + '/prefetch'}),
        () => add('iframe', {src: 'http://' + h + '/frame'}),
        () => add('iframe', {srcdoc: '<img src="http://' + h + '/inner">'}),
        () => add('object', {data: 'http://' + h + '/object'}),
        () => add('video', {src: 'http://' + h + '/video'}),
        () => fetch('http://' + h + '/fetch', {mode: 'no-cors'}).catch(() => 0),
        () => { const x = new XMLHttpRequest(); x.open('POST', 'http://' + h + '/xhr'); x.send('x'); },
        () => navigator.sendBeacon('http://' + h + '/beacon', 'x'),
        () => new WebSocket('ws://' + h + '/socket'),
        () => new EventSource('http://' + h + '/events'),
        () => new Worker(URL.createObjectURL(new Blob(
            ['fetch("http://' + h + '/worker", {mode: "no-cors"}).catch(() => 0)']))),
        () => new WebTransport('https://' + h + '/transport').ready.catch(() => 0),
        () => { add('iframe', {name: 'sink'}); const form = add('form', {method: 'post', target: 'sink',
            action: 'http://' + h + '/form'}); form.submit(); },
        () => { const peer = new RTCPeerConnection({iceServers: [{urls: 'stun:' + h}]});
            peer.createDataChannel('x'); peer.createOffer().then(o => peer.setLocalDescription(o)); },
    ];
    const attack = hosts => { for (const host of hosts) for (const way of ways(host)) try { way(); } catch (e) {} };
)JS";

// Hears whatever arrives at one port of this machine, by either protocol.
class Listener {
public:
    Listener() {
        m_tcp.setProxy(QNetworkProxy::NoProxy);
        m_udp.setProxy(QNetworkProxy::NoProxy);
        EXPECT_TRUE(m_tcp.listen(QHostAddress::Any));
        EXPECT_TRUE(m_udp.bind(QHostAddress::Any, m_tcp.serverPort()));
        QObject::connect(&m_tcp, &QTcpServer::newConnection, &m_tcp, [this] {
            QTcpSocket* socket = m_tcp.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket,
                             [this, socket] { heard += QString::fromLatin1(socket->readLine()).trimmed(); });
            heard += u"connection"_s;
        });
        QObject::connect(&m_udp, &QUdpSocket::readyRead, &m_udp, [this] {
            while (m_udp.hasPendingDatagrams())
                m_udp.readDatagram(nullptr, 0);
            heard += u"datagram"_s;
        });
    }
    quint16 Port() const { return m_tcp.serverPort(); }
    QStringList heard;

private:
    QTcpServer m_tcp;
    QUdpSocket m_udp;
};

class EngineLoopback : public ::testing::Test {
protected:
    EngineLoopback() {
        QFile file(folder.filePath(u"deployment.ini"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[Network]\nProxy=127.0.0.1:" + QByteArray::number(site.Port()) + "\n");
        file.close();
        platform.emplace(QtPlatformOptions{folder.path(), folder.filePath(u"data"_s), {}}, dialogs);
        platform->Browser(BrowserName::WebBrowser1).SetSilent(true);
    }
    ~EngineLoopback() override {
        platform.reset();
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
    }

    // The page runs the script and then asks its own site for "/over".
    void Visit(const QByteArray& script) {
        LoopbackAnswer page;
        page.body = "<body>attack<script>" + QByteArray(Ways) + script +
                    "\nsetTimeout(() => fetch('/over'), 1500);</script>";
        site.Answer(Stranger + u"/attack"_s, page);
        platform->Browser(BrowserName::WebBrowser1).Navigate(u"http://"_s + Stranger + u"/attack"_s);
        QtPump& pump = platform->Pump();
        const qint64 end = pump.NowMs() + 30'000;
        while (site.CountRequests(Stranger + u"/over"_s) == 0 && pump.NowMs() < end) {
            pump.PumpMessages();
            pump.Sleep(10);
        }
        QStringList asked;
        for (const LoopbackRequest& request : site.Requests())
            asked += request.method + u' ' + request.url;
        ASSERT_EQ(site.CountRequests(Stranger + u"/over"_s), 1) << asked.join(u'\n').toStdString();
    }

    LoopbackServer site;
    QTemporaryDir folder;
    NoDialogs dialogs;
    std::optional<QtPlatform> platform;
};

} // namespace

TEST(LoopbackGuardTest, KnowsTheMachineAndItsCableByEverySpelling) {
    for (const char* host :
         {"127.0.0.1", "127.9.8.7", "localhost", "LOCALHOST", "localhost.", "x.localhost",
          "localhost.localdomain", "::1", "::", "0.0.0.0", "0.1.2.3", "127.1", "2130706433", "0x7f.0.0.1",
          "0177.0.0.1", "::ffff:127.0.0.1", "::ffff:7f00:1", "169.254.1.1", "fe80::1"})
        EXPECT_TRUE(LoopbackGuard::IsNear(QString::fromLatin1(host))) << host;
    for (const char* host : {"www.myspace.example.com", "localhost.example.com", "mylocalhost", "128.0.0.1",
                             "10.0.0.1", "192.168.1.1", "1.127.0.0", "2001:db8::1", "127.example.com"})
        EXPECT_FALSE(LoopbackGuard::IsNear(QString::fromLatin1(host))) << host;
}

TEST_F(EngineLoopback, APageReachesNoPortOfTheMachine) {
    Listener listener;
    QByteArray hosts;
    for (const char* host : {"127.0.0.1", "localhost", "[::1]", "0.0.0.0", "127.1", "2130706433",
                             "0x7f000001", "x.localhost", "[::ffff:127.0.0.1]"})
        hosts += "'" + QByteArray(host) + ":" + QByteArray::number(listener.Port()) + "',";
    ASSERT_NO_FATAL_FAILURE(Visit("attack([" + hosts + "]);"));
    EXPECT_EQ(listener.heard, QStringList());
}

#ifdef PRACTICE_SITE
// The controls stand at a host that the proxy knows, so a page can ask for them; they are to refuse it.
TEST_F(EngineLoopback, APageCannotSteerThePracticeSite) {
    PracticeServer practice(QStringLiteral(PRACTICE_SITE));
    site.ForwardUnknownTo(practice.Port());
    LoopbackAnswer over;
    site.Answer(Stranger + u"/over"_s, over);
    ASSERT_NO_FATAL_FAILURE(Visit(R"JS(
        const controls = 'http://control.myspace.example.com/control';
        const line = 'fault www.myspace.example.com/ error';
        fetch(controls, {method: 'POST', mode: 'no-cors', body: line}).catch(() => 0);
        fetch(controls, {method: 'POST', body: line, headers: {'Sec-Practice-Control': '1'}}).catch(() => 0);
        fetch(controls, {method: 'POST', body: line, headers: {'X-Practice-Control': '1'}}).catch(() => 0);
        navigator.sendBeacon(controls, line);
        add('iframe', {name: 'sink'});
        const form = add('form', {method: 'post', target: 'sink', action: controls, enctype: 'text/plain'});
        form.appendChild(Object.assign(document.createElement('input'), {name: line}));
        form.submit();
    )JS"));
    int asked = 0;
    for (const LoopbackRequest& request : site.Requests())
        asked += request.url.startsWith(u"http://control."_s) && request.method == u"POST"_s ? 1 : 0;
    EXPECT_GE(asked, 3);
    const auto front = platform->Http().Get(u"http://www.myspace.example.com/"_s);
    ASSERT_TRUE(front);
    EXPECT_FALSE(front->contains(u"server error"_s, Qt::CaseInsensitive));
    EXPECT_TRUE(front->contains(u"password"_s, Qt::CaseInsensitive));
}
#endif

} // namespace qlm
