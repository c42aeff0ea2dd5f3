// SPDX-License-Identifier: MIT
#include "WritingVisit.h"

#include "../Frame.h"
#include "../Refusals.h"
#include "CaptchaPages.h"
#include "NoticePages.h"

namespace qlm::practice {

using Way = Answer::Way;

QString WritingVisit::Who() const {
    return QString::number(m_sender) + (m_isToAll ? QString() : u' ' + QString::number(m_target));
}

void WritingVisit::Write(const QString& outcome) {
    m_visit.world.journal.Write(u"%1 %2 %3"_s.arg(m_word, Who(), outcome));
}

Response WritingVisit::Say(const QString& outcome, const QString& text) {
    Write(outcome);
    return Notice(m_visit, m_title, text);
}

Response WritingVisit::Home() {
    Write(u"home"_s);
    return Redirect(Url(Role::Home, u"/index.cfm?fuseaction=home"_s));
}

Response WritingVisit::RefuseBy(const Answer& answer) {
    return Say(answer.word, TextOf(answer, m_person->name));
}

std::optional<Response> WritingVisit::NumberedRefusal() {
    const int number = m_writing.answers.RefusalOf(m_target);
    if (number == 0)
        return std::nullopt;
    return Say(u"refused-%1"_s.arg(number), RefusalText(number, m_person->name));
}

bool WritingVisit::LimitReached() const {
    return m_writing.LimitReached(m_sender, m_visit.world.now().date());
}

WritingVisit::Typed WritingVisit::TypedWord() {
    FriendRequests& captchas = m_visit.world.requests;
    const auto answer = SentAnswer(m_visit);
    const auto held = m_writing.Held(m_sender, m_target);
    if (!m_visit.IsPost() || !answer || !held || !held->waitsForWord)
        return Typed::Nothing;
    if (captchas.AnswerCaptcha(m_sender, m_target, *answer))
        return Typed::Right;
    Write(u"captcha-wrong"_s);
    return Typed::Wrong;
}

bool WritingVisit::AsksForWord() const {
    return m_visit.captchaForced || m_answer.way == Way::Captcha || m_answer.way == Way::CaptchaHome;
}

void WritingVisit::Hold(const QString& outcome, const Text& text) {
    m_writing.Hold(m_sender, m_target, text);
    Write(outcome);
}

void WritingVisit::Deliver(const QString& outcome, const QString& arrived, const QStringList& texts,
                           const QString& more) {
    m_writing.Deliver(m_sender, m_target, m_visit.world.now().date());
    Write(outcome);
    QString line = arrived + u' ' + Who() + (more.isEmpty() ? QString() : u' ' + more);
    for (const QString& text : texts)
        line += u' ' + Quoted(text);
    m_visit.world.journal.Write(line);
}

} // namespace qlm::practice
