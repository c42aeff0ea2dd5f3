// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace qlm {

double Median(std::vector<double> values);
// "name   12.3 ms   (11.9 to 13.0)"
void PrintSpread(const char* name, const std::vector<double>& values, const char* unit);
// "name   1.09   goal 1.15: met"
void PrintAgainstGoal(const char* name, double value, double goal, const char* unit);

// Monotonic, the same clock in every process.
long long NowNs();
// Resident memory of this process, in kB.
long ResidentKb();

} // namespace qlm
