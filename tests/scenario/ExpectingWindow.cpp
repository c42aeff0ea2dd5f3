// SPDX-License-Identifier: MIT
// Expectations about what the program says and shows as a whole.
#include "Arguments.h"
#include "CommandTable.h"
#include "Expect.h"
#include "Stage.h"
#include "StateFields.h"
#include "Widgets.h"

#include <algorithm>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

ScenarioDialogs::Box NextMessage(Stage& stage) {
    auto& messages = stage.dialogs.messages;
    if (messages.empty())
        Fail(u"no message box has come up; %1"_s.arg(stage.Describe()));
    ScenarioDialogs::Box box = messages.front();
    messages.erase(messages.begin());
    return box;
}

void MessageBegins(Stage& stage, Arguments& arguments) {
    const QString text = arguments.Take("the text");
    ExpectText(u"the beginning of the message"_s, text, NextMessage(stage).text.left(text.size()));
}

void Message(Stage& stage, Arguments& arguments) {
    const QString text = arguments.Take("the text");
    const ScenarioDialogs::Box box = NextMessage(stage);
    ExpectText(u"the message"_s, text, box.text);
    if (arguments.TakeWord("titled"_L1))
        ExpectText(u"the message's title"_s, arguments.Take("the title"), box.title);
}

void NoMessage(Stage& stage, Arguments&) {
    if (!stage.dialogs.messages.empty())
        Fail(u"a message box has come up: \"%1\""_s.arg(stage.dialogs.messages.front().text));
}

void Question(Stage& stage, Arguments& arguments) {
    const QString text = arguments.Take("the text");
    auto& questions = stage.dialogs.questions;
    if (questions.empty())
        Fail(u"no question has come up; %1"_s.arg(stage.Describe()));
    const ScenarioDialogs::Box box = questions.front();
    questions.erase(questions.begin());
    ExpectText(u"the question"_s, text, box.text);
    if (arguments.TakeWord("titled"_L1))
        ExpectText(u"the question's title"_s, arguments.Take("the title"), box.title);
}

bool IsSeen(Stage& stage, const QString& form) {
    const std::vector<QWidget*> forms = stage.OpenForms();
    return std::ranges::find(forms, stage.dialogs.FormWidget(form)) != forms.end();
}

void Form(Stage& stage, Arguments& arguments) {
    const QString form = arguments.Take("the form");
    if (!IsSeen(stage, form))
        Fail(u"%1 is not open; open: %2"_s.arg(form, stage.dialogs.OpenForms().join(u", "_s)));
}

void NoForm(Stage& stage, Arguments& arguments) {
    const QString form = arguments.Take("the form");
    if (IsSeen(stage, form))
        Fail(u"%1 is open"_s.arg(form));
}

void Cover(Stage& stage, Arguments& arguments) {
    const QString place = arguments.Take("front or back");
    const bool isFront = stage.Browser(BrowserName::webHide).Position() == 0;
    if (place != u"front" && place != u"back")
        Fail(u"front or back, not %1"_s.arg(place));
    ExpectText(u"the cover"_s, place, isFront ? u"front"_s : u"back"_s);
}

void ExpectAttention(Stage& stage, Arguments& arguments) {
    const QString kind = arguments.Take("the kind");
    QStringList& calls = stage.AttentionCalls();
    if (kind == u"none") {
        ExpectText(u"the calls for attention"_s, {}, calls.join(u", "_s));
        return;
    }
    if (kind != u"sound" && kind != u"flash" && kind != u"restore")
        Fail(u"sound, flash, restore or none, not %1"_s.arg(kind));
    const auto call =
        std::find_if(calls.begin(), calls.end(), [&](const QString& text) { return text.startsWith(kind); });
    if (call == calls.end())
        Fail(u"no %1; seen: %2"_s.arg(kind, calls.isEmpty() ? u"none"_s : calls.join(u", "_s)));
    calls.erase(call);
}

// expect opened folder PATH | file PATH | address URL | none
void Opened(Stage& stage, Arguments& arguments) {
    const QString kind = arguments.Take("folder, file, address or none");
    QStringList& opened = stage.Opened();
    if (kind == u"none") {
        ExpectText(u"what was opened"_s, {}, opened.join(u", "_s));
        return;
    }
    const QString what = arguments.Take("the path or address");
    const QString seen = opened.isEmpty() ? u"nothing"_s : opened.takeFirst();
    ExpectText(u"what was opened"_s, kind + u' ' + (kind == u"address" ? what : stage.Path(what)), seen);
}

void Focus(Stage& stage, Arguments& arguments) {
    const QString name = arguments.Take("the widget");
    const QWidget* wanted = stage.SeenWidget(name);
    const QWidget* focused = wanted->window()->focusWidget();
    if (focused != wanted)
        Fail(u"the focus is on %1, not on %2"_s.arg(focused ? focused->objectName() : u"nothing"_s, name));
}

void Status(Stage& stage, Arguments& arguments) {
    const QString text = arguments.Take("the status");
    ExpectText(u"the status"_s, text, stage.TheApp().Status());
    if (const QWidget* line = stage.SeenWidgetOrNull(u"myfraCurrentAction"_s))
        ExpectText(u"the status line of the window"_s, text, ShownText(line));
}

void Action(Stage& stage, Arguments& arguments) {
    const QString word = arguments.Take("the activity");
    const QString action = stage.TheApp().state.CurrentAction;
    ExpectText(u"the activity"_s, word, action.isEmpty() ? u"none"_s : action);
}

void State(Stage& stage, Arguments& arguments) {
    const QString name = arguments.Take("the field");
    const QString expected = arguments.Take("the value");
    const RunState& state = stage.TheApp().state;
    if (!SameStateText(state, name, expected))
        ExpectText(name, expected, ReadStateField(state, name));
}

void List(Stage& stage, Arguments& arguments) {
    QStringList expected = arguments.TakeAll();
    if (expected == QStringList{u"empty"_s})
        expected = {QString()};
    ExpectText(u"the gathered list"_s, expected.join(u' '),
               stage.TheApp().state.arrFriendIDs.ToStringList().join(u' '));
}

void Foreground(Stage& stage, Arguments&) {
    if (!stage.IsForeground())
        Fail(u"another program's window is in front"_s);
}

void Elapsed(Stage& stage, Arguments& arguments) {
    const qint64 from = arguments.TakeDurationMs("the least");
    const qint64 to = arguments.IsEmpty() ? from : arguments.TakeDurationMs("the most");
    const qint64 elapsed = stage.NowMs() - stage.markMs;
    if (elapsed < from || elapsed > to)
        Fail(u"%1 ms have passed since the mark"_s.arg(elapsed));
}

void ContextMenu(Stage& stage, Arguments& arguments) {
    const QString kind = arguments.Take("shown or none");
    ExpectText(u"the page's menu"_s, kind, stage.TheMachine().IsContextMenuShown() ? u"shown"_s : u"none"_s);
}

} // namespace

const CommandRows& ExpectingWindowCommands() {
    static const CommandRows rows{
        {"expect message", "word titled? word?", Message},
        {"expect message begins", "word", MessageBegins},
        {"expect foreground", "", Foreground},
        {"expect no message", "", NoMessage},
        {"expect question", "word titled? word?", Question},
        {"expect form", "form", Form},
        {"expect no form", "form", NoForm},
        {"expect cover", "front|back", Cover},
        {"expect attention", "sound|flash|restore|none", ExpectAttention},
        {"expect opened", "folder|file|address|none word?", Opened},
        {"expect focus", "control", Focus},
        {"expect status", "word", Status},
        {"expect action", "word", Action},
        {"expect step", "field word", State},
        {"expect state", "field word", State},
        {"expect list", "*", List},
        {"expect elapsed", "duration duration?", Elapsed},
        {"expect context-menu", "shown|none", ContextMenu},
    };
    return rows;
}

} // namespace qlm::scenario
