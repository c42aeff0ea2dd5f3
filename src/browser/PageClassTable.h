// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <vector>

namespace qlm {

enum class PageCondition { None, WhileRequesting, NoLastLoginOrCommenting, NotDeletingPending, ErrorAddress };
enum class PageEffect { None, SkipCurrentID, DailyLimit };

// One class of refusal or error page. anyOf holds alternatives, each a list of markers that must all stand in
// the page's text; markers are in lower case unless exact. An empty anyOf leaves the decision to the
// condition.
struct PageClassRow {
    qint16 pageClass;
    std::vector<std::vector<QString>> anyOf;
    PageCondition condition = PageCondition::None;
    PageEffect effect = PageEffect::None;
    bool isErrorPage = true; // false: noted, but the step can go on with the page
    bool exact = false;
};

// In the order in which the classes are tried; the first match wins. Specific refusals come before generic
// errors.
const std::vector<PageClassRow>& PageClassTable();

} // namespace qlm
