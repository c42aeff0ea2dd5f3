// SPDX-License-Identifier: MIT
#include "EngineWords.h"

#include <QFileInfo>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

// The beginning of a command, and a word that has to follow somewhere.
struct Row {
    const char16_t* command;
    const char16_t* word;
};

const std::vector<Row>& Rows() {
    static const std::vector<Row> rows{
        {u"status-text", u""},         // the engine has no status texts of its own to be told
        {u"right-click", u""},         // offscreen there is no mouse
        {u"expect context-menu", u""}, //
        {u"expect ran", u""},          // the engine doesn't tell which scripts it runs
        {u"expect elapsed", u""},      // what the engine needs counts as many times as the clock is faster
        {u"fault", u"nobody"},         // the engine makes a body of every answer
    };
    return rows;
}

QString Refused(const Command& command) {
    if (command.words.first() == u"after") {
        Command later = command;
        later.words = command.words.mid(2);
        return later.words.isEmpty() ? QString() : Refused(later);
    }
    const QString line = command.words.join(u' ');
    for (const Row& row : Rows()) {
        const QString begin = QString::fromUtf16(row.command);
        const QString word = QString::fromUtf16(row.word);
        if ((line == begin || line.startsWith(begin + u' ')) &&
            (word.isEmpty() || command.words.contains(word)))
            return word.isEmpty() ? begin : begin + u" ... "_s + word;
    }
    // Stands in for a script, which the engine would want to be one.
    const qsizetype standIn = line.indexOf(u"data-on-"_s);
    return standIn < 0 ? QString() : line.mid(standIn).section(u'=', 0, 0);
}

} // namespace

QString WordOfSimulationAlone(const std::vector<Command>& script) {
    for (const Command& command : script) {
        if (const QString word = Refused(command); !word.isEmpty())
            return u"%1:%2: only the simulated browser knows \"%3\""_s.arg(command.file)
                .arg(command.line)
                .arg(word);
        if (const QString inner = WordOfSimulationAlone(command.block); !inner.isEmpty())
            return inner;
    }
    return {};
}

} // namespace qlm::scenario
