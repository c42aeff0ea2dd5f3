// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MessageQueue.h"

#include <QString>

namespace qlm {

class App;

// The process's entry point and what it settles before any window is there: folders, product server, login
// screen.
class StartUp {
public:
    explicit StartUp(App& app);

    // Called once by main, before the message loop. A failure of one step doesn't stop the next.
    void Main();

private:
    void SettleFolders();
    bool TestUserRights();
    void BringInstalledFiles();
    void TestServerOnline();
    void LookUpServer();
    void Launch(const QString& mark);

    App& m_app;
    Timer m_slowServer; // runs while the product server is asked; shows frmStarting
};

} // namespace qlm
