// SPDX-License-Identifier: MIT
// What others' tools put into a ZIP file, and files that have suffered.
#include "platform/qt/QtArchive.h"
#include "PrintText.h"

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

TEST(QtArchiveTest, TellsWhatKindOfEntriesAStrangersArchiveHolds) {
    const std::unique_ptr<ArchiveReader> archive = QtArchive().Read(QByteArray::fromBase64(strangers));
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

TEST(QtArchiveTest, WhatIsWrittenIsAnOrdinaryZipFile) {
    const QByteArray bytes = QtArchive().Write({{u"a.txt"_s, QByteArray(100'000, 'x')}});
    EXPECT_TRUE(bytes.startsWith("PK\3\4"));
    EXPECT_LT(bytes.size(), 2'000);
}

TEST(QtArchiveTest, AFileUnderAPasswordIsRefused) {
    const std::unique_ptr<ArchiveReader> archive = QtArchive().Read(QByteArray::fromBase64(locked));
    ASSERT_EQ(archive->Entries().size(), 1U);
    EXPECT_THROW(archive->Content(0), ArchiveError);
}

TEST(QtArchiveTest, DamagedContentIsRefused) {
    QByteArray bytes = QByteArray::fromBase64(strangers);
    const qsizetype at = bytes.indexOf("content of a");
    bytes[at] = 'K';
    const std::unique_ptr<ArchiveReader> archive = QtArchive().Read(bytes);
    EXPECT_THROW(archive->Content(1), ArchiveError);
    EXPECT_EQ(archive->Content(4), "dos");
}

// The list says that five bytes are there; in truth it is three.
TEST(QtArchiveTest, ASizeThatIsALieIsNotBelieved) {
    QByteArray bytes = QByteArray::fromBase64(strangers);
    constexpr int sizeBeforeName = 22;
    const qsizetype name = bytes.lastIndexOf("DOS.TXT");
    bytes[name - sizeBeforeName] = 5;
    const std::unique_ptr<ArchiveReader> archive = QtArchive().Read(bytes);
    ASSERT_EQ(archive->Entries()[4].size, 5);
    EXPECT_THROW(archive->Content(4), ArchiveError);
}

} // namespace qlm
