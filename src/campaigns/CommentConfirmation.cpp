// SPDX-License-Identifier: MIT
#include "browser/PageSigns.h"
#include "campaigns/Campaigns.h"
#include "campaigns/CaptchaCalls.h"
#include "campaigns/CommentForm.h"
#include "campaigns/Commenter.h"
#include "campaigns/Counters.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "steps/Steps.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int CompletePageSeconds = 25;
constexpr int PostedSeconds = 10;
const QString Posted = u"your comment has been posted"_s;
const QString ToBeApproved = u"this user requires all comments to be approved"_s;
const QString ConfirmedStatus = u"Comment confirmed, waiting for MySpace confirmation..."_s;
const QString Caller = u"ConfirmComment"_s;

} // namespace

void Commenter::ConfirmComment() {
    m_app.state.intComStep = CommentStep::Confirm;
    IterateSendComments();
}

bool Commenter::IsPosted() {
    return m_app.Get<PageSigns>().IsTextInPage(Posted);
}

Next Commenter::Confirm() {
    PageSigns& page = m_app.Get<PageSigns>();
    page.WaitForDocument();
    if (page.IsCaptchaPage())
        return CallForCaptcha();
    if (!IsPosted())
        WaitForConfirmPage();
    if (page.IsCaptchaPage())
        return AwaitPosted(ConfirmedStatus);
    return IsPosted() ? TakeConfirmed() : PressConfirm();
}

Next Commenter::TakeConfirmed() {
    CountOnce();
    m_app.state.intComStep = CommentStep::AfterSend;
    return Next::Again;
}

// A button that can't be pressed is looked at again.
void Commenter::WaitForConfirmPage() {
    PageSigns& page = m_app.Get<PageSigns>();
    m_app.SetStatus(u"Waiting for page to finish loading..."_s);
    WaitUntilComplete(CompletePageSeconds);
    m_app.waiting.WaitFor(u"the button that posts the comment"_s, [&] {
        return !page.IsCaptchaPage() && FindConfirmButton(m_app.WebBrowser1().Document()).isDisabled;
    });
}

Next Commenter::PressConfirm() {
    const ConfirmButton button = FindConfirmButton(m_app.WebBrowser1().Document());
    // A comment that its profile approves first has been taken like any other.
    if (!button.element && m_app.Get<PageSigns>().IsTextInPage(ToBeApproved))
        return TakeConfirmed();
    if (!button.element)
        return GiveTargetUp(u"The page that confirms it has no button"_s, Caller);
    CountOnce();
    button.element.Click();
    AwaitPosted(ConfirmedStatus);
    // The end of the run must not cut the post off.
    if (!Comments.isPartOfAnother(m_app.state) && m_app.Get<Counters>().IsLimitDue(Comments))
        m_app.waiting.WaitWhile([this] { return !IsPosted(); }, PostedSeconds);
    LimitIsMet();
    return Next::Wait;
}

Next Commenter::AwaitPosted(const QString& status) {
    m_app.state.intComStep = CommentStep::AfterSend;
    m_app.SetStatus(status);
    m_app.state.intConfirmPolls = 0;
    Await(u"Text"_s, Posted);
    return Next::Wait;
}

// Its button is the user's, once they have typed the words.
Next Commenter::CallForCaptcha() {
    if (FindConfirmButton(m_app.WebBrowser1().Document()).isDisabled)
        return GiveTargetUp(u"The page with the CAPTCHA can't be sent"_s, Caller);
    AwaitCaptchaAnswer();
    return AwaitPosted(ConfirmedStatus);
}

// The user is called once a target; a word that the site refuses brings another page.
void Commenter::AwaitCaptchaAnswer() {
    CaptchaCalls& calls = m_app.Get<CaptchaCalls>();
    if (!m_app.state.blnWaitingForCaptcha)
        calls.CallUser();
    m_app.waiting.LeaveIfObsolete();
    m_app.waiting.WaitFor(u"you to answer the CAPTCHA"_s, [&] {
        if (!m_app.Get<PageSigns>().IsCaptchaPage())
            return false;
        calls.FocusAnswerField();
        return true;
    });
}

} // namespace qlm
