// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sim/SimBrowser.h"
#include "platform/sim/SimServices.h"
#include "platform/zip/ZipArchive.h"

#include <map>
#include <memory>

namespace qlm {

// What stays when the simulated program ends and starts again: time, network, settings, chance, folders. Set
// up by a test before the platform is made, and at any time after.
struct SimWorld {
    VirtualClock clock;
    SimWeb web;
    SimHttpAnswers http;
    SimSettings settings;
    SimRandom random;
    SimWriteGate gate;
    QString installationFolder;
    QString dataFolder; // local application data, with or without a trailing separator
    QString deploymentText;
};

// The platform of one run of the simulated program. The dialogs are the creator's: a recording double in unit
// tests, the real forms in scenarios.
class SimPlatform : public Platform {
public:
    SimPlatform(SimWorld& world, qlm::Dialogs& dialogs);

    SimPump& Pump() override { return m_pump; }
    qlm::Dialogs& Dialogs() override { return m_dialogs; }
    SimHttp& Http() override { return m_http; }
    SimSettings& Settings() override { return m_world.settings; }
    SimShell& Shell() override { return m_shell; }
    SimAttention& Attention() override { return m_attention; }
    SimTray& Tray() override { return m_tray; }
    ZipArchive& Archive() override { return m_archive; }
    SimRandom& Random() override { return m_world.random; }
    SimDesktop& Desktop() override { return m_desktop; }
    SimBrowser& Browser(BrowserName name) override;
    SimWriteGate* WriteGate() override { return &m_world.gate; }
    QString InstallationFolder() const override { return m_world.installationFolder; }
    QString SpecialFolderPath(int id) const override;
    QString TemporaryFolder() const override { return m_world.dataFolder + QStringLiteral("/temp"); }
    QString DeploymentText() const override { return m_world.deploymentText; }

private:
    SimWorld& m_world;
    qlm::Dialogs& m_dialogs;
    SimPump m_pump;
    SimHttp m_http;
    SimShell m_shell;
    SimAttention m_attention;
    SimTray m_tray;
    ZipArchive m_archive;
    SimDesktop m_desktop;
    std::map<BrowserName, std::unique_ptr<SimBrowser>> m_browsers;
};

} // namespace qlm
