// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;

// Silences the desktop's click of the many navigations while the program runs. The user's own sound is kept
// in section "General" and put back at the end. A store without such a sound has nothing to silence.
class BrowserSounds {
public:
    explicit BrowserSounds(App& app);

    // While mnuDisableBrowserSounds is ticked: keeps the present sound and sets it empty.
    void Silence();
    // Puts the kept sound back.
    void Restore();

private:
    void mnuDisableBrowserSounds_Click();
    QString Sound() const;
    void SetSound(const QString& sound);

    App& m_app;
    QString m_taken; // by this run; empty when it has taken none
};

} // namespace qlm
