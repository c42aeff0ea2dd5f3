// SPDX-License-Identifier: MIT
#include "core/Controls.h"

#include "core/Text.h"

#include <stdexcept>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// The captions of these are their text.
bool ShowsCaption(ControlType type) {
    using enum ControlType;
    return type == Label || type == CheckBox || type == OptionButton || type == Button || type == MenuItem ||
           type == Panel;
}

QString Sentence(const Progress& progress) {
    return progress.total > 0 ? u"ID %1 of %2"_s.arg(progress.number).arg(progress.total) : QString();
}

QString Sentence(const TimeDelay& delay) {
    const QString state = delay.isOn ? u"ON"_s : u"OFF"_s;
    return u"Time Delay: "_s + (delay.secondsLeft ? LeadingZero(*delay.secondsLeft / 60) + u':' +
                                                        LeadingZero(*delay.secondsLeft % 60)
                                                  : state);
}

} // namespace

Controls::Controls() {
    m_controls.reserve(Table().size());
    for (const ControlRow& row : Table()) {
        Control control;
        control.name = QLatin1StringView(row.name);
        control.type = row.type;
        control.row = &row;
        control.group = QLatin1StringView(row.group);
        control.text = ShowsCaption(row.type) ? row.PlainCaption() : QString::fromUtf16(row.text);
        control.ticked = row.ticked;
        control.toolTip = QString::fromUtf16(row.toolTip);
        if (row.choices) {
            control.items = row.choices();
            control.selected = static_cast<int>(control.items.indexOf(control.text));
        }
        m_index.insert(control.name, static_cast<int>(m_controls.size()));
        m_controls.push_back(control);
    }
}

const Control& Controls::operator[](QLatin1StringView name) const {
    const auto found = m_index.constFind(name);
    if (found == m_index.constEnd())
        throw std::logic_error("No control is named " + QString(name).toStdString());
    return m_controls[static_cast<size_t>(*found)];
}

Control& Controls::Get(QLatin1StringView name) {
    return const_cast<Control&>(std::as_const(*this)[name]);
}

void Controls::ListBoxToArray(QLatin1StringView name, QStringList& array) const {
    array = Items(name);
    if (array.isEmpty())
        array = {QString()};
}

QString Controls::SelectedText(QLatin1StringView name) const {
    const Control& control = (*this)[name];
    return control.items.value(control.selected);
}

void Controls::SetText(QLatin1StringView name, const QString& text) {
    Control& control = Get(name);
    if (control.text == text)
        return;
    control.text = text;
    if (control.type == ControlType::ComboBox)
        control.selected = static_cast<int>(control.items.indexOf(text));
    Notify(control, Change::Text);
}

void Controls::SetTicked(QLatin1StringView name, bool ticked) {
    Control& control = Get(name);
    if (ticked && !control.group.isEmpty())
        for (Control& other : m_controls)
            if (other.group == control.group && other.name != control.name && other.ticked) {
                other.ticked = false;
                Notify(other, Change::Ticked);
            }
    if (control.ticked == ticked)
        return;
    control.ticked = ticked;
    Notify(control, Change::Ticked);
}

bool Controls::RowTicked(QLatin1StringView name, int row) const {
    const std::vector<bool>& ticks = (*this)[name].rowTicks;
    return row >= 0 && row < static_cast<int>(ticks.size()) && ticks[static_cast<size_t>(row)];
}

void Controls::SetItems(QLatin1StringView name, const QStringList& items, const std::vector<bool>& rowTicks) {
    Control& control = Get(name);
    control.items = items;
    control.rowTicks = rowTicks;
    control.selected = -1;
    Notify(control, Change::Items);
}

void Controls::AddItem(QLatin1StringView name, const QString& item) {
    Control& control = Get(name);
    control.items.append(item);
    Notify(control, Change::RowAdded, static_cast<int>(control.items.size()) - 1);
}

void Controls::RemoveItem(QLatin1StringView name, int row) {
    Control& control = Get(name);
    control.items.removeAt(row);
    if (row < static_cast<int>(control.rowTicks.size()))
        control.rowTicks.erase(control.rowTicks.begin() + row);
    if (control.selected == row)
        control.selected = -1;
    else if (control.selected > row)
        --control.selected;
    Notify(control, Change::RowRemoved, row);
}

void Controls::SetSelected(QLatin1StringView name, int row) {
    Control& control = Get(name);
    const int valid = row >= 0 && row < control.items.size() ? row : -1;
    if (control.type == ControlType::ComboBox && valid >= 0)
        control.text = control.items.at(valid);
    control.selected = valid;
    Notify(control, Change::Selected);
}

void Controls::SetRowTicked(QLatin1StringView name, int row, bool ticked) {
    Control& control = Get(name);
    if (row < 0 || row >= static_cast<int>(control.rowTicks.size()) || RowTicked(name, row) == ticked)
        return;
    control.rowTicks[static_cast<size_t>(row)] = ticked;
    Notify(control, Change::RowTicked, row);
}

void Controls::SetEnabled(QLatin1StringView name, bool enabled) {
    Control& control = Get(name);
    if (control.enabled == enabled)
        return;
    control.enabled = enabled;
    Notify(control, Change::Enabled);
}

void Controls::SetVisible(QLatin1StringView name, bool visible) {
    Control& control = Get(name);
    if (control.visible == visible)
        return;
    control.visible = visible;
    Notify(control, Change::Visible);
}

void Controls::SetToolTip(QLatin1StringView name, const QString& toolTip) {
    Control& control = Get(name);
    control.toolTip = toolTip;
    Notify(control, Change::ToolTip);
}

void Controls::SetFocus(QLatin1StringView name) {
    Notify(Get(name), Change::Focus);
}

void Controls::SetProgress(const qlm::Progress& progress) {
    m_progress = progress;
    SetText("lblProgress"_L1, Sentence(progress));
}

void Controls::SetTimeDelay(const qlm::TimeDelay& delay) {
    m_timeDelay = delay;
    SetText("lblTimeDelay"_L1, Sentence(delay));
}

void Controls::SetPointer(PointerShape shape) {
    m_pointer = shape;
    Notify(Get("MousePointer"_L1), Change::Pointer);
}

int Controls::AddListener(Listener listener) {
    m_listeners.emplace_back(m_nextListener, std::move(listener));
    return m_nextListener++;
}

void Controls::RemoveListener(int number) {
    std::erase_if(m_listeners, [number](const auto& entry) { return entry.first == number; });
}

void Controls::Notify(const Control& control, Change change, int row) {
    // A listener may remove itself or another: walk by number, not by position.
    std::vector<int> numbers;
    numbers.reserve(m_listeners.size());
    for (const auto& [number, listener] : m_listeners)
        numbers.push_back(number);
    for (int number : numbers)
        for (const auto& entry : m_listeners)
            if (entry.first == number) {
                const Listener listener = entry.second;
                listener(control, change, row);
                break;
            }
}

} // namespace qlm
