// SPDX-License-Identifier: MIT
#include "platform/qt/QtDesktop.h"

#include <QApplication>
#include <QAudioDevice>
#include <QBuffer>
#include <QDesktopServices>
#include <QFile>
#include <QMediaDevices>
#include <QMenu>
#include <QPixmap>
#include <QRandomGenerator>
#include <QSystemTrayIcon>
#include <QUrl>
#include <cstdlib>

namespace qlm {

void QtShell::OpenFolder(const QString& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void QtShell::OpenAddress(const QString& url) {
    QDesktopServices::openUrl(QUrl(url, QUrl::TolerantMode));
}

void QtShell::OpenFile(const QString& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void QtShell::Quit() {
    m_pump.Quit();
}

void QtShell::EndProcess() {
    std::_Exit(EXIT_SUCCESS);
}

// The sound is an extra: without a loudspeaker, or without the file, the other signals have to do.
void QtAttention::PlayWAV(const QString& path) {
    if (!QFile::exists(path) || QMediaDevices::audioOutputs().isEmpty())
        return;
    m_sound = std::make_unique<QSoundEffect>();
    m_sound->setSource(QUrl::fromLocalFile(path));
    m_sound->play();
}

void QtAttention::FlashWindow() {
    if (m_window)
        QApplication::alert(m_window);
}

void QtAttention::RestoreWindow() {
    // A window that stands behind another program's stays there: the sound and the flashing call.
    if (!m_window || (m_window->isVisible() && !m_window->isMinimized()))
        return;
    m_window->showNormal();
    m_window->raise();
}

bool QtAttention::Notify(const QString& title, const QString& text) {
    return m_tray && m_tray->Note(title, text);
}

QtTray::QtTray(QtPump& pump) : m_pump(pump) {}

QtTray::~QtTray() = default;

// An icon that has been hidden by then has nothing more to say.
void QtTray::Post(std::function<void()> event) {
    m_pump.Queue().Post([shown = std::weak_ptr(m_shown), event = std::move(event)] {
        if (!shown.expired())
            event();
    });
}

bool QtTray::Show(const QString& toolTip, const QStringList& menu) {
    Hide();
    if (!QSystemTrayIcon::isSystemTrayAvailable())
        return false;
    m_menu = std::make_unique<QMenu>();
    for (int item = 0; item < menu.size(); ++item)
        QObject::connect(m_menu->addAction(menu[item]), &QAction::triggered, m_menu.get(), [this, item] {
            Post([this, item] {
                if (onMenuItem)
                    onMenuItem(item);
            });
        });
    m_icon = std::make_unique<QSystemTrayIcon>(QApplication::windowIcon());
    m_icon->setToolTip(toolTip);
    m_icon->setContextMenu(m_menu.get());
    QObject::connect(m_icon.get(), &QSystemTrayIcon::activated, m_icon.get(),
                     [this](QSystemTrayIcon::ActivationReason reason) {
                         if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick)
                             Post([this] {
                                 if (onActivate)
                                     onActivate();
                             });
                     });
    m_icon->show();
    m_shown = std::make_shared<bool>(true);
    return true;
}

// From one of its own events, too.
void QtTray::Hide() {
    if (!m_icon)
        return;
    m_shown.reset();
    m_icon->hide();
    m_icon.release()->deleteLater();
    m_menu.release()->deleteLater();
}

bool QtTray::IsShown() const {
    return m_icon != nullptr;
}

bool QtTray::Note(const QString& title, const QString& text) {
    if (!m_icon || !QSystemTrayIcon::supportsMessages())
        return false;
    m_icon->showMessage(title, text);
    return true;
}

namespace {

QWidget* FindWindow(const QString& name) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->objectName() == name)
            return window;
    return nullptr;
}

} // namespace

QString QtDesktop::ForegroundWindow() {
    const QWidget* window = QApplication::activeWindow();
    return window ? window->objectName() : QString();
}

void QtDesktop::SetForegroundWindow(const QString& window) {
    QWidget* widget = window.isEmpty() ? nullptr : FindWindow(window);
    if (!widget)
        return;
    widget->raise();
    widget->activateWindow();
}

QByteArray QtDesktop::CaptureWindow() {
    QWidget* window = FindWindow(QStringLiteral("frmMain"));
    QBuffer picture;
    if (!window || !picture.open(QIODevice::WriteOnly) || !window->grab().save(&picture, "BMP"))
        return {};
    return picture.data();
}

double QtRandom::Next() {
    return QRandomGenerator::global()->generateDouble();
}

} // namespace qlm
