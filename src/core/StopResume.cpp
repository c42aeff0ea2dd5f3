// SPDX-License-Identifier: MIT
#include "core/StopResume.h"

#include "campaigns/FriendRequester.h"
#include "core/Activities.h"
#include "core/App.h"
#include "core/MainForm.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// The friend requester's mark alone carries no reason.
QString StopMark(const Activity& activity, const QString& reason, const QString& now) {
    const QString mark = QString::fromLatin1(activity.stopMark);
    return mark.endsWith(u'(') ? mark + reason + u')' + now : mark + now;
}

} // namespace

void StopResume::StopAll(const QString& reason) {
    RunState& state = m_app.state;
    const Activity* activity = FindActivity(state.CurrentAction);
    if (activity && activity->stopMark[0])
        m_app.diagnostics.DebugForAction(StopMark(*activity, reason, m_app.NowText()));

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
    state.blnSkipCurrentID = false;
    state.blnBulletinDeleting = false;
    state.blnCommentFormShown = false;
    state.strWaitingFor.clear();
    m_app.SetStatus({});
    m_app.controls.SetText("lblWaitingFor"_L1, {});
    m_app.controls.SetText("lblProgress"_L1, {});
    state.blnSkipRequested = false;
    state.blnInDelay = false;
    state.strCurrentID.clear();
    state.blnBulletinWaiting = false;
    state.blnStatusWaiting = false;
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
    if (state.CurrentAction == u"FR"_s) {
        state.intFRStep = 9;
        m_app.friendRequester->IterateAddFriends();
    }
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

} // namespace qlm
