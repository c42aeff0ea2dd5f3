// SPDX-License-Identifier: MIT
// What a friend request costs in wall time beyond what the engine alone needs for the same pages. The program
// and the bare loops take turns in blocks, so that whatever else the machine does meets all of them.
#include "BarePage.h"
#include "Figures.h"
#include "RunningProgram.h"
#include "SiteProcess.h"
#include "gather/GatheredList.h"
#include "platform/qt/EngineProfile.h"
#include "steps/StepDispatcher.h"
#include "steps/StopResume.h"

#include <QApplication>
#include <cstdio>
#include <unistd.h>

namespace qlm {
namespace {

constexpr int Blocks = 4;
constexpr int TargetsInBlock = 50;
// Timer1 between the page's arrival and the step that takes it, once a target.
constexpr double TickMs = 400;
constexpr int FirstTarget = 100101;

class TargetCost {
public:
    TargetCost() {
        site.Tell(u"journal visits off"_s);
        folders.SaveList(SomeTargets(2, FirstTarget - 2));
        program.app.controls.AddListener(
            [this](const Control& control, Controls::Change, int) { OnChange(control); });
        program.PlanSending();
        program.driver.Add({u"The first targets, which warm up"_s, 60, [this] { return IsThrough(); },
                            [this] { MakeBare(); }});
        for (int block = 0; block < Blocks; ++block)
            PlanBlock();
        PlanPasses();
    }

    bool Measure() { return program.Run(); }
    void Report() const;

private:
    void OnChange(const Control& control);
    bool IsThrough() const { return runs > 0 && program.driver.Messages().size() == runs; }
    void MakeBare();
    void PlanBlock();
    void PlanPasses();
    QStringList NextTargets();
    QStringList NextAddresses();
    void Send();
    void CountPasses();

    SiteProcess site;
    UsedProgram folders{site.Port()};
    RunningProgram program{folders};
    std::unique_ptr<BarePage> page;
    std::unique_ptr<BarePage> shownPage;
    int nextTarget = FirstTarget;
    int runs = 0;
    bool isBareBusy = false; // its loops let the next step look
    long long startedNs = 0;
    qint64 callsBefore = 0;
    std::vector<double> ofProgram, ofPage, ofShownPage, callsPerTarget;
    qint64 firstPassCalls = 0;
    qint64 laterPassCalls = 0;
};

// The progress line is emptied at the very end of a run, before its report comes up.
void TargetCost::OnChange(const Control& control) {
    if (control.name != "lblProgress"_L1 || !control.text.isEmpty() || program.app.state.lngTargetNumber == 0)
        return;
    if (startedNs > 0) {
        const double ms = static_cast<double>(NowNs() - startedNs) / 1e6;
        ofProgram.push_back(ms / TargetsInBlock - TickMs);
        callsPerTarget.push_back(static_cast<double>(program.app.WebBrowser1().EngineCalls() - callsBefore) /
                                 TargetsInBlock);
        startedNs = 0;
    }
    runs = static_cast<int>(program.driver.Messages().size()) + 1;
}

void TargetCost::MakeBare() {
    auto& browser = dynamic_cast<QtBrowser&>(program.app.WebBrowser1());
    auto* view = qobject_cast<QWebEngineView*>(browser.View());
    page = std::make_unique<BarePage>(view->page()->profile());
    shownPage = std::make_unique<BarePage>(view->page()->profile());
    shownPage->ShowIn(view->size());
    page->Visit(NextAddresses().mid(0, 5));
    shownPage->Visit(NextAddresses().mid(0, 5));
}

QStringList TargetCost::NextTargets() {
    const QStringList targets = SomeTargets(TargetsInBlock, nextTarget);
    nextTarget += TargetsInBlock;
    return targets;
}

QStringList TargetCost::NextAddresses() {
    QStringList addresses;
    for (const QString& id : NextTargets())
        addresses.append(u"http://"_s + RequestPage(id));
    return addresses;
}

void TargetCost::PlanBlock() {
    program.driver.Add({u"The program's block"_s, 600,
                        [this] { return shownPage && !isBareBusy && IsThrough(); }, [this] { Send(); }});
    program.driver.Add({u"The bare blocks"_s, 600, [this] { return startedNs == 0 && IsThrough(); },
                        [this] {
                            isBareBusy = true;
                            ofPage.push_back(page->Visit(NextAddresses()) / TargetsInBlock);
                            ofShownPage.push_back(shownPage->Visit(NextAddresses()) / TargetsInBlock);
                            isBareBusy = false;
                        }});
}

void TargetCost::Send() {
    folders.SaveList(NextTargets());
    program.app.Get<GatheredList>().FillScannedList({}, true, false);
    callsBefore = program.app.WebBrowser1().EngineCalls();
    startedNs = NowNs();
    program.driver.Press("frmMain", "piccmdAddFriends");
}

void TargetCost::PlanPasses() {
    program.driver.Add({u"A request page in the browser"_s, 600,
                        [this] { return ofShownPage.size() == Blocks; },
                        [this] {
                            program.driver.Type("frmMain", "txtAddress", NextAddresses().constFirst());
                            program.driver.Press("frmMain", "picGO");
                        }});
    program.driver.Add({u"The dispatcher's passes over it"_s, 60,
                        [this] {
                            return program.app.WebBrowser1().LocationURL().contains(u"addtofriends"_s) &&
                                   program.app.WebBrowser1().ReadyState() == 4;
                        },
                        [this] { CountPasses(); }});
}

void TargetCost::CountPasses() {
    App& app = program.app;
    app.state.CurrentAction = u"FR"_s;
    app.state.intFRStep = 8;
    auto pass = [&app] {
        app.state.strLinkType = u"Text"_s;
        app.state.strLinkValue = u"Request Sent!"_s;
        app.state.blnLinkFound = false;
        app.Pump().Queue().EndTurn();
        const qint64 before = app.WebBrowser1().EngineCalls();
        if (!app.Get<StepDispatcher>().CheckLinkFound())
            throw std::runtime_error("the page is no confirmation");
        return app.WebBrowser1().EngineCalls() - before;
    };
    firstPassCalls = pass();
    laterPassCalls = pass();
    app.Get<StopResume>().StopAll(StopReason::WindowStop);
    program.driver.End({});
}

void TargetCost::Report() const {
    std::printf("\n%d blocks of %d targets each, per target, without the tick of %.0f ms:\n", Blocks,
                TargetsInBlock, TickMs);
    PrintSpread("the program", ofProgram, "ms");
    PrintSpread("a bare page", ofPage, "ms");
    PrintSpread("a bare page in a window of the same size", ofShownPage, "ms");
    PrintAgainstGoal("program / bare page", Median(ofProgram) / Median(ofPage), 1.15, "times");
    PrintAgainstGoal("program / bare page in a window", Median(ofProgram) / Median(ofShownPage), 1.15,
                     "times");
    PrintAgainstGoal("engine calls, first pass over a page", static_cast<double>(firstPassCalls), 2, "calls");
    PrintAgainstGoal("engine calls, every later pass", static_cast<double>(laterPassCalls), 2, "calls");
    PrintSpread("engine calls a target, all in all", callsPerTarget, "calls");
}

} // namespace
} // namespace qlm

int main(int argc, char** argv) {
    if (::geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    qlm::PrepareEngine();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    qlm::TargetCost cost;
    if (!cost.Measure()) {
        std::printf("The run came to no end.\n");
        return 1;
    }
    cost.Report();
    return 0;
}
