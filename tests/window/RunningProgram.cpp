// SPDX-License-Identifier: MIT
#include "RunningProgram.h"
#include "program/StartUp.h"

#include <QApplication>

namespace qlm {

RunningProgram::RunningProgram(const UsedProgram& folders, int clockRate)
    : m_platform(folders.Options(clockRate), m_dialogs),
      m_views(m_platform),
      m_app(std::make_unique<App>(m_platform)),
      app(*m_app),
      driver(app) {
    m_dialogs.Attach(app, m_views);
    // It would end the test's own process if it fell due while the program is closing.
    app.timers->tmrQuit.SetEnabled(false);
}

RunningProgram::~RunningProgram() {
    m_dialogs.Detach();
}

void RunningProgram::PlanLogin(std::function<void()> next) {
    driver.Add({u"The login screen"_s, 60, [this] { return driver.Form("frmInteken") != nullptr; },
                [this] { driver.Press("frmInteken", "cmdContinue"); }});
    driver.Add(
        {u"The login"_s, 60, [this] { return app.Status() == u"Login successful!"_s; }, std::move(next)});
}

void RunningProgram::PlanSending(const QString& tab, const char* send, std::function<void()> fillIn) {
    PlanLogin([this, tab] { driver.ChooseTab(tab); });
    driver.Add({tab, 10, [this, send] { return driver.Find("frmMain", send) != nullptr; },
                [this, send, fillIn = std::move(fillIn)] {
                    fillIn();
                    driver.Press("frmMain", send);
                }});
}

void RunningProgram::PlanReport(int limitSeconds) {
    driver.Add({u"The report"_s, limitSeconds, [this] { return driver.WasTold(u"Finished sending"_s); },
                [this] { driver.End({}); }});
}

bool RunningProgram::Run() {
    QTimer::singleShot(0, qApp, [this] {
        driver.Start();
        app.Get<StartUp>().Main();
    });
    QApplication::exec();
    return driver.ExitCode() == 0;
}

bool RunningProgram::IsStuckOn(const QString& id, int milliseconds) {
    if (app.state.strCurrentID != m_target) {
        m_target = app.state.strCurrentID;
        m_onTarget.start();
    }
    return m_target == id && m_onTarget.elapsed() >= milliseconds;
}

} // namespace qlm
