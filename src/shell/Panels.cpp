// SPDX-License-Identifier: MIT
#include "shell/Panels.h"

#include <QString>
#include <stdexcept>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct PanelRow {
    QLatin1StringView name;
    QWidget* (*build)(App&, ControlBinder&);
};

constexpr PanelRow Panels[] = {
    {"picScanIDs"_L1, BuildScanIDs},
    {"picFriendRequester"_L1, BuildFriendRequester},
    {"picMessanger"_L1, BuildMessenger},
    {"picCommentor"_L1, BuildCommenter},
    {"picBulletin"_L1, BuildBulletin},
    {"picStatusUpdater"_L1, BuildStatusUpdater},
    {"picAcceptFriends"_L1, BuildAcceptFriends},
    {"picInvite"_L1, BuildInvite},
};

} // namespace

QWidget* BuildPanel(QLatin1StringView name, App& app, ControlBinder& binder) {
    for (const PanelRow& panel : Panels)
        if (name == panel.name)
            return panel.build(app, binder);
    throw std::logic_error("No panel is named " + QString(name).toStdString());
}

} // namespace qlm
