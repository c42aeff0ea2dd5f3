// SPDX-License-Identifier: MIT
#include "platform/qt/QtPlatform.h"
#include "NoDialogs.h"
#include "PrintText.h"

#include <QFile>
#include <QNetworkProxy>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

class QtPlatformTest : public ::testing::Test {
protected:
    ~QtPlatformTest() override { QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy); }

    QtPlatformOptions Options(const QByteArray& deployment) {
        QFile file(folder.path() + u"/deployment.ini"_s);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(deployment);
        return {folder.path() + u'/', folder.path() + u"/data"_s, {}};
    }

    QTemporaryDir folder;
    NoDialogs dialogs;
};

TEST_F(QtPlatformTest, FoldersAndDeploymentAreAsTheProgramExpectsThem) {
    QtPlatform platform(Options("[Hosts]\nSiteDomain=site.example.com\n"), dialogs);
    EXPECT_EQ(platform.InstallationFolder(), folder.path());
    EXPECT_EQ(platform.SpecialFolderPath(28), folder.path() + u"/data/"_s);
    EXPECT_EQ(platform.SpecialFolderPath(27), QString());
    EXPECT_TRUE(platform.DeploymentText().contains(u"SiteDomain=site.example.com"_s));
    EXPECT_EQ(platform.StartProblem(), QString());
    EXPECT_TRUE(QFile::exists(folder.path() + u"/data/Quillmere/quillmere.ini"_s));
}

TEST_F(QtPlatformTest, AMissingDeploymentIsTold) {
    QtPlatform platform({folder.path(), folder.path(), {}}, dialogs);
    EXPECT_TRUE(platform.StartProblem().contains(u"deployment.ini"_s));
}

TEST_F(QtPlatformTest, ADeploymentThatIsNoOrdinaryFileOrNoPlainTextIsTold) {
    const QString pipe = folder.filePath(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_TRUE(QtPlatform({folder.path(), folder.path(), pipe}, dialogs)
                    .StartProblem()
                    .contains(u"not an ordinary file"_s));
    EXPECT_TRUE(
        QtPlatform(Options(QByteArray("\xFF\xFE[\0N\0", 6)), dialogs).StartProblem().contains(u"UTF-16"_s));
    QtPlatform marked(Options("\xEF\xBB\xBF[Network]\nProxy=127.0.0.1:4712\n"), dialogs);
    EXPECT_EQ(QNetworkProxy::applicationProxy().port(), 4712);
}

TEST_F(QtPlatformTest, TheDeploymentsProxyIsUsed) {
    QtPlatform platform(Options("[Network]\nProxy=127.0.0.1:4711\n"), dialogs);
    EXPECT_EQ(QNetworkProxy::applicationProxy().hostName(), u"127.0.0.1"_s);
    EXPECT_EQ(QNetworkProxy::applicationProxy().port(), 4711);
}

TEST_F(QtPlatformTest, EachBrowserIsMadeOnceAndHasItsOwnView) {
    QtPlatform platform(Options(""), dialogs);
    QtBrowser& first = platform.Browser(BrowserName::WebBrowser1);
    EXPECT_EQ(&first, &platform.Browser(BrowserName::WebBrowser1));
    EXPECT_NE(platform.ViewOf(BrowserName::WebBrowser1), platform.ViewOf(BrowserName::webHide));
    // A window that goes first takes the view along.
    delete platform.ViewOf(BrowserName::WebBrowser1);
    EXPECT_EQ(first.View(), nullptr);
}

#ifdef PRACTICE_SITE
TEST_F(QtPlatformTest, APracticeSiteThatDiesIsStartedAgainAtItsPort) {
    QtPlatform platform(Options("[Network]\nProxy=practice\n"), dialogs);
    QList<bool> told;
    platform.onPracticeSite = [&] { told += platform.PracticeSiteRuns(); };
    QtPump& pump = platform.Pump();
    const auto pumpUntil = [&](qsizetype changes) {
        for (const qint64 end = pump.NowMs() + 20'000; told.size() < changes && pump.NowMs() < end;) {
            pump.PumpMessages();
            pump.Sleep(10);
        }
    };
    for (int death = 1; death <= 3; ++death) {
        const qint64 process = platform.PracticeSiteProcess();
        ASSERT_GT(process, 0);
        ::kill(static_cast<pid_t>(process), SIGKILL);
        pumpUntil(2 * death);
        ASSERT_EQ(told.size(), 2 * death);
        EXPECT_FALSE(told[2 * death - 2]);
        EXPECT_TRUE(told[2 * death - 1]);
        EXPECT_NE(platform.PracticeSiteProcess(), process);
        EXPECT_TRUE(platform.Http().Get(u"http://product.myspace.example.com/online.htm"_s));
    }
}

TEST_F(QtPlatformTest, ThePracticeSiteIsStartedAndReachedUnderItsNames) {
    QtPlatform platform(Options("[Network]\nProxy=practice\n"), dialogs);
    ASSERT_EQ(platform.StartProblem(), QString());
    QtBrowser& browser = platform.Browser(BrowserName::WebBrowser1);
    browser.Navigate(u"www.myspace.example.com/"_s);
    QtPump& pump = platform.Pump();
    const qint64 end = pump.NowMs() + 10'000;
    QString text;
    while (!text.contains(u"password?"_s, Qt::CaseInsensitive) && pump.NowMs() < end) {
        pump.PumpMessages();
        pump.Sleep(10);
        const Document document = browser.Document();
        text = document && document.Body() ? document.BodyText() : QString();
    }
    EXPECT_TRUE(text.contains(u"password?"_s, Qt::CaseInsensitive)) << text.toStdString();
    EXPECT_EQ(browser.LocationURL(), u"http://www.myspace.example.com/"_s);
    const std::optional<QString> online =
        platform.Http().Get(u"http://product.myspace.example.com/online.htm"_s);
    EXPECT_TRUE(online && online->contains(u"ok"_s));
}
#endif

} // namespace qlm
