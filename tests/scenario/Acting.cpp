// SPDX-License-Identifier: MIT
// Commands that work the program's own windows, as a person would.
#include "Arguments.h"
#include "CommandTable.h"
#include "Stage.h"
#include "Widgets.h"

#include <QAction>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

// A person can only work what he sees.
QWidget* VisibleWidget(Stage& stage, Arguments& arguments) {
    QWidget* widget = stage.Widget(arguments.Take("the widget"));
    if (!Shows(widget))
        Fail(u"%1 is hidden"_s.arg(widget->objectName()));
    return widget;
}

void Start(Stage& stage, Arguments&) {
    stage.Start();
}

void Click(Stage& stage, Arguments& arguments) {
    ClickOn(VisibleWidget(stage, arguments));
}

void DoubleClick(Stage& stage, Arguments& arguments) {
    DoubleClickRow(VisibleWidget(stage, arguments));
}

void Type(Stage& stage, Arguments& arguments) {
    QWidget* widget = VisibleWidget(stage, arguments);
    TypeInto(widget, arguments.Take("the text"));
}

// tick NAME, or tick LIST row N
void TakeTick(Stage& stage, Arguments& arguments, bool ticked) {
    QWidget* widget = VisibleWidget(stage, arguments);
    if (arguments.TakeWord("row"_L1))
        SetRowTick(widget, arguments.TakeNumber("the row"), ticked);
    else
        SetTick(widget, ticked);
}

void Tick(Stage& stage, Arguments& arguments) {
    TakeTick(stage, arguments, true);
}

void Untick(Stage& stage, Arguments& arguments) {
    TakeTick(stage, arguments, false);
}

void Select(Stage& stage, Arguments& arguments) {
    QWidget* widget = VisibleWidget(stage, arguments);
    SelectItem(widget, arguments.Take("the item"));
}

void Row(Stage& stage, Arguments& arguments) {
    QWidget* widget = VisibleWidget(stage, arguments);
    SelectRow(widget, arguments.TakeNumber("the row"));
}

void Key(Stage& stage, Arguments& arguments) {
    QWidget* widget = VisibleWidget(stage, arguments);
    PressKey(widget, arguments.Take("the key"));
}

void Tab(Stage& stage, Arguments& arguments) {
    const QString caption = arguments.Take("the caption");
    for (QWidget* form : stage.ReachableForms())
        if (QWidget* strip = form->findChild<QWidget*>(u"TabStrip1"_s))
            for (int row = 0; row < RowCount(strip); ++row)
                if (RowText(strip, row) == caption) {
                    SelectRow(strip, row);
                    return;
                }
    Fail(u"there is no tab \"%1\""_s.arg(caption));
}

void Menu(Stage& stage, Arguments& arguments) {
    const QString name = arguments.Take("the menu item");
    for (QWidget* form : stage.ReachableForms())
        if (QAction* action = FindAction(form, name)) {
            // A disabled item refuses, as it would under the mouse.
            action->trigger();
            return;
        }
    Fail(u"there is no menu item %1"_s.arg(name));
}

// The cross of the window's frame.
void CloseForm(Stage& stage, Arguments& arguments) {
    const QString name = arguments.Take("the form");
    for (QWidget* form : stage.ReachableForms())
        if (form == stage.dialogs.FormWidget(name)) {
            form->close();
            return;
        }
    Fail(u"%1 is not open, or a modal form lies on it; open: %2"_s.arg(
        name, stage.dialogs.OpenForms().join(u", "_s)));
}

void Minimize(Stage& stage, Arguments&) {
    stage.Minimize();
}

void Foreground(Stage& stage, Arguments& arguments) {
    if (!arguments.TakeWord("other"_L1))
        Fail(u"foreground other"_s);
    stage.LeaveForeground();
}

void Answer(Stage& stage, Arguments& arguments) {
    const QString words = arguments.Take("words of the question");
    const QString answer = arguments.Take("the answer");
    using enum Dialogs::Answer;
    if (answer == u"Yes")
        stage.dialogs.answers.push_back({words, Yes});
    else if (answer == u"No")
        stage.dialogs.answers.push_back({words, No});
    else if (answer == u"Cancel")
        stage.dialogs.answers.push_back({words, Cancel});
    else
        Fail(u"Yes, No or Cancel, not %1"_s.arg(answer));
}

void ChooseFile(Stage& stage, Arguments& arguments) {
    const bool cancel = arguments.TakeWord("cancel"_L1);
    stage.dialogs.filesToChoose << (cancel ? QString() : stage.Path(arguments.Take("the path")));
}

void On(Stage& stage, Arguments& arguments) {
    arguments.Take("the form");
    stage.play->AddBlock(arguments.Source());
}

} // namespace

const CommandRows& ActingCommands() {
    static const CommandRows rows{
        {"start", "", Start},
        {"click", "control", Click},
        {"double-click", "control", DoubleClick},
        {"type", "control word", Type},
        {"tick", "control row? number?", Tick},
        {"untick", "control row? number?", Untick},
        {"choose", "control", Tick},
        {"select", "control word", Select},
        {"row", "control number", Row},
        {"key", "control word", Key},
        {"tab", "word", Tab},
        {"menu", "item", Menu},
        {"close", "form", CloseForm},
        {"minimize", "", Minimize},
        {"foreground", "other", Foreground},
        {"answer", "word Yes|No|Cancel", Answer},
        {"choose-file", "word", ChooseFile},
        {"on", "form", On},
    };
    return rows;
}

} // namespace qlm::scenario
