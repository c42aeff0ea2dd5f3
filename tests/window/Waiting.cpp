// SPDX-License-Identifier: MIT
#include "Waiting.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

namespace qlm {

namespace {
constexpr int LookEveryMs = 3;
}

bool WaitUntil(const std::function<bool()>& condition, int limitMs) {
    QElapsedTimer clock;
    clock.start();
    while (!condition()) {
        if (clock.elapsed() > limitMs)
            return false;
        LetPass(LookEveryMs);
    }
    return true;
}

void LetPass(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace qlm
