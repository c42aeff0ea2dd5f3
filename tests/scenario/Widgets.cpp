// SPDX-License-Identifier: MIT
#include "Widgets.h"
#include "Arguments.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTextEdit>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

[[noreturn]] void WrongKind(const QWidget* widget, const char* kind) {
    Fail(u"%1 is no %2 but a %3"_s.arg(widget->objectName(), QLatin1StringView(kind),
                                       QLatin1StringView(widget->metaObject()->className())));
}

// Where a click on the widget lands: in the middle of what reacts to one.
QPoint ClickPoint(const QWidget* widget) {
    QStyleOptionButton option;
    option.initFrom(widget);
    if (qobject_cast<const QCheckBox*>(widget))
        return widget->style()->subElementRect(QStyle::SE_CheckBoxClickRect, &option, widget).center();
    if (qobject_cast<const QRadioButton*>(widget))
        return widget->style()->subElementRect(QStyle::SE_RadioButtonClickRect, &option, widget).center();
    return widget->rect().center();
}

void SendMouse(QWidget* widget, QEvent::Type type, QPoint at, Qt::MouseButtons held) {
    QMouseEvent event(type, at, widget->mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

int KeyCode(const QString& name) {
    struct Key {
        QLatin1StringView name;
        int code;
    };
    static constexpr Key keys[]{{"Delete"_L1, Qt::Key_Delete},
                                {"Enter"_L1, Qt::Key_Return},
                                {"Return"_L1, Qt::Key_Return},
                                {"Escape"_L1, Qt::Key_Escape},
                                {"Backspace"_L1, Qt::Key_Backspace},
                                {"Tab"_L1, Qt::Key_Tab},
                                {"Space"_L1, Qt::Key_Space},
                                {"Up"_L1, Qt::Key_Up},
                                {"Down"_L1, Qt::Key_Down},
                                {"Home"_L1, Qt::Key_Home},
                                {"End"_L1, Qt::Key_End},
                                {"F5"_L1, Qt::Key_F5}};
    for (const Key& key : keys)
        if (name == key.name)
            return key.code;
    if (name.size() == 1)
        return name.at(0).toUpper().unicode();
    Fail(u"no key is called %1"_s.arg(name));
}

const QAbstractItemModel* ModelOf(const QWidget* list) {
    if (const auto* view = qobject_cast<const QAbstractItemView*>(list))
        return view->model();
    if (const auto* box = qobject_cast<const QComboBox*>(list))
        return box->model();
    WrongKind(list, "list");
}

} // namespace

namespace {

// Where several panels have one of that name, each carries its panel's in front: "picMessanger.lstSendList".
QList<QWidget*> WidgetsCalled(const QWidget* root, const QString& name) {
    QList<QWidget*> found = root->findChildren<QWidget*>();
    found.removeIf([&name](const QWidget* widget) {
        return widget->objectName() != name && !widget->objectName().endsWith(u'.' + name);
    });
    return found;
}

} // namespace

bool Shows(const QWidget* widget) {
    return widget->isVisibleTo(widget->window());
}

QWidget* FindWidget(QWidget* window, const QString& name) {
    QWidget* root = window;
    const QStringList path = name.split(u'.');
    for (const QString& part : path) {
        QWidget* best = nullptr;
        const QList<QWidget*> found = WidgetsCalled(root, part);
        for (QWidget* widget : found)
            if (!best || (Shows(widget) && !Shows(best)))
                best = widget;
        if (!best && root->objectName() == part)
            best = root;
        if (!best)
            return nullptr;
        root = best;
    }
    return root;
}

QAction* FindAction(QWidget* window, const QString& name) {
    if (auto* named = window->findChild<QAction*>(name))
        return named;
    for (QAction* action : window->findChildren<QAction*>())
        if (!name.isEmpty() && action->isVisible() && WithoutMnemonic(action->text()) == name)
            return action;
    return nullptr;
}

void ClickOn(QWidget* widget) {
    const QPoint at = ClickPoint(widget);
    SendMouse(widget, QEvent::MouseButtonPress, at, Qt::LeftButton);
    SendMouse(widget, QEvent::MouseButtonRelease, at, Qt::NoButton);
}

void DoubleClickRow(QWidget* list) {
    auto* view = qobject_cast<QAbstractItemView*>(list);
    if (!view)
        WrongKind(list, "list");
    const QModelIndex row = view->currentIndex();
    view->scrollTo(row);
    QWidget* port = view->viewport();
    const QPoint at = row.isValid() ? view->visualRect(row).center() : port->rect().center();
    SendMouse(port, QEvent::MouseButtonPress, at, Qt::LeftButton);
    SendMouse(port, QEvent::MouseButtonRelease, at, Qt::NoButton);
    SendMouse(port, QEvent::MouseButtonDblClick, at, Qt::LeftButton);
    SendMouse(port, QEvent::MouseButtonRelease, at, Qt::NoButton);
}

void PressKey(QWidget* widget, const QString& key) {
    const int code = KeyCode(key);
    const QString text = key.size() == 1 ? key : QString();
    widget->setFocus();
    QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier, text);
    QApplication::sendEvent(widget, &press);
    QKeyEvent release(QEvent::KeyRelease, code, Qt::NoModifier, text);
    QApplication::sendEvent(widget, &release);
}

void TypeInto(QWidget* widget, const QString& text) {
    if (!widget->isEnabled())
        Fail(u"%1 is disabled"_s.arg(widget->objectName()));
    if (auto* line = qobject_cast<QLineEdit*>(widget)) {
        line->setFocus();
        line->selectAll();
        line->isReadOnly() ? void() : line->insert(text);
        // An empty insertion leaves the selection standing.
        if (text.isEmpty() && !line->isReadOnly())
            line->clear();
        return;
    }
    if (auto* lines = qobject_cast<QPlainTextEdit*>(widget)) {
        lines->setFocus();
        lines->selectAll();
        lines->insertPlainText(text);
        return;
    }
    if (auto* lines = qobject_cast<QTextEdit*>(widget)) {
        lines->setFocus();
        lines->selectAll();
        lines->insertPlainText(text);
        return;
    }
    auto* box = qobject_cast<QComboBox*>(widget);
    if (!box || !box->isEditable())
        WrongKind(widget, "text box");
    box->setFocus();
    box->setEditText(text);
}

void SetTick(QWidget* widget, bool ticked) {
    auto* button = qobject_cast<QAbstractButton*>(widget);
    if (!button || !button->isCheckable())
        WrongKind(widget, "check box");
    if (button->isChecked() != ticked)
        ClickOn(widget);
}

void SetRowTick(QWidget* list, int row, bool ticked) {
    SelectRow(list, row);
    if (IsRowTicked(list, row) != ticked)
        PressKey(list, u"Space"_s);
}

void SelectItem(QWidget* comboBox, const QString& text) {
    auto* box = qobject_cast<QComboBox*>(comboBox);
    if (!box)
        WrongKind(comboBox, "combo box");
    const int row = box->findText(text);
    if (row < 0)
        Fail(u"%1 has no item \"%2\""_s.arg(box->objectName(), text));
    if (!box->isEnabled())
        Fail(u"%1 is disabled"_s.arg(box->objectName()));
    box->setFocus();
    box->setCurrentIndex(row);
    Q_EMIT box->activated(row);
}

void SelectRow(QWidget* list, int row) {
    auto* view = qobject_cast<QAbstractItemView*>(list);
    if (!view)
        WrongKind(list, "list");
    if (row < 0 || row >= view->model()->rowCount())
        Fail(u"%1 has no row %2, only %3 rows"_s.arg(list->objectName())
                 .arg(row)
                 .arg(view->model()->rowCount()));
    view->setFocus();
    view->setCurrentIndex(view->model()->index(row, 0));
}

QString WithoutMnemonic(QString caption) {
    const QChar doubled(0xE000); // a private sign stands for "&&" meanwhile
    return caption.replace(u"&&"_s, doubled).remove(u'&').replace(doubled, u'&');
}

QString ShownText(const QWidget* widget) {
    if (const auto* label = qobject_cast<const QLabel*>(widget))
        return label->text();
    if (const auto* line = qobject_cast<const QLineEdit*>(widget))
        return line->text();
    if (const auto* lines = qobject_cast<const QPlainTextEdit*>(widget))
        return lines->toPlainText();
    if (const auto* lines = qobject_cast<const QTextEdit*>(widget))
        return lines->toPlainText();
    // Without a choice a combo box shows its hint.
    if (const auto* box = qobject_cast<const QComboBox*>(widget))
        return box->currentIndex() < 0 && !box->isEditable() ? box->placeholderText() : box->currentText();
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        return WithoutMnemonic(button->text());
    WrongKind(widget, "widget with a text");
}

bool IsTicked(const QWidget* widget) {
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    if (!button || !button->isCheckable())
        WrongKind(widget, "check box");
    return button->isChecked();
}

int RowCount(const QWidget* list) {
    return ModelOf(list)->rowCount();
}

QString RowText(const QWidget* list, int row) {
    const QAbstractItemModel* model = ModelOf(list);
    return model->data(model->index(row, 0)).toString();
}

bool IsRowTicked(const QWidget* list, int row) {
    const QAbstractItemModel* model = ModelOf(list);
    const QVariant state = model->data(model->index(row, 0), Qt::CheckStateRole);
    if (!state.isValid())
        Fail(u"row %1 of %2 has no box"_s.arg(row).arg(list->objectName()));
    return state.toInt() == Qt::Checked;
}

int SelectedRow(const QWidget* list) {
    if (const auto* box = qobject_cast<const QComboBox*>(list))
        return box->currentIndex();
    const auto* view = qobject_cast<const QAbstractItemView*>(list);
    if (!view)
        WrongKind(list, "list");
    const QModelIndex current = view->currentIndex();
    return view->selectionModel() && view->selectionModel()->hasSelection() && current.isValid()
               ? current.row()
               : -1;
}

} // namespace qlm::scenario
