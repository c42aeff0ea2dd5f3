// SPDX-License-Identifier: MIT
#pragma once

#include "core/FileSystem.h"

namespace qlm {

// Files that take the places of a folder's own all together or not at all, wherever the program ends on the
// way. They are written into a folder beside them; once all are there a mark says so, and from then on they
// are moved to their places, at the next start where this one doesn't come to it.
class StagedFiles {
public:
    StagedFiles(FileSystem& files, const QString& folder);

    // Names are from the folder on, divided by "/"; that of a folder ends in one.
    void Add(const QString& name, const QByteArray& content, Readers readers);
    // The decision: what fails after it is made good by Finish().
    void Seal();
    // Moves what was sealed to its place, and removes what was not.
    void Finish();

private:
    void MoveAll(const QString& below);

    FileSystem& m_files;
    const QString m_folder;
    const QString m_stage;
    const QString m_mark;
};

} // namespace qlm
