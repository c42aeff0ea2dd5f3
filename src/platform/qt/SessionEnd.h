// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace qlm {

// Tells when the program is asked from outside to end: by the signals of a shutdown, a closed terminal or
// Ctrl+C, or by the desktop whose session ends. One at a time, made after the QApplication. Both calls come
// from Qt's event loop, not from the pump. A second signal ends the process at once.
class SessionEnd final : public QObject {
public:
    SessionEnd();
    ~SessionEnd() override;
    SessionEnd(const SessionEnd&) = delete;
    SessionEnd& operator=(const SessionEnd&) = delete;

    std::function<void()> onEnd;
    // The session may still be kept on: save, and stay.
    std::function<void()> onSave;

private:
    void OnSignal();

    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace qlm
