// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;

// Runs the checks of a campaign's tab in their order; campaign is its word. The first that fails is told to
// the user, with its tab and field shown, and the answer is false.
bool CampaignMayStart(App& app, const QString& campaign);
// Whether this version can send messages, alone or behind a friend request.
bool HasMessenger(const App& app);

} // namespace qlm
