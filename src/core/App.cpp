// SPDX-License-Identifier: MIT
#include "core/App.h"

#include "accounts/AccountFile.h"
#include "accounts/AccountScreens.h"
#include "accounts/LoginFlow.h"
#include "browser/BrowserHost.h"
#include "browser/PageBoxes.h"
#include "browser/PageClassifier.h"
#include "browser/PageTests.h"
#include "browser/StepDispatcher.h"
#include "campaigns/CaptchaCalls.h"
#include "campaigns/Counters.h"
#include "campaigns/FriendRequester.h"
#include "campaigns/Pacing.h"
#include "campaigns/SendRuns.h"
#include "campaigns/SentLog.h"
#include "content/ContentLists.h"
#include "core/ActionTick.h"
#include "core/BrowserSounds.h"
#include "core/GlobalSettings.h"
#include "core/MainForm.h"
#include "core/ProductServer.h"
#include "core/SettingsFields.h"
#include "core/StartUp.h"
#include "core/StopResume.h"
#include "core/SupportFiles.h"
#include "gather/BlackList.h"
#include "gather/GatherDriver.h"
#include "gather/GatheredList.h"
#include "gather/IdResolution.h"
#include "gather/LinkScanner.h"
#include "gather/Pager.h"
#include "gather/ProfileFilters.h"
#include "gather/ProfileLinks.h"
#include "gather/WebSearch.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

Timers::Timers(MessageQueue& queue)
    : Timer1(queue, 400, false),
      tmrCheckLinkLoaded(queue, 3000, false),
      tmrAutoResume(queue, 40000, false),
      tmrHelper(queue, 1000, false),
      tmrBulletinWait(queue, 60000, false),
      tmrStatusUpdatesWait(queue, 60000, false),
      tmrLoginProblem(queue, 36000, false),
      tmrAutoStart(queue, 60000, true),
      tmrNewVersionAvailable(queue, 3000, false),
      tmrQuit(queue, 6000, true) {}

App::App(Platform& thePlatform)
    : platform(thePlatform),
      deployment(thePlatform.DeploymentText()),
      files(thePlatform.WriteGate()),
      diagnostics(*this),
      waiting(*this),
      timers(std::make_unique<Timers>(thePlatform.Pump().Queue())),
      startUp(std::make_unique<StartUp>(*this)),
      mainForm(std::make_unique<MainForm>(*this)),
      actionTick(std::make_unique<ActionTick>(*this)),
      stopResume(std::make_unique<StopResume>(*this)),
      settingsFields(std::make_unique<SettingsFields>(*this)),
      productServer(std::make_unique<ProductServer>(*this)),
      globalSettings(std::make_unique<GlobalSettings>(*this)),
      browserSounds(std::make_unique<BrowserSounds>(*this)),
      supportFiles(std::make_unique<SupportFiles>(*this)),
      browserHost(std::make_unique<BrowserHost>(*this)),
      pageBoxes(std::make_unique<PageBoxes>(*this)),
      pageTests(std::make_unique<PageTests>(*this)),
      pageClassifier(std::make_unique<PageClassifier>(*this)),
      stepDispatcher(std::make_unique<StepDispatcher>(*this)),
      accountFile(std::make_unique<AccountFile>(*this)),
      accountScreens(std::make_unique<AccountScreens>(*this)),
      loginFlow(std::make_unique<LoginFlow>(*this)),
      gatheredList(std::make_unique<GatheredList>(*this)),
      gatherDriver(std::make_unique<GatherDriver>(*this)),
      linkScanner(std::make_unique<LinkScanner>(*this)),
      profileLinks(std::make_unique<ProfileLinks>(*this)),
      pager(std::make_unique<Pager>(*this)),
      idResolution(std::make_unique<IdResolution>(*this)),
      profileFilters(std::make_unique<ProfileFilters>(*this)),
      blackList(std::make_unique<BlackList>(*this)),
      webSearch(std::make_unique<WebSearch>(*this)),
      contentLists(std::make_unique<ContentLists>(*this)),
      sendRuns(std::make_unique<SendRuns>(*this)),
      sentLog(std::make_unique<SentLog>(*this)),
      counters(std::make_unique<Counters>(*this)),
      pacing(std::make_unique<Pacing>(*this)),
      captchaCalls(std::make_unique<CaptchaCalls>(*this)),
      friendRequester(std::make_unique<FriendRequester>(*this)) {}

App::~App() = default;

QString App::Version() const {
    return QStringLiteral(QUILLMERE_VERSION);
}

QString App::NowText() {
    return Pump().Now().toString(u"yyyy-MM-dd hh:mm:ss"_s);
}

QString App::InstalledFile(const QString& name) const {
    const QString path = ProgramFile(name);
    return files.FileExists(path) ? path : FileSystem::Join(platform.InstallationFolder(), name);
}

QString App::Status() const {
    return controls.Text("myfraCurrentAction"_L1);
}

void App::SetStatus(const QString& text) {
    controls.SetText("myfraCurrentAction"_L1, text);
}

void App::ShowMessage(const QString& text, const QString& title) {
    platform.Dialogs().ShowMessage(text, title, Dialogs::Buttons::Ok);
}

bool App::AskYesNo(const QString& text, const QString& title) {
    return platform.Dialogs().ShowMessage(text, title, Dialogs::Buttons::YesNo) == Dialogs::Answer::Yes;
}

void App::ClearPage() {
    WebBrowser1().Navigate(u"about:blank"_s);
    waiting.Pump();
}

} // namespace qlm
