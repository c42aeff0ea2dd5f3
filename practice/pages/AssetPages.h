// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// Style sheet, scripts and pictures.
Response StyleSheet(Visit& visit);
Response FormScript(Visit& visit);
Response RequestScript(Visit& visit);
Response InviteScript(Visit& visit);
Response Logo(Visit& visit);
Response PostButton(Visit& visit);
Response Icon(Visit& visit);
Response ProfilePicture(Visit& visit);
/// The badges of comedians and films; they keep their old file names but are drawn like all the rest.
Response BadgeImage(Visit& visit);

} // namespace qlm::practice
