// SPDX-License-Identifier: MIT
#pragma once

#include "core/Controls.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <functional>

class QAbstractButton;
class QAction;
class QActionGroup;
class QButtonGroup;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListView;
class QMenu;
class QPlainTextEdit;
class QWidget;

namespace qlm {

class App;
class TickBox;

// The control's text as a button or menu item shows it, with the letter to press.
QString CaptionWithLetter(const Control& control);

// Ties the widgets of one form to the table of controls and to the commands, by object name: the widget
// "lstAccounts" of a form bound with the prefix "frmInteken." shows the row "frmInteken.lstAccounts", writes
// the user's input into it and runs "frmInteken.lstAccounts_Click" and its like. The row's words come with
// it: caption, tool tip, the text of a label in front of an input, what a screen reader says. A widget
// without a row still runs its commands. Lives as long as its form, and must go before the App does.
class ControlBinder : public QObject {
public:
    // messageCount tells how many message boxes there have been so far; a _MouseDown command that raised one
    // keeps the check box as it was.
    ControlBinder(App& app, const QString& prefix, std::function<int()> messageCount);
    ~ControlBinder() override;

    // Binds the widgets below root that have a name; root, the form, shows the pointer that the table asks
    // for.
    void BindAll(QWidget& root);
    // Binds a menu item: words, tick, and whether it is there follow the table. A choice runs "<name>_Click";
    // of "mnuItem(2)" it runs "mnuItem_Click" with a 2. Items of one group show as options.
    void Bind(QAction& action);
    // Runs the command of that full name; false when there is none.
    bool Run(const QString& command, int argument = 0);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    using Change = Controls::Change;
    using Show = std::function<void(const Control&, Change, int row)>;
    struct Bound {
        QPointer<QObject> object;
        Show show;
    };

    void BindWidget(QWidget& widget);
    void ConnectCommands(QWidget& widget, const QString& name);
    Show ViewFor(QWidget& widget, QLatin1StringView name);
    Show ViewOfLine(QLineEdit& line, QLatin1StringView name);
    Show ViewOfLines(QPlainTextEdit& lines, QLatin1StringView name);
    Show ViewOfTick(QAbstractButton& button, QLatin1StringView name);
    Show ViewOfCombo(QComboBox& combo, QLatin1StringView name);
    Show ViewOfList(QListView& list, QLatin1StringView name);
    void ShowMenuRows(QMenu& menu, const Control& control);
    void ShowWords(QWidget& widget, const ControlRow& row);
    void ShowPointer();
    void GuardTick(TickBox& box, const QString& name);
    QButtonGroup& Group(const QString& group);
    QActionGroup& MenuGroup(QLatin1StringView group);
    void OnChange(const Control& control, Change change, int row);
    void ShowAll(QWidget& widget, const Control& control, const Show& show);

    App& m_app;
    QString m_prefix;
    std::function<int()> m_messageCount;
    QHash<QLatin1StringView, Bound> m_bound;
    QHash<QString, QButtonGroup*> m_groups;
    QHash<QLatin1StringView, QActionGroup*> m_menuGroups;
    QPointer<QWidget> m_root;
    int m_listener = 0;
    // While a change from the table is being shown, the widgets' own signals are no input of the user.
    bool m_showing = false;
};

} // namespace qlm
