// SPDX-License-Identifier: MIT
// Plays scenarios on the simulated browser. The engine is in a program of its own beside this one, so that
// nobody waits for it to be loaded who doesn't need it.
#include "Runner.h"

#include <QString>
#include <algorithm>
#include <cstdio>
#include <sys/resource.h>
#include <unistd.h>

namespace {

// What lays one wait upon another without end then overflows in hours of virtual time, not in days. The
// sanitizers' frames are too large for that.
void KeepStackSmall() {
#ifndef __SANITIZE_ADDRESS__
    constexpr rlim_t bytes = 1024 * 1024;
    rlimit limit{};
    if (::getrlimit(RLIMIT_STACK, &limit) != 0)
        return;
    limit.rlim_cur = std::min(limit.rlim_cur, bytes);
    ::setrlimit(RLIMIT_STACK, &limit);
#endif
}

} // namespace

int main(int argc, char* argv[]) {
    using namespace qlm::scenario;
    if (WantsEngine(argc, argv)) {
        const QString own = QString::fromLocal8Bit(argv[0]);
        ::execvp(qPrintable(own + QStringLiteral("-engine")), argv);
        std::fputs("this build has no web engine: quillmere-scenario-engine is missing\n", stderr);
        return 2;
    }
    KeepStackSmall();
    return RunScenarios(
        argc, argv,
        {[](qlm::SimWorld& world, qlm::Dialogs& dialogs, int) { return MakeSimMachine(world, dialogs); },
         [](const std::vector<Command>&) { return QString(); }});
}
