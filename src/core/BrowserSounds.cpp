// SPDX-License-Identifier: MIT
#include "core/BrowserSounds.h"

#include "core/App.h"
#include "core/Registry.h"
#include "core/SettingsFields.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
const QString SoundPath = u"AppEvents\\Schemes\\Apps\\Explorer\\Navigating"_s;
const QString SoundValue = u".Current"_s;
const QString General = u"General"_s;
const QString KeptKey = u"OldIESoundValue"_s;
constexpr auto MenuItem = "mnuDisableBrowserSounds"_L1;
} // namespace

BrowserSounds::BrowserSounds(App& app) : m_app(app) {
    app.commands.Add(u"mnuDisableBrowserSounds_Click"_s, [this] { mnuDisableBrowserSounds_Click(); });
}

QString BrowserSounds::Sound() const {
    return modRegistry(m_app.platform.Settings())
        .ReadString(modRegistry::Root::CurrentUser, SoundPath, SoundValue, {});
}

void BrowserSounds::SetSound(const QString& sound) {
    modRegistry(m_app.platform.Settings())
        .WriteString(modRegistry::Root::CurrentUser, SoundPath, SoundValue, sound);
    m_app.Get<SettingsFields>().Sync();
}

void BrowserSounds::Silence() {
    if (!m_app.controls.Ticked(MenuItem))
        return;
    const QString sound = Sound();
    // Empty already: what an earlier run has kept must not be lost.
    if (sound.isEmpty())
        return;
    m_taken = sound;
    m_app.platform.Settings().SaveSetting(General, KeptKey, sound);
    SetSound({});
}

void BrowserSounds::Restore() {
    // A reset of the settings takes the kept sound with it; the user's own must not go with it.
    const QString kept = m_app.platform.Settings().GetSetting(General, KeptKey, m_taken);
    if (!kept.isEmpty())
        SetSound(kept);
}

void BrowserSounds::mnuDisableBrowserSounds_Click() {
    const bool silence = !m_app.controls.Ticked(MenuItem);
    m_app.controls.SetTicked(MenuItem, silence);
    if (silence)
        Silence();
    else
        Restore();
}

} // namespace qlm
