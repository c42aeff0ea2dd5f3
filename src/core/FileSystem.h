// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <functional>
#include <stdexcept>

namespace qlm {

class Descriptor;
class WriteGate;

// A file that could not be read or written; the text names what failed and the path.
class FileError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

enum class Readers { Everyone, OwnerAlone };
// Synced has reached the disk when the call returns; Quick survives the process, not a power cut.
enum class Durability { Synced, Quick };

// All file access of the program. Files are opened, used and closed within one call. Text files are
// Windows-1252 with CR LF ends; LF and CR ends are read too, and a mark for UTF-8 at the start is passed
// over. Text in UTF-16 and whatever is no ordinary file is an error. Every member throws FileError when it
// cannot do what it says.
//
// Appending is one write of whole lines, synced; a line that a power cut left unfinished is closed first, so
// that nothing is ever glued to it. Rewriting leaves either the old or the new file whole, at whatever byte
// it is cut off.
class FileSystem {
public:
    explicit FileSystem(WriteGate* gate = nullptr) : m_gate(gate) {}

    // Nothing of the program's is as big, and all of it would be in memory at once: ReadBytes and ReadLines
    // refuse it.
    static constexpr qint64 LargestWhole = 256 * 1024 * 1024;

    bool FileExists(const QString& path) const;
    bool FolderExists(const QString& path) const;
    void CreateFolder(const QString& path);
    // Creates an empty file, and its folder, when the file is missing.
    void EnsureFile(const QString& path, Readers readers = Readers::Everyone);
    // Takes others' rights away from the file, if there are any and it is the user's own.
    void CloseToOthers(const QString& path);
    // Creates the file anew, empty.
    void CreateFile(const QString& path, Readers readers = Readers::Everyone);
    void DeleteFile(const QString& path);

    // What stands in a folder, in order: its ordinary files, and its folders with a "/" at the end. Links to
    // folders are passed over. Nothing where there is no such folder.
    QStringList NamesIn(const QString& folder) const;

    // All lines, for a file that may be written back: one of more than a megabyte is an error.
    QStringList ReadLines(const QString& path) const;
    // Line by line from the start, without the line end, as bytes on disk; stops when visit answers false.
    // The lines of the moment of the call: visit may append to the file. A line of more than a megabyte is
    // none of the program's and passed over.
    void ForEachLine(const QString& path, const std::function<bool(QByteArrayView line)>& visit) const;
    QByteArray ReadBytes(const QString& path) const;
    // A file that can be read and holds text in another encoding than the program's: UTF-16.
    bool IsIllegible(const QString& path) const;

    void AppendLine(const QString& path, const QString& line, Readers readers = Readers::Everyone,
                    Durability durability = Durability::Synced);
    // The same for many lines, in one write.
    void AppendLines(const QString& path, const QStringList& lines);
    void WriteLines(const QString& path, const QStringList& lines, Readers readers = Readers::Everyone);
    // As WriteBytes for what is too much for one go: nextPart adds the next bytes to the empty array and
    // answers false when those were the last. Unless told otherwise, each part has reached the disk before
    // the next is asked for, so that no single wait is long; the whole file has at the end.
    void WriteParts(const QString& path, const std::function<bool(QByteArray& part)>& nextPart,
                    Readers readers = Readers::Everyone, Durability eachPart = Durability::Synced);
    void WriteBytes(const QString& path, const QByteArray& bytes, Readers readers = Readers::Everyone);
    // Overwrites the target, whole or not at all.
    void CopyFile(const QString& from, const QString& to, Readers readers = Readers::Everyone);

    // Takes the target's place, whole; both are on one file system.
    void MoveFile(const QString& from, const QString& to);
    // With all that is in it.
    void DeleteFolder(const QString& path);

    // True when a file can be created and deleted in the folder.
    bool IsWritable(const QString& folder, const QString& testFileName);

    // Joins with the platform's separator, whichever side brings one.
    static QString Join(const QString& folder, const QString& name);

private:
    void Append(const QString& path, QByteArray bytes, Readers readers, Durability durability);
    void Sync(const Descriptor& file, const QString& path) const;
    void SyncFolderOf(const QString& path) const;
    void Replace(const QString& temporary, const QString& path);
    void Refuse(const QString& path) const;
    void WriteAll(int descriptor, const QByteArray& bytes, const QString& path);

    WriteGate* m_gate;
};

} // namespace qlm
