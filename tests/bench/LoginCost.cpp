// SPDX-License-Identifier: MIT
// What a login costs in wall time, from Continue to "Login successful!", beyond what the engine alone needs
// for the same three pages. Program and bare script take turns, so that whatever else the machine does meets
// both.
#include "Figures.h"
#include "RunningProgram.h"
#include "SiteProcess.h"
#include "platform/qt/EngineProfile.h"

#include <QApplication>
#include <QEventLoop>
#include <QNetworkProxy>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <cstdio>
#include <unistd.h>

namespace qlm {
namespace {

// Timer1 before the steps 1, 3 and 4.
constexpr double TicksMs = 3 * 400;

double MsSince(long long startNs) {
    return static_cast<double>(NowNs() - startNs) / 1e6;
}

// From the press on Continue; negative when the login came to no end.
double LogInWithTheProgram(const UsedProgram& folders) {
    RunningProgram program(folders);
    long long startNs = 0;
    double ms = -1;
    program.app.controls.AddListener([&](const Control& control, Controls::Change, int) {
        if (ms < 0 && control.name == "myfraCurrentAction"_L1 && control.text == u"Login successful!"_s)
            ms = MsSince(startNs);
    });
    program.driver.Add({u"The login screen"_s, 60,
                        [&] { return program.driver.Form("frmInteken") != nullptr; },
                        [&] {
                            startNs = NowNs();
                            program.driver.Press("frmInteken", "cmdContinue");
                        }});
    program.driver.Add({u"The login's end"_s, 60, [&] { return ms >= 0; }, [&] { program.driver.End({}); }});
    return program.Run() ? ms : -1;
}

// The same pages through the engine's own calls: the front page, a blank page, the home page with its form,
// and what the form leads to; text and markup of each are read.
class BareLogin {
public:
    BareLogin() : m_page(&m_profile) {}

    double Run() {
        const long long startNs = NowNs();
        Load(QUrl(u"http://www.myspace.example.com/"_s));
        Load(QUrl(u"about:blank"_s));
        Load(QUrl(u"http://home.myspace.example.com/index.cfm?fuseaction=home"_s));
        Await([this] {
            m_page.runJavaScript(
                u"document.getElementById('ctl00_Main_Email_Textbox').value = 'a@example.com';"
                "document.getElementById('ctl00_Main_Password_Textbox').value = 'secret';"
                "document.getElementById('ctl00_Main_loginBtn').click();"_s);
        });
        const bool isIn = Read(u"document.body.innerHTML"_s).contains(u"/signout?"_s);
        return isIn ? MsSince(startNs) : -1;
    }

private:
    void Await(const std::function<void()>& begin) {
        QEventLoop loop;
        QObject::connect(&m_page, &QWebEnginePage::loadFinished, &loop, &QEventLoop::quit);
        begin();
        loop.exec();
        Read(u"document.body.innerText"_s);
        Read(u"document.body.innerHTML"_s);
    }
    void Load(const QUrl& url) {
        Await([this, &url] { m_page.load(url); });
    }
    QString Read(const QString& script) {
        QEventLoop loop;
        QString text;
        bool isThere = false;
        m_page.runJavaScript(script, [&](const QVariant& result) {
            text = result.toString();
            isThere = true;
            loop.quit();
        });
        if (!isThere)
            loop.exec();
        return text;
    }

    QWebEngineProfile m_profile;
    QWebEnginePage m_page;
};

int Measure(int rounds) {
    SiteProcess site;
    // A front page without a form of its own, so that all three pages are loaded.
    site.Tell(u"fault www.myspace.example.com/$ wrong"_s);
    UsedProgram folders(site.Port());
    QNetworkProxy::setApplicationProxy(QNetworkProxy(QNetworkProxy::HttpProxy, u"127.0.0.1"_s, site.Port()));
    std::vector<double> ofProgram, ofBare;
    for (int round = 0; round <= rounds; ++round) {
        const double program = LogInWithTheProgram(folders);
        const double bare = BareLogin().Run();
        if (program < 0 || bare < 0)
            return 1;
        // The first round warms up.
        if (round > 0) {
            ofProgram.push_back(program - TicksMs);
            ofBare.push_back(bare);
        }
    }
    std::printf("\n%d logins, without the program's ticks of %.0f ms:\n", rounds, TicksMs);
    PrintSpread("the program, from Continue to its end", ofProgram, "ms");
    PrintSpread("a bare page", ofBare, "ms");
    std::printf("program / bare page   %.2f\n", Median(ofProgram) / Median(ofBare));
    return 0;
}

} // namespace
} // namespace qlm

int main(int argc, char** argv) {
    if (::geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    qlm::PrepareEngine();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 9;
    const int status = qlm::Measure(rounds);
    if (status != 0)
        std::printf("A login came to no end.\n");
    return status;
}
