// SPDX-License-Identifier: MIT
// Commands that let time pass, and that end the program.
#include "Arguments.h"
#include "CommandTable.h"
#include "Stage.h"

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

// Long enough for a day of pacing.
constexpr qint64 DefaultLimitMs = 24LL * 60 * 60 * 1000;

// Commands that say when the next one comes; who acts behind the script's back can't.
bool LetsTimePass(const Command& command) {
    static const QStringList words{u"run"_s, u"wait"_s, u"restart"_s, u"after"_s, u"on"_s};
    return words.contains(command.words.first());
}

void RunTo(Stage& stage, Arguments& arguments, Goal goal) {
    const qint64 limitMs =
        arguments.TakeWord("limit"_L1) ? arguments.TakeDurationMs("the limit") : DefaultLimitMs;
    goal.limitMs = stage.NowMs() + limitMs;
    stage.play->SetGoal(std::move(goal));
}

void Run(Stage& stage, Arguments& arguments) {
    RunTo(stage, arguments,
          {[&stage] { return stage.IsIdle(); }, true, 0, false, u"the program to be idle"_s});
}

void RunUntilStatus(Stage& stage, Arguments& arguments) {
    const QString text = arguments.Take("the status");
    RunTo(stage, arguments,
          {[&stage, text] { return stage.HasProgram() && stage.TheApp().Status() == text; }, false, 0, false,
           u"the status \"%1\""_s.arg(text)});
}

void RunUntilAction(Stage& stage, Arguments& arguments) {
    const QString word = arguments.Take("the activity");
    const QString action = word == u"none" ? QString() : word;
    RunTo(stage, arguments,
          {[&stage, action] { return stage.HasProgram() && stage.TheApp().state.CurrentAction == action; },
           false, 0, false, u"the activity "_s + word});
}

void RunUntilMessage(Stage& stage, Arguments& arguments) {
    RunTo(stage, arguments,
          {[&stage] { return !stage.dialogs.messages.empty(); }, false, 0, false, u"a message"_s});
}

void RunUntilUrl(Stage& stage, Arguments& arguments) {
    const QString part = arguments.Take("a part of the address");
    RunTo(stage, arguments,
          {[&stage, part] { return stage.Browser(BrowserName::WebBrowser1).LocationURL().contains(part); },
           false, 0, false, u"an address with "_s + part});
}

void Wait(Stage& stage, Arguments& arguments) {
    Goal goal;
    goal.limitMs = stage.NowMs() + arguments.TakeDurationMs("the time");
    goal.limitIsSuccess = true;
    stage.play->SetGoal(std::move(goal));
}

void Mark(Stage& stage, Arguments&) {
    stage.markMs = stage.NowMs();
}

void StopAt(Stage& stage, Arguments& arguments) {
    stage.play->StopAt(arguments.Take("the text of a debug line"));
}

// The user does it when that time has passed, whatever the program is at.
void After(Stage& stage, Arguments& arguments) {
    const qint64 delayMs = arguments.TakeDurationMs("the time");
    Command command = arguments.Source();
    command.words = arguments.TakeAsWritten();
    if (command.words.isEmpty())
        Fail(u"a command is missing"_s);
    if (LetsTimePass(command))
        Fail(u"%1 lets time pass itself"_s.arg(command.words.first()));
    stage.play->PutOff(delayMs, command);
}

void Restart(Stage& stage, Arguments& arguments) {
    Command close = arguments.Source();
    close.words = QStringList{u"restart:close"_s};
    Command start = arguments.Source();
    start.words = QStringList{u"start"_s};
    stage.play->Insert({close, start});
}

// The window is closed as by the user; a step that is running gets the time to leave its waits.
void Close(Stage& stage, Arguments& arguments) {
    stage.Close();
    RunTo(stage, arguments, {[&stage] { return stage.HasEnded(); }, true, 0, false, u"the program's end"_s});
}

void Kill(Stage& stage, Arguments&) {
    stage.play->Kill();
}

void CrashAtWrite(Stage& stage, Arguments& arguments) {
    stage.world.gate.CrashAtWrite(arguments.TakeNumber("the number of the write"));
}

} // namespace

const CommandRows& RunningCommands() {
    static const CommandRows rows{
        {"run", "limit? duration?", Run},
        {"run until status", "word limit? duration?", RunUntilStatus},
        {"run until action", "word limit? duration?", RunUntilAction},
        {"run until message", "limit? duration?", RunUntilMessage},
        {"run until url", "word limit? duration?", RunUntilUrl},
        {"wait", "duration", Wait},
        {"mark", "", Mark},
        {"stop-at", "word", StopAt},
        {"after", "duration command", After},
        {"restart", "", Restart},
        {"restart:close", "", Close},
        {"kill", "", Kill},
        {"crash-at-write", "number", CrashAtWrite},
    };
    return rows;
}

} // namespace qlm::scenario
