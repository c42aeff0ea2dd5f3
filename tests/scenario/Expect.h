// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace qlm::scenario {

// Fails the scenario with what was seen instead, unless both are the same.
void ExpectText(const QString& what, const QString& expected, const QString& seen);
// Names the first line that differs.
void ExpectLines(const QString& what, const QStringList& expected, const QStringList& seen);

} // namespace qlm::scenario
