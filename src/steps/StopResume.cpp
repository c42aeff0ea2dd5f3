// SPDX-License-Identifier: MIT
#include "steps/StopResume.h"

#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/SettingsFields.h"
#include "steps/Activities.h"
#include "steps/Lending.h"
#include "steps/RunReport.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// The friend requester's mark alone carries no tag.
QString StopMark(const Activity& activity, QLatin1StringView tag, const QString& now) {
    const QString mark = QString::fromLatin1(activity.stopMark);
    return mark.endsWith(u'(') ? mark + tag + u')' + now : mark + now;
}

} // namespace

void StopResume::StopAll(StopReason reason) {
    RunState& state = m_app.state;
    const Activity* activity = FindActivity(state.CurrentAction);
    if (activity && activity->stopMark[0])
        m_app.diagnostics.DebugForAction(StopMark(*activity, RowOf(reason).tag, m_app.NowText()));

    m_app.waiting.OutdateSteps();
    static_cast<RunFields&>(state) = {};
    state.strAcceptMode.clear();

    if (!RowOf(reason).isOwnEnd)
        EndTimedPosts();

    m_app.timers->tmrAutoResume.SetEnabled(false);
    m_app.timers->tmrCheckLinkLoaded.SetEnabled(false);
    state.blnHoldLinkCheck = true;

    if (!RowOf(reason).leavesChain && !IsChainWaiting())
        EndChain();

    for (const auto& label : {"myfraCurrentAction"_L1, "lblWaitingFor"_L1})
        Diagnostics::IgnoreErrors([&] { m_app.controls.SetText(label, {}); });
    Diagnostics::IgnoreErrors([&] { m_app.controls.SetProgress({}); });

    // Writes to the disk, which may fail and bring a window up: nothing runs any more by then.
    m_app.Get<RunReport>().EndRun(reason);
}

void StopResume::EndTimedPosts() {
    static_cast<TimedFields&>(m_app.state) = {};
    m_app.Get<Lending>().Forget();
    m_app.timers->tmrBulletinWait.SetEnabled(false);
    m_app.timers->tmrStatusUpdatesWait.SetEnabled(false);
    for (const auto& busy : {"lblBulBusy"_L1, "lblStatusBusy"_L1})
        m_app.controls.SetVisible(busy, false);
    for (const auto& due : {"lblBulDue"_L1, "lblStatusDue"_L1})
        m_app.controls.SetText(due, {});
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
    const Activity* activity = FindActivity(state.CurrentAction);
    if (activity && activity->stepAfterSkip) {
        SkipTo(*activity);
        return;
    }
    // An account of a chain that can't be logged in.
    if (state.CurrentAction == ActivityWord::Login && state.blnChaining) {
        m_app.diagnostics.DebugForAction(u"Skip"_s);
        HandOverInChain();
    }
}

bool StopResume::SkipHelps() const {
    const Activity* activity = FindActivity(m_app.state.CurrentAction);
    return (activity && activity->stepAfterSkip) ||
           (m_app.state.CurrentAction == ActivityWord::Login && m_app.state.blnChaining);
}

void StopResume::SkipTo(const Activity& activity) {
    // A tick that is due for the page being left would take a step of the next profile.
    m_app.timers->Timer1.SetEnabled(false);
    if (*activity.stepAfterSkip != 0)
        m_app.state.*activity.step = *activity.stepAfterSkip;
    if (activity.stepRoutine)
        activity.stepRoutine(m_app);
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
    m_app.Close();
    return true;
}

bool StopResume::HandOverInChain() {
    if (!m_app.state.blnChaining)
        return false;
    m_app.Get<SettingsFields>().SaveListsAndSettings();
    m_app.commands.Run(u"LoginNextCycleAccount"_s);
    return true;
}

void StopResume::EndChain() {
    m_app.state.blnChaining = false;
    m_app.state.ChainedCampaign.clear();
    m_app.controls.SetText("lblChain"_L1, {});
}

void StopResume::EndChainOfOthers(QLatin1StringView word) {
    if (m_app.state.ChainedCampaign != word && !IsChainWaiting())
        EndChain();
}

bool StopResume::IsChainWaiting() const {
    const Activity* activity = FindActivity(m_app.state.ChainedCampaign);
    return activity && activity->waits && m_app.state.*activity->waits;
}

} // namespace qlm
