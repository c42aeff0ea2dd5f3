// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

namespace qlm {

class App;

// One wait that only the site or the user can end. When it has lasted two minutes, a line beside the status
// line says what is waited for, since when, and which buttons end it. The line goes with the wait.
class LongWait {
public:
    // Begins now; inside another wait for the same thing it has begun with that one. In the sentence the
    // words stand after "for"; help is a sentence on what ends a wait that is no run's.
    LongWait(App& app, const QString& what, const LongWait* around = nullptr, const QString& help = {});
    ~LongWait();
    LongWait(const LongWait&) = delete;
    LongWait& operator=(const LongWait&) = delete;

    // To be called again and again while the wait lasts.
    void Tell();

private:
    QString Help() const;

    App& m_app;
    const QString m_what;
    const QString m_help;
    qint64 m_sinceMs;
    QDateTime m_since; // the time of day to show
    QString m_shown;
};

} // namespace qlm
