// SPDX-License-Identifier: MIT
#pragma once

#include "core/ActivityWords.h"

#include <QString>
#include <algorithm>
#include <initializer_list>
#include <vector>

namespace qlm {

// The activities that a row of a table is for: one, some, or all but some. The last holds for the words of no
// activity, too.
struct ActivitySet {
    ActivitySet() = default;
    ActivitySet(QLatin1StringView word) : words{word} {}
    ActivitySet(std::initializer_list<QLatin1StringView> some) : words(some) {}

    static ActivitySet AllBut(std::initializer_list<QLatin1StringView> some) {
        ActivitySet set(some);
        set.isTheOthers = true;
        return set;
    }
    static ActivitySet Any() { return AllBut({}); }

    bool Contains(const QString& activity) const {
        const auto is = [&activity](QLatin1StringView word) { return activity == word; };
        return std::any_of(words.begin(), words.end(), is) != isTheOthers;
    }

    std::vector<QLatin1StringView> words;
    bool isTheOthers = false; // all but the words
};

} // namespace qlm
