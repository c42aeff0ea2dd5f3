// SPDX-License-Identifier: MIT
#include "core/ProfileLock.h"

#include <QDir>
#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int None = -1;

// Everybody who can write the folder has to be able to open the file, whoever made it.
int OpenLockFile(const QString& folder) {
    const QByteArray path = QFile::encodeName(QDir(folder).filePath(u"quillmere.lock"_s));
    const int file = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0644);
    return file >= 0 ? file : ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
}

bool CanWrite(const QString& folder) {
    return ::access(QFile::encodeName(folder).constData(), W_OK | X_OK) == 0;
}

bool IsSame(int one, int other) {
    struct stat first {};
    struct stat second {};
    return ::fstat(one, &first) == 0 && ::fstat(other, &second) == 0 && first.st_dev == second.st_dev &&
           first.st_ino == second.st_ino;
}

} // namespace

ProfileLock::~ProfileLock() {
    Release();
}

void ProfileLock::Release() {
    for (const int file : m_held)
        ::close(file);
    m_held.clear();
}

QString ProfileLock::Take(const QStringList& folders) {
    for (const QString& folder : folders) {
        QDir().mkpath(folder);
        const int file = CanWrite(folder) ? OpenLockFile(folder) : None;
        if (file == None)
            continue;
        // The same folder by two names is not another program's.
        bool isOwn = false;
        for (const int held : m_held)
            isOwn = isOwn || IsSame(held, file);
        if (!isOwn && ::flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
            ::close(file);
            Release();
            return folder;
        }
        m_held.push_back(file);
    }
    return {};
}

QString SecondStartMessage(const QString& folder) {
    return u"Quillmere is already running and works with the folder %1. Two programs on one folder would ask "
           "everybody twice, so this one ends. Please go on in the window that is open."_s.arg(
               QDir::toNativeSeparators(folder));
}

} // namespace qlm
