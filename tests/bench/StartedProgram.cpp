// SPDX-License-Identifier: MIT
#include "StartedProgram.h"
#include "Figures.h"
#include "UsedProgram.h"
#include "core/App.h"
#include "platform/qt/EngineProfile.h"
#include "program/StartUp.h"
#include "shell/DesktopDialogs.h"
#include "shell/Look.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTimer>
#include <QWidget>

namespace qlm {

namespace {

class Views : public BrowserViews {
public:
    explicit Views(QtPlatform& platform) : m_platform(platform) {}
    QWidget* ViewOf(BrowserName name) override { return m_platform.ViewOf(name); }

private:
    QtPlatform& m_platform;
};

// Sees the first paint of a form, and the first moment after it at which the event loop has nothing left to
// do.
class FirstPaints : public QObject {
public:
    FirstPaints(long long startNs, App& app) : m_startNs(startNs), m_app(app) {}

    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint && object->isWidgetType()) {
            if (!m_login && object->objectName() == "frmInteken"_L1)
                OnLogin(*qobject_cast<QWidget*>(object));
            else if (!m_window && object->objectName() == "frmMain"_L1)
                OnWindow();
        }
        return false;
    }

private:
    double SinceStartMs() const { return static_cast<double>(NowNs() - m_startNs) / 1e6; }

    void OnLogin(QWidget& form) {
        m_login = true;
        QTimer::singleShot(0, &form, [this, &form] {
            std::printf("login %.1f\n", SinceStartMs());
            if (auto* proceed = form.findChild<QAbstractButton*>(u"cmdContinue"_s))
                proceed->click();
        });
    }

    void OnWindow() {
        m_window = true;
        QTimer::singleShot(0, this, [this] {
            std::printf("window %.1f\n", SinceStartMs());
            WaitForRest();
        });
    }

    void WaitForRest() {
        if (m_app.Status() == u"Login successful!"_s && m_app.WebBrowser1().ReadyState() == 4) {
            QTimer::singleShot(RestMs, this, [] {
                std::printf("resident %ld\n", ResidentKb());
                QApplication::exit();
            });
            return;
        }
        QTimer::singleShot(50, this, [this] { WaitForRest(); });
    }

    const long long m_startNs;
    App& m_app;
    bool m_login = false;
    bool m_window = false;
};

} // namespace

int RunStartedProgram(int argc, char** argv, long long startNs) {
    PrepareEngine();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    ApplyLook(application);
    const UsedProgram folders(0);
    QtPlatformOptions options = folders.Options();
    // As it is delivered: with the practice site that the program starts itself.
    options.deploymentFile = QCoreApplication::applicationDirPath() + u"/deployment.ini"_s;
    DesktopDialogs dialogs;
    QtPlatform platform(options, dialogs);
    Views views(platform);
    App app(platform);
    dialogs.Attach(app, views);
    FirstPaints paints(startNs, app);
    application.installEventFilter(&paints);
    QTimer::singleShot(0, &application, [&app] { app.Get<StartUp>().Main(); });
    const int status = QApplication::exec();
    dialogs.Detach();
    return status;
}

} // namespace qlm
