// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

class QAction;

namespace qlm::scenario {

// Finding real widgets by their names and working them as a person would: by events that a disabled widget
// refuses.

// The widget of that name below the window; of several the one that shows. "picMessanger.picEditList" names
// the one inside another. Null when there is none.
QWidget* FindWidget(QWidget* window, const QString& name);
// By its name, or by its caption when none has that name.
QAction* FindAction(QWidget* window, const QString& name);

bool Shows(const QWidget* widget);
void ClickOn(QWidget* widget);
void DoubleClickRow(QWidget* list);
void PressKey(QWidget* widget, const QString& key);
// Each fails the scenario when the widget is of another kind.
void TypeInto(QWidget* widget, const QString& text);
void SetTick(QWidget* widget, bool ticked);
// The box of a row, by the blank key.
void SetRowTick(QWidget* list, int row, bool ticked);
void SelectItem(QWidget* comboBox, const QString& text);
void SelectRow(QWidget* list, int row);

// A caption as it is read, without the mark of its access key.
QString WithoutMnemonic(QString caption);
// What the widget shows: a label's or button's caption, the text of an input.
QString ShownText(const QWidget* widget);
bool IsTicked(const QWidget* widget);
int RowCount(const QWidget* list);
QString RowText(const QWidget* list, int row);
bool IsRowTicked(const QWidget* list, int row);
int SelectedRow(const QWidget* list);

} // namespace qlm::scenario
