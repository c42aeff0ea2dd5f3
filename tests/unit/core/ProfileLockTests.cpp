// SPDX-License-Identifier: MIT
#include "core/ProfileLock.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <optional>
#include <sys/wait.h>
#include <unistd.h>

using namespace qlm;
using namespace Qt::Literals::StringLiterals;

namespace {

class ProfileLockTest : public testing::Test {
protected:
    QTemporaryDir m_parent;
    QString m_folder = m_parent.filePath(u"Quillmere"_s);
};

} // namespace

TEST_F(ProfileLockTest, ASecondProgramOnOneOfTheFoldersIsRefusedAndHoldsNone) {
    const QString other = m_parent.filePath(u"other"_s);
    const QString third = m_parent.filePath(u"third"_s);
    std::optional<ProfileLock> first(std::in_place);
    EXPECT_EQ(first->Take({m_folder, other}), QString());
    ProfileLock second;
    EXPECT_EQ(second.Take({third, other}), other);
    ProfileLock onThird;
    EXPECT_EQ(onThird.Take({third}), QString());
    first.reset();
    EXPECT_EQ(second.Take({m_folder, other}), QString());
}

// No lock is left behind by a process that had no time to take it away.
TEST_F(ProfileLockTest, AKilledProgramLeavesNoLock) {
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        ProfileLock lock;
        const char word = lock.Take({m_folder}).isEmpty() ? 'y' : 'n';
        while (::write(ready[1], &word, 1) == 1)
            ::pause();
        ::_exit(1);
    }
    char word = 0;
    ASSERT_EQ(::read(ready[0], &word, 1), 1);
    EXPECT_EQ(word, 'y');
    ProfileLock lock;
    EXPECT_EQ(lock.Take({m_folder}), m_folder);
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    EXPECT_EQ(lock.Take({m_folder}), QString());
    ::close(ready[0]);
    ::close(ready[1]);
}

TEST_F(ProfileLockTest, WhatIsLeftOfAnEarlierFileIsNoLock) {
    QDir().mkpath(m_folder);
    QFile left(m_folder + u"/quillmere.lock"_s);
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    left.write("4711\nanother machine\n");
    left.close();
    ProfileLock lock;
    EXPECT_EQ(lock.Take({m_folder}), QString());
}

TEST_F(ProfileLockTest, TheSameFolderByTwoNamesIsNoSecondProgram) {
    QDir().mkpath(m_folder);
    const QString link = m_parent.filePath(u"link"_s);
    ASSERT_TRUE(QFile::link(m_folder, link));
    ProfileLock lock;
    EXPECT_EQ(lock.Take({m_folder, link, m_folder}), QString());
    ProfileLock second;
    EXPECT_EQ(second.Take({link}), link);
}

TEST_F(ProfileLockTest, AFolderThatCannotBeMadeStopsNobody) {
    QFile blocker(m_folder);
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    ProfileLock first;
    ProfileLock second;
    EXPECT_EQ(first.Take({m_folder}), QString());
    EXPECT_EQ(second.Take({m_folder}), QString());
    EXPECT_EQ(second.Take({u"/proc"_s}), QString());
}
