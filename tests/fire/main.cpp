// SPDX-License-Identifier: MIT
// quillmere-fire: many runs of a campaign against a site, a disk and a process that fail. Each seed
// is a run of its own, from a list of 500 to its end; the same seed is the same run.
#include "AcceptTrial.h"
#include "Trial.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <cstdio>

namespace {

using namespace qlm::fire;
using namespace Qt::Literals::StringLiterals;

struct Options {
    quint64 first = 1;
    int seeds = 20;
    int step = 1; // a process takes every so manieth
    int targets = 500;
    int processes = 1;
    bool isTraced = false;
    bool hasTrail = false;
    QString campaign = u"requests"_s;

    bool HasPosts() const { return campaign.endsWith(u"+posts"_s); }
    const qlm::Campaign& TheCampaign() const {
        const QString word = campaign.section(u'+', 0, 0);
        return word == u"messages"   ? qlm::Messages
               : word == u"comments" ? qlm::Comments
                                     : qlm::FriendRequests;
    }
};

Options Read(const QCoreApplication& application) {
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Runs a campaign under fire, a run for each seed."_s);
    parser.addHelpOption();
    parser.addOptions(
        {{u"seeds"_s, u"How many seeds."_s, u"number"_s, u"20"_s},
         {u"first"_s, u"The first of them."_s, u"seed"_s, u"1"_s},
         {u"step"_s, u"The distance from one to the next."_s, u"number"_s, u"1"_s},
         {u"targets"_s, u"Profiles on the list."_s, u"number"_s, u"500"_s},
         {u"processes"_s, u"How many work side by side."_s, u"number"_s, u"1"_s},
         {u"campaign"_s,
          u"\"requests\", \"messages\" or \"comments\"; with \"+posts\" behind it bulletins and status "
          "updates fall due meanwhile. Or \"accepting\"."_s,
          u"word"_s, u"requests"_s},
         {u"trace"_s, u"Tells what happens, with the virtual time."_s},
         {u"trail"_s,
          u"Has the program write its trail, which is told with --trace. Its lines are writes, too: "
          "a seed with crashes may go another way."_s}});
    parser.process(application);
    return {parser.value(u"first"_s).toULongLong(),
            parser.value(u"seeds"_s).toInt(),
            parser.value(u"step"_s).toInt(),
            parser.value(u"targets"_s).toInt(),
            parser.value(u"processes"_s).toInt(),
            parser.isSet(u"trace"_s),
            parser.isSet(u"trail"_s),
            parser.value(u"campaign"_s)};
}

void PrintRepeat(quint64 seed, const Options& options, const QString& broken) {
    if (!broken.isEmpty())
        std::printf(
            "  %s\n  repeat: quillmere-fire --campaign %s --first %llu --seeds 1 --targets %d --trace\n",
            qPrintable(broken), qPrintable(options.campaign), static_cast<unsigned long long>(seed),
            options.targets);
    std::fflush(stdout);
}

bool RunAccepting(quint64 seed, const Options& options) {
    AcceptTrial trial(seed, options.targets, {options.isTraced, options.hasTrail});
    const QString broken = trial.Run();
    std::printf("%s seed %llu: %s\n", broken.isEmpty() ? "ok" : "FAIL", static_cast<unsigned long long>(seed),
                qPrintable(trial.Describe()));
    PrintRepeat(seed, options, broken);
    return broken.isEmpty();
}

// A line for each seed; a parent process counts them.
bool RunSeed(quint64 seed, const Options& options) {
    if (options.campaign == u"accepting"_s)
        return RunAccepting(seed, options);
    QElapsedTimer time;
    time.start();
    Trial trial(seed, options.targets, options.TheCampaign(), options.HasPosts(),
                {options.isTraced, options.hasTrail});
    const QString broken = trial.Run();
    const Judge& judge = trial.TheJudge();
    const PostFire* posts = trial.Posts();
    const QString posted =
        posts ? u" %1 posts sent, %2 loans,"_s.arg(posts->Arrived()).arg(posts->Loans()) : QString();
    std::printf(
        "%s seed %llu: %s; %d asked, %d logged, %d asked again,%s %d kills, %lld virtual minutes, %lld ms\n",
        broken.isEmpty() ? "ok" : "FAIL", static_cast<unsigned long long>(seed),
        qPrintable(trial.ThePlan().Describe()), judge.Asked(), judge.Logged(), judge.AskedAgain(),
        qPrintable(posted), trial.Kills(), static_cast<long long>(trial.VirtualSeconds() / 60),
        static_cast<long long>(time.elapsed()));
    PrintRepeat(seed, options, broken);
    return broken.isEmpty();
}

int RunSeeds(const Options& options) {
    int failed = 0;
    for (int i = 0; i < options.seeds; ++i)
        failed +=
            RunSeed(options.first + static_cast<quint64>(i) * static_cast<quint64>(options.step), options)
                ? 0
                : 1;
    return failed;
}

// The work of this process's share, by others of its kind.
int RunProcesses(const Options& options) {
    std::vector<std::unique_ptr<QProcess>> workers;
    for (int i = 0; i < options.processes; ++i) {
        const int share = (options.seeds - i + options.processes - 1) / options.processes;
        auto worker = std::make_unique<QProcess>();
        worker->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        worker->start(QCoreApplication::applicationFilePath(),
                      {u"--first"_s, QString::number(options.first + static_cast<quint64>(i)), u"--seeds"_s,
                       QString::number(share), u"--step"_s, QString::number(options.processes),
                       u"--targets"_s, QString::number(options.targets), u"--campaign"_s, options.campaign});
        workers.push_back(std::move(worker));
    }
    int passed = 0;
    for (const auto& worker : workers) {
        worker->waitForFinished(-1);
        for (const QByteArray& line : worker->readAllStandardOutput().split('\n')) {
            if (line.startsWith("FAIL") || line.startsWith("  "))
                std::printf("%s\n", line.constData());
            passed += line.startsWith("ok ") ? 1 : 0;
        }
    }
    return options.seeds - passed;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const Options options = Read(application);
    const int failed = options.processes > 1 ? RunProcesses(options) : RunSeeds(options);
    std::printf("%d passed, %d failed\n", options.seeds - failed, failed);
    return failed == 0 ? 0 : 1;
}
