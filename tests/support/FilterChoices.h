// SPDX-License-Identifier: MIT
#pragma once

#include "practice/World.h"

#include <QString>
#include <vector>

namespace qlm {

// One choice of the filter window and whom of the practice site's people it leaves in the list.
struct FilterChoice {
    const char* name;
    std::vector<QLatin1StringView> options;
    bool visits; // the profiles, which firms and private people don't pass
    bool (*fits)(const practice::Person& person, QDate today);
};

// Each filter by itself, and two together.
const std::vector<FilterChoice>& FilterChoices();

// What the options leave open: the ages, the places, the days.
void FillFilterFields(const std::function<void(QLatin1StringView field, const QString& text)>& fill);

// Whoever the choice is to leave in the list.
bool PassesFilter(const FilterChoice& choice, const practice::World& site, qint64 id, QDate today);

} // namespace qlm
