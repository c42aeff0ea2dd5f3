// SPDX-License-Identifier: MIT
#include "maintenance/BackupSet.h"

#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct FileRow {
    const char16_t* name; // as the program spells it
    Readers readers = Readers::Everyone;
};

constexpr FileRow Files[] = {
    {u"FriendsLog.txt"},
    {u"CommentsLog.txt"},
    {u"MessagesLog.txt"},
    {u"scalemodelight.txt", Readers::OwnerAlone},
    {u"CommentsList.txt"},
    {u"MessagesList.txt"},
    {u"BulletinsList.txt"},
    {u"CategoriesList.txt"},
    {u"chainingfr.txt", Readers::OwnerAlone},
    {u"chainingmsg.txt", Readers::OwnerAlone},
    {u"chainingbul.txt", Readers::OwnerAlone},
    {u"blacklistedids.txt"},
    {u"BookmarksList.txt"},
    {u"Gathered.txt"},
};

// With all that is below them.
constexpr const char16_t* Folders[] = {u"ACCOUNTS", u"EVENT INVITE LOGS", u"GROUP INVITE LOGS"};

bool IsSame(const QString& left, const QString& right) {
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

const FileRow* RowOf(const QString& name) {
    const auto* const row = std::ranges::find_if(
        Files, [&name](const FileRow& file) { return IsSame(QString::fromUtf16(file.name), name); });
    return row == std::end(Files) ? nullptr : row;
}

} // namespace

BackupSet::BackupSet(const FileSystem& files, const QString& folder) {
    const QStringList present = files.NamesIn(folder);
    for (const FileRow& row : Files)
        AddFile(present, QString::fromUtf16(row.name));
    for (const char16_t* name : Folders)
        for (const QString& each : present)
            if (IsSame(each, QString::fromUtf16(name) + u'/'))
                AddFolder(files, folder, each);
}

// The one that the program reads comes before others.
void BackupSet::AddFile(const QStringList& present, const QString& name) {
    if (present.contains(name))
        Add(name);
    for (const QString& each : present)
        if (each != name && IsSame(each, name))
            Add(each);
}

void BackupSet::AddFolder(const FileSystem& files, const QString& folder, const QString& name) {
    const QString folderName = name.chopped(1);
    if (!m_spelling.contains(folderName.toLower()))
        m_spelling.insert(folderName.toLower(), folderName);
    const QStringList present = files.NamesIn(FileSystem::Join(folder, name));
    if (present.isEmpty())
        Add(name);
    for (const QString& each : present)
        if (each.endsWith(u'/'))
            AddFolder(files, folder, name + each);
        else
            Add(name + each);
}

void BackupSet::Add(const QString& name) {
    QString& spelling = m_spelling[name.toLower()];
    if (spelling.isEmpty())
        spelling = name;
    if (spelling == name)
        m_names.append(name);
    else
        m_leftOut.append(name);
}

std::optional<BackupSet::Place> BackupSet::PlaceOf(const QString& entry) const {
    QString clean = entry;
    QStringList parts = clean.replace(u'\\', u'/').split(u'/', Qt::SkipEmptyParts);
    parts.removeAll(u"."_s);
    const bool isFolder = clean.endsWith(u'/');
    if (parts.isEmpty())
        return std::nullopt;
    const FileRow* const row = RowOf(parts.last());
    if (parts.size() == 1 && !isFolder)
        return row ? std::optional(Place{QString::fromUtf16(row->name), row->readers}) : std::nullopt;
    for (const char16_t* folder : Folders)
        if (const QString name = QString::fromUtf16(folder); IsSame(parts.first(), name)) {
            QStringList inside = parts;
            inside.first() = name;
            // Accounts have lists of their own under the same names.
            if (row && !isFolder)
                inside.last() = QString::fromUtf16(row->name);
            return Place{SpelledAsHere(inside) + (isFolder ? u"/"_s : QString())};
        }
    return std::nullopt;
}

// Below the first part: that one is the program's own.
QString BackupSet::SpelledAsHere(const QStringList& parts) const {
    QString name = parts.first();
    for (const QString& part : parts.sliced(1)) {
        const QString here = m_spelling.value((name + u'/' + part).toLower());
        name += u'/' + (here.isEmpty() ? part : here.section(u'/', -1));
    }
    return name;
}

} // namespace qlm
