// SPDX-License-Identifier: MIT
#pragma once

#include "core/WindowPlace.h"
#include "shell/ControlBinder.h"

#include <QMainWindow>

namespace qlm {

class App;
class BrowserViews;
class WindowDialogs;

// The main window: browser on one side, the tabs of the control panel on the other, with menu, address bar
// and status lines around them. It decides nothing; closing it runs Form_Unload. Owned by WindowDialogs.
class frmMain : public QMainWindow {
public:
    frmMain(App& app, WindowDialogs& dialogs, BrowserViews& views);
    ~frmMain() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;

private:
    void ConnectMainForm();
    WindowPlace Place() const;
    void SetPlace(const WindowPlace& place);
    void SettleOnScreen();

    App& m_app;
    WindowDialogs& m_dialogs;
    ControlBinder m_binder;
    bool m_isSettled = false;
    bool m_comesUpMaximized = false;
};

} // namespace qlm
