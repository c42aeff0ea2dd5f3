// SPDX-License-Identifier: MIT
#include "Arguments.h"

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

void Fail(const QString& text) {
    throw ScenarioFailure{text, {}, 0};
}

bool Arguments::TakeWord(QLatin1StringView word) {
    if (IsEmpty() || Peek() != word)
        return false;
    ++m_at;
    return true;
}

QString Arguments::Take(const char* what) {
    if (IsEmpty())
        Fail(u"%1 is missing"_s.arg(QLatin1StringView(what)));
    return m_expand(m_command.words[m_at++]);
}

int Arguments::TakeNumber(const char* what) {
    const QString word = Take(what);
    bool isNumber = false;
    const int number = word.toInt(&isNumber);
    if (!isNumber)
        Fail(u"%1 is no number: %2"_s.arg(QLatin1StringView(what), word));
    return number;
}

qint64 Arguments::TakeDurationMs(const char* what) {
    struct Unit {
        QLatin1StringView name;
        qint64 milliseconds;
    };
    static constexpr Unit units[]{{"ms"_L1, 1}, {"s"_L1, 1000}, {"m"_L1, 60'000}, {"h"_L1, 3'600'000}};
    const QString word = Take(what);
    for (const Unit& unit : units) {
        bool isNumber = false;
        if (!word.endsWith(unit.name))
            continue;
        const double number = word.chopped(unit.name.size()).toDouble(&isNumber);
        if (isNumber && number >= 0)
            return static_cast<qint64>(number * static_cast<double>(unit.milliseconds));
    }
    Fail(u"%1 is no length of time such as 3000ms, 5s, 2m or 1h: %2"_s.arg(QLatin1StringView(what), word));
}

QStringList Arguments::TakeAll() {
    QStringList words;
    while (!IsEmpty())
        words << Take("");
    return words;
}

QStringList Arguments::TakeAsWritten() {
    const qsizetype from = std::exchange(m_at, m_command.words.size());
    return m_command.words.mid(from);
}

QStringList Arguments::TakeLines() {
    const QString text = Take("the lines");
    return text.isEmpty() ? QStringList() : text.split(u'\n');
}

void Arguments::End() const {
    if (!IsEmpty())
        Fail(u"too much: %1"_s.arg(Peek()));
}

} // namespace qlm::scenario
