// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace qlm::scenario {

// One command of a scenario file as it was written: words with quotes undone, {names} not yet replaced.
struct Command {
    QString file;
    int line = 0;
    QString source; // the line, for the failure's report
    QStringList words;
    // The last word came from <<END lines; its lines are joined by "\n".
    bool lastIsText = false;
    std::vector<Command> block; // of "on"
};

// Something is wrong with the scenario or with what it saw. Deliberately no std::exception: it must pass
// through the program's own error traps.
struct ScenarioFailure {
    QString text;
    // Where the text itself can't be tied to a running command: a file that does not parse.
    QString file;
    int line = 0;
    QString source = {}; // the line as it stands there
};

} // namespace qlm::scenario
