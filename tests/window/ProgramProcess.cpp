// SPDX-License-Identifier: MIT
#include "ProgramProcess.h"

namespace qlm {

ProgramProcess::ProgramProcess(const QStringList& arguments, std::function<void()> beforeStart)
    : ProgramProcess(QStringLiteral(PROGRAM), arguments, std::move(beforeStart)) {}

ProgramProcess::ProgramProcess(const QString& file, const QStringList& arguments,
                               std::function<void()> beforeStart) {
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    if (beforeStart)
        m_process.setChildProcessModifier(std::move(beforeStart));
    m_process.start(file, arguments);
    if (!m_process.waitForStarted())
        throw std::runtime_error("the program could not be started");
}

ProgramProcess::~ProgramProcess() {
    if (IsRunning())
        Kill();
}

bool ProgramProcess::WaitForEnd(int limitMs) {
    return WaitUntil([this] { return !IsRunning(); }, limitMs);
}

void ProgramProcess::Kill() {
    m_process.kill();
    m_process.waitForFinished();
}

QString ProgramProcess::Output() {
    m_output += QString::fromUtf8(m_process.readAll());
    return m_output;
}

} // namespace qlm
