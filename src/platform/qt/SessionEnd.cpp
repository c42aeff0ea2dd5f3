// SPDX-License-Identifier: MIT
#include "platform/qt/SessionEnd.h"

#include <QGuiApplication>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <stdexcept>
#include <unistd.h>

namespace qlm {

namespace {

constexpr int Signals[] = {SIGTERM, SIGINT, SIGHUP};

// From the signal's handler, which may do next to nothing, to the event loop.
int way[2] = {-1, -1};

void Note(int) {
    const int before = errno;
    const char word = 1;
    // A way that is full has told already.
    [[maybe_unused]] const ssize_t written = ::write(way[1], &word, 1);
    errno = before;
}

// A signal that who started the program has switched off stays so.
void Handle(int signal, void (*handler)(int)) {
    struct sigaction present {};
    if (::sigaction(signal, nullptr, &present) == 0 && present.sa_handler == SIG_IGN)
        return;
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART | SA_RESETHAND;
    ::sigaction(signal, &action, nullptr);
}

} // namespace

SessionEnd::SessionEnd() {
    if (::pipe2(way, O_CLOEXEC | O_NONBLOCK) != 0)
        throw std::runtime_error("no pipe for signals");
    m_notifier = std::make_unique<QSocketNotifier>(way[0], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] { OnSignal(); });
    for (const int signal : Signals)
        Handle(signal, Note);
    connect(
        qGuiApp, &QGuiApplication::commitDataRequest, this,
        [this](QSessionManager&) {
            if (onSave)
                onSave();
        },
        Qt::DirectConnection);
}

SessionEnd::~SessionEnd() {
    for (const int signal : Signals)
        Handle(signal, SIG_DFL);
    m_notifier.reset();
    for (int& end : way) {
        ::close(end);
        end = -1;
    }
}

void SessionEnd::OnSignal() {
    char words[16];
    while (::read(way[0], words, sizeof words) > 0) {
    }
    if (onEnd)
        onEnd();
}

} // namespace qlm
