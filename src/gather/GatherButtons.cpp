// SPDX-License-Identifier: MIT
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/Text.h"
#include "gather/GatherDriver.h"
#include "gather/IdResolution.h"

#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// A prompt and the key of section "General" under which its "Don't show again" is kept.
struct Prompt {
    QLatin1StringView form;
    QLatin1StringView box;
    const char* key;
};

const std::vector<Prompt>& Prompts() {
    static const std::vector<Prompt> prompts{
        {"frmGroupGatherPrompt"_L1, "frmGroupGatherPrompt.chkDontShowAgain"_L1, "GroupGatherPrompt"},
        {"frmMusicSearchGatherPrompt"_L1, "frmMusicSearchGatherPrompt.chkDontShowAgain"_L1,
         "MusicSearchGatherPrompt"},
        {"frmFullGatherReminder"_L1, "frmFullGatherReminder.chkDontShowAgain"_L1,
         "FullGatherReminder - chkDontShowAgain"},
    };
    return prompts;
}

const Prompt& PromptOf(const QString& form) {
    const auto& prompts = Prompts();
    return *std::find_if(prompts.begin(), prompts.end(),
                         [&](const Prompt& prompt) { return form == prompt.form; });
}

} // namespace

void GatherDriver::RegisterButtons() {
    Commands& commands = m_app.commands;
    commands.Add(u"piccmdFrGotoBrowse_Click"_s, [this] { GotoBrowse(); });
    commands.Add(u"piccmdFrGotoFriends_Click"_s, [this] { GotoProfilePage(u"/friends"_s); });
    commands.Add(u"piccmdFrGotoComments_Click"_s, [this] { GotoProfilePage(u"/comments"_s); });
    RegisterHelp(u"lblFullGatherHelp"_s, u"frmFullGatherHelp"_s);
    RegisterHelp(u"lblProfileIDHelp"_s, u"frmProifleIDHelp"_s);
    for (const Prompt& prompt : Prompts())
        commands.Add(prompt.form + u".cmdOK_Click"_s, "cmdOK_Click",
                     [this, form = QString(prompt.form)] { ClosePrompt(form); });
}

void GatherDriver::RegisterHelp(const QString& label, const QString& form) {
    m_app.commands.Add(label + u"_Click"_s, [this, form] { m_app.platform.Dialogs().ShowModal(form); });
    m_app.commands.Add(form + u".cmdClose_Click"_s,
                       [this, form] { m_app.platform.Dialogs().CloseForm(form); });
}

bool GatherDriver::RefuseDuringLogin() {
    return m_app.state.blnWaitForLoginFirst && RefuseDuringAnyLogin();
}

bool GatherDriver::RefuseDuringAnyLogin() {
    const bool refuse = m_app.state.CurrentAction == ActivityWord::Login;
    if (refuse)
        m_app.ShowMessage(u"Please wait for the login process to finish"_s);
    return refuse;
}

bool GatherDriver::ShowPrompt(const QString& form) {
    const Prompt& prompt = PromptOf(form);
    const QString stored =
        m_app.platform.Settings().GetSetting(u"General"_s, QString::fromLatin1(prompt.key), u"0"_s);
    if (stored != u"0"_s)
        return false;
    m_app.controls.SetTicked(prompt.box, false);
    m_app.platform.Dialogs().ShowModal(form);
    return true;
}

void GatherDriver::ClosePrompt(const QString& form) {
    const Prompt& prompt = PromptOf(form);
    m_app.platform.Settings().SaveSetting(u"General"_s, QString::fromLatin1(prompt.key),
                                          m_app.controls.Ticked(prompt.box) ? u"1"_s : u"0"_s);
    m_app.platform.Dialogs().CloseForm(form);
}

void GatherDriver::GotoBrowse() {
    Diagnostics::Guard(
        [this] {
            if (RefuseDuringAnyLogin())
                return;
            m_app.webHide().ZOrder(1);
            m_app.WebBrowser1().Stop();
            m_app.waiting.Pump();
            m_app.waiting.Pump();
            m_app.WebBrowser1().Navigate(m_app.Expand(u"http://{SiteRootHost}/browse/people"_s));
            m_app.controls.SetTicked("optScanFollowing"_L1, true);
        },
        [this](const std::exception&) {
            m_app.ShowMessage(
                u"An Internet Explorer-related error has occurred while trying to navigate to the browse "
                "page. Restarting Quillmere should fix this problem."_s);
        });
}

void GatherDriver::GotoProfilePage(const QString& page) {
    if (RefuseDuringAnyLogin())
        return;
    const QString id = m_app.Get<IdResolution>().GetDisplayFriendID(u"WebBrowser1"_s, {});
    if (!IsNumeric(id)) {
        m_app.ShowMessage(
            u"Please make sure you are on this profiles main page, wait for it to load and try again."_s);
        return;
    }
    m_app.WebBrowser1().Navigate(m_app.Expand(u"http://{SiteRootHost}/"_s) + id + page);
    m_app.controls.SetTicked("optScanFollowing"_L1, true);
}

} // namespace qlm
