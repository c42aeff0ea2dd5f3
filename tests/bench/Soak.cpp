// SPDX-License-Identifier: MIT
// Whether a long run stays as light and as quick as it began: bench_soak requests|pages [TURNS]
//
// "requests": one friend request after the other, as the user's own run sends them. "pages": friends lists
// and profiles, each loaded behind a blank page and waited for by the page check. Both in the real window, on
// the real engine, against the practice site; the step's delay of 400 ms is shortened, nothing else.
#include "Figures.h"
#include "ProcessFigures.h"
#include "RunningProgram.h"
#include "SiteProcess.h"
#include "platform/qt/EngineProfile.h"

#include <QApplication>
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
constexpr double MemoryGoalMb = 30;
constexpr double TimeGoal = 1.1;
const QString SiteProgram = u"quillmere-practice-site"_s;

class Soak {
public:
    explicit Soak(int turnCount)
        : turns(turnCount), poll(program.app.Pump().Queue(), 1, false, [this] { TakeTurn(); }) {
        site.Tell(u"journal visits off"_s);
        program.app.timers->Timer1.SetInterval(StepDelayMs);
    }

    void PlanRequests();
    void PlanPages();
    bool Run() { return program.Run(); }
    void Report() const;

private:
    struct Sample {
        int turn;
        ProgramFigures figures;
    };

    void OnTurn();
    void TakeTurn();
    double MeanMemory(int firstTurn, int count) const;
    double MedianTurn(int firstTurn, int count) const;
    double ProcessorPerTurn(int firstTurn, int count) const;

    const int turns;
    SiteProcess site;
    UsedProgram folders{site.Port()};
    RunningProgram program{folders};
    Timer poll;
    int turn = 0;
    long long turnStartNs = 0;
    QString lastProgress;
    std::vector<double> turnMs;
    std::vector<Sample> samples;
};

void Soak::PlanRequests() {
    // Behind the last turn a target more, so that it ends as all others do.
    folders.SaveList(SomeTargets(turns + 1));
    program.app.controls.AddListener([this](const Control& control, Controls::Change, int) {
        if (control.name == "lblProgress"_L1 && !control.text.isEmpty() &&
            std::exchange(lastProgress, control.text) != control.text)
            OnTurn();
    });
    program.PlanSending();
    program.PlanReport(3600);
}

void Soak::PlanPages() {
    folders.SaveList(SomeTargets(1));
    program.driver.Add({u"The login screen"_s, 60,
                        [this] { return program.driver.Form("frmInteken") != nullptr; },
                        [this] { program.driver.Press("frmInteken", "cmdContinue"); }});
    program.driver.Add({u"The login"_s, 60, [this] { return program.app.Status() == u"Login successful!"_s; },
                        [this] {
                            program.app.state.blnLinkFound = true;
                            poll.SetEnabled(true);
                        }});
    program.driver.Add(
        {u"All pages"_s, 3600, [this] { return turn > turns; }, [this] { program.driver.End({}); }});
}

// Invitations wait for their pages themselves, so that nothing but the check itself happens in this activity.
void Soak::TakeTurn() {
    App& app = program.app;
    if (!app.state.blnLinkFound || app.timers->Timer1.Enabled())
        return;
    OnTurn();
    if (turn > turns) {
        poll.SetEnabled(false);
        return;
    }
    app.state.CurrentAction = u"INV"_s;
    app.state.blnHoldLinkCheck = false;
    app.state.strLinkType = u"TextHTML"_s;
    app.state.strLinkValue = u"</div>"_s;
    app.ClearPage();
    const QString owner = QString::number(100001 + turn % 400);
    const QString path = turn % 3 == 0 ? owner : turn % 3 == 1 ? owner + u"/friends"_s : u"browse"_s;
    app.WebBrowser1().Navigate(app.Expand(u"{SiteRootHost}/"_s) + path);
    app.state.blnLinkFound = false;
    app.timers->tmrCheckLinkLoaded.Restart();
}

void Soak::OnTurn() {
    const long long now = NowNs();
    if (turn > 0)
        turnMs.push_back(static_cast<double>(now - turnStartNs) / 1e6);
    if (turn % SampleEvery == 0) {
        samples.push_back({turn, FiguresOfProgram(SiteProgram)});
        if (turn % MeanOver == 0)
            std::printf("turn %5d: %7.1f MB in %d processes\n", turn, samples.back().figures.memoryMb,
                        samples.back().figures.processes);
        std::fflush(stdout);
    }
    ++turn;
    turnStartNs = NowNs();
}

double Soak::MeanMemory(int firstTurn, int count) const {
    std::vector<double> values;
    for (const Sample& sample : samples)
        if (sample.turn >= firstTurn && sample.turn < firstTurn + count)
            values.push_back(sample.figures.memoryMb);
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
    const double before = MeanMemory(span, MeanOver), after = MeanMemory(turns - MeanOver, MeanOver + 1);
    std::printf(
        "\n%d turns; memory is the sum over all processes of the program, shared pages counted once (PSS)\n",
        turns);
    std::printf("memory, mean of the %d turns from %d on      %8.1f MB\n", MeanOver, span, before);
    std::printf("memory, mean of the last %d turns             %8.1f MB\n", MeanOver, after);
    PrintAgainstGoal("growth", after - before, MemoryGoalMb, "MB");
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
    const QString what = application.arguments().value(1);
    const int turns = argc > 2 ? std::atoi(argv[2]) : 2000;
    if ((what != u"requests" && what != u"pages") || turns < qlm::MeanOver) {
        std::fprintf(stderr, "usage: bench_soak requests|pages [TURNS, at least %d]\n", qlm::MeanOver);
        return 2;
    }
    qlm::Soak soak(turns);
    if (what == u"requests")
        soak.PlanRequests();
    else
        soak.PlanPages();
    if (!soak.Run()) {
        std::printf("The run came to no end.\n");
        return 1;
    }
    soak.Report();
    return 0;
}
