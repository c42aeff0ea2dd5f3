// SPDX-License-Identifier: MIT
// What one check of a page costs beside fetching the page's text and markup and nothing else: on pages of
// three sizes, for every kind of element that a step can expect, on a page's first check and on a later one.
// The checks and the bare fetches take turns, so that whatever else the machine does meets both.
#include "BarePage.h"
#include "Figures.h"
#include "LoopbackServer.h"
#include "UsedProgram.h"
#include "core/App.h"
#include "platform/qt/EngineProfile.h"
#include "shell/DesktopDialogs.h"
#include "steps/StepDispatcher.h"
#include "steps/StopResume.h"

#include <QApplication>
#include <cstdio>
#include <map>
#include <unistd.h>

namespace qlm {
namespace {

constexpr std::array PageSizes = {5'000, 50'000, 500'000};
constexpr double TimeGoal = 1.5;
constexpr double CallGoal = 2;

// What a step may expect. Nothing of it stands on the page, so that the whole page is searched.
struct Expectation {
    const char* name;
    QString action;
    QString type;
    QString value;
    QString lastPageHref;
};

const std::vector<Expectation>& Expectations() {
    static const QString lastPage = u"http://www.myspace.example.com/the-last-page"_s;
    static const std::vector<Expectation> all{
        {"a text", u"FR"_s, u"Text"_s, u"stands nowhere"_s, {}},
        {"a markup", u"FR"_s, u"TextHTML"_s, u"stands nowhere"_s, {}},
        {"a text, last page's link gone", u"FR"_s, u"Text"_s, u"stands nowhere"_s, lastPage},
        {"a link", u"ACC"_s, u"Link"_s, u"stands nowhere"_s, lastPage},
        {"an image", u"COM"_s, u"Image"_s, u"stands-nowhere.gif"_s, lastPage},
        {"a button", u"COM"_s, u"Button"_s, u"stands nowhere"_s, lastPage},
        {"an element's ID", u"ACC"_s, u"ID"_s, u"standsnowhere"_s, lastPage},
        {"a list of profiles", u"SCANNING"_s, u"ID"_s, u"ListOfIDs"_s, lastPage},
    };
    return all;
}

// Rows of people with a picture, two links and a line of text each, as on a friends list; about size bytes.
QByteArray ListPage(int size) {
    QByteArray page = "<!DOCTYPE html><html><head><title>Friends</title></head><body>"
                      "<form action='/search'><input name='q' value='search'><input type='submit' value='Go'>"
                      "<button>Advanced</button></form><div id='wrap'><div id='main'><div class='list'>";
    for (int i = 0; page.size() < size; ++i) {
        const QByteArray number = QByteArray::number(100001 + i);
        page +=
            "<div class='friend' id='row" + number + "'><a href='/" + number +
            "'><img alt='portrait' src='data:,'></a> <a href='http://profile.myspace.example.com/index.cfm"
            "?fuseaction=user.viewprofile&amp;friendID=" +
            number + "'>Person " + number +
            "</a><p>Likes long walks, old records and rainy Sunday afternoons.</p></div>\n";
    }
    return page + "</div></div></div></body></html>";
}

struct Taken {
    std::vector<double> firstMs, laterMs, bareMs, bareLaterMs;
    qint64 firstCalls = 0;
    qint64 laterCalls = 0;
};

class PassCost {
public:
    PassCost();
    ~PassCost() { dialogs.Detach(); }

    // only: the name of one expectation; all when it is empty.
    void Measure(int times, const QString& only);
    bool Report() const;

private:
    class Views : public BrowserViews {
    public:
        explicit Views(QtPlatform& platform) : m_platform(platform) {}
        QWidget* ViewOf(BrowserName name) override { return m_platform.ViewOf(name); }

    private:
        QtPlatform& m_platform;
    };

    static QString Address(int size) { return u"http://www.myspace.example.com/browse/%1"_s.arg(size); }
    void MeasureOnce(int size, const Expectation& expectation, Taken& taken);
    void Open(int size);
    double Pass(const Expectation& expectation, qint64& calls);
    double Bare();

    LoopbackServer server;
    UsedProgram folders{server.Port()};
    DesktopDialogs dialogs;
    QtPlatform platform{folders.Options(), dialogs};
    Views views{platform};
    App app{platform};
    std::unique_ptr<BarePage> bare;
    std::map<std::pair<int, const char*>, Taken> taken;
};

PassCost::PassCost() {
    dialogs.Attach(app, views);
    for (const int size : PageSizes) {
        LoopbackAnswer answer;
        answer.body = ListPage(size);
        server.Answer(u"www.myspace.example.com/browse/%1"_s.arg(size), answer);
    }
    auto* view = qobject_cast<QWebEngineView*>(platform.ViewOf(BrowserName::WebBrowser1));
    bare = std::make_unique<BarePage>(view->page()->profile());
}

void PassCost::Open(int size) {
    BrowserControl& browser = app.WebBrowser1();
    browser.Navigate(u"about:blank"_s);
    app.Pump().PumpMessages();
    browser.Navigate(Address(size));
    while (browser.LocationURL() != Address(size) || browser.Busy()) {
        app.Pump().PumpMessages();
        app.Pump().Sleep(10);
    }
    bare->Load(QUrl(u"about:blank"_s));
    bare->Load(QUrl(Address(size)));
    // What the loads have left behind is not to be counted.
    for (int i = 0; i < 10; ++i) {
        app.Pump().PumpMessages();
        app.Pump().Sleep(5);
    }
}

double PassCost::Pass(const Expectation& expectation, qint64& calls) {
    RunState& state = app.state;
    state.CurrentAction = expectation.action;
    state.strLinkType = expectation.type;
    state.strLinkValue = expectation.value;
    state.strLastPageHref = expectation.lastPageHref;
    state.blnLinkFound = false;
    app.Pump().Queue().EndTurn();
    const qint64 before = app.WebBrowser1().EngineCalls();
    const long long start = NowNs();
    app.Get<StepDispatcher>().CheckLinkFound();
    const double ms = static_cast<double>(NowNs() - start) / 1e6;
    calls = std::max(calls, app.WebBrowser1().EngineCalls() - before);
    state.CurrentAction.clear();
    return ms;
}

double PassCost::Bare() {
    const long long start = NowNs();
    if (bare->Read(u"document.body.innerText"_s).size() > bare->Read(u"document.body.innerHTML"_s).size())
        throw std::runtime_error("the page is not there");
    return static_cast<double>(NowNs() - start) / 1e6;
}

void PassCost::MeasureOnce(int size, const Expectation& expectation, Taken& into) {
    Open(size);
    into.bareMs.push_back(Bare());
    into.firstMs.push_back(Pass(expectation, into.firstCalls));
    into.bareLaterMs.push_back(Bare());
    into.laterMs.push_back(Pass(expectation, into.laterCalls));
}

void PassCost::Measure(int times, const QString& only) {
    // The first of all starts the engine's processes.
    Taken warmUp;
    MeasureOnce(PageSizes.front(), Expectations().front(), warmUp);
    for (int i = 0; i < times; ++i)
        for (const int size : PageSizes)
            for (const Expectation& expectation : Expectations())
                if (only.isEmpty() || only == QString::fromLatin1(expectation.name))
                    MeasureOnce(size, expectation, taken[{size, expectation.name}]);
}

bool PassCost::Report() const {
    bool isMet = true;
    std::printf("%-8s %-30s %28s %28s %8s\n", "page", "expected", "first pass / bare, ms",
                "later pass / bare, ms", "calls");
    for (const auto& [key, figures] : taken) {
        const double first = Median(figures.firstMs), bareFirst = Median(figures.bareMs);
        const double later = Median(figures.laterMs), bareLater = Median(figures.bareLaterMs);
        const bool isFine = first <= TimeGoal * bareFirst && later <= TimeGoal * bareLater &&
                            std::max(figures.firstCalls, figures.laterCalls) <= CallGoal;
        isMet = isMet && isFine;
        std::printf("%-8d %-30s %9.2f / %7.2f = %5.2f %10.2f / %7.2f = %5.2f %4lld, %lld%s\n", key.first,
                    key.second, first, bareFirst, first / bareFirst, later, bareLater, later / bareLater,
                    static_cast<long long>(figures.firstCalls), static_cast<long long>(figures.laterCalls),
                    isFine ? "" : "  MISSED");
    }
    return isMet;
}

} // namespace
} // namespace qlm

int main(int argc, char** argv) {
    if (::geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    qlm::PrepareEngine();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    qlm::PassCost cost;
    cost.Measure(argc > 1 ? std::atoi(argv[1]) : 9, QString::fromLocal8Bit(argc > 2 ? argv[2] : ""));
    std::printf(cost.Report() ? "goals met\n" : "goals MISSED\n");
    return 0;
}
