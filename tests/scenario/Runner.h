// SPDX-License-Identifier: MIT
#pragma once

#include "Machine.h"

class QApplication;

namespace qlm::scenario {

// How the scenarios of a command line are played.
struct Playing {
    // speed: how many times faster than the wall's clock the program's goes.
    std::function<std::unique_ptr<Machine>(SimWorld&, Dialogs&, int speed)> makeMachine;
    // Why a scenario can't be played on that machine; empty when it can.
    std::function<QString(const std::vector<struct Command>& script)> refusal;
};

// The command line asks for the real engine.
bool WantsEngine(int argc, char* argv[]);
// Plays the files of the command line and tells how they went; answers the exit status.
int RunScenarios(int argc, char* argv[], const Playing& playing);

} // namespace qlm::scenario
