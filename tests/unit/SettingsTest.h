// SPDX-License-Identifier: MIT
#pragma once

#include "SimulatedProgram.h"
#include "core/SettingsFields.h"
#include "program/MainForm.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

inline const QString General = u"General"_s;
inline const QString Shared = u"Field Entries"_s;
inline const QString OwnOfA = u"Field Entries\\a@example.com"_s;

// A program that starts and ends on one store.
class SettingsTest : public SimulatedProgram {
protected:
    SettingsTest() {
        world.http.responder = [](const QString&) { return std::optional(u"2009-06-02"_s); };
    }
    // The program ends and starts again on the same store; the account is restored.
    void Restart(const QString& account = u"a@example.com"_s) {
        app.reset();
        platform.emplace(world, dialogs);
        app.emplace(*platform);
        app->state.ProgramFolder = world.installationFolder;
        app->state.DataFolder = world.dataFolder;
        app->state.ErrorLogPath = app->DataFile(u"Error.log"_s);
        app->state.ServerBaseURL = u"http://product.example.com"_s;
        app->Get<SettingsFields>().RestoreGeneralPrevious();
        Switch(account);
    }
    void Switch(const QString& account) {
        app->state.AccountEmail = account;
        app->Get<SettingsFields>().RestoreAccountSettings();
        app->Get<SettingsFields>().RestoreAccountSpecificFields();
    }
    void Save() {
        app->Get<SettingsFields>().SaveListsAndSettings();
        app->Get<SettingsFields>().SaveGeneral();
    }
    void Share(bool shared) {
        for (const GlobalFlag& flag : SettingsFields::GlobalFlags())
            world.settings.SaveSetting(General, QString::fromLatin1(flag.key),
                                       shared ? u"True"_s : u"False"_s);
    }
    QString Stored(const QString& section, const QString& key) {
        return world.settings.GetSetting(section, key, u"none"_s);
    }
    static bool IsTick(const Control& control) {
        return control.type == ControlType::CheckBox || control.type == ControlType::OptionButton ||
               control.type == ControlType::MenuItem;
    }
    Controls& Inputs() { return app->controls; }
    // Such as the control may hold and doesn't start with.
    static QString OtherText(const ControlRow& row) {
        return row.choices ? row.choices().at(1) : u"other "_s + QLatin1StringView(row.name);
    }
};

} // namespace qlm
