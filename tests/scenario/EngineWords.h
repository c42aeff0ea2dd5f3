// SPDX-License-Identifier: MIT
#pragma once

#include "Command.h"

namespace qlm::scenario {

// What of a scenario only the simulated browser understands, with its place; empty when the real engine can
// play it.
QString WordOfSimulationAlone(const std::vector<Command>& script);

} // namespace qlm::scenario
