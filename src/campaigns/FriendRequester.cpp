// SPDX-License-Identifier: MIT
#include "campaigns/FriendRequester.h"

#include "browser/Cover.h"
#include "campaigns/Pacing.h"
#include "campaigns/SendRuns.h"
#include "campaigns/StartChecks.h"
#include "core/App.h"
#include "core/SettingsFields.h"
#include "core/Text.h"
#include "gather/ProfileFilters.h"
#include "steps/RunReport.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int BusyBrowserSeconds = 3;
const QString NoticeKey = u"TempMySpaceErrorFR - chkDontShowAgain"_s;

bool IsBusyBrowser(const QString& error) {
    for (const auto& text :
         {u"The requested resource is in use"_s, u"Automation error"_s, u"Automatisierungsfehler"_s})
        if (Has(error, text))
            return true;
    return false;
}

} // namespace

const FriendRequester::State FriendRequester::States[] = {
    {5, &FriendRequester::TakeNextTarget}, {6, &FriendRequester::EndRun},
    {7, &FriendRequester::DecideFilter},   {8, &FriendRequester::SubmitFriend},
    {9, &FriendRequester::AfterSend},
};

FriendRequester::FriendRequester(App& app) : m_app(app), m_categories(app) {
    app.commands.Add(u"frmTempMySpaceErrorFR.cmdOK_Click"_s, [this] {
        const bool notAgain = m_app.controls.Ticked("frmTempMySpaceErrorFR.chkDontShowAgain"_L1);
        m_app.platform.Settings().SaveSetting(u"General"_s, NoticeKey, notAgain ? u"1"_s : u"0"_s);
        m_app.Get<SettingsFields>().Sync();
        m_app.platform.Dialogs().CloseForm(u"frmTempMySpaceErrorFR"_s);
    });
    app.commands.Add(u"chkFrSendMessage_MouseDown"_s, [this] {
        if (!m_app.controls.Ticked("chkFrSendMessage"_L1) && !HasMessenger(m_app))
            m_app.ShowMessage(u"This version of Quillmere has no Auto Messenger yet, so it can't send a "
                              "message after a friend request."_s);
    });
}

void FriendRequester::NoticeErrorRedirect() {
    if (m_app.state.blnErrorRedirectTold)
        return;
    m_app.state.blnErrorRedirectTold = true;
    if (ToBoolean(m_app.platform.Settings().GetSetting(u"General"_s, NoticeKey, u"0"_s)))
        return;
    m_app.controls.SetTicked("frmTempMySpaceErrorFR.chkDontShowAgain"_L1, false);
    m_app.platform.Dialogs().ShowForm(u"frmTempMySpaceErrorFR"_s);
}

bool FriendRequester::IsCurrent(qint32 target) const {
    return m_app.state.CurrentAction == u"FR"_s && m_app.state.lngTargetNumber == target;
}

void FriendRequester::Await(const QString& type, const QString& value) {
    m_app.state.strLinkType = type;
    m_app.state.strLinkValue = value;
    m_app.state.blnLinkFound = false;
}

void FriendRequester::IterateAddFriends() {
    while (m_app.state.CurrentAction == u"FR"_s) {
        const QString error = m_app.diagnostics.Trap("IterateAddFriends", [this] {
            while (RunStep() == Next::Again)
                continue;
        });
        if (error.isEmpty())
            return;
        if (!IsBusyBrowser(error)) {
            // The page is looked at again; an empty one for long repeats the step.
            if (m_app.state.CurrentAction == u"FR"_s)
                m_app.timers->tmrCheckLinkLoaded.Restart();
            return;
        }
        if (!WaitForBusyBrowser())
            return;
    }
}

// False when the run has moved on or ended meanwhile.
bool FriendRequester::WaitForBusyBrowser() {
    const qint32 target = m_app.state.lngTargetNumber;
    const qint16 step = m_app.state.intFRStep;
    m_app.waiting.WaitWhile([this, target] { return IsCurrent(target); }, BusyBrowserSeconds);
    if (!IsCurrent(target) || m_app.state.intFRStep != step)
        return false;
    // A target that could not be opened is taken again.
    if (step == 5)
        m_app.Get<SendRuns>().MoveCursorBack();
    return true;
}

FriendRequester::Next FriendRequester::RunStep() {
    RunState& state = m_app.state;
    if (state.CurrentAction != u"FR"_s)
        return Next::Wait;
    state.strLastPageText.clear();
    state.strLastPageHref.clear();
    m_app.WebBrowser1().SetSilent(true);
    m_app.webHide().SetSilent(true);
    for (const State& each : States)
        if (each.step == state.intFRStep)
            return (this->*each.run)();
    return Next::Wait;
}

FriendRequester::Next FriendRequester::TakeNextTarget() {
    m_app.state.blnWaitingForCaptcha = false;
    m_app.Get<Cover>().Hide();
    m_movedToEnd = false;
    switch (m_app.Get<SendRuns>().TakeTarget(u"IterateAddFriends - 1"_s)) {
    case SendRuns::Took::Target:
        return OpenTarget();
    case SendRuns::Took::Obsolete:
        return Next::Wait;
    case SendRuns::Took::End:
        break;
    }
    m_app.state.intFRStep = 6;
    return Next::Again;
}

FriendRequester::Next FriendRequester::OpenTarget() {
    const qint32 target = m_app.state.lngTargetNumber;
    m_app.Get<RunReport>().Open(m_app.state.strCurrentID);
    m_app.WebBrowser1().Navigate(u"about:blank"_s);
    m_app.Get<SendRuns>().MoveCursor();
    m_app.waiting.Pump();
    if (!IsCurrent(target))
        return Next::Wait;
    if (m_app.Get<ProfileFilters>().ActiveWhenSending())
        OpenProfile();
    else
        OpenRequestPage();
    return Next::Wait;
}

void FriendRequester::OpenProfile() {
    const QString& id = m_app.state.strCurrentID;
    m_app.SetStatus(u"Navigating to ID "_s + id +
                    u"'s profile page to see if it matches your filter settings..."_s);
    m_app.WebBrowser1().Navigate(m_app.Expand(u"{SiteRootHost}/"_s) + id + u"/classic"_s);
    m_app.state.intFRStep = 7;
    Await(u"Text"_s, u"View"_s);
    m_app.timers->tmrCheckLinkLoaded.Restart();
}

void FriendRequester::OpenRequestPage() {
    const QString& id = m_app.state.strCurrentID;
    m_app.SetStatus(u"Sending friend request to ID "_s + id + u", waiting for confirmation page..."_s);
    const bool newLayout = m_app.state.blnNewLayout;
    const QString page = newLayout
                             ? u"{SiteRootHost}/my/friends/addtofriends/"_s
                             : u"{FriendsHost}/index.cfm?fuseaction=invite.addfriend_verify&friendID="_s;
    m_app.WebBrowser1().Navigate(m_app.Expand(page) + id);
    m_app.state.intFRStep = 8;
    if (newLayout)
        Await(u"Text"_s, u"Request Sent!"_s);
    else
        Await(u"Button"_s, u"add to friends"_s);
    m_app.timers->tmrCheckLinkLoaded.Restart();
}

FriendRequester::Next FriendRequester::EndRun() {
    m_app.Get<SendRuns>().Finish(u"IAF"_s);
    return Next::Wait;
}

FriendRequester::Next FriendRequester::DecideFilter() {
    RunState& state = m_app.state;
    const qint32 target = state.lngTargetNumber;
    m_app.Get<Cover>().Hide();
    const bool passes = m_app.Get<ProfileFilters>().IsFilteredProfile();
    if (!IsCurrent(target) || state.intFRStep != 7)
        return Next::Wait;
    if (!passes) {
        ++state.lngFilteredCount;
        m_app.Get<RunReport>().Close(ReportResult::Skipped, u"Doesn't match your filter settings"_s);
        m_app.Get<SendRuns>().ShowCounts();
        m_app.ClearPage();
        if (!IsCurrent(target))
            return Next::Wait;
        m_app.Get<SendRuns>().RemoveUsedTarget(u"IterateAddFriends - 2"_s);
        state.intFRStep = 5;
        return Next::Again;
    }
    m_app.SetStatus(u"ID "_s + state.strCurrentID +
                    u" matches your filter settings, proceeding to send friend request..."_s);
    // Unlike the direct way, this one uses the new address on both layouts.
    state.intFRStep = 8;
    Await(u"Text"_s, u"Request Sent!"_s);
    m_app.WebBrowser1().Navigate(m_app.Expand(u"{SiteRootHost}/my/friends/addtofriends/"_s) +
                                 state.strCurrentID);
    m_app.timers->tmrCheckLinkLoaded.Restart();
    return Next::Wait;
}

FriendRequester::Next FriendRequester::AfterSend() {
    const RunState& state = m_app.state;
    CloseReport();
    const bool messageFollows =
        m_app.controls.Ticked("chkFrSendMessage"_L1) && !state.blnFRSkipMessage && !state.blnSkipRequested;
    return messageFollows ? SendMessageBehind() : GoOnBehindTarget();
}

// A request that was logged has its result already.
void FriendRequester::CloseReport() {
    const RunState& state = m_app.state;
    RunReport& report = m_app.Get<RunReport>();
    if (!state.blnSkipCurrentID && !state.blnSkipRequested)
        report.Close(ReportResult::SentNotLogged, u"The site did not confirm it"_s);
    else if (m_movedToEnd)
        report.Close(ReportResult::PutOff, u"Asks for a CAPTCHA; comes again at the end of the list"_s);
    else
        report.Close(ReportResult::Failed, u"You pressed Skip"_s);
}

FriendRequester::Next FriendRequester::GoOnBehindTarget() {
    RunState& state = m_app.state;
    const qint32 target = state.lngTargetNumber;
    state.intFRStep = 5;
    const bool givenUp = state.blnSkipCurrentID || state.blnSkipRequested;
    if (!givenUp) {
        m_app.SetStatus(u"Friend request successfully sent"_s);
        m_app.Get<Pacing>().DoDelay();
        if (!IsCurrent(target))
            return Next::Wait;
    } else if (!m_movedToEnd) {
        ++state.lngFailedCount;
        m_app.Get<SendRuns>().ShowCounts();
    }
    state.blnSkipCurrentID = false;
    state.blnSkipRequested = false;
    state.blnFRSkipMessage = false;
    m_app.Get<SendRuns>().RemoveUsedTarget(u"IterateAddFriends - 3"_s);
    return Next::Again;
}

FriendRequester::Next FriendRequester::SendMessageBehind() {
    RunState& state = m_app.state;
    const qint32 target = state.lngTargetNumber;
    state.blnMsgAfterFR = true;
    state.intFRStep = 0;
    state.intMsgStep = 7;
    m_app.SetStatus(u"Friend request successfully sent"_s);
    m_app.Get<Pacing>().DoDelay();
    if (!IsCurrent(target))
        return Next::Wait;
    // The message step moves the cursor on.
    if (!m_app.controls.Ticked("chkRemoveAfterSent"_L1))
        --state.intCurrentIDIndex;
    state.CurrentAction = u"MSG"_s;
    m_app.SetStatus(u"Proceeding to send message after friend request..."_s);
    Await(u"Button"_s, u"send"_s);
    const QString page = state.blnNewLayout
                             ? u"{SiteRootHost}/my/mail/new?t="_s
                             : u"{MessagingHost}/index.cfm?fuseaction=mail.message&friendID="_s;
    m_app.WebBrowser1().Navigate(m_app.Expand(page) + state.strCurrentID);
    m_app.timers->tmrCheckLinkLoaded.Restart();
    return Next::Wait;
}

} // namespace qlm
