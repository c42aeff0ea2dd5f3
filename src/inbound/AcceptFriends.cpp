// SPDX-License-Identifier: MIT
#include "inbound/AcceptFriends.h"

#include "browser/Cover.h"
#include "browser/PageSigns.h"
#include "campaigns/Campaigns.h"
#include "campaigns/SendRuns.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/Text.h"
#include "gather/GatherDriver.h"
#include "inbound/InboundReports.h"
#include "inbound/RequestList.h"
#include "steps/RunReport.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

#include <utility>
#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString OldList = u"{MessagingHost}/index.cfm?fuseaction=mail.friendRequestsV3&viewall=1"_s;
const QString LastPageButton =
    u"cpMain$messagingMain$FriendRequestsIncomingV2$pagingNavigation1$LastRecordDirectPageLinkButton"_s;
constexpr int PageSeconds = 30;
constexpr int MostTimesAlike = 3;

bool Sends(App& app, QLatin1StringView option) {
    return app.controls.Ticked(option);
}

bool LacksComment(App& app) {
    return Sends(app, "optAcceptSendCom"_L1) && IsBlank(app, "txtAcceptComment"_L1);
}

bool LacksAlternative(App& app) {
    const bool isWanted = app.controls.Ticked("chkAcceptCommentNonHTML"_L1) ||
                          app.controls.Ticked("optACCcomHTMLBLocked(1)"_L1);
    return Sends(app, "optAcceptSendCom"_L1) && isWanted &&
           (IsBlank(app, "txtAcceptCommentNonHTML"_L1) ||
            Has(app.controls.Text("txtAcceptCommentNonHTML"_L1), u"Enter non-HTML comment here"_s));
}

bool LacksMessage(App& app) {
    return Sends(app, "optAcceptSendMsg"_L1) &&
           (IsBlank(app, "txtAcceptSubject"_L1) || IsBlank(app, "txtAcceptMessage"_L1));
}

struct AcceptCheck {
    bool (*fails)(App&);
    const char16_t* message;
    QLatin1StringView focus;
};

const std::vector<AcceptCheck>& Checks() {
    static const std::vector<AcceptCheck> rows{
        {LacksComment, u"Please enter a comment.", "txtAcceptComment"_L1},
        {LacksAlternative, u"Please enter an alternate non-HTML comment, or disable the setting.",
         "txtAcceptCommentNonHTML"_L1},
        {LacksMessage, u"Please enter a subject and message.", "txtAcceptSubject"_L1},
    };
    return rows;
}

// What is typed for the follow-ups, with the option that it belongs to.
struct FollowUpField {
    QLatin1StringView field;
    QLatin1StringView option;
};
constexpr FollowUpField FollowUpFields[] = {
    {"txtAcceptSubject"_L1, "optAcceptSendMsg"_L1},
    {"txtAcceptMessage"_L1, "optAcceptSendMsg"_L1},
    {"txtAcceptComment"_L1, "optAcceptSendCom"_L1},
    {"optACCcomHTMLBLocked(0)"_L1, "optAcceptSendCom"_L1},
    {"optACCcomHTMLBLocked(1)"_L1, "optAcceptSendCom"_L1},
    {"optACCcomHTMLBLocked(2)"_L1, "optAcceptSendCom"_L1},
    {"txtAcceptCommentNonHTML"_L1, "optAcceptSendCom"_L1},
};

void NeedNumber(App& app, QLatin1StringView field) {
    if (!IsNumeric(app.controls.Text(field)))
        app.controls.SetText(field, u"1"_s);
}

} // namespace

AcceptFriends::AcceptFriends(App& app) : m_app(app) {
    app.commands.Add(u"picCmdAutoApprove_Click"_s, "picCmdAutoApprove_Click",
                     [this] { picCmdAutoApprove_Click(); });
    app.commands.Add(u"piccmdAccStop_Click"_s, [this] { piccmdAccStop_Click(); });
    app.commands.Add(u"piccmdAccReport_Click"_s,
                     [this] { m_app.Get<SendRuns>().ReportWindow().Show(AcceptReport); });
    app.commands.Add(u"mnuAddToLogWhenAccepting_Click"_s, [this] {
        Controls& controls = m_app.controls;
        controls.SetTicked("mnuAddToLogWhenAccepting"_L1, !controls.Ticked("mnuAddToLogWhenAccepting"_L1));
    });
    m_listener = app.controls.AddListener([this](const Control& control, Controls::Change change, int) {
        if (change == Controls::Change::Ticked && control.group == "sendACC"_L1)
            ShowChosenFields();
    });
    ShowChosenFields();
}

AcceptFriends::~AcceptFriends() {
    m_app.controls.RemoveListener(m_listener);
}

void AcceptFriends::ShowChosenFields() {
    for (const FollowUpField& row : FollowUpFields)
        m_app.controls.SetEnabled(row.field, m_app.controls.Ticked(row.option));
}

const StepMachine<AcceptFriends>& AcceptFriends::Machine() {
    static const StepMachine<AcceptFriends> machine{
        .word = ActivityWord::Accepting,
        .step = &RunState::intAccStep,
        .procedure = "IterateAcceptFriends",
        .begin = &AcceptFriends::BeginStep,
        .states = {{AcceptStep::OpenList, &AcceptFriends::OpenList},
                   {AcceptStep::Approve, &AcceptFriends::WorkOnPage},
                   {AcceptStep::FollowUp, &AcceptFriends::Rest},
                   {AcceptStep::End, &AcceptFriends::Finish},
                   {AcceptStep::LastPage, &AcceptFriends::OpenLastPage}},
        .errorData = nullptr,
    };
    return machine;
}

bool AcceptFriends::MayStart() {
    for (const AcceptCheck& check : Checks()) {
        if (!check.fails(m_app))
            continue;
        m_app.ShowMessage(QString::fromUtf16(check.message));
        m_app.controls.SetEnabled(check.focus, true);
        m_app.controls.SetFocus(check.focus);
        return false;
    }
    return true;
}

void AcceptFriends::picCmdAutoApprove_Click() {
    if (m_app.Get<GatherDriver>().RefuseDuringLogin() || !MayStart())
        return;
    RunState& state = m_app.state;
    NeedNumber(m_app, "txtAcceptToPage"_L1);
    m_app.WebBrowser1().SetSilent(true);
    m_app.webHide().SetSilent(true);
    m_app.Get<SendRuns>().ResetRun(ActivityWord::Accepting);
    m_app.SetStatus({});
    Trace(u"BEGIN - "_s + m_app.NowText());
    m_app.diagnostics.Debug(u"debugfilter.txt"_s, u"BEGIN"_s);
    state.PageApproved = false;
    state.AcceptStopRequested = false;
    m_requests = 0;
    m_pressedFor.clear();
    m_followedUp.clear();
    m_lastList.clear();
    m_timesAlike = 0;
    const RunMark start = m_app.waiting.Mark();
    m_app.Get<RunReport>().BeginRun(AcceptReport);
    // A disk that refuses the report brings a box up, and whatever happens while it is there.
    m_app.waiting.LeaveUnlessCurrent(start);
    state.intAccStep = AcceptStep::OpenList;
    IterateAcceptFriends();
}

// The page that is being worked on comes to its end first; who presses again, or while a follow-up is being
// sent, is done waiting.
void AcceptFriends::piccmdAccStop_Click() {
    RunState& state = m_app.state;
    if (!state.AcceptStopRequested && state.intAccStep != AcceptStep::None) {
        state.AcceptStopRequested = true;
        return;
    }
    m_app.WebBrowser1().Stop();
    m_app.Get<Cover>().Hide();
    m_app.Get<StopResume>().StopAll(StopReason::AcceptStop);
}

void AcceptFriends::IterateAcceptFriends() {
    // The ticks go on while a page is being approved.
    if (m_approvingRun == m_app.state.lngRunNumber)
        return;
    if (RunSteps(m_app, *this, Machine()).isEmpty())
        return;
    if (!m_pressedFor.isEmpty()) {
        // Of these some have been accepted: the list, loaded anew, shows who has not.
        QStringList pressedFor = std::exchange(m_pressedFor, {});
        pressedFor.removeAll(QString());
        m_app.controls.SetItems("lstAcceptIDs"_L1, pressedFor);
        m_app.state.PageApproved = true;
        m_app.state.intAccStep = AcceptStep::OpenList;
        IterateAcceptFriends();
        return;
    }
    // The page is looked at again.
    m_app.state.blnLinkFound = false;
    m_app.timers->tmrCheckLinkLoaded.Restart();
}

void AcceptFriends::BeginStep() {
    m_app.WebBrowser1().SetSilent(true);
    m_app.WebBrowser1().SetVisible(true);
    m_app.state.strLastPageText.clear();
    m_app.state.strLastPageHref.clear();
    m_app.state.blnLastPageAsHTML = false;
    Trace(u"1 - "_s + m_app.NowText());
    m_app.Get<Cover>().Hide();
    m_app.SetStatus(u"Waiting for the page to finish loading..."_s);
}

void AcceptFriends::Trace(const QString& text) {
    m_app.diagnostics.Debug(u"debugacc.txt"_s, text);
}

void AcceptFriends::WaitUntilIdle() {
    m_app.waiting.WaitFor(u"the page to be complete"_s, [this] { return m_app.WebBrowser1().Busy(); });
}

bool AcceptFriends::IsOnSite() {
    return m_app.Get<SendRuns>().IsOnSite();
}

bool AcceptFriends::IsOnOlderList() {
    return m_app.Get<PageSigns>().AddressContains(u"V3"_s);
}

void AcceptFriends::SetLoadCheck() {
    RunState& state = m_app.state;
    const bool isOlder = !state.blnNewLayout && IsOnOlderList();
    state.strLinkType = isOlder ? u"TextHTML"_s : u"Text"_s;
    state.strLinkValue = state.blnNewLayout ? u"Select all"_s
                         : isOlder          ? u"spanapprovebottom"_s
                                            : u"check/uncheck all"_s;
    state.blnLinkFound = false;
    m_app.timers->tmrCheckLinkLoaded.Restart();
}

Next AcceptFriends::OpenList() {
    RunState& state = m_app.state;
    BrowserControl& browser = m_app.WebBrowser1();
    m_app.SetStatus(u"Waiting for the requests page to load..."_s);
    WaitUntilIdle();
    browser.Stop();
    m_app.waiting.Pump();
    m_app.ClearPage();
    m_app.waiting.Pump();
    browser.Navigate(m_app.Expand(state.blnNewLayout ? IncomingRequests : OldList));
    m_app.waiting.Pump();
    // Whoever waits for their follow-up gets it first.
    const bool fromOldest = m_app.controls.Ticked("chkAcceptFromOldest"_L1) && !state.PageApproved;
    state.intAccStep = fromOldest ? AcceptStep::LastPage : AcceptStep::Approve;
    Trace(fromOldest ? u"case 2.2"_s : u"case 2.3"_s);
    m_app.waiting.WaitFor(u"the requests page"_s,
                          [&browser] { return browser.LocationURL() == u"about:blank"_s; });
    SetLoadCheck();
    return Next::Wait;
}

// An empty folder is the end, unless a page of it waits for its follow-up.
bool AcceptFriends::IsFinished() {
    const RunState& state = m_app.state;
    PageSigns& page = m_app.Get<PageSigns>();
    const bool isEmpty = page.IsTextInPage(u"there are 0 requests in this folder"_s) ||
                         (!state.blnNewLayout && page.IsTextInPage(u"you have no requests"_s));
    return state.AcceptStopRequested ||
           (isEmpty && (!state.PageApproved || m_app.controls.Ticked("optAcceptDontSend"_L1)));
}

Next AcceptFriends::WorkOnPage() {
    RunState& state = m_app.state;
    WaitUntilIdle();
    Trace(u"case 3.1 - "_s + m_app.WebBrowser1().Document().BodyHTML());
    if (IsFinished()) {
        Trace(u"case 3.2"_s);
        state.intAccStep = AcceptStep::End;
        return Next::Again;
    }
    if (state.PageApproved && m_app.controls.Ticked("optAcceptSendMsg"_L1))
        return HandOver(Messages, u"case 3.3"_s);
    if (state.PageApproved && m_app.controls.Ticked("optAcceptSendCom"_L1))
        return HandOver(Comments, u"case 3.4"_s);
    if (state.PageApproved) {
        Trace(u"case 3.5"_s);
        state.PageApproved = false;
        state.intAccStep = AcceptStep::OpenList;
        return Next::Again;
    }
    Trace(u"case 3.6"_s);
    if (IsInVain()) {
        StopWithMessage(u"These requests stay whatever is pressed. Please look at them yourself."_s);
        return Next::Wait;
    }
    m_app.controls.SetItems("lstAcceptIDs"_L1, {});
    if (!state.blnNewLayout)
        PrepareOldList();
    SetLoadCheck();
    return ApproveFriendRequests();
}

// The site may keep its requests for ever.
bool AcceptFriends::IsInVain() {
    QStringList list;
    for (const Element& box : RequestBoxes(m_app.WebBrowser1().Document()))
        list.append(box.OuterHTML());
    const bool isAlike = !list.isEmpty() && list == m_lastList;
    m_lastList = list;
    m_timesAlike = isAlike ? m_timesAlike + 1 : 0;
    return m_timesAlike == MostTimesAlike;
}

// Who still stands on the list has not been accepted, and gets it when they have. Nobody gets it twice.
void AcceptFriends::ChooseFollowUps() {
    QSet<QString> waiting;
    if (m_app.state.blnNewLayout)
        for (const Element& box : RequestBoxes(m_app.WebBrowser1().Document()))
            waiting.insert(IdOfBox(box));
    QStringList due = m_app.controls.Items("lstAcceptIDs"_L1);
    due.removeIf([&](const QString& id) { return waiting.contains(id) || m_followedUp.contains(id); });
    m_followedUp.unite({due.begin(), due.end()});
    m_app.controls.SetItems("lstAcceptIDs"_L1, due);
}

// The campaign's steps work through lstAcceptIDs, and enter this machine again at their end.
Next AcceptFriends::HandOver(const Campaign& campaign, const QString& mark) {
    RunState& state = m_app.state;
    Trace(mark);
    m_app.diagnostics.Debug(QString::fromLatin1(campaign.activity.debugFile),
                            u"ACCEPTING - "_s + m_app.NowText());
    state.PageApproved = false;
    if (state.blnNewLayout) {
        state.AcceptReturnURL = m_app.Expand(IncomingRequests);
    } else {
        state.AcceptReturnURL = m_app.WebBrowser1().LocationURL();
        m_app.Get<GatherDriver>().SetMustNotHaveTexts();
    }
    ChooseFollowUps();
    state.blnCheckLog = m_app.controls.Ticked(campaign.checkLogBox);
    state.intAccStep = AcceptStep::None;
    state.CurrentAction = campaign.Word();
    state.strAcceptMode = campaign.Word();
    state.*campaign.activity.step = campaign.firstStep;
    m_app.timers->tmrCheckLinkLoaded.SetEnabled(false);
    campaign.activity.stepRoutine(m_app);
    return Next::Wait;
}

Next AcceptFriends::Rest() {
    Trace(u"case 4"_s);
    return Next::Wait;
}

Next AcceptFriends::Finish() {
    WaitUntilIdle();
    Trace(u"case 5 - "_s + m_app.WebBrowser1().Document().BodyHTML());
    m_app.Get<StopResume>().StopAll(StopReason::AcceptDone);
    m_app.controls.SetItems("lstAcceptIDs"_L1, {});
    if (!m_app.Get<StopResume>().DoFinishedExit())
        m_app.ShowMessage(u"Finished accepting friend requests"_s);
    return Next::Wait;
}

Next AcceptFriends::OpenLastPage() {
    RunState& state = m_app.state;
    PageSigns& page = m_app.Get<PageSigns>();
    NeedNumber(m_app, "txtAcceptToPage"_L1);
    const QString last = LastPageNumberOf(m_app.WebBrowser1().Document());
    const QString lowest = m_app.controls.Text("txtAcceptToPage"_L1);
    Trace(u"case 6.1 - "_s + last + u", "_s + lowest);
    if (last.toDouble() < lowest.toDouble() || page.IsTextInPage(u"there are 0 messages in this folder"_s) ||
        page.IsTextInPage(u"you have no requests"_s)) {
        Trace(u"case 6.2"_s);
        state.intAccStep = AcceptStep::End;
        return Next::Again;
    }
    m_app.waiting.WaitWhile(
        [&] { return m_app.WebBrowser1().ReadyState() != 4 && state.intAccStep == AcceptStep::LastPage; },
        PageSeconds);
    m_app.WebBrowser1().Stop();
    m_app.waiting.Pump();
    m_app.SetStatus(u"Navigating to last page..."_s);
    Trace(u"case 6.3"_s);
    state.intAccStep = AcceptStep::Approve;
    SetLoadCheck();
    m_app.Get<GatherDriver>().SetMustNotHaveTexts();
    if (IsOnOlderList() ? ClickLinkToPage(page, u"javascript: "_s, last)
                        : page.ClickLinkFromHref(LastPageButton))
        return Next::Wait;
    state.strLinkType.clear();
    state.strLinkValue.clear();
    m_app.timers->tmrCheckLinkLoaded.SetEnabled(false);
    return Next::Again;
}

} // namespace qlm
