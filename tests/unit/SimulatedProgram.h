// SPDX-License-Identifier: MIT
#pragma once

#include "core/App.h"
#include "platform/sim/RecordingDialogs.h"
#include "platform/sim/SimPlatform.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace qlm {

// A test's own program on the simulated platform: folders of its own, no window, nobody logged in yet.
class SimulatedProgram : public testing::Test {
protected:
    SimulatedProgram() {
        world.installationFolder = folder.filePath(QStringLiteral("program"));
        world.dataFolder = folder.filePath(QStringLiteral("data"));
        QDir().mkpath(world.installationFolder);
        QDir().mkpath(world.dataFolder);
        StartOn(QStringLiteral("SiteRootHost=www.example.com\n"
                               "ProductServer=http://product.example.com\n"
                               "ProductServerAlternate=http://product2.example.com\n"));
    }

    // A program that has read this deployment file, in the place of the one before.
    void StartOn(const QString& deploymentText) {
        world.deploymentText = deploymentText;
        app.reset();
        app.emplace(platform.emplace(world, dialogs));
        app->state.ProgramFolder = world.installationFolder;
        app->state.DataFolder = world.dataFolder;
        app->state.ErrorLogPath = app->DataFile(QStringLiteral("Error.log"));
        app->state.ServerBaseURL = QStringLiteral("http://product.example.com");
    }

    // A page of the site that has arrived in WebBrowser1.
    void Show(const QString& url, const QString& body) {
        world.web.SetPage(url, QStringLiteral("<html><body>") + body + QStringLiteral("</body></html>"));
        app->WebBrowser1().Navigate(url);
        platform->Pump().RunFor(1000);
    }

    QTemporaryDir folder;
    SimWorld world;
    RecordingDialogs dialogs;
    std::optional<SimPlatform> platform;
    std::optional<App> app;
};

} // namespace qlm

// So that a failed comparison shows the text.
inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}
