// SPDX-License-Identifier: MIT
// Commands that say what the simulated network answers.
#include "Arguments.h"
#include "CommandTable.h"
#include "Stage.h"

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

QString WithScheme(const QString& url) {
    return url.contains(u"://") ? url : u"http://"_s + url;
}

// page URL [times 2] [status 500] [latency 5s] <<END, or page URL after 3s <<END
void Page(Stage& stage, Arguments& arguments) {
    const QString url = arguments.Take("the address");
    SimAnswer answer;
    int times = 0;
    qint64 afterMs = -1;
    for (;;) {
        if (arguments.TakeWord("times"_L1))
            times = arguments.TakeNumber("the number of times");
        else if (arguments.TakeWord("status"_L1))
            answer.status = arguments.TakeNumber("the status");
        else if (arguments.TakeWord("latency"_L1))
            answer.latencyMs = static_cast<int>(arguments.TakeDurationMs("the latency"));
        else if (arguments.TakeWord("after"_L1))
            afterMs = arguments.TakeDurationMs("the delay of the change");
        else
            break;
    }
    answer.html = arguments.Take("the page");
    if (afterMs >= 0)
        stage.world.web.AddSwap(url, static_cast<int>(afterMs), answer.html);
    else
        stage.world.web.SetAnswer(url, answer, times);
}

void Redirect(Stage& stage, Arguments& arguments) {
    const QString url = arguments.Take("the address");
    stage.world.web.SetRedirect(url, WithScheme(arguments.Take("the address that it leads to")));
}

void Fault(Stage& stage, Arguments& arguments) {
    struct Kind {
        QLatin1StringView word;
        SimFault fault;
    };
    static constexpr Kind kinds[]{{"hang"_L1, SimFault::Hang},
                                  {"reset"_L1, SimFault::Reset},
                                  {"nobody"_L1, SimFault::NoBody},
                                  {"incomplete"_L1, SimFault::Incomplete},
                                  {"none"_L1, SimFault::None}};
    const QString url = arguments.Take("the address");
    const QString word = arguments.Take("the fault");
    const int times = arguments.TakeWord("times"_L1) ? arguments.TakeNumber("the number of times") : 0;
    for (const Kind& kind : kinds)
        if (word == kind.word) {
            stage.world.web.SetFault(url, kind.fault, times);
            return;
        }
    Fail(u"no fault is called %1"_s.arg(word));
}

void Http(Stage& stage, Arguments& arguments) {
    const QString url = arguments.Take("the address");
    // The words without quotes are faults; an answer that reads so can be given as <<END lines.
    const QString& source = arguments.Source().source;
    if (source.endsWith(u" fail") && arguments.TakeWord("fail"_L1))
        stage.world.http.Fail(WithScheme(url));
    else if (source.endsWith(u" hang") && arguments.TakeWord("hang"_L1))
        stage.world.http.Hang(WithScheme(url));
    else
        stage.world.http.Set(WithScheme(url), arguments.Take("the answer"));
}

void PracticeSite(Stage& stage, Arguments& arguments) {
    const quint64 seed =
        arguments.TakeWord("seed"_L1) ? static_cast<quint64>(arguments.TakeNumber("the seed")) : 1;
    stage.UsePracticeSite(seed);
}

void SiteControl(Stage& stage, Arguments& arguments) {
    if (!stage.site)
        stage.UsePracticeSite(1);
    const QString line = arguments.TakeAll().join(u' ');
    if (const QString problem = stage.site->Control(line); !problem.isEmpty())
        Fail(u"the site says: %1"_s.arg(problem));
}

} // namespace

const CommandRows& SettingUpSiteCommands() {
    static const CommandRows rows{
        {"page", "word word *", Page},
        {"redirect", "word word", Redirect},
        {"fault", "word hang|reset|nobody|incomplete|none times? number?", Fault},
        {"http", "word word", Http},
        {"site practice", "seed? number?", PracticeSite},
        {"site control", "word *", SiteControl},
    };
    return rows;
}

} // namespace qlm::scenario
