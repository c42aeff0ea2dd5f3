// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

namespace qlm::practice {

/// A page with which the site refuses: its words, by the number under which a control asks for it.
struct Refusal {
    int number;
    const char16_t* text; ///< "%1" stands for the person's name
};

/// Every refusal that a request page can answer.
QList<Refusal> Refusals();
/// Empty for a number that none has.
QString RefusalText(int number, const QString& name);

} // namespace qlm::practice
