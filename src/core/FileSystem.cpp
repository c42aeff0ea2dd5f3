// SPDX-License-Identifier: MIT
#include "core/FileSystem.h"

#include "core/AnsiText.h"
#include "platform/Platform.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

[[noreturn]] void Fail(const char* what, const QString& path) {
    throw FileError(std::string(what) + " \"" + path.toStdString() + "\": " + std::strerror(errno));
}

class Descriptor {
public:
    Descriptor(const QString& path, int flags, mode_t mode)
        : m_number(open(QFile::encodeName(path), flags, mode)) {
        if (m_number < 0)
            Fail("Cannot open", path);
    }
    ~Descriptor() {
        if (m_number >= 0)
            close(m_number);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int Number() const { return m_number; }
    void Sync(const QString& path) const {
        // A folder on some file systems cannot be synced; that is no failure of the write.
        if (fsync(m_number) != 0 && errno != EINVAL && errno != EROFS)
            Fail("Cannot write", path);
    }

private:
    int m_number;
};

mode_t ModeFor(Readers readers) {
    return readers == Readers::OwnerAlone ? 0600 : 0644;
}

void SyncFolderOf(const QString& path) {
    const QString folder = QFileInfo(path).absolutePath();
    Descriptor(folder, O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0).Sync(folder);
}

QByteArray LinesToBytes(const QStringList& lines) {
    QByteArray bytes;
    for (const QString& line : lines)
        bytes += ToAnsi(line) + "\r\n";
    return bytes;
}

bool EndsInsideLine(int descriptor) {
    const off_t size = lseek(descriptor, 0, SEEK_END);
    char last = '\n';
    return size > 0 && pread(descriptor, &last, 1, size - 1) == 1 && last != '\n';
}

} // namespace

QString FileSystem::Join(const QString& folder, const QString& name) {
    QString left = folder;
    QString right = name;
    left.replace(u'\\', u'/');
    right.replace(u'\\', u'/');
    while (left.endsWith(u'/') && left.size() > 1)
        left.chop(1);
    while (right.startsWith(u'/'))
        right.remove(0, 1);
    return right.isEmpty() ? left : left + u'/' + right;
}

bool FileSystem::FileExists(const QString& path) const {
    return QFileInfo(path).isFile();
}

bool FileSystem::FolderExists(const QString& path) const {
    return QFileInfo(path).isDir();
}

void FileSystem::Refuse(const QString& path) const {
    if (m_gate && m_gate->IsReadOnly(path)) {
        errno = EACCES;
        Fail("Cannot write", path);
    }
}

void FileSystem::CreateFolder(const QString& path) {
    Refuse(path);
    if (!QDir().mkpath(path))
        Fail("Cannot create the folder", path);
}

void FileSystem::EnsureFile(const QString& path, Readers readers) {
    if (FileExists(path))
        return;
    CreateFolder(QFileInfo(path).absolutePath());
    Refuse(path);
    const Descriptor created(path, O_WRONLY | O_CREAT | O_CLOEXEC, ModeFor(readers));
}

void FileSystem::CloseToOthers(const QString& path) {
    struct stat status {};
    const QByteArray name = QFile::encodeName(path);
    if (stat(name, &status) == 0 && (status.st_mode & 077) != 0 && status.st_uid == geteuid() &&
        chmod(name, status.st_mode & 0700) != 0)
        Fail("Cannot protect", path);
}

void FileSystem::CreateFile(const QString& path, Readers readers) {
    CreateFolder(QFileInfo(path).absolutePath());
    WriteBytes(path, {}, readers);
}

void FileSystem::DeleteFile(const QString& path) {
    Refuse(path);
    if (FileExists(path) && unlink(QFile::encodeName(path)) != 0)
        Fail("Cannot delete", path);
}

QByteArray FileSystem::ReadBytes(const QString& path) const {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw FileError("Cannot open \"" + path.toStdString() + "\": " + file.errorString().toStdString());
    return file.readAll();
}

QStringList FileSystem::ReadLines(const QString& path) const {
    QStringList lines;
    ForEachLine(path, [&lines](QByteArrayView line) {
        lines.append(FromAnsi(line));
        return true;
    });
    return lines;
}

void FileSystem::ForEachLine(const QString& path, const std::function<bool(QByteArrayView)>& visit) const {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw FileError("Cannot open \"" + path.toStdString() + "\": " + file.errorString().toStdString());
    constexpr qint64 ChunkBytes = 1 << 18;
    qint64 left = file.size(); // what is added meanwhile is not visited
    QByteArray data;           // begins at a line
    auto give = [&visit](QByteArrayView line) { return visit(line.endsWith('\r') ? line.chopped(1) : line); };
    while (true) {
        const QByteArray chunk = file.read(std::min(ChunkBytes, left));
        if (chunk.isEmpty())
            break;
        left -= chunk.size();
        const qsizetype searched = data.size();
        data += chunk;
        qsizetype start = 0;
        for (qsizetype end = data.indexOf('\n', searched); end >= 0; end = data.indexOf('\n', start)) {
            if (!give(QByteArrayView(data).sliced(start, end - start)))
                return;
            start = end + 1;
        }
        // A line longer than the chunk stays where it is and grows.
        if (start > 0)
            data = data.mid(start);
    }
    if (!data.isEmpty())
        give(data);
}

void FileSystem::WriteAll(int descriptor, const QByteArray& bytes, const QString& path) {
    const qint64 allowed = m_gate ? m_gate->Allow(bytes.size()) : bytes.size();
    for (qint64 done = 0; done < allowed;) {
        const ssize_t written =
            write(descriptor, bytes.constData() + done, static_cast<size_t>(allowed - done));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            Fail("Cannot write", path);
        done += written;
    }
    if (allowed < bytes.size())
        m_gate->Cut();
}

void FileSystem::AppendLine(const QString& path, const QString& line, Readers readers,
                            Durability durability) {
    Append(path, LinesToBytes({line}), readers, durability);
}

void FileSystem::AppendLines(const QString& path, const QStringList& lines) {
    Append(path, LinesToBytes(lines), Readers::Everyone, Durability::Synced);
}

void FileSystem::Append(const QString& path, QByteArray bytes, Readers readers, Durability durability) {
    CreateFolder(QFileInfo(path).absolutePath());
    Refuse(path);
    const Descriptor file(path, O_RDWR | O_CREAT | O_APPEND | O_CLOEXEC, ModeFor(readers));
    if (EndsInsideLine(file.Number()))
        bytes.prepend("\r\n");
    WriteAll(file.Number(), bytes, path);
    if (durability == Durability::Synced)
        file.Sync(path);
}

void FileSystem::WriteLines(const QString& path, const QStringList& lines, Readers readers) {
    WriteBytes(path, LinesToBytes(lines), readers);
}

void FileSystem::WriteBytes(const QString& path, const QByteArray& bytes, Readers readers) {
    WriteParts(
        path,
        [&bytes](QByteArray& part) {
            part = bytes;
            return false;
        },
        readers);
}

void FileSystem::WriteParts(const QString& path, const std::function<bool(QByteArray&)>& nextPart,
                            Readers readers, Durability eachPart) {
    Refuse(path);
    const QString temporary = path + u".new"_s;
    // What an earlier end has left there may stand open to others.
    unlink(QFile::encodeName(temporary));
    auto undo = qScopeGuard([&temporary] { unlink(QFile::encodeName(temporary)); });
    {
        const Descriptor file(temporary, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, ModeFor(readers));
        for (bool more = true; more;) {
            QByteArray part;
            more = nextPart(part);
            WriteAll(file.Number(), part, temporary);
            if (eachPart == Durability::Synced || !more)
                file.Sync(temporary);
        }
    }
    Replace(temporary, path);
    undo.dismiss();
}

void FileSystem::Replace(const QString& temporary, const QString& path) {
    if (rename(QFile::encodeName(temporary), QFile::encodeName(path)) != 0)
        Fail("Cannot replace", path);
    SyncFolderOf(path);
}

void FileSystem::CopyFile(const QString& from, const QString& to, Readers readers) {
    WriteBytes(to, ReadBytes(from), readers);
}

bool FileSystem::IsWritable(const QString& folder, const QString& testFileName) {
    const QString path = Join(folder, testFileName);
    try {
        DeleteFile(path);
        Refuse(path);
        const Descriptor created(path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
        DeleteFile(path);
        return true;
    } catch (const FileError&) {
        return false;
    }
}

} // namespace qlm
