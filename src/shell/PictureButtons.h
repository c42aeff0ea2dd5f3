// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <initializer_list>

class QBoxLayout;
class QToolButton;

namespace qlm {

class Commands;

// One picture button: its control, its drawing, and what it runs.
struct PictureButton {
    const char* name;
    const char* image;
    const char* command = ""; // where it isn't name + "_Click"
    bool begins = false;      // a run or a fetch: a double click is one click
};

enum class Caption { None, Beside };

const PictureButton& PictureButtonNamed(QLatin1StringView name);
// The button as a widget. Throws std::logic_error on a name that the table doesn't hold.
QToolButton* NewPictureButton(QLatin1StringView name, Caption caption);
// Adds those of the buttons that have something to do: whose command is registered.
void AddPictureButtons(QBoxLayout& layout, const Commands& commands, Caption caption,
                       std::initializer_list<QLatin1StringView> names);

} // namespace qlm
