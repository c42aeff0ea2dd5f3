// SPDX-License-Identifier: MIT
#include "campaigns/Messenger.h"

#include "browser/Cover.h"
#include "browser/PageSigns.h"
#include "campaigns/Campaigns.h"
#include "campaigns/CaptchaCalls.h"
#include "campaigns/Counters.h"
#include "campaigns/GroupWay.h"
#include "campaigns/Pacing.h"
#include "campaigns/SendRuns.h"
#include "campaigns/SentLog.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "gather/ProfileFilters.h"
#include "steps/RunReport.h"
#include "steps/Steps.h"

#include <utility>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString NewComposePage = u"{SiteRootHost}/my/mail/new?t="_s;
const QString OldComposePage = u"{MessagingHost}/index.cfm?fuseaction=mail.message&friendID="_s;

} // namespace

const StepMachine<Messenger>& Messenger::Machine() {
    static const StepMachine<Messenger> machine{
        .word = ActivityWord::Messages,
        .step = &RunState::intMsgStep,
        .procedure = "IterateSendMessages",
        .begin = &Messenger::BeginStep,
        .states = {{MessageStep::NextTarget, &Messenger::TakeNextTarget},
                   {MessageStep::End, &Messenger::EndRun},
                   {MessageStep::DecideFilter, &Messenger::DecideFilter},
                   {MessageStep::Submit, &Messenger::SubmitMessage},
                   {MessageStep::AfterSend, &Messenger::AfterSend},
                   {MessageStep::Captcha, &Messenger::CallForCaptcha},
                   {MessageStep::JoinGroup, &Messenger::JoinGroup},
                   {MessageStep::OpenGroupInvite, &Messenger::OpenGroupInvite},
                   {MessageStep::InviteToGroup, &Messenger::InviteToGroup},
                   {MessageStep::OpenGroupResign, &Messenger::OpenGroupResign},
                   {MessageStep::ResignFromGroup, &Messenger::ResignFromGroup}},
        .errorData = nullptr,
    };
    return machine;
}

void Messenger::IterateSendMessages() {
    if (RunSteps(m_app, *this, Machine()).isEmpty())
        return;
    // What has been typed into halfway is opened anew: a second press would shut an editor's source view.
    if (m_app.state.intMsgStep == MessageStep::Submit && !IsSubmitted())
        m_app.WebBrowser1().Navigate(m_app.WebBrowser1().LocationURL());
    // The page is looked at again; an empty one for long repeats the step.
    LookAgain();
}

void Messenger::BeginStep() {
    m_app.state.strLastPageText.clear();
    m_app.state.strLastPageHref.clear();
    m_app.WebBrowser1().SetSilent(true);
    m_app.webHide().SetSilent(true);
    m_app.Get<Cover>().Hide();
}

void Messenger::Await(const QString& type, const QString& value) {
    m_app.state.strLinkType = type;
    m_app.state.strLinkValue = value;
    LookAgain();
}

void Messenger::LookAgain() {
    m_app.state.blnLinkFound = false;
    m_app.timers->tmrCheckLinkLoaded.Restart();
}

Next Messenger::TakeNextTarget() {
    RunState& state = m_app.state;
    SendRuns& runs = m_app.Get<SendRuns>();
    state.blnWaitingForCaptcha = false;
    state.blnSkipCurrentID = false;
    state.blnSkipRequested = false;
    if (!runs.TakeTarget(u"IterateSendMessages - 1"_s)) {
        state.intMsgStep = MessageStep::End;
        return Next::Again;
    }
    m_app.Get<RunReport>().Open(state.strCurrentID);
    m_app.WebBrowser1().Navigate(u"about:blank"_s);
    runs.MoveCursor();
    m_app.waiting.Pump();
    if (!m_app.Get<ProfileFilters>().ActiveWhenSending()) {
        OpenComposePage();
        return Next::Wait;
    }
    runs.OpenProfile();
    state.intMsgStep = MessageStep::DecideFilter;
    Await(u"Text"_s, u"View"_s);
    return Next::Wait;
}

void Messenger::OpenComposePage() {
    const RunState& state = m_app.state;
    m_app.WebBrowser1().Stop();
    m_app.waiting.Pump();
    m_app.waiting.Pump();
    m_app.SetStatus(u"Sending message to ID "_s + state.strCurrentID + u"..."_s);
    m_app.state.intMsgStep = MessageStep::Submit;
    m_app.WebBrowser1().Navigate(m_app.Expand(state.blnNewLayout ? NewComposePage : OldComposePage) +
                                 state.strCurrentID);
    Await(u"Button"_s, u"send"_s);
}

Next Messenger::EndRun() {
    m_app.Get<SendRuns>().Finish();
    return Next::Wait;
}

Next Messenger::DecideFilter() {
    RunState& state = m_app.state;
    if (!m_app.Get<SendRuns>().PassesFilter(u"IterateSendMessages - 2"_s))
        return Next::Again;
    // Unlike the direct way, this one uses the new address on both layouts.
    state.intMsgStep = MessageStep::Submit;
    m_app.WebBrowser1().Navigate(u"about:blank"_s);
    m_app.WebBrowser1().Navigate(m_app.Expand(NewComposePage) + state.strCurrentID);
    Await(u"Button"_s, u"send"_s);
    return Next::Wait;
}

Next Messenger::AfterSend() {
    RunState& state = m_app.state;
    // The wait for the confirmation may have been cut short by it.
    if (LimitIsMet())
        return Next::Wait;
    const bool isRefused = state.blnSkipCurrentID || m_app.Get<RunReport>().HasRefusal();
    CloseReport();
    if (!IsLogged())
        RunningLog(m_app).WithdrawNote();
    if (!state.blnWaitingForCaptcha && !state.blnSkipCurrentID && !state.blnSkipRequested) {
        m_app.SetStatus(u"Message successfully sent"_s);
        m_app.Get<Pacing>().DoDelay();
    }
    if (!state.blnMsgAfterFR && (isRefused || !IsSubmitted())) {
        ++state.lngFailedCount;
        m_app.Get<SendRuns>().ShowCounts();
    }
    state.blnWaitingForCaptcha = false;
    state.blnSkipCurrentID = false;
    state.blnSkipRequested = false;
    m_app.timers->tmrAutoResume.Restart();
    if (state.blnMsgAfterFR)
        return ReturnToRequests();
    m_app.Get<SendRuns>().RemoveUsedTarget(u"IterateSendMessages - 4"_s);
    if (!state.strFRResumeURL.isEmpty())
        return ReturnToPage();
    state.intMsgStep = MessageStep::NextTarget;
    return Next::Again;
}

// A message that was logged at its press stays sent, unless the site has refused it since.
void Messenger::CloseReport() {
    const RunState& state = m_app.state;
    RunReport& report = m_app.Get<RunReport>();
    if (state.blnSkipCurrentID || report.HasRefusal())
        report.Close(ReportResult::Failed, u"The site did not confirm it"_s);
    else if (IsSubmitted())
        report.Close(ReportResult::Unfinished);
    else if (state.blnSkipRequested)
        report.Close(ReportResult::Failed, u"You pressed Skip"_s);
    else
        report.Close(ReportResult::Failed, u"The page that sends it did not come"_s);
}

Next Messenger::ReturnToRequests() {
    RunState& state = m_app.state;
    state.blnMsgAfterFR = false;
    m_app.Get<SendRuns>().AdvanceAfterUse(u"IterateSendMessages - 3"_s);
    state.CurrentAction = ActivityWord::FriendRequests;
    state.intMsgStep = MessageStep::None;
    state.intFRStep = FriendStep::NextTarget;
    FindActivity(state.CurrentAction)->stepRoutine(m_app);
    return Next::Wait;
}

// A request page stood there when the message began.
Next Messenger::ReturnToPage() {
    RunState& state = m_app.state;
    state.CurrentAction.clear();
    state.intMsgStep = MessageStep::None;
    if (state.blnFRWaitRequestSent) {
        state.CurrentAction = ActivityWord::FriendRequests;
        Await(u"Text"_s, u"Request Sent!"_s);
    }
    m_app.WebBrowser1().Navigate(std::exchange(state.strFRResumeURL, {}));
    return Next::Wait;
}

Next Messenger::CallForCaptcha() {
    PageSigns& page = m_app.Get<PageSigns>();
    // Answered in front of the compose page: nothing has been written there yet.
    if (!IsSubmitted() && !page.IsCaptchaPage() && !page.IsTextInPage(u"your message has been sent"_s)) {
        m_app.state.blnSkipCurrentID = true;
        m_app.Get<RunReport>().Remark(u"A CAPTCHA stood in front of the page that sends it"_s);
    }
    m_app.Get<CaptchaCalls>().MessagingCAPTCHAReached();
    return Next::Wait;
}

Next Messenger::JoinGroup() {
    return LeaveGroupPage(GroupWay(m_app).JoinGroup());
}

Next Messenger::OpenGroupInvite() {
    m_app.state.intMsgStep = MessageStep::InviteToGroup;
    return OpenGroupPage(GroupWay(m_app).InviteAddress(), u"add to group"_s);
}

Next Messenger::InviteToGroup() {
    return LeaveGroupPage(GroupWay(m_app).SubmitGroupInvite());
}

Next Messenger::OpenGroupResign() {
    m_app.state.intMsgStep = MessageStep::ResignFromGroup;
    return OpenGroupPage(GroupWay(m_app).ResignAddress(), u"resign"_s);
}

Next Messenger::ResignFromGroup() {
    return LeaveGroupPage(GroupWay(m_app).SubmitGroupResign());
}

Next Messenger::OpenGroupPage(const QString& address, const QString& button) {
    Await(u"Button"_s, button);
    m_app.WebBrowser1().Navigate(address);
    return Next::Wait;
}

// A page without its button would be looked at for ever.
Next Messenger::LeaveGroupPage(bool isPressed) {
    if (isPressed)
        return Next::Wait;
    m_app.state.blnSkipCurrentID = true;
    m_app.Get<RunReport>().Remark(u"A page of the group had no button for the next step"_s);
    m_app.state.intMsgStep = MessageStep::AfterSend;
    return Next::Again;
}

} // namespace qlm
