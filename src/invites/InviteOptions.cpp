// SPDX-License-Identifier: MIT
#include "invites/InviteOptions.h"

#include "core/App.h"
#include "core/SettingsFields.h"
#include "core/Text.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Form = u"frmGroupInviteOptions"_s;
constexpr auto GatheredIDs = "frmGroupInviteOptions.optInvIDs"_L1;
constexpr auto WholeList = "frmGroupInviteOptions.optInvLists"_L1;
constexpr auto FirstPage = "frmGroupInviteOptions.txtInviteStartPage"_L1;
constexpr auto Notice = "frmGroupInviteOptions.lblNotice"_L1;

QString SectionOf(App& app) {
    return app.Get<SettingsFields>().SectionOf(u"Invite"_s);
}

} // namespace

InviteOptions::InviteOptions(App& app) : m_app(app) {
    app.commands.Add(Form + u".cmdSave_Click"_s, "cmdSave_Click - frmGroupInviteOptions",
                     [this] { cmdSave_Click(); });
    app.commands.Add(Form + u".cmdCancel_Click"_s, [this] { m_app.platform.Dialogs().CloseForm(Form); });
}

bool InviteOptions::Ask(bool showNotice) {
    Load();
    m_app.controls.SetVisible(Notice, showNotice);
    blnCancel = true;
    m_app.platform.Dialogs().ShowModal(Form);
    return !blnCancel;
}

void InviteOptions::Load() {
    const SettingsStore& settings = m_app.platform.Settings();
    const QString section = SectionOf(m_app);
    const bool isWholeList = ToBoolean(settings.GetSetting(section, u"optInvLists"_s, u"False"_s));
    m_app.controls.SetTicked(GatheredIDs, !isWholeList);
    m_app.controls.SetTicked(WholeList, isWholeList);
    m_app.controls.SetText(FirstPage, settings.GetSetting(section, u"txtInviteStartPage"_s, u"1"_s));
}

void InviteOptions::cmdSave_Click() {
    SettingsStore& settings = m_app.platform.Settings();
    const QString section = SectionOf(m_app);
    settings.SaveSetting(section, u"optInvIDs"_s, FromBoolean(m_app.controls.Ticked(GatheredIDs)));
    settings.SaveSetting(section, u"optInvLists"_s, FromBoolean(m_app.controls.Ticked(WholeList)));
    settings.SaveSetting(section, u"txtInviteStartPage"_s, m_app.controls.Text(FirstPage));
    m_app.Get<SettingsFields>().Sync();
    blnCancel = false;
    m_app.platform.Dialogs().CloseForm(Form);
}

bool InviteOptions::SendsToGatheredIDs() const {
    return m_app.controls.Ticked(GatheredIDs);
}

int InviteOptions::StartPage() const {
    const QString page = m_app.controls.Text(FirstPage);
    return IsNumeric(page) ? ToLong(page).value_or(1) : 1;
}

} // namespace qlm
