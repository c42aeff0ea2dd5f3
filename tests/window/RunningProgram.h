// SPDX-License-Identifier: MIT
#pragma once

#include "UsedProgram.h"
#include "core/App.h"
#include "guided/WindowDriver.h"
#include "shell/DesktopDialogs.h"

#include <QTimer>

namespace qlm {

// The whole program in the test's own process, so that a test can see its state and the moment at which
// something happens. One at a time.
class RunningProgram {
public:
    // clockRate: how many times faster than the wall's clock the program's goes.
    explicit RunningProgram(const UsedProgram& folders, int clockRate = 1);
    ~RunningProgram();

    // Adds the steps up to the end of the login, and what comes next.
    void PlanLogin(std::function<void()> next);
    // Adds the steps up to the press on Send of that tab, filled in before it.
    void PlanSending(
        const QString& tab = QStringLiteral("Friend Requester"), const char* send = "piccmdAddFriends",
        std::function<void()> fillIn = [] {});
    // Adds the step that waits for the run's report and ends.
    void PlanReport(int limitSeconds);
    // From the program's start until the driver has ended. False when the driver met a problem.
    bool Run();

    // The program works on this target for at least so long. Touches no page.
    bool IsStuckOn(const QString& id, int milliseconds);

private:
    class Views : public BrowserViews {
    public:
        explicit Views(QtPlatform& platform) : m_platform(platform) {}
        QWidget* ViewOf(BrowserName name) override { return m_platform.ViewOf(name); }

    private:
        QtPlatform& m_platform;
    };

    DesktopDialogs m_dialogs;
    QtPlatform m_platform;
    Views m_views;
    std::unique_ptr<App> m_app;
    QElapsedTimer m_onTarget;
    QString m_target;

public:
    App& app;
    WindowDriver driver;
};

} // namespace qlm
