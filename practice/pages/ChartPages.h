// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// A music chart: its first page shows twenty bands and a link to more, page 5 the top two hundred, which
/// come in part by part as the page is scrolled to its end.
Response ChartPage(Visit& visit);

} // namespace qlm::practice
