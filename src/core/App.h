// SPDX-License-Identifier: MIT
#pragma once

#include "core/Commands.h"
#include "core/Controls.h"
#include "core/Deployment.h"
#include "core/Diagnostics.h"
#include "core/Families.h"
#include "core/FileSystem.h"
#include "core/RunState.h"
#include "core/Waiting.h"
#include "platform/Platform.h"

#include <memory>

namespace qlm {

// The timers of the main window.
struct Timers {
    explicit Timers(MessageQueue& queue);
    Timer Timer1;
    Timer tmrCheckLinkLoaded;
    Timer tmrAutoResume;
    Timer tmrHelper;
    Timer tmrBulletinWait;
    Timer tmrStatusUpdatesWait;
    Timer tmrLoginProblem;
    Timer tmrAutoStart;
    Timer tmrNewVersionAvailable;
    Timer tmrQuit;
};

// The whole program without its widgets: state, controls, commands, the platform, and one object per routine
// family. The families get the App and keep no copies of its state. Everything runs on one thread.
class App {
public:
    explicit App(Platform& platform);
    ~App();
    App(const App&) = delete;
    App& operator=(const App&) = delete;

    Platform& platform;
    const Deployment deployment;
    FileSystem files;
    RunState state;
    Controls controls;
    Commands commands;
    Diagnostics diagnostics;
    Waiting waiting;
    std::unique_ptr<Timers> timers;

    // The family of that type: app.Get<LinkScanner>().
    template <typename T> T& Get() const { return m_families.Get<T>(); }

    BrowserControl& WebBrowser1() { return platform.Browser(BrowserName::WebBrowser1); }
    BrowserControl& webHide() { return platform.Browser(BrowserName::webHide); }
    BrowserControl& webTemp() { return platform.Browser(BrowserName::webTemp); }
    BrowserControl& webNews() { return platform.Browser(BrowserName::webNews); }
    qlm::Pump& Pump() { return platform.Pump(); }

    // Replaces the {Role}s of the deployment.
    QString Expand(const QString& text) const { return deployment.Expand(text); }
    QString Version() const; // major.minor.revision
    QString NowText();       // "YYYY-MM-DD hh:mm:ss"
    QString ProgramFile(const QString& name) const { return FileSystem::Join(state.ProgramFolder, name); }
    // A file that comes with the program. An installation folder that can't be written isn't ProgramFolder
    // but still has it.
    QString InstalledFile(const QString& name) const;
    QString DataFile(const QString& name) const { return FileSystem::Join(state.DataFolder, name); }

    // Shows the tab of that caption; the window follows.
    void ShowTab(const QString& caption);
    // Closes the main window, which saves and ends the program; without one there is nothing to save.
    void Close();
    // Closes every open form whose name differs from except.
    void CloseForms(const QString& except);

    // The line that says what is being done now.
    QString Status() const;
    void SetStatus(const QString& text);

    // A box with one button.
    void ShowMessage(const QString& text, const QString& title = {});
    // True on Yes.
    bool AskYesNo(const QString& text, const QString& title = {});

    // Loads about:blank in WebBrowser1 and pumps once: the clean slate before the next page.
    void ClearPage();

private:
    // The list of all families, and what joins them (program/Program.cpp).
    void MakeFamilies();
    void Connect();

    Families m_families;
};

} // namespace qlm
