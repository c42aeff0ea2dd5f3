// SPDX-License-Identifier: MIT
#include "core/FileSystem.h"
#include "core/LineSearch.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class LineSearchTest : public testing::Test {
protected:
    bool Holds(const QByteArray& text, const QByteArray& wanted) {
        QFile::remove(m_path); // a file that is cut to nothing is flushed
        QFile file(m_path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
        file.close();
        return FileHoldsLine(m_path, wanted);
    }
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(u"log.txt"_s);
};

TEST_F(LineSearchTest, ALineMatchesWholeWithBlanksAroundIt) {
    EXPECT_TRUE(Holds("1\r\n2\r\n3\r\n", "2"));
    EXPECT_TRUE(Holds("2\n", "2"));
    EXPECT_TRUE(Holds("1\n \t2\t \r\n", "2"));
    EXPECT_TRUE(Holds("1\r\n2", "2"));
    EXPECT_TRUE(Holds("2 \r", "2"));
    EXPECT_FALSE(Holds("12\r\n23\r\n2 2\r\n2x\r\nx 2\r\n", "2"));
    EXPECT_FALSE(Holds("", "2"));
}

TEST_F(LineSearchTest, AnEarlierPartOfALineHidesNoLaterLine) {
    EXPECT_TRUE(Holds("1212\r\n12 12\r\n12\r\n", "12"));
    EXPECT_TRUE(Holds("111\r\n11\r\n", "11"));
}

TEST_F(LineSearchTest, NothingIsInNoFile) {
    EXPECT_FALSE(Holds("\r\n\r\n", ""));
}

// Sixteen places are looked at together: a line may stand at any of them, and so near the end that none fit.
TEST_F(LineSearchTest, ALineIsFoundWhereverItStandsAmongOthersLikeIt) {
    for (const QByteArray& wanted : {QByteArray("7"), QByteArray("71"), QByteArray("104924"),
                                     QByteArray("1049241049"), QByteArray("12345678901234567890")}) {
        QByteArray like = wanted; // the same but for one character, so that no other tells
        like[like.size() / 4] = 'x';
        for (int before = 0; before <= 17; ++before)
            for (const int behind : {0, 24}) {
                const QByteArray front = QByteArray(before, '3') + "\n" + like + "\n";
                const QByteArray back = "\n" + like + QByteArray(behind, '3');
                EXPECT_TRUE(Holds(front + wanted + back, wanted)) << before << ' ' << behind;
                EXPECT_FALSE(Holds(front + '3' + wanted + back, wanted)) << before << ' ' << behind;
                EXPECT_FALSE(Holds(front + back, wanted)) << before << ' ' << behind;
            }
    }
}

TEST_F(LineSearchTest, ALineThatAChunkCutsInTwoIsFound) {
    constexpr int chunk = 1 << 18;
    for (int before = chunk - 6; before <= chunk + 2; ++before) {
        QByteArray text(before - 1, 'x');
        text += "\n12345\r\n" + QByteArray(chunk, 'y') + "\n";
        EXPECT_TRUE(Holds(text, "12345")) << before;
        EXPECT_FALSE(Holds(text, "1234")) << before;
    }
}

TEST_F(LineSearchTest, ALineLongerThanAChunkIsPassedOver) {
    EXPECT_TRUE(Holds(QByteArray(700'000, 'x') + "2\r\n2\r\n", "2"));
    EXPECT_FALSE(Holds(QByteArray(700'000, 'x') + "2\r\n", "2"));
}

TEST_F(LineSearchTest, ABareReturnEndsALine) {
    EXPECT_TRUE(Holds("1\r2\r3\r", "1"));
    EXPECT_TRUE(Holds("1\r2\r3\r", "2"));
    EXPECT_TRUE(Holds("1\r2\r3", "3"));
    EXPECT_FALSE(Holds("1\r23\r4", "2"));
    EXPECT_TRUE(
        Holds(QByteArray("1001\r").repeated(60'000) + "2\r" + QByteArray("1001\r").repeated(60'000), "2"));
}

TEST_F(LineSearchTest, AMarkForUtf8HidesNoFirstLine) {
    EXPECT_TRUE(Holds("\xEF\xBB\xBF"
                      "1001\r\n1002\r\n",
                      "1001"));
    EXPECT_FALSE(Holds("1003\r\n\xEF\xBB\xBF"
                       "1001\r\n",
                       "1001"));
}

TEST_F(LineSearchTest, TextInUtf16IsAnErrorAndNotAnEmptyLog) {
    EXPECT_THROW(Holds(QByteArray("\xFF\xFE"
                                  "1\0"
                                  "2\0\r\0\n\0",
                                  10),
                       "12"),
                 FileError);
    EXPECT_THROW(Holds(QByteArray("\xFE\xFF\0"
                                  "1\0"
                                  "2\0\r\0\n",
                                  10),
                       "12"),
                 FileError);
    EXPECT_THROW(Holds(QByteArray("1\0"
                                  "2\0\r\0\n\0",
                                  8),
                       "12"),
                 FileError);
    EXPECT_THROW(Holds(QByteArray("\0"
                                  "1\0"
                                  "2\0\r\0\n",
                                  8),
                       "12"),
                 FileError);
}

// What is kept of a line is bounded, so that a log of one line costs no more than any other.
TEST_F(LineSearchTest, ALineOfTwentyMegabytesIsPassedOverQuicklyAndHidesNoOther) {
    const QByteArray line = QByteArray(20 << 20, '7');
    EXPECT_TRUE(Holds("1001\r\n" + line + "\r\n1002\r\n", "1001"));
    EXPECT_TRUE(Holds(line + "\r\n1002\r\n", "1002"));
    EXPECT_TRUE(Holds(line + "\r1002", "1002"));
    EXPECT_FALSE(Holds(line + "x\r\n", "x"));
    EXPECT_FALSE(Holds(QByteArray(4 << 20, ' ') + "x 7\r\n", "7"));
}

TEST_F(LineSearchTest, APipeIsAnErrorAndNotAWait) {
    ASSERT_EQ(mkfifo(QFile::encodeName(m_path).constData(), 0600), 0);
    EXPECT_THROW(FileHoldsLine(m_path, "2"), FileError);
    EXPECT_THROW(FileHoldsLine(m_folder.path(), "2"), FileError);
    EXPECT_THROW(FileHoldsLine(u"/dev/zero"_s, "2"), FileError);
}

TEST_F(LineSearchTest, AMissingFileIsAnError) {
    EXPECT_THROW(FileHoldsLine(m_folder.filePath(u"none.txt"_s), "2"), FileError);
}

} // namespace
} // namespace qlm
