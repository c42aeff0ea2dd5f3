// SPDX-License-Identifier: MIT
#include "core/App.h"
#include "core/SettingsFields.h"
#include "core/Text.h"
#include "gather/ProfileFilters.h"

#include <QHash>
#include <limits>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString FormPrefix = u"frmFilters."_s;
const QString FilterKind = u"Filter"_s;

struct OptionField {
    QLatin1StringView control;
    bool RunState::*field;
};

// The options and the fields that the filter test reads.
const std::vector<OptionField>& OptionFields() {
    static const std::vector<OptionField> fields{
        {"optFilterOff"_L1, &RunState::blnFilterTypeOff},
        {"optFilterBands"_L1, &RunState::blnFilterBands},
        {"optFilterComedy"_L1, &RunState::blnFilterComedy},
        {"optFilterFilm"_L1, &RunState::blnFilterFilm},
        {"optFilterPeople"_L1, &RunState::blnFilterPeople},
        {"optFilterGenderOff"_L1, &RunState::blnFilterGenderOff},
        {"optFilterMale"_L1, &RunState::blnFilterMale},
        {"optFilterFemale"_L1, &RunState::blnFilterFemale},
        {"optFilterLocationOff"_L1, &RunState::blnFilterLocationOff},
        {"optFilterLocation"_L1, &RunState::blnFilterLocation},
        {"optFilterWhenGathering"_L1, &RunState::optFilterWhenGathering},
        {"optFilterWhenSending"_L1, &RunState::optFilterWhenSending},
        {"optFilterAgeOff"_L1, &RunState::blnFilterAgeOff},
        {"optFilterAgeOn"_L1, &RunState::blnFilterAgeOn},
        {"optFilterLastLoginOff"_L1, &RunState::blnFilterLastLoginOff},
        {"optFilterOnlineNow"_L1, &RunState::optFilterOnlineNow},
        {"optFilterLastLoginOn"_L1, &RunState::blnFilterLastLoginOn},
    };
    return fields;
}

void TakeOver(RunState& state, const Controls& controls) {
    for (const OptionField& option : OptionFields())
        state.*option.field = controls.Ticked(option.control);
    state.strFilterLocation = controls.Text("txtFilterLocation"_L1);
    state.strFilterAge1 = controls.Text("cboFilterAge1"_L1);
    state.strFilterAge2 = controls.Text("cboFilterAge2"_L1);
    const qint32 days = ToLong(controls.Text("txtFilterLastLoginDays"_L1)).value_or(0);
    state.intFilterLastLoginDays = static_cast<qint16>(
        std::clamp<qint32>(days, std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max()));
}

std::vector<const ControlRow*> FilterRows() {
    std::vector<const ControlRow*> rows;
    for (const ControlRow& row : Controls::Table())
        if (FilterKind == QLatin1StringView(row.kind))
            rows.push_back(&row);
    return rows;
}

QString KeyOf(const ControlRow& row) {
    return QString::fromLatin1(row.key[0] ? row.key : row.name);
}

QString ValueOf(const Control& control) {
    return control.type == ControlType::OptionButton ? FromBoolean(control.ticked) : control.text;
}

void SetValueOf(Controls& controls, const Control& control, const QString& value) {
    if (control.type == ControlType::OptionButton)
        controls.SetTicked(control.name, ToBoolean(value));
    else if (control.type != ControlType::ComboBox || control.items.contains(value))
        controls.SetText(control.name, value);
}

} // namespace

// Whoever changes an option, the window or the restoring of an account's settings: the fields follow.
void ProfileFilters::FollowOptions() {
    TakeOver(m_app.state, m_app.controls);
    m_app.controls.AddListener([&app = m_app](const Control& control, Controls::Change, int) {
        static const QHash<QLatin1StringView, bool> watched = [] {
            QHash<QLatin1StringView, bool> names;
            for (const ControlRow* row : FilterRows())
                names.insert(QLatin1StringView(row->name), true);
            return names;
        }();
        if (watched.contains(control.name))
            TakeOver(app.state, app.controls);
    });
}

void ProfileFilters::RegisterForm() {
    Commands& commands = m_app.commands;
    commands.Add(u"picFilterOptions_Click"_s, [this] { picFilterOptions_Click(); });
    commands.Add(u"frmFilters.cmdOK_Click"_s, "cmdOK_Click", [this] { frmFilters_cmdOK_Click(); });
    commands.Add(u"frmFilters.cmdCancel_Click"_s,
                 [this] { m_app.platform.Dialogs().CloseForm(u"frmFilters"_s); });
    commands.Add(u"frmFilters.optFilterBands_Click"_s, [this] { EnablePersonFilters(false); });
    for (const QLatin1StringView type : {"Comedy"_L1, "Film"_L1, "People"_L1, "Off"_L1})
        commands.Add(u"frmFilters.optFilter"_s + type + u"_Click"_s, [this] { EnablePersonFilters(true); });
    commands.Add(u"frmFilters.optFilterAgeOn_Click"_s, [this] { EnableAges(true); });
    commands.Add(u"frmFilters.optFilterAgeOff_Click"_s, [this] { EnableAges(false); });
}

void ProfileFilters::EnablePersonFilters(bool enable) {
    for (const QLatin1StringView name :
         {"frmFilters.optFilterMale"_L1, "frmFilters.optFilterFemale"_L1, "frmFilters.optFilterGenderOff"_L1,
          "frmFilters.optFilterAgeOff"_L1, "frmFilters.optFilterAgeOn"_L1})
        m_app.controls.SetEnabled(name, enable);
    EnableAges(enable);
}

void ProfileFilters::EnableAges(bool enable) {
    m_app.controls.SetEnabled("frmFilters.cboFilterAge1"_L1, enable);
    m_app.controls.SetEnabled("frmFilters.cboFilterAge2"_L1, enable);
}

void ProfileFilters::picFilterOptions_Click() {
    frmFilters_Load();
    m_app.platform.Dialogs().ShowModal(u"frmFilters"_s);
    ReadBack();
    if (AllOff())
        m_app.controls.SetTicked("optFilterWhenSending"_L1, true);
}

void ProfileFilters::frmFilters_Load() {
    const QString section = m_app.Get<SettingsFields>().SectionOf(FilterKind);
    for (const ControlRow* row : FilterRows()) {
        const Control& present = m_app.controls[QLatin1StringView(row->name)];
        const QByteArray name = (FormPrefix + present.name).toLatin1();
        const Control& copy = m_app.controls[QLatin1StringView(name)];
        SetValueOf(m_app.controls, copy,
                   m_app.platform.Settings().GetSetting(section, KeyOf(*row), ValueOf(present)));
    }
    const bool bands = m_app.controls.Ticked("frmFilters.optFilterBands"_L1);
    EnablePersonFilters(!bands);
    EnableAges(!bands && m_app.controls.Ticked("frmFilters.optFilterAgeOn"_L1));
}

void ProfileFilters::frmFilters_cmdOK_Click() {
    const QString days = m_app.controls.Text("frmFilters.txtFilterLastLoginDays"_L1).trimmed();
    m_app.controls.SetText("frmFilters.txtFilterLastLoginDays"_L1, days);
    if (!IsNumeric(days)) {
        m_app.ShowMessage(u"Please enter a valid number for the Last Login filter"_s);
        m_app.controls.SetFocus("frmFilters.txtFilterLastLoginDays"_L1);
        return;
    }
    const QString section = m_app.Get<SettingsFields>().SectionOf(FilterKind);
    for (const ControlRow* row : FilterRows()) {
        const QByteArray name = (FormPrefix + QLatin1StringView(row->name)).toLatin1();
        m_app.platform.Settings().SaveSetting(section, KeyOf(*row),
                                              ValueOf(m_app.controls[QLatin1StringView(name)]));
    }
    m_app.Get<SettingsFields>().Sync();
    m_app.platform.Dialogs().CloseForm(u"frmFilters"_s);
}

void ProfileFilters::ReadBack() {
    const QString section = m_app.Get<SettingsFields>().SectionOf(FilterKind);
    for (const ControlRow* row : FilterRows()) {
        const Control& control = m_app.controls[QLatin1StringView(row->name)];
        SetValueOf(m_app.controls, control,
                   m_app.platform.Settings().GetSetting(section, KeyOf(*row), ValueOf(control)));
    }
}

} // namespace qlm
