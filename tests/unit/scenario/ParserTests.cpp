// SPDX-License-Identifier: MIT
#include "Arguments.h"
#include "EngineWords.h"
#include "Parser.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace qlm::scenario {
namespace {

std::vector<Command> Parse(const QString& text) {
    return ParseScenario(text, u"test.scn"_s);
}

QString FailureOf(const QString& text) {
    try {
        Parse(text);
    } catch (const ScenarioFailure& failure) {
        return QString::number(failure.line) + u": "_s + failure.text;
    }
    return u"none"_s;
}

Arguments ArgumentsOf(const Command& command) {
    return Arguments(command, [](const QString& text) { return text; });
}

TEST(SplitWords, UndoesQuotesAlsoInsideAWord) {
    EXPECT_EQ(SplitWords(uR"(expect posted URL name="a b" "two\nlines" "say \"hi\" \\")"_s),
              (QStringList{u"expect"_s, u"posted"_s, u"URL"_s, u"name=a b"_s, u"two\nlines"_s,
                           u"say \"hi\" \\"_s}));
}

TEST(SplitWords, KeepsAnEmptyQuotedWord) {
    EXPECT_EQ(SplitWords(u"type txtAddress \"\""_s), (QStringList{u"type"_s, u"txtAddress"_s, QString()}));
}

TEST(SplitWords, TakesARemarkForOneOnlyWhereItCanBe) {
    EXPECT_EQ(SplitWords(u"# all of it"_s), QStringList());
    EXPECT_EQ(SplitWords(u"#all of it"_s), QStringList());
    EXPECT_EQ(SplitWords(u"start # then"_s), QStringList{u"start"_s});
    EXPECT_EQ(SplitWords(u"page-click #send"_s), (QStringList{u"page-click"_s, u"#send"_s}));
    EXPECT_EQ(SplitWords(u"expect page \"# 1\""_s), (QStringList{u"expect"_s, u"page"_s, u"# 1"_s}));
}

TEST(SplitWords, KeepsABackslashThatEscapesNothing) {
    EXPECT_EQ(SplitWords(uR"(setting "Counters\a" "Counters\\b")"_s),
              (QStringList{u"setting"_s, u"Counters\\a"_s, u"Counters\\b"_s}));
}

TEST(SplitWords, RefusesAnOpenQuote) {
    EXPECT_THROW(SplitWords(u"type x \"open"_s), ScenarioFailure);
    EXPECT_THROW(SplitWords(u"type x \"open\\"_s), ScenarioFailure);
}

TEST(EngineWords, NameWhatTheEngineCannotPlay) {
    struct Row {
        QString line;
        QString word;
    };
    for (const Row& row :
         {Row{u"status-text \"Done\""_s, u"status-text"_s}, Row{u"right-click"_s, u"right-click"_s},
          Row{u"expect context-menu none"_s, u"expect context-menu"_s},
          Row{u"expect elapsed 3s 5s"_s, u"expect elapsed"_s},
          Row{u"fault {ASK}/1 nobody times 2"_s, u"fault ... nobody"_s},
          Row{u"page x \"<a data-on-click='goto y'>\""_s, u"data-on-click"_s},
          Row{u"after 5s right-click"_s, u"right-click"_s},
          Row{u"on frmLog\n  right-click\nend"_s, u"right-click"_s}}) {
        const QString refusal = WordOfSimulationAlone(Parse(u"start\n"_s + row.line));
        EXPECT_TRUE(refusal.startsWith(u"test.scn:"_s)) << row.line.toStdString();
        EXPECT_TRUE(refusal.endsWith(u'"' + row.word + u'"')) << refusal.toStdString();
    }
    for (const QString& line :
         {u"start"_s, u"fault {ASK}/1 hang"_s, u"expect status \"x\""_s, u"page-click #right-click"_s})
        EXPECT_EQ(WordOfSimulationAlone(Parse(line)), QString()) << line.toStdString();
}

TEST(Parser, SkipsBlankLinesAndKeepsLineNumbers) {
    const std::vector<Command> commands = Parse(u"\n# remark\n\nstart\r\n  click cmdOK\n"_s);
    ASSERT_EQ(commands.size(), 2u);
    EXPECT_EQ(commands[0].line, 4);
    EXPECT_EQ(commands[1].words, (QStringList{u"click"_s, u"cmdOK"_s}));
    EXPECT_EQ(commands[1].line, 5);
    EXPECT_EQ(commands[1].source, u"click cmdOK"_s);
}

TEST(Parser, ReadsALongTextAsItStands) {
    const std::vector<Command> commands = Parse(u"page URL <<END\n<p>\"a\" # b</p>\n\n  x\nEND\nstart"_s);
    ASSERT_EQ(commands.size(), 2u);
    EXPECT_TRUE(commands[0].lastIsText);
    EXPECT_EQ(commands[0].words.last(), u"<p>\"a\" # b</p>\n\n  x"_s);
    EXPECT_EQ(commands[1].line, 6);
}

TEST(Parser, AnEmptyLongTextHasNoLines) {
    const std::vector<Command> commands = Parse(u"file x <<END\nEND"_s);
    Arguments arguments = ArgumentsOf(commands[0]);
    arguments.TakeWord("file"_L1);
    arguments.Take("path");
    EXPECT_TRUE(arguments.TakeLines().isEmpty());
}

TEST(Parser, WritesRepeatsOut) {
    const std::vector<Command> commands = Parse(u"repeat 2\nrepeat 2\nwait 1s\nend\nmark\nend\nstart"_s);
    QStringList names;
    for (const Command& command : commands)
        names << command.words.first();
    EXPECT_EQ(names.join(u' '), u"wait wait mark wait wait mark start"_s);
}

TEST(Parser, NestsBlocks) {
    const std::vector<Command> commands = Parse(u"on frmA\non frmB\nclick cmdOK\nend\nclick cmdGo\nend"_s);
    ASSERT_EQ(commands.size(), 1u);
    ASSERT_EQ(commands[0].block.size(), 2u);
    EXPECT_EQ(commands[0].block[0].block.size(), 1u);
}

TEST(Parser, TellsWhereAFileIsWrong) {
    EXPECT_EQ(FailureOf(u"start\nend"_s), u"2: \"end\" ends nothing"_s);
    EXPECT_TRUE(FailureOf(u"on frmA\nclick x"_s).startsWith(u"1: no \"end\""));
    EXPECT_TRUE(FailureOf(u"start\nfile x <<END\na"_s).startsWith(u"2: no line \"END\""));
    EXPECT_TRUE(FailureOf(u"repeat often\nend"_s).startsWith(u"1: "));
    EXPECT_TRUE(FailureOf(u"start\ntype x \"a"_s).startsWith(u"2: "));
}

TEST(Parser, IncludesAFileFromBesideItself) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"shared.inc"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("clock 2009-06-01 10:00:00\n");
    file.close();
    const std::vector<Command> commands =
        ParseScenario(u"include shared.inc\nstart"_s, folder.filePath(u"a.scn"_s));
    ASSERT_EQ(commands.size(), 2u);
    EXPECT_EQ(commands[0].words.first(), u"clock"_s);
    EXPECT_TRUE(commands[0].file.endsWith(u"shared.inc"));
    EXPECT_THROW(ParseScenario(u"include missing.inc"_s, folder.filePath(u"a.scn"_s)), ScenarioFailure);
}

TEST(Parser, FilesThatIncludeThemselvesAreRefused) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"self.inc"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("include self.inc\n");
    file.close();
    EXPECT_THROW(ParseScenarioFile(folder.filePath(u"self.inc"_s)), ScenarioFailure);
}

TEST(Arguments, ReadsLengthsOfTime) {
    const Command command{u""_s, 1, {}, {u"3000ms"_s, u"5s"_s, u"2m"_s, u"1h"_s, u"0.5s"_s, u"soon"_s},
                          false, {}};
    Arguments arguments = ArgumentsOf(command);
    EXPECT_EQ(arguments.TakeDurationMs(""), 3000);
    EXPECT_EQ(arguments.TakeDurationMs(""), 5000);
    EXPECT_EQ(arguments.TakeDurationMs(""), 120'000);
    EXPECT_EQ(arguments.TakeDurationMs(""), 3'600'000);
    EXPECT_EQ(arguments.TakeDurationMs(""), 500);
    EXPECT_THROW(arguments.TakeDurationMs(""), ScenarioFailure);
    EXPECT_THROW(arguments.Take("more"), ScenarioFailure);
}

TEST(Arguments, NothingMayBeLeftOver) {
    const Command command{u""_s, 1, {}, {u"click"_s, u"cmdOK"_s, u"now"_s}, false, {}};
    Arguments arguments = ArgumentsOf(command);
    arguments.TakeWord("click"_L1);
    arguments.Take("");
    EXPECT_THROW(arguments.End(), ScenarioFailure);
}

} // namespace
} // namespace qlm::scenario
