// SPDX-License-Identifier: MIT
#include "schedule/AutoStart.h"

#include "campaigns/SendRuns.h"
#include "core/App.h"
#include "core/SettingsFields.h"
#include "core/Text.h"

#include <stdexcept>
#include <utility>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString FieldEntries = u"Field Entries"_s;

// A setting, the control that keeps it, and what the form shows where nothing is stored.
struct Field {
    QLatin1StringView kept;
    QLatin1StringView shown;
    const char16_t* first;
};

constexpr Field Hour{"txtTimeHH"_L1, "frmAutoStart.txtTimeHH"_L1, u"hh"};
constexpr Field Minutes{"txtTimeMM"_L1, "frmAutoStart.txtTimeMM"_L1, u"00"};
constexpr Field Half{"cboAMPM"_L1, "frmAutoStart.cboAMPM"_L1, u"AM"};
constexpr Field Action{"cboAutostartAction"_L1, "frmAutoStart.cboAutostartAction"_L1, u"Friend Requests"};
constexpr Field Texts[] = {Hour, Minutes, Half, Action};

constexpr auto On = "frmAutoStart.optAutoStartOn"_L1;
constexpr auto Off = "frmAutoStart.optAutoStartOff"_L1;

struct Start {
    QLatin1StringView action;
    QLatin1StringView button;
};

constexpr Start Starts[] = {
    {"Friend Requests"_L1, "piccmdAddFriends"_L1},
    {"Messages"_L1, "picCmdMsgSend"_L1},
    {"Comments"_L1, "picCmdComSend"_L1},
    {"Bulletins"_L1, "picCmdBulSend"_L1},
    {"Accept Friend Requests"_L1, "picCmdAutoApprove"_L1},
};

QString Stored(const App& app, const Field& field) {
    const QString text =
        app.platform.Settings().GetSetting(FieldEntries, QString(field.kept), QString()).trimmed();
    return text.isEmpty() ? QString::fromUtf16(field.first) : text;
}

// A time of the 12-hour clock; 12:00 AM is midnight.
QTime TimeOf(const QString& hour, const QString& minutes, const QString& half) {
    const int hours = IsDigits(hour) ? hour.toInt() : -1;
    if (hours < 0 || hours > 12 || !IsDigits(minutes))
        return {};
    return QTime(hours % 12 + (half.compare(u"PM"_s, Qt::CaseInsensitive) == 0 ? 12 : 0), minutes.toInt());
}

QTime MinuteOf(const QDateTime& moment) {
    return QTime(moment.time().hour(), moment.time().minute());
}

} // namespace

AutoStart::AutoStart(App& app) : m_app(app) {
    Commands& commands = app.commands;
    commands.Add(u"mnuAutoStart_Click"_s, [this] { mnuAutoStart_Click(); });
    for (const QLatin1StringView option : {On, Off})
        commands.Add(QString(option) + u"_Click"_s, [this] { EnableFields(); });
    commands.Add(u"frmAutoStart.cmdOK_Click"_s, "cmdOK_Click - frmAutoStart", [this] { cmdOK_Click(); });
    commands.Add(u"frmAutoStart.cmdCancel_Click"_s,
                 [this] { m_app.platform.Dialogs().CloseForm(u"frmAutoStart"_s); });
    app.timers->tmrAutoStart.SetHandler(
        [this] { m_app.diagnostics.Trap("tmrAutoStart_Timer", [this] { tmrAutoStart_Timer(); }); });
}

void AutoStart::mnuAutoStart_Click() {
    m_app.diagnostics.Trap("Form_Load - frmAutoStart", [this] { LoadFields(); });
    m_app.platform.Dialogs().ShowModal(u"frmAutoStart"_s);
    ReadSettings();
}

void AutoStart::LoadFields() {
    for (const Field& field : Texts)
        m_app.controls.SetText(field.shown, Stored(m_app, field));
    const bool isOn =
        ToBoolean(m_app.platform.Settings().GetSetting(FieldEntries, u"optAutoStartOn"_s, u"False"_s));
    m_app.controls.SetTicked(isOn ? On : Off, true);
    EnableFields();
}

void AutoStart::EnableFields() {
    for (const Field& field : Texts)
        m_app.controls.SetEnabled(field.shown, m_app.controls.Ticked(On));
}

void AutoStart::cmdOK_Click() {
    if (!FieldsAreValid())
        return;
    Store();
    m_app.platform.Dialogs().CloseForm(u"frmAutoStart"_s);
}

bool AutoStart::FieldsAreValid() {
    if (!m_app.controls.Ticked(On))
        return true;
    for (const auto& [field, message] : {std::pair{Hour, u"Please enter a valid hour value"_s},
                                         std::pair{Minutes, u"Please enter a valid minutes value"_s}}) {
        if (IsNumeric(m_app.controls.Text(field.shown)))
            continue;
        m_app.ShowMessage(message);
        m_app.controls.SetFocus(field.shown);
        return false;
    }
    return true;
}

// The controls that keep it are saved with all others: a form that is open or was canceled changes nothing.
void AutoStart::Store() {
    SettingsStore& settings = m_app.platform.Settings();
    for (const Field& field : Texts) {
        m_app.controls.SetText(field.kept, m_app.controls.Text(field.shown).trimmed());
        settings.SaveSetting(FieldEntries, QString(field.kept), m_app.controls.Text(field.kept));
    }
    const bool isOn = m_app.controls.Ticked(On);
    m_app.controls.SetTicked("optAutoStartOn"_L1, isOn);
    settings.SaveSetting(FieldEntries, u"optAutoStartOn"_s, FromBoolean(isOn));
    settings.SaveSetting(FieldEntries, u"optAutoStartOff"_s, FromBoolean(!isOn));
    m_app.Get<SettingsFields>().Sync();
}

void AutoStart::ReadSettings() {
    const QTime before = m_time;
    m_isOn = ToBoolean(m_app.platform.Settings().GetSetting(FieldEntries, u"optAutoStartOn"_s, u"False"_s));
    m_action = Stored(m_app, Action);
    m_time = TimeOf(Stored(m_app, Hour), Stored(m_app, Minutes), Stored(m_app, Half));
    if (m_time != before)
        m_lastStart = {};
    if (!m_lastTick.isValid())
        m_lastTick = m_app.Pump().Now();
    ShowStart();
    if (m_isOn && !m_time.isValid())
        throw std::invalid_argument("The time of the auto start is no time of day");
}

void AutoStart::ShowStart() {
    const QString time = m_time.toString(u"h:mm AP"_s);
    m_app.controls.SetText("lblAutoStart"_L1, !m_isOn            ? QString()
                                              : m_time.isValid() ? u"starts at "_s + time
                                                                 : u"Auto Start has no valid time"_s);
    m_app.controls.SetToolTip("lblAutoStart"_L1, m_action);
}

// In its minute. One that the day lacks, the clock having been put forward, comes right after the gap.
bool AutoStart::IsDue(const QDateTime& before, const QDateTime& now) const {
    if (MinuteOf(now) == m_time)
        return true;
    return now.offsetFromUtc() > before.offsetFromUtc() && before.date() == now.date() &&
           MinuteOf(before) < m_time && m_time < MinuteOf(now);
}

// Also while its last words are read: what it saves no more is not to be changed either.
bool AutoStart::IsEnding() const {
    return m_app.state.blnClosing || m_app.state.blnNoSaveOnExit;
}

void AutoStart::tmrAutoStart_Timer() {
    const QDateTime now = m_app.Pump().Now();
    const QDateTime before = std::exchange(m_lastTick, now);
    if (!m_isOn || !m_time.isValid() || IsEnding() || m_lastStart == now.date() || !IsDue(before, now))
        return;
    m_lastStart = now.date();
    for (const Start& start : Starts)
        if (m_action == start.action)
            m_app.commands.Run(QString(start.button) + u"_Click"_s, SendRuns::ByClock);
}

} // namespace qlm
