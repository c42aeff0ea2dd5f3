// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// The categories that the reader sorts friends into, a few a page.
Response CategoriesPage(Visit& visit);

} // namespace qlm::practice
