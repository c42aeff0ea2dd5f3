// SPDX-License-Identifier: MIT
#include "core/BrowserSounds.h"

#include "core/App.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
const QString SoundSection = u"AppEvents\\Schemes\\Apps\\Explorer\\Navigating"_s;
const QString SoundKey = u".Current"_s;
const QString General = u"General"_s;
const QString KeptKey = u"OldIESoundValue"_s;
constexpr auto MenuItem = "mnuDisableBrowserSounds"_L1;
} // namespace

BrowserSounds::BrowserSounds(App& app) : m_app(app) {
    app.commands.Add(u"mnuDisableBrowserSounds_Click"_s, [this] { mnuDisableBrowserSounds_Click(); });
}

void BrowserSounds::Silence() {
    if (!m_app.controls.Ticked(MenuItem))
        return;
    SettingsStore& settings = m_app.platform.Settings();
    const QString sound = settings.GetSetting(SoundSection, SoundKey, {});
    // Empty already: what an earlier run has kept must not be lost.
    if (sound.isEmpty())
        return;
    settings.SaveSetting(General, KeptKey, sound);
    settings.SaveSetting(SoundSection, SoundKey, {});
    settings.Sync();
}

void BrowserSounds::Restore() {
    SettingsStore& settings = m_app.platform.Settings();
    const QString kept = settings.GetSetting(General, KeptKey, {});
    if (kept.isEmpty())
        return;
    settings.SaveSetting(SoundSection, SoundKey, kept);
    settings.Sync();
}

void BrowserSounds::mnuDisableBrowserSounds_Click() {
    m_app.diagnostics.Trap("mnuDisableBrowserSounds_Click", [this] {
        const bool silence = !m_app.controls.Ticked(MenuItem);
        m_app.controls.SetTicked(MenuItem, silence);
        if (silence)
            Silence();
        else
            Restore();
    });
}

} // namespace qlm
