// SPDX-License-Identifier: MIT
#include "platform/qt/EngineProfile.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    qlm::PrepareEngine();
    QApplication application(argc, argv);
    application.setQuitOnLastWindowClosed(false);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
