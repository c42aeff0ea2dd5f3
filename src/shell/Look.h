// SPDX-License-Identifier: MIT
#pragma once

class QApplication;

namespace qlm {

// Gives the application its style sheet and its icon. Called once by main.
void ApplyLook(QApplication& application);

} // namespace qlm
