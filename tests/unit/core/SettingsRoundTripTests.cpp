// SPDX-License-Identifier: MIT
// Every input of the controls' table through the ends of the program: exit, another account, the two resets.
#include "SettingsTest.h"
#include "core/SettingsFields.h"
#include "program/MainForm.h"

#include <QMap>

namespace qlm {
namespace {

// What an input shows, ticks as "True" and "False".
using Values = QMap<QByteArray, QString>;

constexpr int MostChoices = 5; // options in the largest group

class SettingsRoundTripTest : public SettingsTest {
protected:
    static bool IsInput(const ControlRow& row) { return row.kind[0] != 0; }
    static bool IsOfAccount(const ControlRow& row) {
        return IsInput(row) && row.kind != QByteArray("General") && row.kind != QByteArray("Field Entries");
    }

    Values Shown() {
        Values shown;
        for (const ControlRow& row : Controls::Table())
            if (IsInput(row))
                shown[row.name] = Show(QLatin1StringView(row.name));
        return shown;
    }
    QString Show(QLatin1StringView name) {
        const Control& control = Inputs()[name];
        if (!IsTick(control))
            return control.text;
        return control.ticked ? u"True"_s : u"False"_s;
    }
    // Gives every input another value than it starts with, and of each group the option of that number.
    void ChangeAll(int choice) {
        QMap<QByteArray, int> options;
        for (const ControlRow& row : Controls::Table()) {
            const QLatin1StringView name(row.name);
            if (!IsInput(row))
                continue;
            if (row.group[0] && options[row.group]++ == choice)
                Inputs().SetTicked(name, true);
            else if (!row.group[0] && IsTick(Inputs()[name]))
                Inputs().SetTicked(name, !row.ticked);
            else if (!row.group[0])
                Inputs().SetText(name, OtherText(row));
        }
    }
    void Exit() { app->Get<MainForm>().Form_Unload(); }
    void ResetBy(const char* command) {
        dialogs.answers = {Dialogs::Answer::Yes};
        app->commands.Run(QString::fromLatin1(command));
        Exit();
    }
};

TEST_F(SettingsRoundTripTest, WhatStandsAtTheExitStandsThereAtTheNextStart) {
    for (const bool shared : {true, false})
        for (int choice = 0; choice < MostChoices; ++choice) {
            world.settings = {};
            Share(shared);
            Restart();
            const Values before = Shown();
            ChangeAll(choice);
            const Values changed = Shown();
            Exit();
            Restart();
            const Values after = Shown();
            for (auto it = changed.begin(); it != changed.end(); ++it) {
                // "Until I close QLM" has come to its end; then its "Off" is what shows.
                const QByteArray name = it.key();
                const bool ofSession = name.startsWith("mnuMultipleAccounts") && choice == 1;
                EXPECT_EQ(after[name], ofSession ? before[name] : it.value())
                    << name.constData() << " shared " << shared << " choice " << choice;
            }
        }
}

TEST_F(SettingsRoundTripTest, ChangingAllReachesEveryInput) {
    Restart();
    Values seen = Shown();
    const Values start = seen;
    QSet<QByteArray> changed;
    for (int choice = 0; choice < MostChoices; ++choice) {
        ChangeAll(choice);
        const Values now = Shown();
        for (auto it = now.begin(); it != now.end(); ++it)
            if (it.value() != start[it.key()])
                changed.insert(it.key());
    }
    for (const QByteArray& name : start.keys())
        EXPECT_TRUE(changed.contains(name)) << name.constData();
    EXPECT_GT(start.size(), 90);
}

TEST_F(SettingsRoundTripTest, AFlagThatIsOffHidesTheInputsOfItsKindsFromAnotherAccount) {
    Restart();
    const Values start = Shown();
    for (const GlobalFlag& flag : SettingsFields::GlobalFlags()) {
        world.settings = {};
        world.settings.SaveSetting(General, QString::fromLatin1(flag.key), u"False"_s);
        Restart();
        ChangeAll(0);
        const Values ofA = Shown();
        Exit();
        Restart(u"b@example.com"_s);
        const Values ofB = Shown();
        for (const ControlRow& row : Controls::Table()) {
            if (!IsOfAccount(row))
                continue;
            const bool own = std::any_of(flag.kinds.begin(), flag.kinds.end(),
                                         [&row](const char* kind) { return QByteArray(kind) == row.kind; });
            EXPECT_EQ(ofB[row.name], own ? start[row.name] : ofA[row.name]) << flag.key << ' ' << row.name;
        }
        Exit();
        Restart();
        const Values again = Shown();
        for (const ControlRow& row : Controls::Table())
            if (IsOfAccount(row)) {
                EXPECT_EQ(again[row.name], ofA[row.name]) << flag.key << ' ' << row.name;
            }
    }
}

TEST_F(SettingsRoundTripTest, BehindAResetEveryInputOfEveryAccountStartsAnew) {
    for (const char* command : {"mnuResetSettings_Click", "frmGlobalSettings.cmdResetAll_Click"}) {
        world.settings = {};
        Restart();
        const Values start = Shown();
        Share(false);
        for (const QString& account : {u"a@example.com"_s, u"b@example.com"_s}) {
            Restart(account);
            ChangeAll(0);
            Exit();
        }
        Restart(u"b@example.com"_s);
        ChangeAll(1);
        ResetBy(command);
        for (const QString& account : {u"a@example.com"_s, u"b@example.com"_s}) {
            Restart(account);
            const Values shown = Shown();
            for (auto it = start.begin(); it != start.end(); ++it)
                EXPECT_EQ(shown[it.key()], it.value()) << command << ' ' << it.key().constData();
            EXPECT_TRUE(app->Get<SettingsFields>().UsesGlobal(u"Log"_s));
        }
    }
}

} // namespace
} // namespace qlm
