// SPDX-License-Identifier: MIT
#include "platform/qt/EngineProfile.h"

#include <QApplication>
#include <gtest/gtest.h>
#include <unistd.h>

int main(int argc, char** argv) {
    // Both for this process and for the programs it starts. The engine's sandbox doesn't work for root.
    if (::geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("QT_LOGGING_RULES"))
        qputenv("QT_LOGGING_RULES", "qt.webenginecontext.*=false");
    qlm::PrepareEngine();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
