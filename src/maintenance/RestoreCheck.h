// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Archive.h"

namespace qlm {

// Why an archive of that packed size is not to be restored, as the end of "Nothing was restored: "; empty for
// one that may be. Anybody can have made it: one that was made to do harm is refused whole.
QString WhyNotRestored(const std::vector<ArchiveEntry>& entries, qint64 packedSize);

} // namespace qlm
