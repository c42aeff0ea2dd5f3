// SPDX-License-Identifier: MIT
#include "campaigns/CaptchaCalls.h"

#include "campaigns/Pacing.h"
#include "core/App.h"
#include "core/Text.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

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
    const QString action = m_app.state.CurrentAction;
    m_app.timers->tmrAutoResume.SetEnabled(false);
    m_app.pacing->HideCover();
    Attention& attention = m_app.platform.Attention();
    if (m_app.controls.Ticked("mnuCaptchaSound"_L1))
        attention.PlayWAV(m_app.InstalledFile(u"blip.wav"_s));
    m_app.state.blnWaitingForCaptcha = true;
    attention.FlashWindow();
    m_app.SetStatus(u"Waiting for user to enter and submit CAPTCHA..."_s);
    if (m_app.controls.Ticked("mnuCaptchaPopup"_L1))
        m_app.ShowMessage(u"Please enter the CAPTCHA code to continue"_s);
    if (m_app.state.CurrentAction != action)
        return;
    if (m_app.controls.Ticked("mnuCaptchaRestoreIfMinimized"_L1))
        attention.RestoreWindow();
    FocusAnswerField();
}

void CaptchaCalls::FocusAnswerField() {
    for (const Element& input : m_app.WebBrowser1().Document().GetElementsByTagName(u"input"_s)) {
        const QString name = input.Name();
        if (Has(name, u"captchaResponseTextBox"_s) || Has(name, u"captcha_text"_s)) {
            input.Focus();
            return;
        }
    }
}

} // namespace qlm
