// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace qlm {

class SettingsStore;

// The per-user registry as the program sees it: values below the path of a key, paths joined by backslash.
// The settings of the program are the branch AppBranch of the current user; everything else (the sound of the
// desktop's browser, its options) stands in the same store under its own path. Values are texts, numbers in
// decimal.
class modRegistry {
public:
    enum class Root { CurrentUser, LocalMachine };
    static const QString AppBranch;

    explicit modRegistry(SettingsStore& store) : m_store(store) {}

    QString ReadString(Root root, const QString& path, const QString& name, const QString& fallback) const;
    // The fallback also for a value that is no whole number of 32 bits.
    qint32 ReadNumber(Root root, const QString& path, const QString& name, qint32 fallback) const;
    void WriteString(Root root, const QString& path, const QString& name, const QString& value);
    void WriteNumber(Root root, const QString& path, const QString& name, qint32 value);
    // Names of the values of the key itself, in no promised order.
    QStringList EnumerateValues(Root root, const QString& path) const;
    // Deletes the key with all its sub-keys. A missing key is no error.
    void DeleteKey(Root root, const QString& path);

private:
    SettingsStore& m_store;
};

} // namespace qlm
