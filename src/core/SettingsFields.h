// SPDX-License-Identifier: MIT
#pragma once

#include "core/WindowPlace.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <functional>
#include <vector>

namespace qlm {

class App;
struct ControlRow;

// A global-or-per-account flag of section "General" and the kinds of data it governs.
struct GlobalFlag {
    const char* key;
    const char* checkBox; // on frmGlobalSettings
    std::vector<const char*> kinds;
};

// The load and save paths of the settings, driven by the table of controls.
class SettingsFields {
public:
    explicit SettingsFields(App& app) : m_app(app) {}

    static const std::vector<GlobalFlag>& GlobalFlags();

    void RestoreGeneralPrevious();
    // After a login: the daily counters.
    void RestoreAccountSettings();
    // After a login and on account switch: the global flags, every input, the lists.
    void RestoreAccountSpecificFields();
    // While the account is still the current one: every input and, if wanted, the lists.
    bool SaveListsAndSettings();
    void SaveGeneral();
    // Makes everything saved so far durable. False from the first failure on, which is reported.
    bool Sync();

    // For a list kind the folder below ProgramFolder, created; for a settings kind the suffix of "Field
    // Entries". Empty without an account or when the kind is shared.
    QString AccountDataPath(const QString& kind);
    // "Field Entries" with the suffix of the kind.
    QString SectionOf(const QString& kind);
    bool UsesGlobal(const QString& kind) const;
    bool GlobalFlagSet(const GlobalFlag& flag) const;
    // Sets the flags whose keys are named and clears the others, in the store too. What stands in the inputs
    // is saved where it belonged until now; the inputs of a kind that changes its place are read from there.
    void ChangeGlobalFlags(const QSet<QString>& keys);

    // What an account has outside of the inputs. Set by the program.
    struct AccountStores {
        std::function<void()> restoreCounters;
        std::function<void()> restoreLists; // what fills the tabs from files
        std::function<void()> restoreGathered;
        std::function<bool()> saveGathered; // false when it could not be written
    };
    AccountStores stores;

    // Set by the window while it is there.
    std::function<WindowPlace()> getPlace;
    std::function<void(const WindowPlace&)> setPlace;

private:
    void RestoreControl(const QString& section, const ControlRow& row);
    void SaveControl(const QString& section, const ControlRow& row);
    void RestoreKind(QLatin1StringView kind);
    void SetStartingValue(const ControlRow& row);
    void RestoreWindowPlace();
    void EndSessionChains();
    void SettleFields();
    bool IsStored(const QString& section, const ControlRow& row) const;

    App& m_app;
    QHash<QString, bool> m_flags; // the blnUseGlobal... flags; true until read
    // The inputs show the account in use. Not so between a change of account and its restoring: what is saved
    // then would be another's.
    bool m_restored = false;
    bool m_cannotSave = false;
};

} // namespace qlm
