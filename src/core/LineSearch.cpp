// SPDX-License-Identifier: MIT
#include "core/LineSearch.h"

#include "core/FileSystem.h"

#include <QFile>
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

// text is of whole lines. Looking for the characters first and for the ends of the line then is several times
// faster than taking line after line.
bool HoldsLine(QByteArrayView text, QByteArrayView wanted) {
    const char* from = text.data();
    const char* const end = from + text.size();
    auto rest = [&] { return static_cast<size_t>(end - from); };
    while (const void* found = memmem(from, rest(), wanted.data(), static_cast<size_t>(wanted.size()))) {
        const qsizetype place = static_cast<const char*>(found) - text.data();
        if (BeginsLine(text, place) && EndsLine(text, place + wanted.size()))
            return true;
        from = static_cast<const char*>(found) + 1;
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
