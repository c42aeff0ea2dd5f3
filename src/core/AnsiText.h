// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace qlm {

// Text files are Windows-1252. A character that code page lacks is written as "?".
QByteArray ToAnsi(QStringView text);
QString FromAnsi(QByteArrayView bytes);
// False when something of the text would become a "?".
bool FitsAnsi(const QString& text);
// What would become one, each character once, in the text's order.
QString MissingInAnsi(const QString& text);

// The lines of a text file from elsewhere, whose byte order mark, if it has one, says how it is written, and
// whose lines end as on any system.
QStringList LinesOfText(const QByteArray& bytes);

} // namespace qlm
