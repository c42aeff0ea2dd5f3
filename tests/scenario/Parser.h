// SPDX-License-Identifier: MIT
#pragma once

#include "Command.h"

namespace qlm::scenario {

// Reads a scenario file with everything that it includes. "repeat" is written out, "on" keeps its block.
// Throws ScenarioFailure with file and line.
std::vector<Command> ParseScenarioFile(const QString& path);

// The same from a text; include is looked for beside path.
std::vector<Command> ParseScenario(const QString& text, const QString& path);

// The words of one line. Text in double quotes knows \n, \" and \\, other backslashes stand for themselves;
// quotes may stand inside a word (name="a b"). A remark begins with "#": as the first sign of the line, or
// after a word and followed by a blank ("#id" is a word there).
QStringList SplitWords(const QString& line);

} // namespace qlm::scenario
