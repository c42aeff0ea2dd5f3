// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// A search engine of somebody else's that knows the site's profiles: "q" is what is looked for, "num" how
/// many results a page shows, "start" the place of the first. No more than a thousand are ever shown.
Response WebSearchPage(Visit& visit);

} // namespace qlm::practice
