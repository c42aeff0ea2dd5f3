// SPDX-License-Identifier: MIT
#pragma once

#include "browser/PageView.h"
#include "core/ActivitySet.h"

#include <vector>

namespace qlm {

enum class PageEffect { None, SkipCurrentID, DailyLimit };

// One class of refusal or error page.
struct PageClassRow {
    qint16 pageClass;
    PageKinds kinds;     // the marks of its page
    const char* refusal; // what the site said, in the program's own words for the report; "" where no target
                         // ends with it
    PageEffect effect = PageEffect::None;
    bool isErrorPage = true;                     // false: noted, but the step can go on with the page
    ActivitySet activities = ActivitySet::Any(); // while they run
};

// In the order in which the classes are tried; the first match wins. Specific refusals come before generic
// errors.
const std::vector<PageClassRow>& PageClassTable();

} // namespace qlm
