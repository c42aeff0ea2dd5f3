// SPDX-License-Identifier: MIT
// Wires the product together: engine, platform, logic and windows.
#include "core/App.h"
#include "core/StartUp.h"
#include "guided/GuidedRun.h"
#include "guided/PracticeControls.h"
#include "guided/ResumedRun.h"
#include "platform/qt/EngineProfile.h"
#include "platform/qt/QtPlatform.h"
#include "shell/DesktopDialogs.h"
#include "shell/Look.h"

#include <QApplication>
#include <QDir>
#include <QFile>
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

// What the command line asks for. The usual program knows none.
struct Guidance {
    QString folder; // behind "--guided"; empty for the usual program
    bool isResumed; // "--resume": goes on with what an earlier run has left there

    bool IsWanted() const { return !folder.isEmpty(); }
};

Guidance GuidanceIn(const QStringList& arguments) {
    const qsizetype option = arguments.indexOf(u"--guided"_s);
    return {option < 0 ? QString() : arguments.value(option + 1, u"guided"_s),
            arguments.contains(u"--resume"_s)};
}

// A guided run must neither see nor change what the user has: it works in a folder of its own, emptied first.
// A resumed one leaves the folder as it is and takes a deployment.ini from there.
QtPlatformOptions OptionsFor(const Guidance& guidance) {
    const QString installed = QCoreApplication::applicationDirPath();
    if (!guidance.IsWanted())
        return {installed, {}, {}};
    const QDir folder(QDir(guidance.folder).absoluteFilePath(u"profile"_s));
    if (!guidance.isResumed)
        QDir(folder).removeRecursively();
    QDir().mkpath(folder.path());
    QFile::copy(installed + u"/timedelay.htm"_s, folder.filePath(u"timedelay.htm"_s));
    const QString own = folder.filePath(u"deployment.ini"_s);
    return {folder.path(), folder.filePath(u"local"_s),
            guidance.isResumed && QFile::exists(own) ? own : installed + u"/deployment.ini"_s};
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

    PracticeControls controls(QNetworkProxy::applicationProxy().port());
    const std::unique_ptr<WindowDriver> driver = NewDriver(app, controls, guidance);

    // Inside the message loop, so that ending the program at once is possible.
    QTimer::singleShot(0, &application, [&app, &platform, &driver] {
        if (driver)
            driver->Start();
        if (const QString problem = platform.StartProblem(); !problem.isEmpty())
            app.ShowMessage(problem);
        app.startUp->Main();
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
    DesktopDialogs dialogs;
    QtPlatform platform(OptionsFor(guidance), dialogs);
    return RunProgram(application, platform, dialogs, guidance);
}
