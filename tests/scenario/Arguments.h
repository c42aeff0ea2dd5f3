// SPDX-License-Identifier: MIT
#pragma once

#include "Command.h"

#include <QDateTime>
#include <functional>

namespace qlm::scenario {

// The words after a command's name, with {names} replaced, read from left to right. Every Take fails the
// scenario when the word is missing or is not what it should be.
class Arguments {
public:
    using Expander = std::function<QString(const QString&)>;

    Arguments(const Command& command, Expander expand) : m_command(command), m_expand(std::move(expand)) {}

    bool IsEmpty() const { return m_at >= m_command.words.size(); }
    // The next word as it stands; empty at the end.
    QString Peek() const { return m_command.words.value(m_at); }
    // Skips the next word when it is this one.
    bool TakeWord(QLatin1StringView word);
    QString Take(const char* what);
    int TakeNumber(const char* what);
    // "3000ms", "5s", "2m", "1h".
    qint64 TakeDurationMs(const char* what);
    QStringList TakeAll();
    // What is left, as it stands in the file.
    QStringList TakeAsWritten();
    // A text that came from <<END, or given as one word, as lines; an empty text has none.
    QStringList TakeLines();
    // Nothing may be left over.
    void End() const;

    const Command& Source() const { return m_command; }

private:
    const Command& m_command;
    Expander m_expand;
    qsizetype m_at = 0;
};

[[noreturn]] void Fail(const QString& text);

} // namespace qlm::scenario
