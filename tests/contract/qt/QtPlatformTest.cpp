// SPDX-License-Identifier: MIT
#include "platform/qt/QtPlatform.h"
#include "PrintText.h"

#include <QFile>
#include <QNetworkProxy>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// The platform only hands the dialogs on.
class NoDialogs final : public Dialogs {
public:
    Answer ShowMessage(const QString&, const QString&, Buttons) override { return Answer::Cancel; }
    QString ChooseFileToOpen(const QString&, const QString&) override { return {}; }
    QString ChooseFileToSave(const QString&, const QString&, const QString&) override { return {}; }
    void ShowModal(const QString&) override {}
    void ShowForm(const QString&) override {}
    void CloseForm(const QString&) override {}
    bool IsFormOpen(const QString&) const override { return false; }
    QStringList OpenForms() const override { return {}; }
    bool CloseWindowTitled(const QString&) override { return false; }
};

} // namespace

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
