// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

#include <optional>

namespace qlm::practice {

/// One visit of a page where somebody writes to somebody or, without a target, to everybody: then the
/// answers are those that stand beside the writer's own number. The journal's lines begin with `word`.
class WritingVisit {
protected:
    WritingVisit(Visit& visit, Writing& writing, const QString& word, const QString& title,
                 std::optional<qint64> target = std::nullopt)
        : m_visit(visit),
          m_writing(writing),
          m_word(word),
          m_title(title),
          m_sender(visit.account->id),
          m_target(target.value_or(m_sender)),
          m_isToAll(!target),
          m_person(visit.world.people.Find(m_target)),
          m_answer(writing.answers.Of(m_target)) {}

    enum class Typed { Nothing, Right, Wrong };

    void Write(const QString& outcome);
    Response Say(const QString& outcome, const QString& text);
    Response Home();
    /// What was sent is refused in the words of the person's own answer.
    Response RefuseBy(const Answer& answer);
    /// One of the refusals that a control has asked for.
    std::optional<Response> NumberedRefusal();
    bool LimitReached() const;

    /// The word that was typed under an image, for a text that waits for it. A wrong one is noted.
    Typed TypedWord();
    /// A word has to be typed before the text arrives.
    bool AsksForWord() const;
    void Hold(const QString& outcome, const Text& text);

    /// Notes the arrival. `outcome` is what the page answers, `arrived` begins the line of who got what,
    /// `more` stands before the texts.
    void Deliver(const QString& outcome, const QString& arrived, const QStringList& texts,
                 const QString& more = {});

    /// Who writes and to whom, as the journal has it.
    QString Who() const;

    Visit& m_visit;
    Writing& m_writing;
    QString m_word;
    QString m_title;
    qint64 m_sender;
    qint64 m_target;
    bool m_isToAll;
    const Person* m_person;
    const Answer& m_answer;
};

} // namespace qlm::practice
