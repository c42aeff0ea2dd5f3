// SPDX-License-Identifier: MIT
#include "browser/Cover.h"
#include "browser/PageSigns.h"
#include "campaigns/Campaigns.h"
#include "campaigns/CaptchaCalls.h"
#include "campaigns/Counters.h"
#include "campaigns/FriendRequester.h"
#include "campaigns/SendRuns.h"
#include "campaigns/SentLog.h"
#include "core/App.h"
#include "gather/GatheredList.h"
#include "steps/RunReport.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

#include <utility>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int UnknownPageSeconds = 2;
constexpr int SettledPageSeconds = 1;
constexpr int SkippedCaptchasInARow = 3;
const QString WrongAnswer = u"Security code does not match"_s;
} // namespace

Next FriendRequester::SubmitFriend() {
    RunState& state = m_app.state;
    PageSigns& page = m_app.Get<PageSigns>();
    page.WaitForDocument();
    const bool captcha = page.IsCaptchaPage();
    if (captcha && !state.blnWaitingForCaptcha) {
        if (MayPutTargetOff())
            return PutTargetOff();
        state.intCaptchaSkips = 0;
        m_app.Get<CaptchaCalls>().CallUser();
    } else if (IsConfirmed() || page.IsRequestSentPage()) {
        if (!RequestWasSent())
            return Next::Wait;
    } else if (captcha) {
        // The site has refused the answer; the user is there already.
        m_app.Get<CaptchaCalls>().FocusAnswerField();
    } else {
        return LookAgain();
    }
    return GoOnAfterSubmit();
}

bool FriendRequester::IsConfirmed() const {
    return m_confirmed == m_app.state.lngTargetNumber;
}

// Once a target: a disk that refuses is not asked again at each turn of a wait.
void FriendRequester::NoteConfirmation() {
    m_app.Get<RunReport>().Confirm();
    const qint32 target = m_app.state.lngTargetNumber;
    if (std::exchange(m_confirmed, target) != target)
        RunningLog(m_app).NoteContact();
}

// False when a limit has stopped the run.
bool FriendRequester::RequestWasSent() {
    RunState& state = m_app.state;
    m_app.Get<Cover>().Hide();
    state.intFRLimitHits = 0;
    state.blnDailyLimitHit = false;
    state.intCaptchaSkips = 0;
    m_app.timers->tmrAutoResume.SetEnabled(false);
    state.blnWaitingForCaptcha = false;
    NoteConfirmation();
    if (!m_app.Get<Counters>().Count(FriendRequests))
        return false;
    state.intFRStep = FriendStep::AfterSend;
    const bool logged = RunningLog(m_app).WriteLogEntry();
    m_app.Get<RunReport>().Close(logged ? ReportResult::Sent : ReportResult::SentNotLogged,
                                 logged ? QString() : u"The log could not be written"_s);
    return !m_app.Get<Counters>().StopUncounted();
}

// Neither a confirmation nor a CAPTCHA: the page may still be building. The older one has a button of its
// own, which nobody but the user presses.
Next FriendRequester::LookAgain() {
    m_app.diagnostics.DebugForAction(m_app.WebBrowser1().Document().BodyHTML());
    WaitNoting(UnknownPageSeconds);
    if (AwaitsProfile()) {
        m_app.state.blnWaitingForCaptcha = false;
        m_app.state.intFRStep = FriendStep::DecideFilter;
        return Next::Again;
    }
    if (!m_app.state.blnNewLayout)
        return GoOnAfterSubmit();
    m_app.state.blnLinkFound = false;
    m_app.timers->tmrCheckLinkLoaded.Restart();
    return Next::Wait;
}

// A CAPTCHA may have stood in front of the profile, too: then the filter's decision is still to come.
bool FriendRequester::AwaitsProfile() const {
    return m_app.state.strLinkType == u"Text"_s && m_app.state.strLinkValue == u"View"_s;
}

Next FriendRequester::GoOnAfterSubmit() {
    const RunState& state = m_app.state;
    if (state.blnNewLayout)
        return state.blnWaitingForCaptcha ? WaitForAnswer() : Next::Again;
    if (state.blnHoldLinkCheck)
        return Next::Wait;
    if (!state.blnWaitingForCaptcha)
        m_app.SetStatus(u"Friend request submitted, waiting for confirmation page..."_s);
    // After a CAPTCHA in front of the profile that is what comes.
    if (AwaitsProfile())
        Await(u"Text"_s, u"View"_s);
    else
        Await(u"Text"_s, u"has been sent"_s);
    m_app.timers->tmrCheckLinkLoaded.Restart();
    return Next::Wait;
}

// Counts the CAPTCHA as one more in a row; two are put off, the third is the user's.
bool FriendRequester::MayPutTargetOff() {
    if (!m_app.controls.Ticked("mnuSkipProfileCAPTCHAs"_L1) ||
        m_app.controls.Items("lstFriendIDs"_L1).size() < 2)
        return false;
    return ++m_app.state.intCaptchaSkips < SkippedCaptchasInARow;
}

Next FriendRequester::PutTargetOff() {
    RunState& state = m_app.state;
    MoveTargetToEnd();
    m_movedToEnd = true;
    m_app.Get<Cover>().Clear();
    m_app.ClearPage();
    if (m_app.controls.Ticked("chkFrSendMessage"_L1))
        state.blnFRSkipMessage = true;
    state.blnSkipRequested = true;
    state.intFRStep = FriendStep::AfterSend;
    m_app.Get<StopResume>().ResumeNext();
    return Next::Wait;
}

// With chkRemoveAfterSent ticked the after-send step takes the entry off the head.
void FriendRequester::MoveTargetToEnd() {
    RunState& state = m_app.state;
    const QString caller = u"SubmitFriend"_s;
    const qint32 place = state.intCurrentIDIndex - 1;
    if (!m_app.controls.Ticked("chkRemoveAfterSent"_L1) &&
        state.arrFriendIDs.value(place) == state.strCurrentID) {
        const qsizetype before = state.arrFriendIDs.size();
        m_app.Get<GatheredList>().Remove(place, caller);
        // An entry beyond the view of the list stays where it is, after the cursor.
        if (state.arrFriendIDs.size() < before)
            state.intCurrentIDIndex = place;
    }
    m_app.Get<GatheredList>().Add(state.strCurrentID, caller);
}

// No page check runs in the waits of the step, and the page may be gone when Stop or Skip ends one.
void FriendRequester::WaitNoting(int seconds) {
    m_app.waiting.WaitWhile(
        [&] {
            NoteWhenConfirmed();
            return !m_app.state.blnHoldLinkCheck;
        },
        seconds + 1);
}

void FriendRequester::NoteWhenConfirmed() {
    if (m_confirmed != m_app.state.lngTargetNumber && m_app.Get<PageSigns>().IsRequestSentPage())
        NoteConfirmation();
}

Next FriendRequester::WaitForAnswer() {
    RunState& state = m_app.state;
    PageSigns& page = m_app.Get<PageSigns>();
    m_app.waiting.WaitFor(u"you to answer the CAPTCHA"_s, [&] {
        if (state.blnHoldLinkCheck || !page.IsCaptchaPage())
            return false;
        // A word that the site refuses brings another page.
        m_app.Get<CaptchaCalls>().FocusAnswerField();
        return true;
    });
    auto isComing = [&] { return m_app.WebBrowser1().ReadyState() != 4 && !page.IsTextInPage(WrongAnswer); };
    m_app.waiting.WaitFor(u"the page to be complete"_s, [&] {
        if (!state.blnHoldLinkCheck)
            NoteWhenConfirmed();
        return !state.blnHoldLinkCheck && isComing();
    });
    WaitNoting(SettledPageSeconds);
    if (state.blnHoldLinkCheck) {
        m_app.timers->tmrCheckLinkLoaded.Restart();
        return Next::Wait;
    }
    if (!page.IsTextInPage(WrongAnswer))
        return Next::Again;
    const bool awaitsProfile = AwaitsProfile();
    m_app.ClearPage();
    if (awaitsProfile) {
        OpenProfile();
        return Next::Wait;
    }
    Await(u"TextHTML"_s, u"addFrdBtn"_s);
    m_app.WebBrowser1().Navigate(m_app.Expand(u"{SiteRootHost}/my/friends/addtofriends/"_s) +
                                 state.strCurrentID);
    state.blnLinkFound = false;
    m_app.timers->tmrCheckLinkLoaded.Restart();
    return Next::Wait;
}

} // namespace qlm
