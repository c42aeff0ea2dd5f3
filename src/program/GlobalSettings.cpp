// SPDX-License-Identifier: MIT
#include "program/GlobalSettings.h"

#include "core/App.h"
#include "core/Registry.h"
#include "core/SettingsFields.h"
#include "steps/StopResume.h"

#include <QSet>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Form = u"frmGlobalSettings"_s;

// The name of its check box.
QByteArray BoxOf(const GlobalFlag& flag) {
    return "frmGlobalSettings." + QByteArray(flag.checkBox);
}

} // namespace

GlobalSettings::GlobalSettings(App& app) : m_app(app) {
    Commands& commands = app.commands;
    commands.Add(u"mnuGlobalSettings_Click"_s, [this] { mnuGlobalSettings_Click(); });
    commands.Add(u"frmGlobalSettings.cmdClose_Click"_s, "cmdClose_Click - frmGlobalSettings",
                 [this] { cmdClose_Click(); });
    commands.Add(u"frmGlobalSettings.cmdResetAll_Click"_s, "cmdResetAll_Click - frmGlobalSettings",
                 [this] { cmdResetAll_Click(); });
    commands.Add(u"mnuResetSettings_Click"_s, [this] { mnuResetSettings_Click(); });
}

void GlobalSettings::mnuGlobalSettings_Click() {
    for (const GlobalFlag& flag : SettingsFields::GlobalFlags())
        m_app.controls.SetTicked(QLatin1StringView(BoxOf(flag)),
                                 m_app.Get<SettingsFields>().GlobalFlagSet(flag));
    m_app.platform.Dialogs().ShowModal(Form);
}

void GlobalSettings::cmdClose_Click() {
    QSet<QString> set;
    for (const GlobalFlag& flag : SettingsFields::GlobalFlags())
        if (m_app.controls.Ticked(QLatin1StringView(BoxOf(flag))))
            set.insert(QString::fromLatin1(flag.key));
    m_app.Get<SettingsFields>().ChangeGlobalFlags(set);
    m_app.platform.Dialogs().CloseForm(Form);
}

void GlobalSettings::cmdResetAll_Click() {
    if (!m_app.AskYesNo(u"Are you sure you want to continue?"_s))
        return;
    for (const QString& section : {u"General"_s, u"Field Entries"_s})
        m_app.platform.Settings().DeleteSetting(section);
    CloseBehindReset(
        u"Quillmere needs to be restarted for the settings to take effect.\n\nQuillmere will now close."_s,
        {});
}

void GlobalSettings::mnuResetSettings_Click() {
    const QString title = u"Reset Settings"_s;
    if (!m_app.AskYesNo(u"Are you sure you want to reset all your Quillmere settings?"_s, title))
        return;
    modRegistry(m_app.platform.Settings()).DeleteKey(modRegistry::Root::CurrentUser, modRegistry::AppBranch);
    CloseBehindReset(u"Please restart the program for the changes to take effect.\n\nQLM will now close."_s,
                     title);
}

// The exit would write everything back, and a run that goes on after the message its counts.
void GlobalSettings::CloseBehindReset(const QString& message, const QString& title) {
    m_app.Get<SettingsFields>().Sync();
    m_app.state.blnNoSaveOnExit = true;
    m_app.Get<StopResume>().StopAll(StopReason::Closing);
    m_app.ShowMessage(message, title);
    m_app.Close();
}

} // namespace qlm
