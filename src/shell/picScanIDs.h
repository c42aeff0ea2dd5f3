// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace qlm {

class ControlBinder;
class App;

// The panel of the tab "Gather ID's": how to gather, the gathered list and its upkeep.
class picScanIDs : public QWidget {
public:
    // The binder runs the items of the list's own menu.
    picScanIDs(const App& app, ControlBinder& binder);
};

} // namespace qlm
