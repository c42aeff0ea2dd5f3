// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>
#include <sys/types.h>

namespace qlm {

// Throws a FileError that names what failed, the path and the system's reason (errno).
[[noreturn]] void FailFile(const char* what, const QString& path);

// An open file of the system's, closed with this object. Only ordinary files are opened, and folders where
// the flags ask for one: a pipe or a device may keep the program waiting for ever. Throws FileError.
class Descriptor {
public:
    Descriptor(const QString& path, int flags, mode_t mode = 0);
    ~Descriptor();
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int Number() const { return m_number; }
    qint64 Size() const { return m_size; } // when it was opened
    // Fills as much as there is to read, at most so much; 0 at the end. Throws FileError.
    qint64 Read(char* place, qint64 most) const;

private:
    QString m_path;
    int m_number;
    qint64 m_size = 0;
};

// Does a file that begins so hold text in UTF-16?
bool LooksLikeUtf16(QByteArrayView beginning);
// How many bytes of a mark for its encoding a text file begins with: 3 for UTF-8's, which is passed over, 0
// for none. Throws FileError for text in UTF-16: none of its lines would be recognised.
qsizetype MarkLength(QByteArrayView beginning, const QString& path);

} // namespace qlm
