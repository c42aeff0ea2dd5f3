// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace qlm {

class FileSystem;

// Who has been, or may have been, contacted without standing in the log: one ID a line, in a file beside that
// log. An ID is noted before the log line can be lost, and struck out when the line stands, or when the site
// has said that nobody was contacted. Nothing is cached. Every member throws FileError when it cannot do what
// it says; what it has done is on the disk when it returns.
//
// A line ends with a mark, so that one which a power cut left unfinished is no other ID.
class OpenNotes {
public:
    OpenNotes(FileSystem& files, const QString& logPath);

    // The log's name with ".open" before its last dot.
    const QString& Path() const { return m_path; }
    bool Holds(const QString& id) const;
    QStringList All() const;
    // Does nothing for an ID that is noted already.
    void Note(const QString& id);
    void StrikeOut(const QStringList& ids);
    void Clear();

private:
    FileSystem& m_files;
    QString m_path;
};

} // namespace qlm
