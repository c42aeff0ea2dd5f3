// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// A page that says one thing in a box.
Response Notice(const Visit& visit, const QString& title, const QString& text, int status = 200);

/// What unknown addresses of known hosts answer.
Response NotFound(Visit& visit);
Response ServerErrorPage(const Visit& visit);
/// The friend-request pages have words of their own for the limit of the day.
Response DailyLimitPage(const Visit& visit, bool friendRequest);
/// Where the site sends somebody whose request has gone out in spite of an error.
Response UnexpectedError(Visit& visit);
/// A page that nobody has asked for.
Response WrongPage(const Visit& visit);

} // namespace qlm::practice
