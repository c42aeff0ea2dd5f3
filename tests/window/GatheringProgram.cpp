// SPDX-License-Identifier: MIT
#include "GatheringProgram.h"
#include "Waiting.h"
#include "program/StartUp.h"

#include <QApplication>
#include <QThread>
#include <atomic>
#include <stdexcept>

namespace qlm {

namespace {

const QString Founder = u"6221"_s;

QStringList EachOnce(QStringList ids) {
    ids.removeAll(Founder);
    ids.removeDuplicates();
    return ids;
}

} // namespace

QStringList ShownPeople::Quick() const {
    return EachOnce(byNumber);
}

QStringList ShownPeople::Full() const {
    return EachOnce(byNumber + byName);
}

GatheringProgram::GatheringProgram(int clockRate) {
    site.Tell(u"journal shown on"_s);
    for (const QString& prompt : {u"GroupGatherPrompt"_s, u"MusicSearchGatherPrompt"_s})
        m_folders.Set(u"General"_s, prompt, u"1"_s);
    m_program.emplace(m_folders, clockRate);
    WindowDriver& driver = m_program->driver;
    bool isIn = false;
    driver.Add({u"The login screen"_s, 60, [&] { return driver.Form("frmInteken") != nullptr; },
                [&] { driver.Press("frmInteken", "cmdContinue"); }});
    driver.Add({u"The login"_s, 60, [this] { return Program().Status() == u"Login successful!"_s; },
                [&isIn] { isIn = true; }});
    QTimer::singleShot(0, qApp, [this] {
        m_program->driver.Start();
        Program().Get<StartUp>().Main();
    });
    if (!WaitUntil([&] { return isIn; }))
        throw std::runtime_error("the program did not log in");
}

GatheringProgram::~GatheringProgram() {
    Act([this] {
        m_program->driver.Choose("mnuExit");
        m_program->driver.End({});
    });
    QApplication::exec();
}

// As the user's own acts: from the program's queue, never in the middle of a call into a page.
void GatheringProgram::Act(std::function<void()> act) {
    Program().Pump().Queue().Post(std::move(act));
}

void GatheringProgram::Open(const QString& url) {
    bool isAsked = false;
    Act([&] {
        Program().commands.Run(u"piccmdClearList_Click"_s);
        Program().ClearPage();
        Program().WebBrowser1().Navigate(url);
        isAsked = true;
    });
    const bool stands = WaitUntil([&] {
        return isAsked && Program().WebBrowser1().LocationURL().startsWith(u"http"_s) &&
               Program().WebBrowser1().ReadyState() == 4;
    });
    if (!stands)
        throw std::runtime_error("the page did not come: " + url.toStdString());
}

// The gather runs within the wait for it, which therefore returns when it is over.
void GatheringProgram::PressStart(const char* kind) {
    bool isThrough = false;
    Act([this, kind, &isThrough] {
        m_program->driver.Press("frmMain", "optScanFollowing");
        m_program->driver.Press("frmMain", kind);
        m_program->driver.Press("frmMain", "picScanStart");
        isThrough = true;
    });
    WaitUntil([&] { return isThrough; });
}

bool GatheringProgram::Gather(const char* kind, int limitMs) {
    bool isLate = false;
    QTimer watch;
    watch.setSingleShot(true);
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        isLate = true;
        Act([this] { Program().commands.Run(u"picScanStop_Click"_s); });
    });
    watch.start(limitMs);
    PressStart(kind);
    WaitUntil([this] { return IsIdle(); }, limitMs);
    return !isLate && IsIdle() && Program().Status() == u"Finished gathering ID's"_s;
}

qint64 GatheringProgram::GatherAndStop(const char* kind, const std::function<bool()>& isTimely) {
    QElapsedTimer pressed;
    qint64 answeredMs = -1;
    bool isThrough = false;
    const auto press = [&] {
        if (!IsIdle()) {
            m_program->driver.Press("frmMain", "picScanStop");
            answeredMs = IsIdle() ? pressed.elapsed() : answeredMs;
        }
        isThrough = true;
    };
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        if (!isTimely())
            return;
        watch.stop();
        pressed.start();
        Act(press);
    });
    watch.start(5);
    PressStart(kind);
    // What is still to be delivered points at what is here.
    WaitUntil([&] { return IsIdle() && (isThrough || watch.isActive()); });
    return answeredMs;
}

// The journal is read by a thread of its own: asking for it here would let the program's events in.
qint64 GatheringProgram::GatherAndStop(const char* kind, int journalLines, int afterMs) {
    std::atomic_bool isOver = false, isTimely = false;
    site.TakeJournal();
    const std::unique_ptr<QThread> reader(QThread::create([&, port = site.Port()] {
        PracticeControls controls(port);
        qsizetype lines = 0;
        while (!isOver && lines < journalLines)
            lines += controls.TakeJournal().size();
        LetPass(afterMs);
        isTimely = true;
    }));
    reader->start();
    const qint64 answeredMs = GatherAndStop(kind, [&] { return isTimely.load(); });
    isOver = true;
    reader->wait();
    return answeredMs;
}

void GatheringProgram::Tick(QLatin1StringView option) {
    Program().controls.SetTicked(option, true);
}

void GatheringProgram::Fill(QLatin1StringView field, const QString& text) {
    Program().controls.SetText(field, text);
}

QStringList GatheringProgram::List() const {
    QStringList ids = m_program->app.state.arrFriendIDs.ToStringList();
    ids.removeAll(QString());
    return ids;
}

ShownPeople GatheringProgram::TakeShown() {
    ShownPeople shown;
    for (const QString& line : site.TakeJournal()) {
        const QStringList words = line.split(u' ');
        if (words[0] == u"shown"_s)
            shown.byNumber += words.mid(2);
        else if (words[0] == u"shown-by-name"_s)
            shown.byName += words.mid(2);
    }
    return shown;
}

} // namespace qlm
