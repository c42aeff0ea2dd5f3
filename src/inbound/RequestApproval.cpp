// SPDX-License-Identifier: MIT
#include "browser/PageSigns.h"
#include "campaigns/Counters.h"
#include "core/App.h"
#include "core/Text.h"
#include "gather/GatherDriver.h"
#include "gather/LinkScanner.h"
#include "inbound/AcceptFriends.h"
#include "inbound/RequestList.h"
#include "steps/RunReport.h"
#include "steps/Steps.h"

#include <QScopedValueRollback>
#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int ListSeconds = 20;
constexpr int AnswerSeconds = 50;
constexpr int DenialSeconds = 10;
const QString Accepted = u"is now your friend"_s;
const QString FailedOne = u"an error has occurred while proce"_s;
// What the older page asks before it approves would stop the run.
const QString NoConfirmation = u"javascript: window.confirm = function anonymous(){return true;}; void(0)"_s;
const QString ApproveTicked =
    u"javascript: function bla(){requestlist.ProcessMultiAction('approve');}; bla()"_s;

qint16 CountOnPage(App& app, const QString& words) {
    return CountOccurrences(app.WebBrowser1().Document().BodyText().toLower(), words);
}

} // namespace

Next AcceptFriends::ApproveFriendRequests() {
    const QScopedValueRollback approving(m_approvingRun, m_app.state.lngRunNumber);
    m_pressedFor.clear();
    if (m_app.state.blnNewLayout)
        ApproveInNewLayout();
    else
        ApproveInOldLayout();
    m_pressedFor.clear();
    // The ticks that came meanwhile were for the page as it was.
    m_app.timers->Timer1.SetEnabled(false);
    if (m_app.state.PageApproved)
        SetLoadCheck();
    // Whoever has pressed Stop is waiting for nothing else.
    return m_app.state.AcceptStopRequested && !m_app.state.PageApproved ? Next::Again : Next::Wait;
}

void AcceptFriends::StopWithMessage(const QString& message) {
    m_app.state.intAccStep = AcceptStep::None;
    m_app.timers->tmrCheckLinkLoaded.SetEnabled(false);
    m_app.SetStatus(u"Nothing more is accepted. Press Stop to end the run."_s);
    m_app.ShowMessage(message);
}

void AcceptFriends::ApproveInNewLayout() {
    RunState& state = m_app.state;
    m_app.WebBrowser1().SetSilent(true);
    m_app.SetStatus(u"Waiting for the page to finish loading..."_s);
    m_app.waiting.WaitWhile(
        [&] { return m_app.WebBrowser1().ReadyState() != 4 && state.intAccStep != AcceptStep::OpenList; },
        ListSeconds);
    m_app.SetStatus(u"Approving friend requests..."_s);
    const Document page = m_app.WebBrowser1().Document();
    Trace(u"APPROVE1... NEW LAYOUT: "_s + FromBoolean(state.blnNewLayout));
    Trace(u"APPROVE1... PAGE SOURCE: "_s + page.BodyHTML());
    bool isFound = false;
    if (IsOnSite()) {
        const QStringList ids = TickBoxes();
        qsizetype request = 0;
        for (const Element& button : page.GetElementsByTagName(u"button"_s)) {
            if (!IsAcceptButton(button))
                continue;
            isFound = true;
            Accept(button, ids.value(request++));
            if (state.AcceptStopRequested)
                return;
            m_app.Get<GatherDriver>().SetMustNotHaveTexts();
        }
    }
    m_app.ClearPage();
    m_app.WebBrowser1().Navigate(m_app.Expand(IncomingRequests));
    m_app.waiting.Pump();
    // The page has gone, so that nothing of it can pass for the next one.
    state.strLastPageText.clear();
    state.strLastPageHref.clear();
    state.blnLastPageAsHTML = false;
    if (isFound)
        state.PageApproved = true;
    else
        StopWithMessage(u"No friend requests could be found on the page. "
                        "Please try again, or contact QLM Support."_s);
}

// The ID of each request, empty where the box gives none away.
QStringList AcceptFriends::TickBoxes() {
    QStringList ids;
    for (const Element& box : RequestBoxes(m_app.WebBrowser1().Document())) {
        if (!IsChecked(box)) {
            Trace(u"APPROVE3 - CHECK BOX: "_s + box.OuterHTML());
            box.Click();
        }
        const QString id = IdOfBox(box);
        // Whoever stands there twice gets one message.
        if (!IsRequestBox(box) || (!id.isEmpty() && ids.contains(id)))
            continue;
        ids.append(id);
        if (!id.isEmpty())
            m_app.controls.AddItem("lstAcceptIDs"_L1, id);
    }
    return ids;
}

// In the report.
QString AcceptFriends::NameOfRequest(const QString& id) {
    ++m_requests;
    return id.isEmpty() ? u"Request "_s + QString::number(m_requests) : id;
}

// A request that the site fails on, or doesn't answer, makes room for the next one.
void AcceptFriends::Accept(const Element& button, const QString& id) {
    RunReport& report = m_app.Get<RunReport>();
    report.Open(NameOfRequest(id));
    const qint16 accepted = CountOnPage(m_app, Accepted);
    const qint16 failed = CountOnPage(m_app, FailedOne);
    Trace(u"APPROVE5 - FOUND!"_s);
    m_pressedFor.append(id);
    button.Click();
    const bool isAnswered = m_app.waiting.WaitWhile(
        [&] {
            return CountOnPage(m_app, Accepted) == accepted && CountOnPage(m_app, FailedOne) <= failed &&
                   !m_app.state.AcceptStopRequested;
        },
        AnswerSeconds);
    if (CountOnPage(m_app, Accepted) != accepted)
        report.Close(ReportResult::Accepted);
    else if (CountOnPage(m_app, FailedOne) > failed)
        Refuse(id);
    else
        report.Close(ReportResult::Unfinished,
                     isAnswered ? u"You pressed Stop"_s : u"The site gave no answer in 50 seconds"_s);
}

// Who is no friend gets nothing.
void AcceptFriends::Refuse(const QString& id) {
    m_app.Get<RunReport>().Close(ReportResult::Failed,
                                 u"An error has occurred while processing the request"_s);
    m_pressedFor.removeAll(id);
    const qsizetype row = m_app.controls.Items("lstAcceptIDs"_L1).indexOf(id);
    if (row >= 0)
        m_app.controls.RemoveItem("lstAcceptIDs"_L1, static_cast<int>(row));
}

void AcceptFriends::PrepareOldList() {
    m_app.SetStatus(u"Deleting friend requests from profiles that don't exist anymore..."_s);
    if (IsOnSite())
        DenyVanished();
    m_app.controls.SetItems("lstAcceptIDs"_L1, {});
    m_app.state.lstAlreadyFullGatheredPageIDs.clear();
    if (m_app.controls.Ticked("optAcceptDontSend"_L1))
        return;
    m_app.SetStatus(m_app.controls.Ticked("optAcceptSendCom"_L1)
                        ? u"Gathering ID's for sending comments to..."_s
                        : u"Gathering ID's for sending messages to..."_s);
    m_app.Get<LinkScanner>().GatherPageProfiles();
    m_app.waiting.LeaveIfObsolete();
}

// Who has been denied may go on standing there, so that the page is gone through once as it was; it is read
// anew only where a denial has brought another one.
void AcceptFriends::DenyVanished() {
    Document page = m_app.WebBrowser1().Document();
    std::vector<Element> denies = FindDeniesOfVanished(page);
    for (size_t left = denies.size(), at = 0; left > 0 && at < denies.size(); --left) {
        Deny(denies[at++]);
        if (page.IsPresent())
            continue;
        m_app.Get<PageSigns>().WaitForDocument();
        page = m_app.WebBrowser1().Document();
        denies = FindDeniesOfVanished(page);
        at = 0;
    }
}

void AcceptFriends::Deny(const Element& deny) {
    RunReport& report = m_app.Get<RunReport>();
    report.Open(u"A profile that no longer exists"_s);
    const QString denied = u"you have denied a friend request from"_s;
    const qint16 before = CountOnPage(m_app, denied);
    deny.Click();
    const bool isAnswered =
        m_app.waiting.WaitWhile([&] { return CountOnPage(m_app, denied) <= before; }, DenialSeconds);
    report.Close(isAnswered ? ReportResult::Denied : ReportResult::Unfinished,
                 isAnswered ? QString() : u"The site gave no answer in 10 seconds"_s);
}

QStringList AcceptFriends::TickOldBoxes() {
    const Document page = m_app.WebBrowser1().Document();
    Trace(u"case 2.4.1"_s);
    for (const Element& box : RequestBoxes(page))
        if (IsBoxOfAll(box)) {
            Trace(u"case 2.4.2 - "_s + box.OuterHTML());
            box.Click();
            break;
        }
    const bool wantsUpdates = m_app.controls.Ticked("chkAcceptAddToUpdates"_L1);
    QStringList names;
    for (const Element& box : RequestBoxes(page)) {
        if (IsUpdatesBox(box)) {
            if (IsChecked(box) != wantsUpdates)
                box.Click();
            continue;
        }
        if (!IsChecked(box)) {
            Trace(u"case 2.4.3 - "_s + box.OuterHTML());
            box.Click();
        }
        if (IsBoxOfAll(box))
            continue;
        names.append(NameOfRequest(GetNumberFromEnd(box.Value())));
    }
    return names;
}

void AcceptFriends::ApproveInOldLayout() {
    const QStringList names = IsOnSite() ? TickOldBoxes() : QStringList();
    if (!IsOnSite() || !HasApproveButton(m_app.WebBrowser1().Document())) {
        StopWithMessage(u"The button to approve the selection could not be found on the page. "
                        "Please try again."_s);
        return;
    }
    Trace(u"case 2.4.4 - CLICK APPROVE BUTTON"_s);
    m_app.WebBrowser1().Navigate(NoConfirmation);
    m_app.waiting.Pump();
    m_app.Get<Counters>().CountAccepted(static_cast<qint32>(names.size()));
    for (const QString& name : names) {
        m_app.Get<RunReport>().Open(name);
        m_app.Get<RunReport>().Close(ReportResult::Accepted);
    }
    m_app.Get<GatherDriver>().SetMustNotHaveTexts();
    m_app.state.PageApproved = true;
    m_app.WebBrowser1().Navigate(ApproveTicked);
}

} // namespace qlm
