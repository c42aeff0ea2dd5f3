// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace qlm::practice {

/// What was done to the site, line by line, in order.
class Journal {
public:
    void Write(const QString& line) { m_lines.append(line); }
    /// A page visit, kept only while visits are on.
    void Visit(const QString& address) {
        if (m_visits)
            m_lines.append(QStringLiteral("visit ") + address);
    }
    void KeepVisits(bool keep) { m_visits = keep; }

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
};

} // namespace qlm::practice
