// SPDX-License-Identifier: MIT
#include "campaigns/FriendRequester.h"

#include "browser/Cover.h"
#include "campaigns/Pacing.h"
#include "campaigns/SendRuns.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/SettingsFields.h"
#include "core/Text.h"
#include "gather/ProfileFilters.h"
#include "steps/RunReport.h"
#include "steps/Steps.h"
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

const StepMachine<FriendRequester>& FriendRequester::Machine() {
    static const StepMachine<FriendRequester> machine{
        .word = ActivityWord::FriendRequests,
        .step = &RunState::intFRStep,
        .procedure = "IterateAddFriends",
        .begin = &FriendRequester::BeginStep,
        .states = {{FriendStep::NextTarget, &FriendRequester::TakeNextTarget},
                   {FriendStep::End, &FriendRequester::EndRun},
                   {FriendStep::DecideFilter, &FriendRequester::DecideFilter},
                   {FriendStep::Submit, &FriendRequester::SubmitFriend},
                   {FriendStep::AfterSend, &FriendRequester::AfterSend}},
        .errorData = nullptr,
    };
    return machine;
}

FriendRequester::FriendRequester(App& app) : m_app(app), m_categories(app) {
    app.commands.Add(u"frmTempMySpaceErrorFR.cmdOK_Click"_s, [this] {
        const bool notAgain = m_app.controls.Ticked("frmTempMySpaceErrorFR.chkDontShowAgain"_L1);
        m_app.platform.Settings().SaveSetting(u"General"_s, NoticeKey, notAgain ? u"1"_s : u"0"_s);
        m_app.Get<SettingsFields>().Sync();
        m_app.platform.Dialogs().CloseForm(u"frmTempMySpaceErrorFR"_s);
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

void FriendRequester::Await(const QString& type, const QString& value) {
    m_app.state.strLinkType = type;
    m_app.state.strLinkValue = value;
    m_app.state.blnLinkFound = false;
}

void FriendRequester::IterateAddFriends() {
    QString error;
    do
        error = RunSteps(m_app, *this, Machine());
    while (IsBusyBrowser(error) && WaitForBusyBrowser());
    // The page is looked at again; an empty one for long repeats the step.
    if (error.isEmpty() || IsBusyBrowser(error))
        return;
    m_app.state.blnLinkFound = false;
    m_app.timers->tmrCheckLinkLoaded.Restart();
}

// False when the run has moved on or ended meanwhile.
bool FriendRequester::WaitForBusyBrowser() {
    const RunMark mark = m_app.waiting.Mark();
    m_app.waiting.WaitWhile([this, &mark] { return m_app.waiting.IsCurrent(mark); }, BusyBrowserSeconds);
    if (!m_app.waiting.IsCurrent(mark))
        return false;
    // A target that could not be opened is taken again.
    if (m_app.state.intFRStep == FriendStep::NextTarget)
        m_app.Get<SendRuns>().MoveCursorBack();
    return true;
}

void FriendRequester::BeginStep() {
    m_app.state.strLastPageText.clear();
    m_app.state.strLastPageHref.clear();
    m_app.WebBrowser1().SetSilent(true);
    m_app.webHide().SetSilent(true);
}

Next FriendRequester::TakeNextTarget() {
    m_app.state.blnWaitingForCaptcha = false;
    m_app.Get<Cover>().Hide();
    m_movedToEnd = false;
    if (m_app.Get<SendRuns>().TakeTarget(u"IterateAddFriends - 1"_s))
        return OpenTarget();
    m_app.state.intFRStep = FriendStep::End;
    return Next::Again;
}

Next FriendRequester::OpenTarget() {
    m_app.Get<RunReport>().Open(m_app.state.strCurrentID);
    m_app.WebBrowser1().Navigate(u"about:blank"_s);
    m_app.Get<SendRuns>().MoveCursor();
    m_app.waiting.Pump();
    if (m_app.Get<ProfileFilters>().ActiveWhenSending())
        OpenProfile();
    else
        OpenRequestPage();
    return Next::Wait;
}

void FriendRequester::OpenProfile() {
    m_app.Get<SendRuns>().OpenProfile();
    m_app.state.intFRStep = FriendStep::DecideFilter;
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
    m_app.state.intFRStep = FriendStep::Submit;
    if (newLayout)
        Await(u"Text"_s, u"Request Sent!"_s);
    else
        Await(u"Button"_s, u"add to friends"_s);
    m_app.timers->tmrCheckLinkLoaded.Restart();
}

Next FriendRequester::EndRun() {
    m_app.Get<SendRuns>().Finish();
    return Next::Wait;
}

Next FriendRequester::DecideFilter() {
    RunState& state = m_app.state;
    if (!m_app.Get<SendRuns>().PassesFilter(u"IterateAddFriends - 2"_s))
        return Next::Again;
    // Unlike the direct way, this one uses the new address on both layouts.
    state.intFRStep = FriendStep::Submit;
    Await(u"Text"_s, u"Request Sent!"_s);
    // Whoever takes the browser while the page is on its way has to come back to it, not to the profile.
    m_app.WebBrowser1().Navigate(u"about:blank"_s);
    m_app.WebBrowser1().Navigate(m_app.Expand(u"{SiteRootHost}/my/friends/addtofriends/"_s) +
                                 state.strCurrentID);
    m_app.timers->tmrCheckLinkLoaded.Restart();
    return Next::Wait;
}

Next FriendRequester::AfterSend() {
    const RunState& state = m_app.state;
    CloseReport();
    const bool messageFollows =
        m_app.controls.Ticked("chkFrSendMessage"_L1) && !state.blnFRSkipMessage && !state.blnSkipRequested;
    return messageFollows ? SendMessageAfter() : GoOnAfterTarget();
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

Next FriendRequester::GoOnAfterTarget() {
    RunState& state = m_app.state;
    state.intFRStep = FriendStep::NextTarget;
    const bool givenUp = state.blnSkipCurrentID || state.blnSkipRequested;
    if (!givenUp) {
        m_app.SetStatus(u"Friend request successfully sent"_s);
        m_app.Get<Pacing>().DoDelay();
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

Next FriendRequester::SendMessageAfter() {
    RunState& state = m_app.state;
    state.blnMsgAfterFR = true;
    state.intFRStep = FriendStep::None;
    state.intMsgStep = MessageStep::Submit;
    m_app.SetStatus(u"Friend request successfully sent"_s);
    m_app.Get<Pacing>().DoDelay();
    // The message step moves the cursor on.
    if (!m_app.controls.Ticked("chkRemoveAfterSent"_L1))
        --state.intCurrentIDIndex;
    state.CurrentAction = ActivityWord::Messages;
    m_app.SetStatus(u"Proceeding to send message after friend request..."_s);
    Await(u"Button"_s, u"send"_s);
    const QString page = state.blnNewLayout
                             ? u"{SiteRootHost}/my/mail/new?t="_s
                             : u"{MessagingHost}/index.cfm?fuseaction=mail.message&friendID="_s;
    // Who comes back while the page is on its way must not ask for the request's once more.
    m_app.WebBrowser1().Navigate(u"about:blank"_s);
    m_app.WebBrowser1().Navigate(m_app.Expand(page) + state.strCurrentID);
    m_app.timers->tmrCheckLinkLoaded.Restart();
    return Next::Wait;
}

} // namespace qlm
