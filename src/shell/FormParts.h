// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QPushButton>
#include <functional>
#include <initializer_list>

class QDialogButtonBox;
class QGroupBox;
class QHBoxLayout;
class QLineEdit;
class QPlainTextEdit;

namespace qlm {

class App;
class ElidedLabel;

// Building stones of the forms. name is that of the control and becomes the object name, by which the widget
// is bound; all words come with its row in the table of controls.

template <typename Widget> Widget* Named(Widget* widget, QLatin1StringView name) {
    widget->setObjectName(QString(name));
    return widget;
}

// A double click on the button is one click. For buttons that begin something: a second beginning, right
// after the first, is nobody's wish.
void TakeDoubleClickAsOne(QAbstractButton& button);

QPushButton* NewButton(QLatin1StringView name);
// A button that looks like a link and can be reached by the keyboard.
QPushButton* NewLink(QLatin1StringView name);
QLineEdit* NewLine(QLatin1StringView name);
// Narrow, for a number of so many signs.
QLineEdit* NewNumber(QLatin1StringView name, int signs);
// Several lines of text, so many of them in sight. Tab leaves it.
QPlainTextEdit* NewLines(QLatin1StringView name, int linesInSight);
// The same, with the room that is left over as well.
QPlainTextEdit* NewGrowingLines(QLatin1StringView name, int leastLines);
// A label that shows a control; look names its part in the style sheet ("heading", "quiet", "badge", or
// empty).
QLabel* NewLabel(QLatin1StringView name, const QString& look = {});
// One that wraps; where hideWhenEmpty, it is there only while it has something to say.
QLabel* NewWrappedLabel(QLatin1StringView name, const QString& look = {}, bool hideWhenEmpty = false);
// One of a single line that a long text doesn't make wider.
ElidedLabel* NewElidedLabel(QLatin1StringView name, const QString& look = {});
// The label in front of an input: it shows the caption of the input's row, whose letter leads there.
QLabel* NewCaptionOf(QWidget& input);
// A fixed text that wraps.
QLabel* NewText(const QString& text, const QString& look = {});

// A text that is there while isWanted says so of the rows of that list.
QLabel* NewHintOnRows(App& app, QLatin1StringView list, const QString& text,
                      std::function<bool(const QStringList& rows)> isWanted);

// Beside one another from the left.
QHBoxLayout* NewRow(std::initializer_list<QWidget*> widgets);
// A frame around rows.
QGroupBox* NewFrame(const QString& title, std::initializer_list<QLayout*> rows);

// A row of buttons at the foot of a form; the first is the default one. Buttons named "cmdCancel" and
// "cmdClose" take the place of those.
QDialogButtonBox* NewButtonRow(std::initializer_list<QLatin1StringView> buttons);

} // namespace qlm
