// SPDX-License-Identifier: MIT
#include "core/FileSystem.h"
#include "platform/Platform.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace qlm;
using namespace Qt::Literals::StringLiterals;

namespace {

struct PowerCut {};

// Lets so many bytes through, then the lights go out.
class CuttingGate : public WriteGate {
public:
    explicit CuttingGate(qint64 bytes) : m_left(bytes) {}
    qint64 Allow(qint64 bytes) override {
        const qint64 allowed = std::min(bytes, m_left);
        m_left -= allowed;
        return allowed;
    }
    [[noreturn]] void Cut() override { throw PowerCut(); }
    bool IsReadOnly(const QString&) const override { return false; }

private:
    qint64 m_left;
};

class FileSystemTest : public testing::Test {
protected:
    QString Path(const QString& name) const { return m_folder.filePath(name); }
    static QByteArray Bytes(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QTemporaryDir m_folder;
    FileSystem m_files;
};

} // namespace

TEST_F(FileSystemTest, LinesAreWrittenWithCrLfInTheAnsiCodePage) {
    m_files.WriteLines(Path(u"a.txt"_s), {u"1001"_s, u"é"_s});
    EXPECT_EQ(Bytes(Path(u"a.txt"_s)), QByteArray("1001\r\n\xE9\r\n"));
}

TEST_F(FileSystemTest, BothLineEndsAndAMissingLastOneAreRead) {
    m_files.WriteBytes(Path(u"a.txt"_s), "1\r\n2\n\n3");
    EXPECT_EQ(m_files.ReadLines(Path(u"a.txt"_s)), (QStringList{u"1"_s, u"2"_s, u""_s, u"3"_s}));
}

TEST_F(FileSystemTest, LinesThatSpanReadChunksComeWhole) {
    QByteArray content;
    for (int i = 0; i < 100000; ++i)
        content += QByteArray::number(i) + "\r\n";
    m_files.WriteBytes(Path(u"a.txt"_s), content);
    int next = 0;
    m_files.ForEachLine(Path(u"a.txt"_s), [&next](QByteArrayView line) {
        EXPECT_EQ(line, QByteArray::number(next));
        ++next;
        return true;
    });
    EXPECT_EQ(next, 100000);
}

TEST_F(FileSystemTest, AFileThatIsTooBigForTheMemoryIsAnError) {
    const QString path = Path(u"big.txt"_s);
    constexpr qint64 line = 1024 * 1024, lines = 256;
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    for (qint64 i = 1; i <= lines; ++i)
        ASSERT_TRUE(file.seek(i * line - 1) && file.write("\n") == 1);
    file.close();
    EXPECT_EQ(m_files.ReadBytes(path).size(), lines * line);
    ASSERT_TRUE(file.open(QIODevice::Append) && file.write(QByteArray(lines + 1, 'x')) == lines + 1);
    file.close();
    EXPECT_THROW(m_files.ReadBytes(path), FileError);
    EXPECT_THROW(m_files.ReadLines(path), FileError);
}

TEST_F(FileSystemTest, WhatCannotBeDeletedIsAnError) {
    EXPECT_THROW(m_files.DeleteFile(u"/proc/version"_s), FileError); // which nobody can
    EXPECT_NO_THROW(m_files.DeleteFile(Path(u"nothing"_s)));
}

TEST_F(FileSystemTest, AVisitorThatSaysNoEndsTheReading) {
    m_files.WriteLines(Path(u"a.txt"_s), {u"1"_s, u"2"_s, u"3"_s});
    int seen = 0;
    m_files.ForEachLine(Path(u"a.txt"_s), [&seen](QByteArrayView) { return ++seen < 2; });
    EXPECT_EQ(seen, 2);
}

TEST_F(FileSystemTest, AnAppendBehindATornLineClosesItFirst) {
    m_files.WriteBytes(Path(u"log.txt"_s), "1001\r\n10");
    m_files.AppendLine(Path(u"log.txt"_s), u"1003"_s);
    EXPECT_EQ(Bytes(Path(u"log.txt"_s)), QByteArray("1001\r\n10\r\n1003\r\n"));
}

TEST_F(FileSystemTest, ARewriteCutAtAnyByteLeavesTheOldOrTheNewFileWhole) {
    const QByteArray before = "old one\r\nold two\r\n";
    const QByteArray after = "new one\r\nnew two\r\nnew three\r\n";
    for (qint64 bytes = 0; bytes <= after.size(); ++bytes) {
        m_files.WriteBytes(Path(u"a.txt"_s), before);
        CuttingGate gate(bytes);
        FileSystem cut(&gate);
        bool finished = true;
        try {
            cut.WriteBytes(Path(u"a.txt"_s), after);
        } catch (const PowerCut&) {
            finished = false;
        }
        EXPECT_EQ(Bytes(Path(u"a.txt"_s)), finished ? after : before) << bytes;
        EXPECT_EQ(finished, bytes == after.size());
    }
}

// A limit stands for the full disk.
TEST_F(FileSystemTest, AFullDiskIsAnErrorAndLeavesTheOldFileAlone) {
    const QString path = Path(u"a.txt"_s);
    m_files.WriteBytes(path, "1001\r\n");
    const auto ignored = std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit limit{8, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_THROW(m_files.AppendLine(path, u"1002"_s), FileError);
    EXPECT_THROW(m_files.WriteBytes(path, "1003\r\n1004\r\n"), FileError);
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, ignored);
    EXPECT_TRUE(Bytes(path).startsWith("1001\r\n"));
    EXPECT_FALSE(QFileInfo::exists(path + u".new"_s));
}

TEST_F(FileSystemTest, BareReturnsEndLinesAlsoWhereAChunkEnds) {
    m_files.WriteBytes(Path(u"a.txt"_s), "1\r2\r\n3\r\r4");
    EXPECT_EQ(m_files.ReadLines(Path(u"a.txt"_s)), (QStringList{u"1"_s, u"2"_s, u"3"_s, u""_s, u"4"_s}));
    constexpr int chunk = 1 << 18;
    for (const QByteArray& end : {QByteArray("\r"), QByteArray("\r\n"), QByteArray("\n")})
        for (int before = chunk - 3; before <= chunk + 1; ++before) {
            m_files.WriteBytes(Path(u"a.txt"_s), QByteArray(before, 'x') + end + "2" + end);
            const QStringList lines = m_files.ReadLines(Path(u"a.txt"_s));
            ASSERT_EQ(lines.size(), 2) << before;
            EXPECT_EQ(lines[0].size(), before);
            EXPECT_EQ(lines[1], u"2"_s);
        }
}

TEST_F(FileSystemTest, AMarkForUtf8IsNoPartOfTheFirstLineAndUtf16AnError) {
    m_files.WriteBytes(Path(u"a.txt"_s), "\xEF\xBB\xBF"
                                         "1001\r\n");
    EXPECT_EQ(m_files.ReadLines(Path(u"a.txt"_s)), QStringList{u"1001"_s});
    m_files.WriteBytes(Path(u"a.txt"_s), QByteArray("\xFF\xFE"
                                                    "1\0\r\0\n\0",
                                                    8));
    EXPECT_THROW(m_files.ReadLines(Path(u"a.txt"_s)), FileError);
}

TEST_F(FileSystemTest, ALineOfMoreThanAMegabyteIsPassedOverButNeverLostByRewriting) {
    const QByteArray line(3 << 20, '7');
    m_files.WriteBytes(Path(u"a.txt"_s), "1\r\n" + line + "\r\n2\r\n" + line);
    QStringList seen;
    m_files.ForEachLine(Path(u"a.txt"_s), [&seen](QByteArrayView text) {
        seen.append(QString::fromLatin1(text));
        return true;
    });
    EXPECT_EQ(seen, (QStringList{u"1"_s, u"2"_s}));
    EXPECT_THROW(m_files.ReadLines(Path(u"a.txt"_s)), FileError);
}

TEST_F(FileSystemTest, PipesDevicesAndFoldersAreErrorsAndNotWaits) {
    const QString pipe = Path(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& path : {pipe, u"/dev/zero"_s, m_folder.path()}) {
        EXPECT_THROW(m_files.ReadLines(path), FileError) << path.toStdString();
        EXPECT_THROW(m_files.ReadBytes(path), FileError) << path.toStdString();
        EXPECT_THROW(m_files.EnsureFile(path), FileError) << path.toStdString();
        EXPECT_THROW(m_files.AppendLine(path, u"1001"_s), FileError) << path.toStdString();
        EXPECT_THROW(m_files.WriteLines(path, {u"1001"_s}), FileError) << path.toStdString();
    }
    EXPECT_TRUE(QFileInfo::exists(pipe));
}

TEST_F(FileSystemTest, PrivateFilesAreTheOwnersAlone) {
    m_files.WriteLines(Path(u"accounts.txt"_s), {u"x"_s}, Readers::OwnerAlone);
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    EXPECT_EQ(QFile::permissions(Path(u"accounts.txt"_s)) & others, QFile::Permissions());
    m_files.EnsureFile(Path(u"fresh.txt"_s), Readers::OwnerAlone);
    EXPECT_EQ(QFile::permissions(Path(u"fresh.txt"_s)) & others, QFile::Permissions());
}

TEST_F(FileSystemTest, PathsJoinWithOneSeparatorWhicheverSideBringsIt) {
    EXPECT_EQ(FileSystem::Join(u"/a/b"_s, u"c"_s), u"/a/b/c"_s);
    EXPECT_EQ(FileSystem::Join(u"/a/b/"_s, u"\\ACCOUNTS\\x@y"_s), u"/a/b/ACCOUNTS/x@y"_s);
    EXPECT_EQ(FileSystem::Join(u"/a/b"_s, u""_s), u"/a/b"_s);
}

TEST_F(FileSystemTest, AMissingFileIsAnErrorForReaders) {
    EXPECT_THROW(m_files.ReadLines(Path(u"none.txt"_s)), FileError);
}

// A test that was cut off may have left its file, or somebody else something of that name: it goes, and
// nothing is written through it.
TEST_F(FileSystemTest, WhatStandsInTheWayOfTheRightsTestIsTakenAwayAndNotWrittenTo) {
    m_files.WriteLines(Path(u"precious.txt"_s), {u"1001"_s});
    ASSERT_TRUE(QFile::link(Path(u"precious.txt"_s), Path(u"test.txt"_s)));
    EXPECT_TRUE(m_files.IsWritable(m_folder.path(), u"test.txt"_s));
    EXPECT_FALSE(QFileInfo(Path(u"test.txt"_s)).isSymLink());
    EXPECT_FALSE(QFile::exists(Path(u"test.txt"_s)));
    EXPECT_EQ(Bytes(Path(u"precious.txt"_s)), "1001\r\n");
}
