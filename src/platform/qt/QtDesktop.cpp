// SPDX-License-Identifier: MIT
#include "platform/qt/QtDesktop.h"

#include <QApplication>
#include <QAudioDevice>
#include <QBuffer>
#include <QDesktopServices>
#include <QFile>
#include <QMediaDevices>
#include <QPixmap>
#include <QRandomGenerator>
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
