// SPDX-License-Identifier: MIT
#pragma once

#include "../BulletinDesigns.h"
#include "../Visit.h"

namespace qlm::practice {

/// The form in which the account posts a bulletin, and what becomes of it.
Response BulletinForm(Visit& visit);

/// Which design the account's pages show.
const BulletinDesign& BulletinDesignOf(const World& world, qint64 account);

} // namespace qlm::practice
