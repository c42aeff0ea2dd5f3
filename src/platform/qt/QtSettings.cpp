// SPDX-License-Identifier: MIT
#include "platform/qt/QtSettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <fcntl.h>
#include <unistd.h>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// The file's own separators, and the empty name, would be read back as something else.
QString Escaped(const QString& name) {
    if (name.isEmpty())
        return u"%"_s;
    QString escaped = name;
    escaped.replace(u'%', u"%25"_s).replace(u'/', u"%2F"_s).replace(u'\\', u"%5C"_s);
    return escaped;
}

QString Unescaped(const QString& name) {
    if (name == u"%")
        return {};
    QString unescaped = name;
    return unescaped.replace(u"%5C"_s, u"\\"_s).replace(u"%2F"_s, u"/"_s).replace(u"%25"_s, u"%"_s);
}

QString GroupOf(const QString& section) {
    QStringList names = section.split(u'\\');
    for (QString& name : names)
        name = Escaped(name);
    return names.join(u'/');
}

QString PathOf(const QString& section, const QString& key) {
    return GroupOf(section) + u'/' + Escaped(key);
}

// Text that the file's reader would mistake for a list comes back as one.
QString TextOf(const QVariant& value) {
    return value.typeId() == QMetaType::QStringList ? value.toStringList().join(u", "_s) : value.toString();
}

void MakeDurable(const QString& path) {
    const int folder = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    ::fsync(folder);
    ::close(folder);
}

} // namespace

QtSettings::QtSettings(const QString& folder) : m_fileName(QDir(folder).filePath(u"quillmere.ini"_s)) {
    QDir().mkpath(folder);
    if (!CanBeOpened()) {
        KeepElsewhere();
        return;
    }
    Protect();
    m_file = std::make_unique<QSettings>(m_fileName, QSettings::IniFormat);
    QFile file(m_fileName);
    const bool isReadable = !file.exists() || file.open(QIODevice::ReadOnly);
    if (!isReadable || m_file->status() == QSettings::AccessError)
        m_problem = u"The settings in %1 could not be read. Quillmere starts without them."_s.arg(m_fileName);
    else if (m_file->status() == QSettings::FormatError || (file.isOpen() && file.readAll().contains('\0')))
        KeepDamagedFile();
    else if (!m_file->isWritable())
        m_problem = u"The settings in %1 can be read but not saved."_s.arg(m_fileName);
}

// One program works on the folder, so another's lock on the file is a left-over: waiting for its end, which
// the file's reader does, would be for nothing. Whatever else stands in its place is moved out of the way.
bool QtSettings::CanBeOpened() const {
    const QFileInfo file(m_fileName);
    if (file.exists() && !file.isFile())
        return false;
    const QString lock = m_fileName + u".lock"_s;
    if (!QFileInfo::exists(lock) && !QFileInfo(lock).isSymLink())
        return true;
    return QFile::remove(lock) || QDir().rmdir(lock) || QFile::rename(lock, lock + u".old"_s);
}

// In a folder that goes with the program: it works, with what can be read, and forgets at its end.
void QtSettings::KeepElsewhere() {
    m_elsewhere = std::make_unique<QTemporaryDir>();
    const QString file = m_elsewhere->filePath(u"quillmere.ini"_s);
    if (QFileInfo(m_fileName).isFile())
        QFile::copy(m_fileName, file);
    m_problem = u"The settings in %1 could not be opened. What is changed now is not kept."_s.arg(m_fileName);
    m_isFailureTold = true;
    m_file = std::make_unique<QSettings>(file, QSettings::IniFormat);
}

// There are passwords among the settings.
void QtSettings::Protect() {
    QFile file(m_fileName);
    if (!file.exists() && !file.open(QIODevice::WriteOnly, QFile::ReadOwner | QFile::WriteOwner))
        return;
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
}

// What was readable is written to a fresh file; the reader's complaint about the old one would stand in the
// way of every later save.
void QtSettings::KeepDamagedFile() {
    const QString kept = m_fileName + u".damaged"_s;
    QHash<QString, QVariant> values;
    for (const QString& key : m_file->allKeys())
        values.insert(key, m_file->value(key));
    m_file.reset();
    QFile::remove(kept);
    const bool isKept = QFile::rename(m_fileName, kept);
    Protect();
    m_file = std::make_unique<QSettings>(m_fileName, QSettings::IniFormat);
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        m_file->setValue(value.key(), value.value());
    Sync();
    m_problem =
        isKept ? u"The settings file was damaged. What could be read of it is in use; the file as it was is "
                 "kept as %1."_s.arg(kept)
               : u"The settings file %1 is damaged. What could be read of it is in use."_s.arg(m_fileName);
}

QString QtSettings::GetSetting(const QString& section, const QString& key, const QString& fallback) const {
    const QString path = PathOf(section, key);
    return m_file->contains(path) ? TextOf(m_file->value(path)) : fallback;
}

void QtSettings::SaveSetting(const QString& section, const QString& key, const QString& value) {
    m_file->setValue(PathOf(section, key), value);
}

bool QtSettings::HasSection(const QString& section) const {
    m_file->beginGroup(GroupOf(section));
    const bool hasSection = !m_file->childKeys().isEmpty() || !m_file->childGroups().isEmpty();
    m_file->endGroup();
    return hasSection;
}

QStringList QtSettings::Sections() const {
    QStringList sections;
    for (const QString& path : m_file->allKeys()) {
        QStringList names = path.split(u'/');
        names.removeLast();
        for (QString& name : names)
            name = Unescaped(name);
        sections += names.join(u'\\');
    }
    sections.removeDuplicates();
    return sections;
}

QStringList QtSettings::Keys(const QString& section) const {
    m_file->beginGroup(GroupOf(section));
    QStringList keys = m_file->childKeys();
    m_file->endGroup();
    for (QString& key : keys)
        key = Unescaped(key);
    return keys;
}

void QtSettings::DeleteSetting(const QString& section) {
    m_file->remove(GroupOf(section));
}

void QtSettings::Sync() {
    m_file->sync();
    Protect();
    MakeDurable(QFileInfo(m_fileName).path());
    if (m_file->status() == QSettings::NoError || m_isFailureTold)
        return;
    m_isFailureTold = true;
    m_problem = u"The settings could not be saved to %1."_s.arg(m_fileName);
}

} // namespace qlm
