// SPDX-License-Identifier: MIT
#pragma once

#include "core/FileSystem.h"

#include <QHash>
#include <optional>

namespace qlm {

// What a backup holds: the files and folders of the program's folder that are the user's. Files are found in
// any letter case, since a folder may come from a system that does not tell them apart.
class BackupSet {
public:
    // Looks at the folder as it stands now.
    BackupSet(const FileSystem& files, const QString& folder);

    // The files that are there, in the order of the set, by their real names from the folder on and divided
    // by
    // "/"; folders that hold nothing end in "/".
    const QStringList& Names() const { return m_names; }
    // Left out, since another name differs from it only in letter case: such an archive would be refused.
    const QStringList& LeftOut() const { return m_leftOut; }

    // Where an entry of an archive belongs: as the program spells it, or as it stands in the folder already.
    struct Place {
        QString name;
        Readers readers = Readers::Everyone;
    };
    // Nothing for what is not of the set. Names of folders end in "/".
    std::optional<Place> PlaceOf(const QString& entry) const;

private:
    void AddFile(const QStringList& present, const QString& name);
    void AddFolder(const FileSystem& files, const QString& folder, const QString& name);
    void Add(const QString& name);
    QString SpelledAsHere(const QStringList& parts) const;

    QStringList m_names;
    QStringList m_leftOut;
    QHash<QString, QString> m_spelling; // what stands there, by its name in small letters
};

} // namespace qlm
