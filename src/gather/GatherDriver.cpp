// SPDX-License-Identifier: MIT
#include "gather/GatherDriver.h"

#include "browser/PageSigns.h"
#include "core/App.h"
#include "core/Text.h"
#include "gather/GatheredList.h"
#include "gather/LinkScanner.h"
#include "gather/WebSearch.h"
#include "steps/FullListRules.h"
#include "steps/StepDispatcher.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr qint16 StepScan = 3;
constexpr qint16 StepTurn = 4;
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

bool GatherDriver::Goes(int entry) const {
    return m_app.state.CurrentAction == u"SCANNING"_s && entry == m_lastEntry;
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
        m_app.Get<StopResume>().StopAll(u"GATHERSTART1"_s);
        m_app.Get<GatheredList>().SetScannedLabel();
        state.CurrentAction = u"SCANNING"_s;
        state.strNextPageLink.clear();
        state.lstAlreadyFullGatheredPageIDs.clear();
        state.blnWaitingForCaptcha = false;
        if (m_app.controls.Ticked("optScanGoogle"_L1)) {
            m_app.Get<WebSearch>().Run();
            return;
        }
        state.arrSeenLinks = {};
        m_app.timers->tmrCheckLinkLoaded.Restart();
        state.strLinkType.clear();
        state.strLinkValue.clear();
        state.blnLinkFound = false;
        state.blnHoldLinkCheck = false;
        state.intGatherStep = StepScan;
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
        m_app.Get<StopResume>().StopAll(u"GATHERSTOP"_s);
    });
}

void GatherDriver::IterateGatherProfiles() {
    const int entry = BeginEntry();
    m_returnedToList = false;
    const QString error = m_app.diagnostics.Trap(
        "IterateGatherProfiles",
        [this, entry] {
            while (RunStep(entry) == Next::GoOn && Goes(entry)) {
            }
        },
        [this] { return m_app.Get<PageSigns>().LocationURL(); });
    if (!error.isEmpty() && Goes(entry))
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
        m_app.Get<StopResume>().StopAll(u"LF2"_s);
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

GatherDriver::Next GatherDriver::RunStep(int entry) {
    RunState& state = m_app.state;
    m_app.WebBrowser1().SetSilent(true);
    state.strLastPageText.clear();
    state.strLastPageHref.clear();
    state.blnLastPageAsHTML = false;
    Trace(u"IGP - "_s + m_app.NowText());
    if (state.intGatherStep == StepScan)
        return ScanPage(entry);
    return state.intGatherStep == StepTurn ? TurnPage(entry) : Next::Return;
}

GatherDriver::Next GatherDriver::ScanPage(int entry) {
    RunState& state = m_app.state;
    Trace(u"IGP3.1 - Curr: "_s + OptionsTrace());
    if (!WaitForPageToCome(entry) || !WaitForMailPage(entry))
        return Next::Return;
    state.blnCommentFormShown = false;
    m_app.SetStatus(state.blnComparingIDs ? u"Comparing ID's on the current page to the gathered list..."_s
                                          : u"Gathering ID's from the current page..."_s);
    m_app.waiting.Pump();
    if (!Goes(entry))
        return Next::Return;
    // Asked now: a stop clears compare mode.
    const bool filterPass = FilterPassWanted();
    m_app.Get<LinkScanner>().GatherPageProfiles();
    if (Goes(entry) && state.blnRetryGatherPage) {
        m_app.waiting.WaitSeconds(SecondsBeforeRetry);
        if (Goes(entry))
            m_app.Get<LinkScanner>().GatherPageProfiles();
    }
    if (filterPass && entry == m_lastEntry && state.CurrentAction.isEmpty()) {
        Trace(u"IGP3.2"_s);
        m_app.Get<StopResume>().StopAll(u"IGP1"_s);
    }
    if (!Goes(entry))
        return Next::Return;
    state.blnRetryGatherPage = false;
    m_app.Get<GatheredList>().SetScannedLabel();
    state.intGatherStep = StepTurn;
    if (FilterPassWanted())
        return ReturnFromFilterPass();
    Trace(u"IGP3.4"_s);
    return Next::GoOn;
}

void GatherDriver::ScanPageToCome() {
    m_pageIsToCome = true;
    IterateGatherProfiles();
}

bool GatherDriver::WaitForPageToCome(int entry) {
    const auto isHere = [this] {
        return m_app.Get<PageSigns>().LocationURL() != u"about:blank"_s &&
               (m_app.WebBrowser1().ReadyState() == 4 || IsGatherPageComplete(m_app));
    };
    m_app.waiting.WaitFor(u"the page to be complete"_s, [&] {
        if (!Goes(entry))
            return false;
        Diagnostics::IgnoreErrors([&] { m_pageIsToCome = m_pageIsToCome && !isHere(); });
        return m_pageIsToCome;
    });
    return Goes(entry);
}

bool GatherDriver::WaitForMailPage(int entry) {
    PageSigns& page = m_app.Get<PageSigns>();
    if (!page.AddressContains(u"http://{MessagingHost}/index.cfm?fuseaction=mail."_s) ||
        page.AddressContains(u"http://{MessagingHost}/index.cfm?fuseaction=mail.notifications"_s) ||
        page.AddressContains(u"V3"_s))
        return true;
    m_app.SetStatus(u"Waiting for the page to finish loading..."_s);
    Trace(u"IGP - waiting for page"_s);
    m_app.Get<StopResume>().PauseLinkCheck();
    m_app.waiting.WaitFor(u"the page to be complete"_s,
                          [&] { return Goes(entry) && m_app.WebBrowser1().ReadyState() < 4; });
    if (!Goes(entry))
        return false;
    m_app.Get<StopResume>().ResumeLinkCheck();
    return true;
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
GatherDriver::Next GatherDriver::ReturnFromFilterPass() {
    RunState& state = m_app.state;
    Trace(u"IGP3.3"_s);
    if (m_app.Get<PageSigns>().LocationURL() != state.strGatherStartURL) {
        const QString url = state.strGatherStartURL;
        const RunMark mark = m_app.waiting.Mark();
        m_app.ClearPage();
        m_app.waiting.LeaveUnlessCurrent(mark);
        m_app.WebBrowser1().Navigate(url);
        m_app.SetStatus(u"Filtering finished... going back to where you were gathering from."_s);
    }
    AwaitList();
    return Next::Return;
}

} // namespace qlm
