// SPDX-License-Identifier: MIT
// Whether a long run stays as light and as quick as it began: bench_soak [TURNS [messages|accepting]]
//
// One friend request after the other, as the user's own run sends them: each turn loads a blank page and a
// request page; or one message after the other: a blank page, a compose page that is filled in, and the page
// that confirms it; or whoever has asked is accepted, page by page, and each gets a message. In the real
// window, on the real engine, against the practice site. The step's delay of 400 ms is shortened, nothing
// else.
#include "Figures.h"
#include "ProcessFigures.h"
#include "RunningProgram.h"
#include "SiteProcess.h"
#include "platform/qt/EngineProfile.h"

#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <numeric>
#include <unistd.h>

namespace qlm {
namespace {

constexpr int WarmUpTurns = 500;
constexpr int SampleEvery = 20;
// As many loads as a page of the engine lives, so that each mean covers all its ages alike.
constexpr int MeanOver = 200;
constexpr int StepDelayMs = 20;
constexpr int StandsMs = 60'000;
constexpr double MemoryGoalMb = 30;
constexpr double TimeGoal = 1.1;
const QString SiteProgram = u"quillmere-practice-site"_s;

class Soak {
public:
    explicit Soak(int turnCount) : turns(turnCount) {
        site.Tell(u"journal visits off"_s);
        program.app.timers->Timer1.SetInterval(StepDelayMs);
        QObject::connect(&standing, &QTimer::timeout, [this] { TellWhereItStands(); });
    }

    void PlanRequests();
    void PlanMessages();
    void PlanAccepting();
    bool HasAcceptedAll() const;
    bool Run() { return program.Run(); }
    void Report() const;

private:
    struct Sample {
        int turn;
        ProgramFigures figures;
    };

    void PlanTurns();
    void OnTurn();
    void TellWhereItStands();
    double Mean(double ProgramFigures::*figure, int firstTurn, int count) const;
    double MedianTurn(int firstTurn, int count) const;
    double ProcessorPerTurn(int firstTurn, int count) const;

    const int turns;
    SiteProcess site;
    UsedProgram folders{site.Port()};
    RunningProgram program{folders};
    int turn = 0;
    long long turnStartNs = 0;
    QString lastProgress;
    QTimer standing;     // runs out when a turn takes a minute
    QStringList journal; // of the site, once all are accepted
    std::vector<double> turnMs;
    std::vector<Sample> samples;
};

void Soak::PlanRequests() {
    PlanTurns();
    program.PlanSending();
    program.PlanReport(3600);
}

void Soak::PlanMessages() {
    site.Tell(u"message-share sent 100"_s);
    site.Tell(u"message-limit off"_s);
    site.Tell(u"compose all source"_s);
    PlanTurns();
    program.PlanSending(u"Auto Messenger"_s, "picCmdMsgSend", [this] {
        program.app.controls.SetText("txtMsgSubject"_L1, u"Hi &NAME&"_s);
        program.app.controls.SetText("txtMsgMessage"_L1, u"Hello &NAME&,\r\nhow are you?"_s);
    });
    program.PlanReport(3600);
}

// A turn is a message; the first one on each page takes the approval of its 25 with it.
void Soak::PlanAccepting() {
    site.Tell(u"message-share sent 100"_s);
    site.Tell(u"message-limit off"_s);
    site.Tell(u"accept-share accepted 100"_s);
    site.Tell(u"incoming 900001 %1"_s.arg(turns + 1));
    PlanTurns();
    program.PlanSending(u"Accept Friends"_s, "picCmdAutoApprove", [this] {
        program.app.controls.SetTicked("optAcceptSendMsg"_L1, true);
        program.app.controls.SetText("txtAcceptSubject"_L1, u"Hi &NAME&"_s);
        program.app.controls.SetText("txtAcceptMessage"_L1, u"Thanks for asking"_s);
    });
    WindowDriver& driver = program.driver;
    driver.Add({u"The report"_s, 6 * 3600, [&driver] { return driver.WasTold(u"Finished accepting"_s); },
                [this, &driver] {
                    journal = site.Journal();
                    driver.End({});
                }});
}

// Everybody once, each with one message, by the site's journal.
bool Soak::HasAcceptedAll() const {
    QStringList accepted = TargetsOf(journal, u"accepted"_s);
    QStringList messaged = TargetsOf(journal, u"messaged"_s);
    std::ranges::sort(accepted);
    std::ranges::sort(messaged);
    const bool isAll =
        accepted.size() == turns + 1 && accepted == messaged && accepted.removeDuplicates() == 0;
    std::printf("%lld accepted, %lld messages: %s\n", static_cast<long long>(accepted.size()),
                static_cast<long long>(messaged.size()), isAll ? "everybody once" : "NOT everybody once");
    return isAll;
}

void Soak::PlanTurns() {
    // After the last turn a target more, so that it ends as all others do.
    folders.SaveList(SomeTargets(turns + 1));
    program.app.controls.AddListener([this](const Control& control, Controls::Change, int) {
        if (control.name == "lblProgress"_L1 && !control.text.isEmpty() &&
            std::exchange(lastProgress, control.text) != control.text)
            OnTurn();
    });
}

void Soak::OnTurn() {
    const long long now = NowNs();
    if (turn > 0)
        turnMs.push_back(static_cast<double>(now - turnStartNs) / 1e6);
    if (turn % SampleEvery == 0) {
        samples.push_back({turn, FiguresOfProgram(SiteProgram)});
        if (turn % MeanOver == 0)
            std::printf("turn %5d: %7.1f MB in %d processes, %.1f MB of it written by them\n", turn,
                        samples.back().figures.memoryMb, samples.back().figures.processes,
                        samples.back().figures.writtenMb);
        std::fflush(stdout);
    }
    ++turn;
    standing.start(StandsMs);
    turnStartNs = NowNs();
}

void Soak::TellWhereItStands() {
    BrowserControl& browser = program.app.WebBrowser1();
    std::printf("turn %5d stands: \"%s\" %s at %s, ready state %d, busy %d\n", turn,
                qPrintable(program.app.Status()), qPrintable(program.app.controls.Text("lblWaitingFor"_L1)),
                qPrintable(browser.LocationURL()), browser.ReadyState(), browser.Busy());
    std::fflush(stdout);
}

double Soak::Mean(double ProgramFigures::*figure, int firstTurn, int count) const {
    std::vector<double> values;
    for (const Sample& sample : samples)
        if (sample.turn >= firstTurn && sample.turn < firstTurn + count)
            values.push_back(sample.figures.*figure);
    return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

double Soak::MedianTurn(int firstTurn, int count) const {
    return Median({turnMs.begin() + firstTurn, turnMs.begin() + firstTurn + count});
}

double Soak::ProcessorPerTurn(int firstTurn, int count) const {
    const auto at = [this](int wanted) {
        return std::find_if(samples.begin(), samples.end(), [&](const Sample& s) { return s.turn >= wanted; })
            ->figures.processorMs;
    };
    return (at(firstTurn + count) - at(firstTurn)) / count;
}

void Soak::Report() const {
    const int span = std::min(WarmUpTurns, (turns - MeanOver) / 2);
    const int lastSpan = turns - span;
    const auto ofAll = &ProgramFigures::memoryMb, ofWritten = &ProgramFigures::writtenMb;
    const double before = Mean(ofWritten, span, MeanOver),
                 after = Mean(ofWritten, turns - MeanOver, MeanOver + 1);
    std::printf(
        "\n%d turns; memory is the sum over all processes of the program, shared pages counted once (PSS)\n",
        turns);
    std::printf("memory written, and all: mean of the %d turns from %d on  %8.1f MB, %.1f MB\n", MeanOver,
                span, before, Mean(ofAll, span, MeanOver));
    std::printf("memory written, and all: mean of the last %d turns        %8.1f MB, %.1f MB\n", MeanOver,
                after, Mean(ofAll, turns - MeanOver, MeanOver + 1));
    PrintAgainstGoal("growth of what is written", after - before, MemoryGoalMb, "MB");
    const int warm = std::min(MeanOver / 2, span / 2);
    std::printf(
        "wall time a turn, median: %.1f ms in the first %d behind the warm-up, %.1f ms in the last %d\n",
        MedianTurn(warm, span), span, MedianTurn(lastSpan, span), span);
    PrintAgainstGoal("wall time a turn, last / first", MedianTurn(lastSpan, span) / MedianTurn(warm, span),
                     TimeGoal, "times");
    std::printf("processor time a turn: %.1f ms, then %.1f ms\n", ProcessorPerTurn(warm, span),
                ProcessorPerTurn(lastSpan, span));
    PrintAgainstGoal("processor time a turn, last / first",
                     ProcessorPerTurn(lastSpan, span) / ProcessorPerTurn(warm, span), TimeGoal, "times");
}

} // namespace
} // namespace qlm

int main(int argc, char** argv) {
    if (::geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    qlm::PrepareEngine();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const int turns = argc > 1 ? std::atoi(argv[1]) : 2000;
    if (turns < 2 * qlm::MeanOver) {
        std::fprintf(stderr, "usage: bench_soak [TURNS, at least %d [messages|accepting]]\n",
                     2 * qlm::MeanOver);
        return 2;
    }
    qlm::Soak soak(turns);
    const bool isAccepting = argc > 2 && qstrcmp(argv[2], "accepting") == 0;
    if (isAccepting)
        soak.PlanAccepting();
    else if (argc > 2 && qstrcmp(argv[2], "messages") == 0)
        soak.PlanMessages();
    else
        soak.PlanRequests();
    if (!soak.Run()) {
        std::printf("The run came to no end.\n");
        return 1;
    }
    soak.Report();
    return isAccepting && !soak.HasAcceptedAll() ? 1 : 0;
}
