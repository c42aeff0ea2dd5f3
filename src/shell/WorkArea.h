// SPDX-License-Identifier: MIT
#pragma once

#include "core/Controls.h"

#include <QWidget>

class QSplitter;
class QStackedWidget;
class QToolButton;

namespace qlm {

class App;
class BrowserViews;
class ControlBinder;
class TabStrip;

// The middle of the main window: the strip of tabs, the panel of the chosen one, and the browser. The panel
// can be folded away; the strip stays, and a click on it brings the panel back.
class WorkArea : public QWidget {
public:
    WorkArea(App& app, ControlBinder& binder, BrowserViews& views, QWidget* parent);
    ~WorkArea() override;

    void FocusTabs();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* NewStripColumn();
    void AddPanels(ControlBinder& binder);
    void Fold(bool isFolded);
    void ShareWidth();

    App& m_app;
    TabStrip* m_strip;
    QWidget* m_stripColumn = nullptr;
    QToolButton* m_collapse;
    QStackedWidget* m_panels;
    QSplitter* m_splitter;
    // The user has given the panel a width of their own.
    bool m_isDragged = false;
    int m_listener;
};

} // namespace qlm
