// SPDX-License-Identifier: MIT
#include "core/FileDownload.h"

namespace qlm {

void SaveDownload(Download& download, FileSystem& files, const QString& path,
                  const std::function<void(qint64 bytes, qint64 announced)>& progress) {
    qint64 bytes = 0;
    const auto nextPart = [&](QByteArray& part) {
        const bool isMore = download.NextPart(part);
        bytes += part.size();
        progress(bytes, download.Announced());
        return isMore;
    };
    files.WriteParts(path, nextPart, Readers::OwnerAlone, Durability::Quick);
}

} // namespace qlm
