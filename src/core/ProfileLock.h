// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace qlm {

// One folder, one program: two at work on the same lists and logs would ask everybody twice. The lock is held
// on an open file, "quillmere.lock", and ends with the process however it ends; the file itself stays and
// means nothing. Released with this object.
//
// A folder that cannot be written needs no lock: a program there keeps nothing in it. Where the file system
// knows no locks, the program goes on without.
class ProfileLock {
public:
    ProfileLock() = default;
    ~ProfileLock();
    ProfileLock(const ProfileLock&) = delete;
    ProfileLock& operator=(const ProfileLock&) = delete;

    // Locks each folder, making it when it is missing. Answers the first that another program holds, and
    // then holds none; empty text when all is well.
    QString Take(const QStringList& folders);

private:
    void Release();

    std::vector<int> m_held;
};

// What the user is told who starts a second program on the folder.
QString SecondStartMessage(const QString& folder);

} // namespace qlm
