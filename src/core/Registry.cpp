// SPDX-License-Identifier: MIT
#include "core/Registry.h"

#include "core/Text.h"
#include "platform/Services.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

const QString modRegistry::AppBranch = u"Software\\VB and VBA Program Settings\\Quillmere"_s;

namespace {

const QString CurrentUser = u"HKEY_CURRENT_USER\\"_s;
const QString LocalMachine = u"HKEY_LOCAL_MACHINE\\"_s;

QString KeyPath(modRegistry::Root root, const QString& path) {
    return (root == modRegistry::Root::LocalMachine ? LocalMachine : CurrentUser) + path;
}

const QString& Branch() {
    static const QString branch = CurrentUser + modRegistry::AppBranch + u'\\';
    return branch;
}

// Where the store keeps a key: the program's own without their branch, the current user's others without the
// root.
QString SectionOf(const QString& keyPath) {
    for (const QString& prefix : {Branch(), CurrentUser})
        if (keyPath.startsWith(prefix))
            return keyPath.mid(prefix.size());
    return keyPath;
}

QString KeyPathOf(const QString& section) {
    if (section.startsWith(LocalMachine))
        return section;
    // The keys of the current user that are not the program's.
    for (const QString& foreign : {u"AppEvents\\"_s, u"Software\\"_s})
        if (section.startsWith(foreign))
            return CurrentUser + section;
    return Branch() + section;
}

} // namespace

QString modRegistry::ReadString(Root root, const QString& path, const QString& name,
                                const QString& fallback) const {
    return m_store.GetSetting(SectionOf(KeyPath(root, path)), name, fallback);
}

qint32 modRegistry::ReadNumber(Root root, const QString& path, const QString& name, qint32 fallback) const {
    return ToLong(ReadString(root, path, name, {})).value_or(fallback);
}

void modRegistry::WriteString(Root root, const QString& path, const QString& name, const QString& value) {
    m_store.SaveSetting(SectionOf(KeyPath(root, path)), name, value);
}

void modRegistry::WriteNumber(Root root, const QString& path, const QString& name, qint32 value) {
    WriteString(root, path, name, QString::number(value));
}

QStringList modRegistry::EnumerateValues(Root root, const QString& path) const {
    return m_store.Keys(SectionOf(KeyPath(root, path)));
}

void modRegistry::DeleteKey(Root root, const QString& path) {
    const QString key = KeyPath(root, path);
    for (const QString& section : m_store.Sections())
        if (const QString at = KeyPathOf(section); at == key || at.startsWith(key + u'\\'))
            m_store.DeleteSetting(section);
}

} // namespace qlm
