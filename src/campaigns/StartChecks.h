// SPDX-License-Identifier: MIT
#pragma once

namespace qlm {

class App;

// Runs the checks of the friend requester's tab in their order. The first that fails is told to the user,
// with its tab and field shown, and the answer is false.
bool FriendRequestMayStart(App& app);

} // namespace qlm
