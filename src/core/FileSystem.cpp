// SPDX-License-Identifier: MIT
#include "core/FileSystem.h"

#include "core/AnsiText.h"
#include "core/Descriptor.h"
#include "core/LineReader.h"
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

mode_t ModeFor(Readers readers) {
    return readers == Readers::OwnerAlone ? 0600 : 0644;
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

QStringList FileSystem::NamesIn(const QString& folder) const {
    const auto wanted = QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot;
    QStringList names;
    for (const QFileInfo& entry : QDir(folder).entryInfoList(wanted, QDir::Name))
        if (!entry.isDir())
            names.append(entry.fileName());
        else if (!entry.isSymLink())
            names.append(entry.fileName() + u'/');
    return names;
}

void FileSystem::Refuse(const QString& path) const {
    if (m_gate && m_gate->IsReadOnly(path)) {
        errno = EACCES;
        FailFile("Cannot write", path);
    }
}

void FileSystem::CreateFolder(const QString& path) {
    Refuse(path);
    if (FolderExists(path))
        return;
    const QString parent = QFileInfo(path).absolutePath();
    if (parent != QDir::cleanPath(path))
        CreateFolder(parent);
    if (!QDir().mkpath(path))
        FailFile("Cannot create the folder", path);
    SyncFolderOf(path);
}

void FileSystem::EnsureFile(const QString& path, Readers readers) {
    if (FileExists(path))
        return;
    CreateFolder(QFileInfo(path).absolutePath());
    Refuse(path);
    const Descriptor created(path, O_WRONLY | O_CREAT, ModeFor(readers));
    SyncFolderOf(path);
}

void FileSystem::CloseToOthers(const QString& path) {
    struct stat status {};
    const QByteArray name = QFile::encodeName(path);
    if (stat(name, &status) == 0 && (status.st_mode & 077) != 0 && status.st_uid == geteuid() &&
        chmod(name, status.st_mode & 0700) != 0)
        FailFile("Cannot protect", path);
}

void FileSystem::CreateFile(const QString& path, Readers readers) {
    CreateFolder(QFileInfo(path).absolutePath());
    WriteBytes(path, {}, readers);
}

void FileSystem::DeleteFile(const QString& path) {
    Refuse(path);
    if (!FileExists(path))
        return;
    if (unlink(QFile::encodeName(path)) != 0)
        FailFile("Cannot delete", path);
    SyncFolderOf(path);
}

QByteArray FileSystem::ReadBytes(const QString& path) const {
    const Descriptor file(path, O_RDONLY);
    if (file.Size() > LargestWhole)
        throw FileError("Cannot read \"" + path.toStdString() + "\": it is too big");
    QByteArray bytes(file.Size(), Qt::Uninitialized);
    bytes.resize(file.Read(bytes.data(), bytes.size()));
    return bytes;
}

bool FileSystem::IsIllegible(const QString& path) const {
    if (!FileExists(path))
        return false;
    char beginning[4];
    const Descriptor file(path, O_RDONLY);
    return LooksLikeUtf16(QByteArrayView(beginning, file.Read(beginning, sizeof beginning)));
}

QStringList FileSystem::ReadLines(const QString& path) const {
    QStringList lines;
    qint64 left = LargestWhole;
    LineReader reader(path);
    while (const auto line = reader.Next()) {
        left -= line->size();
        if (left < 0)
            throw FileError("Cannot read \"" + path.toStdString() + "\": it is too big");
        lines.append(FromAnsi(*line));
    }
    if (reader.PassedOver() > 0)
        throw FileError("Cannot read \"" + path.toStdString() +
                        "\": it holds a line of more than a megabyte");
    return lines;
}

void FileSystem::ForEachLine(const QString& path, const std::function<bool(QByteArrayView)>& visit) const {
    LineReader reader(path);
    while (const auto line = reader.Next())
        if (!visit(*line))
            return;
}

void FileSystem::WriteAll(int descriptor, const QByteArray& bytes, const QString& path) {
    const qint64 allowed = m_gate ? m_gate->Allow(bytes.size()) : bytes.size();
    for (qint64 done = 0; done < allowed;) {
        const ssize_t written =
            write(descriptor, bytes.constData() + done, static_cast<size_t>(allowed - done));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            FailFile("Cannot write", path);
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
    const bool isNew = !FileExists(path);
    const Descriptor file(path, O_RDWR | O_CREAT | O_APPEND, ModeFor(readers));
    if (EndsInsideLine(file.Number()))
        bytes.prepend("\r\n");
    WriteAll(file.Number(), bytes, path);
    if (durability == Durability::Synced)
        Sync(file, path);
    if (durability == Durability::Synced && isNew)
        SyncFolderOf(path);
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
    if (QFileInfo::exists(path) && !FileExists(path))
        throw FileError("Cannot write \"" + path.toStdString() + "\": it is not an ordinary file");
    const QString temporary = path + u".new"_s;
    // What an earlier end has left there may stand open to others.
    unlink(QFile::encodeName(temporary));
    auto undo = qScopeGuard([&temporary] { unlink(QFile::encodeName(temporary)); });
    {
        const Descriptor file(temporary, O_WRONLY | O_CREAT | O_TRUNC, ModeFor(readers));
        for (bool more = true; more;) {
            QByteArray part;
            more = nextPart(part);
            WriteAll(file.Number(), part, temporary);
            if (eachPart == Durability::Synced || !more)
                Sync(file, temporary);
        }
    }
    Replace(temporary, path);
    undo.dismiss();
}

void FileSystem::Sync(const Descriptor& file, const QString& path) const {
    if (m_gate && !m_gate->AllowSync(path)) {
        errno = EIO;
        FailFile("Cannot write", path);
    }
    // A folder on some file systems cannot be synced; that is no failure of the write.
    if (fsync(file.Number()) != 0 && errno != EINVAL && errno != EROFS)
        FailFile("Cannot write", path);
}

// What stands in a folder is the folder's: a new name in it lasts when the folder is synced.
void FileSystem::SyncFolderOf(const QString& path) const {
    const QString folder = QFileInfo(path).absolutePath();
    Sync(Descriptor(folder, O_RDONLY | O_DIRECTORY), folder);
}

void FileSystem::Replace(const QString& temporary, const QString& path) {
    if (m_gate && !m_gate->AllowReplace(path)) {
        errno = EIO;
        FailFile("Cannot replace", path);
    }
    if (rename(QFile::encodeName(temporary), QFile::encodeName(path)) != 0)
        FailFile("Cannot replace", path);
    SyncFolderOf(path);
}

void FileSystem::CopyFile(const QString& from, const QString& to, Readers readers) {
    WriteBytes(to, ReadBytes(from), readers);
}

void FileSystem::MoveFile(const QString& from, const QString& to) {
    CreateFolder(QFileInfo(to).absolutePath());
    Refuse(to);
    Replace(from, to);
}

void FileSystem::DeleteFolder(const QString& path) {
    if (!FolderExists(path))
        return;
    Refuse(path);
    if (!QDir(path).removeRecursively())
        throw FileError("Cannot delete the folder \"" + path.toStdString() + '"');
    SyncFolderOf(path);
}

bool FileSystem::IsWritable(const QString& folder, const QString& testFileName) {
    const QString path = Join(folder, testFileName);
    try {
        DeleteFile(path);
        Refuse(path);
        const Descriptor created(path, O_WRONLY | O_CREAT | O_TRUNC, 0644);
        DeleteFile(path);
        return true;
    } catch (const FileError&) {
        return false;
    }
}

} // namespace qlm
