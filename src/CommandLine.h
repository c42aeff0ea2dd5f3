// SPDX-License-Identifier: MIT
#pragma once

#include "platform/qt/QtPlatform.h"

namespace qlm {

// What the command line asks for. The usual program knows none.
struct Guidance {
    QString folder; // after "--guided"; empty for the usual program
    bool isResumed; // "--resume": goes on with what an earlier run has left there

    bool IsWanted() const { return !folder.isEmpty(); }
};

Guidance GuidanceIn(const QStringList& arguments);
// The folders that no second program may work on at the same time.
QStringList FoldersToLock(const Guidance& guidance);
// Prepares the folder of a guided run, which has to be locked before.
QtPlatformOptions OptionsFor(const Guidance& guidance);

} // namespace qlm
