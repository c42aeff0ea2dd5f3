// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

// Pages that make it hard for whoever reads lists.

/// A list of a few people among twenty thousand other links: as many as its pages are told to be long.
Response ManyLinksPage(Visit& visit);

/// People linked by names whose profiles tell no number: SilentProfile shows them.
Response SilentProfilesPage(Visit& visit);
/// A profile without any script or link that holds its number.
Response SilentProfile(Visit& visit);

/// A list whose link to the next page leads to the page itself.
Response CirclePage(Visit& visit);

} // namespace qlm::practice
