// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace qlm {

// The program as its main() puts it together, in this process, timed from startNs (see NowNs()): prints
// "login MS", "window MS" and, once it is at rest on the home page, "resident KB". Signs in by itself.
int RunStartedProgram(int argc, char** argv, long long startNs);

// A window with one view of the engine and nothing else, at rest on a page of the practice site: "resident
// KB".
int RunBareWindow(int argc, char** argv);

constexpr int RestMs = 3000;

} // namespace qlm
