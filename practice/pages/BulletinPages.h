// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// What friends have posted.
Response BulletinBoard(Visit& visit);
/// What the account itself has posted, and the deletion of it.
Response PostedBulletins(Visit& visit);

} // namespace qlm::practice
