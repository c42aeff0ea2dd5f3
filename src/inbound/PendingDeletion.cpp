// SPDX-License-Identifier: MIT
// The desktop site's way to take pending requests back.
#include "browser/Cover.h"
#include "browser/PageSigns.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/Text.h"
#include "gather/GatherDriver.h"
#include "inbound/PendingRequests.h"
#include "inbound/RequestList.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString PendingList = u"{MessagingHost}/index.cfm?fuseaction=mail.pendingFriendRequests"_s;
const QString Awaiting = u"currently awaiting approval from"_s;
constexpr int PageSeconds = 20;

void Trace(App& app, const QString& text) {
    app.diagnostics.Debug(u"debugdelpen.txt"_s, text);
}

} // namespace

const StepMachine<PendingRequests>& PendingRequests::Machine() {
    static const StepMachine<PendingRequests> machine{
        .word = ActivityWord::DeletingPending,
        .step = &RunState::intDelPenStep,
        .procedure = "IterateDelPenFR",
        .begin = &PendingRequests::BeginStep,
        .states = {{PendingStep::OpenList, &PendingRequests::OpenList},
                   {PendingStep::LastPage, &PendingRequests::OpenLastPage},
                   {PendingStep::Delete, &PendingRequests::DeletePendingRequest},
                   {PendingStep::End, &PendingRequests::Finish}},
        .errorData = nullptr,
    };
    return machine;
}

void PendingRequests::IterateDelPenFR() {
    if (RunSteps(m_app, *this, Machine()).isEmpty())
        return;
    // The page is looked at again.
    m_app.state.blnLinkFound = false;
    m_app.timers->tmrCheckLinkLoaded.Restart();
}

void PendingRequests::BeginStep() {
    m_app.WebBrowser1().SetSilent(true);
    m_app.WebBrowser1().SetVisible(true);
    m_app.Get<Cover>().Hide();
    if (!IsNumeric(m_app.controls.Text("txtDelPenFRStartPage"_L1)))
        m_app.controls.SetText("txtDelPenFRStartPage"_L1, u"1"_s);
}

void PendingRequests::Await(const QString& text) {
    m_app.state.strLinkType = u"Text"_s;
    m_app.state.strLinkValue = text;
    m_app.state.blnLinkFound = false;
    m_app.timers->tmrCheckLinkLoaded.Restart();
}

Next PendingRequests::OpenList() {
    m_app.ClearPage();
    m_app.WebBrowser1().Navigate(m_app.Expand(PendingList));
    m_app.state.intDelPenStep = PendingStep::LastPage;
    Await(Awaiting);
    return Next::Wait;
}

// The list is worked on from its last page.
Next PendingRequests::OpenLastPage() {
    PageSigns& page = m_app.Get<PageSigns>();
    Trace(m_app, u"IDP 2.2 (FIRSTPAGE) - "_s + m_app.WebBrowser1().Document().BodyHTML());
    const QString last = LastPageNumberOf(m_app.WebBrowser1().Document());
    const QString start = m_app.controls.Text("txtDelPenFRStartPage"_L1);
    if (last.toDouble() < start.toDouble() || !page.IsTextInPage(Awaiting)) {
        Trace(m_app, u"IDP 2.4"_s);
        m_app.state.intDelPenStep = PendingStep::End;
        return Next::Again;
    }
    page.WaitForDocument();
    m_app.state.intDelPenStep = PendingStep::Delete;
    const bool isElsewhere = last.toDouble() > 1 && ClickLinkToPage(page, {}, last);
    if (!isElsewhere)
        return Next::Again;
    Await(u"cancel request"_s);
    return Next::Wait;
}

Next PendingRequests::DeletePendingRequest() {
    RunState& state = m_app.state;
    PageSigns& page = m_app.Get<PageSigns>();
    Trace(m_app, u"IDP 3 (LASTPAGE) - "_s + m_app.WebBrowser1().Document().BodyHTML());
    page.WaitForDocument();
    m_app.waiting.WaitWhile([this] { return m_app.WebBrowser1().ReadyState() != 4; }, PageSeconds);
    state.strLastPageText =
        page.IsTextInPage(u"listing 1-"_s) ? m_app.Get<GatherDriver>().GetListingText() : QString();
    Trace(m_app, u"DelPenReq 1 - "_s + m_app.NowText());
    m_app.waiting.WaitWhile(
        [this] { return m_app.WebBrowser1().Document().GetElementById(u"chktop"_s).IsNull(); }, PageSeconds);
    m_app.WebBrowser1().Document().GetElementById(u"chktop"_s).Click();
    m_app.waiting.Pump();
    m_app.WebBrowser1().Document().GetElementById(u"spancanceltop"_s).Click();
    m_app.waiting.Pump();
    state.intDelPenStep = PendingStep::OpenList;
    Await(u"your sent request has been cancel"_s);
    Trace(m_app, u"DelPenReq 3 - DELETED - "_s + state.strLastPageText);
    return Next::Wait;
}

Next PendingRequests::Finish() {
    Trace(m_app, u"IDP 5 - FINISHED"_s);
    m_app.waiting.WaitFor(u"the page to be complete"_s, [this] { return m_app.WebBrowser1().Busy(); });
    End();
    if (!m_app.Get<StopResume>().DoFinishedExit())
        m_app.ShowMessage(u"Finished deleting Pending Requests"_s);
    return Next::Wait;
}

} // namespace qlm
