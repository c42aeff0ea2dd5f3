// SPDX-License-Identifier: MIT
// Expectations about single controls, as the widgets show them.
#include "Arguments.h"
#include "CommandTable.h"
#include "Expect.h"
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
        for (QWidget* form : stage.ReachableForms())
            if (QAction* action = FindAction(form, name))
                return action;
    return nullptr;
}

// The row of the table of controls for an input that no window shows; null when there is none.
const qlm::Control* WithoutWidget(Stage& stage, const QString& name) {
    const QByteArray latin = name.toLatin1();
    if (stage.WidgetOrNull(name) || !stage.TheApp().controls.Has(QLatin1StringView(latin)))
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

// expect control NAME "text" | ticked | unticked | row N "text"
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
    const QWidget* widget = stage.Widget(name);
    if (arguments.TakeWord("ticked"_L1))
        ExpectTick(name, true, IsTicked(widget));
    else if (arguments.TakeWord("unticked"_L1))
        ExpectTick(name, false, IsTicked(widget));
    else if (arguments.TakeWord("row"_L1)) {
        const int row = arguments.TakeNumber("the row");
        ExpectText(u"row %1 of %2"_s.arg(row).arg(name), arguments.Take("the text"), RowText(widget, row));
    } else
        ExpectText(name, arguments.Take("the text"), ShownText(widget));
}

void Rows(Stage& stage, Arguments& arguments) {
    const QString name = arguments.Take("the list");
    const int expected = arguments.TakeNumber("the number of rows");
    const qlm::Control* control = WithoutWidget(stage, name);
    const qsizetype seen = control ? control->items.size() : RowCount(stage.Widget(name));
    ExpectText(u"the number of rows of "_s + name, QString::number(expected), QString::number(seen));
}

void Selected(Stage& stage, Arguments& arguments) {
    const QString name = arguments.Take("the list");
    const QString expected = arguments.Take("the row");
    const int row = SelectedRow(stage.Widget(name));
    ExpectText(u"the selected row of "_s + name, expected, row < 0 ? u"none"_s : QString::number(row));
}

void ToolTip(Stage& stage, Arguments& arguments) {
    const QString name = arguments.Take("the control");
    ExpectText(u"the tool tip of "_s + name, arguments.Take("the text"), stage.Widget(name)->toolTip());
}

void ExpectEnabled(Stage& stage, const QString& name, bool expected) {
    const QAction* item = MenuItem(stage, name);
    const bool enabled = item ? item->isEnabled() : stage.Widget(name)->isEnabled();
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
    if (item ? !item->isVisible() : !Shows(stage.Widget(name)))
        Fail(u"%1 is hidden"_s.arg(name));
}

void Hidden(Stage& stage, Arguments& arguments) {
    const QString name = arguments.Take("the control");
    // A control of a window that isn't open is hidden too.
    const QAction* item = MenuItem(stage, name);
    const QWidget* widget = item ? nullptr : stage.WidgetOrNull(name);
    if ((item && item->isVisible()) || (widget && Shows(widget)))
        Fail(u"%1 is visible"_s.arg(name));
    const QByteArray latin = name.toLatin1();
    if (!item && !widget && !stage.TheApp().controls.Has(QLatin1StringView(latin)))
        Fail(u"there is no control %1"_s.arg(name));
}

} // namespace

const CommandRows& ExpectingControlCommands() {
    static const CommandRows rows{
        {"expect control", Control}, {"expect rows", Rows},       {"expect selected", Selected},
        {"expect tooltip", ToolTip}, {"expect enabled", Enabled}, {"expect disabled", Disabled},
        {"expect visible", Visible}, {"expect hidden", Hidden},
    };
    return rows;
}

} // namespace qlm::scenario
