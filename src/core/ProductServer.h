// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QString>
#include <optional>

namespace qlm {

class App;

// What the product server answers to plain GETs: which base address is in use, version, notice, login
// message, date.
class ProductServer {
public:
    explicit ProductServer(App& app) : m_app(app) {}

    // The answer's text. When the address cannot be opened the user is told and the process ends; throws
    // ProgramEnding.
    QString HTTPGet(const QString& url);
    // As HTTPGet, but a failure gives "try alternate server": the online test alone is allowed to fail.
    QString TestGet(const QString& url);

    void CheckVersion();
    void CheckIssueAlert();
    void CheckLoginMessage();
    // Today by the product server; nothing when its answer is no date or it can't be reached.
    std::optional<QDate> GetServerDate();
    // Whole hours by which the product server's clock is ahead of the local one; 0 when its answer is no date
    // and time.
    qint32 TimeDiff();

private:
    std::optional<QString> Ask(const QString& url);
    QString DateAndTime();

    App& m_app;
};

// A date as the program and the server write it: YYYY-MM-DD or M/D/YYYY, with a time after or not.
std::optional<QDate> ParseDate(const QString& text);

} // namespace qlm
