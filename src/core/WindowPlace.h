// SPDX-License-Identifier: MIT
#pragma once

namespace qlm {

// Where the main window stands on the screen, in logical pixels.
struct WindowPlace {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool maximized = false;
    bool minimized = false;
};

} // namespace qlm
