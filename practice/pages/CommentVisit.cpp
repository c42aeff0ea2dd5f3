// SPDX-License-Identifier: MIT
#include "CommentVisit.h"

#include "../FormChoice.h"

#include <QRegularExpression>

namespace qlm::practice {

namespace {

const QRegularExpression& Tags() {
    static const QRegularExpression tags(u"<[^>]*>"_s);
    return tags;
}

} // namespace

bool HoldsMarkup(const QString& text) {
    return text.contains(Tags());
}

CommentVisit::CommentVisit(Visit& visit, qint64 target, Design layout)
    : WritingVisit(visit, visit.world.comments, u"comment"_s, u"Comments"_s, target),
      m_design(ChosenForm(CommentDesigns(), target, layout == Design::Older, m_writing.FormOf(target))) {}

QString CommentVisit::Arrive(const QString& text) {
    QString arrived = text;
    if (TakesNoHtml())
        arrived.remove(Tags());
    Deliver(u"posted"_s, u"commented"_s, {arrived});
    return m_answer.way == Answer::Way::Approval ? TextOf(m_answer, m_person->name)
                                                 : u"Your comment has been posted!"_s;
}

} // namespace qlm::practice
