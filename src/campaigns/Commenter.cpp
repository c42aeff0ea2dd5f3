// SPDX-License-Identifier: MIT
#include "campaigns/Commenter.h"

#include "browser/Cover.h"
#include "campaigns/Campaigns.h"
#include "campaigns/Counters.h"
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

const StepMachine<Commenter>& Commenter::Machine() {
    static const StepMachine<Commenter> machine{
        .word = ActivityWord::Comments,
        .step = &RunState::intComStep,
        .procedure = "IterateSendComments",
        .begin = &Commenter::BeginStep,
        .states = {{CommentStep::NextTarget, &Commenter::TakeNextTarget},
                   {CommentStep::End, &Commenter::EndRun},
                   {CommentStep::DecideFilter, &Commenter::DecideFilter},
                   {CommentStep::Submit, &Commenter::SubmitComment},
                   {CommentStep::AfterSend, &Commenter::AfterSend},
                   {CommentStep::Confirm, &Commenter::Confirm}},
        .errorData = nullptr,
    };
    return machine;
}

void Commenter::IterateSendComments() {
    // The page is looked at again; an empty one for long repeats the step.
    if (!RunSteps(m_app, *this, Machine()).isEmpty())
        LookAgain();
}

void Commenter::BeginStep() {
    m_app.state.strLastPageText.clear();
    m_app.state.strLastPageHref.clear();
    m_app.WebBrowser1().SetSilent(true);
    m_app.webHide().SetSilent(true);
    m_app.Get<Cover>().Hide();
}

void Commenter::Await(const QString& type, const QString& value) {
    m_app.state.strLinkType = type;
    m_app.state.strLinkValue = value;
    LookAgain();
}

Next Commenter::LookAgain() {
    m_app.state.blnLinkFound = false;
    m_app.timers->tmrCheckLinkLoaded.Restart();
    return Next::Wait;
}

Next Commenter::TakeNextTarget() {
    RunState& state = m_app.state;
    // No step has ended the last one: the judge of pages has come here by itself.
    if (m_target.isOpen && !state.strCurrentID.isEmpty())
        return GiveTargetUp(u"The site showed the comment form again"_s, u"IterateSendComments - 4"_s);
    state.blnWaitingForCaptcha = false;
    state.blnSkipCurrentID = false;
    state.blnSkipRequested = false;
    m_target = {};
    // They are about one page that doesn't come. Those of many targets together would cost one its turn.
    state.intBlankTicks = 0;
    if (!m_app.Get<SendRuns>().TakeTarget(u"IterateSendComments - 1"_s)) {
        state.intComStep = CommentStep::End;
        return Next::Again;
    }
    m_target.isOpen = true;
    m_app.Get<RunReport>().Open(state.strCurrentID);
    m_app.WebBrowser1().Stop();
    m_app.WebBrowser1().Navigate(u"about:blank"_s);
    m_app.Get<SendRuns>().MoveCursor();
    m_app.waiting.Pump();
    m_app.waiting.Pump();
    if (!m_app.Get<ProfileFilters>().ActiveWhenSending()) {
        OpenCommentPage();
        return Next::Wait;
    }
    m_app.Get<SendRuns>().OpenProfile();
    state.intComStep = CommentStep::DecideFilter;
    Await(u"Text"_s, u"View"_s);
    return Next::Wait;
}

void Commenter::OpenCommentPage() {
    RunState& state = m_app.state;
    const QString& id = state.strCurrentID;
    m_app.SetStatus(u"Sending comment to ID "_s + id + u"..."_s);
    state.intComStep = CommentStep::Submit;
    if (state.blnNewLayout)
        m_app.WebBrowser1().Navigate(m_app.Expand(u"{SiteRootHost}/"_s) + id + u"/comments"_s);
    else
        m_app.WebBrowser1().Navigate(
            m_app.Expand(u"{CommentHost}/index.cfm?fuseaction=user.viewProfile_commentForm&friendID="_s) +
            id);
    Await(u"Button"_s, state.blnNewLayout ? u"post"_s : u"post a comment"_s);
}

Next Commenter::EndRun() {
    m_app.Get<SendRuns>().Finish();
    return Next::Wait;
}

Next Commenter::DecideFilter() {
    RunState& state = m_app.state;
    if (!m_app.Get<SendRuns>().PassesFilter(u"IterateSendComments - 2"_s)) {
        m_target.isOpen = false;
        return Next::Again;
    }
    // Unlike the direct way, this one uses the new address on both layouts.
    state.intComStep = CommentStep::Submit;
    m_app.WebBrowser1().Navigate(u"about:blank"_s);
    m_app.WebBrowser1().Navigate(m_app.Expand(u"{SiteRootHost}/"_s) + state.strCurrentID + u"/comments"_s);
    Await(u"Button"_s, u"post"_s);
    return Next::Wait;
}

bool Commenter::IsSkipped() const {
    return m_app.state.blnSkipCurrentID || m_app.state.blnSkipRequested;
}

Next Commenter::AfterSend() {
    if (!IsSkipped())
        CountOnce();
    // The wait for the confirmation may have been cut short by this step.
    if (LimitIsMet())
        return Next::Wait;
    CloseReport();
    if (IsSkipped()) {
        CountFailure();
    } else {
        if (!IsLogged())
            RunningLog(m_app).WithdrawNote();
        m_app.SetStatus(u"Comment successfully posted"_s);
        m_app.Get<Pacing>().DoDelay();
    }
    return GoOn(u"IterateSendComments - 3"_s);
}

// A comment that was logged at its press stays sent, unless the site has refused it since.
void Commenter::CloseReport() {
    const RunState& state = m_app.state;
    RunReport& report = m_app.Get<RunReport>();
    if (state.blnSkipCurrentID || report.HasRefusal())
        report.Close(ReportResult::Failed, u"The site did not confirm it"_s);
    else if (state.blnSkipRequested && !m_target.isPressed)
        report.Close(ReportResult::Failed, u"You pressed Skip"_s);
    else
        report.Close(ReportResult::Unfinished, u"You pressed Skip before the site had answered"_s);
}

// Nothing has been posted, as far as the page says.
Next Commenter::GiveTargetUp(const QString& why, const QString& caller) {
    m_app.Get<RunReport>().Close(ReportResult::Failed, why);
    if (m_target.isPressed)
        RunningLog(m_app).WithdrawNote();
    CountFailure();
    return GoOn(caller);
}

Next Commenter::GoOn(const QString& caller) {
    RunState& state = m_app.state;
    m_target.isOpen = false;
    state.blnWaitingForCaptcha = false;
    state.blnSkipCurrentID = false;
    state.blnSkipRequested = false;
    m_app.Get<SendRuns>().RemoveUsedTarget(caller);
    state.intComStep = CommentStep::NextTarget;
    return Next::Again;
}

bool Commenter::IsLogged() const {
    return m_app.state.strAcceptMode.isEmpty() || m_app.controls.Ticked("mnuAddToLogWhenAccepting"_L1);
}

void Commenter::LogPress() {
    m_app.Get<RunReport>().MarkSent(!IsLogged() || RunningLog(m_app).WriteLogEntry());
}

void Commenter::CountFailure() {
    ++m_app.state.lngFailedCount;
    m_app.Get<SendRuns>().ShowCounts();
}

void Commenter::CountOnce() {
    if (!std::exchange(m_target.isCounted, true))
        m_app.Get<Counters>().Count(Comments);
}

// Tested once after each count of an own run.
bool Commenter::LimitIsMet() {
    if (!m_target.isCounted || std::exchange(m_target.isLimitTested, true) ||
        Comments.isPartOfAnother(m_app.state))
        return false;
    return m_app.Get<Counters>().StopUncounted() || m_app.Get<Counters>().StopAtLimit(Comments);
}

} // namespace qlm
