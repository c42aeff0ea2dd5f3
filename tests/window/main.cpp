// SPDX-License-Identifier: MIT
#include "Gatherer.h"
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
    if (argc == 3 && QByteArray(argv[1]) == "--gatherer")
        return qlm::RunGatherer(QString::fromLocal8Bit(argv[2]));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
