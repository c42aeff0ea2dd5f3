// SPDX-License-Identifier: MIT
#pragma once

#include "core/WindowPlace.h"
#include "shell/ControlBinder.h"

#include <QMainWindow>

class QTabWidget;
class QToolButton;

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
    QWidget* NewControlPanel();
    QWidget* NewContent(BrowserViews& views);
    QWidget* NewTab(const QString& caption);
    void picCollapse_Click();
    void ConnectMainForm();
    WindowPlace Place() const;
    void SetPlace(const WindowPlace& place);
    void SettleOnScreen();
    void OnChange(const Control& control, Controls::Change change);

    App& m_app;
    WindowDialogs& m_dialogs;
    ControlBinder m_binder;
    QTabWidget* m_tabs = nullptr;
    QToolButton* m_collapse = nullptr;
    bool m_isSettled = false;
    bool m_comesUpMaximized = false;
    int m_listener;
};

} // namespace qlm
