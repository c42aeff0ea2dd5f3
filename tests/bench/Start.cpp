// SPDX-License-Identifier: MIT
// How long the program takes to its login screen and to its window, and what it needs in memory beside a
// window with nothing but the engine. Each time in a process of its own: bench_start [TIMES]
#include "Figures.h"
#include "StartedProgram.h"

#include <QCoreApplication>
#include <QHash>
#include <QProcess>
#include <cstdio>
#include <cstring>
#include <unistd.h>

namespace qlm {
namespace {

using namespace Qt::Literals::StringLiterals;

using Figures = QHash<QString, std::vector<double>>;

// Starts this program again in a role and adds what it prints.
void RunOnce(const QString& role, Figures& figures) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {role, QString::number(NowNs())});
    if (!process.waitForFinished(60'000) || process.exitCode() != 0)
        throw std::runtime_error("a start has failed: " + role.toStdString());
    for (const QString& line : QString::fromUtf8(process.readAllStandardOutput()).split(u'\n'))
        if (const QStringList words = line.split(u' '); words.size() == 2)
            figures[words[0]].push_back(words[1].toDouble());
}

int MeasureStarts(int times) {
    Figures program;
    Figures bare;
    // The first start of all reads everything from the disk.
    Figures cold;
    RunOnce(u"--started"_s, cold);
    for (int i = 0; i < times; ++i) {
        RunOnce(u"--started"_s, program);
        RunOnce(u"--bare"_s, bare);
    }
    PrintSpread("start to login screen", program[u"login"_s], "ms");
    PrintSpread("start to usable main window", program[u"window"_s], "ms");
    PrintSpread("resident, the program at rest", program[u"resident"_s], "kB");
    PrintSpread("resident, a bare window at rest", bare[u"resident"_s], "kB");
    PrintAgainstGoal("start to login screen", Median(program[u"login"_s]), 300, "ms");
    PrintAgainstGoal("start to usable main window", Median(program[u"window"_s]), 1000, "ms");
    PrintAgainstGoal("resident, program / bare window",
                     Median(program[u"resident"_s]) / Median(bare[u"resident"_s]), 1.15, "times");
    return 0;
}

} // namespace
} // namespace qlm

int main(int argc, char** argv) {
    if (::geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    if (argc > 2 && std::strcmp(argv[1], "--started") == 0)
        return qlm::RunStartedProgram(argc, argv, std::atoll(argv[2]));
    if (argc > 2 && std::strcmp(argv[1], "--bare") == 0)
        return qlm::RunBareWindow(argc, argv);
    QCoreApplication application(argc, argv);
    return qlm::MeasureStarts(argc > 1 ? std::atoi(argv[1]) : 9);
}
