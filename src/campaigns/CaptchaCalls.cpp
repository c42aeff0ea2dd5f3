// SPDX-License-Identifier: MIT
#include "campaigns/CaptchaCalls.h"

#include "browser/Cover.h"
#include "browser/PageSigns.h"
#include "core/App.h"
#include "core/Text.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString WaitingForUser = u"Waiting for user to enter and submit CAPTCHA..."_s;
const QString MessageSent = u"your message has been sent"_s;

void FlipTick(App& app, QLatin1StringView item) {
    app.controls.SetTicked(item, !app.controls.Ticked(item));
}

} // namespace

CaptchaCalls::CaptchaCalls(App& app) : m_app(app) {
    for (const QLatin1StringView item :
         {"mnuCaptchaSound"_L1, "mnuCaptchaPopup"_L1, "mnuCaptchaRestoreIfMinimized"_L1})
        app.commands.Add(QString(item) + u"_Click"_s, [this, item] { FlipTick(m_app, item); });
    app.commands.Add(u"mnuSkipProfileCAPTCHAs_Click"_s, [this] { mnuSkipProfileCAPTCHAs_Click(); });
}

void CaptchaCalls::mnuSkipProfileCAPTCHAs_Click() {
    FlipTick(m_app, "mnuSkipProfileCAPTCHAs"_L1);
    if (!m_app.controls.Ticked("mnuSkipProfileCAPTCHAs"_L1))
        return;
    m_app.ShowMessage(
        u"Please note that this only skips CAPTCHA's that are required by the profiles. You will still "
        "have to enter in those that are required by MySpace."_s);
    m_app.ShowMessage(
        u"Recent MySpace spamming countermeasures still require you to enter the captcha's required by "
        "profiles every so often, in which case Quillmere will stop and allow you to enter the captcha."_s);
}

void CaptchaCalls::CallUser() {
    const RunMark mark = m_app.waiting.Mark();
    m_app.timers->tmrAutoResume.SetEnabled(false);
    m_app.Get<Cover>().Hide();
    Attention& attention = m_app.platform.Attention();
    if (m_app.controls.Ticked("mnuCaptchaSound"_L1))
        attention.PlayWAV(m_app.InstalledFile(u"blip.wav"_s));
    m_app.state.blnWaitingForCaptcha = true;
    attention.FlashWindow();
    m_app.SetStatus(WaitingForUser);
    if (m_app.controls.Ticked("mnuCaptchaPopup"_L1))
        m_app.ShowMessage(u"Please enter the CAPTCHA code to continue"_s);
    m_app.waiting.LeaveUnlessCurrent(mark);
    if (m_app.controls.Ticked("mnuCaptchaRestoreIfMinimized"_L1))
        attention.RestoreWindow();
    FocusAnswerField();
}

namespace {

Element AnswerField(const Document& page) {
    for (const Element& input : page.GetElementsByTagName(u"input"_s)) {
        const QString name = input.Name();
        if (Has(name, u"captchaResponseTextBox"_s) || Has(name, u"captcha_text"_s))
            return input;
    }
    return {};
}

} // namespace

void CaptchaCalls::FocusAnswerField() {
    if (m_focusedPage.IsPresent())
        return;
    const Document page = m_app.WebBrowser1().Document();
    const Element field = AnswerField(page);
    // The page may still be building.
    if (field.IsNull() && m_app.WebBrowser1().ReadyState() < 4)
        return;
    m_focusedPage = page;
    // An element that is focused in a page without the window's focus gets no keys: they would go on pressing
    // the button that was pressed last.
    m_app.WebBrowser1().TakeFocus();
    if (!field.IsNull())
        field.Focus();
}

void CaptchaCalls::MessagingCAPTCHAReached() {
    m_app.diagnostics.Trap("MessagingCAPTCHAReached", [this] {
        RunState& state = m_app.state;
        m_app.WebBrowser1().SetSilent(true);
        m_app.webHide().SetSilent(true);
        if (m_app.Get<PageSigns>().IsCaptchaPage()) {
            WaitForUser();
            return;
        }
        if (m_app.Get<PageSigns>().IsTextInPage(MessageSent)) {
            m_app.SetStatus(u"Message sent, waiting for confirmation page..."_s);
            m_app.timers->tmrAutoResume.Restart();
            state.blnWaitingForCaptcha = false;
            state.intMsgStep = MessageStep::AfterSend;
            state.strLinkType = u"Text"_s;
            state.strLinkValue = MessageSent;
            state.blnLinkFound = false;
            m_app.timers->tmrCheckLinkLoaded.Restart();
            return;
        }
        m_app.diagnostics.DebugForAction(m_app.WebBrowser1().Document().BodyHTML());
        state.intMsgStep = MessageStep::AfterSend;
        m_app.Get<StopResume>().ResumeNext();
    });
}

void CaptchaCalls::WaitForUser() {
    RunState& state = m_app.state;
    const Waiting::Owned owned(m_app.waiting);
    m_app.SetStatus(WaitingForUser);
    m_app.timers->tmrAutoResume.SetEnabled(false);
    if (state.blnWaitingForCaptcha) {
        // The site has refused the answer; the user is there already.
        FocusAnswerField();
    } else {
        CallUser();
        m_app.waiting.LeaveIfObsolete();
        m_app.Get<StopResume>().PauseLinkCheck();
        m_app.waiting.WaitFor(u"the page to be complete"_s,
                              [&] { return m_app.WebBrowser1().ReadyState() < 4; });
        m_app.Get<StopResume>().ResumeLinkCheck();
    }
    state.blnWaitingForCaptcha = true;
    m_app.timers->tmrCheckLinkLoaded.Restart();
    state.blnLinkFound = false;
}

} // namespace qlm
