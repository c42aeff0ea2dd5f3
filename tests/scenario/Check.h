// SPDX-License-Identifier: MIT
#pragma once

#include "Command.h"

namespace qlm::scenario {

class KnownNames;

// What of a script can't be meant, without running any of it: commands that there are not, words too many or
// too few; with names also controls, forms, menu items and fields of the run state that there are not. Names
// that "let" sets are looked at only when the script runs.
std::vector<ScenarioFailure> ProblemsOf(const std::vector<Command>& script, const KnownNames* names);

} // namespace qlm::scenario
