// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QString>

namespace qlm {

// The bundled practice site as a child process. It ends with this object, and by itself when the program
// dies, since it ends with its standard input.
class PracticeServer {
public:
    // program is the whole path. Waits until the site tells its port, at most startLimitMs.
    static constexpr int startLimitMs = 10 * 1000;

    explicit PracticeServer(const QString& program);
    ~PracticeServer();
    PracticeServer(const PracticeServer&) = delete;
    PracticeServer& operator=(const PracticeServer&) = delete;

    // 0 when the site could not be started; Problem() then says why.
    quint16 Port() const { return m_port; }
    QString Problem() const { return m_problem; }

private:
    QString ReadFirstLine();

    QProcess m_process;
    quint16 m_port = 0;
    QString m_problem;
};

} // namespace qlm
