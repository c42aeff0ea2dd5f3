// SPDX-License-Identifier: MIT
#include "platform/sim/SimStandIns.h"

#include <QStringList>
#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct VerbRow {
    QStringView word;
    StandIn::Verb verb;
};

constexpr auto verbs = std::to_array<VerbRow>({
    {u"goto", StandIn::Verb::Goto},
    {u"show", StandIn::Verb::Show},
    {u"hide", StandIn::Verb::Hide},
    {u"set", StandIn::Verb::Set},
    {u"remove", StandIn::Verb::Remove},
    {u"append", StandIn::Verb::Append},
    {u"submit", StandIn::Verb::Submit},
    {u"click", StandIn::Verb::Click},
    {u"send", StandIn::Verb::Send},
});

std::optional<StandIn::Verb> VerbOf(const QString& word) {
    const auto row = std::ranges::find(verbs, QStringView(word), &VerbRow::word);
    return row == verbs.end() ? std::nullopt : std::optional(row->verb);
}

QString TakeWord(QString& text) {
    text = text.trimmed();
    qsizetype end = 0;
    while (end < text.size() && !text[end].isSpace())
        ++end;
    const QString word = text.left(end);
    text = text.mid(end).trimmed();
    return word;
}

bool BeginsAct(QString text) {
    const QString word = TakeWord(text);
    return word == u"after" || VerbOf(word);
}

// A ";" inside a style or an entity belongs to its act: only one before a known word divides.
QStringList SplitActs(const QString& text) {
    QStringList acts;
    for (const QString& part : text.split(u';')) {
        if (acts.isEmpty() || BeginsAct(part))
            acts += part;
        else
            acts.last() += u';' + part;
    }
    return acts;
}

std::optional<StandIn> ParseAct(QString text) {
    StandIn act{};
    QString word = TakeWord(text);
    if (word == u"after") {
        act.afterMs = ParseDuration(TakeWord(text));
        word = TakeWord(text);
    }
    const std::optional<StandIn::Verb> verb = VerbOf(word);
    if (!verb || act.afterMs < 0)
        return std::nullopt;
    act.verb = *verb;
    act.target = TakeWord(text);
    if (act.verb == StandIn::Verb::Set)
        act.name = TakeWord(text);
    act.argument = text;
    if (act.verb != StandIn::Verb::Goto) {
        if (!act.target.startsWith(u'#'))
            return std::nullopt;
        act.target.remove(0, 1);
    }
    return act.target.isEmpty() ? std::nullopt : std::optional(act);
}

} // namespace

int ParseDuration(const QString& text) {
    struct Unit {
        QStringView suffix;
        int milliseconds;
    };
    constexpr std::array<Unit, 4> units{{{u"ms", 1}, {u"s", 1000}, {u"m", 60000}, {u"h", 3600000}}};
    for (const Unit& unit : units) {
        if (!text.endsWith(unit.suffix))
            continue;
        bool isNumber = false;
        const double count = text.chopped(unit.suffix.size()).toDouble(&isNumber);
        if (isNumber && count >= 0)
            return static_cast<int>(std::lround(count * unit.milliseconds));
    }
    return -1;
}

StandIns ParseStandIns(const QString& text) {
    StandIns parsed;
    for (const QString& part : SplitActs(text)) {
        if (part.trimmed().isEmpty())
            continue;
        if (const std::optional<StandIn> act = ParseAct(part))
            parsed.acts.push_back(*act);
        else
            parsed.problem = u"not understood: "_s + part.trimmed();
    }
    return parsed;
}

} // namespace qlm
