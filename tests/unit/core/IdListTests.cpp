// SPDX-License-Identifier: MIT
#include "core/IdList.h"

#include <gtest/gtest.h>
#include <random>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

const QStringList Odd{u"0"_s,
                      u"7"_s,
                      u"007"_s,
                      u"+5"_s,
                      u"-5"_s,
                      u"4294967294"_s,
                      u"4294967295"_s,
                      u"4294967296"_s,
                      u"999999999999999999"_s,
                      u"1000000000000000000"_s,
                      u"18446744073709551616"_s,
                      u"ann"_s,
                      u"Ann"_s,
                      u"12 34"_s,
                      u"١٢٣"_s,
                      u"ID – ünï 😀"_s,
                      {}};

TEST(IdList, GivesEveryTextBackAsItWasPutIn) {
    const IdList list(Odd);
    EXPECT_EQ(list.ToStringList(), Odd);
    EXPECT_TRUE(list == Odd);
    EXPECT_FALSE(list == Odd.mid(1));
}

TEST(IdList, FindsExactlyWhatItHolds) {
    IdList list(Odd);
    for (const QString& text : Odd)
        EXPECT_TRUE(list.contains(text)) << text.toStdString();
    for (const QString& text : {u"00"_s, u"07"_s, u"5"_s, u"4294967297"_s, u"4294967293"_s, u"ANN"_s, u" "_s})
        EXPECT_FALSE(list.contains(text)) << text.toStdString();
    EXPECT_EQ(list.indexOf(u"007"_s), 2);
    EXPECT_EQ(list.indexOf(u"Ann"_s), 12);
    EXPECT_EQ(list.indexOf(u"08"_s), -1);
}

TEST(IdList, LinesAreTheEntriesAsAFileHoldsThem) {
    const IdList odd(Odd);
    EXPECT_EQ(odd.Lines(0, odd.size()), "0\r\n7\r\n007\r\n+5\r\n-5\r\n4294967294\r\n4294967295\r\n"
                                        "4294967296\r\n999999999999999999\r\n1000000000000000000\r\n"
                                        "18446744073709551616\r\nann\r\nAnn\r\n12 34\r\n???\r\n"
                                        "ID \x96 \xFCn\xEF ?\r\n\r\n");
    EXPECT_EQ(odd.Lines(1, 3), "7\r\n007\r\n");
    EXPECT_EQ(odd.Lines(2, 2), QByteArray());
}

TEST(IdList, LinesOfManyEntriesKeepTheirOrder) {
    IdList list;
    QByteArray lines;
    for (int i = 0; i < 3000; ++i) {
        const QString text = i % 7 == 0 ? u"n"_s.repeated(i) : QString::number(quint64(i) * i * i * i * i);
        list.append(text);
        lines += text.toLatin1() + "\r\n";
    }
    EXPECT_EQ(list.Lines(0, list.size()), lines);
}

TEST(IdList, BeyondTheEndsThereIsNoText) {
    const IdList list{u"1"_s};
    EXPECT_EQ(list.value(-1), QString());
    EXPECT_EQ(list.value(1), QString());
    EXPECT_EQ(list.value(0), u"1"_s);
}

TEST(IdList, TheBlankEntryIsNeitherZeroNorABlank) {
    const IdList list{QString(), u"0"_s, u" "_s};
    EXPECT_TRUE(list.IsBlank(0));
    EXPECT_FALSE(list.IsBlank(1));
    EXPECT_FALSE(list.IsBlank(2));
}

TEST(IdList, OfDuplicatesOneThatGoesLeavesTheOthersFound) {
    for (const QString& text : {u"5"_s, u"5000000000"_s, u"ann"_s}) {
        IdList list{text, u"1"_s, text, text};
        EXPECT_TRUE(list.contains(text));
        list.removeAt(0);
        list.removeAt(1);
        EXPECT_TRUE(list.contains(text)) << text.toStdString();
        list.Set(1, u"2"_s);
        EXPECT_FALSE(list.contains(text)) << text.toStdString();
        EXPECT_TRUE(list.contains(u"2"_s));
    }
}

TEST(IdList, ResizingAddsBlanksAndForgetsWhatItCuts) {
    IdList list{u"1"_s, u"2"_s, u"3"_s};
    EXPECT_TRUE(list.contains(u"3"_s));
    list.resize(1);
    EXPECT_FALSE(list.contains(u"3"_s));
    list.resize(3);
    EXPECT_EQ(list.ToStringList(), (QStringList{u"1"_s, {}, {}}));
}

TEST(IdList, SwapsAndCopies) {
    IdList list{u"1"_s, u"ann"_s, u"3"_s};
    const IdList copy = list;
    list.swapItemsAt(0, 1);
    EXPECT_EQ(list.ToStringList(), (QStringList{u"ann"_s, u"1"_s, u"3"_s}));
    EXPECT_EQ(copy.ToStringList(), (QStringList{u"1"_s, u"ann"_s, u"3"_s}));
    EXPECT_EQ(list.ToStringList(2), (QStringList{u"ann"_s, u"1"_s}));
}

// Beside a plain list of texts, over additions and removals at random, with numbers that meet often.
TEST(IdList, SaysTheSameAsAPlainList) {
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp): the same run every time
    auto anyText = [&random] {
        const unsigned kind = random() % 10;
        const QString number = QString::number(random() % 300);
        return kind == 0 ? u"x"_s + number : kind == 1 ? number + u"0000000000"_s : number;
    };
    IdList list;
    QStringList plain;
    for (int i = 0; i < 20000; ++i) {
        const auto where = static_cast<qsizetype>(plain.isEmpty() ? 0 : random() % plain.size());
        if (plain.isEmpty() || random() % 100 < 52) {
            plain.append(anyText());
            list.append(plain.constLast());
        } else if (random() % 3 == 0) {
            plain[where] = anyText();
            list.Set(where, plain.at(where));
        } else {
            plain.removeAt(where);
            list.removeAt(where);
        }
        const QString wanted = anyText();
        ASSERT_EQ(list.contains(wanted), plain.contains(wanted)) << i;
        ASSERT_EQ(list.indexOf(wanted), plain.indexOf(wanted)) << i;
    }
    EXPECT_TRUE(list == plain);
}

} // namespace
} // namespace qlm
