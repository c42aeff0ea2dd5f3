// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QPushButton>
#include <functional>
#include <initializer_list>

class QDialogButtonBox;
class QLineEdit;
class QListView;

namespace qlm {

// Building stones of the forms. name is the design's name of the control and becomes the object name, by
// which it is bound; the accessible name is what a screen reader says.

template <typename Widget>
Widget* Named(Widget* widget, QLatin1StringView name, const QString& accessibleName = {}) {
    widget->setObjectName(QString(name));
    if (!accessibleName.isEmpty())
        widget->setAccessibleName(accessibleName);
    return widget;
}

// A double click on the button is one click. For buttons that begin something: a second beginning, right
// after the first, is nobody's wish.
void TakeDoubleClickAsOne(QAbstractButton& button);

// caption may hold a mnemonic.
QPushButton* NewButton(QLatin1StringView name, const QString& caption);
// A button that looks like a link and can be reached by the keyboard.
QPushButton* NewLink(QLatin1StringView name, const QString& caption);
QLineEdit* NewLine(QLatin1StringView name, const QString& accessibleName);
// A label that shows a control; look names its part in the style sheet ("heading", "quiet", "badge", or
// empty).
QLabel* NewLabel(QLatin1StringView name, const QString& look = {});
// The label in front of an input: its letter leads there, and it is what a screen reader calls the input, by
// the accessible name where that says more than the words. A combo box has no other name for a screen reader.
QLabel* NewCaptionOf(QWidget& input, const QString& words, const QString& accessibleName = {});
// A fixed text that wraps.
QLabel* NewText(const QString& text, const QString& look = {});

// Shows the hint while isWanted answers so; asks when the rows of the bound list change.
void HintOnRows(QListView& list, QLabel& hint, std::function<bool()> isWanted);

// A row of buttons at the foot of a form; the first is the default one. Buttons named "cmdCancel" and
// "cmdClose" take the place of those.
QDialogButtonBox* NewButtonRow(std::initializer_list<QPushButton*> buttons);

} // namespace qlm
