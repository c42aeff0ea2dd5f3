// SPDX-License-Identifier: MIT
#pragma once

#include "Arguments.h"

#include <QLatin1StringView>
#include <vector>

namespace qlm::scenario {

class Stage;

// One row a command. name holds one or more leading words ("click", "expect no message"); the longest that
// fits wins.
struct CommandRow {
    const char* name;
    void (*run)(Stage& stage, Arguments& arguments);
};

using CommandRows = std::vector<CommandRow>;

// One table a theme, each in the file of its theme.
const CommandRows& SettingUpCommands();
const CommandRows& SettingUpSiteCommands();
const CommandRows& ActingCommands();
const CommandRows& ActingInPageCommands();
const CommandRows& RunningCommands();
const CommandRows& ExpectingWindowCommands();
const CommandRows& ExpectingControlCommands();
const CommandRows& ExpectingSiteCommands();
const CommandRows& ExpectingStoreCommands();

// Runs the command; throws ScenarioFailure when there is none of that name.
void RunCommand(Stage& stage, Arguments& arguments);

} // namespace qlm::scenario
