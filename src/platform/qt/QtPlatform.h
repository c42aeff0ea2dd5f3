// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Platform.h"
#include "platform/qt/PracticeServer.h"
#include "platform/qt/QtBrowser.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/QtHttp.h"
#include "platform/qt/QtSettings.h"
#include "platform/zip/ZipArchive.h"

#include <functional>
#include <map>

namespace qlm {

struct QtPlatformOptions {
    // Where the program's files lie; holds deployment.ini.
    QString installationFolder;
    // The folder of local application data; empty for the user's own.
    QString localDataFolder;
    // Another deployment.ini than the installed one.
    QString deploymentFile;
    // How many times faster than the wall's clock the logic's goes.
    int clockRate = 1;
};

// The platform of the product: the real engine, clock, network and desktop. One at a time, made after the
// QApplication and living longer than the App; PrepareEngine() was called before both.
//
// When the deployment names a proxy, everything goes through it. The proxy "practice" is the bundled practice
// site, which is started here and ends with the platform.
class QtPlatform final : public Platform {
public:
    QtPlatform(const QtPlatformOptions& options, qlm::Dialogs& dialogs);
    ~QtPlatform() override;

    QtPump& Pump() override { return m_pump; }
    qlm::Dialogs& Dialogs() override { return m_dialogs; }
    qlm::Http& Http() override { return m_http; }
    SettingsStore& Settings() override { return m_settings; }
    qlm::Shell& Shell() override { return m_shell; }
    QtAttention& Attention() override { return m_attention; }
    QtTray& Tray() override { return m_tray; }
    ZipArchive& Archive() override { return m_archive; }
    qlm::Random& Random() override { return m_random; }
    qlm::Desktop& Desktop() override { return m_desktop; }
    QtBrowser& Browser(BrowserName name) override;

    QString InstallationFolder() const override { return m_installationFolder; }
    QString SpecialFolderPath(int id) const override;
    QString TemporaryFolder() const override;
    QString DeploymentText() const override { return m_deploymentText; }

    // Where the program keeps its data in that folder of local application data; empty for the user's own.
    static QString DataFolder(const QString& localDataFolder);
    // The widget that shows the page, for the window to put in its place. Taking it over is allowed.
    QWidget* ViewOf(BrowserName name) { return Browser(name).View(); }
    // What went wrong before there was a window to tell it; empty when nothing did.
    QString StartProblem() const { return m_startProblem; }
    // False while the practice site, where the deployment has one, is not there to answer.
    bool PracticeSiteRuns() const { return !m_practice || m_practice->IsRunning(); }
    qint64 PracticeSiteProcess() const { return m_practice ? m_practice->ProcessId() : 0; }
    // Told from the pump whenever that changes.
    std::function<void()> onPracticeSite;

private:
    void ReadDeployment(const QString& fileName);
    void SetProxy();

    QString m_installationFolder;
    QString m_localDataFolder;
    QString m_deploymentText;
    QString m_startProblem;
    qlm::Dialogs& m_dialogs;
    QtPump m_pump;
    QtSettings m_settings;
    std::unique_ptr<PracticeServer> m_practice;
    QtHttp m_http;
    QtShell m_shell;
    QtTray m_tray;
    QtAttention m_attention;
    ZipArchive m_archive;
    QtRandom m_random;
    QtDesktop m_desktop;
    // Pages must go before their profile.
    QObject m_profileOwner;
    QWebEngineProfile* m_profile = nullptr;
    std::map<BrowserName, std::unique_ptr<QtBrowser>> m_browsers;
};

} // namespace qlm
