// SPDX-License-Identifier: MIT
#include "core/LineSearch.h"

#include "core/FileSystem.h"

#include <QFile>
#include <cstdint>
#include <cstring>

namespace qlm {

namespace {

constexpr qsizetype ChunkBytes = 1 << 18;

bool IsBlank(char byte) {
    return byte == ' ' || (byte >= '\t' && byte <= '\r' && byte != '\n');
}

// Nothing but blanks between the place and the end of its line.
bool EndsLine(QByteArrayView text, qsizetype place) {
    while (place < text.size() && IsBlank(text[place]))
        ++place;
    return place == text.size() || text[place] == '\n';
}

bool BeginsLine(QByteArrayView text, qsizetype place) {
    while (place > 0 && IsBlank(text[place - 1]))
        --place;
    return place == 0 || text[place - 1] == '\n';
}

using Block = signed char __attribute__((vector_size(16)));

Block BlockAt(const char* place) {
    Block block;
    std::memcpy(&block, place, sizeof block);
    return block;
}

Block BlockOf(char character) {
    return Block{} + static_cast<signed char>(character);
}

bool IsAnySet(Block block) {
    std::uint64_t halves[2];
    std::memcpy(halves, &block, sizeof block);
    return (halves[0] | halves[1]) != 0;
}

// Where the wanted text stands; nullptr for nowhere. Looks at sixteen places at a time, by three of its
// characters: among numbers alone memmem, which goes by two, stumbles at every other step.
const char* Find(const char* place, const char* end, QByteArrayView wanted) {
    const qsizetype last = wanted.size() - 1;
    const Block begins = BlockOf(wanted.front());
    const Block goesOn = BlockOf(wanted[last / 2]);
    const Block ends = BlockOf(wanted.back());
    constexpr qsizetype places = sizeof(Block);
    for (; end - place >= last + places; place += places)
        if (IsAnySet((BlockAt(place) == begins) & (BlockAt(place + last / 2) == goesOn) &
                     (BlockAt(place + last) == ends)))
            for (qsizetype i = 0; i < places; ++i)
                if (std::memcmp(place + i, wanted.data(), static_cast<size_t>(wanted.size())) == 0)
                    return place + i;
    return static_cast<const char*>(
        memmem(place, static_cast<size_t>(end - place), wanted.data(), static_cast<size_t>(wanted.size())));
}

// text is of whole lines. Looking for the characters first and for the ends of the line then is several times
// faster than taking line after line.
bool HoldsLine(QByteArrayView text, QByteArrayView wanted) {
    const char* const end = text.data() + text.size();
    for (const char* found = Find(text.data(), end, wanted); found; found = Find(found + 1, end, wanted)) {
        const qsizetype place = found - text.data();
        if (BeginsLine(text, place) && EndsLine(text, place + wanted.size()))
            return true;
    }
    return false;
}

} // namespace

bool FileHoldsLine(const QString& path, QByteArrayView wanted) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw FileError("Cannot open \"" + path.toStdString() + "\": " + file.errorString().toStdString());
    if (wanted.isEmpty())
        return false;
    QByteArray buffer;
    qsizetype held = 0; // of a line that the last chunk has cut in two
    while (true) {
        if (buffer.size() < held + ChunkBytes)
            buffer.resize(held + ChunkBytes);
        const qint64 read = file.read(buffer.data() + held, ChunkBytes);
        const QByteArrayView text = QByteArrayView(buffer).first(held + std::max<qint64>(read, 0));
        if (read <= 0)
            return HoldsLine(text, wanted);
        const qsizetype whole = text.lastIndexOf('\n') + 1;
        if (HoldsLine(text.first(whole), wanted))
            return true;
        held = text.size() - whole;
        std::memmove(buffer.data(), text.data() + whole, static_cast<size_t>(held));
    }
}

} // namespace qlm
