// SPDX-License-Identifier: MIT
#include "Answers.h"

#include "Chance.h"

#include <numeric>

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

QString TextOf(const Answer& answer, const QString& name) {
    QString text = answer.text ? QString::fromUtf16(answer.text) : QString();
    return text.replace(u"%1"_s, name);
}

Answers::Answers(std::span<const Answer> rows, quint64 seed) : m_rows(rows), m_seed(seed) {
    for (const Answer& row : m_rows)
        m_shares.append(row.percent);
}

qsizetype Answers::RowNamed(const QString& word) const {
    for (std::size_t i = 0; i < m_rows.size(); ++i)
        if (word == m_rows[i].word)
            return static_cast<qsizetype>(i);
    return -1;
}

const Answer& Answers::Of(qint64 target) const {
    if (const auto fixed = m_fixed.constFind(target); fixed != m_fixed.constEnd())
        return m_rows[static_cast<std::size_t>(*fixed)];
    int drawn = static_cast<int>(Mix(m_seed, static_cast<quint64>(target)) % 100);
    for (qsizetype i = 1; i < m_shares.size(); ++i) {
        drawn -= m_shares[i];
        if (drawn < 0)
            return m_rows[static_cast<std::size_t>(i)];
    }
    return m_rows.front();
}

QString Answers::Fix(qint64 target, const QString& word) {
    const qsizetype row = RowNamed(word);
    if (row < 0)
        return u"unknown answer: "_s + word;
    m_fixed.insert(target, row);
    return {};
}

QString Answers::SetShare(const QString& word, int percent) {
    const qsizetype row = RowNamed(word);
    if (row < 0)
        return u"unknown answer: "_s + word;
    if (row == 0) {
        if (percent != 100)
            return word + u" gets what the others leave; only 100 can be set"_s;
        m_shares.fill(0);
        return {};
    }
    QList<int> wanted = m_shares;
    wanted[row] = percent;
    wanted[0] = 0;
    if (percent < 0 || std::accumulate(wanted.begin(), wanted.end(), 0) > 100)
        return u"shares must stay between 0 and 100 in all"_s;
    m_shares = wanted;
    return {};
}

} // namespace qlm::practice
