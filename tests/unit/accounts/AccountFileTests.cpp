// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "accounts/AccountFile.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class AccountFileTest : public SimulatedProgram {
protected:
    AccountFile& File() { return *app->accountFile; }

    void Store(const QStringList& plainLines) {
        QStringList encoded;
        for (const QString& line : plainLines)
            encoded.append(EncodeAccountLine(line));
        app->files.WriteLines(File().Path(), encoded, Readers::OwnerAlone);
    }

    QStringList Stored() {
        QStringList plain;
        for (const QString& line : app->files.ReadLines(File().Path()))
            plain.append(DecodeAccountLine(line));
        return plain;
    }

    bool OwnerAloneReads(const QString& path) {
        const QFile::Permissions others =
            QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther;
        return (QFile::permissions(path) & others) == QFile::Permissions();
    }
};

TEST_F(AccountFileTest, AMissingFileIsCreatedEmptyForItsOwnerAlone) {
    EXPECT_EQ(File().GetPasswordFromEmail(u"a@example.com"_s), QString());
    EXPECT_TRUE(app->files.FileExists(File().Path()));
    EXPECT_TRUE(OwnerAloneReads(File().Path()));
    EXPECT_FALSE(File().Emails(File().Path(), true, false).hadLines);
}

TEST_F(AccountFileTest, AnAddedLineIsStoredInLowerCasePasswordAndAll) {
    File().Add(u"Tam@Example.COM"_s, u"SeCret"_s);
    EXPECT_EQ(Stored(), QStringList{u"tam@example.com;secret"_s});
}

TEST_F(AccountFileTest, AddingLeavesTheDialogsTemporaryFileBehind) {
    File().Add(u"a@example.com"_s, u"x"_s);
    EXPECT_TRUE(app->files.FileExists(app->ProgramFile(u"scalemodelight_Temp"_s)));
    EXPECT_TRUE(OwnerAloneReads(app->ProgramFile(u"scalemodelight_Temp"_s)));
}

TEST_F(AccountFileTest, EditingReplacesEveryLineOfTheEmailAsTyped) {
    Store({u"A@example.com;1"_s, u"b@example.com;2"_s, u"a@example.com;3"_s});
    File().Edit(u"a@example.com"_s, u"New@example.com"_s, u"PassWord"_s);
    EXPECT_EQ(Stored(), (QStringList{u"New@example.com;PassWord"_s, u"b@example.com;2"_s,
                                     u"New@example.com;PassWord"_s}));
    EXPECT_TRUE(OwnerAloneReads(File().Path()));
}

TEST_F(AccountFileTest, DeletingRemovesEveryLineOfTheEmailInAnyCase) {
    Store({u"A@example.com;1"_s, u"b@example.com;2"_s, u"a@EXAMPLE.com;3"_s});
    File().Delete(u"a@example.com"_s);
    EXPECT_EQ(Stored(), QStringList{u"b@example.com;2"_s});
    EXPECT_TRUE(OwnerAloneReads(app->ProgramFile(u"scalemodelight_Temp.txt"_s)));
}

TEST_F(AccountFileTest, DeletingTheLastEntryLeavesAnEmptyFile) {
    Store({u"a@example.com;1"_s});
    File().Delete(u"a@example.com"_s);
    EXPECT_TRUE(app->files.FileExists(File().Path()));
    EXPECT_TRUE(Stored().isEmpty());
}

TEST_F(AccountFileTest, ThePasswordMayHoldSemicolons) {
    Store({u"a@example.com;one;two;three"_s});
    EXPECT_EQ(File().GetPasswordFromEmail(u"a@example.com"_s), u"one;two;three"_s);
    EXPECT_EQ(File().GetAccountDetails(u"a@example.com"_s).value(1), u"one"_s);
}

TEST_F(AccountFileTest, APasswordLosesTheEmailWithItsSemicolon) {
    Store({u"a@b;xa@b;y"_s});
    EXPECT_EQ(File().GetPasswordFromEmail(u"a@b"_s), u"xy"_s);
}

TEST_F(AccountFileTest, OfTwoLinesThePasswordIsTheFirstAndTheRecordTheLast) {
    Store({u"a@example.com;first"_s, u"a@example.com;last"_s});
    EXPECT_EQ(File().GetPasswordFromEmail(u"a@example.com"_s), u"first"_s);
    EXPECT_EQ(File().GetAccountLine(u"a@example.com"_s), u"a@example.com;last"_s);
}

TEST_F(AccountFileTest, ThePasswordIsFoundInAnyCaseTheRecordIsNot) {
    Store({u"Mixed@Example.com;pw"_s});
    EXPECT_EQ(File().GetPasswordFromEmail(u"mixed@example.com"_s), u"pw"_s);
    EXPECT_TRUE(File().GetAccountDetails(u"mixed@example.com"_s).isEmpty());
    EXPECT_EQ(File().GetAccountDetails(u"Mixed@Example.com"_s).value(1), u"pw"_s);
}

TEST_F(AccountFileTest, ALineWithoutSemicolonIsAnEmailWithoutPassword) {
    Store({u"lonely@example.com"_s});
    EXPECT_EQ(File().Emails(File().Path(), true, false).emails, QStringList{u"lonely@example.com"_s});
    EXPECT_EQ(File().GetPasswordFromEmail(u"lonely@example.com"_s), QString());
}

TEST_F(AccountFileTest, ImportReplacesTheListByTheLinesAsTheyStand) {
    Store({u"old@example.com;1"_s});
    const QString path = folder.filePath(u"import.txt"_s);
    app->files.WriteLines(path, {u"One@Example.com;Pw "_s, QString(), u"no password"_s});
    File().Import(path);
    EXPECT_EQ(Stored(), (QStringList{u"One@Example.com;Pw "_s, QString(), u"no password"_s}));
    EXPECT_EQ(File().Emails(File().Path(), true, false).emails.size(), 3);
    EXPECT_EQ(File().Emails(File().Path(), true, true).emails.size(), 2);
}

TEST_F(AccountFileTest, ExportWritesWhatImportTakes) {
    Store({u"a@example.com;1;2"_s, u"b@example.com;3"_s});
    const QString path = folder.filePath(u"export.txt"_s);
    File().Export(path, {u"a@example.com"_s, u"b@example.com"_s});
    EXPECT_EQ(app->files.ReadLines(path), (QStringList{u"a@example.com;1;2"_s, u"b@example.com;3"_s}));
    EXPECT_TRUE(OwnerAloneReads(path));
}

// Whichever write the power goes at, the list is the old one or the new one.
TEST_F(AccountFileTest, ARewriteThatIsCutOffLosesNoAccount) {
    const QStringList before{u"a@example.com;1"_s, u"b@example.com;2"_s, u"c@example.com;3"_s};
    const QStringList after{u"a@example.com;1"_s, u"c@example.com;3"_s};
    int cuts = 0;
    for (int write = 1; write <= 4; ++write) {
        Store(before);
        world.gate.CrashAtWrite(write);
        try {
            File().Delete(u"b@example.com"_s);
        } catch (const SimPowerCut&) {
            ++cuts;
        }
        world.gate.Mend();
        const QStringList now = Stored();
        EXPECT_TRUE(now == before || now == after) << "cut at write " << write;
    }
    EXPECT_GE(cuts, 2);
}

} // namespace
} // namespace qlm
