// SPDX-License-Identifier: MIT
#include "platform/qt/PracticeServer.h"

#include <QElapsedTimer>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

PracticeServer::PracticeServer(const QString& program) {
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(program, QStringList());
    if (!m_process.waitForStarted(startLimitMs)) {
        m_problem =
            u"The practice site could not be started: %1 (%2)"_s.arg(m_process.errorString(), program);
        return;
    }
    const QString line = ReadFirstLine();
    m_port = line.startsWith(u"port "_s) ? line.sliced(5).toUShort() : quint16(0);
    if (m_port == 0)
        m_problem = u"The practice site was started but gave no port: \"%1\" (%2)"_s.arg(line, program);
}

PracticeServer::~PracticeServer() {
    constexpr int endLimitMs = 2000;
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

} // namespace qlm
