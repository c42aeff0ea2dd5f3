// SPDX-License-Identifier: MIT
// Plays scenarios on the simulated browser. The engine is in a program of its own beside this one, so that
// nobody waits for it to be loaded who doesn't need it.
#include "Runner.h"

#include <QString>
#include <cstdio>
#include <unistd.h>

int main(int argc, char* argv[]) {
    using namespace qlm::scenario;
    if (WantsEngine(argc, argv)) {
        const QString own = QString::fromLocal8Bit(argv[0]);
        ::execvp(qPrintable(own + QStringLiteral("-engine")), argv);
        std::fputs("this build has no web engine: quillmere-scenario-engine is missing\n", stderr);
        return 2;
    }
    return RunScenarios(
        argc, argv,
        {[](qlm::SimWorld& world, qlm::Dialogs& dialogs, int) { return MakeSimMachine(world, dialogs); },
         [](const std::vector<Command>&) { return QString(); }});
}
