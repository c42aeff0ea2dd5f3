// SPDX-License-Identifier: MIT
#include "maintenance/StagedFiles.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Stage = u"Restoring"_s;

} // namespace

StagedFiles::StagedFiles(FileSystem& files, const QString& folder)
    : m_files(files),
      m_folder(folder),
      m_stage(FileSystem::Join(folder, Stage + u"/files"_s)),
      m_mark(FileSystem::Join(folder, Stage + u"/complete"_s)) {}

void StagedFiles::Add(const QString& name, const QByteArray& content, Readers readers) {
    const QString path = FileSystem::Join(m_stage, name);
    if (name.endsWith(u'/'))
        return m_files.CreateFolder(path);
    m_files.CreateFolder(path.section(u'/', 0, -2));
    m_files.WriteBytes(path, content, readers);
}

void StagedFiles::Seal() {
    m_files.CreateFile(m_mark);
}

void StagedFiles::Finish() {
    if (m_files.FileExists(m_mark))
        MoveAll({});
    m_files.DeleteFolder(FileSystem::Join(m_folder, Stage));
}

void StagedFiles::MoveAll(const QString& below) {
    for (const QString& name : m_files.NamesIn(FileSystem::Join(m_stage, below))) {
        const QString target = FileSystem::Join(m_folder, below + name);
        if (!name.endsWith(u'/')) {
            m_files.MoveFile(FileSystem::Join(m_stage, below + name), target);
            continue;
        }
        m_files.CreateFolder(target);
        MoveAll(below + name);
    }
}

} // namespace qlm
