// SPDX-License-Identifier: MIT
#include "Figures.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <string>

namespace qlm {

double Median(std::vector<double> values) {
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    const size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

void PrintSpread(const char* name, const std::vector<double>& values, const char* unit) {
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    if (least != values.end())
        std::printf("%-44s %9.1f %s   (%.1f to %.1f, %zu times)\n", name, Median(values), unit, *least, *most,
                    values.size());
}

void PrintAgainstGoal(const char* name, double value, double goal, const char* unit) {
    std::printf("%-44s %9.2f %s   goal %.2f: %s\n", name, value, unit, goal,
                value <= goal ? "met" : "MISSED");
}

long long NowNs() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1'000'000'000LL + now.tv_nsec;
}

long ResidentKb() {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word)
        if (word == "VmRSS:") {
            long kb = 0;
            status >> kb;
            return kb;
        }
    return 0;
}

} // namespace qlm
