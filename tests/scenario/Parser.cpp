// SPDX-License-Identifier: MIT
#include "Parser.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int MaxIncludeDepth = 10;

QStringList LinesOf(QString text) {
    text.remove(u'\r');
    if (text.endsWith(u'\n'))
        text.chop(1);
    return text.split(u'\n');
}

class WordSplitter {
public:
    explicit WordSplitter(const QString& line) : m_line(line) {}

    QStringList Split() {
        while (SkipBlanks() && !AtRemark())
            m_words << NextWord();
        return m_words;
    }

private:
    bool SkipBlanks() {
        while (m_at < m_line.size() && m_line[m_at].isSpace())
            ++m_at;
        return m_at < m_line.size();
    }

    // "#id" names an element: after the first word a remark needs a blank after its "#".
    bool AtRemark() const {
        if (m_line[m_at] != u'#')
            return false;
        return m_words.isEmpty() || m_at + 1 == m_line.size() || m_line[m_at + 1].isSpace();
    }

    QString NextWord() {
        QString word;
        while (m_at < m_line.size() && !m_line[m_at].isSpace()) {
            if (m_line[m_at] == u'"')
                word += Quoted();
            else
                word += m_line[m_at++];
        }
        return word;
    }

    QString Quoted() {
        QString text;
        for (++m_at; m_at < m_line.size() && m_line[m_at] != u'"'; ++m_at)
            if (m_line[m_at] == u'\\')
                text += Escaped();
            else
                text += m_line[m_at];
        if (m_at == m_line.size())
            throw ScenarioFailure{u"a quoted text does not end on its line"_s, {}, 0};
        ++m_at;
        return text;
    }

    // A backslash before any other sign stands for itself: "Counters\a@example.com".
    QString Escaped() {
        if (++m_at == m_line.size())
            throw ScenarioFailure{u"a quoted text does not end on its line"_s, {}, 0};
        const QChar c = m_line[m_at];
        if (c == u'n')
            return u"\n"_s;
        if (c == u'"' || c == u'\\')
            return c;
        return QString(u'\\') + c;
    }

    const QString& m_line;
    qsizetype m_at = 0;
    QStringList m_words;
};

class Parser {
public:
    Parser(const QString& text, const QString& path, int depth)
        : m_lines(LinesOf(text)), m_path(path), m_depth(depth) {}

    std::vector<Command> Parse() { return Block(false); }

private:
    // The commands up to "end", or to the end of the file.
    std::vector<Command> Block(bool needsEnd) {
        std::vector<Command> commands;
        const int start = m_at;
        while (m_at < m_lines.size()) {
            Command command = Next();
            if (command.words.isEmpty())
                continue;
            if (command.words.first() == u"end") {
                if (!needsEnd)
                    Fail(u"\"end\" ends nothing"_s);
                return commands;
            }
            Add(commands, std::move(command));
        }
        if (needsEnd)
            Fail(u"no \"end\" for the block that begins here"_s, start);
        return commands;
    }

    void Add(std::vector<Command>& commands, Command command) {
        const QString& name = command.words.first();
        if (name == u"on") {
            command.block = Block(true);
            commands.push_back(std::move(command));
        } else if (name == u"repeat") {
            const int times = command.words.value(1).toInt();
            if (times < 1 || command.words.size() != 2)
                Fail(u"repeat needs a number"_s);
            const std::vector<Command> body = Block(true);
            for (int i = 0; i < times; ++i)
                commands.insert(commands.end(), body.begin(), body.end());
        } else if (name == u"include") {
            Include(commands, command);
        } else {
            commands.push_back(std::move(command));
        }
    }

    void Include(std::vector<Command>& commands, const Command& command) {
        if (command.words.size() != 2)
            Fail(u"include needs a file"_s);
        if (m_depth == MaxIncludeDepth)
            Fail(u"files include one another"_s);
        const QString path = QFileInfo(m_path).dir().filePath(command.words[1]);
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            Fail(u"cannot read %1"_s.arg(path));
        Parser parser(QString::fromUtf8(file.readAll()), path, m_depth + 1);
        for (Command& included : parser.Parse())
            commands.push_back(std::move(included));
    }

    Command Next() {
        Command command;
        command.file = m_path;
        command.source = m_lines[m_at].trimmed();
        command.line = ++m_at;
        try {
            command.words = SplitWords(m_lines[m_at - 1]);
        } catch (const ScenarioFailure& failure) {
            Fail(failure.text);
        }
        if (!command.words.isEmpty() && command.words.last().startsWith(u"<<") &&
            command.words.last().size() > 2)
            ReadText(command);
        return command;
    }

    // Lines up to the end word, kept as they are.
    void ReadText(Command& command) {
        const QString endWord = command.words.takeLast().mid(2);
        QStringList text;
        while (m_at < m_lines.size() && m_lines[m_at].trimmed() != endWord)
            text << m_lines[m_at++];
        if (m_at == m_lines.size())
            Fail(u"no line \"%1\" ends the text"_s.arg(endWord), command.line);
        ++m_at;
        command.words << text.join(u'\n');
        command.lastIsText = true;
    }

    [[noreturn]] void Fail(const QString& text, int line = 0) const {
        throw ScenarioFailure{text, m_path, line > 0 ? line : m_at};
    }

    QStringList m_lines;
    QString m_path;
    int m_depth;
    int m_at = 0;
};

} // namespace

QStringList SplitWords(const QString& line) {
    return WordSplitter(line).Split();
}

std::vector<Command> ParseScenario(const QString& text, const QString& path) {
    return Parser(text, path, 0).Parse();
}

std::vector<Command> ParseScenarioFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw ScenarioFailure{u"cannot be read"_s, path, 0};
    return ParseScenario(QString::fromUtf8(file.readAll()), path);
}

} // namespace qlm::scenario
