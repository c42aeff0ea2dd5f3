// SPDX-License-Identifier: MIT
#include "platform/zip/ZipArchive.h"

#include "platform/MessageQueue.h"

#include <algorithm>
#include <exception>
#include <string>
#include <zip.h>

namespace qlm {

namespace {

// A piece that is read at a time: a size that an archive gives of itself is not believed.
constexpr qint64 pieceSize = 64 * 1024;

// The errors of what can go wrong before there is an archive.
class EarlyError {
public:
    EarlyError() { zip_error_init(&m_error); }
    ~EarlyError() { zip_error_fini(&m_error); }
    EarlyError(const EarlyError&) = delete;
    EarlyError& operator=(const EarlyError&) = delete;

    zip_error_t* Slot() { return &m_error; }
    [[noreturn]] void Fail() { throw ArchiveError(zip_error_strerror(&m_error)); }

private:
    zip_error_t m_error{};
};

struct FreeSource {
    void operator()(zip_source_t* source) const { zip_source_free(source); }
};
using Source = std::unique_ptr<zip_source_t, FreeSource>;

// Without what has been changed.
struct Discard {
    void operator()(zip_t* archive) const { zip_discard(archive); }
};
using OpenArchive = std::unique_ptr<zip_t, Discard>;

struct CloseFile {
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};

// The source keeps pointing at the bytes.
Source SourceOf(const QByteArray& bytes) {
    EarlyError error;
    Source source(zip_source_buffer_create(bytes.constData(), static_cast<zip_uint64_t>(bytes.size()), 0,
                                           error.Slot()));
    if (!source)
        error.Fail();
    return source;
}

// The archive shares the source.
OpenArchive Open(zip_source_t* source, int flags) {
    EarlyError error;
    zip_source_keep(source);
    OpenArchive archive(zip_open_from_source(source, flags, error.Slot()));
    if (archive)
        return archive;
    zip_source_free(source);
    error.Fail();
}

[[noreturn]] void Fail(zip_t* archive) {
    throw ArchiveError(zip_error_strerror(zip_get_error(archive)));
}

ArchiveEntry::Kind KindOf(zip_t* archive, zip_uint64_t place, const QString& name) {
    using Kind = ArchiveEntry::Kind;
    constexpr zip_uint32_t typeBits = 0170000, file = 0100000, folder = 0040000, link = 0120000;
    zip_uint8_t system = 0;
    zip_uint32_t attributes = 0;
    zip_file_get_external_attributes(archive, place, 0, &system, &attributes);
    const zip_uint32_t type = system == ZIP_OPSYS_UNIX ? (attributes >> 16) & typeBits : 0;
    if (type == link)
        return Kind::Link;
    if (type == folder || (type == 0 && name.endsWith(u'/')))
        return Kind::Folder;
    return type == 0 || type == file ? Kind::File : Kind::Special;
}

class ZipReader : public ArchiveReader {
public:
    explicit ZipReader(const QByteArray& bytes)
        : m_bytes(bytes), m_source(SourceOf(m_bytes)), m_archive(Open(m_source.get(), ZIP_RDONLY)) {
        const zip_int64_t count = zip_get_num_entries(m_archive.get(), 0);
        for (zip_int64_t i = 0; i < count; ++i)
            m_entries.push_back(EntryAt(static_cast<zip_uint64_t>(i)));
    }

    const std::vector<ArchiveEntry>& Entries() const override { return m_entries; }

    QByteArray Content(size_t place) const override {
        const qint64 size = m_entries.at(place).size;
        const std::unique_ptr<zip_file_t, CloseFile> file(zip_fopen_index(m_archive.get(), place, 0));
        if (!file)
            Fail(m_archive.get());
        QByteArray content;
        QByteArray piece(pieceSize, Qt::Uninitialized);
        zip_int64_t count = 0;
        while ((count = zip_fread(file.get(), piece.data(), pieceSize)) > 0 && content.size() <= size)
            content.append(piece.constData(), count);
        if (count < 0)
            throw ArchiveError(zip_error_strerror(zip_file_get_error(file.get())));
        if (content.size() != size)
            throw ArchiveError("The archive is damaged");
        return content;
    }

private:
    ArchiveEntry EntryAt(zip_uint64_t place) const {
        zip_stat_t stat;
        if (zip_stat_index(m_archive.get(), place, 0, &stat) != 0)
            Fail(m_archive.get());
        if (!(stat.valid & ZIP_STAT_NAME) || !(stat.valid & ZIP_STAT_SIZE))
            throw ArchiveError("The archive is damaged");
        const QString name = QString::fromUtf8(stat.name);
        return {name, KindOf(m_archive.get(), place, name), static_cast<qint64>(stat.size)};
    }

    QByteArray m_bytes;
    Source m_source;
    OpenArchive m_archive;
    std::vector<ArchiveEntry> m_entries;
};

void AddFolder(zip_t* archive, const QString& name) {
    if (zip_dir_add(archive, name.toUtf8().constData(), ZIP_FL_ENC_UTF_8) < 0)
        Fail(archive);
}

void Add(zip_t* archive, const ArchiveFile& file) {
    if (file.name.endsWith(u'/'))
        return AddFolder(archive, file.name);
    zip_source_t* source = zip_source_buffer(archive, file.content.constData(),
                                             static_cast<zip_uint64_t>(file.content.size()), 0);
    if (!source)
        Fail(archive);
    if (zip_file_add(archive, file.name.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8) >= 0)
        return;
    zip_source_free(source);
    Fail(archive);
}

QByteArray BytesOf(zip_source_t* source) {
    const auto fail = [source] { throw ArchiveError(zip_error_strerror(zip_source_error(source))); };
    zip_stat_t stat;
    if (zip_source_stat(source, &stat) != 0 || zip_source_open(source) != 0)
        fail();
    QByteArray bytes(static_cast<qsizetype>(stat.size), Qt::Uninitialized);
    const zip_int64_t count = zip_source_read(source, bytes.data(), stat.size);
    zip_source_close(source);
    if (count != static_cast<zip_int64_t>(stat.size))
        fail();
    return bytes;
}

// Tells how far the library has come. What is thrown on the way waits until the library has been left.
class Watch {
public:
    Watch(zip_t* archive, const Archive::Progress& progress) : m_progress(progress) {
        if (!progress)
            return;
        zip_register_progress_callback_with_state(archive, precision, Tell, nullptr, this);
        zip_register_cancel_callback_with_state(archive, IsOver, nullptr, this);
    }
    void ThrowOn() const {
        if (m_thrown)
            std::rethrow_exception(m_thrown);
    }

private:
    static constexpr double precision = 0.01;

    static void Tell(zip_t*, double share, void* self) {
        auto* watch = static_cast<Watch*>(self);
        if (watch->m_thrown)
            return;
        try {
            watch->m_progress(static_cast<int>(share * 100));
        } catch (const ProgramEnding&) {
            watch->m_thrown = std::current_exception();
        } catch (const std::exception&) {
            watch->m_thrown = std::current_exception();
        }
    }
    static int IsOver(zip_t*, void* self) { return static_cast<Watch*>(self)->m_thrown ? 1 : 0; }

    const Archive::Progress& m_progress;
    std::exception_ptr m_thrown;
};

} // namespace

std::unique_ptr<ArchiveReader> ZipArchive::Read(const QByteArray& bytes) {
    // The library takes nothing at all for an archive with nothing in it.
    if (bytes.isEmpty())
        throw ArchiveError("This is no archive");
    return std::make_unique<ZipReader>(bytes);
}

QByteArray ZipArchive::Write(const std::vector<ArchiveFile>& files, const Progress& progress) {
    if (files.empty())
        throw ArchiveError("There is nothing to put into the archive");
    const Source source = SourceOf({});
    OpenArchive archive = Open(source.get(), ZIP_TRUNCATE);
    for (const ArchiveFile& file : files)
        Add(archive.get(), file);
    const Watch watch(archive.get(), progress);
    const bool isWhole = zip_close(archive.get()) == 0;
    watch.ThrowOn();
    if (!isWhole)
        Fail(archive.get());
    // It has gone with its closing.
    (void)archive.release();
    return BytesOf(source.get());
}

} // namespace qlm
