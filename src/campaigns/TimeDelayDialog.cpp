// SPDX-License-Identifier: MIT
#include "campaigns/TimeDelayDialog.h"

#include "core/App.h"
#include "core/Integer16.h"
#include "core/SettingsFields.h"
#include "core/Text.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct DelayField {
    QLatin1StringView name;
    QString key;
};

constexpr auto FromMinutes = "frmTimeDelay.txtMinutes"_L1;
constexpr auto FromSeconds = "frmTimeDelay.txtSeconds"_L1;
constexpr auto ToMinutes = "frmTimeDelay.txtMinutes2"_L1;
constexpr auto ToSeconds = "frmTimeDelay.txtSeconds2"_L1;

const std::vector<DelayField>& DelayFields() {
    static const std::vector<DelayField> fields{
        {FromMinutes, u"txtTimeDelayMinutes"_s},
        {FromSeconds, u"txtTimeDelaySeconds"_s},
        {ToMinutes, u"txtTimeDelayMinutes2"_s},
        {ToSeconds, u"txtTimeDelaySeconds2"_s},
    };
    return fields;
}

constexpr auto ProblemLabel = "frmTimeDelay.lblProblem"_L1;

bool IsNumberFromZero(const QString& text) {
    return IsNumeric(text) && ToLong(text).value_or(0) >= 0;
}

qint16 ToInteger(const QString& text) {
    if (!IsNumeric(text))
        throw std::invalid_argument("Type mismatch");
    // A number beyond 32 bits is beyond 16 bits too.
    return InInteger(ToLong(text).value_or(std::numeric_limits<qint32>::max()));
}

} // namespace

qint16 SecondsInInteger(const QString& minutes, const QString& seconds) {
    return InInteger(InInteger(ToInteger(minutes) * 60) + ToInteger(seconds));
}

TimeDelayDialog::TimeDelayDialog(App& app) : m_app(app) {
    app.commands.Add(u"frmTimeDelay.cmdOK_Click"_s, "cmdOK_Click - frmTimeDelay", [this] { cmdOK_Click(); });
    app.commands.Add(u"frmTimeDelay.cmdCancel_Click"_s,
                     [this] { m_app.platform.Dialogs().CloseForm(u"frmTimeDelay"_s); });
    app.commands.Add(u"frmTimeDelay.txtMinutes_LostFocus"_s, [this] { KeepNumeric(FromMinutes); });
    app.commands.Add(u"frmTimeDelay.txtSeconds_LostFocus"_s, [this] { KeepNumeric(FromSeconds); });
}

void TimeDelayDialog::Show() {
    m_app.diagnostics.Trap("Form_Load - frmTimeDelay", [this] { LoadFields(); });
    m_app.platform.Dialogs().ShowModal(u"frmTimeDelay"_s);
}

void TimeDelayDialog::LoadFields() {
    Controls& controls = m_app.controls;
    controls.SetText(ProblemLabel, {});
    for (const DelayField& field : DelayFields())
        controls.SetText(field.name,
                         m_app.platform.Settings().GetSetting(u"Field Entries"_s, field.key, u"0"_s));
    if (controls.Text(ToMinutes) == u"0"_s && controls.Text(ToSeconds) == u"0"_s) {
        controls.SetText(ToMinutes, controls.Text(FromMinutes));
        controls.SetText(ToSeconds, controls.Text(FromSeconds));
    }
}

void TimeDelayDialog::KeepNumeric(QLatin1StringView field) {
    if (!IsNumeric(m_app.controls.Text(field)))
        m_app.controls.SetText(field, u"0"_s);
}

std::nullopt_t TimeDelayDialog::Refuse(QLatin1StringView field, const QString& problem) {
    m_app.controls.SetText(ProblemLabel, problem);
    m_app.controls.SetFocus(field);
    return std::nullopt;
}

std::optional<qint16> TimeDelayDialog::Seconds(QLatin1StringView minutesField,
                                               QLatin1StringView secondsField) {
    const QString minutes = m_app.controls.Text(minutesField);
    const QString seconds = m_app.controls.Text(secondsField);
    for (const QLatin1StringView field : {minutesField, secondsField})
        if (!IsNumberFromZero(m_app.controls.Text(field)))
            return Refuse(field, u"Please enter a number, 0 or more."_s);
    QLatin1StringView tooLong = minutesField;
    try {
        SecondsInInteger(minutes, u"0"_s);
        tooLong = secondsField;
        return SecondsInInteger(minutes, seconds);
    } catch (const std::overflow_error&) {
        return Refuse(tooLong, u"The longest time is 546 minutes and 7 seconds."_s);
    }
}

void TimeDelayDialog::cmdOK_Click() {
    // The Enter key presses OK without the field losing the focus.
    KeepNumeric(FromMinutes);
    KeepNumeric(FromSeconds);
    m_app.controls.SetText(ProblemLabel, {});
    const std::optional<qint16> from = Seconds(FromMinutes, FromSeconds);
    const std::optional<qint16> to = from ? Seconds(ToMinutes, ToSeconds) : std::nullopt;
    if (!from || !to)
        return;
    if (*to < *from) {
        m_app.ShowMessage(u"The second time value is smaller than the first"_s);
        return;
    }
    Save(*from, *to);
    m_app.platform.Dialogs().CloseForm(u"frmTimeDelay"_s);
}

void TimeDelayDialog::Save(qint16 from, qint16 to) {
    SettingsStore& settings = m_app.platform.Settings();
    settings.SaveSetting(u"General"_s, u"TimeDelayFrom"_s, QString::number(from));
    settings.SaveSetting(u"General"_s, u"TimeDelayTo"_s, QString::number(to));
    for (const DelayField& field : DelayFields())
        settings.SaveSetting(u"Field Entries"_s, field.key, m_app.controls.Text(field.name));
    m_app.Get<SettingsFields>().Sync();
}

} // namespace qlm
