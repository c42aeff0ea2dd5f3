// SPDX-License-Identifier: MIT
// What the look-up of one target in a log of a million lines costs, beside grep on the same file. The two
// take turns, so that whatever else the machine does meets both.
#include "Figures.h"
#include "campaigns/SentLog.h"
#include "core/App.h"
#include "platform/sim/RecordingDialogs.h"
#include "platform/sim/SimPlatform.h"

#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>

using namespace qlm;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Lines = 1'000'000;
constexpr int Rounds = 41;
constexpr double Goal = 0.5;

double Milliseconds(const std::function<void()>& work) {
    const long long begun = NowNs();
    work();
    return static_cast<double>(NowNs() - begun) / 1e6;
}

// The numbers step by a prime, so that all are different, of seven to nine digits and in no order.
QByteArray IdAt(int line) {
    return QByteArray::number(1'000'000 + (qint64(line) * 7'919) % 899'999'963);
}

void WriteLog(const QString& path) {
    QByteArray text;
    for (int line = 0; line < Lines; ++line)
        text += IdAt(line) + "\r\n";
    FileSystem().WriteBytes(path, text);
}

void Grep(const QByteArray& pattern, const QByteArray& path, bool expected) {
    const char* const arguments[] = {"grep",           "-x",   "-F", "-m1", "-q", pattern.constData(),
                                     path.constData(), nullptr};
    pid_t process = 0;
    if (posix_spawnp(&process, "grep", nullptr, nullptr, const_cast<char* const*>(arguments), environ) != 0)
        throw std::runtime_error("grep can't be started");
    int status = 0;
    waitpid(process, &status, 0);
    if (!WIFEXITED(status) || (WEXITSTATUS(status) == 0) != expected)
        throw std::runtime_error("grep answers something else");
}

double Least(const std::vector<double>& times) {
    return *std::min_element(times.begin(), times.end());
}

void Measure(App& app, const char* what, const QByteArray& id, bool expected) {
    const QByteArray path = RunningLog(app).Path().toLocal8Bit();
    std::vector<double> ours;
    std::vector<double> greps;
    std::vector<double> starts;
    for (int round = 0; round < Rounds; ++round) {
        ours.push_back(Milliseconds([&] {
            if (RunningLog(app).LogEntryExists(QString::fromLatin1(id)) != expected)
                throw std::runtime_error("the look-up answers something else");
        }));
        // Its lines end in a carriage return too, which grep takes as part of the line.
        greps.push_back(Milliseconds([&] { Grep(id + '\r', path, expected); }));
        starts.push_back(Milliseconds([&] { Grep(id, "/dev/null", false); }));
    }
    std::printf("%s\n", what);
    PrintSpread("  the program", ours, "ms");
    PrintSpread("  grep", greps, "ms");
    PrintSpread("  grep on nothing", starts, "ms");
    PrintAgainstGoal("  program / grep", Median(ours) / Median(greps), Goal, "");
    std::printf("  program / (grep less its start) %.2f\n", Median(ours) / (Median(greps) - Median(starts)));
    // What is left on a machine that has nothing else to do.
    std::printf("  least program / least grep      %.2f\n", Least(ours) / Least(greps));
}

} // namespace

int main() {
    const QTemporaryDir folder;
    SimWorld world;
    world.installationFolder = folder.path();
    world.dataFolder = folder.path();
    RecordingDialogs dialogs;
    SimPlatform platform(world, dialogs);
    App app(platform);
    app.state.ProgramFolder = folder.path();
    app.state.DataFolder = folder.path();
    app.state.CurrentAction = u"FR"_s;
    app.state.blnCheckLog = true;
    WriteLog(RunningLog(app).Path());
    Measure(app, "a target that isn't in the log: all of it is read", "523456789", false);
    Measure(app, "the target of the middle line", IdAt(Lines / 2), true);
    return 0;
}
