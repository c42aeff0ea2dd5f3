// SPDX-License-Identifier: MIT
#include "content/ListFile.h"

#include "core/FileSystem.h"
#include "platform/Platform.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}

namespace qlm {
namespace {

struct PowerCut {};

// Lets so many bytes reach the disk, and nothing after them.
class ByteGate final : public WriteGate {
public:
    explicit ByteGate(qint64 bytes) : m_left(bytes) {}

    qint64 Allow(qint64 bytes) override {
        const qint64 allowed = std::min(bytes, m_left);
        m_left -= allowed;
        written += allowed;
        return allowed;
    }
    [[noreturn]] void Cut() override { throw PowerCut(); }
    bool AllowSync(const QString&) override { return true; }
    bool AllowReplace(const QString&) override { return true; }
    bool IsReadOnly(const QString&) const override { return false; }

    qint64 written = 0;

private:
    qint64 m_left;
};

class ListFileTest : public testing::Test {
protected:
    QByteArray OnDisk() const {
        QFile file(folder.filePath(u"List.txt"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }
    void Write(const QByteArray& bytes) const {
        QFile file(folder.filePath(u"List.txt"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    ListFile File(FileSystem& files) const { return {files, folder.path(), u"List.txt"_s}; }

    QTemporaryDir folder;
};

} // namespace

TEST_F(ListFileTest, ARewriteThatIsCutOffAtAnyByteLeavesTheOldListOrTheNewOne) {
    const QByteArray before = "one\r\ntwo\r\n";
    const QByteArray after = "two\r\none\r\nthree\r\n";
    ByteGate whole(1000);
    FileSystem uncut(&whole);
    File(uncut).Rewrite({u"two"_s, u"one"_s, u"three"_s});
    // The list and its work copy.
    EXPECT_EQ(whole.written, 2 * after.size());
    int old = 0, fresh = 0;
    for (qint64 bytes = 0; bytes <= whole.written; ++bytes) {
        Write(before);
        ByteGate gate(bytes);
        FileSystem files(&gate);
        try {
            File(files).Rewrite({u"two"_s, u"one"_s, u"three"_s});
        } catch (const PowerCut&) {
        }
        old += OnDisk() == before;
        fresh += OnDisk() == after;
    }
    EXPECT_EQ(fresh, 1);
    EXPECT_EQ(old, whole.written);
}

TEST_F(ListFileTest, ALineThatIsAppendedAfterATornOneStandsOnItsOwn) {
    Write("one\r\ntor");
    FileSystem files;
    File(files).Append(u"two"_s);
    EXPECT_EQ(File(files).Lines(), (QStringList{u"one"_s, u"tor"_s, u"two"_s}));
}

TEST_F(ListFileTest, OtherLineEndsAndAMarkAtTheBeginningAreRead) {
    Write("\xEF\xBB\xBFone\ntwo\rthree\r\nfour");
    FileSystem files;
    EXPECT_EQ(File(files).Lines(), (QStringList{u"one"_s, u"two"_s, u"three"_s, u"four"_s}));
}

TEST_F(ListFileTest, AMissingListIsCreatedAndTheWorkCopyStaysBehind) {
    FileSystem files;
    EXPECT_EQ(File(files).Lines(), QStringList());
    EXPECT_EQ(OnDisk(), QByteArray());
    File(files).Rewrite({u"one"_s});
    EXPECT_EQ(files.ReadLines(folder.filePath(u"Temp_List.txt"_s)), QStringList{u"one"_s});
    File(files).Clear();
    EXPECT_EQ(OnDisk(), QByteArray());
}

} // namespace qlm
