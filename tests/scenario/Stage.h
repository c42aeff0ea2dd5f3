// SPDX-License-Identifier: MIT
#pragma once

#include "Machine.h"
#include "Play.h"
#include "ScenarioDialogs.h"
#include "core/App.h"
#include "practice/PracticeSite.h"

#include <QTemporaryDir>
#include <QTimeZone>
#include <QWindow>
#include <deque>
#include <map>
#include <memory>

namespace qlm::scenario {

// The world of one scenario: a machine with fresh folders, a store, a network and a clock, and on it the
// program, which may end and start again.
class Stage : private BrowserViews {
public:
    explicit Stage(MachineMaker makeMachine);
    ~Stage() override;

    Play* play = nullptr;
    SimWorld world;
    ScenarioDialogs dialogs;
    std::unique_ptr<practice::PracticeSite> site;
    std::map<QString, QString> names; // of "let"
    qint64 markMs = 0;

    // The program.
    bool HasProgram() const { return m_app != nullptr; }
    App& TheApp();
    // The user in front of the page.
    Machine& TheMachine() { return *m_machine; }
    Pump& ThePump() { return m_machine->ThePlatform().Pump(); }
    BrowserControl& Browser(BrowserName name) { return m_machine->ThePlatform().Browser(name); }
    QStringList& AttentionCalls() { return m_machine->Services().Attention().calls; }
    // What the desktop was asked to open: "folder PATH", "address URL", "file PATH".
    QStringList& Opened() { return m_machine->Services().Shell().opened; }
    qint64 NowMs() const { return world.clock.NowMs(); }

    void Start();
    // Puts the program into the state after a finished login.
    void LogIn(const QString& email, const QString& ownID);
    // Closes the main window, or what else is open of the program.
    void Close();
    // The process is gone; nothing of it runs any more.
    void DropProgram();
    bool IsIdle();
    bool HasEnded();

    void UsePracticeSite(quint64 seed);
    // Loads and forms of that browser since the last call, also of programs that have ended meanwhile.
    QStringList TakeVisited(BrowserName name);
    std::optional<SimBrowser::Posted> TakePosted(BrowserName name);

    // Before a start: as the next start will find it.
    QString ProgramFolder() const;
    QString DataFolder() const;
    // Replaces {names}.
    QString Expand(const QString& text);
    // A path as a file name of this machine; one without a folder lies in the scenario's own.
    QString Path(const QString& text);

    // The top-most first.
    std::vector<QWidget*> OpenForms();
    // Those under a modal form can be seen, but not reached.
    std::vector<QWidget*> ReachableForms();
    QWidget* Widget(const QString& name);
    QWidget* SeenWidget(const QString& name);
    // Null when no form has it.
    QWidget* SeenWidgetOrNull(const QString& name);
    void Minimize();
    // Another program's window comes to the front, until something brings ours there.
    void LeaveForeground();
    bool IsForeground();
    void SetClock(const QDateTime& now);
    // The process, too, has that time zone until the scenario is over.
    void SetZone(const QString& name);
    // At every turn: the clock changes when that of the zone does.
    void KeepZone();
    void DestroyClosedWindows();

    QString UnusedAnswers() const;
    // What the program is doing, for a failure's text.
    QString Describe();
    // The last lines of the debug files.
    QStringList DebugTrail(int linesEach) const;

private:
    struct Records {
        QStringList visited;
        std::deque<SimBrowser::Posted> posted;
    };

    QWidget* ViewOf(BrowserName name) override;
    void StartMachine();
    void Build();
    void OpenMainWindow(const QString& email);
    void CollectRecords();
    std::optional<QString> AnswerHttp(const QString& url) const;
    std::optional<SimAnswer> AnswerPage(const SimRequest& request);

    void OnFocusWindow(const QWindow* window);
    void RestoreMain();
    void RestoreZone();

    QTemporaryDir m_folder;
    QObject m_listener; // of the desktop's
    std::unique_ptr<QWindow> m_otherProgram;
    std::optional<QTimeZone> m_zone;
    QDateTime m_utcAtZero;
    std::optional<QByteArray> m_zoneBefore;
    std::map<BrowserName, std::unique_ptr<QWidget>> m_views;
    std::map<BrowserName, Records> m_records;
    MachineMaker m_makeMachine;
    std::unique_ptr<Machine> m_machine;
    std::unique_ptr<App> m_app;
};

} // namespace qlm::scenario
