// SPDX-License-Identifier: MIT
#include "campaigns/SendRuns.h"

#include "accounts/LoginFlow.h"
#include "browser/Cover.h"
#include "campaigns/Campaigns.h"
#include "campaigns/ChainedStart.h"
#include "campaigns/ContentChoice.h"
#include "campaigns/Counters.h"
#include "campaigns/SentLog.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "gather/GatheredList.h"
#include "gather/ProfileFilters.h"
#include "steps/Activities.h"
#include "steps/Lending.h"
#include "steps/RunReport.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// A long walk over known IDs loads no page; Stop has to work in it all the same.
constexpr int SkipsBetweenPumps = 100;

QString ClickOf(const char* button) {
    return QString::fromLatin1(button) + u"_Click"_s;
}

} // namespace

SendRuns::SendRuns(App& app) : m_app(app), m_logDialog(app), m_reportDialog(app, app.Get<RunReport>()) {
    for (const Campaign* campaign : Campaigns())
        if (campaign->makeMachine)
            RegisterCommands(*campaign);
    app.Get<LoginFlow>().goOnInChain = [&app] { GoOnInChain(app); };
    app.commands.Add(u"chkRemoveAfterSent_MouseDown"_s, [this] { chkRemoveAfterSent_MouseDown(); });
}

void SendRuns::RegisterCommands(const Campaign& campaign) {
    Commands& commands = m_app.commands;
    commands.Add(ClickOf(campaign.send), campaign.startProcedure,
                 [this, &campaign](int how) { Start(campaign, how == ByClock); });
    if (campaign.stop[0])
        commands.Add(ClickOf(campaign.stop), [this, &campaign] { Stop(campaign); });
    if (campaign.log[0])
        commands.Add(ClickOf(campaign.log), [this, &campaign] {
            m_logDialog.Show({m_app, &campaign}, QString::fromLatin1(campaign.whatLogRecords));
        });
    if (campaign.reportButton[0])
        commands.Add(ClickOf(campaign.reportButton),
                     [this, &campaign] { m_reportDialog.Show(campaign.report); });
}

void SendRuns::Start(const Campaign& campaign, bool byClock) {
    // What stops the running campaign forgets it.
    const bool goesOn = m_app.state.SwitchingAccount;
    MarkStart(campaign, 1);
    m_app.WebBrowser1().SetSilent(true);
    m_app.webHide().SetSilent(true);
    m_app.Get<Cover>().Hide();
    if (campaign.prepare)
        campaign.prepare(m_app);
    if (!MayStart(campaign)) {
        if (goesOn && m_app.state.blnChaining)
            EndRefusedChain(m_app);
        return;
    }
    MarkStart(campaign, 2);
    if (campaign.stopsRunningOne)
        m_app.Get<StopResume>().StopAll(campaign.reasons.stopped);
    const ChainedStart chained = StartInChain(m_app, campaign, goesOn, byClock);
    if (chained == ChainedStart::Begins)
        return;
    // The next account of a chain goes on in the list where the last one left it.
    if (chained != ChainedStart::GoesOn)
        m_app.state.intCurrentIDIndex = 0;
    Reset(campaign);
    Begin(campaign);
}

bool SendRuns::MayStart(const Campaign& campaign) {
    return CampaignMayStart(m_app, campaign) && (!campaign.mayStart || campaign.mayStart(m_app, campaign));
}

void SendRuns::MarkStart(const Campaign& campaign, int number) {
    if (campaign.startMark[0])
        m_app.diagnostics.Debug(QString::fromLatin1(campaign.activity.debugFile),
                                QString::fromLatin1(campaign.startMark) + QString::number(number) + u" - "_s +
                                    m_app.NowText());
}

void SendRuns::Begin(const Campaign& campaign) {
    const Activity& activity = campaign.activity;
    const RunMark start = m_app.waiting.Mark();
    m_app.Get<RunReport>().BeginRun(campaign.report);
    // A disk that refuses the report brings a box up, and whatever happens while it is there.
    m_app.waiting.LeaveUnlessCurrent(start);
    if (campaign.onStart)
        campaign.onStart(m_app);
    if (activity.step)
        m_app.state.*activity.step = campaign.firstStep;
    if (const auto begin = campaign.run ? campaign.run : activity.stepRoutine)
        begin(m_app);
}

void SendRuns::ResetRun(QLatin1StringView word) {
    RunState& state = m_app.state;
    m_app.waiting.OutdateSteps();
    EndPost();
    m_app.Get<StopResume>().EndChainOfOthers(word);
    state.CurrentAction = word;
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
    state.intFRLimitHits = 0;
    state.blnMsgAfterFR = false;
    // Whoever had lent the browser is over: it has been taken by hand.
    m_app.Get<Lending>().Forget();
    state.strAcceptMode.clear();
    m_app.controls.SetItems("lstAcceptIDs"_L1, {});
    state.blnFRWaitRequestSent = false;
    state.blnFRSkipMessage = false;
    state.blnErrorRedirectTold = false;
    state.lngSkippedCount = 0;
    state.lngFilteredCount = 0;
    state.lngFailedCount = 0;
    state.lngRemovedCount = 0;
}

void SendRuns::Reset(const Campaign& campaign) {
    RunState& state = m_app.state;
    ResetRun(campaign.Word());
    state.*campaign.session = 0;
    // Of friend requests the log is the only guard against asking somebody twice.
    state.blnCheckLog = campaign.checkLogBox.isEmpty() || m_app.controls.Ticked(campaign.checkLogBox);
    SentLog(m_app, &campaign).SettleNotes();
    m_app.Get<Counters>().ShowSentAtStart(campaign);
    ShowCounts();
}

// Of a campaign that is at a post, and so has no next one any more.
void SendRuns::EndPost() {
    const Campaign* running = FindCampaign(m_app.state.CurrentAction);
    if (!running || !running->timing.timer || m_app.state.*running->activity.waits)
        return;
    m_app.controls.SetVisible(running->timing.busyLabel, false);
    if (running->activity.step)
        m_app.state.*running->activity.step = 0;
}

void SendRuns::Stop(const Campaign& campaign) {
    m_app.WebBrowser1().SetSilent(true);
    m_app.WebBrowser1().Stop();
    m_app.state.blnUserNavigated = true;
    m_app.Get<Cover>().Hide();
    m_app.Get<StopResume>().StopAll(campaign.reasons.stopped);
}

void SendRuns::chkRemoveAfterSent_MouseDown() {
    if (FindTargetCampaign(m_app.state.CurrentAction))
        m_app.ShowMessage(u"This value cannot be changed while sending"_s);
}

void SendRuns::ShowCounts() {
    const RunState& state = m_app.state;
    const Campaign* campaign = FindTargetCampaign(state.CurrentAction);
    if (!campaign || (campaign->isPartOfAnother && campaign->isPartOfAnother(state)))
        return;
    m_app.controls.SetText(campaign->skippedLabel,
                           u"Skipped: "_s + QString::number(state.lngSkippedCount + state.lngFilteredCount));
    m_app.controls.SetText(campaign->failedLabel, u"Failed: "_s + QString::number(state.lngFailedCount));
}

bool SendRuns::Accepting() const {
    return !m_app.state.strAcceptMode.isEmpty();
}

bool SendRuns::TargetLeft() const {
    if (Accepting())
        return !m_app.controls.Items("lstAcceptIDs"_L1).isEmpty();
    return !m_app.Get<GatheredList>().IsEmpty() &&
           m_app.state.intCurrentIDIndex <= m_app.Get<GatheredList>().UBound();
}

bool SendRuns::TakeTarget(const QString& caller) {
    while (TargetLeft()) {
        BeginTarget();
        if (!IsLogged())
            return true;
        PassOver(caller);
    }
    return false;
}

// A friend just accepted may be looked up by the user's wish, and then always.
bool SendRuns::IsLogged() {
    const Campaign* campaign = FindTargetCampaign(m_app.state.CurrentAction);
    const bool forced = Accepting() && campaign && !campaign->acceptLogBox.isEmpty() &&
                        m_app.controls.Ticked(campaign->acceptLogBox);
    return SentLog(m_app, campaign).LogEntryExists(m_app.state.strCurrentID, false, forced);
}

void SendRuns::ReportSkip() {
    const QString id = m_app.state.strCurrentID;
    const Campaign* campaign = FindTargetCampaign(m_app.state.CurrentAction);
    const bool isNoted = campaign && RunningLog(m_app).IsNoted(id);
    m_app.Get<RunReport>().PassOver(id, isNoted ? QString::fromLatin1(campaign->noteSays)
                                                : u"You sent to this one before"_s);
}

void SendRuns::PassOver(const QString& caller) {
    RunState& state = m_app.state;
    if (!m_app.Status().startsWith(u"Skipping"_s))
        m_app.SetStatus(u"Skipping ID's you've sent to before..."_s);
    ++state.lngSkippedCount;
    state.intFRLimitHits = 0;
    ReportSkip();
    ShowCounts();
    AdvanceAfterUse(caller);
    if (state.lngSkippedCount % SkipsBetweenPumps != 0)
        return;
    m_app.Get<StopResume>().PauseLinkCheck();
    m_app.waiting.Pump();
    m_app.Get<StopResume>().ResumeLinkCheck();
}

void SendRuns::BeginTarget() {
    RunState& state = m_app.state;
    ++state.lngTargetNumber;
    m_app.waiting.OwnTarget();
    const bool accepting = Accepting();
    const QStringList& accepted = m_app.controls.Items("lstAcceptIDs"_L1);
    const qsizetype total = accepting ? accepted.size() : state.arrFriendIDs.size();
    const qint32 index = accepting ? 0 : state.intCurrentIDIndex;
    state.strCurrentID = accepting ? accepted.first() : state.arrFriendIDs.at(index);
    // What the run has taken off the list counts as walked over.
    const qint64 number = qint64(state.lngRemovedCount) + index + 1;
    const qint64 count = state.lngRemovedCount + total;
    m_app.controls.SetProgress({number, count});
}

bool SendRuns::NoteBeforeSend() {
    if (RunningLog(m_app).NoteContact())
        return true;
    m_app.Get<StopResume>().StopAll(StopReason::Unnoted);
    if (!m_app.Get<StopResume>().DoFinishedExit())
        m_app.ShowMessage(u"Quillmere can't note whom it is about to send to, so somebody might get the same "
                          "twice. The run has been stopped."_s);
    return false;
}

void SendRuns::ChooseOrStop(const std::function<void()>& choose) {
    try {
        choose();
    } catch (const NoEntrySelected&) {
        StopWithoutText();
    }
}

void SendRuns::StopWithoutText() {
    const QString what = QString::fromLatin1(FindTargetCampaign(m_app.state.CurrentAction)->what);
    m_app.Get<StopResume>().StopAll(StopReason::NoText);
    if (!m_app.Get<StopResume>().DoFinishedExit())
        m_app.ShowMessage(u"None of the "_s + what +
                          u" in your list is selected any more. The run has been stopped."_s);
    m_app.waiting.LeaveIfObsolete();
}

bool SendRuns::IsOnSite() {
    const Document page = m_app.WebBrowser1().Document();
    return page && m_app.deployment.IsSitePage(page.Address());
}

void SendRuns::OpenProfile() {
    const QString& id = m_app.state.strCurrentID;
    m_app.SetStatus(u"Navigating to ID "_s + id +
                    u"'s profile page to see if it matches your filter settings..."_s);
    m_app.WebBrowser1().Navigate(m_app.Expand(u"{SiteRootHost}/"_s) + id + u"/classic"_s);
}

bool SendRuns::PassesFilter(const QString& caller) {
    RunState& state = m_app.state;
    m_app.Get<Cover>().Hide();
    if (m_app.Get<ProfileFilters>().IsFilteredProfile()) {
        const QString what = QString::fromLatin1(FindCampaign(state.CurrentAction)->what);
        m_app.SetStatus(u"ID "_s + state.strCurrentID +
                        u" matches your filter settings, proceeding to send "_s + what.chopped(1) + u"..."_s);
        return true;
    }
    ++state.lngFilteredCount;
    m_app.Get<RunReport>().Close(ReportResult::Skipped, u"Doesn't match your filter settings"_s);
    ShowCounts();
    const Activity& activity = FindCampaign(state.CurrentAction)->activity;
    state.*activity.step = activity.nextTarget;
    m_app.ClearPage();
    RemoveUsedTarget(caller);
    return false;
}

void SendRuns::MoveCursor() {
    if (!Accepting() && !m_app.controls.Ticked("chkRemoveAfterSent"_L1))
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
    if (Accepting()) {
        if (m_app.controls.Items("lstAcceptIDs"_L1).value(0) == state.strCurrentID) {
            m_app.controls.RemoveItem("lstAcceptIDs"_L1, 0);
            ++state.lngRemovedCount;
        }
        return;
    }
    const IdList& targets = state.arrFriendIDs;
    // The user may have taken it off the list meanwhile.
    if (!m_app.controls.Ticked("chkRemoveAfterSent"_L1) ||
        targets.value(state.intCurrentIDIndex) != state.strCurrentID)
        return;
    const qsizetype before = targets.size();
    m_app.Get<GatheredList>().Remove(state.intCurrentIDIndex, caller);
    const bool removed = targets.size() < before || targets.IsBlank(0);
    // An entry without a row in the box can't be removed; the walk must not stay on it.
    ++(removed ? state.lngRemovedCount : state.intCurrentIDIndex);
}

void SendRuns::Finish() {
    const Campaign* campaign = FindTargetCampaign(m_app.state.CurrentAction);
    if (!campaign)
        return;
    if (Accepting()) {
        ReturnToAccepting();
        return;
    }
    const RunState& state = m_app.state;
    const bool isChained = state.blnChaining;
    m_app.Get<StopResume>().StopAll(*campaign->reasons.finished);
    if (m_app.Get<StopResume>().DoFinishedExit())
        return;
    QString text = u"Finished sending "_s + QString::fromLatin1(campaign->what) + u'.';
    auto addParagraph = [&text](qint32 count, const QString& words) {
        if (count > 0)
            text += u"\n\n"_s + QString::number(count) + words;
    };
    if (!isChained) {
        addParagraph(state.lngSkippedCount, u" ID's were skipped because you sent to them previously."_s);
        addParagraph(state.lngFilteredCount, u" ID's didn't match your filter settings."_s);
    }
    m_app.ShowMessage(text);
}

void SendRuns::ReturnToAccepting() {
    RunState& state = m_app.state;
    const Activity& borrowed = *FindActivity(state.CurrentAction);
    const Activity& accepting = *FindActivity(ActivityWord::Accepting);
    state.*borrowed.step = 0;
    state.*accepting.step = AcceptStep::OpenList;
    state.CurrentAction = accepting.word;
    state.strAcceptMode.clear();
    m_app.controls.SetItems("lstAcceptIDs"_L1, {});
    if (accepting.stepRoutine)
        accepting.stepRoutine(m_app);
}

} // namespace qlm
