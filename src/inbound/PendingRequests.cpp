// SPDX-License-Identifier: MIT
#include "inbound/PendingRequests.h"

#include "accounts/LoginForm.h"
#include "browser/Cover.h"
#include "browser/PageClassifier.h"
#include "browser/PageSigns.h"
#include "campaigns/SendRuns.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/Text.h"
#include "gather/GatherDriver.h"
#include "inbound/InboundReports.h"
#include "steps/RunReport.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int WaitLimitSeconds = 20;
const QString SignOutPage = u"{MobileHost}/signout.wap?bfd=offdeck"_s;
const QString SentRequests = u"{MobileHost}/messaging/sentrequests.wap?bfd=offdeck"_s;
const QString RefusedSignIn = u"The mobile site did not sign you in, so nothing could be canceled."_s;

// The innermost element that reads so.
Element FindText(const Document& page, const QString& text) {
    Element found;
    const std::vector<Element> all = page.Body().Tags(u"*"_s);
    page.Expect(all);
    for (const Element& element : all) {
        const bool fits = element.GetAttribute(u"innertext"_s).trimmed() == text;
        if (found && (!fits || element.ParentElement().Node() != found.Node()))
            break;
        if (fits)
            found = element;
    }
    return found;
}

} // namespace

PendingRequests::PendingRequests(App& app) : m_app(app) {
    app.commands.Add(u"picDeletePendingRequests_Click"_s, "picDeletePendingRequests_Click",
                     [this] { picDeletePendingRequests_Click(); });
    app.commands.Add(u"picDeletePendingRequestsStop_Click"_s, [this] { Stop(); });
    app.commands.Add(u"piccmdDelPenReport_Click"_s,
                     [this] { m_app.Get<SendRuns>().ReportWindow().Show(PendingReport); });
}

void PendingRequests::picDeletePendingRequests_Click() {
    RunState& state = m_app.state;
    if (m_app.Get<GatherDriver>().RefuseDuringLogin())
        return;
    if (!IsNumeric(m_app.controls.Text("txtDelPenFRStartPage"_L1)))
        m_app.controls.SetText("txtDelPenFRStartPage"_L1, u"1"_s);
    m_app.Get<SendRuns>().ResetRun(ActivityWord::DeletingPending);
    m_app.Get<Cover>().Hide();
    m_opened.clear();
    const RunMark start = m_app.waiting.Mark();
    m_app.Get<RunReport>().BeginRun(PendingReport);
    m_app.waiting.LeaveUnlessCurrent(start);
    state.intDelPenStep = PendingStep::OpenList;
    ErrDeletePendingFRMOBILE();
}

void PendingRequests::Stop() {
    m_app.WebBrowser1().Stop();
    m_app.Get<StopResume>().StopAll(StopReason::PendingStop);
}

void PendingRequests::End() {
    m_app.Get<StopResume>().StopAll(StopReason::PendingDone);
}

void PendingRequests::ErrDeletePendingFRMOBILE() {
    Waiting::LeaveHere([this] {
        const Waiting::Owned owned(m_app.waiting);
        const QString error =
            m_app.diagnostics.Trap("ErrDeletePendingFRMOBILE", [this] { DeleteOnMobileSite(); });
        if (error.isEmpty())
            return;
        // No tick would go on with it.
        m_app.Get<StopResume>().StopAll(StopReason::PendingFailed);
        m_app.SetStatus(u"Canceling pending requests has ended with an error: "_s + error);
        m_app.Get<StopResume>().DoFinishedExit();
    });
}

void PendingRequests::DeleteOnMobileSite() {
    m_app.WebBrowser1().SetSilent(true);
    const bool isSignedIn = LogInOnMobileSite();
    m_app.SetStatus(u"Going to the sent requests page..."_s);
    OpenSentRequests();
    for (bool isFirst = true;; isFirst = false) {
        WaitForPage();
        if (IsEmpty() || (isFirst && !OpenStartPage()))
            break;
        const std::optional<Pending> pending = NextPending();
        if (!pending)
            break;
        Cancel(*pending);
    }
    End();
    if (!isSignedIn)
        m_app.SetStatus(RefusedSignIn);
    if (!m_app.Get<StopResume>().DoFinishedExit())
        m_app.ShowMessage(u"Finished!"_s);
}

void PendingRequests::WaitForPage() {
    m_app.waiting.WaitWhile([this] { return m_app.WebBrowser1().Busy(); }, WaitLimitSeconds);
    m_app.waiting.WaitWhile([this] { return m_app.WebBrowser1().ReadyState() != 4; }, WaitLimitSeconds);
}

void PendingRequests::Open(const QString& address) {
    m_app.ClearPage();
    m_app.WebBrowser1().Navigate(address);
    m_app.waiting.WaitSeconds(1);
}

bool PendingRequests::IsEmpty() {
    return m_app.Get<PageSigns>().IsTextInPage(u"there are 0 sent requests"_s);
}

bool PendingRequests::IsOnSite() {
    return m_app.Get<SendRuns>().IsOnSite();
}

// What comes without being signed in shows no requests, so that the run ends by itself.
bool PendingRequests::LogInOnMobileSite() {
    m_app.SetStatus(m_app.Expand(u"Logging in to {MobileHost}..."_s));
    m_app.ClearPage();
    m_app.WebBrowser1().Navigate(m_app.Expand(SignOutPage));
    WaitForPage();
    if (!IsOnSite())
        return false;
    const Document page = m_app.WebBrowser1().Document();
    const auto fill = [&](const QString& id, const QString& text) {
        if (const Element field = page.GetElementById(id); field && StaysOnTheSite(m_app.deployment, field))
            field.SetInnerText(text);
    };
    fill(u"emailTextBox"_s, m_app.state.AccountEmail);
    fill(u"passwordTextBox"_s, m_app.state.AccountPassword);
    m_app.waiting.Pump();
    const Element button = m_app.WebBrowser1().Document().GetElementById(u"loginCommand"_s);
    if (button && StaysOnTheSite(m_app.deployment, button))
        button.Click();
    const bool isSignedIn = m_app.waiting.WaitWhile(
        [this] { return !m_app.Get<PageSigns>().IsTextInPage(u"my profile"_s); }, WaitLimitSeconds);
    m_app.SetStatus(u"Waiting for the page to load..."_s);
    WaitForPage();
    return isSignedIn;
}

void PendingRequests::OpenSentRequests() {
    Open(m_app.Expand(SentRequests));
}

// False when there is nothing to work on there.
bool PendingRequests::OpenStartPage() {
    const qint32 number = ToLong(m_app.controls.Text("txtDelPenFRStartPage"_L1)).value_or(1);
    if (number <= 1)
        return true;
    m_app.SetStatus(u"Going to your specified start page..."_s);
    QString address;
    for (const Element& link : m_app.WebBrowser1().Document().GetElementsByTagName(u"a"_s))
        if (Has(link.GetAttribute(u"innerhtml"_s), u"pagination_next"_s)) {
            address = link.Href();
            break;
        }
    if (address.isEmpty())
        return false;
    Open(address.replace(u"p=2&"_s, u"p="_s + QString::number(number) + u'&'));
    WaitForPage();
    return !IsEmpty();
}

std::optional<PendingRequests::Pending> PendingRequests::NextPending() {
    if (!IsOnSite())
        return std::nullopt;
    for (const Element& link : m_app.WebBrowser1().Document().GetElementsByTagName(u"a"_s)) {
        const QString address = link.Href();
        if (!Has(address, u"friendid="_s) || !Has(address, u"pvm="_s))
            continue;
        const QString id = GetQueryStringValue(address, u"friendid"_s);
        if (m_opened.contains(id))
            continue;
        return IsNumeric(id) ? std::optional<Pending>({id, address}) : std::nullopt;
    }
    return std::nullopt;
}

// Opens the list again after an entry that leads nowhere.
void PendingRequests::Cancel(const Pending& pending) {
    RunReport& report = m_app.Get<RunReport>();
    m_opened.insert(pending.id);
    report.Open(pending.id);
    m_app.SetStatus(u"Canceling pending friend request..."_s);
    Open(pending.address);
    if (!WaitForEntry()) {
        report.Close(ReportResult::Failed);
        OpenSentRequests();
        return;
    }
    m_app.waiting.WaitSeconds(1);
    const bool isAsked = m_app.waiting.WaitWhile(
        [this] { return !m_app.Get<PageSigns>().IsTextInPage(u"Are you sure you want to cancel"_s); },
        WaitLimitSeconds);
    WaitForPage();
    m_app.SetStatus(u"Canceled, looking for next pending request..."_s);
    if (ClickText(u"OK"_s) && isAsked) {
        report.Close(ReportResult::Cancelled);
        m_app.waiting.WaitSeconds(1);
        return;
    }
    report.Close(ReportResult::Failed, u"The site did not ask whether to cancel"_s);
    OpenSentRequests();
}

// The entry's page has come, and its request is being taken back.
bool PendingRequests::WaitForEntry() {
    bool isError = false;
    m_app.waiting.WaitWhile(
        [&] {
            isError = m_app.Get<PageClassifier>().ClassifyErrorPage();
            return !isError && m_app.WebBrowser1().ReadyState() != 4;
        },
        WaitLimitSeconds);
    RunReport& report = m_app.Get<RunReport>();
    if (isError) {
        report.RemarkPage(m_app.state.intPageClass);
        return false;
    }
    if (IsOnSite() && ClickText(u"Cancel Request"_s))
        return true;
    report.Remark(u"The page has nothing that cancels the request"_s);
    return false;
}

bool PendingRequests::ClickText(const QString& text) {
    const Document page = m_app.WebBrowser1().Document();
    const Element element = page && page.Body() ? FindText(page, text) : Element();
    if (!element)
        return false;
    element.Click();
    return true;
}

} // namespace qlm
