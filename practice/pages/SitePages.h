// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// The site's own pages whose addresses look like those of profiles.
Response SitePage(Visit& visit);

} // namespace qlm::practice
