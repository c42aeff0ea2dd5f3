// SPDX-License-Identifier: MIT
#pragma once

#include "core/Commands.h"
#include "core/Controls.h"
#include "core/Deployment.h"
#include "core/Diagnostics.h"
#include "core/FileSystem.h"
#include "core/RunState.h"
#include "core/Waiting.h"
#include "platform/Platform.h"

#include <memory>

namespace qlm {

class AccountFile;
class AccountScreens;
class ActionTick;
class BlackList;
class BrowserHost;
class BrowserSounds;
class CaptchaCalls;
class ContentLists;
class Counters;
class FriendRequester;
class GatherDriver;
class GatheredList;
class GlobalSettings;
class IdResolution;
class LinkScanner;
class LoginFlow;
class MainForm;
class Pacing;
class PageBoxes;
class PageClassifier;
class PageTests;
class Pager;
class ProductServer;
class ProfileFilters;
class ProfileLinks;
class SendRuns;
class SentLog;
class SettingsFields;
class StartUp;
class StepDispatcher;
class StopResume;
class SupportFiles;
class WebSearch;

// The timers of the main window, with the names, intervals and starting states of the design.
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

    // core
    const std::unique_ptr<StartUp> startUp;
    const std::unique_ptr<MainForm> mainForm;
    const std::unique_ptr<ActionTick> actionTick;
    const std::unique_ptr<StopResume> stopResume;
    const std::unique_ptr<SettingsFields> settingsFields;
    const std::unique_ptr<ProductServer> productServer;
    const std::unique_ptr<GlobalSettings> globalSettings;
    const std::unique_ptr<BrowserSounds> browserSounds;
    const std::unique_ptr<SupportFiles> supportFiles;
    // browser
    const std::unique_ptr<BrowserHost> browserHost;
    const std::unique_ptr<PageBoxes> pageBoxes;
    const std::unique_ptr<PageTests> pageTests;
    const std::unique_ptr<PageClassifier> pageClassifier;
    const std::unique_ptr<StepDispatcher> stepDispatcher;
    // accounts
    const std::unique_ptr<AccountFile> accountFile;
    const std::unique_ptr<AccountScreens> accountScreens;
    const std::unique_ptr<LoginFlow> loginFlow;
    // gather
    const std::unique_ptr<GatheredList> gatheredList;
    const std::unique_ptr<GatherDriver> gatherDriver;
    const std::unique_ptr<LinkScanner> linkScanner;
    const std::unique_ptr<ProfileLinks> profileLinks;
    const std::unique_ptr<Pager> pager;
    const std::unique_ptr<IdResolution> idResolution;
    const std::unique_ptr<ProfileFilters> profileFilters;
    const std::unique_ptr<BlackList> blackList;
    const std::unique_ptr<WebSearch> webSearch;
    // content
    const std::unique_ptr<ContentLists> contentLists;
    // campaigns
    const std::unique_ptr<SendRuns> sendRuns;
    const std::unique_ptr<SentLog> sentLog;
    const std::unique_ptr<Counters> counters;
    const std::unique_ptr<Pacing> pacing;
    const std::unique_ptr<CaptchaCalls> captchaCalls;
    const std::unique_ptr<FriendRequester> friendRequester;

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

    // The line that says what is being done now.
    QString Status() const;
    void SetStatus(const QString& text);

    // A box with one button.
    void ShowMessage(const QString& text, const QString& title = {});
    // True on Yes.
    bool AskYesNo(const QString& text, const QString& title = {});

    // Loads about:blank in WebBrowser1 and pumps once: the clean slate before the next page.
    void ClearPage();
};

} // namespace qlm
