// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <vector>

namespace qlm {

// A tab of the control panel: its caption, the drawing beside it, and the name of its panel, by which the
// window finds the panel's builder.
struct Tab {
    const char16_t* caption = nullptr;
    const char* image = nullptr;
    const char* panel = nullptr;
};

// In the order in which they stand (ControlsTable.cpp).
const std::vector<Tab>& Tabs();
QStringList TabCaptions();

} // namespace qlm
