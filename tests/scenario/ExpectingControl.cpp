// SPDX-License-Identifier: MIT
// Expectations about single controls, as the widgets show them.
#include "Arguments.h"
#include "CommandTable.h"
#include "Expect.h"
#include "KnownNames.h"
#include "Stage.h"
#include "Widgets.h"

#include <QAction>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

void ExpectTick(const QString& name, bool expected, bool seen) {
    ExpectText(name, expected ? u"ticked"_s : u"unticked"_s, seen ? u"ticked"_s : u"unticked"_s);
}

QAction* MenuItem(Stage& stage, const QString& name) {
    if (name.startsWith(u"mnu"))
        for (QWidget* form : stage.OpenForms())
            if (QAction* action = FindAction(form, name))
                return action;
    return nullptr;
}

// The row of the table of controls for an input that no window shows; null when there is none.
const qlm::Control* WithoutWidget(Stage& stage, const QString& name) {
    const QByteArray latin = name.toLatin1();
    if (stage.SeenWidgetOrNull(name) || !stage.TheApp().controls.Has(QLatin1StringView(latin)))
        return nullptr;
    return &stage.TheApp().controls[QLatin1StringView(latin)];
}

void ExpectMenuItem(const QAction& item, Arguments& arguments) {
    if (arguments.TakeWord("ticked"_L1))
        ExpectTick(item.objectName(), true, item.isChecked());
    else if (arguments.TakeWord("unticked"_L1))
        ExpectTick(item.objectName(), false, item.isChecked());
    else
        ExpectText(item.objectName(), arguments.Take("the caption"), WithoutMnemonic(item.text()));
}

void ExpectTableRow(const qlm::Control& control, Arguments& arguments) {
    const QString name(control.name);
    if (arguments.TakeWord("ticked"_L1))
        ExpectTick(name, true, control.ticked);
    else if (arguments.TakeWord("unticked"_L1))
        ExpectTick(name, false, control.ticked);
    else if (arguments.TakeWord("row"_L1)) {
        const int row = arguments.TakeNumber("the row");
        ExpectText(name, arguments.Take("the text"), control.items.value(row));
    } else
        ExpectText(name, arguments.Take("the text"), control.text);
}

void ExpectRow(const QString& name, const QWidget* list, Arguments& arguments) {
    const int row = arguments.TakeNumber("the row");
    const QString what = u"row %1 of %2"_s.arg(row).arg(name);
    if (row < 0 || row >= RowCount(list))
        Fail(u"%1 has no row %2, only %3 rows"_s.arg(name).arg(row).arg(RowCount(list)));
    if (arguments.TakeWord("ticked"_L1))
        ExpectTick(what, true, IsRowTicked(list, row));
    else if (arguments.TakeWord("unticked"_L1))
        ExpectTick(what, false, IsRowTicked(list, row));
    else
        ExpectText(what, arguments.Take("the text"), RowText(list, row));
}

// expect control NAME "text" | ticked | unticked | row N "text" | row N ticked | row N unticked
void Control(Stage& stage, Arguments& arguments) {
    const QString name = arguments.Take("the control");
    if (const QAction* item = MenuItem(stage, name)) {
        ExpectMenuItem(*item, arguments);
        return;
    }
    if (const qlm::Control* control = WithoutWidget(stage, name)) {
        ExpectTableRow(*control, arguments);
        return;
    }
    const QWidget* widget = stage.SeenWidget(name);
    if (arguments.TakeWord("ticked"_L1))
        ExpectTick(name, true, IsTicked(widget));
    else if (arguments.TakeWord("unticked"_L1))
        ExpectTick(name, false, IsTicked(widget));
    else if (arguments.TakeWord("row"_L1)) {
        ExpectRow(name, widget, arguments);
    } else
        ExpectText(name, arguments.Take("the text"), ShownText(widget));
}

void Rows(Stage& stage, Arguments& arguments) {
    const QString name = arguments.Take("the list");
    const int expected = arguments.TakeNumber("the number of rows");
    const qlm::Control* control = WithoutWidget(stage, name);
    const qsizetype seen = control ? control->items.size() : RowCount(stage.SeenWidget(name));
    ExpectText(u"the number of rows of "_s + name, QString::number(expected), QString::number(seen));
}

void Selected(Stage& stage, Arguments& arguments) {
    const QString name = arguments.Take("the list");
    const QString expected = arguments.Take("the row");
    const int row = SelectedRow(stage.SeenWidget(name));
    ExpectText(u"the selected row of "_s + name, expected, row < 0 ? u"none"_s : QString::number(row));
}

void ToolTip(Stage& stage, Arguments& arguments) {
    const QString name = arguments.Take("the control");
    ExpectText(u"the tool tip of "_s + name, arguments.Take("the text"), stage.SeenWidget(name)->toolTip());
}

void ExpectEnabled(Stage& stage, const QString& name, bool expected) {
    const QAction* item = MenuItem(stage, name);
    const bool enabled = item ? item->isEnabled() : stage.SeenWidget(name)->isEnabled();
    ExpectText(name, expected ? u"enabled"_s : u"disabled"_s, enabled ? u"enabled"_s : u"disabled"_s);
}

void Enabled(Stage& stage, Arguments& arguments) {
    ExpectEnabled(stage, arguments.Take("the control"), true);
}

void Disabled(Stage& stage, Arguments& arguments) {
    ExpectEnabled(stage, arguments.Take("the control"), false);
}

void Visible(Stage& stage, Arguments& arguments) {
    const QString name = arguments.Take("the control");
    const QAction* item = MenuItem(stage, name);
    if (item ? !item->isVisible() : !Shows(stage.SeenWidget(name)))
        Fail(u"%1 is hidden"_s.arg(name));
}

void Hidden(Stage& stage, Arguments& arguments) {
    const QString name = arguments.Take("the control");
    // A control of a window that isn't open is hidden too.
    const QAction* item = MenuItem(stage, name);
    const QWidget* widget = item ? nullptr : stage.SeenWidgetOrNull(name);
    if ((item && item->isVisible()) || (widget && Shows(widget)))
        Fail(u"%1 is visible"_s.arg(name));
    if (!item && !widget && !KnownNames::All().IsControl(name))
        Fail(u"there is no control %1"_s.arg(name));
}

void NoMenu(Stage& stage, Arguments& arguments) {
    const QString caption = arguments.Take("the caption");
    for (QWidget* form : stage.OpenForms())
        if (const QAction* action = FindAction(form, caption); action && action->isVisible())
            Fail(u"there is a menu item %1"_s.arg(caption));
}

} // namespace

const CommandRows& ExpectingControlCommands() {
    static const CommandRows rows{
        {"expect control", "control word *", Control}, {"expect no menu", "word", NoMenu},
        {"expect rows", "control number", Rows},       {"expect selected", "control word", Selected},
        {"expect tooltip", "control word", ToolTip},   {"expect enabled", "control", Enabled},
        {"expect disabled", "control", Disabled},      {"expect visible", "control", Visible},
        {"expect hidden", "control", Hidden},
    };
    return rows;
}

} // namespace qlm::scenario
