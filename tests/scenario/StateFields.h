// SPDX-License-Identifier: MIT
#pragma once

#include "core/RunState.h"

#include <QString>

namespace qlm::scenario {

// The run state by the names of its fields, as text: "True"/"False", decimal, text as it stands; a list is
// one line an entry. Both fail the scenario when there is no field of that name.
bool HasStateField(const QString& name);
QString ReadStateField(const RunState& state, const QString& name);
void WriteStateField(RunState& state, const QString& name, const QString& text);
// True when the two texts say the same in that field ("true" is "True").
bool SameStateText(const RunState& state, const QString& name, const QString& expected);

} // namespace qlm::scenario
