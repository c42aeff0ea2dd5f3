// SPDX-License-Identifier: MIT
// What a message and a comment cost in wall time beyond what the engine alone needs for the same pages,
// fields and presses: bench_writing_cost. The program and a bare loop take turns in blocks, on both layouts.
#include "BarePage.h"
#include "Figures.h"
#include "RunningProgram.h"
#include "SiteProcess.h"
#include "campaigns/Campaigns.h"
#include "gather/GatheredList.h"
#include "platform/qt/EngineProfile.h"
#include "practice/CommentDesigns.h"
#include "practice/ComposeDesigns.h"
#include "practice/FormChoice.h"

#include <QApplication>
#include <cstdio>
#include <unistd.h>

namespace qlm {
namespace {

constexpr int Blocks = 3;
constexpr int StepDelayMs = 20;
constexpr int FirstTarget = 100101;
const QString Text = u"Hello, how are you?"_s;

// One layout of one campaign, through one of its forms.
struct Case {
    const char* name;
    const Campaign& campaign;
    bool isNew;
    const char16_t* form;
    int targets; // in a block
    int steps;   // of the program a target, each after its delay
    int waitsMs; // that the program makes besides, before and after it presses
    // Run in the page one after the other, each until the page that it leads to has come.
    std::vector<const char16_t*> presses;
    const char16_t* answer;
};

#define BY_NAME u"const by = n => document.getElementsByName(n)[0] || document.getElementById(n);"
// Looks as often as the program does.
#define UNTIL                                                                                                \
    u"const until = (isSo, act) => { const clock = setInterval(() => {"                                      \
    u"if (isSo()) { clearInterval(clock); act(); } }, 10); };"
#define PRESS(tag, caption)                                                                                  \
    u"[...document.getElementsByTagName("                                                                    \
    u"'" tag u"')].find(b => (b.value || b.innerText).trim().toLowerCase()"                                  \
    u" === '" caption u"').click();"

const std::vector<Case>& Cases() {
    static const std::vector<Case> cases{
        {"a message, new layout",
         Messages,
         true,
         u"source",
         30,
         2,
         0,
         {BY_NAME u"by('%1').value = 'Hi'; by('%2_editsource').firstElementChild.click();"
                  u"by('%2_editsourcearea').value = '%3';" PRESS(u"input", u"send")},
         u"Your message has been sent"},
        {"a message, old layout",
         Messages,
         false,
         u"mailbody",
         30,
         2,
         0,
         {BY_NAME u"by('%1').value = 'Hi'; by('%2').value = '%3';" PRESS(u"input", u"send")},
         u"Your message has been sent"},
        {"a comment, new layout",
         Comments,
         true,
         u"box",
         5,
         1,
         4000,
         {BY_NAME UNTIL u"const box = by('newComment'), hint = by('hint'); box.focus();"
                        u"until(() => by('entry').classList.contains('absolute'), () => { box.value = '%3';"
                        u"until(() => hint.style.display === 'none', () => {" PRESS(u"button",
                                                                                    u"post") u"}) });"},
         u"Your comment has been posted"},
        {"a comment, old layout",
         Comments,
         false,
         u"plain",
         30,
         3,
         0,
         {BY_NAME u"by('%2').value = '%3';" PRESS(u"input", u"post a comment"),
          PRESS(u"input", u"post a comment")},
         u"Your comment has been posted"},
    };
    return cases;
}

class WritingCost {
public:
    WritingCost() {
        for (const QString& line :
             {u"journal visits off"_s, u"message-share sent 100"_s, u"comment-share posted 100"_s,
              u"message-limit off"_s, u"comment-limit off"_s})
            site.Tell(line);
        program.app.timers->Timer1.SetInterval(StepDelayMs);
        program.app.controls.AddListener(
            [this](const Control& control, Controls::Change, int) { OnChange(control); });
        program.PlanLogin([this] { MakeBare(); });
        for (const Case& each : Cases())
            Plan(each);
        program.driver.Add(
            {u"The end"_s, 60, [this] { return IsIdle(); }, [this] { program.driver.End({}); }});
    }

    bool Measure() { return program.Run(); }
    void Report() const;

private:
    struct Figures {
        std::vector<double> ofProgram, ofBare, calls;
    };

    void Plan(const Case& each);
    void Prepare(const Case& each);
    void Send(const Case& each);
    void VisitBare(const Case& each);
    void OnChange(const Control& control);
    void MakeBare();
    bool IsIdle() const {
        return startedNs == 0 && program.driver.Messages().size() == runs && !isBareBusy && page != nullptr;
    }
    QStringList NextTargets(int count);
    static QString AddressOf(const Case& each, const QString& id);
    static QString ScriptOf(const Case& each, size_t press);

    SiteProcess site;
    UsedProgram folders{site.Port()};
    RunningProgram program{folders};
    std::unique_ptr<BarePage> page;
    int nextTarget = FirstTarget;
    const Case* running = nullptr;
    bool isBareBusy = false; // its loop lets the next step look
    long long startedNs = 0;
    qsizetype runs = 0;
    int targetsBefore = 0;
    qint64 callsBefore = 0;
    std::map<const Case*, Figures> figures;
};

void WritingCost::MakeBare() {
    auto& browser = dynamic_cast<QtBrowser&>(program.app.WebBrowser1());
    auto* view = qobject_cast<QWebEngineView*>(browser.View());
    page = std::make_unique<BarePage>(view->page()->profile());
    page->ShowIn(view->size());
}

void WritingCost::Plan(const Case& each) {
    // A short run first, which warms up and is not counted.
    for (int block = 0; block <= Blocks; ++block) {
        program.driver.Add({QString::fromLatin1(each.name) + u", the program"_s, 600,
                            [this] { return IsIdle(); },
                            [this, &each] {
                                Prepare(each);
                                Send(each);
                            }});
        program.driver.Add({QString::fromLatin1(each.name) + u", the bare loop"_s, 600,
                            [this] { return IsIdle(); }, [this, &each] { VisitBare(each); }});
    }
}

void WritingCost::Prepare(const Case& each) {
    site.Tell((&each.campaign == &Messages ? u"compose all "_s : u"comment-form all "_s) +
              QString::fromUtf16(each.form));
    App& app = program.app;
    app.state.blnNewLayout = each.isNew;
    app.controls.SetText("txtMsgSubject"_L1, u"Hi"_s);
    app.controls.SetText("txtMsgMessage"_L1, Text);
    app.controls.SetText("txtComment"_L1, Text);
}

void WritingCost::Send(const Case& each) {
    running = &each;
    folders.SaveList(NextTargets(each.targets));
    program.app.Get<GatheredList>().FillScannedList({}, true, false);
    callsBefore = program.app.WebBrowser1().EngineCalls();
    targetsBefore = program.app.state.lngTargetNumber;
    ++runs;
    startedNs = NowNs();
    program.app.commands.Run(QString::fromLatin1(each.campaign.send) + u"_Click"_s);
}

// The progress line is emptied at the very end of a run, before its report comes up, and before its start.
void WritingCost::OnChange(const Control& control) {
    if (control.name != "lblProgress"_L1 || !control.text.isEmpty() || startedNs == 0 ||
        program.app.state.lngTargetNumber == targetsBefore)
        return;
    const double ms = static_cast<double>(NowNs() - startedNs) / 1e6;
    const qint64 calls = program.app.WebBrowser1().EngineCalls() - callsBefore;
    Figures& of = figures[running];
    of.ofProgram.push_back(ms / running->targets);
    of.calls.push_back(static_cast<double>(calls) / running->targets);
    startedNs = 0;
}

void WritingCost::VisitBare(const Case& each) {
    isBareBusy = true;
    const QStringList targets = NextTargets(each.targets);
    const long long start = NowNs();
    for (const QString& id : targets) {
        page->Load(QUrl(u"about:blank"_s));
        page->Load(QUrl(AddressOf(each, id)));
        for (size_t press = 0; press < each.presses.size(); ++press) {
            page->ReadAll();
            page->LoadBy(ScriptOf(each, press));
        }
        if (!page->ReadAll().contains(QString::fromUtf16(each.answer)))
            throw std::runtime_error("nothing was sent to " + id.toStdString());
    }
    figures[&each].ofBare.push_back(static_cast<double>(NowNs() - start) / 1e6 / each.targets);
    isBareBusy = false;
}

QStringList WritingCost::NextTargets(int count) {
    const QStringList targets = SomeTargets(count, nextTarget);
    nextTarget += count;
    return targets;
}

QString WritingCost::AddressOf(const Case& each, const QString& id) {
    const QString form = QString::fromUtf16(each.form);
    const qint64 target = id.toLongLong();
    return &each.campaign == &Messages
               ? FormAddress(*practice::FormNamed(practice::ComposeDesigns(), form), target)
               : FormAddress(*practice::FormNamed(practice::CommentDesigns(), form), target);
}

QString WritingCost::ScriptOf(const Case& each, size_t press) {
    const QString form = QString::fromUtf16(each.form);
    const QString script = QString::fromUtf16(each.presses[press]);
    if (press > 0)
        return script;
    if (&each.campaign == &Comments) {
        const auto& design = *practice::FormNamed(practice::CommentDesigns(), form);
        return QString(script).replace(u"%2"_s, design.box.toString()).replace(u"%3"_s, Text);
    }
    const auto& design = *practice::FormNamed(practice::ComposeDesigns(), form);
    return script.arg(design.subject.toString(), design.body.toString(), Text);
}

void WritingCost::Report() const {
    std::printf("\n%d blocks each, per target, without the delays of %d ms before the steps and the settling "
                "waits:\n",
                Blocks, StepDelayMs);
    for (const Case& each : Cases()) {
        Figures of = figures.at(&each);
        for (std::vector<double>* values : {&of.ofProgram, &of.ofBare, &of.calls})
            values->erase(values->begin());
        for (double& ms : of.ofProgram)
            ms -= each.steps * StepDelayMs + each.waitsMs;
        std::printf("%s\n", each.name);
        PrintSpread("  the program", of.ofProgram, "ms");
        PrintSpread("  a bare page in a window", of.ofBare, "ms");
        PrintAgainstGoal("  program / bare page", Median(of.ofProgram) / Median(of.ofBare), 1.0, "times");
        PrintSpread("  engine calls a target", of.calls, "calls");
    }
}

} // namespace
} // namespace qlm

int main(int argc, char** argv) {
    if (::geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    qlm::PrepareEngine();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    qlm::WritingCost cost;
    if (!cost.Measure()) {
        std::printf("The run came to no end.\n");
        return 1;
    }
    cost.Report();
    return 0;
}
