// SPDX-License-Identifier: MIT
#pragma once

class QMenuBar;

namespace qlm {

class App;
class ControlBinder;

// Fills the menu bar with the items that have something to do, and binds them. A menu without such an item is
// left out.
void FillMenuBar(QMenuBar& bar, const App& app, ControlBinder& binder);

} // namespace qlm
