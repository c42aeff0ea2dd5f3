// SPDX-License-Identifier: MIT
#pragma once

#include "platform/qt/QtPlatform.h"

#include <QTemporaryDir>
#include <memory>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

// The folders of a program that somebody has used before: an account, the terms agreed to, a list of profiles
// that is restored on the next login, and no pause between two requests. Its proxy is a practice site that
// runs already. The folders stay when the test has failed.
class UsedProgram {
public:
    explicit UsedProgram(quint16 proxyPort);
    // Folders that another process has made and will remove.
    explicit UsedProgram(const QString& folder);
    ~UsedProgram();

    QString Folder() const { return m_path; }
    // What the program is started with to go on here.
    QStringList Arguments() const;
    // For a program in this process.
    QtPlatformOptions Options(int clockRate = 1) const;

    QString File(const QString& name) const { return m_path + u"/profile/"_s + name; }
    QString DataFile(const QString& name) const { return File(u"local/Quillmere/"_s + name); }
    QString SettingsFile() const { return DataFile(u"quillmere.ini"_s); }
    void Write(const QString& path, const QByteArray& bytes) const;
    QByteArray Read(const QString& path) const;

    void SaveList(const QStringList& ids) const;
    void Set(const QString& section, const QString& key, const QString& value) const;
    void SetDelay(int seconds) const;
    QByteArray LogBytes() const { return Read(File(u"FriendsLog.txt"_s)); }
    // The whole lines of the log.
    QStringList Log() const;

private:
    std::unique_ptr<QTemporaryDir> m_folder; // none when they are another's
    QString m_path;
};

// So many IDs that the practice site knows.
QStringList SomeTargets(int count, int first = 100101);

} // namespace qlm
