// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace qlm {

// Text files are Windows-1252. A character that code page lacks is written as "?".
QByteArray ToAnsi(QStringView text);
QString FromAnsi(QByteArrayView bytes);

} // namespace qlm
