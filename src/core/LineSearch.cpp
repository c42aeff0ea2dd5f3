// SPDX-License-Identifier: MIT
#include "core/LineSearch.h"

#include "core/LineReader.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <utility>

namespace qlm {

namespace {

constexpr qsizetype ChunkBytes = 1 << 18;

bool IsLineEnd(char byte) {
    return byte == '\n' || byte == '\r';
}

bool IsBlank(char byte) {
    return byte == ' ' || (byte >= '\t' && byte < '\r' && byte != '\n');
}

// Nothing but blanks between the place and the end of its line.
bool EndsLine(QByteArrayView text, qsizetype place) {
    while (place < text.size() && IsBlank(text[place]))
        ++place;
    return place == text.size() || IsLineEnd(text[place]);
}

bool BeginsLine(QByteArrayView text, qsizetype place) {
    while (place > 0 && IsBlank(text[place - 1]))
        --place;
    return place == 0 || IsLineEnd(text[place - 1]);
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

// Where the last line begins that text cuts in two: a bare CR counts where there is no LF.
qsizetype WholeLines(QByteArrayView text) {
    const qsizetype feeds = text.lastIndexOf('\n') + 1;
    return feeds > 0 ? feeds : text.lastIndexOf('\r') + 1;
}

} // namespace

bool FileHoldsLine(const QString& path, QByteArrayView wanted) {
    const Descriptor file(path, O_RDONLY);
    if (wanted.isEmpty())
        return false;
    QByteArray buffer;
    qsizetype held = 0; // of a line that the last chunk has cut in two
    bool isFirst = true;
    while (true) {
        buffer.resize(std::max(buffer.size(), held + ChunkBytes));
        const qint64 read = file.Read(buffer.data() + held, ChunkBytes);
        QByteArrayView text = QByteArrayView(buffer).first(held + read);
        if (std::exchange(isFirst, false))
            text = text.sliced(MarkLength(text, path));
        if (read == 0)
            return HoldsLine(text, wanted);
        const qsizetype whole = WholeLines(text);
        if (HoldsLine(text.first(whole), wanted))
            return true;
        held = text.size() - whole;
        if (held <= LineReader::LongestLine) {
            std::memmove(buffer.data(), text.data() + whole, static_cast<size_t>(held));
        } else {
            // The rest of the line is no line of its own: what nobody looks for stands before it.
            buffer[0] = '\0';
            held = 1;
        }
    }
}

} // namespace qlm
