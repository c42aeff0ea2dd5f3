// SPDX-License-Identifier: MIT
#include "Runner.h"
#include "Check.h"
#include "KnownNames.h"
#include "Parser.h"
#include "Play.h"
#include "Stage.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QScopeGuard>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <map>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Options {
    QStringList files;
    QString filter;
    bool list = false;
    bool check = false;
    bool trace = false;
    bool figures = false;
    int speed = 20;
    int trailLines = 10; // of each debug file, shown with a failure
};

constexpr auto EngineWord = "--browser=webengine"_L1;

const char Usage[] =
    "quillmere-scenario [--list] [--check] [--filter TEXT] [--trace] [--trail LINES] [--figures]\n"
    "                   [--browser=sim|webengine] [--speed N] FILE...\n";

// How much was played, and what that took on this machine.
struct Figures {
    qint64 commands = 0;
    qint64 turns = 0; // of the program's message loop
    qint64 virtualMs = 0;
    double seconds = 0;
    double processorSeconds = 0;
};

void Say(const QString& text) {
    std::fputs(qUtf8Printable(text + u'\n'), stdout);
}

std::optional<Options> ReadOptions(QStringList arguments) {
    Options options;
    arguments.removeFirst();
    while (!arguments.isEmpty()) {
        const QString word = arguments.takeFirst();
        if (word == u"--list")
            options.list = true;
        else if (word == u"--check")
            options.check = true;
        else if (word == u"--trace")
            options.trace = true;
        else if (word == u"--figures")
            options.figures = true;
        else if (word == u"--trail" && !arguments.isEmpty())
            options.trailLines = arguments.takeFirst().toInt();
        else if (word == u"--speed" && !arguments.isEmpty())
            options.speed = arguments.takeFirst().toInt();
        else if (word == u"--filter" && !arguments.isEmpty())
            options.filter = arguments.takeFirst();
        else if (word.startsWith(u"--") && word != u"--browser=sim" && word != EngineWord)
            return {};
        else if (!word.startsWith(u"--"))
            options.files << word;
    }
    if (options.speed < 1)
        return {};
    return options;
}

QString NameOf(const QString& file) {
    return QFileInfo(file).dir().dirName() + u'/' + QFileInfo(file).completeBaseName();
}

void Report(const QString& file, const ScenarioFailure& failure, const QString& source,
            const QStringList& trail) {
    Say(u"FAIL "_s + NameOf(file));
    Say(u"  %1:%2: %3"_s.arg(failure.file.isEmpty() ? file : failure.file).arg(failure.line).arg(source));
    Say(u"  "_s + failure.text);
    for (const QString& line : trail)
        Say(u"    "_s + line);
    Say(u"  repeat: quillmere-scenario --trace "_s + file);
}

enum class Outcome { Passed, Failed, Refused };

Outcome RunOne(const QString& file, const Options& options, const Playing& playing, Figures& figures) {
    QElapsedTimer timer;
    timer.start();
    const std::clock_t processor = std::clock();
    const auto addTime = qScopeGuard([&] {
        figures.seconds += static_cast<double>(timer.nsecsElapsed()) / 1e9;
        figures.processorSeconds += static_cast<double>(std::clock() - processor) / CLOCKS_PER_SEC;
    });
    try {
        const std::vector<Command> script = ParseScenarioFile(file);
        if (const QString refusal = playing.refusal(script); !refusal.isEmpty()) {
            Say(u"REFUSED "_s + NameOf(file) + u"\n  "_s + refusal);
            return Outcome::Refused;
        }
        if (const std::vector<ScenarioFailure> problems = ProblemsOf(script, nullptr); !problems.empty()) {
            Report(file, problems.front(), problems.front().source, {});
            return Outcome::Failed;
        }
        Stage stage([&](SimWorld& world, Dialogs& dialogs) {
            return playing.makeMachine(world, dialogs, options.speed);
        });
        Play play(stage, script);
        play.trace = options.trace;
        stage.play = &play;
        const qint64 startMs = stage.NowMs();
        const std::optional<ScenarioFailure> failure = play.Run();
        figures.commands += play.Commands();
        figures.turns += play.Turns();
        figures.virtualMs += stage.NowMs() - startMs;
        if (failure) {
            Report(file, *failure, play.Current() ? play.Current()->source : QString(),
                   stage.DebugTrail(options.trailLines));
            return Outcome::Failed;
        }
    } catch (const ScenarioFailure& failure) {
        Report(file, failure, {}, {});
        return Outcome::Failed;
    }
    Say(u"ok "_s + NameOf(file));
    return Outcome::Passed;
}

// Reads the file and looks its words up, and runs nothing.
Outcome CheckOne(const QString& file) {
    try {
        const std::vector<ScenarioFailure> problems = ProblemsOf(ParseScenarioFile(file), &KnownNames::All());
        for (const ScenarioFailure& problem : problems)
            Say(u"%1:%2: %3"_s.arg(problem.file).arg(problem.line).arg(problem.text));
        Say((problems.empty() ? u"ok "_s : u"FAIL "_s) + NameOf(file));
        return problems.empty() ? Outcome::Passed : Outcome::Failed;
    } catch (const ScenarioFailure& failure) {
        Report(file, failure, {}, {});
        return Outcome::Failed;
    }
}

void ReportFigures(const Figures& figures) {
    auto msEach = [](double seconds, qint64 count) {
        return QString::number(seconds * 1000 / static_cast<double>(std::max<qint64>(count, 1)), 'f', 4);
    };
    auto report = [&](const QString& what, qint64 count) {
        Say(u"%1 %2: %3 ms each, %4 ms of the processor"_s.arg(count).arg(
            what, msEach(figures.seconds, count), msEach(figures.processorSeconds, count)));
    };
    report(u"commands"_s, figures.commands);
    report(u"turns of the message loop"_s, figures.turns);
    Say(u"%1 h of the program's time in %2 s, %3 s of the processor"_s
            .arg(static_cast<double>(figures.virtualMs) / 3'600'000, 0, 'f', 1)
            .arg(figures.seconds, 0, 'f', 1)
            .arg(figures.processorSeconds, 0, 'f', 1));
}

// The offscreen platform tells what it can't do with windows that nobody sees.
void OnQtMessage(QtMsgType, const QMessageLogContext&, const QString& text) {
    if (!text.startsWith(u"This plugin does not support") &&
        !text.startsWith(u"QStandardPaths: XDG_RUNTIME_DIR"))
        std::fprintf(stderr, "%s\n", qUtf8Printable(text));
}

} // namespace

bool WantsEngine(int argc, char* argv[]) {
    return std::any_of(argv + 1, argv + argc,
                       [](const char* word) { return EngineWord == QLatin1StringView(word); });
}

int RunScenarios(int argc, char* argv[], const Playing& playing) {
    // The platform's own screen is too small for a main window.
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" QUILLMERE_SCREEN);
    qInstallMessageHandler(OnQtMessage);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const std::optional<Options> options = ReadOptions(QCoreApplication::arguments());
    if (!options || options->files.isEmpty()) {
        std::fputs(Usage, stderr);
        return 2;
    }
    if (!options->list)
        KnownNames::All();
    std::map<Outcome, int> count;
    Figures figures;
    for (const QString& file : options->files) {
        if (!file.contains(options->filter))
            continue;
        if (options->list) {
            Say(NameOf(file));
            continue;
        }
        ++count[options->check ? CheckOne(file) : RunOne(file, *options, playing, figures)];
        std::fflush(stdout);
    }
    if (options->figures)
        ReportFigures(figures);
    if (count[Outcome::Refused] > 0)
        Say(u"%1 refused"_s.arg(count[Outcome::Refused]));
    if (!options->list)
        Say(u"%1 passed, %2 failed"_s.arg(count[Outcome::Passed]).arg(count[Outcome::Failed]));
    return count[Outcome::Failed] == 0 ? 0 : 1;
}

} // namespace qlm::scenario
