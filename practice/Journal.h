// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace qlm::practice {

/// What was done to the site, line by line, in order.
class Journal {
public:
    void Write(const QString& line) { m_lines.append(m_times ? line + m_times() : line); }
    /// A page visit, kept only while visits are on.
    void Visit(const QString& address) {
        if (m_visits)
            Write(QStringLiteral("visit ") + address);
    }
    /// Who stood on the list of a page that was delivered; kept only while that is on.
    void Shown(const QString& word, const QString& address, const QList<qint64>& ids) {
        if (!m_shown || ids.isEmpty())
            return;
        QString line = word + QChar(u' ') + address;
        for (const qint64 id : ids)
            line += QChar(u' ') + QString::number(id);
        Write(line);
    }
    void KeepVisits(bool keep) { m_visits = keep; }
    /// What is put behind each line from now on, such as the time; nothing without one.
    void PutBehind(std::function<QString()> times) { m_times = std::move(times); }
    void KeepShown(bool keep) { m_shown = keep; }

    const QStringList& Lines() const { return m_lines; }
    QStringList Take() {
        const QStringList fresh = m_lines.mid(m_taken);
        m_taken = m_lines.size();
        return fresh;
    }

private:
    QStringList m_lines;
    qsizetype m_taken = 0;
    bool m_visits = false;
    std::function<QString()> m_times;
    bool m_shown = false;
};

} // namespace qlm::practice
