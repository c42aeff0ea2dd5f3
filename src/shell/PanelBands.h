// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <initializer_list>

class QLayout;
class QWidget;

namespace qlm {

class Commands;

// What a panel of the control panel is made of.
struct PanelBands {
    QLayout* options; // scrolls where the window is too low for it
    QLayout* run;     // start, stop and counters: always in sight
    QLayout* tools;   // below everything
    // Room to spare goes to the run band, which holds a list, and not to the options.
    bool runGrows = false;
};

// Small buttons side by side: those that have something to do.
QLayout* NewToolRow(const Commands& commands, std::initializer_list<QLatin1StringView> names);

// The panel of that name.
QWidget* NewPanel(QLatin1StringView name, const PanelBands& bands);

} // namespace qlm
