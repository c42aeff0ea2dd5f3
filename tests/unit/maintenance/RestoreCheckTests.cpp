// SPDX-License-Identifier: MIT
#include "maintenance/RestoreCheck.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

using Kind = ArchiveEntry::Kind;

QString WhyNot(const std::vector<ArchiveEntry>& entries, qint64 packedSize = 1'000'000) {
    return WhyNotRestored(entries, packedSize);
}

} // namespace

TEST(RestoreCheck, AnOrdinaryArchiveMayBeRestored) {
    EXPECT_EQ(WhyNot({{u"FriendsLog.txt"_s}, {u"ACCOUNTS/"_s, Kind::Folder}, {u"ACCOUNTS/a..b/c.txt"_s}}),
              QString());
    EXPECT_EQ(WhyNot({}), QString());
}

TEST(RestoreCheck, ANameThatLeadsOutRefusesTheWholeArchive) {
    for (const QString& name :
         {u"../a.txt"_s, u"ACCOUNTS/../../a.txt"_s, u"ACCOUNTS\\..\\a.txt"_s, u"/etc/passwd"_s,
          u"\\\\server\\a.txt"_s, u"C:\\a.txt"_s, u"c:a.txt"_s, u""_s, u".."_s})
        EXPECT_EQ(WhyNot({{u"FriendsLog.txt"_s}, {name}}),
                  u"a name in it leads out of the folder: \"%1\"."_s.arg(name))
            << name.toStdString();
}

TEST(RestoreCheck, LinksAndDevicesRefuseTheWholeArchive) {
    for (const Kind kind : {Kind::Link, Kind::Special})
        EXPECT_EQ(WhyNot({{u"FriendsLog.txt"_s}, {u"ACCOUNTS/a"_s, kind}}),
                  u"an entry of it is neither a file nor a folder: \"ACCOUNTS/a\"."_s);
}

TEST(RestoreCheck, NamesThatDifferInCapitalLettersAloneRefuseTheWholeArchive) {
    for (const QString& twin :
         {u"friendslog.TXT"_s, u"FriendsLog.txt"_s, u"friendslog.txt/"_s, u"./friendslog.txt"_s})
        EXPECT_EQ(WhyNot({{u"FriendsLog.txt"_s}, {twin}}),
                  u"two names in it are the same but for capital letters: \"%1\"."_s.arg(twin));
    EXPECT_FALSE(WhyNot({{u"ACCOUNTS/\u00c4.txt"_s}, {u"ACCOUNTS\\\u00e4.txt"_s}}).isEmpty());
}

TEST(RestoreCheck, TooManyEntriesAreRefused) {
    std::vector<ArchiveEntry> entries;
    for (int i = 0; i < 200'000; ++i)
        entries.push_back({u"ACCOUNTS/%1"_s.arg(i)});
    EXPECT_EQ(WhyNot(entries), QString());
    entries.push_back({u"ACCOUNTS/last"_s});
    EXPECT_EQ(WhyNot(entries), u"it has more than 200,000 entries."_s);
}

TEST(RestoreCheck, MoreThanFourGigabytesAreRefused) {
    constexpr qint64 most = qint64(4) << 30;
    const qint64 packed = most;
    EXPECT_EQ(WhyNot({{u"a"_s, Kind::File, most - 1}, {u"b"_s, Kind::File, 1}}, packed), QString());
    const QString words = u"unpacked, it would be bigger than 4 GB."_s;
    EXPECT_EQ(WhyNot({{u"a"_s, Kind::File, most}, {u"b"_s, Kind::File, 1}}, packed), words);
    EXPECT_EQ(WhyNot({{u"a"_s, Kind::File, std::numeric_limits<qint64>::max()}}, packed), words);
    EXPECT_EQ(WhyNot({{u"a"_s, Kind::File, -1}}, packed), words);
}

TEST(RestoreCheck, AThousandTimesThePackedSizeIsTheMost) {
    EXPECT_EQ(WhyNot({{u"a"_s, Kind::File, 100'000}}, 100), QString());
    EXPECT_EQ(WhyNot({{u"a"_s, Kind::File, 100'001}}, 100),
              u"unpacked, it would be more than 1,000 times as big."_s);
}

} // namespace qlm
