// SPDX-License-Identifier: MIT
#pragma once

#include "Address.h"

#include <algorithm>
#include <stdexcept>

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

/// Thrown for a line that makes no sense; its text goes back to whoever sent the line.
struct BadControl : std::runtime_error {
    explicit BadControl(const QString& text) : std::runtime_error(text.toStdString()) {}
};

/// The words of a line behind the command, read one after another.
class Arguments {
public:
    explicit Arguments(const QStringList& words) : m_words(words) {}

    bool AtEnd() const { return m_next >= m_words.size(); }
    QString Word() {
        if (AtEnd())
            throw BadControl(u"something is missing at the end"_s);
        return m_words[m_next++];
    }
    qint64 Number() {
        const QString word = Word();
        bool ok = false;
        const qint64 number = word.toLongLong(&ok);
        if (!ok || !IsDigits(word))
            throw BadControl(u"not a number: "_s + word);
        return number;
    }
    int Count() { return static_cast<int>(std::min<qint64>(Number(), 1000000)); }
    bool OnOff() {
        const QString word = Word();
        if (word != "on"_L1 && word != "off"_L1)
            throw BadControl(u"neither on nor off: "_s + word);
        return word == "on"_L1;
    }
    bool NextIs(QLatin1StringView word) {
        const bool is = !AtEnd() && m_words[m_next] == word;
        m_next += is ? 1 : 0;
        return is;
    }
    void Expect(QLatin1StringView word) {
        if (!NextIs(word))
            throw BadControl(u"expected: "_s + word);
    }
    void End() const {
        if (!AtEnd())
            throw BadControl(u"too much: "_s + m_words[m_next]);
    }

private:
    QStringList m_words;
    qsizetype m_next = 0;
};

/// `wrong` is "" or what is wrong with the line.
inline void RefuseIfWrong(const QString& wrong) {
    if (!wrong.isEmpty())
        throw BadControl(wrong);
}

} // namespace qlm::practice
