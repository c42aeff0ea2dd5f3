// SPDX-License-Identifier: MIT
#include "LoopbackServer.h"
#include "PrintText.h"
#include "platform/qt/PracticeServer.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/QtHttp.h"

#include <QNetworkProxy>
#include <QTcpSocket>
#include <gtest/gtest.h>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

class QtHttpTest : public ::testing::Test {
protected:
    void SetUp() override { QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy); }
    void Serve(const QString& path, const QByteArray& body,
               LoopbackAnswer::Fault fault = LoopbackAnswer::Fault::None) {
        LoopbackAnswer answer;
        answer.body = body;
        answer.fault = fault;
        answer.contentType = "text/plain";
        server.Answer(path, answer);
    }

    LoopbackServer server;
    QtPump pump;
    QtHttp http{pump, 500};
};

TEST_F(QtHttpTest, TheWholeAnswerArrivesWhateverItsSize) {
    QByteArray body;
    while (body.size() < 300'000)
        body += "a line of text\n";
    Serve(u"/version.htm"_s, body);
    EXPECT_EQ(http.Get(server.Address(u"/version.htm"_s)), QString::fromLatin1(body));
    const std::vector<LoopbackRequest> requests = server.Requests();
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_EQ(requests[0].method, u"GET"_s);
    EXPECT_EQ(requests[0].Header("User-Agent"), u"VB"_s);
}

TEST_F(QtHttpTest, EveryAskGoesPastTheCache) {
    Serve(u"/online.htm"_s, "first");
    Serve(u"/online.htm"_s, "second");
    EXPECT_EQ(http.Get(server.Address(u"/online.htm"_s)), u"first"_s);
    EXPECT_EQ(http.Get(server.Address(u"/online.htm"_s)), u"second"_s);
}

TEST_F(QtHttpTest, AnAnswerWithAnErrorStatusIsAnAnswer) {
    EXPECT_EQ(http.Get(server.Address(u"/nowhere"_s)), u"<body>no such page</body>"_s);
}

TEST_F(QtHttpTest, WhatCannotBeReachedGivesNothing) {
    Serve(u"/reset"_s, "", LoopbackAnswer::Fault::Reset);
    Serve(u"/hang"_s, "", LoopbackAnswer::Fault::Hang);
    EXPECT_EQ(http.Get(server.Address(u"/reset"_s)), std::nullopt);
    EXPECT_EQ(http.Get(server.Address(u"/hang"_s)), std::nullopt);
    EXPECT_EQ(http.Get(u"http://127.0.0.1:1/"_s), std::nullopt);
    EXPECT_EQ(http.Get(u"not an address"_s), std::nullopt);
}

TEST_F(QtHttpTest, MessagesArePumpedWhileItWaits) {
    int fired = 0;
    Timer timer(pump.Queue(), 20, true, [&] { ++fired; });
    LoopbackAnswer slow;
    slow.body = "late";
    slow.delayMs = 200;
    server.Answer(u"/slow"_s, slow);
    EXPECT_EQ(http.Get(server.Address(u"/slow"_s)), u"late"_s);
    EXPECT_GE(fired, 3);
}

TEST(QtAttentionTest, WithoutWindowFileOrLoudspeakerNothingHappens) {
    QtAttention attention;
    attention.PlayWAV(u"/nowhere/sound.wav"_s);
    attention.FlashWindow();
    attention.RestoreWindow();
    QWidget window;
    attention.SetWindow(&window);
    window.showMinimized();
    attention.FlashWindow();
    attention.RestoreWindow();
    EXPECT_FALSE(window.isMinimized());
}

// Offscreen there is no tray.
TEST(QtTrayTest, ADesktopWithoutATraySaysSo) {
    QtPump pump;
    QtTray tray(pump);
    QtAttention attention;
    EXPECT_FALSE(attention.Notify(u"Quillmere"_s, u"A word is asked for"_s));
    attention.SetTray(&tray);
    EXPECT_FALSE(tray.Show(u"Quillmere"_s, {u"Show"_s, u"Exit"_s}));
    EXPECT_FALSE(tray.IsShown());
    EXPECT_FALSE(attention.Notify(u"Quillmere"_s, u"A word is asked for"_s));
    tray.Hide();
}

TEST(QtRandomTest, NumbersLieInTheUnitInterval) {
    QtRandom random;
    double lowest = 1.0;
    double highest = 0.0;
    for (int i = 0; i < 1000; ++i) {
        const double number = random.Next();
        lowest = std::min(lowest, number);
        highest = std::max(highest, number);
    }
    EXPECT_GE(lowest, 0.0);
    EXPECT_LT(highest, 1.0);
    EXPECT_GT(highest - lowest, 0.5);
}

TEST(PracticeServerTest, AMissingProgramIsTold) {
    const PracticeServer server(u"/nowhere/quillmere-practice-site"_s);
    EXPECT_EQ(server.Port(), 0);
    EXPECT_TRUE(server.Problem().contains(u"/nowhere/quillmere-practice-site"_s));
}

TEST(PracticeServerTest, AProgramThatTellsNoPortIsTold) {
    const PracticeServer server(u"/bin/true"_s);
    EXPECT_EQ(server.Port(), 0);
    EXPECT_FALSE(server.Problem().isEmpty());
}

#ifdef PRACTICE_SITE
TEST(PracticeServerTest, TheSiteAnswersUntilItsOwnerIsGone) {
    quint16 port = 0;
    {
        const PracticeServer server(QStringLiteral(PRACTICE_SITE));
        ASSERT_EQ(server.Problem(), QString());
        port = server.Port();
        QTcpSocket socket;
        socket.setProxy(QNetworkProxy::NoProxy);
        socket.connectToHost(u"127.0.0.1"_s, port);
        EXPECT_TRUE(socket.waitForConnected(5000));
    }
    QTcpSocket socket;
    socket.setProxy(QNetworkProxy::NoProxy);
    socket.connectToHost(u"127.0.0.1"_s, port);
    EXPECT_FALSE(socket.waitForConnected(5000));
}
#endif

} // namespace qlm
