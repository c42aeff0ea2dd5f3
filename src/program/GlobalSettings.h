// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;

// frmGlobalSettings, which says what all accounts share, and the two ways of starting over with no settings
// at all.
class GlobalSettings {
public:
    explicit GlobalSettings(App& app);

private:
    void mnuGlobalSettings_Click();
    void cmdClose_Click();
    void cmdResetAll_Click();
    void mnuResetSettings_Click();
    void CloseBehindReset(const QString& message, const QString& title);

    App& m_app;
};

} // namespace qlm
