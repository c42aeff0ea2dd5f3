// SPDX-License-Identifier: MIT
#pragma once

#include "core/FileSystem.h"
#include "platform/Services.h"

#include <functional>

namespace qlm {

// Fetches the rest of a download into a file: afterwards the file is whole, or as it was before. Progress is
// told with every part, in bytes so far and announced (-1 where the server says nothing). Throws HttpError or
// FileError.
void SaveDownload(Download& download, FileSystem& files, const QString& path,
                  const std::function<void(qint64 bytes, qint64 announced)>& progress);

} // namespace qlm
