// SPDX-License-Identifier: MIT
// What of the machine's desktop a scenario moves: which window is in front, and the time zone.
#include "Arguments.h"
#include "Stage.h"

#include <QGuiApplication>
#include <QWidget>
#include <ctime>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

void Stage::Minimize() {
    QWidget* window = dialogs.FormWidget(u"frmMain"_s);
    if (!window)
        Fail(u"the main window is not open"_s);
    window->showMinimized();
    LeaveForeground();
}

void Stage::LeaveForeground() {
    if (!m_otherProgram) {
        m_otherProgram = std::make_unique<QWindow>();
        QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, &m_listener,
                         [this](const QWindow* window) { OnFocusWindow(window); });
    }
    m_otherProgram->show();
    m_otherProgram->requestActivate();
    m_machine->Services().Desktop().foreground.clear();
}

// A window of the program has come to the front by itself.
void Stage::OnFocusWindow(const QWindow* window) {
    for (const QString& form : dialogs.OpenForms())
        if (window && dialogs.FormWidget(form)->windowHandle() == window)
            m_machine->Services().Desktop().foreground = form;
}

bool Stage::IsForeground() {
    return !m_machine->Services().Desktop().ForegroundWindow().isEmpty();
}

void Stage::RestoreMain() {
    QWidget* window = dialogs.FormWidget(u"frmMain"_s);
    if (!window || !window->isMinimized())
        return;
    window->showNormal();
    window->activateWindow();
}

void Stage::SetClock(const QDateTime& now) {
    world.clock.SetNow(now);
    if (m_zone)
        m_utcAtZero = QDateTime(now.date(), now.time(), *m_zone).toUTC().addMSecs(-NowMs());
}

void Stage::SetZone(const QString& name) {
    m_zone = QTimeZone(name.toLatin1());
    if (!m_zone->isValid())
        Fail(u"no time zone is called %1"_s.arg(name));
    if (!m_zoneBefore)
        m_zoneBefore = qgetenv("TZ");
    qputenv("TZ", name.toLatin1());
    ::tzset();
    SetClock(world.clock.Now());
}

// The clock itself knows no changes of the clock.
void Stage::KeepZone() {
    if (!m_zone)
        return;
    const QDateTime there = m_utcAtZero.addMSecs(NowMs()).toTimeZone(*m_zone);
    if (there.time() != world.clock.Now().time())
        world.clock.SetNow(there);
}

void Stage::RestoreZone() {
    if (!m_zoneBefore)
        return;
    if (m_zoneBefore->isEmpty())
        qunsetenv("TZ");
    else
        qputenv("TZ", *m_zoneBefore);
    ::tzset();
}

} // namespace qlm::scenario
