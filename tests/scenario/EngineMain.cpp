// SPDX-License-Identifier: MIT
// Plays scenarios on the real engine.
#include "EngineMachine.h"
#include "EngineWords.h"
#include "Runner.h"
#include "platform/qt/EngineProfile.h"

#include <unistd.h>

int main(int argc, char* argv[]) {
    if (::geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    qputenv("QT_LOGGING_RULES", "qt.webenginecontext=false");
    qlm::PrepareEngine();
    return qlm::scenario::RunScenarios(
        argc, argv, {qlm::scenario::MakeEngineMachine, qlm::scenario::WordOfSimulationAlone});
}
