// SPDX-License-Identifier: MIT
#include "invites/InviteRun.h"

#include "browser/Cover.h"
#include "browser/PageView.h"
#include "campaigns/Counters.h"
#include "campaigns/SendRuns.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/Text.h"
#include "gather/GatheredList.h"
#include "gather/ListingText.h"
#include "invites/InvitePages.h"
#include "steps/RunReport.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
// A page that goes away in the middle of the look is not the awaited one.
bool Holds(const std::function<bool()>& condition) {
    try {
        return condition();
    } catch (const BrowserError&) {
        return false;
    }
}

const QString NotSent = u"In the log, but the site has not confirmed that the invitation was sent"_s;
} // namespace

void InviteRun::Begin() {
    m_app.Get<StopResume>().StopAll(m_kind.begins);
    m_app.Get<Cover>().Hide();
    m_app.state.blnHoldLinkCheck = false;
    m_app.timers->Timer1.SetEnabled(false);
    m_app.timers->tmrAutoResume.SetEnabled(false);
    m_app.state.CurrentAction = ActivityWord::Invites;
    m_mark = m_app.waiting.Mark();
    m_app.controls.SetText("lblInviteCount"_L1, u"Invites: 0"_s);
    m_app.controls.SetText("lblInviteBatch"_L1, {});
}

void InviteRun::OpenLog(const QString& name) {
    m_log.emplace(m_app, m_kind, name);
    m_app.Get<RunReport>().BeginRun(InviteReport, m_log->Name());
    LeaveIfReplaced();
}

bool InviteRun::IsStopped() const {
    return m_app.state.blnHoldLinkCheck || !m_app.waiting.IsCurrent(m_mark);
}

// A stop counts once; whatever begins counts further.
void InviteRun::LeaveIfReplaced() const {
    const RunMark now = m_app.waiting.Mark();
    const bool isMine =
        now.run == m_mark.run || (now.run == m_mark.run + 1 && m_app.state.CurrentAction.isEmpty());
    if (!isMine)
        throw RunEnded();
}

void InviteRun::Wait(const QString& what, const std::function<bool()>& condition) {
    m_app.waiting.WaitFor(what, [&] { return !IsStopped() && !Holds(condition); });
    LeaveIfReplaced();
}

void InviteRun::WaitForText(const QString& what, const QString& text) {
    Wait(what, [&] { return Has(text); });
}

void InviteRun::WaitUntilComplete() {
    Wait(u"the page to be complete"_s, [this] { return m_app.WebBrowser1().ReadyState() == 4; });
}

void InviteRun::WaitUntilIdle() {
    Wait(u"the page to be complete"_s, [this] { return !m_app.WebBrowser1().Busy(); });
}

void InviteRun::WaitSeconds(int seconds) {
    const qint64 startMs = m_app.Pump().NowMs();
    Wait(u"the page"_s, [&] { return m_app.waiting.SecondsSince(startMs) >= seconds; });
}

Document InviteRun::Page() const {
    const Document page = m_app.Get<SendRuns>().IsOnSite() ? m_app.WebBrowser1().Document() : Document();
    return page && page.Body() ? page : Document();
}

bool InviteRun::Has(const QString& text) const {
    return Page() && PageHas(m_app.WebBrowser1(), text);
}

bool InviteRun::HasMarkup(const QString& text) const {
    return Page() && PageHasMarkup(m_app.WebBrowser1(), text);
}

bool InviteRun::HasElement(const QString& id) const {
    const Document page = Page();
    return page && page.GetElementById(id);
}

bool InviteRun::IsComplete() const {
    return Page() && m_app.WebBrowser1().ReadyState() == 4;
}

bool InviteRun::Press(const QString& id) const {
    if (!HasElement(id))
        return false;
    m_app.WebBrowser1().Document().GetElementById(id).Click();
    return true;
}

// A list without a label tells its pages apart by their number.
QString InviteRun::PageMark() const {
    const Document page = Page();
    if (!page)
        return {};
    const QString label = ListingText(ShownPage(m_app));
    return label.isEmpty() ? QString::number(PageNumberOf(page)) : label;
}

bool InviteRun::IsNew(const QString& id) const {
    return IsDigits(id) && !m_log->Holds(id);
}

bool InviteRun::MayInvite(const QString& id) {
    return (!m_isLimitedToGathered || IsInArray(id, m_app.state.arrFriendIDs)) && IsNew(id);
}

void InviteRun::Choose(const QString& id, const std::function<void()>& choose) {
    m_log->Write(id);
    m_chosen.append(id);
    m_app.Get<RunReport>().CloseForNow(id, NotSent);
    LeaveIfReplaced();
    choose();
    m_app.controls.SetText("lblInviteCount"_L1, u"Invites: "_s + QString::number(++m_sent));
    ShowBatch({});
}

void InviteRun::BeginBatch() {
    ++m_batch;
    m_app.Get<RunReport>().Settle(ReportResult::Unfinished, NotSent);
    m_chosen.clear();
    ShowBatch({});
}

void InviteRun::ShowBatch(const QString& state) {
    m_app.controls.SetText("lblInviteBatch"_L1, u"Batch "_s + QString::number(m_batch) + u": "_s +
                                                    QString::number(m_chosen.size()) + u" chosen"_s + state);
}

void InviteRun::ShowWaiting(const QString& forWhat) {
    ShowBatch(u", waiting for "_s + forWhat);
}

bool InviteRun::FinishAfterStop() {
    if (!IsStopped() || m_chosen.isEmpty())
        return false;
    const RunMark stop = m_app.waiting.Mark();
    const bool isYes = m_app.AskYesNo(QString::fromUtf16(m_kind.stopQuestion));
    m_app.waiting.LeaveUnlessCurrent(stop);
    if (isYes)
        Resume();
    return isYes;
}

void InviteRun::Resume() {
    if (!IsStopped())
        return;
    LeaveIfReplaced();
    m_app.state.blnHoldLinkCheck = false;
    m_app.state.CurrentAction = ActivityWord::Invites;
    m_mark = m_app.waiting.Mark();
    m_app.Get<RunReport>().Reopen(InviteReport);
}

void InviteRun::SaveDailyCount() {
    if (!m_chosen.isEmpty())
        m_app.Get<Counters>().CountInvited(m_kind.today, Chosen());
}

bool InviteRun::SendBatch(const std::function<void()>& submit) {
    SaveDailyCount();
    if (IsStopped() || m_chosen.isEmpty())
        return false;
    submit();
    if (IsStopped())
        return false;
    ConfirmBatch();
    return true;
}

void InviteRun::ConfirmBatch() {
    m_log->Confirm(m_chosen);
    m_app.Get<RunReport>().Settle(ReportResult::Sent);
    ShowBatch(u", sent"_s);
}

} // namespace qlm
