// SPDX-License-Identifier: MIT
#include "campaigns/SendRuns.h"

#include "campaigns/Campaigns.h"
#include "campaigns/FriendRequester.h"
#include "campaigns/Pacing.h"
#include "campaigns/StartChecks.h"
#include "core/App.h"
#include "core/StopResume.h"
#include "gather/GatheredList.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

SendRuns::SendRuns(App& app) : m_app(app), m_logDialog(app), m_report(app), m_reportDialog(app, m_report) {
    Commands& commands = app.commands;
    commands.Add(u"piccmdAddFriends_Click"_s, [this] { cmdAddFriends_Click(); });
    commands.Add(u"piccmdAddFriendsStop_Click"_s, [this] { StopFriendRequests(); });
    commands.Add(u"piccmdFrClearLog_Click"_s, [this] {
        m_app.diagnostics.Trap("piccmdFrClearLog_Click", [this] { m_logDialog.Show(u"FR"_s); });
    });
    commands.Add(u"chkRemoveAfterSent_MouseDown"_s, [this] { chkRemoveAfterSent_MouseDown(); });
}

void SendRuns::cmdAddFriends_Click() {
    m_app.diagnostics.Trap("cmdAddFriends_Click", [this] {
        m_app.diagnostics.Debug(u"debugfr.txt"_s, u"FR BEGIN1 - "_s + m_app.NowText());
        m_app.WebBrowser1().SetSilent(true);
        m_app.webHide().SetSilent(true);
        m_app.pacing->HideCover();
        if (!FriendRequestMayStart(m_app))
            return;
        m_app.diagnostics.Debug(u"debugfr.txt"_s, u"FR BEGIN2 - "_s + m_app.NowText());
        ResetFriendRun();
        m_report.BeginRun();
        m_app.state.intFRStep = 5;
        m_app.friendRequester->IterateAddFriends();
    });
}

void SendRuns::ResetFriendRun() {
    RunState& state = m_app.state;
    state.CurrentAction = u"FR"_s;
    m_app.timers->tmrCheckLinkLoaded.SetEnabled(false);
    m_app.timers->Timer1.SetEnabled(false);
    state.strLinkType.clear();
    state.strLinkValue.clear();
    state.strFRResumeURL.clear();
    state.blnLinkFound = false;
    state.blnWaitingForCaptcha = false;
    state.blnSkipCurrentID = false;
    state.blnSkipRequested = false;
    state.blnHoldLinkCheck = false;
    // A delay of an earlier run that still spins below this click is over.
    state.blnInDelay = false;
    state.intBlankTicks = 0;
    state.intFRLimitHits = 0;
    state.intCaptchaSkips = 0;
    state.blnMsgAfterFR = false;
    state.blnFRSkipMessage = false;
    state.blnErrorRedirectTold = false;
    state.lngSkippedCount = 0;
    state.lngFilteredCount = 0;
    state.lngFailedCount = 0;
    state.lngRemovedCount = 0;
    state.lngSessionFR = 0;
    state.intCurrentIDIndex = 0;
    // The log is the only guard against asking somebody twice.
    state.blnCheckLog = true;
    m_app.controls.SetText("lblFrSentCount"_L1, u"Friends requested: 0"_s);
    ShowCounts();
}

void SendRuns::StopFriendRequests() {
    m_app.diagnostics.Trap("piccmdAddFriendsStop_Click", [this] {
        m_app.WebBrowser1().SetSilent(true);
        m_app.WebBrowser1().Stop();
        m_app.pacing->HideCover();
        m_app.stopResume->StopAll(u"ADDSTOP"_s);
    });
}

void SendRuns::chkRemoveAfterSent_MouseDown() {
    if (FindCampaign(m_app.state.CurrentAction))
        m_app.ShowMessage(u"This value cannot be changed while sending"_s);
}

void SendRuns::ShowCounts() {
    const RunState& state = m_app.state;
    m_app.controls.SetText("lblFrSkippedCount"_L1,
                           u"Skipped: "_s + QString::number(state.lngSkippedCount + state.lngFilteredCount));
    m_app.controls.SetText("lblFrFailedCount"_L1, u"Failed: "_s + QString::number(state.lngFailedCount));
}

bool SendRuns::TargetLeft() const {
    return !m_app.gatheredList->IsEmpty() && m_app.state.intCurrentIDIndex <= m_app.gatheredList->UBound();
}

void SendRuns::BeginTarget() {
    RunState& state = m_app.state;
    ++state.lngTargetNumber;
    state.strCurrentID = state.arrFriendIDs.at(state.intCurrentIDIndex);
    // What the run has taken off the list counts as walked over.
    const qint64 number = qint64(state.lngRemovedCount) + state.intCurrentIDIndex + 1;
    const qint64 count = state.lngRemovedCount + state.arrFriendIDs.size();
    m_app.controls.SetText("lblProgress"_L1,
                           u"ID "_s + QString::number(number) + u" of "_s + QString::number(count));
}

void SendRuns::MoveCursor() {
    if (!m_app.controls.Ticked("chkRemoveAfterSent"_L1))
        ++m_app.state.intCurrentIDIndex;
}

void SendRuns::MoveCursorBack() {
    RunState& state = m_app.state;
    if (state.intCurrentIDIndex > 0 &&
        state.arrFriendIDs.value(state.intCurrentIDIndex - 1) == state.strCurrentID)
        --state.intCurrentIDIndex;
}

void SendRuns::AdvanceAfterUse(const QString& caller) {
    MoveCursor();
    RemoveUsedTarget(caller);
}

void SendRuns::RemoveUsedTarget(const QString& caller) {
    RunState& state = m_app.state;
    const QStringList& targets = state.arrFriendIDs;
    // The user may have taken it off the list himself meanwhile.
    if (!m_app.controls.Ticked("chkRemoveAfterSent"_L1) ||
        targets.value(state.intCurrentIDIndex) != state.strCurrentID)
        return;
    const qsizetype before = targets.size();
    m_app.gatheredList->ProcessArrayAndList(u"REMOVE"_s, state.intCurrentIDIndex, {}, caller);
    const bool removed = targets.size() < before || targets.constFirst().isEmpty();
    // An entry without a row in the box can't be removed; the walk must not stay on it.
    ++(removed ? state.lngRemovedCount : state.intCurrentIDIndex);
}

void SendRuns::Finish(const QString& reason) {
    const Campaign* campaign = FindCampaign(m_app.state.CurrentAction);
    if (!campaign)
        return;
    RunState& state = m_app.state;
    m_app.stopResume->StopAll(reason);
    if (m_app.stopResume->DoFinishedExit())
        return;
    QString text = u"Finished sending "_s + QString::fromLatin1(campaign->what) + u'.';
    auto addParagraph = [&text](qint32 count, const QString& words) {
        if (count > 0)
            text += u"\n\n"_s + QString::number(count) + words;
    };
    if (!state.blnChaining) {
        addParagraph(state.lngSkippedCount, u" ID's were skipped because you sent to them previously."_s);
        addParagraph(state.lngFilteredCount, u" ID's didn't match your filter settings."_s);
    }
    m_app.ShowMessage(text);
    state.blnChaining = false;
}

} // namespace qlm
