// SPDX-License-Identifier: MIT
#include "core/StopResume.h"

#include "campaigns/SendRuns.h"
#include "core/Activities.h"
#include "core/App.h"
#include "core/MainForm.h"
#include "core/SettingsFields.h"

#include <algorithm>
#include <iterator>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// The friend requester's mark alone carries no reason.
QString StopMark(const Activity& activity, const QString& reason, const QString& now) {
    const QString mark = QString::fromLatin1(activity.stopMark);
    return mark.endsWith(u'(') ? mark + reason + u')' + now : mark + now;
}

// The step behind the one that sends. Bulletins have no profile to skip: their step goes on as it stands.
struct SkipRow {
    QLatin1StringView action;
    qint16 step; // 0: the step stays
};

constexpr SkipRow SkipRows[] = {
    {"FR"_L1, 9},
    {"MSG"_L1, 8},
    {"COM"_L1, 8},
    {"BUL"_L1, 0},
};

void SkipTo(App& app, const SkipRow& row) {
    // A tick that is due for the page being left would take a step of the next profile.
    app.timers->Timer1.SetEnabled(false);
    const Activity* activity = FindActivity(row.action);
    if (row.step != 0)
        app.state.*activity->step = row.step;
    if (activity->stepRoutine)
        activity->stepRoutine(app);
}

} // namespace

void StopResume::StopAll(const QString& reason) {
    RunState& state = m_app.state;
    const Activity* activity = FindActivity(state.CurrentAction);
    if (activity && activity->stopMark[0])
        m_app.diagnostics.DebugForAction(StopMark(*activity, reason, m_app.NowText()));

    m_app.waiting.OutdateSteps();
    for (const Activity& each : Activities())
        if (each.step)
            state.*each.step = 0;
    state.CurrentAction.clear();

    state.strLinkType.clear();
    state.strLinkValue.clear();
    state.blnLinkFound = false;
    state.strLastPageText.clear();
    state.strLastPageHref.clear();
    state.strFRResumeURL.clear();
    state.blnLastPageAsHTML = false;
    state.blnForceAdvance = false;

    m_app.timers->tmrAutoResume.SetEnabled(false);
    m_app.timers->tmrCheckLinkLoaded.SetEnabled(false);
    state.blnHoldLinkCheck = true;

    state.strNextPageLink.clear();
    state.blnClickNextLink = false;
    state.lngPageScanOffset = 0;
    state.blnComparingIDs = false;
    state.blnRetryGatherPage = false;
    state.intGatherRetryTicks = 0;
    state.SwitchingAccount = false;
    state.blnSkipCurrentID = false;
    state.blnBulletinDeleting = false;
    state.blnCommentFormShown = false;
    state.intFRLimitHits = 0;
    state.intConfirmPolls = 0;
    state.strWaitingFor.clear();
    for (const auto& label : {"myfraCurrentAction"_L1, "lblWaitingFor"_L1, "lblProgress"_L1})
        Diagnostics::IgnoreErrors([&] { m_app.controls.SetText(label, {}); });
    state.blnSkipRequested = false;
    state.blnInDelay = false;
    state.strCurrentID.clear();
    state.blnBulletinWaiting = false;
    state.blnStatusWaiting = false;

    // Writes to the disk, which may fail and bring a window up: nothing runs any more by then.
    m_app.sendRuns->Report().EndRun(reason);
}

void StopResume::ResumeNext() {
    m_app.WebBrowser1().SetSilent(true);
    m_app.state.blnHoldLinkCheck = false;
    m_app.timers->tmrAutoResume.Restart();
    const Activity* activity = FindActivity(m_app.state.CurrentAction);
    if (!activity || !activity->resumable || !activity->stepRoutine)
        return;
    m_app.diagnostics.DebugForAction(u"cmdRes - "_s + m_app.NowText());
    activity->stepRoutine(m_app);
}

void StopResume::SkipProfile() {
    RunState& state = m_app.state;
    m_app.WebBrowser1().SetSilent(true);
    state.blnHoldLinkCheck = false;
    m_app.timers->tmrAutoResume.Restart();
    if (state.blnInDelay) {
        state.blnInDelay = false;
        return;
    }
    state.blnSkipRequested = true;
    for (const SkipRow& row : SkipRows)
        if (state.CurrentAction == row.action) {
            SkipTo(m_app, row);
            return;
        }
    // An account of a chain that can't be logged in.
    if (state.CurrentAction == u"LOGIN"_s && state.blnChaining) {
        m_app.diagnostics.DebugForAction(u"Skip"_s);
        HandOverInChain();
    }
}

bool StopResume::SkipHelps() const {
    const RunState& state = m_app.state;
    return (state.CurrentAction == u"LOGIN"_s && state.blnChaining) ||
           std::any_of(std::begin(SkipRows), std::end(SkipRows),
                       [&state](const SkipRow& row) { return state.CurrentAction == row.action; });
}

void StopResume::PauseLinkCheck() {
    m_app.state.blnHoldLinkCheck = true;
    m_app.timers->tmrAutoResume.SetEnabled(false);
}

void StopResume::ResumeLinkCheck() {
    m_app.state.blnHoldLinkCheck = false;
    m_app.timers->tmrAutoResume.SetEnabled(false);
    m_app.timers->tmrAutoResume.SetEnabled(true);
}

bool StopResume::DoFinishedExit() {
    if (!m_app.state.blnExitWhenFinished)
        return false;
    m_app.mainForm->Unload();
    return true;
}

bool StopResume::HandOverInChain() {
    if (!m_app.state.blnChaining)
        return false;
    m_app.settingsFields->SaveListsAndSettings();
    m_app.commands.Run(u"LoginNextCycleAccount"_s);
    return true;
}

} // namespace qlm
