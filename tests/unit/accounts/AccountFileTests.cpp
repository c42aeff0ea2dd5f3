// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "accounts/AccountFile.h"
#include "core/AnsiText.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class AccountFileTest : public SimulatedProgram {
protected:
    AccountFile& File() { return app->Get<AccountFile>(); }

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

TEST_F(AccountFileTest, AListThatIsNotThereIsCreatedEmpty) {
    const QString path = folder.filePath(u"none.txt"_s);
    EXPECT_FALSE(File().Emails(path, false, false).hadLines);
    EXPECT_TRUE(app->files.FileExists(path));
}

TEST_F(AccountFileTest, AddingAndEditingLeaveTheirMarks) {
    app->state.blnLoggingEnabled = true;
    QStringList marks;
    app->diagnostics.onLine = [&marks](const QString& line) { marks += line; };
    File().Add(u"a@example.com"_s, u"x"_s);
    EXPECT_EQ(marks, (QStringList{u"AddAcc8"_s, u"AddAcc9"_s, u"AddAcc10"_s, u"AddAcc11"_s, u"AddAcc12"_s}));
    marks.clear();
    File().Edit(u"a@example.com"_s, u"b@example.com"_s, u"y"_s);
    EXPECT_EQ(marks, (QStringList{u"AddAcc8"_s, u"AddAcc9"_s, u"AddAcc13"_s, u"AddAcc14"_s, u"AddAcc15"_s}));
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

TEST_F(AccountFileTest, AMarkAtItsBeginningAndOtherLineEndsAreNoPartOfAnAccount) {
    const QByteArray first = EncodeAccountLine(u"a@example.com;1"_s).toLatin1();
    const QByteArray second = EncodeAccountLine(u"b@example.com;2"_s).toLatin1();
    QByteArray wide("\xFF\xFE");
    for (const char byte : first + "\r\n" + second + "\r\n")
        wide += QByteArray(1, byte) + '\0';
    for (const QByteArray& bytes :
         {"\xEF\xBB\xBF" + first + "\r\n" + second + "\r\n", wide, first + '\r' + second}) {
        app->files.WriteBytes(File().Path(), bytes);
        EXPECT_EQ(File().Emails(File().Path(), true, false).emails,
                  (QStringList{u"a@example.com"_s, u"b@example.com"_s}));
        EXPECT_EQ(File().GetPasswordFromEmail(u"a@example.com"_s), u"1"_s);
        File().Add(u"c@example.com"_s, u"3"_s);
        File().Edit(u"b@example.com"_s, u"b@example.com"_s, u"4"_s);
        EXPECT_EQ(Stored(), (QStringList{u"a@example.com;1"_s, u"b@example.com;4"_s, u"c@example.com;3"_s}));
    }
}

TEST_F(AccountFileTest, ALineThatIsNoAccountIsPassedOverAndStays) {
    const QString mad(20 * 1024 * 1024, u'4');
    const QString account = EncodeAccountLine(u"a@example.com;1"_s);
    app->files.WriteLines(File().Path(), {mad, account, u"no digits"_s}, Readers::OwnerAlone);
    const AccountFile::Listing listing = File().Emails(File().Path(), true, false);
    EXPECT_EQ(listing.emails.size(), 2);
    EXPECT_EQ(listing.emails.value(0), u"a@example.com"_s);
    EXPECT_EQ(listing.tooLong, 1);
    EXPECT_EQ(File().GetPasswordFromEmail(u"a@example.com"_s), u"1"_s);
    File().Edit(u"a@example.com"_s, u"b@example.com"_s, u"2"_s);
    File().Add(u"c@example.com"_s, u"3"_s);
    File().Delete(u"b@example.com"_s);
    const QStringList stored = LinesOfText(app->files.ReadBytes(File().Path()));
    EXPECT_TRUE(stored == (QStringList{mad, EncodeAccountLine(DecodeAccountLine(u"no digits"_s)),
                                       EncodeAccountLine(u"c@example.com;3"_s)}));
}

TEST_F(AccountFileTest, AnImportThatCannotBeKeptSaysWhichLineAndWhy) {
    const QString path = folder.filePath(u"import.txt"_s);
    auto problem = [&](const QByteArray& bytes) {
        app->files.WriteBytes(path, bytes);
        return File().ImportProblem(path);
    };
    EXPECT_EQ(problem("One@Example.com;Pw;x\r\n\r\nno password\r\n"), QString());
    EXPECT_EQ(problem("\xEF\xBB\xBFz\xC3\xB6"
                      "e@example.com;n\xC3\xA4\n"),
              QString());
    EXPECT_TRUE(problem("a@b.c;1\n\xEF\xBB\xBFz@b.c;2\n../x;3\n").startsWith(u"Line 3 "_s));
    EXPECT_TRUE(problem("\xEF\xBB\xBF"
                        "a@b.c;\xD0\xBF\n")
                    .contains(u"The password holds letters"_s));
    EXPECT_TRUE(problem(QByteArray("a@b.c;") + QByteArray(3000, 'x')).contains(u"too long"_s));
}

TEST_F(AccountFileTest, ExportWritesWhatImportTakes) {
    Store({u"a@example.com;1;2"_s, u"b@example.com;3"_s});
    const QString path = folder.filePath(u"export.txt"_s);
    File().Export(path, {u"a@example.com"_s, u"b@example.com"_s});
    EXPECT_EQ(app->files.ReadLines(path), (QStringList{u"a@example.com;1;2"_s, u"b@example.com;3"_s}));
    EXPECT_TRUE(OwnerAloneReads(path));
}

TEST_F(AccountFileTest, IsHexadecimalWindows1252WithCarriageReturns) {
    File().Add(u"ZO\u00CB@Example.com"_s, u"P\u00C4\u20AC\u2603"_s);
    EXPECT_EQ(app->files.ReadBytes(File().Path()), "7A6FEB406578616D706C652E636F6D3B70E4803F\r\n");
    File().Edit(u"zo\u00EB@example.com"_s, u"Z"_s, u"\u00C4"_s);
    EXPECT_EQ(app->files.ReadBytes(File().Path()), "5A3BC4\r\n");
    EXPECT_EQ(app->files.ReadBytes(app->ProgramFile(u"scalemodelight_Temp"_s)), "5A3BC4\r\n");
}

TEST_F(AccountFileTest, AnAddLeavesTheLinesBeforeItAsTheyAre) {
    app->files.WriteBytes(File().Path(), "61403B31\nnot digits\r\n6240");
    File().Add(u"c@"_s, u"3"_s);
    EXPECT_EQ(app->files.ReadBytes(File().Path()), "61403B31\nnot digits\r\n6240\r\n63403B33\r\n");
}

TEST_F(AccountFileTest, AnEditWritesTheOtherLinesAsTheyRead) {
    app->files.WriteBytes(File().Path(), "61403b31\n62403B3\r\n");
    File().Edit(u"none"_s, u"x"_s, u"y"_s);
    EXPECT_EQ(app->files.ReadBytes(File().Path()), "61403B31\r\n62403B03\r\n");
}

TEST_F(AccountFileTest, ARecordIsFoundByItsTrimmedEmail) {
    Store({u" a@example.com ;one;two"_s});
    EXPECT_EQ(File().GetAccountDetails(u"a@example.com"_s),
              (QStringList{u" a@example.com "_s, u"one"_s, u"two"_s}));
    EXPECT_EQ(File().GetAccountLine(u"a@example.com"_s), u" a@example.com ;one;two"_s);
    EXPECT_EQ(File().GetPasswordFromEmail(u"a@example.com"_s), QString());
}

TEST_F(AccountFileTest, AFileThatStandsOpenToOthersIsClosed) {
    const QFile::Permissions open =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;
    for (const auto& use : std::initializer_list<std::function<void()>>{
             [this] { File().GetPasswordFromEmail(u"a"_s); },
             [this] { File().Emails(File().Path(), true, false); },
             [this] { File().Add(u"a"_s, u"b"_s); },
         }) {
        Store({u"a@example.com;1"_s});
        QFile::setPermissions(File().Path(), open);
        use();
        EXPECT_TRUE(OwnerAloneReads(File().Path()));
    }
    // A list to import is the user's own affair.
    const QString path = folder.filePath(u"import.txt"_s);
    app->files.WriteLines(path, {u"a;b"_s});
    File().Emails(path, false, true);
    File().Import(path);
    EXPECT_FALSE(OwnerAloneReads(path));
    EXPECT_TRUE(OwnerAloneReads(File().Path()));
}

TEST_F(AccountFileTest, WhatAnEarlierEndLeftOpenDoesNotOpenTheFile) {
    app->files.WriteLines(File().Path() + u".new"_s, {u"x"_s});
    File().Add(u"a@example.com"_s, u"1"_s);
    EXPECT_TRUE(OwnerAloneReads(File().Path()));
}

struct Operation {
    const char* name;
    void (*run)(AccountFile& file, const QString& importPath);
    QStringList after;
};

void PrintTo(const Operation& operation, std::ostream* stream) {
    *stream << operation.name;
}

class AccountFileCut : public AccountFileTest, public testing::WithParamInterface<Operation> {};

// Whichever write the power goes at, the list is the old one or the new one, and readable by its owner alone.
TEST_P(AccountFileCut, LeavesTheOldOrTheNewListWhole) {
    const QStringList before{u"a@example.com;1"_s, u"b@example.com;2"_s, u"c@example.com;3"_s};
    const QString importPath = folder.filePath(u"import.txt"_s);
    app->files.WriteLines(importPath, {u"x@example.com;8"_s, u"y@example.com;9"_s});
    int cuts = 0;
    for (bool wasCut = true; wasCut && cuts < 10;) {
        Store(before);
        world.gate.CrashAtWrite(cuts + 1);
        wasCut = false;
        try {
            GetParam().run(File(), importPath);
        } catch (const SimPowerCut&) {
            wasCut = true;
            ++cuts;
        }
        world.gate.Mend();
        const QStringList now = Stored();
        EXPECT_TRUE(now == GetParam().after || (wasCut && now == before)) << "cut at write " << cuts;
        EXPECT_TRUE(OwnerAloneReads(File().Path()));
        // The next start works with it.
        File().Add(u"next@example.com"_s, u"4"_s);
        EXPECT_EQ(Stored(), now + QStringList{u"next@example.com;4"_s});
    }
    EXPECT_GE(cuts, 1);
    EXPECT_LT(cuts, 10);
}

INSTANTIATE_TEST_SUITE_P(
    Operations, AccountFileCut,
    testing::Values(Operation{"Add",
                              [](AccountFile& file, const QString&) { file.Add(u"d@example.com"_s, u"4"_s); },
                              {u"a@example.com;1"_s, u"b@example.com;2"_s, u"c@example.com;3"_s,
                               u"d@example.com;4"_s}},
                    Operation{"Edit",
                              [](AccountFile& file, const QString&) {
                                  file.Edit(u"b@example.com"_s, u"d@example.com"_s, u"4"_s);
                              },
                              {u"a@example.com;1"_s, u"d@example.com;4"_s, u"c@example.com;3"_s}},
                    Operation{"Delete",
                              [](AccountFile& file, const QString&) { file.Delete(u"b@example.com"_s); },
                              {u"a@example.com;1"_s, u"c@example.com;3"_s}},
                    Operation{"Import",
                              [](AccountFile& file, const QString& path) { file.Import(path); },
                              {u"x@example.com;8"_s, u"y@example.com;9"_s}}),
    [](const auto& operation) { return std::string(operation.param.name); });

} // namespace
} // namespace qlm
