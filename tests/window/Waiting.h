// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace qlm {

constexpr int GenerousMs = 60 * 1000;

// Turns the event loop until the condition holds; false when the time is over.
bool WaitUntil(const std::function<bool()>& condition, int limitMs = GenerousMs);

// Lets so much time pass, for moments that are meant to lie between two events of the program.
void LetPass(int milliseconds);

} // namespace qlm
