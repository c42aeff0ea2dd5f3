// SPDX-License-Identifier: MIT
#include "core/FileSystem.h"
#include "core/LineSearch.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class LineSearchTest : public testing::Test {
protected:
    bool Holds(const QByteArray& text, const QByteArray& wanted) {
        FileSystem().WriteBytes(m_path, text);
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

TEST_F(LineSearchTest, AMissingFileIsAnError) {
    EXPECT_THROW(FileHoldsLine(m_folder.filePath(u"none.txt"_s), "2"), FileError);
}

} // namespace
} // namespace qlm
