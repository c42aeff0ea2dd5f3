// SPDX-License-Identifier: MIT
#pragma once

#include "../StatusDesigns.h"
#include "../Visit.h"

#include <optional>

namespace qlm::practice {

/// The home page's box for a status update and the stream below it.
QString StatusMarkup(const Visit& visit, const QString& notice = {});

/// What becomes of a status update that was posted, or of one to delete: the page to go to, or what the box
/// has to say of it.
struct StatusAnswer {
    std::optional<Response> response;
    QString notice;
};
StatusAnswer TakeStatus(Visit& visit);

} // namespace qlm::practice
