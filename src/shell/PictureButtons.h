// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <initializer_list>

class QBoxLayout;
class QToolButton;

namespace qlm {

class Commands;

enum class Caption { None, Beside };

// The button with the drawing of its row. Throws std::logic_error on a name that the table of controls
// doesn't hold.
QToolButton* NewPictureButton(QLatin1StringView name, Caption caption);
// Adds those of the buttons that have something to do: whose command is registered.
void AddPictureButtons(QBoxLayout& layout, const Commands& commands, Caption caption,
                       std::initializer_list<QLatin1StringView> names);

} // namespace qlm
