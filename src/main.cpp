// SPDX-License-Identifier: MIT
// Wires the product together: engine, platform, logic and windows.
#include "CommandLine.h"
#include "core/App.h"
#include "core/ProfileLock.h"
#include "guided/GuidedRun.h"
#include "guided/PracticeControls.h"
#include "guided/ResumedRun.h"
#include "platform/qt/EngineProfile.h"
#include "platform/qt/QtPlatform.h"
#include "platform/qt/SessionEnd.h"
#include "program/MainForm.h"
#include "program/StartUp.h"
#include "shell/DesktopDialogs.h"
#include "shell/Look.h"

#include <QApplication>
#include <QMessageBox>
#include <QNetworkProxy>
#include <QScopeGuard>
#include <QTimer>
#include <cstdio>

namespace {

using namespace qlm;
using namespace Qt::Literals::StringLiterals;

class EngineViews : public BrowserViews {
public:
    explicit EngineViews(QtPlatform& platform) : m_platform(platform) {}
    QWidget* ViewOf(BrowserName name) override { return m_platform.ViewOf(name); }

private:
    QtPlatform& m_platform;
};

void TellSecondStart(const Guidance& guidance, const QString& folder) {
    const QString message = SecondStartMessage(folder);
    if (guidance.IsWanted())
        std::fprintf(stderr, "%s\n", qUtf8Printable(message));
    else
        QMessageBox::information(nullptr, QApplication::applicationName(), message);
}

std::unique_ptr<WindowDriver> NewDriver(App& app, PracticeControls& controls, const Guidance& guidance) {
    if (!guidance.IsWanted())
        return nullptr;
    if (guidance.isResumed)
        return std::make_unique<ResumedRun>(app);
    return std::make_unique<GuidedRun>(app, controls, guidance.folder);
}

// A guided run tells its story on the standard output; what the offscreen display cannot do is no part of it.
void TellProblems(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtDebugMsg || type == QtInfoMsg || text.startsWith(u"This plugin does not support"_s))
        return;
    std::fprintf(stderr, "%s\n", qUtf8Printable(text));
}

int RunProgram(QApplication& application, QtPlatform& platform, DesktopDialogs& dialogs,
               const Guidance& guidance) {
    EngineViews views(platform);
    App app(platform);
    dialogs.onMainWindow = [&platform](QWidget& window) { platform.Attention().SetWindow(&window); };
    dialogs.Attach(app, views);
    const auto detach = qScopeGuard([&dialogs] { dialogs.Detach(); });

    platform.onPracticeSite = [&app, &platform] {
        app.Get<MainForm>().ShowPracticeSite(platform.PracticeSiteRuns());
    };
    app.Get<MainForm>().ShowPracticeSite(platform.PracticeSiteRuns());
    SessionEnd session;
    // Before the main window is there, nothing is restored that could be saved.
    session.onSave = [&app, &dialogs] {
        if (dialogs.IsFormOpen(u"frmMain"_s))
            app.Get<MainForm>().SaveAll();
    };
    session.onEnd = [&app, &platform, &dialogs] {
        platform.Pump().Queue().Post([&app, &dialogs] {
            dialogs.DismissBoxes();
            app.Get<MainForm>().UnloadUnasked();
        });
    };

    PracticeControls controls(QNetworkProxy::applicationProxy().port());
    const std::unique_ptr<WindowDriver> driver = NewDriver(app, controls, guidance);

    // Inside the message loop, so that ending the program at once is possible.
    QTimer::singleShot(0, &application, [&app, &platform, &driver] {
        if (driver)
            driver->Start();
        if (const QString problem = platform.StartProblem(); !problem.isEmpty())
            app.ShowMessage(problem);
        app.Get<StartUp>().Main();
    });
    const int status = QApplication::exec();
    return driver ? driver->ExitCode() : status;
}

} // namespace

int main(int argc, char** argv) {
    PrepareEngine();
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Quillmere"_s);
    QApplication::setApplicationVersion(QStringLiteral(QUILLMERE_VERSION));
    // The program ends by Form_Unload, not by the last window: a form may close before the next one is up.
    QApplication::setQuitOnLastWindowClosed(false);
    ApplyLook(application);

    const Guidance guidance = GuidanceIn(QApplication::arguments());
    if (guidance.IsWanted())
        qInstallMessageHandler(TellProblems);
    ProfileLock lock;
    if (const QString folder = lock.Take(FoldersToLock(guidance)); !folder.isEmpty()) {
        TellSecondStart(guidance, folder);
        return 1;
    }
    DesktopDialogs dialogs;
    QtPlatform platform(OptionsFor(guidance), dialogs);
    return RunProgram(application, platform, dialogs, guidance);
}
