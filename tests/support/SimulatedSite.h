// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sim/SimWeb.h"
#include "practice/PracticeSite.h"

namespace qlm {

// The practice site as the simulated network's answer.
SimAnswer AnswerOf(practice::PracticeSite& site, const SimRequest& request);
// What the product server answers at that path.
QString ProductAnswer(const QString& path, const QDateTime& now);

} // namespace qlm
