// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace qlm {

class App;

// The panel of the tab "Friend Requester": how many, send and stop, and what has been sent.
class picFriendRequester : public QWidget {
public:
    explicit picFriendRequester(const App& app);
};

} // namespace qlm
