// SPDX-License-Identifier: MIT
#include "Parser.h"
#include "Play.h"
#include "Stage.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <cstdio>

namespace {

using namespace qlm::scenario;
using namespace Qt::Literals::StringLiterals;

constexpr int TrailLines = 10;

struct Options {
    QStringList files;
    QString filter;
    bool list = false;
    bool trace = false;
};

const char Usage[] = "quillmere-scenario [--list] [--filter TEXT] [--trace] FILE...\n";

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
        else if (word == u"--trace")
            options.trace = true;
        else if (word == u"--filter" && !arguments.isEmpty())
            options.filter = arguments.takeFirst();
        else if (word.startsWith(u"--") && word != u"--browser=sim")
            return {};
        else if (!word.startsWith(u"--"))
            options.files << word;
    }
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

bool RunOne(const QString& file, const Options& options) {
    try {
        const std::vector<Command> script = ParseScenarioFile(file);
        Stage stage;
        Play play(stage, script);
        play.trace = options.trace;
        stage.play = &play;
        if (const std::optional<ScenarioFailure> failure = play.Run()) {
            Report(file, *failure, play.Current() ? play.Current()->source : QString(),
                   stage.DebugTrail(TrailLines));
            return false;
        }
    } catch (const ScenarioFailure& failure) {
        Report(file, failure, {}, {});
        return false;
    }
    Say(u"ok "_s + NameOf(file));
    return true;
}

// The offscreen platform tells what it can't do with windows that nobody sees.
void OnQtMessage(QtMsgType, const QMessageLogContext&, const QString& text) {
    if (!text.startsWith(u"This plugin does not support") &&
        !text.startsWith(u"QStandardPaths: XDG_RUNTIME_DIR"))
        std::fprintf(stderr, "%s\n", qUtf8Printable(text));
}

} // namespace

int main(int argc, char* argv[]) {
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
    int passed = 0;
    int failed = 0;
    for (const QString& file : options->files) {
        if (!file.contains(options->filter))
            continue;
        if (options->list) {
            Say(NameOf(file));
            continue;
        }
        ++(RunOne(file, *options) ? passed : failed);
        std::fflush(stdout);
    }
    if (!options->list)
        Say(u"%1 passed, %2 failed"_s.arg(passed).arg(failed));
    return failed == 0 ? 0 : 1;
}
