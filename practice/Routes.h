// SPDX-License-Identifier: MIT
#pragma once

#include "Visit.h"

namespace qlm::practice {

/// Which page a visit is for.
struct RouteMatch {
    Handler handler;      ///< never null; the page for unknown addresses when no row fits
    bool picture = false; ///< not a page but something that a page shows
    QStringList captures; ///< what the row's placeholders stand for
};

/// Finds the first row of the routing table that fits host, path and "fuseaction".
RouteMatch FindRoute(const Visit& visit);

} // namespace qlm::practice
