// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>

class QWidget;

namespace qlm {

class App;
class ControlBinder;

// The panel of that name (Tabs.h), laid out and not yet bound. The binder runs the items of menus that belong
// to a list in it. Throws std::logic_error on an unknown name.
QWidget* BuildPanel(QLatin1StringView name, App& app, ControlBinder& binder);

// The builders, one a file.
QWidget* BuildScanIDs(App& app, ControlBinder& binder);
QWidget* BuildFriendRequester(App& app, ControlBinder& binder);
QWidget* BuildMessenger(App& app, ControlBinder& binder);
QWidget* BuildCommenter(App& app, ControlBinder& binder);
QWidget* BuildBulletin(App& app, ControlBinder& binder);
QWidget* BuildStatusUpdater(App& app, ControlBinder& binder);
QWidget* BuildAcceptFriends(App& app, ControlBinder& binder);
QWidget* BuildInvite(App& app, ControlBinder& binder);

} // namespace qlm
