// SPDX-License-Identifier: MIT
#include "browser/PageSigns.h"
#include "campaigns/Campaigns.h"
#include "campaigns/ComposePage.h"
#include "campaigns/Counters.h"
#include "campaigns/Messenger.h"
#include "campaigns/SendRuns.h"
#include "campaigns/SentLog.h"
#include "campaigns/TargetName.h"
#include "core/App.h"
#include "steps/RunReport.h"
#include "steps/Steps.h"

#include <utility>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int CompletePageSeconds = 10;
constexpr int SpanSeconds = 2;

} // namespace

Next Messenger::SubmitMessage() {
    RunState& state = m_app.state;
    // Whatever led back here, nobody gets the same message twice.
    if (IsSubmitted())
        return AwaitConfirmation();
    m_app.Get<PageSigns>().WaitForDocument();
    if (!WaitForComposePage())
        return Next::Wait;
    WaitUntilComplete();
    if (!m_app.Get<SendRuns>().IsOnSite())
        return LeaveStranger();
    m_app.SetStatus(u"Submitting message..."_s);
    TypeText();
    WaitUntilComplete();
    if (!m_app.Get<SendRuns>().IsOnSite())
        return LeaveStranger();
    const SendButton button = FindSendButton(m_app.WebBrowser1().Document());
    if (!button.element && state.strFRResumeURL.isEmpty() && !state.blnMsgAfterFR)
        return GiveUpTarget();
    if (button.element && !m_app.Get<SendRuns>().NoteBeforeSend())
        return Next::Wait;
    m_submitted = state.lngTargetNumber;
    state.intMsgStep = MessageStep::AfterSend;
    if (button.element)
        Diagnostics::IgnoreErrors([&] { button.element.Click(); });
    m_app.SetStatus(u"Message sent, waiting for confirmation page..."_s);
    CountAndLog();
    m_app.waiting.Pump();
    if (button.isSpan)
        PressSpanAgain();
    return AwaitConfirmation();
}

bool Messenger::IsSubmitted() const {
    return m_submitted == m_app.state.lngTargetNumber;
}

bool Messenger::HasSent() const {
    const qint16 step = m_app.state.intMsgStep;
    return IsSubmitted() && (step == MessageStep::AfterSend || step == MessageStep::Captcha);
}

void Messenger::WaitUntilComplete() {
    m_app.waiting.WaitWhile([this] { return m_app.WebBrowser1().ReadyState() != 4; }, CompletePageSeconds);
}

// False when the run has been put on hold.
bool Messenger::WaitForComposePage() {
    const RunState& state = m_app.state;
    m_app.SetStatus(u"Waiting for message page to finish loading..."_s);
    m_app.waiting.WaitFor(u"the message page"_s,
                          [this] { return m_app.WebBrowser1().Document().Body().IsNull(); });
    m_app.waiting.WaitFor(u"\"Save Draft\" on the page"_s, [&] {
        return !state.blnHoldLinkCheck && m_app.Get<SendRuns>().IsOnSite() &&
               !m_app.Get<PageSigns>().IsTextInPage(u"Save Draft"_s, true);
    });
    return !state.blnHoldLinkCheck;
}

// Chosen once, however often the page is tried: the next line of the list is the next target's.
const SubjectAndBody& Messenger::TextOfTarget() {
    const qint32 target = m_app.state.lngTargetNumber;
    if (m_textOf != target)
        m_app.Get<SendRuns>().ChooseOrStop([this] { m_text = ChooseText(m_app, Messages); });
    m_textOf = target;
    return m_text;
}

void Messenger::TypeText() {
    const Document page = m_app.WebBrowser1().Document();
    const QString html = page.BodyHTML();
    const SubjectAndBody& text = TextOfTarget();
    TypeMessage(page,
                {ReplaceTargetName(m_app, text.subject, html, u"Message"_s),
                 ReplaceTargetName(m_app, text.body, html, u"Message"_s)},
                IsNewerPage(m_app));
}

Next Messenger::LeaveStranger() {
    m_app.state.blnSkipCurrentID = true;
    m_app.Get<RunReport>().Remark(u"A page that is not the site's came; nothing was typed into it"_s);
    m_app.state.intMsgStep = MessageStep::AfterSend;
    return Next::Again;
}

Next Messenger::GiveUpTarget() {
    RunState& state = m_app.state;
    m_app.Get<RunReport>().Close(ReportResult::Failed, u"The page has no button that sends"_s);
    ++state.lngFailedCount;
    m_app.Get<SendRuns>().ShowCounts();
    m_app.Get<SendRuns>().RemoveUsedTarget(u"SubmitMessage"_s);
    state.intMsgStep = MessageStep::NextTarget;
    return Next::Again;
}

bool Messenger::IsLogged() const {
    const RunState& state = m_app.state;
    return !state.blnMsgAfterFR &&
           (state.strAcceptMode.isEmpty() || m_app.controls.Ticked("mnuAddToLogWhenAccepting"_L1));
}

// At the press, before the site has confirmed: nothing may come between the two.
void Messenger::CountAndLog() {
    m_isCounted = !Messages.isPartOfAnother(m_app.state);
    m_app.Get<Counters>().Count(Messages);
    if (IsLogged())
        m_app.Get<RunReport>().MarkSent(RunningLog(m_app).WriteLogEntry());
    else
        m_app.Get<RunReport>().MarkSent(true);
}

// Its first press may only wake the real button up.
void Messenger::PressSpanAgain() {
    m_app.waiting.WaitSeconds(SpanSeconds);
    if (m_app.Get<PageSigns>().IsCaptchaPage())
        return;
    Diagnostics::IgnoreErrors([this] { PressWokenSpan(m_app.WebBrowser1().Document()); });
}

Next Messenger::AwaitConfirmation() {
    m_app.state.intMsgStep = MessageStep::AfterSend;
    m_app.state.intConfirmPolls = 0;
    Await(u"Text"_s, u"your message has been sent"_s);
    WaitUntilComplete();
    LimitIsMet();
    return Next::Wait;
}

// Tested once after each count.
bool Messenger::LimitIsMet() {
    return std::exchange(m_isCounted, false) &&
           (m_app.Get<Counters>().StopUncounted() || m_app.Get<Counters>().StopAtLimit(Messages));
}

} // namespace qlm
