// SPDX-License-Identifier: MIT
#include "platform/sim/SimArchive.h"

#include <QDataStream>
#include <QSet>

namespace qlm {

namespace {

const QByteArray mark = QByteArrayLiteral("simulated archive\n");

class SimArchiveReader : public ArchiveReader {
public:
    explicit SimArchiveReader(const QByteArray& bytes) {
        if (!bytes.startsWith(mark))
            throw ArchiveError("This is no archive");
        QDataStream stream(bytes.sliced(mark.size()));
        while (!stream.atEnd()) {
            ArchiveEntry said;
            QByteArray content;
            stream >> said.name >> said.kind >> said.size >> content;
            if (stream.status() != QDataStream::Ok)
                throw ArchiveError("The archive is damaged");
            m_entries.push_back(said);
            m_contents.push_back(content);
        }
    }

    const std::vector<ArchiveEntry>& Entries() const override { return m_entries; }
    QByteArray Content(size_t place) const override {
        if (m_contents.at(place).size() != m_entries.at(place).size)
            throw ArchiveError("The archive is damaged");
        return m_contents.at(place);
    }

private:
    std::vector<ArchiveEntry> m_entries;
    std::vector<QByteArray> m_contents;
};

} // namespace

std::unique_ptr<ArchiveReader> SimArchive::Read(const QByteArray& bytes) {
    return std::make_unique<SimArchiveReader>(bytes);
}

QByteArray SimArchive::Write(const std::vector<ArchiveFile>& files) {
    if (files.empty())
        throw ArchiveError("There is nothing to put into the archive");
    std::vector<Entry> entries;
    QSet<QString> names;
    for (const ArchiveFile& file : files) {
        if (names.contains(file.name))
            throw ArchiveError("The archive has \"" + file.name.toStdString() + "\" already");
        names.insert(file.name);
        entries.push_back({{file.name, ArchiveEntry::Kind::File, file.content.size()}, file.content});
    }
    return Pack(entries);
}

QByteArray SimArchive::Pack(const std::vector<Entry>& entries) {
    QByteArray packed;
    QDataStream stream(&packed, QDataStream::WriteOnly);
    for (const Entry& entry : entries)
        stream << entry.said.name << entry.said.kind << entry.said.size << entry.content;
    return mark + packed;
}

} // namespace qlm
