// SPDX-License-Identifier: MIT
#include "Check.h"
#include "Arguments.h"
#include "CommandTable.h"
#include "KnownNames.h"
#include "StateFields.h"

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto Browsers = "WebBrowser1|webHide|webTemp|webNews|webPreview"_L1;

bool IsNumber(const QString& word) {
    bool isNumber = false;
    word.toInt(&isNumber);
    return isNumber;
}

bool IsDuration(const QString& word) {
    Command command;
    command.words = {word};
    try {
        Arguments(command, [](const QString& text) { return text; }).TakeDurationMs("");
    } catch (const ScenarioFailure&) {
        return false;
    }
    return true;
}

// Empty when the word can stand where that kind of argument is wanted.
QString ProblemOf(const QString& kind, const QString& word, const KnownNames* names) {
    if (word.contains(u'{') || kind == u"word" || kind == u"command")
        return {};
    if (kind == u"number")
        return IsNumber(word) ? QString() : u"no number: "_s + word;
    if (kind == u"duration")
        return IsDuration(word) ? QString() : u"no length of time such as 3000ms, 5s, 2m or 1h: "_s + word;
    if (kind == u"control")
        return !names || names->IsControl(word) ? QString() : u"there is no control "_s + word;
    if (kind == u"form")
        return !names || names->IsForm(word) ? QString() : u"there is no form "_s + word;
    if (kind == u"item")
        return !names || names->IsMenuItem(word) ? QString() : u"there is no menu item "_s + word;
    if (kind == u"field")
        return !names || HasStateField(word) ? QString() : u"the run state has no field "_s + word;
    const QString choices = kind == u"browser" ? QString(Browsers) : kind;
    return choices.split(u'|').contains(word) ? QString() : u"%1, not %2"_s.arg(choices, word);
}

QString ProblemOfWords(const QStringList& words, const KnownNames* names) {
    const FoundCommand found = FindCommand(words);
    if (!found.row)
        return u"there is no such command"_s;
    qsizetype at = found.words;
    const QString wanted = QString::fromLatin1(found.row->arguments);
    for (QString kind : wanted.split(u' ', Qt::SkipEmptyParts)) {
        if (kind == u"*")
            return {};
        const bool mayBeMissing = kind.endsWith(u'?');
        if (mayBeMissing)
            kind.chop(1);
        if (kind == u"command" && at < words.size())
            return ProblemOfWords(words.mid(at), names);
        const QString problem =
            at < words.size() ? ProblemOf(kind, words[at], names) : kind + u" is missing"_s;
        if (problem.isEmpty())
            ++at;
        else if (!mayBeMissing)
            return problem;
    }
    return at < words.size() ? u"too much: "_s + words[at] : QString();
}

} // namespace

std::vector<ScenarioFailure> ProblemsOf(const std::vector<Command>& script, const KnownNames* names) {
    std::vector<ScenarioFailure> problems;
    for (const Command& command : script) {
        if (const QString problem = ProblemOfWords(command.words, names); !problem.isEmpty())
            problems.push_back({problem, command.file, command.line, command.source});
        for (ScenarioFailure& inner : ProblemsOf(command.block, names))
            problems.push_back(std::move(inner));
    }
    return problems;
}

} // namespace qlm::scenario
