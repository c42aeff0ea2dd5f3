// SPDX-License-Identifier: MIT
#pragma once

#include "core/Descriptor.h"

#include <QByteArray>
#include <optional>

namespace qlm {

// The lines of a text file from its start, in little memory. CR LF, LF and a bare CR end a line; a mark for
// UTF-8 at the start is passed over. A line of more than LongestLine bytes is none of the program's: it is
// passed over and counted. What is added to the file meanwhile isn't read. Throws FileError.
class LineReader {
public:
    static constexpr qsizetype LongestLine = 1 << 20;

    explicit LineReader(const QString& path);

    // The next line without its end, as bytes on disk, until the next call; nothing after the last.
    std::optional<QByteArrayView> Next();
    int PassedOver() const { return m_passedOver; }

private:
    qsizetype FindEnd() const;
    bool Refill();
    std::optional<QByteArrayView> TakeRest();

    QString m_path;
    Descriptor m_file;
    qint64 m_left;
    QByteArray m_data;
    qsizetype m_start = 0;    // of the next line
    qsizetype m_searched = 0; // no line end stands before
    bool m_isFirst = true;
    bool m_isInside = false; // of a line that is too long
    int m_passedOver = 0;
};

} // namespace qlm
