// SPDX-License-Identifier: MIT
#include "platform/qt/QtPlatform.h"

#include "core/Deployment.h"
#include "core/Descriptor.h"
#include "core/FileSystem.h"
#include "platform/qt/EngineProfile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QNetworkProxy>
#include <QStandardPaths>
#include <QWebEngineProfile>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

QString WithoutTrailingSeparator(const QString& path) {
    return QDir::cleanPath(path);
}

QString LocalDataFolder(const QString& chosen) {
    const QString path =
        chosen.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) : chosen;
    return WithoutTrailingSeparator(path) + u'/';
}

} // namespace

QString QtPlatform::DataFolder(const QString& localDataFolder) {
    return LocalDataFolder(localDataFolder) + u"Quillmere"_s;
}

QtPlatform::QtPlatform(const QtPlatformOptions& options, qlm::Dialogs& dialogs)
    : m_installationFolder(WithoutTrailingSeparator(options.installationFolder)),
      m_localDataFolder(LocalDataFolder(options.localDataFolder)),
      m_dialogs(dialogs),
      m_pump(options.clockRate),
      m_settings(DataFolder(options.localDataFolder)),
      m_http(m_pump),
      m_shell(m_pump),
      m_tray(m_pump) {
    m_attention.SetTray(&m_tray);
    ReadDeployment(options.deploymentFile.isEmpty() ? m_installationFolder + u"/deployment.ini"_s
                                                    : options.deploymentFile);
    SetProxy();
}

QtPlatform::~QtPlatform() {
    m_browsers.clear();
}

void QtPlatform::ReadDeployment(const QString& fileName) {
    try {
        const QByteArray bytes = FileSystem().ReadBytes(fileName);
        MarkLength(bytes, fileName);
        m_deploymentText = QString::fromUtf8(bytes);
    } catch (const FileError& error) {
        m_startProblem = u"%1 could not be read: %2"_s.arg(fileName, QString::fromUtf8(error.what()));
    }
}

void QtPlatform::SetProxy() {
    const Deployment deployment(m_deploymentText);
    const QString proxy = deployment.Value(u"Proxy"_s);
    if (proxy.isEmpty())
        return;
    QString host = proxy.section(u':', 0, 0);
    quint16 port = proxy.section(u':', 1, 1).toUShort();
    if (deployment.UsesPracticeSite()) {
        m_practice = std::make_unique<PracticeServer>(QCoreApplication::applicationDirPath() +
                                                      u"/quillmere-practice-site"_s);
        m_startProblem += m_practice->Problem();
        m_practice->onChange = [this] {
            m_pump.Queue().Post([this] {
                if (onPracticeSite)
                    onPracticeSite();
            });
        };
        host = u"127.0.0.1"_s;
        // Without the site nothing is to be found under the names either: a proxy that refuses says so at
        // once.
        port = m_practice->Port() == 0 ? quint16(9) : m_practice->Port();
    }
    QNetworkProxy::setApplicationProxy(QNetworkProxy(QNetworkProxy::HttpProxy, host, port));
}

QtBrowser& QtPlatform::Browser(BrowserName name) {
    if (!m_profile) {
        ConfineEngine(QNetworkProxy::applicationProxy());
        m_profile = CreateEngineProfile(&m_profileOwner);
    }
    std::unique_ptr<QtBrowser>& browser = m_browsers[name];
    if (!browser) {
        browser = std::make_unique<QtBrowser>(m_pump, *m_profile);
        if (name == BrowserName::webPreview)
            browser->Seal();
    }
    return *browser;
}

QString QtPlatform::SpecialFolderPath(int id) const {
    constexpr int localApplicationData = 28;
    return id == localApplicationData ? m_localDataFolder : QString();
}

QString QtPlatform::TemporaryFolder() const {
    return QDir::tempPath();
}

} // namespace qlm
