// SPDX-License-Identifier: MIT
// How each kind of widget shows its control and hands the user's input back.
#include "core/App.h"
#include "shell/ControlBinder.h"
#include "shell/ListRowsModel.h"
#include "shell/TabStrip.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTextBrowser>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// Tab stops at the chosen option of a group; where none is chosen, at each.
void SettleTabStops(const QButtonGroup& group) {
    for (QAbstractButton* option : group.buttons())
        option->setFocusPolicy(!group.checkedButton() || option->isChecked() ? Qt::StrongFocus
                                                                             : Qt::ClickFocus);
}

void ShowLabel(QLabel& label, const QString& text) {
    label.setText(text);
    if (label.property("hideWhenEmpty").toBool())
        label.setVisible(!text.isEmpty());
}

} // namespace

// The letter stays when another caption begins with the row's own, or with the letter.
QString CaptionWithLetter(const Control& control) {
    const QString own = QString::fromUtf16(control.row->caption);
    const QString ownPlain = control.row->PlainCaption();
    const QString plain = QString(control.text).replace(u'&', u"&&"_s);
    if (!ownPlain.isEmpty() && control.text.startsWith(ownPlain))
        return own + QString(control.text.mid(ownPlain.size())).replace(u'&', u"&&"_s);
    const QString marked = u'&' + plain;
    const bool hasItsLetter = QKeySequence::mnemonic(marked) == QKeySequence::mnemonic(own);
    return hasItsLetter && !plain.isEmpty() ? marked : plain;
}

ControlBinder::Show ControlBinder::ViewFor(QWidget& widget, QLatin1StringView name) {
    if (auto* line = qobject_cast<QLineEdit*>(&widget))
        return ViewOfLine(*line, name);
    if (auto* lines = qobject_cast<QPlainTextEdit*>(&widget))
        return ViewOfLines(*lines, name);
    if (auto* page = qobject_cast<QTextBrowser*>(&widget))
        return [page](const Control& control, Change change, int) {
            if (change == Change::Text)
                page->setHtml(control.text);
        };
    if (auto* combo = qobject_cast<QComboBox*>(&widget))
        return ViewOfCombo(*combo, name);
    if (auto* list = qobject_cast<QListView*>(&widget))
        return ViewOfList(*list, name);
    if (auto* menu = qobject_cast<QMenu*>(&widget))
        return [this, menu](const Control& control, Change change, int) {
            if (change == Change::Text)
                menu->setTitle(CaptionWithLetter(control));
            if (change == Change::Items)
                ShowMenuRows(*menu, control);
        };
    if (auto* button = qobject_cast<QAbstractButton*>(&widget))
        return ViewOfTick(*button, name);
    if (auto* label = qobject_cast<QLabel*>(&widget)) {
        label->setTextFormat(Qt::PlainText);
        return [label](const Control& control, Change change, int) {
            if (change == Change::Text)
                ShowLabel(*label, control.text);
        };
    }
    if (auto* box = qobject_cast<QGroupBox*>(&widget))
        return [box](const Control& control, Change change, int) {
            if (change == Change::Text && !control.text.isEmpty())
                box->setTitle(control.text);
        };
    return {};
}

// The rows of a menu's control stand below its own items: "-" is a line between them, any other runs
// "<name>Item_Click" with its number.
void ControlBinder::ShowMenuRows(QMenu& menu, const Control& control) {
    for (QAction* action : menu.actions())
        if (action->property("isRow").toBool())
            delete action;
    auto add = [&menu](QAction* action) {
        action->setProperty("isRow", true);
        menu.addAction(action);
        return action;
    };
    auto addLine = [&] { add(new QAction(&menu))->setSeparator(true); };
    if (!control.items.isEmpty())
        addLine();
    for (int row = 0; row < control.items.size(); ++row) {
        if (control.items[row] == u"-") {
            addLine();
            continue;
        }
        QAction* action = add(new QAction(QString(control.items[row]).replace(u'&', u"&&"_s), &menu));
        connect(action, &QAction::triggered, this,
                [this, command = QString(control.name) + u"Item_Click"_s, row] { Run(command, row); });
    }
}

ControlBinder::Show ControlBinder::ViewOfLine(QLineEdit& line, QLatin1StringView name) {
    connect(&line, &QLineEdit::textChanged, this, [this, name](const QString& text) {
        if (!m_showing)
            m_app.controls.SetText(name, text);
    });
    return [&line](const Control& control, Change change, int) {
        if (change == Change::Text && line.text() != control.text)
            line.setText(control.text);
    };
}

// A line break is a carriage return and a line feed in the table, as it goes into files and onto pages.
ControlBinder::Show ControlBinder::ViewOfLines(QPlainTextEdit& lines, QLatin1StringView name) {
    connect(&lines, &QPlainTextEdit::textChanged, this, [this, name, &lines] {
        if (!m_showing)
            m_app.controls.SetText(name, lines.toPlainText().replace(u'\n', u"\r\n"_s));
    });
    return [&lines](const Control& control, Change change, int) {
        const QString text = QString(control.text).replace(u"\r\n"_s, u"\n"_s);
        if (change == Change::Text && lines.toPlainText() != text)
            lines.setPlainText(text);
    };
}

QButtonGroup& ControlBinder::Group(const QString& group) {
    QButtonGroup*& found = m_groups[group];
    if (!found)
        found = new QButtonGroup(this);
    return *found;
}

ControlBinder::Show ControlBinder::ViewOfTick(QAbstractButton& button, QLatin1StringView name) {
    if (!button.isCheckable())
        return [&button](const Control& control, Change change, int) {
            if (change == Change::Text)
                button.setText(CaptionWithLetter(control));
        };

    QButtonGroup* group = nullptr;
    if (const QLatin1StringView groupName = m_app.controls[name].group; !groupName.isEmpty()) {
        group = &Group(groupName);
        group->addButton(&button);
    }
    connect(&button, &QAbstractButton::toggled, this, [this, name, group](bool ticked) {
        // Of a group only the newly chosen one counts: the table unticks the rest.
        if (!m_showing && (ticked || !group))
            m_app.controls.SetTicked(name, ticked);
    });
    return [&button, group](const Control& control, Change change, int) {
        if (change == Change::Text)
            button.setText(CaptionWithLetter(control));
        if (change != Change::Ticked)
            return;
        // A group that excludes would not let its last button go.
        if (group)
            group->setExclusive(false);
        button.setChecked(control.ticked);
        if (group) {
            group->setExclusive(true);
            SettleTabStops(*group);
        }
    };
}

ControlBinder::Show ControlBinder::ViewOfCombo(QComboBox& combo, QLatin1StringView name) {
    connect(&combo, &QComboBox::currentIndexChanged, this, [this, name](int row) {
        if (m_showing)
            return;
        m_app.controls.SetSelected(name, row);
        Run(QString(name) + u"_Click"_s);
    });
    return [&combo](const Control& control, Change change, int) {
        if (change == Change::Items || change == Change::RowAdded || change == Change::RowRemoved) {
            combo.clear();
            combo.addItems(control.items);
        }
        // A text that is no item shows in grey, as a hint.
        combo.setPlaceholderText(control.text);
        combo.setCurrentIndex(static_cast<int>(control.items.indexOf(control.text)));
    };
}

ControlBinder::Show ControlBinder::ViewOfList(QListView& list, QLatin1StringView name) {
    auto* model = new ListRowsModel(m_app.controls, name, &list);
    model->onTick = [this, name](int row, bool ticked) {
        m_app.controls.SetRowTicked(name, row, ticked);
        Run(QString(name) + u"_ItemCheck"_s, row);
    };
    if (m_app.commands.Has(QString(name) + u"_DragDrop"_s)) {
        model->onMove = [this, name](int place) { Run(QString(name) + u"_DragDrop"_s, place); };
        list.setDragDropMode(QAbstractItemView::InternalMove);
        list.setDropIndicatorShown(true);
    }
    list.setUniformItemSizes(true);
    list.setEditTriggers(QAbstractItemView::NoEditTriggers);
    list.setModel(model);
    connect(list.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this, name, isStrip = dynamic_cast<TabStrip*>(&list) != nullptr](const QModelIndex& current) {
                if (m_showing)
                    return;
                // What the choice of a tab brings about is its command's to say.
                if (isStrip)
                    Run(QString(name) + u"_Click"_s, current.row());
                else
                    m_app.controls.SetSelected(name, current.row());
            });
    return [&list, model](const Control& control, Change change, int row) {
        model->Apply(change, row);
        const bool rowsMoved = change == Change::Items || change == Change::RowRemoved;
        if (!rowsMoved && change != Change::Selected)
            return;
        if (control.selected < 0)
            list.selectionModel()->clear();
        else if (list.currentIndex().row() != control.selected || !list.selectionModel()->hasSelection())
            list.setCurrentIndex(model->index(control.selected));
    };
}

} // namespace qlm
