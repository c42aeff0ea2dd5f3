// SPDX-License-Identifier: MIT
// What one pass over a page's links costs on the real engine beyond the 10 ms that each link is given: pages
// of 40, 400 and 4,000 links in two designs, in turns with bare waits of the same number, so that whatever
// else the machine does meets both.
#include "Figures.h"
#include "LoopbackServer.h"
#include "UsedProgram.h"
#include "core/App.h"
#include "gather/LinkScanner.h"
#include "platform/qt/EngineProfile.h"
#include "platform/sim/RecordingDialogs.h"

#include <QApplication>
#include <cstdio>
#include <map>
#include <unistd.h>

namespace qlm {
namespace {

constexpr int Rounds = 3;
constexpr int Sizes[] = {40, 400, 4000};

struct Design {
    const char* name;
    const char16_t* path;
    const char* entry; // of one profile, %1 is its ID
};
constexpr Design Designs[] = {
    {"friends page", u"7/friends",
     "<div class='miniProfile'><p><img src='data:,' alt=''><a href='/%1'>Somebody %1</a></p>"
     "<ul><li>Age: 30</li><li>Leeds, UK</li></ul><p>Send Message</p></div>"},
    {"any other page", u"index.cfm?fuseaction=anything",
     "<div class='entry'><p>wrote on 1 June: <a href='/%1'>Somebody %1</a></p><p>A line of text about "
     "nothing in particular.</p></div>"},
};

class ScanCost {
public:
    ScanCost() : m_folders(m_server.Port()), m_platform(m_folders.Options(), m_dialogs), m_app(m_platform) {
        m_app.state.DataFolder = m_folders.File(u"data"_s);
        m_app.state.ProgramFolder = m_app.state.DataFolder;
        m_app.state.blnNewLayout = true;
    }
    void Measure();
    void Report() const;

private:
    struct Figures {
        std::vector<double> callsPerLink, msPerLink;
    };

    void Pass(const Design& design, int links);
    void Load(const QString& url);

    LoopbackServer m_server;
    RecordingDialogs m_dialogs;
    UsedProgram m_folders;
    QtPlatform m_platform;
    App m_app;
    std::map<std::pair<const char*, int>, Figures> m_figures;
};

void ScanCost::Load(const QString& url) {
    m_app.WebBrowser1().Navigate(url);
    m_app.waiting.WaitWhile([&] { return m_app.WebBrowser1().LocationURL() != url; }, 60);
    m_app.waiting.WaitWhile([&] { return m_app.WebBrowser1().ReadyState() != 4; }, 60);
}

void ScanCost::Pass(const Design& design, int links) {
    const QString url = m_app.Expand(u"http://{SiteRootHost}/"_s) + QString::fromUtf16(design.path);
    QByteArray body = "<html><body><div id=list>";
    for (int i = 0; i < links; ++i)
        body += QByteArray(design.entry).replace("%1", QByteArray::number(100'000 + i));
    LoopbackAnswer page;
    page.body = body + "</div></body></html>";
    m_server.AnswerUnknown(page);
    Load(url);
    m_app.state.arrFriendIDs = IdList{QString()};
    m_app.controls.SetItems("lstFriendIDs"_L1, {});
    m_app.state.CurrentAction = u"SCANNING"_s;
    // A turned page: no wait for the signs of a first one, and no search for the next after it.
    m_app.state.strNextPageLink = u"temp"_s;
    m_app.controls.SetTicked("optScanCurrentPage"_L1, true);

    const qint64 callsBefore = m_app.WebBrowser1().EngineCalls();
    long long startNs = NowNs();
    m_app.Get<LinkScanner>().GatherPageProfiles();
    const double passMs = static_cast<double>(NowNs() - startNs) / 1e6;
    const auto calls = static_cast<double>(m_app.WebBrowser1().EngineCalls() - callsBefore);
    if (m_app.state.arrFriendIDs.size() != links)
        throw std::runtime_error("not every profile was found");
    m_app.state.CurrentAction.clear();

    startNs = NowNs();
    for (int i = 0; i < links; ++i)
        m_app.waiting.Turn();
    const double waitsMs = static_cast<double>(NowNs() - startNs) / 1e6;
    Figures& figures = m_figures[{design.name, links}];
    figures.callsPerLink.push_back(calls / links);
    figures.msPerLink.push_back((passMs - waitsMs) / links);
}

void ScanCost::Measure() {
    for (int round = 0; round < Rounds; ++round)
        for (const int links : Sizes)
            for (const Design& design : Designs)
                // The long page speaks for itself: it is forty seconds of waits each time.
                if (round == 0 || links < Sizes[2])
                    Pass(design, links);
}

void ScanCost::Report() const {
    for (const auto& [key, figures] : m_figures) {
        const std::string name = std::string(key.first) + ", " + std::to_string(key.second) + " links";
        PrintSpread((name + ", a link").c_str(), figures.msPerLink, "ms");
        PrintAgainstGoal((name + ", engine calls").c_str(), Median(figures.callsPerLink), 1, "a link");
    }
}

} // namespace
} // namespace qlm

int main(int argc, char** argv) {
    if (::geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    qlm::PrepareEngine();
    QApplication application(argc, argv);
    qlm::ScanCost cost;
    cost.Measure();
    cost.Report();
    return 0;
}
