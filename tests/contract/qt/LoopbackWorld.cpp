// SPDX-License-Identifier: MIT
#include "LoopbackWorld.h"

#include <QFile>
#include <QNetworkProxy>
#include <QSet>
#include <QSysInfo>
#include <QTcpSocket>
#include <QUrl>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// Every way in which a page can ask for an address; h is "HOST:PORT". Those of the second list follow a
// redirect.
constexpr const char* Ways = R"JS(
    const add = (tag, set) => document.body.appendChild(Object.assign(document.createElement(tag), set));
    const quietly = way => { try { Promise.resolve(way()).catch(() => 0); } catch (e) {} };
    const send = address => { const sink = add('iframe', {name: 'sink' + document.forms.length});
        add('form', {method: 'post', target: sink.name, action: address}).submit(); };
    const call = servers => { const peer = new RTCPeerConnection({iceServers: servers});
        peer.createDataChannel('x');
        return peer.createOffer().then(o => peer.setLocalDescription(o)).then(() => peer); };
    const answer = async (h, protocol) => { const one = await call([]), other = new RTCPeerConnection();
        await other.setRemoteDescription(one.localDescription);
        await other.setLocalDescription(await other.createAnswer());
        await one.setRemoteDescription(other.localDescription);
        const at = h.lastIndexOf(':'), host = h.slice(0, at).replace(/[[\]]/g, ''), port = h.slice(at + 1);
        await one.addIceCandidate({sdpMid: '0', sdpMLineIndex: 0, candidate: 'candidate:1 1 ' + protocol +
            ' 1518280447 ' + host + ' ' + port + ' typ host' + (protocol == 'tcp' ? ' tcptype passive' : '')}); };
    const askWays = h => [
        () => add('link', {rel: 'preconnect', href: 'http://' + h}),
        () => add('link', {rel: 'dns-prefetch', href: 'http://' + h}),
        () => add('iframe', {srcdoc: '<img src="http://' + h + '/inner">'}),
        () => add('iframe', {srcdoc: '<meta http-equiv=refresh content="0;url=http://' + h + '/refresh">'}),
        () => add('iframe', {srcdoc: '<script>location = "http://' + h + '/location"<' + '/script>'}),
        () => new WebSocket('ws://' + h + '/socket'),
        () => new WebTransport('https://' + h + '/transport').ready,
        () => call([{urls: 'stun:' + h}]),
        () => call([{urls: 'turn:' + h + '?transport=tcp', username: 'x', credential: 'x'}]),
        () => answer(h, 'udp'),
        () => answer(h, 'tcp'),
    ];
    const followWays = a => [
        () => add('img', {src: a + '?img'}),
        () => add('script', {src: a + '?script'}),
        () => add('link', {rel: 'stylesheet', href: a + '?style'}),
        () => add('iframe', {src: a + '?frame'}),
        () => add('object', {data: a + '?object'}),
        () => add('video', {src: a + '?video'}),
        () => fetch(a + '?fetch', {mode: 'no-cors'}),
        () => { const x = new XMLHttpRequest(); x.open('POST', a + '?xhr'); x.send('x'); },
        () => navigator.sendBeacon(a + '?beacon', 'x'),
        () => new EventSource(a + '?events'),
        () => new Worker(URL.createObjectURL(new Blob(
            ['fetch("' + a + '?worker", {mode: "no-cors"}).catch(() => 0)']))),
        () => send(a + '?form'),
    ];
    const loadWays = a => [
        () => add('link', {rel: 'preload', as: 'script', href: a + '?preload'}),
        () => add('link', {rel: 'prefetch', href: a + '?prefetch'}),
        () => add('link', {rel: 'icon', href: a + '?icon'}),
    ];
    const attack = hosts => { for (const h of hosts) for (const way of
        [...askWays(h), ...followWays('http://' + h + '/'), ...loadWays('http://' + h + '/')]) quietly(way); };
    const follow = paths => { for (const path of paths) for (const way of
        followWays(location.origin + path)) quietly(way); };
)JS";
constexpr int FollowWays = 12;
constexpr int MoveKinds = 5;

LoopbackAnswer Redirect(int status, const QByteArray& address) {
    LoopbackAnswer answer;
    answer.status = status;
    answer.headers = "Cache-Control: no-store\r\nLocation: " + address + "\r\n";
    return answer;
}

// A page that goes elsewhere by itself.
LoopbackAnswer Move(int kind, const QByteArray& address) {
    LoopbackAnswer answer;
    if (kind < 2)
        return Redirect(kind == 0 ? 302 : 307, address);
    if (kind == 2)
        answer.headers = "Refresh: 0;url=" + address + "\r\n";
    if (kind == 3)
        answer.body = "<meta http-equiv=refresh content='0;url=" + address + "'>";
    if (kind == 4)
        answer.body = "<body><script>location = '" + address + "'</script>";
    return answer;
}

QByteArray Quoted(const QList<QByteArray>& texts) {
    return "['" + texts.join("','") + "']";
}

} // namespace

Listener::Listener() {
    m_tcp.setProxy(QNetworkProxy::NoProxy);
    m_udp.setProxy(QNetworkProxy::NoProxy);
    EXPECT_TRUE(m_tcp.listen(QHostAddress::Any));
    EXPECT_TRUE(m_udp.bind(QHostAddress::Any, m_tcp.serverPort()));
    QObject::connect(&m_tcp, &QTcpServer::newConnection, &m_tcp, [this] {
        while (QTcpSocket* socket = m_tcp.nextPendingConnection()) {
            heard += u"connection"_s;
            QObject::connect(socket, &QTcpSocket::readyRead, socket,
                             [this, socket] { heard += QString::fromLatin1(socket->readLine()).trimmed(); });
        }
    });
    QObject::connect(&m_udp, &QUdpSocket::readyRead, &m_udp, [this] {
        while (m_udp.hasPendingDatagrams())
            m_udp.readDatagram(nullptr, 0);
        heard += u"datagram"_s;
    });
}

QList<QByteArray> Listener::Spellings() const {
    QList<QByteArray> hosts = {"127.0.0.1",  "127.8.9.10",  "localhost",  "[::1]",
                               "0.0.0.0",    "127.1",       "[::]",       "2130706433",
                               "0x7f000001", "x.localhost", "localhost.", "[::ffff:127.0.0.1]"};
    hosts += QSysInfo::machineHostName().toLatin1();
    for (QByteArray& host : hosts)
        host += ':' + QByteArray::number(Port());
    return hosts;
}

LoopbackWorld::LoopbackWorld(LoopbackServer& server, const QString& stranger, const QByteArray& deployment)
    : site(server), m_stranger(stranger) {
    site.Clear();
    QFile file(folder.filePath(u"deployment.ini"_s));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Network]\n" + deployment);
    file.close();
    platform.emplace(QtPlatformOptions{folder.path(), folder.filePath(u"data"_s), {}}, dialogs);
    platform->Browser(BrowserName::WebBrowser1).SetSilent(true);
}

LoopbackWorld::~LoopbackWorld() {
    platform.reset();
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
}

bool LoopbackWorld::WaitUntil(const std::function<bool()>& condition) {
    QtPump& pump = platform->Pump();
    for (const qint64 end = pump.NowMs() + 30'000; !condition() && pump.NowMs() < end;) {
        pump.PumpMessages();
        pump.Sleep(10);
    }
    return condition();
}

void LoopbackWorld::Open(const QString& path) {
    platform->Browser(BrowserName::WebBrowser1).Navigate(u"http://"_s + m_stranger + path);
}

void LoopbackWorld::Visit(const QByteArray& script) {
    LoopbackAnswer page;
    page.body = "<body>attack<script>" + QByteArray(Ways) + script +
                "\nsetTimeout(() => fetch('/over'), 1500);</script>";
    Answer(u"/attack"_s, page);
    Open(u"/attack"_s);
    const bool isOver = WaitUntil([this] { return Count(u"/over"_s) > 0; });
    QStringList asked;
    for (const LoopbackRequest& request : site.Requests())
        asked += request.method + u' ' + request.url;
    ASSERT_TRUE(isOver) << asked.join(u'\n').toStdString();
}

void LoopbackWorld::AskForTheMachine() {
    Listener listener;
    ASSERT_NO_FATAL_FAILURE(Visit("attack(" + Quoted(listener.Spellings()) + ");"));
    EXPECT_EQ(listener.heard.join(u'\n').toStdString(), "");
}

void LoopbackWorld::FollowRedirects() {
    Listener listener;
    QList<QByteArray> paths;
    for (const QByteArray& host : listener.Spellings())
        for (const int status : {302, 307}) {
            paths += "/away/" + QByteArray::number(paths.size());
            Answer(QString::fromLatin1(paths.back()), Redirect(status, "http://" + host + "/away"));
        }
    ASSERT_NO_FATAL_FAILURE(Visit("follow(" + Quoted(paths) + ");"));
    EXPECT_TRUE(WaitUntil([&] { return AskedQueries() == FollowWays * paths.size(); })) << AskedQueries();
    // What answers next is asked after the last redirect.
    site.Clear();
    ASSERT_NO_FATAL_FAILURE(Visit(""));
    EXPECT_EQ(listener.heard.join(u'\n').toStdString(), "");
}

// A page's second try of the same way doesn't count.
qsizetype LoopbackWorld::AskedQueries() const {
    QSet<QString> asked;
    for (const LoopbackRequest& request : site.Requests())
        if (const QUrl url(request.url); url.hasQuery())
            asked += url.path() + u'?' + url.query();
    return asked.size();
}

void LoopbackWorld::MoveThePage() {
    Listener listener;
    QtBrowser& browser = platform->Browser(BrowserName::WebBrowser1);
    int moves = 0;
    for (const QByteArray& host : listener.Spellings())
        for (int kind = 0; kind < MoveKinds; ++kind) {
            const QString path = u"/move/%1"_s.arg(++moves);
            Answer(path, Move(kind, "http://" + host + path.toLatin1()));
            Open(path);
            EXPECT_TRUE(WaitUntil([&] {
                const QUrl shown(browser.LocationURL());
                return shown.port() == listener.Port() && shown.path() == path && !browser.Busy();
            })) << kind
                << ' ' << host.toStdString() << ' ' << browser.LocationURL().toStdString();
            EXPECT_EQ(Count(path), 1);
        }
    ASSERT_NO_FATAL_FAILURE(Visit(""));
    EXPECT_EQ(listener.heard.join(u'\n').toStdString(), "");
}

} // namespace qlm
