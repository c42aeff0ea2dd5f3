// SPDX-License-Identifier: MIT
#pragma once

#include "Arguments.h"

#include <QLatin1StringView>
#include <vector>

namespace qlm::scenario {

class Stage;

// One row a command. name holds one or more leading words ("click", "expect no message"); the longest that
// fits wins.
//
// arguments says what follows, one word each: control, item (of a menu), form, field (of the run state),
// browser, number, duration, command, word (any), or the words themselves, as "front|back". What ends in "?"
// may be missing; "*" is whatever is left.
struct CommandRow {
    const char* name;
    const char* arguments;
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

// The row whose name the words begin with, and how many words that are; null when there is none.
struct FoundCommand {
    const CommandRow* row = nullptr;
    int words = 0;
};
FoundCommand FindCommand(const QStringList& words);

// Runs the command; throws ScenarioFailure when there is none of that name.
void RunCommand(Stage& stage, Arguments& arguments);

} // namespace qlm::scenario
