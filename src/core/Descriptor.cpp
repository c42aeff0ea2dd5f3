// SPDX-License-Identifier: MIT
#include "core/Descriptor.h"

#include "core/FileSystem.h"

#include <QFile>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qlm {

namespace {

[[noreturn]] void Refuse(const QString& path, const char* why) {
    throw FileError("Cannot open \"" + path.toStdString() + "\": " + why);
}

constexpr const char* NoOrdinaryFile = "it is not an ordinary file";

} // namespace

void FailFile(const char* what, const QString& path) {
    throw FileError(std::string(what) + " \"" + path.toStdString() + "\": " + std::strerror(errno));
}

// Without blocking, since a pipe would wait for its other end.
Descriptor::Descriptor(const QString& path, int flags, mode_t mode)
    : m_path(path), m_number(::open(QFile::encodeName(path), flags | O_CLOEXEC | O_NONBLOCK, mode)) {
    if (m_number < 0 && errno == ENXIO)
        Refuse(path, NoOrdinaryFile);
    if (m_number < 0)
        FailFile("Cannot open", path);
    struct stat status {};
    const bool isKnown = ::fstat(m_number, &status) == 0;
    if (isKnown && (S_ISREG(status.st_mode) || (flags & O_DIRECTORY) != 0)) {
        m_size = status.st_size;
        return;
    }
    ::close(m_number);
    Refuse(path, NoOrdinaryFile);
}

Descriptor::~Descriptor() {
    ::close(m_number);
}

qint64 Descriptor::Read(char* place, qint64 most) const {
    qint64 done = 0;
    while (done < most) {
        const ssize_t got = ::read(m_number, place + done, static_cast<size_t>(most - done));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            FailFile("Cannot read", m_path);
        if (got == 0)
            break;
        done += got;
    }
    return done;
}

// Digits and letters in UTF-16 have an empty byte beside each.
bool LooksLikeUtf16(QByteArrayView beginning) {
    if (beginning.startsWith("\xFF\xFE") || beginning.startsWith("\xFE\xFF"))
        return true;
    if (beginning.size() < 4)
        return false;
    const bool isFirst = beginning[0] != '\0';
    return isFirst == (beginning[1] == '\0') && isFirst == (beginning[2] != '\0') &&
           isFirst == (beginning[3] == '\0');
}

qsizetype MarkLength(QByteArrayView beginning, const QString& path) {
    if (LooksLikeUtf16(beginning))
        Refuse(path, "it is written in UTF-16; save it as plain text (ANSI or UTF-8)");
    return beginning.startsWith("\xEF\xBB\xBF") ? 3 : 0;
}

} // namespace qlm
