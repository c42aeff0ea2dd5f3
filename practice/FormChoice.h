// SPDX-License-Identifier: MIT
#pragma once

#include "People.h"

#include <QList>
#include <span>

namespace qlm::practice {

// Of a table of form designs (rows with "name", "older" and "hard") these tell which one somebody's page
// shows. The everyday designs of a layout take turns by the person's number; the hard ones belong to the last
// people of the crowd, one each.

template <typename Row> QList<const Row*> FormsOf(std::span<const Row> rows, bool older, bool hard) {
    QList<const Row*> forms;
    for (const Row& row : rows)
        if (row.older == older && row.hard == hard)
            forms.append(&row);
    return forms;
}

inline constexpr qint64 lastOfCrowd = People::firstId + People::crowdSize - 1;

/// nullptr when none has that name.
template <typename Row> const Row* FormNamed(std::span<const Row> rows, const QString& name) {
    for (const Row& row : rows)
        if (row.name == name)
            return &row;
    return nullptr;
}

/// `wanted` is the name of a form in force for that person, or "".
template <typename Row>
const Row& ChosenForm(std::span<const Row> rows, qint64 target, bool older, const QString& wanted) {
    if (const Row* named = FormNamed(rows, wanted))
        return *named;
    const QList<const Row*> hard = FormsOf(rows, older, true);
    if (const qint64 place = lastOfCrowd - target; place >= 0 && place < hard.size())
        return *hard[place];
    const QList<const Row*> everyday = FormsOf(rows, older, false);
    return *everyday[target % everyday.size()];
}

/// The first of the crowd whose page shows that design while no control says otherwise.
template <typename Row> qint64 FirstWithForm(std::span<const Row> rows, const Row& row) {
    const QList<const Row*> forms = FormsOf(rows, row.older, row.hard);
    const qsizetype place = forms.indexOf(&row);
    if (row.hard)
        return lastOfCrowd - place;
    const qsizetype behind = (place - People::firstId % forms.size() + forms.size()) % forms.size();
    return People::firstId + behind;
}

} // namespace qlm::practice
