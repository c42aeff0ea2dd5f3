// SPDX-License-Identifier: MIT
#pragma once

#include "../CommentDesigns.h"
#include "CaptchaPages.h"
#include "WritingVisit.h"

namespace qlm::practice {

/// One visit of a page where somebody comments on somebody.
class CommentVisit : protected WritingVisit {
protected:
    CommentVisit(Visit& visit, qint64 target, Design layout);

    bool TakesNoHtml() const { return m_answer.way == Answer::Way::NoHtml; }
    /// Notes the arrival; what the page has to say of it.
    QString Arrive(const QString& text);

    const CommentDesign& m_design;
};

bool HoldsMarkup(const QString& text);

} // namespace qlm::practice
