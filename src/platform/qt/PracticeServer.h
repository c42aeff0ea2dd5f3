// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QTimer>
#include <functional>

namespace qlm {

// The bundled practice site as a child process. It ends with this object, and by itself when the program
// dies, since it ends with its standard input. A site that dies is started again, at the same port and
// without its memory: at once, and as long as it doesn't come up every few seconds.
class PracticeServer final : public QObject {
public:
    // program is the whole path. Waits until the site tells its port, at most startLimitMs.
    static constexpr int startLimitMs = 10 * 1000;

    explicit PracticeServer(const QString& program);
    ~PracticeServer() override;
    PracticeServer(const PracticeServer&) = delete;
    PracticeServer& operator=(const PracticeServer&) = delete;

    // 0 when the site could not be started; Problem() then says why.
    quint16 Port() const { return m_port; }
    QString Problem() const { return m_problem; }
    bool IsRunning() const { return m_isRunning; }
    qint64 ProcessId() const { return m_process.processId(); }

    // Told from Qt's event loop when the site has died, and when it answers again.
    std::function<void()> onChange;

private:
    QString ReadFirstLine();
    void WatchOver();
    void OnEnd();
    void OnLine();
    void StartAgain();
    void SetRunning(bool isRunning);

    QString m_program;
    QProcess m_process;
    quint16 m_port = 0;
    QString m_problem;
    bool m_isRunning = false;
    QTimer m_again;
};

} // namespace qlm
