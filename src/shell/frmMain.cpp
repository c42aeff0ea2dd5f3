// SPDX-License-Identifier: MIT
#include "shell/frmMain.h"

#include "core/App.h"
#include "core/SettingsFields.h"
#include "program/MainForm.h"
#include "shell/AddressBar.h"
#include "shell/MainMenu.h"
#include "shell/StatusAreas.h"
#include "shell/WindowDialogs.h"
#include "shell/WorkArea.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QWindow>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize StartingSize{1400, 860};

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
    auto* centre = new QWidget(this);
    setCentralWidget(centre);
    auto* column = new QVBoxLayout(centre);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(new AddressBar(app));
    column->addWidget(new ActivityStrip(app));
    auto* work = new WorkArea(app, m_binder, views, centre);
    column->addWidget(work, 1);
    column->addWidget(new FootLine);
    FillMenuBar(*menuBar(), app, m_binder);
    m_binder.BindAll(*this);
    work->FocusTabs();
    resize(StartingSize.boundedTo(screen()->availableSize()));
    ConnectMainForm();
}

frmMain::~frmMain() {
    m_app.Get<SettingsFields>().getPlace = nullptr;
    m_app.Get<SettingsFields>().setPlace = nullptr;
    m_app.Get<MainForm>().setTitle = nullptr;
}

void frmMain::ConnectMainForm() {
    m_app.Get<SettingsFields>().getPlace = [this] { return Place(); };
    m_app.Get<SettingsFields>().setPlace = [this](const WindowPlace& place) { SetPlace(place); };
    m_app.Get<MainForm>().setTitle = [this](const QString& title) { setWindowTitle(title); };
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

} // namespace qlm
