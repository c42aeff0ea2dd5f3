// SPDX-License-Identifier: MIT
#pragma once

#include "Waiting.h"

#include <QProcess>

namespace qlm {

// The built program as its user starts it. Killed with this object if it still runs.
class ProgramProcess {
public:
    // beforeStart runs in the new process, before it becomes the program.
    explicit ProgramProcess(const QStringList& arguments, std::function<void()> beforeStart = {});
    // Another program than the built one.
    ProgramProcess(const QString& file, const QStringList& arguments, std::function<void()> beforeStart = {});
    ~ProgramProcess();

    bool IsRunning() const { return m_process.state() == QProcess::Running; }
    // False when it still runs after the time.
    bool WaitForEnd(int limitMs = GenerousMs);
    qint64 ProcessId() const { return m_process.processId(); }
    // SIGKILL: nothing is saved, nothing is closed.
    void Kill();
    bool HasCrashed() const { return m_process.exitStatus() == QProcess::CrashExit; }
    int ExitCode() const { return m_process.exitCode(); }
    // What it has said so far.
    QString Output();

private:
    QProcess m_process;
    QString m_output;
};

} // namespace qlm
