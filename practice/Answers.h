// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <span>

namespace qlm::practice {

/// What somebody's pages make of a message or a comment to them.
struct Answer {
    enum class Way {
        Taken,
        RefusedBefore, ///< a page with the text stands in place of the form
        RefusedAfter,  ///< what was sent is answered with the text and lost
        Captcha,       ///< a word has to be typed first
        CaptchaHome,   ///< the same, and the right word leads to the home page; nothing arrives
        Home,          ///< what was sent leads to the home page; nothing arrives
        NoHtml,        ///< taken, but without markup
        Approval,      ///< taken, and the page says that it has to be approved
    };

    QLatin1StringView word; ///< in controls and journal
    Way way;
    int percent = 0;                ///< of all people, until set otherwise
    const char16_t* text = nullptr; ///< "%1" stands for the person's name
};

QString TextOf(const Answer& answer, const QString& name);

/// Who answers how: fixed by hand, or drawn by shares from the seed. The first row gets what the others
/// leave.
class Answers {
public:
    Answers(std::span<const Answer> rows, quint64 seed);

    const Answer& Of(qint64 target) const;
    /// These return "" or what is wrong.
    QString Fix(qint64 target, const QString& word);
    /// The first row's word takes only 100, which clears all others.
    QString SetShare(const QString& word, int percent);

    /// The target's form is replaced by that one of the refusals; 0 for none.
    void SetRefusal(qint64 target, int number) { m_refusals.insert(target, number); }
    int RefusalOf(qint64 target) const { return m_refusals.value(target); }

private:
    qsizetype RowNamed(const QString& word) const;

    std::span<const Answer> m_rows;
    quint64 m_seed;
    QList<int> m_shares;
    QHash<qint64, qsizetype> m_fixed;
    QHash<qint64, int> m_refusals;
};

} // namespace qlm::practice
