// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

namespace qlm {

// Does the file hold that line, blanks around it aside? Reads from the start to the first hit and keeps
// nothing. wanted is as on disk, without blanks around it; an empty one is in no file. Throws FileError when
// the file can't be read.
bool FileHoldsLine(const QString& path, QByteArrayView wanted);

} // namespace qlm
