// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

#include <optional>

namespace qlm::practice {

/// One visit of a page where somebody writes to somebody. The journal's lines begin with `word`.
class WritingVisit {
protected:
    WritingVisit(Visit& visit, Writing& writing, const QString& word, const QString& title, qint64 target)
        : m_visit(visit),
          m_writing(writing),
          m_word(word),
          m_title(title),
          m_sender(visit.account->id),
          m_target(target),
          m_person(visit.world.people.Find(target)),
          m_answer(writing.answers.Of(target)) {}

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

    /// Notes the arrival. `outcome` is what the page answers, `arrived` begins the line of who got what.
    void Deliver(const QString& outcome, const QString& arrived, const QStringList& texts);

    Visit& m_visit;
    Writing& m_writing;
    QString m_word;
    QString m_title;
    qint64 m_sender;
    qint64 m_target;
    const Person* m_person;
    const Answer& m_answer;
};

} // namespace qlm::practice
