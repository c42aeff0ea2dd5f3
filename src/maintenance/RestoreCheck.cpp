// SPDX-License-Identifier: MIT
#include "maintenance/RestoreCheck.h"

#include <QSet>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr size_t MostEntries = 200'000;
constexpr qint64 MostBytes = qint64(4) * 1024 * 1024 * 1024;
constexpr qint64 MostTimesPacked = 1'000;

// With the folders of any system divided by "/".
QString Divided(QString name) {
    return name.replace(u'\\', u'/');
}

bool HasDrive(const QString& name) {
    return name.size() >= 2 && name.at(0).isLetter() && name.at(1) == u':';
}

bool LeadsOut(const QString& name) {
    const QString divided = Divided(name);
    return divided.isEmpty() || divided.startsWith(u'/') || HasDrive(divided) ||
           divided.split(u'/').contains(u".."_s);
}

bool IsNeitherFileNorFolder(const ArchiveEntry& entry) {
    return entry.kind == ArchiveEntry::Kind::Link || entry.kind == ArchiveEntry::Kind::Special;
}

// As a system reads it that does not tell letter case apart.
QString FoldedName(const QString& name) {
    QStringList parts = Divided(name).split(u'/', Qt::SkipEmptyParts);
    parts.removeAll(u"."_s);
    return parts.join(u'/').toCaseFolded();
}

QString WhyNameIsRefused(const ArchiveEntry& entry, QSet<QString>& names) {
    if (LeadsOut(entry.name))
        return u"a name in it leads out of the folder: \"%1\"."_s.arg(entry.name);
    if (IsNeitherFileNorFolder(entry))
        return u"an entry of it is neither a file nor a folder: \"%1\"."_s.arg(entry.name);
    const QString folded = FoldedName(entry.name);
    if (names.contains(folded))
        return u"two names in it are the same but for capital letters: \"%1\"."_s.arg(entry.name);
    names.insert(folded);
    return {};
}

} // namespace

QString WhyNotRestored(const std::vector<ArchiveEntry>& entries, qint64 packedSize) {
    if (entries.size() > MostEntries)
        return u"it has more than 200,000 entries."_s;
    QSet<QString> names;
    qint64 unpacked = 0;
    for (const ArchiveEntry& entry : entries) {
        if (const QString reason = WhyNameIsRefused(entry, names); !reason.isEmpty())
            return reason;
        // Each by itself, so that their sum stays a number.
        if (entry.size < 0 || entry.size > MostBytes || (unpacked += entry.size) > MostBytes)
            return u"unpacked, it would be bigger than 4 GB."_s;
    }
    if (unpacked > packedSize * MostTimesPacked)
        return u"unpacked, it would be more than 1,000 times as big."_s;
    return {};
}

} // namespace qlm
