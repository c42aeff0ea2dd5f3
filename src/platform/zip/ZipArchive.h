// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Archive.h"

namespace qlm {

// ZIP files by libzip, in memory.
class ZipArchive final : public Archive {
public:
    std::unique_ptr<ArchiveReader> Read(const QByteArray& bytes) override;
    QByteArray Write(const std::vector<ArchiveFile>& files, const Progress& progress = {}) override;
};

} // namespace qlm
