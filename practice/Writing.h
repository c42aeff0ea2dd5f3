// SPDX-License-Identifier: MIT
#pragma once

#include "Answers.h"

#include <QDate>
#include <QHash>
#include <QSet>
#include <optional>
#include <utility>

namespace qlm::practice {

/// What somebody has typed into a form.
struct Text {
    QString subject; ///< of a message
    QString body;
    bool waitsForWord = false; ///< under an image
    bool takesComments = true; ///< of a bulletin
};

/// The traffic of one kind, such as messages: who answers how, which form whose page shows, what waits
/// for a confirmation, and how much an account may write in a day.
class Writing {
public:
    Writing(std::span<const Answer> rows, quint64 seed) : answers(rows, seed) {}

    Answers answers;

    /// The form that a control has set for that person or, before that, for everybody; "" when their number
    /// decides.
    QString FormOf(qint64 target) const { return m_forms.value(target, m_form); }
    void SetForm(qint64 target, const QString& design) { m_forms.insert(target, design); }
    void SetFormOfAll(const QString& design) {
        m_form = design;
        m_forms.clear();
    }

    /// The text waits for a word or another press.
    void Hold(qint64 sender, qint64 target, const Text& text) { m_held.insert({sender, target}, text); }
    std::optional<Text> Held(qint64 sender, qint64 target) const {
        const auto held = m_held.constFind({sender, target});
        return held == m_held.constEnd() ? std::nullopt : std::optional(*held);
    }

    /// The text has arrived.
    void Deliver(qint64 sender, qint64 target, QDate day) {
        m_held.remove({sender, target});
        ++m_writtenOn[{sender, day}];
    }

    /// After so many of one account in a day nothing more is taken; nothing for no limit.
    void SetDailyLimit(std::optional<int> limit) { m_dailyLimit = limit; }
    bool LimitReached(qint64 sender, QDate day) const {
        return m_dailyLimit && m_writtenOn.value({sender, day}) >= *m_dailyLimit;
    }

private:
    QString m_form;
    QHash<qint64, QString> m_forms;
    QHash<std::pair<qint64, qint64>, Text> m_held;
    QHash<std::pair<qint64, QDate>, int> m_writtenOn;
    std::optional<int> m_dailyLimit;
};

/// Every answer to a message, a comment, a bulletin or a status update; the first is that it arrives.
std::span<const Answer> MessageAnswers();
std::span<const Answer> CommentAnswers();
std::span<const Answer> BulletinAnswers();
std::span<const Answer> StatusAnswers();

/// A text as the journal has it: in quotation marks, with "\r\n" for a line end, so that it stays on one
/// line.
QString Quoted(const QString& text);

} // namespace qlm::practice
