// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>

namespace qlm {

class App;

// frmTimeDelay: the bounds of the time delay in minutes and seconds. Stores them on OK; its caller reads them
// anew.
class TimeDelayDialog {
public:
    explicit TimeDelayDialog(App& app);

    void Show();

private:
    void LoadFields();
    void cmdOK_Click();
    void KeepNumeric(QLatin1StringView field);
    // Nothing for values beyond the rule, which are told at their field.
    std::optional<qint16> Seconds(QLatin1StringView minutesField, QLatin1StringView secondsField);
    std::nullopt_t Refuse(QLatin1StringView field, const QString& problem);
    void Save(qint16 from, qint16 to);

    App& m_app;
};

// minutes × 60 + seconds in 16-bit arithmetic. Throws "Type mismatch" for a text that is no number and
// "Overflow" for anything beyond 32767.
qint16 SecondsInInteger(const QString& minutes, const QString& seconds);

} // namespace qlm
