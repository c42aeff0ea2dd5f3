// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

// This process and everything that it has started, apart from programs of the given name.
struct ProgramFigures {
    // The sum of the proportional set sizes: pages that several of the processes share count once.
    double memoryMb = 0;
    // What they have written of it. The rest comes from files, which other programs with an engine share:
    // what counts of that here goes up and down with them.
    double writtenMb = 0;
    // Processor time so far, of processes that have ended too.
    double processorMs = 0;
    int processes = 0;
};

ProgramFigures FiguresOfProgram(const QString& without);

} // namespace qlm
