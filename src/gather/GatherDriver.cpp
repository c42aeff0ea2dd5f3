// SPDX-License-Identifier: MIT
#include "gather/GatherDriver.h"

#include "browser/PageSigns.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/Text.h"
#include "gather/GatheredList.h"
#include "gather/LinkScanner.h"
#include "gather/WebSearch.h"
#include "steps/FullListRules.h"
#include "steps/StepDispatcher.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

#include <QScopeGuard>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int SecondsBeforeRetry = 5;
} // namespace

GatherDriver::GatherDriver(App& app) : m_app(app), m_standingPage(app) {
    app.commands.Add(u"picScanStart_Click"_s, [this] { picScanStart_Click(); });
    app.commands.Add(u"picScanStop_Click"_s, [this] { picScanStop_Click(); });
    app.Get<StepDispatcher>().listStands = [this] { return m_standingPage.Stands(); };
    RegisterButtons();
}

void GatherDriver::Trace(const QString& text) {
    m_app.diagnostics.Debug(u"debuggather.txt"_s, text);
}

QString GatherDriver::OptionsTrace() const {
    const Controls& controls = m_app.controls;
    return FromBoolean(controls.Ticked("optScanCurrentPage"_L1)) + u", Foll: "_s +
           FromBoolean(controls.Ticked("optScanFollowing"_L1)) + u", FilterGather: "_s +
           FromBoolean(m_app.state.optFilterWhenGathering) + u", Full-Gather: "_s +
           FromBoolean(controls.Ticked("optFullGather"_L1)) + u", URL: "_s +
           m_app.Get<PageSigns>().LocationURL();
}

void GatherDriver::picScanStart_Click() {
    m_app.diagnostics.Trap("picScanStart_Click", [this] {
        RunState& state = m_app.state;
        m_app.WebBrowser1().SetSilent(true);
        m_app.webHide().ZOrder(1);
        m_app.diagnostics.Debug(u"debuggather.txt"_s, u"START - Curr: "_s + OptionsTrace(), true);
        if (RefuseDuringLogin() || WarnBeforeStart())
            return;
        m_app.Get<StopResume>().StopAll(StopReason::GatherBegins);
        m_app.Get<GatheredList>().SetScannedLabel();
        state.CurrentAction = ActivityWord::Gathering;
        state.lstAlreadyFullGatheredPageIDs.clear();
        state.blnWaitingForCaptcha = false;
        if (m_app.controls.Ticked("optScanGoogle"_L1)) {
            m_app.Get<WebSearch>().Run();
            return;
        }
        state.arrSeenLinks = {};
        m_app.timers->tmrCheckLinkLoaded.Restart();
        state.blnHoldLinkCheck = false;
        state.intGatherStep = GatherStep::ScanPage;
        m_pageIsToCome = false;
        IterateGatherProfiles();
    });
}

// Each of these uses the click up: the user reads it and starts again.
bool GatherDriver::WarnBeforeStart() {
    Controls& controls = m_app.controls;
    PageSigns& page = m_app.Get<PageSigns>();
    if (controls.Ticked("optImportClickedProfiles"_L1)) {
        m_app.ShowMessage(
            u"When the 'Gather clicked profiles' option is selected, gathering is done by clicking on "
            "profile links on the page."_s);
        return true;
    }
    if (!controls.Ticked("optScanCurrentPage"_L1) && !controls.Ticked("optScanFollowing"_L1) &&
        !controls.Ticked("optScanGoogle"_L1)) {
        m_app.ShowMessage(u"Please select a scan option."_s);
        return true;
    }
    if (page.AddressContains(u"http://{GroupsHost}/index.cfm?fuseaction=groups.groupprofile"_s) &&
        ShowPrompt(u"frmGroupGatherPrompt"_s))
        return true;
    return page.AddressContains(u"{SiteDomain}/search/music?q="_s) && page.IsTextInPage(u"Artists ("_s) &&
           page.IsTextInPage(u"Music Videos ("_s) && page.IsTextInPage(u"Albums ("_s) &&
           page.IsTextInPage(u"Songs ("_s) && ShowPrompt(u"frmMusicSearchGatherPrompt"_s);
}

void GatherDriver::picScanStop_Click() {
    m_app.diagnostics.Trap("picScanStop_Click", [this] {
        if (RefuseDuringAnyLogin())
            return;
        m_app.WebBrowser1().SetSilent(true);
        m_app.Get<StopResume>().StopAll(StopReason::GatherStop);
    });
}

const StepMachine<GatherDriver>& GatherDriver::Machine() {
    static const StepMachine<GatherDriver> machine{
        .word = ActivityWord::Gathering,
        .step = &RunState::intGatherStep,
        .procedure = "IterateGatherProfiles",
        .begin = &GatherDriver::BeginStep,
        .states = {{GatherStep::ScanPage, &GatherDriver::ScanPage},
                   {GatherStep::TurnPage, &GatherDriver::TurnPage}},
        .errorData = &GatherDriver::Address,
    };
    return machine;
}

QString GatherDriver::Address() const {
    return m_app.Get<PageSigns>().LocationURL();
}

void GatherDriver::IterateGatherProfiles() {
    m_returnedToList = false;
    if (!RunSteps(m_app, *this, Machine()).isEmpty())
        AwaitList();
}

void GatherDriver::AwaitList() {
    AwaitListOfIDs();
    m_app.state.blnLinkFound = false;
    m_app.timers->tmrCheckLinkLoaded.Restart();
}

void GatherDriver::ReturnToList() {
    const bool again = std::exchange(m_returnedToList, true);
    // What still waits below was waiting for the page that the login has taken away.
    m_app.waiting.OutdateSteps();
    m_app.timers->Timer1.SetEnabled(false);
    if (again) {
        m_app.Get<StopResume>().StopAll(StopReason::LoginAgain);
        if (!m_app.Get<StopResume>().DoFinishedExit())
            m_app.ShowMessage(
                u"The site asks for your login again and again. The gathering process has been stopped."_s);
        return;
    }
    RunState& state = m_app.state;
    state.strLastPageText.clear();
    state.strLastPageHref.clear();
    state.blnLastPageAsHTML = false;
    m_app.WebBrowser1().Navigate(state.strGatherStartURL);
    AwaitList();
}

void GatherDriver::BeginStep() {
    RunState& state = m_app.state;
    m_app.WebBrowser1().SetSilent(true);
    state.strLastPageText.clear();
    state.strLastPageHref.clear();
    state.blnLastPageAsHTML = false;
    Trace(u"IGP - "_s + m_app.NowText());
}

Next GatherDriver::ScanPage() {
    RunState& state = m_app.state;
    Trace(u"IGP3.1 - Curr: "_s + OptionsTrace());
    WaitForPageToCome();
    WaitForMailPage();
    state.blnCommentFormShown = false;
    m_app.SetStatus(state.blnComparingIDs ? u"Comparing ID's on the current page to the gathered list..."_s
                                          : u"Gathering ID's from the current page..."_s);
    m_app.waiting.Pump();
    GatherFromPage();
    m_app.waiting.LeaveIfObsolete();
    state.blnRetryGatherPage = false;
    m_app.Get<GatheredList>().SetScannedLabel();
    state.intGatherStep = GatherStep::TurnPage;
    if (FilterPassWanted()) {
        ReturnFromFilterPass();
        return Next::Wait;
    }
    Trace(u"IGP3.4"_s);
    return Next::Again;
}

void GatherDriver::GatherFromPage() {
    RunState& state = m_app.state;
    // Asked now: a stop clears compare mode.
    const bool filterPass = FilterPassWanted();
    const qint32 entry = state.lngEntryNumber;
    const auto stoppedWhileFiltering = qScopeGuard([&] {
        if (!filterPass || entry != state.lngEntryNumber || !state.CurrentAction.isEmpty())
            return;
        Trace(u"IGP3.2"_s);
        m_app.Get<StopResume>().StopAll(StopReason::StoppedInFilter);
    });
    m_app.Get<LinkScanner>().GatherPageProfiles();
    m_app.waiting.LeaveIfObsolete();
    if (!state.blnRetryGatherPage)
        return;
    m_app.waiting.WaitSeconds(SecondsBeforeRetry);
    m_app.Get<LinkScanner>().GatherPageProfiles();
}

void GatherDriver::ScanPageToCome() {
    m_pageIsToCome = true;
    IterateGatherProfiles();
}

void GatherDriver::WaitForPageToCome() {
    const auto isHere = [this] {
        return m_app.Get<PageSigns>().LocationURL() != u"about:blank"_s &&
               (m_app.WebBrowser1().ReadyState() == 4 || IsGatherPageComplete(m_app));
    };
    m_app.waiting.WaitFor(u"the page to be complete"_s, [&] {
        Diagnostics::IgnoreErrors([&] { m_pageIsToCome = m_pageIsToCome && !isHere(); });
        return m_pageIsToCome;
    });
}

void GatherDriver::WaitForMailPage() {
    PageSigns& page = m_app.Get<PageSigns>();
    if (!page.AddressContains(u"http://{MessagingHost}/index.cfm?fuseaction=mail."_s) ||
        page.AddressContains(u"http://{MessagingHost}/index.cfm?fuseaction=mail.notifications"_s) ||
        page.AddressContains(u"V3"_s))
        return;
    m_app.SetStatus(u"Waiting for the page to finish loading..."_s);
    Trace(u"IGP - waiting for page"_s);
    m_app.Get<StopResume>().PauseLinkCheck();
    m_app.waiting.WaitFor(u"the page to be complete"_s, [&] { return m_app.WebBrowser1().ReadyState() < 4; });
    m_app.Get<StopResume>().ResumeLinkCheck();
}

bool GatherDriver::FilterPassWanted() const {
    const RunState& state = m_app.state;
    const bool noneAsksForAVisit = state.blnFilterTypeOff && state.blnFilterGenderOff &&
                                   state.blnFilterLocationOff && state.blnFilterAgeOff &&
                                   (state.blnFilterLastLoginOff || state.optFilterOnlineNow);
    return state.optFilterWhenGathering && !noneAsksForAVisit && !state.blnComparingIDs;
}

void GatherDriver::AwaitListOfIDs() {
    m_app.state.strLinkType = u"ID"_s;
    m_app.state.strLinkValue = u"ListOfIDs"_s;
    m_standingPage.Begin();
}

// The visits have taken the browser away from the page: back to it, and on when its list stands again.
void GatherDriver::ReturnFromFilterPass() {
    RunState& state = m_app.state;
    Trace(u"IGP3.3"_s);
    if (m_app.Get<PageSigns>().LocationURL() != state.strGatherStartURL) {
        const QString url = state.strGatherStartURL;
        m_app.ClearPage();
        m_app.WebBrowser1().Navigate(url);
        m_app.SetStatus(u"Filtering finished... going back to where you were gathering from."_s);
    }
    AwaitList();
}

} // namespace qlm
