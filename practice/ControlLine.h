// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm::practice {

struct World;

/// Carries out one line of the controls that PracticeSite lists. Returns "" or what is wrong with it.
QString RunControl(World& world, const QString& line);

} // namespace qlm::practice
