// SPDX-License-Identifier: MIT
#include "platform/qt/PracticeServer.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int againMs = 2000;

quint16 PortIn(const QString& line) {
    return line.startsWith(u"port "_s) ? line.sliced(5).toUShort() : quint16(0);
}

} // namespace

PracticeServer::PracticeServer(const QString& program) : m_program(program) {
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(program, QStringList());
    if (!m_process.waitForStarted(startLimitMs)) {
        m_problem =
            u"The practice site could not be started: %1 (%2)"_s.arg(m_process.errorString(), program);
        return;
    }
    const QString line = ReadFirstLine();
    m_port = PortIn(line);
    if (m_port == 0)
        m_problem = u"The practice site was started but gave no port: \"%1\" (%2)"_s.arg(line, program);
    else
        WatchOver();
}

PracticeServer::~PracticeServer() {
    constexpr int endLimitMs = 2000;
    m_process.disconnect(this);
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.closeWriteChannel();
    if (m_process.waitForFinished(endLimitMs))
        return;
    m_process.kill();
    m_process.waitForFinished(endLimitMs);
}

QString PracticeServer::ReadFirstLine() {
    QElapsedTimer clock;
    clock.start();
    while (!m_process.canReadLine()) {
        const qint64 leftMs = startLimitMs - clock.elapsed();
        if (leftMs <= 0 || !m_process.waitForReadyRead(static_cast<int>(leftMs)))
            break;
    }
    return QString::fromUtf8(m_process.readLine()).trimmed();
}

void PracticeServer::WatchOver() {
    m_isRunning = true;
    m_again.setSingleShot(true);
    m_again.setInterval(againMs);
    connect(&m_again, &QTimer::timeout, this, [this] { StartAgain(); });
    connect(&m_process, &QProcess::finished, this, [this] { OnEnd(); });
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            m_again.start();
    });
    connect(&m_process, &QProcess::readyReadStandardOutput, this, [this] { OnLine(); });
}

// The first time at once; one that dies while it starts would go round too fast.
void PracticeServer::OnEnd() {
    if (!m_isRunning) {
        m_again.start();
        return;
    }
    SetRunning(false);
    StartAgain();
}

// What is on its way to the old port finds the new site there.
void PracticeServer::StartAgain() {
    if (m_process.state() == QProcess::NotRunning)
        m_process.start(m_program, {u"--port"_s, QString::number(m_port)});
}

void PracticeServer::OnLine() {
    while (m_process.canReadLine())
        if (PortIn(QString::fromUtf8(m_process.readLine()).trimmed()) == m_port)
            SetRunning(true);
}

void PracticeServer::SetRunning(bool isRunning) {
    if (std::exchange(m_isRunning, isRunning) != isRunning && onChange)
        onChange();
}

} // namespace qlm
