// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

namespace qlm {

class App;

// Starts one campaign by itself at a time of the day.
class AutoStart {
public:
    explicit AutoStart(App& app);

    // What the settings hold; at start-up, and when the form has been closed.
    void ReadSettings();

private:
    void mnuAutoStart_Click();
    void LoadFields();
    void EnableFields();
    void cmdOK_Click();
    bool FieldsAreValid();
    void Store();
    void tmrAutoStart_Timer();
    bool IsDue(const QDateTime& before, const QDateTime& now) const;
    bool IsEnding() const;
    void ShowStart();

    App& m_app;
    bool m_isOn = false;
    QTime m_time; // invalid where the settings hold none
    QString m_action;
    QDateTime m_lastTick;
    QDate m_lastStart;
};

} // namespace qlm
