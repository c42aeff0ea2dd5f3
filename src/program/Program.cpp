// SPDX-License-Identifier: MIT
#include "accounts/AccountChain.h"
#include "accounts/AccountFile.h"
#include "accounts/AccountScreens.h"
#include "accounts/ChainScreens.h"
#include "accounts/LoginFlow.h"
#include "browser/Cover.h"
#include "browser/PageBoxes.h"
#include "browser/PageClassifier.h"
#include "browser/PageSigns.h"
#include "browser/ProfileLinks.h"
#include "campaigns/Campaigns.h"
#include "campaigns/CaptchaCalls.h"
#include "campaigns/Commenter.h"
#include "campaigns/Counters.h"
#include "campaigns/FriendRequester.h"
#include "campaigns/Pacing.h"
#include "campaigns/SampleReading.h"
#include "campaigns/SendRuns.h"
#include "content/Bookmarks.h"
#include "content/ContentLists.h"
#include "content/ListScreens.h"
#include "content/Preview.h"
#include "core/App.h"
#include "core/BrowserSounds.h"
#include "core/ProductServer.h"
#include "core/SettingsFields.h"
#include "core/SupportFiles.h"
#include "gather/BlackList.h"
#include "gather/ClickGather.h"
#include "gather/GatherDriver.h"
#include "gather/GatheredList.h"
#include "gather/IdResolution.h"
#include "gather/LinkScanner.h"
#include "gather/Pager.h"
#include "gather/ProfileFilters.h"
#include "gather/WebSearch.h"
#include "inbound/AcceptFriends.h"
#include "inbound/PendingRequests.h"
#include "invites/EventInvites.h"
#include "invites/GroupInvites.h"
#include "maintenance/Backup.h"
#include "maintenance/Restore.h"
#include "program/GlobalSettings.h"
#include "program/MainForm.h"
#include "program/StartUp.h"
#include "schedule/AutoStart.h"
#include "steps/ActionTick.h"
#include "steps/Activities.h"
#include "steps/BrowserHost.h"
#include "steps/Lending.h"
#include "steps/RunReport.h"
#include "steps/StepDispatcher.h"
#include "steps/StopResume.h"

namespace qlm {

App::App(Platform& thePlatform)
    : platform(thePlatform),
      deployment(thePlatform.DeploymentText()),
      files(thePlatform.WriteGate()),
      commands(diagnostics),
      diagnostics(*this),
      waiting(*this),
      timers(std::make_unique<Timers>(thePlatform.Pump().Queue())) {
    MakeFamilies();
    Connect();
}

App::~App() = default;

// Later ones may call earlier ones from the start.
void App::MakeFamilies() {
    m_families.Make<StartUp>(*this);
    m_families.Make<MainForm>(*this);
    m_families.Make<ActionTick>(*this);
    m_families.Make<StopResume>(*this);
    m_families.Make<Lending>(*this);
    m_families.Make<SettingsFields>(*this);
    m_families.Make<ProductServer>(*this);
    m_families.Make<GlobalSettings>(*this);
    m_families.Make<BrowserSounds>(*this);
    m_families.Make<SupportFiles>(*this);
    m_families.Make<BrowserHost>(*this);
    m_families.Make<Cover>(*this);
    m_families.Make<PageBoxes>(*this);
    m_families.Make<PageSigns>(*this);
    m_families.Make<PageClassifier>(*this);
    m_families.Make<StepDispatcher>(*this);
    m_families.Make<RunReport>(*this);
    m_families.Make<AccountFile>(*this);
    m_families.Make<AccountScreens>(*this);
    m_families.Make<LoginFlow>(*this);
    m_families.Make<AccountChain>(*this);
    m_families.Make<ChainScreens>(*this);
    m_families.Make<GatheredList>(*this);
    m_families.Make<GatherDriver>(*this);
    m_families.Make<LinkScanner>(*this);
    m_families.Make<ProfileLinks>(*this);
    m_families.Make<Pager>(*this);
    m_families.Make<IdResolution>(*this);
    m_families.Make<ProfileFilters>(*this);
    m_families.Make<BlackList>(*this);
    m_families.Make<WebSearch>(*this);
    m_families.Make<ClickGather>(*this);
    m_families.Make<ContentLists>(*this);
    m_families.Make<ListScreens>(*this);
    m_families.Make<Preview>(*this);
    m_families.Make<Bookmarks>(*this);
    m_families.Make<SendRuns>(*this);
    m_families.Make<Counters>(*this);
    m_families.Make<Pacing>(*this);
    m_families.Make<CaptchaCalls>(*this);
    for (const Campaign* campaign : Campaigns())
        if (campaign->makeMachine)
            campaign->makeMachine(m_families, *this);
    m_families.Make<AcceptFriends>(*this);
    m_families.Make<PendingRequests>(*this);
    m_families.Make<GroupInvites>(*this);
    m_families.Make<EventInvites>(*this);
    m_families.Make<Backup>(*this);
    m_families.Make<Restore>(*this);
    m_families.Make<AutoStart>(*this);
}

// What the floors below ask of those above.
void App::Connect() {
    diagnostics.trailOf = TrailOf;
    waiting.skipHelps = [this] { return Get<StopResume>().SkipHelps(); };
    Get<PageBoxes>().isSending = [this] {
        const Activity* activity = RunningActivity(*this);
        return activity && activity->sends;
    };
    Get<PageClassifier>().tracesClasses = [this] {
        const Activity* activity = RunningActivity(*this);
        return activity && activity->tracesPageClasses;
    };
    ShowSampleReadings(*this);
    Get<StepDispatcher>().confirmComment = [this] { Get<Commenter>().ConfirmComment(); };
    auto& list = Get<GatheredList>();
    Get<SettingsFields>().stores = {
        .restoreCounters = [this] { Get<Counters>().Restore(); },
        .restoreLists =
            [this] {
                Get<FriendRequester>().Categories().Load();
                Get<ContentLists>().FillMainLists();
                Get<Bookmarks>().LoadBookmarksMenu();
            },
        .restoreGathered = [&list] { list.FillScannedList(list.ScopedPath(), true, false); },
        .saveGathered = [&list] { return list.SaveScannedList(list.ScopedPath()); },
    };
}

} // namespace qlm
