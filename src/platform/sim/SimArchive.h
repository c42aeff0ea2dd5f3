// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Archive.h"

namespace qlm {

// Archives in a format of the tests' own, which keeps every entry as it is.
class SimArchive : public Archive {
public:
    std::unique_ptr<ArchiveReader> Read(const QByteArray& bytes) override;
    QByteArray Write(const std::vector<ArchiveFile>& files) override;

    struct Entry {
        ArchiveEntry said;
        QByteArray content;
    };
    // One with whatever entries, as a stranger may have made it.
    static QByteArray Pack(const std::vector<Entry>& entries);
};

} // namespace qlm
