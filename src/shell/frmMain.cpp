// SPDX-License-Identifier: MIT
#include "shell/frmMain.h"

#include "core/App.h"
#include "core/SettingsFields.h"
#include "program/MainForm.h"
#include "shell/AddressBar.h"
#include "shell/BrowserStack.h"
#include "shell/FormParts.h"
#include "shell/MainMenu.h"
#include "shell/PictureButtons.h"
#include "shell/PictureIcon.h"
#include "shell/StatusAreas.h"
#include "shell/WindowDialogs.h"
#include "shell/picFriendRequester.h"
#include "shell/picScanIDs.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QWindow>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize StartingSize{1400, 860};
constexpr int PanelWidth = 360;
const QString WaitPointer = u"11"_s;

// On a small screen a panel scrolls down rather than forcing the window to be tall; it always has its full
// width.
class PanelArea : public QScrollArea {
public:
    explicit PanelArea(QWidget* panel) {
        setWidget(panel);
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        // It follows what has the focus in it and needs none of its own.
        setFocusPolicy(Qt::NoFocus);
    }

    QSize minimumSizeHint() const override {
        const int bar = verticalScrollBar()->sizeHint().width();
        return {widget()->minimumSizeHint().width() + bar, QScrollArea::minimumSizeHint().height()};
    }
};

// A screen that is gone or smaller now must not hide the window.
QRect Within(const QRect& available, QRect rect) {
    rect.setSize(rect.size().boundedTo(available.size()));
    rect.moveLeft(std::clamp(rect.left(), available.left(), available.right() + 1 - rect.width()));
    rect.moveTop(std::clamp(rect.top(), available.top(), available.bottom() + 1 - rect.height()));
    return rect;
}

} // namespace

frmMain::frmMain(App& app, WindowDialogs& dialogs, BrowserViews& views)
    : m_app(app), m_dialogs(dialogs), m_binder(app, {}, [&dialogs] { return dialogs.MessageCount(); }) {
    setObjectName(u"frmMain"_s);
    setWindowTitle(u"Quillmere"_s);
    auto* column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(new AddressBar(app));
    column->addWidget(new ActivityStrip(app));
    column->addWidget(NewContent(views), 1);
    column->addWidget(new FootLine);
    auto* centre = new QWidget;
    centre->setLayout(column);
    setCentralWidget(centre);
    FillMenuBar(*menuBar(), app, m_binder);
    m_binder.BindAll(*this);
    m_tabs->setFocus();
    resize(StartingSize.boundedTo(screen()->availableSize()));

    m_listener = m_app.controls.AddListener(
        [this](const Control& control, Controls::Change change, int) { OnChange(control, change); });
    ConnectMainForm();
}

frmMain::~frmMain() {
    m_app.controls.RemoveListener(m_listener);
    m_app.Get<SettingsFields>().getPlace = nullptr;
    m_app.Get<SettingsFields>().setPlace = nullptr;
    m_app.Get<MainForm>().setTitle = nullptr;
}

void frmMain::ConnectMainForm() {
    m_app.Get<SettingsFields>().getPlace = [this] { return Place(); };
    m_app.Get<SettingsFields>().setPlace = [this](const WindowPlace& place) { SetPlace(place); };
    m_app.Get<MainForm>().setTitle = [this](const QString& title) { setWindowTitle(title); };
}

// Each panel goes by the caption of its tab.
QWidget* frmMain::NewTab(const QString& caption) {
    if (caption == "Gather ID's"_L1)
        return new PanelArea(new picScanIDs(m_app, m_binder));
    if (caption == "Friend Requester"_L1)
        return new PanelArea(new picFriendRequester(m_app));
    throw std::logic_error("No panel for the tab " + caption.toStdString());
}

QWidget* frmMain::NewControlPanel() {
    m_tabs = Named(new QTabWidget, "TabStrip1"_L1, u"Control panel"_s);
    for (const QString& caption : m_app.controls.Items("TabStrip1"_L1))
        m_tabs->addTab(NewTab(caption), caption);
    m_tabs->setDocumentMode(true);
    m_tabs->tabBar()->setAccessibleName(u"Control panel"_s);
    return m_tabs;
}

QWidget* frmMain::NewContent(BrowserViews& views) {
    m_collapse = NewPictureButton("picCollapse"_L1, Caption::None);
    m_collapse->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    m_collapse->setIconSize({12, 12});
    connect(m_collapse, &QToolButton::clicked, this, [this] { picCollapse_Click(); });
    auto* right = new QWidget;
    auto* row = new QHBoxLayout(right);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_collapse);
    row->addWidget(new BrowserStack(m_app, views), 1);

    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(NewControlPanel());
    splitter->addWidget(right);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({PanelWidth, StartingSize.width() - PanelWidth});
    return splitter;
}

void frmMain::picCollapse_Click() {
    const bool show = m_tabs->isHidden();
    m_tabs->setVisible(show);
    m_collapse->setIcon(PictureIcon(show ? u"COLLAPSE_LEFT"_s : u"UNCOLLAPSE_RIGHT"_s));
    const QString words = show ? u"Fold the control panel away"_s : u"Show the control panel"_s;
    m_collapse->setToolTip(words);
    m_collapse->setAccessibleName(words);
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (!m_app.Get<MainForm>().Form_Unload()) {
        event->ignore();
        return;
    }
    m_dialogs.MainClosed();
    event->accept();
}

bool frmMain::event(QEvent* event) {
    const bool isHandled = QMainWindow::event(event);
    if (event->type() == QEvent::WindowActivate && !m_isSettled) {
        m_isSettled = true;
        SettleOnScreen();
    }
    return isHandled;
}

// What only a window that stands on the screen can do: some window managers forget that it is to come up
// maximised, and how wide their frame is, is known only now. Its title bar must not lie above the screen, nor
// push the foot below it.
void frmMain::SettleOnScreen() {
    if (m_comesUpMaximized)
        setWindowState(windowState() | Qt::WindowMaximized);
    if (isMaximized() || isMinimized())
        return;
    const QRect room = screen()->availableGeometry().marginsRemoved(windowHandle()->frameMargins());
    if (const QRect place = Within(room, geometry()); place != geometry())
        setGeometry(place);
}

WindowPlace frmMain::Place() const {
    const QRect rect = isMaximized() || isMinimized() ? normalGeometry() : geometry();
    return {rect.left(), rect.top(), rect.width(), rect.height(), isMaximized(), isMinimized()};
}

void frmMain::SetPlace(const WindowPlace& place) {
    QRect rect(place.left, place.top, place.width, place.height);
    const QScreen* where = QApplication::screenAt(rect.center());
    rect.setSize(rect.size().expandedTo(minimumSizeHint()));
    setGeometry(Within((where ? where : screen())->availableGeometry(), rect));
    m_comesUpMaximized = place.maximized;
    if (place.maximized)
        setWindowState(windowState() | Qt::WindowMaximized);
}

void frmMain::OnChange(const Control& control, Controls::Change change) {
    if (control.name != "MousePointer"_L1 || change != Controls::Change::Text)
        return;
    if (control.text == WaitPointer)
        setCursor(Qt::WaitCursor);
    else
        unsetCursor();
}

} // namespace qlm
