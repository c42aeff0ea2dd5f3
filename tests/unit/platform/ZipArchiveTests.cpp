// SPDX-License-Identifier: MIT
// What others' tools put into a ZIP file, and files that have suffered.
#include "platform/zip/ZipArchive.h"

#include "PrintText.h"
#include "platform/MessageQueue.h"
#include <algorithm>
#include <gtest/gtest.h>

namespace qlm {

using namespace Qt::Literals::StringLiterals;
using Kind = ArchiveEntry::Kind;

namespace {

// A folder, a file in it, a link to /etc/passwd, a character device, and a file from another system.
constexpr auto strangers = "UEsDBBQAAAAAAABQwToAAAAAAAAAAAAAAAACAAAAZC9QSwMEFAAAAAAAAFDBOtXXWJAOAAAADgAAAAcAA"
                           "ABkL2EudHh0Y29udGVudCBvZiBhDQpQ"
                           "SwMEFAAAAAAAAFDBOgq5HykLAAAACwAAAAEAAABsL2V0Yy9wYXNzd2RQSwMEFAAAAAAAAFDBOgAAAAAAA"
                           "AAAAAAAAAMAAABkZXZQSwMEFAAAAAAA"
                           "AFDBOgDt9psDAAAAAwAAAAcAAABET1MuVFhUZG9zUEsBAhQDFAAAAAAAAFDBOgAAAAAAAAAAAAAAAAIAA"
                           "AAAAAAAAAAAAO1BAAAAAGQvUEsBAhQD"
                           "FAAAAAAAAFDBOtXXWJAOAAAADgAAAAcAAAAAAAAAAAAAAKSBIAAAAGQvYS50eHRQSwECFAMUAAAAAAAAU"
                           "ME6CrkfKQsAAAALAAAAAQAAAAAAAAAA"
                           "AAAA/"
                           "6FTAAAAbFBLAQIUAxQAAAAAAABQwToAAAAAAAAAAAAAAAADAAAAAAAAAAAAAAC2IX0AAABkZXZQSwECFA"
                           "AUAAAAAAAAUME6AO32mwMAAAAD"
                           "AAAABwAAAAAAAAAAACAAAACeAAAARE9TLlRYVFBLBQYAAAAABQAFAPoAAADGAAAAAAA=";

// One file under a password.
constexpr auto locked =
    "UEsDBAoACQAAAE1Fdl3l6KJcEgAAAAYAAAAIAAAAenQvcy50eHQR0AdmsaJjJikA/"
    "eYichM8yLRQSwcI5eiiXBIAAAAGAAAAUEsBAh4DCgAJAAAA"
    "TUV2XeXoolwSAAAABgAAAAgAAAAAAAAAAQAAAKSBAAAAAHp0L3MudHh0UEsFBgAAAAABAAEANgAAAEgAAAAAAA==";

} // namespace

TEST(ZipArchive, WhatWasPutInComesOutInItsOrder) {
    const QByteArray odd = QByteArray("\0\xff\r\n", 4) + QByteArray(300'000, 'x');
    const QByteArray bytes = ZipArchive().Write({{u"friendslog.txt"_s, "1001\r\n1002\r\n"},
                                                 {u"ACCOUNTS/a@example.com/settings \u00e9.txt"_s, odd},
                                                 {u"BookmarksList.txt"_s, {}}});
    const std::unique_ptr<ArchiveReader> archive = ZipArchive().Read(bytes);
    ASSERT_EQ(archive->Entries().size(), 3U);
    EXPECT_EQ(archive->Entries()[0].name, u"friendslog.txt"_s);
    EXPECT_EQ(archive->Entries()[1].name, u"ACCOUNTS/a@example.com/settings \u00e9.txt"_s);
    EXPECT_EQ(archive->Entries()[1].size, odd.size());
    EXPECT_EQ(archive->Entries()[2].size, 0);
    for (const ArchiveEntry& entry : archive->Entries())
        EXPECT_EQ(entry.kind, ArchiveEntry::Kind::File);
    EXPECT_EQ(archive->Content(0), "1001\r\n1002\r\n");
    EXPECT_EQ(archive->Content(1), odd);
    EXPECT_EQ(archive->Content(2), QByteArray());
    EXPECT_EQ(archive->Content(0), "1001\r\n1002\r\n");
}

TEST(ZipArchive, ANameThatLeadsOutIsTold) {
    const std::unique_ptr<ArchiveReader> archive = ZipArchive().Read(ZipArchive().Write(
        {{u"../outside.txt"_s, "x"}, {u"/etc/passwd"_s, "x"}, {u"C:\\a\\..\\b.txt"_s, "x"}}));
    ASSERT_EQ(archive->Entries().size(), 3U);
    EXPECT_EQ(archive->Entries()[0].name, u"../outside.txt"_s);
    EXPECT_EQ(archive->Entries()[1].name, u"/etc/passwd"_s);
    EXPECT_EQ(archive->Entries()[2].name, u"C:\\a\\..\\b.txt"_s);
}

TEST(ZipArchive, WhatIsNoArchiveIsRefused) {
    EXPECT_THROW(ZipArchive().Read({}), ArchiveError);
    EXPECT_THROW(ZipArchive().Read("just a text"), ArchiveError);
    QByteArray bytes = ZipArchive().Write({{u"a.txt"_s, "content"}, {u"b.txt"_s, "content"}});
    bytes.chop(10);
    EXPECT_THROW(ZipArchive().Read(bytes), ArchiveError);
}

TEST(ZipArchive, KeepsAFolderThatHoldsNothing) {
    const std::unique_ptr<ArchiveReader> archive =
        ZipArchive().Read(ZipArchive().Write({{u"ACCOUNTS/empty/"_s, {}}, {u"a.txt"_s, "x"}}));
    ASSERT_EQ(archive->Entries().size(), 2U);
    EXPECT_EQ(archive->Entries()[0].name, u"ACCOUNTS/empty/"_s);
    EXPECT_EQ(archive->Entries()[0].kind, Kind::Folder);
    EXPECT_EQ(archive->Entries()[1].kind, Kind::File);
}

TEST(ZipArchive, TellsHowFarItHasComeAndCanBeCalledOff) {
    const std::vector<ArchiveFile> files{{u"a.txt"_s, QByteArray(300'000, 'a')}, {u"b.txt"_s, "b"}};
    std::vector<int> told;
    ZipArchive().Write(files, [&told](int percent) { told.push_back(percent); });
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_GT(told.size(), 2U);
    EXPECT_EQ(told.back(), 100);
    EXPECT_THROW(ZipArchive().Write(files, [](int) { throw ProgramEnding(); }), ProgramEnding);
    EXPECT_THROW(ZipArchive().Write(files, [](int) { throw std::runtime_error("no"); }), std::runtime_error);
}

TEST(ZipArchive, NothingAndTheSameTwiceAreNotWritten) {
    EXPECT_THROW(ZipArchive().Write({}), ArchiveError);
    EXPECT_THROW(ZipArchive().Write({{u"a.txt"_s, "1"}, {u"a.txt"_s, "2"}}), ArchiveError);
}

TEST(ZipArchive, TellsWhatKindOfEntriesAStrangersArchiveHolds) {
    const std::unique_ptr<ArchiveReader> archive = ZipArchive().Read(QByteArray::fromBase64(strangers));
    const std::vector<ArchiveEntry>& entries = archive->Entries();
    const std::vector<std::pair<QString, Kind>> expected{{u"d/"_s, Kind::Folder},
                                                         {u"d/a.txt"_s, Kind::File},
                                                         {u"l"_s, Kind::Link},
                                                         {u"dev"_s, Kind::Special},
                                                         {u"DOS.TXT"_s, Kind::File}};
    ASSERT_EQ(entries.size(), expected.size());
    for (size_t i = 0; i < entries.size(); ++i) {
        EXPECT_EQ(entries[i].name, expected[i].first);
        EXPECT_EQ(entries[i].kind, expected[i].second) << entries[i].name.toStdString();
    }
    EXPECT_EQ(archive->Content(1), "content of a\r\n");
    EXPECT_EQ(archive->Content(4), "dos");
}

TEST(ZipArchive, WhatIsWrittenIsAnOrdinaryZipFile) {
    const QByteArray bytes = ZipArchive().Write({{u"a.txt"_s, QByteArray(100'000, 'x')}});
    EXPECT_TRUE(bytes.startsWith("PK\3\4"));
    EXPECT_LT(bytes.size(), 2'000);
}

TEST(ZipArchive, AFileUnderAPasswordIsRefused) {
    const std::unique_ptr<ArchiveReader> archive = ZipArchive().Read(QByteArray::fromBase64(locked));
    ASSERT_EQ(archive->Entries().size(), 1U);
    EXPECT_THROW(archive->Content(0), ArchiveError);
}

TEST(ZipArchive, DamagedContentIsRefused) {
    QByteArray bytes = QByteArray::fromBase64(strangers);
    const qsizetype at = bytes.indexOf("content of a");
    bytes[at] = 'K';
    const std::unique_ptr<ArchiveReader> archive = ZipArchive().Read(bytes);
    EXPECT_THROW(archive->Content(1), ArchiveError);
    EXPECT_EQ(archive->Content(4), "dos");
}

// The list says that five bytes are there; in truth it is three.
TEST(ZipArchive, ASizeThatIsALieIsNotBelieved) {
    QByteArray bytes = QByteArray::fromBase64(strangers);
    constexpr int sizeBeforeName = 22;
    const qsizetype name = bytes.lastIndexOf("DOS.TXT");
    bytes[name - sizeBeforeName] = 5;
    const std::unique_ptr<ArchiveReader> archive = ZipArchive().Read(bytes);
    ASSERT_EQ(archive->Entries()[4].size, 5);
    EXPECT_THROW(archive->Content(4), ArchiveError);
}

} // namespace qlm
