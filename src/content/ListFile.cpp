// SPDX-License-Identifier: MIT
#include "content/ListFile.h"

#include "core/FileSystem.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

ListFile::ListFile(FileSystem& files, const QString& folder, const QString& name)
    : m_files(&files),
      m_path(FileSystem::Join(folder, name)),
      m_workPath(FileSystem::Join(folder, u"Temp_"_s + name)) {}

QStringList ListFile::Lines() const {
    m_files->EnsureFile(m_path);
    return m_files->ReadLines(m_path);
}

void ListFile::Append(const QString& line) const {
    m_files->EnsureFile(m_workPath);
    m_files->AppendLine(m_path, line);
}

// The work copy stays behind.
void ListFile::Rewrite(const QStringList& lines) const {
    m_files->EnsureFile(m_workPath);
    m_files->WriteLines(m_workPath, lines);
    m_files->CopyFile(m_workPath, m_path);
}

void ListFile::Clear() const {
    m_files->CreateFile(m_path);
}

} // namespace qlm
