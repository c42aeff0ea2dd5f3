// SPDX-License-Identifier: MIT
#include "platform/qt/QtSettings.h"
#include "PrintText.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

// Of this test's thread alone: the engine has files of its own.
thread_local bool hears = false;
QStringList synced; // names without their path

int Sync(long call, int file) {
    if (hears)
        synced += QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/fd/%1").arg(file))).fileName();
    return static_cast<int>(::syscall(call, file));
}

} // namespace

// In the place of the system's, which they call.
extern "C" int fsync(int file) {
    return Sync(SYS_fsync, file);
}
extern "C" int fdatasync(int file) {
    return Sync(SYS_fdatasync, file);
}

namespace qlm {

using namespace Qt::Literals::StringLiterals;

class QtSettingsTest : public ::testing::Test {
protected:
    void Write(const QByteArray& bytes) {
        QFile file(fileName);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir folder;
    QString path = folder.path() + u"/Quillmere"_s;
    QString fileName = path + u"/quillmere.ini"_s;
};

TEST_F(QtSettingsTest, EveryTextComesBackAfterAnotherStart) {
    const QStringList texts{u""_s,
                            u"plain"_s,
                            u"with, comma; and = \"quotes\""_s,
                            u"@Variant(x)"_s,
                            u"100% / \\ back"_s,
                            u"Zo\u00eb \U0001F600"_s,
                            u"two\r\nlines"_s,
                            u"  blanks  "_s};
    {
        QtSettings settings(path);
        for (qsizetype i = 0; i < texts.size(); ++i)
            settings.SaveSetting(u"Field Entries\\a.b+c@example.com"_s, u"optSendSingle(%1)"_s.arg(i),
                                 texts[i]);
        settings.SaveSetting(u"General"_s, u"Width"_s, u"800"_s);
        settings.Sync();
        EXPECT_EQ(settings.TakeProblem(), QString());
    }
    const QtSettings settings(path);
    for (qsizetype i = 0; i < texts.size(); ++i)
        EXPECT_EQ(
            settings.GetSetting(u"Field Entries\\a.b+c@example.com"_s, u"optSendSingle(%1)"_s.arg(i), u"x"_s),
            texts[i]);
    EXPECT_EQ(settings.GetSetting(u"General"_s, u"Width"_s, {}), u"800"_s);
}

TEST_F(QtSettingsTest, AMissingKeyGivesTheFallback) {
    QtSettings settings(path);
    EXPECT_EQ(settings.GetSetting(u"General"_s, u"Width"_s, u"1024"_s), u"1024"_s);
    EXPECT_FALSE(settings.HasSection(u"General"_s));
    settings.SaveSetting(u"General"_s, u"Width"_s, QString());
    EXPECT_EQ(settings.GetSetting(u"General"_s, u"Width"_s, u"1024"_s), QString());
    EXPECT_TRUE(settings.HasSection(u"General"_s));
}

TEST_F(QtSettingsTest, ADeletedSectionTakesAllBelowItAndNothingBesides) {
    QtSettings settings(path);
    settings.SaveSetting(u"Counters"_s, u"k"_s, u"1"_s);
    settings.SaveSetting(u"Counters\\a@example.com"_s, u"k"_s, u"2"_s);
    settings.SaveSetting(u"Counters2"_s, u"k"_s, u"3"_s);
    settings.DeleteSetting(u"Counters"_s);
    EXPECT_FALSE(settings.HasSection(u"Counters"_s));
    EXPECT_FALSE(settings.HasSection(u"Counters\\a@example.com"_s));
    EXPECT_EQ(settings.GetSetting(u"Counters2"_s, u"k"_s, {}), u"3"_s);
}

TEST_F(QtSettingsTest, SectionsAndKeysComeBackByTheirOwnNames) {
    QtSettings settings(path);
    settings.SaveSetting(u"Counters\\a/b%5C@example.com"_s, u"Daily/Friends"_s, u"2"_s);
    settings.SaveSetting(u"Counters\\a/b%5C@example.com"_s, {}, u"3"_s);
    settings.SaveSetting(u"Counters"_s, u"k"_s, u"1"_s);
    QStringList sections = settings.Sections();
    sections.sort();
    EXPECT_EQ(sections, (QStringList{u"Counters"_s, u"Counters\\a/b%5C@example.com"_s}));
    EXPECT_EQ(settings.Keys(u"Counters"_s), QStringList{u"k"_s});
    QStringList keys = settings.Keys(u"Counters\\a/b%5C@example.com"_s);
    keys.sort();
    EXPECT_EQ(keys, (QStringList{QString(), u"Daily/Friends"_s}));
    EXPECT_EQ(settings.Keys(u"None"_s), QStringList());
}

TEST_F(QtSettingsTest, OnlyTheOwnerReadsTheFile) {
    QtSettings settings(path);
    settings.SaveSetting(u"Field Entries"_s, u"Login - txtPassword"_s, u"secret"_s);
    settings.Sync();
    const QFile::Permissions others =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    EXPECT_FALSE(QFileInfo(fileName).permissions() & others);
    EXPECT_TRUE(QFileInfo(fileName).permissions() & QFile::ReadOwner);
}

TEST_F(QtSettingsTest, ADamagedFileIsKeptAndWhatWasReadableIsUsed) {
    {
        QtSettings settings(path);
        settings.SaveSetting(u"General"_s, u"Width"_s, u"800"_s);
        settings.Sync();
    }
    QFile file(fileName);
    ASSERT_TRUE(file.open(QIODevice::Append));
    const QByteArray garbage("\nthis line is nothing\0\x01\x02 at all\n[broken\n", 45);
    file.write(garbage);
    file.close();

    QtSettings settings(path);
    EXPECT_TRUE(settings.TakeProblem().contains(u"quillmere.ini.damaged"_s));
    EXPECT_EQ(settings.TakeProblem(), QString());
    EXPECT_EQ(settings.GetSetting(u"General"_s, u"Width"_s, {}), u"800"_s);
    QFile kept(fileName + u".damaged"_s);
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_TRUE(kept.readAll().contains("this line is nothing"));

    settings.SaveSetting(u"General"_s, u"Height"_s, u"600"_s);
    settings.Sync();
    QtSettings again(path);
    EXPECT_EQ(again.TakeProblem(), QString());
    EXPECT_EQ(again.GetSetting(u"General"_s, u"Height"_s, {}), u"600"_s);
    EXPECT_EQ(again.GetSetting(u"General"_s, u"Width"_s, {}), u"800"_s);
}

// The reader of such files would wait half a minute for another's lock, and for ever for a folder's.
TEST_F(QtSettingsTest, ALockThatIsLeftFromElsewhereHoldsNothingUp) {
    QElapsedTimer clock;
    clock.start();
    {
        QtSettings settings(path);
        settings.SaveSetting(u"General"_s, u"Width"_s, u"800"_s);
        settings.Sync();
    }
    QFile lock(fileName + u".lock"_s);
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    lock.write("1\nquillmere\nanother-machine\n");
    lock.close();
    {
        QtSettings settings(path);
        settings.SaveSetting(u"General"_s, u"Width"_s, u"900"_s);
        settings.Sync();
        EXPECT_EQ(settings.TakeProblem(), QString());
    }
    ASSERT_TRUE(QDir().mkpath(fileName + u".lock/inside"_s));
    QtSettings settings(path);
    settings.SaveSetting(u"General"_s, u"Height"_s, u"600"_s);
    settings.Sync();
    EXPECT_EQ(settings.TakeProblem(), QString());
    EXPECT_EQ(QtSettings(path).GetSetting(u"General"_s, u"Width"_s, {}), u"900"_s);
    EXPECT_LT(clock.elapsed(), 15'000);
}

TEST_F(QtSettingsTest, SettingsThatAreAPipeAreToldAndTheProgramWorksWithoutThem) {
    ASSERT_TRUE(QDir().mkpath(path));
    ASSERT_EQ(mkfifo(QFile::encodeName(fileName).constData(), 0600), 0);
    QtSettings settings(path);
    EXPECT_TRUE(settings.TakeProblem().contains(u"quillmere.ini"_s));
    settings.SaveSetting(u"General"_s, u"Width"_s, u"800"_s);
    settings.Sync();
    EXPECT_EQ(settings.GetSetting(u"General"_s, u"Width"_s, {}), u"800"_s);
    EXPECT_FALSE(QFileInfo(fileName).isFile());
}

TEST_F(QtSettingsTest, WhatIsSyncedIsOnTheDiskWithItsNameInTheFolder) {
    QtSettings settings(path);
    settings.SaveSetting(u"General"_s, u"Width"_s, u"800"_s);
    hears = true;
    settings.Sync();
    hears = false;
    // The file's contents, which have no name yet or one of their own, and then the folder; the lock is
    // nobody's loss.
    synced.removeAll(u"quillmere.ini.lock"_s);
    ASSERT_EQ(synced.size(), 2) << synced.join(u", "_s).toStdString();
    EXPECT_NE(synced[0], u"Quillmere"_s);
    EXPECT_EQ(synced[1], u"Quillmere"_s);
}

TEST_F(QtSettingsTest, AFolderThatCannotBeMadeIsTold) {
    QFile blocker(path);
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    QtSettings settings(path);
    settings.SaveSetting(u"General"_s, u"Width"_s, u"800"_s);
    settings.Sync();
    EXPECT_FALSE(settings.TakeProblem().isEmpty());
    EXPECT_EQ(settings.GetSetting(u"General"_s, u"Width"_s, {}), u"800"_s);
}

} // namespace qlm
