// SPDX-License-Identifier: MIT
#include "core/FileSystem.h"

#include "platform/Platform.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

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

TEST_F(FileSystemTest, AFullDiskIsAnErrorAndLeavesTheOldFileAlone) {
    if (!QFileInfo::exists(u"/dev/full"_s))
        GTEST_SKIP() << "no /dev/full here";
    EXPECT_THROW(m_files.AppendLine(u"/dev/full"_s, u"1001"_s), FileError);
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
