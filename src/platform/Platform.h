// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Archive.h"
#include "platform/BrowserControl.h"
#include "platform/Pump.h"
#include "platform/Services.h"

namespace qlm {

// Lets a test hear what the process does to its files, refuse it, and stop its writes in the middle, as at a
// power cut.
class WriteGate {
public:
    virtual ~WriteGate() = default;
    // How many of the bytes of the next write may reach the disk; fewer than asked means that the process
    // ends there.
    virtual qint64 Allow(qint64 bytes) = 0;
    // Called when a write was cut short: never returns to the writer.
    [[noreturn]] virtual void Cut() = 0;
    // Called before a file or a folder is synced, and before a new file takes an older one's place; false
    // refuses.
    virtual bool AllowSync(const QString&) { return true; }
    virtual bool AllowReplace(const QString&) { return true; }
    // True for a folder in which nothing can be created or written.
    virtual bool IsReadOnly(const QString& path) const = 0;
};

// Everything outside the program's logic, plugged in by the product or by a test. Outlives the App.
class Platform {
public:
    virtual ~Platform() = default;
    virtual qlm::Pump& Pump() = 0;
    virtual qlm::Dialogs& Dialogs() = 0;
    virtual qlm::Http& Http() = 0;
    virtual SettingsStore& Settings() = 0;
    virtual qlm::Shell& Shell() = 0;
    virtual qlm::Attention& Attention() = 0;
    virtual qlm::Tray& Tray() = 0;
    virtual qlm::Archive& Archive() = 0;
    virtual qlm::Random& Random() = 0;
    virtual qlm::Desktop& Desktop() = 0;
    // Created on first use; lives as long as the platform.
    virtual BrowserControl& Browser(BrowserName name) = 0;
    virtual qlm::WriteGate* WriteGate() { return nullptr; }

    // The folder the program is installed in, without a trailing separator.
    virtual QString InstallationFolder() const = 0;
    // The special folder of that number, with a trailing separator; the program asks for 28, local
    // application data.
    virtual QString SpecialFolderPath(int id) const = 0;
    // Where what nobody needs for long is put.
    virtual QString TemporaryFolder() const = 0;
    // Contents of deployment.ini.
    virtual QString DeploymentText() const = 0;
};

} // namespace qlm
