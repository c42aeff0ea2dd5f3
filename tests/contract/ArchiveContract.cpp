// SPDX-License-Identifier: MIT
#include "ContractTest.h"

namespace qlm {

class ArchiveContract : public ContractTest {
protected:
    QByteArray Write(const std::vector<ArchiveFile>& files) { return world->Archive().Write(files); }
    std::unique_ptr<ArchiveReader> Read(const QByteArray& bytes) { return world->Archive().Read(bytes); }
};

TEST_F(ArchiveContract, WhatWasPutInComesOutInItsOrder) {
    const QByteArray odd = QByteArray("\0\xff\r\n", 4) + QByteArray(300'000, 'x');
    const QByteArray bytes = Write({{u"friendslog.txt"_s, "1001\r\n1002\r\n"},
                                    {u"ACCOUNTS/a@example.com/settings \u00e9.txt"_s, odd},
                                    {u"BookmarksList.txt"_s, {}}});
    const std::unique_ptr<ArchiveReader> archive = Read(bytes);
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

TEST_F(ArchiveContract, ANameThatLeadsOutIsTold) {
    const std::unique_ptr<ArchiveReader> archive =
        Read(Write({{u"../outside.txt"_s, "x"}, {u"/etc/passwd"_s, "x"}, {u"C:\\a\\..\\b.txt"_s, "x"}}));
    ASSERT_EQ(archive->Entries().size(), 3U);
    EXPECT_EQ(archive->Entries()[0].name, u"../outside.txt"_s);
    EXPECT_EQ(archive->Entries()[1].name, u"/etc/passwd"_s);
    EXPECT_EQ(archive->Entries()[2].name, u"C:\\a\\..\\b.txt"_s);
}

TEST_F(ArchiveContract, WhatIsNoArchiveIsRefused) {
    EXPECT_THROW(Read({}), ArchiveError);
    EXPECT_THROW(Read("just a text"), ArchiveError);
    QByteArray bytes = Write({{u"a.txt"_s, "content"}, {u"b.txt"_s, "content"}});
    bytes.chop(10);
    EXPECT_THROW(Read(bytes), ArchiveError);
}

TEST_F(ArchiveContract, NothingAndTheSameTwiceAreNotWritten) {
    EXPECT_THROW(Write({}), ArchiveError);
    EXPECT_THROW(Write({{u"a.txt"_s, "1"}, {u"a.txt"_s, "2"}}), ArchiveError);
}

} // namespace qlm
