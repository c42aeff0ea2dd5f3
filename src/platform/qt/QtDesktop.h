// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Services.h"
#include "platform/qt/QtPump.h"

#include <QPointer>
#include <QSoundEffect>
#include <QWidget>
#include <memory>

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

// Calls the user through the main window and the loudspeaker, as far as there are any.
class QtAttention final : public Attention {
public:
    void SetWindow(QWidget* window) { m_window = window; }

    void PlayWAV(const QString& path) override;
    void FlashWindow() override;
    void RestoreWindow() override;

private:
    QPointer<QWidget> m_window;
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
