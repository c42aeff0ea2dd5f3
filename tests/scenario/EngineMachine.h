// SPDX-License-Identifier: MIT
#pragma once

#include "Machine.h"

namespace qlm::scenario {

// The real engine on the scenario's pages. The clock is the world's, which goes speed times faster than the
// wall's.
std::unique_ptr<Machine> MakeEngineMachine(SimWorld& world, Dialogs& dialogs, int speed);

} // namespace qlm::scenario
