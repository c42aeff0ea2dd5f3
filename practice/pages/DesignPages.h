// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// A page of a list that the table of designs describes.
Response DesignPage(Visit& visit);

/// Every list of the site with a link to its first page.
Response Sitemap(Visit& visit);

/// Where the links of picture searches and video channels lead: to the profile.
Response OtherProfileAddress(Visit& visit);
} // namespace qlm::practice
