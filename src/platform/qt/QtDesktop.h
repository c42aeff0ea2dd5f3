// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Services.h"
#include "platform/qt/QtPump.h"

#include <QPointer>
#include <QSoundEffect>
#include <QWidget>
#include <memory>

class QMenu;
class QSystemTrayIcon;

namespace qlm {

// Opens folders, files and addresses with the desktop's own programs.
class QtShell final : public Shell {
public:
    explicit QtShell(QtPump& pump) : m_pump(pump) {}

    void OpenFolder(const QString& path) override;
    void OpenAddress(const QString& url) override;
    void OpenFile(const QString& path) override;
    void Quit() override;
    void EndProcess() override;

private:
    QtPump& m_pump;
};

// The icon in the desktop's tray, where there is one.
class QtTray final : public Tray {
public:
    explicit QtTray(QtPump& pump);
    ~QtTray() override;

    bool Show(const QString& toolTip, const QStringList& menu) override;
    void Hide() override;
    bool IsShown() const override;
    bool Note(const QString& title, const QString& text);

private:
    void Post(std::function<void()> event);

    QtPump& m_pump;
    std::unique_ptr<QMenu> m_menu;
    std::unique_ptr<QSystemTrayIcon> m_icon;
    std::shared_ptr<bool> m_shown; // while the icon is
};

// Calls the user through the main window and the loudspeaker, as far as there are any.
class QtAttention final : public Attention {
public:
    void SetWindow(QWidget* window) { m_window = window; }
    // It carries the notes.
    void SetTray(QtTray* tray) { m_tray = tray; }

    void PlayWAV(const QString& path) override;
    void FlashWindow() override;
    void RestoreWindow() override;
    bool Notify(const QString& title, const QString& text) override;

private:
    QPointer<QWidget> m_window;
    QtTray* m_tray = nullptr;
    std::unique_ptr<QSoundEffect> m_sound;
};

// The program's own windows; other programs' are out of reach.
class QtDesktop final : public Desktop {
public:
    QString ForegroundWindow() override;
    void SetForegroundWindow(const QString& window) override;
    QByteArray CaptureWindow() override;
};

class QtRandom final : public Random {
public:
    double Next() override;
};

} // namespace qlm
