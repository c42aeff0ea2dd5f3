// SPDX-License-Identifier: MIT
#pragma once

#include "core/Controls.h"

// The table of controls, form by form. A row states all that is said about its control: the caption with its
// letter, the tool tip, the choices. Rows of one kind stand in the order in which they are restored and
// saved.
namespace qlm::rows {

std::vector<ControlRow> MainWindow();
std::vector<ControlRow> Menus();
std::vector<ControlRow> AutoStart();
std::vector<ControlRow> GatherTab();
std::vector<ControlRow> FriendRequesterTab();
std::vector<ControlRow> MessengerTab();
std::vector<ControlRow> CommenterTab();
std::vector<ControlRow> BulletinTab();
std::vector<ControlRow> StatusTab();
std::vector<ControlRow> AcceptTab();
std::vector<ControlRow> InviteTab();
std::vector<ControlRow> InviteForms();
std::vector<ControlRow> Filters();
std::vector<ControlRow> AccountForms();
std::vector<ControlRow> GatherForms();
std::vector<ControlRow> SettingsForms();
std::vector<ControlRow> SmallForms();
std::vector<ControlRow> ContentForms();

// What a limit counts for, and what is said of that.
QStringList Periods();
inline constexpr const char16_t* PeriodTip =
    u"If you select \"per day\" then QLM takes all your sending activity into account and "
    u"ensures you don't send too much in a 24-hour period";

// Said of every text that goes to somebody.
inline constexpr const char16_t* NameTip =
    u"Write &NAME& where the target's name is to stand. A name that can't be read is left out";

inline ControlRow Label(const char* name, const char16_t* caption = u"") {
    return {name, ControlType::Label, caption};
}
inline ControlRow Line(const char* name, const char16_t* caption = u"") {
    return {name, ControlType::TextBox, caption};
}
inline ControlRow Lines(const char* name, const char16_t* caption = u"") {
    return {name, ControlType::ManyLineBox, caption};
}
inline ControlRow Box(const char* name, const char16_t* caption = u"") {
    return {name, ControlType::CheckBox, caption};
}
inline ControlRow Option(const char* name, const char* group, const char16_t* caption = u"") {
    return ControlRow{name, ControlType::OptionButton, caption}.In(group);
}
inline ControlRow Choice(const char* name, const char16_t* caption = u"") {
    return {name, ControlType::ComboBox, caption};
}
inline ControlRow List(const char* name) {
    return {name, ControlType::ListBox};
}
inline ControlRow Button(const char* name, const char16_t* caption) {
    return {name, ControlType::Button, caption};
}
inline ControlRow MenuItem(const char* name, const char16_t* caption) {
    return {name, ControlType::MenuItem, caption};
}
inline ControlRow Panel(const char* name, const char16_t* caption = u"") {
    return {name, ControlType::Panel, caption};
}
inline ControlRow Pointer(const char* name) {
    return {name, ControlType::Pointer};
}

} // namespace qlm::rows
