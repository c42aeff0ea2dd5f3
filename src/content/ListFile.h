// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace qlm {

class FileSystem;

// A text file of entries, one a line, and beside it the work copy through which it is rewritten: the old list
// or the new one is whole, wherever that is cut off. Missing files are created. Throws FileError.
class ListFile {
public:
    ListFile() = default;
    // The work copy is called as the list, with "Temp_" in front.
    ListFile(FileSystem& files, const QString& folder, const QString& name);

    const QString& Path() const { return m_path; }
    const QString& WorkPath() const { return m_workPath; }
    QStringList Lines() const;
    void Append(const QString& line) const;
    void Rewrite(const QStringList& lines) const;
    // Creates the list anew, empty.
    void Clear() const;

private:
    FileSystem* m_files = nullptr;
    QString m_path;
    QString m_workPath;
};

} // namespace qlm
