// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <memory>
#include <stdexcept>
#include <vector>

namespace qlm {

// What should be an archive is none, or is damaged.
class ArchiveError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// What an archive says of one of its entries. Nobody has looked at it: the name may lead out of any folder,
// stand there twice, or have the drive and the backslashes of another system.
struct ArchiveEntry {
    // Special is a device and its like.
    enum class Kind { File, Folder, Link, Special };

    QString name;
    Kind kind = Kind::File;
    qint64 size = 0;
};

struct ArchiveFile {
    QString name; // folders divided by "/"; with one at its end a folder that holds nothing
    QByteArray content;
};

// One archive that is read.
class ArchiveReader {
public:
    virtual ~ArchiveReader() = default;
    // In the archive's order.
    virtual const std::vector<ArchiveEntry>& Entries() const = 0;
    // Of the entry at that place: as many bytes as it says, or an ArchiveError.
    virtual QByteArray Content(size_t place) const = 0;
};

// Ordinary ZIP files, as bytes: where they lie is the caller's matter.
class Archive {
public:
    virtual ~Archive() = default;
    // Throws ArchiveError.
    virtual std::unique_ptr<ArchiveReader> Read(const QByteArray& bytes) = 0;
    // How far the writing has come, in percent. What it throws ends the writing.
    using Progress = std::function<void(int percent)>;
    // An archive of at least one file, in that order. Throws ArchiveError, also for a name that stands there
    // twice.
    virtual QByteArray Write(const std::vector<ArchiveFile>& files, const Progress& progress = {}) = 0;
};

} // namespace qlm
