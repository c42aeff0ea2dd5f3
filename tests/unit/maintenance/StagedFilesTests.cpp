// SPDX-License-Identifier: MIT
#include "maintenance/StagedFiles.h"

#include "platform/Platform.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

// Ends the process at the Nth thing that is done to the disk, a write in its middle.
class DeadlyGate : public WriteGate {
public:
    explicit DeadlyGate(int last) : m_left(last) {}
    qint64 Allow(qint64 bytes) override {
        const bool isLast = IsLast();
        if (isLast && bytes == 0)
            _exit(1); // half of nothing is all of it
        return isLast ? bytes / 2 : bytes;
    }
    [[noreturn]] void Cut() override { _exit(1); }
    bool AllowSync(const QString&) override { return LiveOn(); }
    bool AllowReplace(const QString&) override { return LiveOn(); }
    bool IsReadOnly(const QString&) const override {
        const_cast<DeadlyGate*>(this)->LiveOn(); // asked before every deletion
        return false;
    }

private:
    bool IsLast() { return --m_left == 0; }
    bool LiveOn() {
        if (IsLast())
            _exit(1);
        return true;
    }
    int m_left;
};

class StagedFilesTest : public testing::Test {
protected:
    void SetUp() override {
        files.WriteBytes(In(u"a.txt"_s), "old a");
        files.CreateFolder(In(u"sub"_s));
        files.WriteBytes(In(u"sub/b.txt"_s), "old b");
    }
    QString In(const QString& name) const { return folder.filePath(name); }
    void Replace(FileSystem& with) const {
        StagedFiles staged(with, folder.path());
        staged.Add(u"a.txt"_s, "new a", Readers::OwnerAlone);
        staged.Add(u"sub/b.txt"_s, "new b", Readers::Everyone);
        staged.Add(u"sub/deep/c.txt"_s, "new c", Readers::Everyone);
        staged.Add(u"empty/"_s, {}, Readers::Everyone);
        staged.Seal();
        staged.Finish();
    }
    QByteArray Contents() {
        QByteArray all = files.ReadBytes(In(u"a.txt"_s)) + '|' + files.ReadBytes(In(u"sub/b.txt"_s)) + '|';
        all += files.FileExists(In(u"sub/deep/c.txt"_s)) ? files.ReadBytes(In(u"sub/deep/c.txt"_s)) : "none";
        return all + (files.FolderExists(In(u"empty"_s)) ? "|empty" : "|none");
    }

    QTemporaryDir folder;
    FileSystem files;
};

} // namespace

TEST_F(StagedFilesTest, TakeTheirPlacesTogether) {
    Replace(files);
    EXPECT_EQ(Contents(), "new a|new b|new c|empty");
    struct stat status {};
    ASSERT_EQ(stat(In(u"a.txt"_s).toUtf8(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              (QStringList{u"a.txt"_s, u"empty"_s, u"sub"_s}));
}

TEST_F(StagedFilesTest, WithoutTheirSealTheyGo) {
    StagedFiles staged(files, folder.path());
    staged.Add(u"a.txt"_s, "new a", Readers::Everyone);
    staged.Finish();
    EXPECT_EQ(Contents(), "old a|old b|none|none");
    EXPECT_FALSE(files.FolderExists(In(u"Restoring"_s)));
}

TEST_F(StagedFilesTest, WhatCouldNotBeMovedIsMovedByTheNextTurn) {
    StagedFiles staged(files, folder.path());
    staged.Add(u"a.txt"_s, "new a", Readers::Everyone);
    staged.Add(u"sub/b.txt"_s, "new b", Readers::Everyone);
    staged.Seal();
    files.DeleteFile(In(u"sub/b.txt"_s));
    files.CreateFolder(In(u"sub/b.txt"_s));
    EXPECT_THROW(staged.Finish(), FileError);
    files.DeleteFolder(In(u"sub/b.txt"_s));
    StagedFiles(files, folder.path()).Finish();
    EXPECT_EQ(Contents(), "new a|new b|none|none");
}

// Whatever the moment, the next start finds all of the old or all of the new.
TEST_F(StagedFilesTest, KilledAnywhereTheyAreAllOldOrAllNew) {
    int dead = 0;
    int newOnes = 0;
    for (bool isAlive = false; !isAlive;) {
        SetUp();
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            DeadlyGate gate(dead + 1);
            FileSystem mortal(&gate);
            Replace(mortal);
            _exit(0);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFEXITED(status));
        isAlive = WEXITSTATUS(status) == 0;
        StagedFiles(files, folder.path()).Finish();
        const QByteArray contents = Contents();
        EXPECT_TRUE(contents == "old a|old b|none|none" || contents == "new a|new b|new c|empty")
            << dead << ": " << contents.constData();
        EXPECT_FALSE(files.FolderExists(In(u"Restoring"_s)));
        newOnes += contents.startsWith("new") ? 1 : 0;
        dead += isAlive ? 0 : 1;
        files.DeleteFolder(In(u"sub"_s));
        files.DeleteFolder(In(u"empty"_s));
    }
    EXPECT_GT(dead, 30);
    EXPECT_GT(newOnes, 10);
}

} // namespace qlm
