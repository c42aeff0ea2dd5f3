// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "gather/GatheredList.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

constexpr int ShownRows = 30001;

class GatheredListTest : public SimulatedProgram {
protected:
    GatheredList& List() { return app->Get<GatheredList>(); }
    QStringList Ids() const { return app->state.arrFriendIDs.ToStringList(); }
    const QStringList& Rows() const { return app->controls.Items("lstFriendIDs"_L1); }
    QString Label() const { return app->controls.Text("lblProfilesGathered"_L1); }

    void Add(const QStringList& ids) {
        for (const QString& id : ids)
            List().Add(id, u"test"_s);
    }
    void Remove(int index) { List().Remove(index, u"test"_s); }
    QString File(const QStringList& lines) {
        const QString path = app->ProgramFile(u"import.txt"_s);
        app->files.WriteLines(path, lines);
        return path;
    }
    static QStringList Numbers(int count) {
        QStringList ids;
        for (int i = 0; i < count; ++i)
            ids.append(QString::number(100000 + i));
        return ids;
    }
    void Import(const QStringList& lines, Dialogs::Answer answer) {
        dialogs.files.push_back(File(lines));
        dialogs.answers.push_back(answer);
        app->commands.Run(u"picImport_Click"_s);
    }
};

TEST_F(GatheredListTest, TheEmptyListIsOneBlankEntryAndCountsNothing) {
    List().SetScannedLabel();
    EXPECT_EQ(Ids(), QStringList{QString()});
    EXPECT_TRUE(List().IsEmpty());
    EXPECT_EQ(List().UBound(), 0);
    EXPECT_EQ(Label(), u"Profiles Gathered: 0"_s);
}

TEST_F(GatheredListTest, TheFirstAddTakesTheBlankEntrysPlace) {
    Add({u"11"_s, u"12"_s});
    EXPECT_EQ(Ids(), (QStringList{u"11"_s, u"12"_s}));
    EXPECT_EQ(Rows(), Ids());
    EXPECT_EQ(Label(), u"Profiles Gathered: 2"_s);
}

TEST_F(GatheredListTest, RemovingTheLastEntryLeavesTheEmptyList) {
    Add({u"11"_s});
    Remove(0);
    EXPECT_EQ(Ids(), QStringList{QString()});
    EXPECT_TRUE(Rows().isEmpty());
    EXPECT_EQ(Label(), u"Profiles Gathered: 0"_s);
}

TEST_F(GatheredListTest, RemovingClosesTheGapInBoth) {
    Add({u"11"_s, u"12"_s, u"13"_s});
    Remove(1);
    EXPECT_EQ(Ids(), (QStringList{u"11"_s, u"13"_s}));
    EXPECT_EQ(Rows(), Ids());
}

TEST_F(GatheredListTest, RemovingBehindTheBoxChangesNothing) {
    Add({u"11"_s, u"12"_s});
    Remove(2);
    Remove(-1);
    EXPECT_EQ(Ids(), (QStringList{u"11"_s, u"12"_s}));
}

TEST_F(GatheredListTest, TheBoxStopsAtItsCapAndARemovalPullsTheNextEntryIn) {
    app->state.arrFriendIDs = IdList(Numbers(ShownRows));
    app->controls.SetItems("lstFriendIDs"_L1, Numbers(ShownRows));
    Add({u"777"_s});
    EXPECT_EQ(Rows().size(), ShownRows);
    EXPECT_EQ(Label(), u"Profiles Gathered: 30002"_s);
    Remove(0);
    EXPECT_EQ(Rows().size(), ShownRows);
    EXPECT_EQ(Rows().last(), u"777"_s);
    EXPECT_EQ(Rows(), Ids());
}

TEST_F(GatheredListTest, FillingTheBoxStopsAtTheCapToo) {
    app->state.arrFriendIDs = IdList(Numbers(ShownRows + 5));
    List().ArrayToListBox(u"test"_s);
    EXPECT_EQ(Rows().size(), ShownRows);
}

TEST_F(GatheredListTest, MembershipIsExact) {
    Add({u"123"_s});
    EXPECT_TRUE(List().IsInList(u"123"_s, false));
    EXPECT_FALSE(List().IsInList(u"12"_s, false));
    EXPECT_FALSE(List().IsInList(u"1234"_s, false));
}

TEST_F(GatheredListTest, WhileAcceptingTheIncomingListIsAsked) {
    Add({u"123"_s});
    app->state.CurrentAction = u"ACC"_s;
    EXPECT_FALSE(List().IsInList(u"123"_s, false));
    app->controls.AddItem("lstAcceptIDs"_L1, u"456"_s);
    EXPECT_TRUE(List().IsInList(u"456"_s, false));
}

TEST_F(GatheredListTest, TheFullGatherFlagAsksTheFetchedAddresses) {
    app->state.lstAlreadyFullGatheredPageIDs = {u"http://www.example.com/ann"_s};
    EXPECT_TRUE(List().IsInList(u"http://www.example.com/ann"_s, true));
    EXPECT_FALSE(List().IsInList(u"http://www.example.com/ann"_s, false));
}

TEST_F(GatheredListTest, AnImportOverwritesTheLastEntry) {
    Add({u"1"_s, u"2"_s, u"3"_s});
    Import({u"8"_s, u"9"_s}, Dialogs::Answer::No);
    EXPECT_EQ(Ids(), (QStringList{u"1"_s, u"2"_s, u"8"_s, u"9"_s}));
    EXPECT_EQ(Rows(), Ids());
    EXPECT_FALSE(app->state.blnFillingList);
}

TEST_F(GatheredListTest, AnImportTrimsLinesAndSkipsEmptyOnes) {
    Import({u" 8 "_s, u""_s, u"   "_s, u"9"_s}, Dialogs::Answer::No);
    EXPECT_EQ(Ids(), (QStringList{u"8"_s, u"9"_s}));
}

TEST_F(GatheredListTest, AnImportOfOneLineCountsOneAndShowsAnEmptyBox) {
    Import({u"8"_s}, Dialogs::Answer::No);
    EXPECT_EQ(Label(), u"Profiles Gathered: 1"_s);
    EXPECT_TRUE(Rows().isEmpty());
}

TEST_F(GatheredListTest, YesToTheQuestionSkipsDuplicates) {
    Add({u"1"_s, u"2"_s, u"3"_s});
    Import({u"2"_s, u"5"_s, u"5"_s, u"6"_s}, Dialogs::Answer::Yes);
    EXPECT_EQ(Ids(), (QStringList{u"1"_s, u"2"_s, u"5"_s, u"6"_s}));
}

TEST_F(GatheredListTest, CancelAtTheQuestionReadsNothing) {
    Add({u"1"_s});
    Import({u"8"_s, u"9"_s}, Dialogs::Answer::Cancel);
    EXPECT_EQ(Ids(), QStringList{u"1"_s});
    EXPECT_EQ(app->controls.Pointer(), PointerShape::Usual);
}

TEST_F(GatheredListTest, CancelAtTheFileAsksNothing) {
    dialogs.files.push_back(QString());
    app->commands.Run(u"picImport_Click"_s);
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(GatheredListTest, WithoutSaveOnExitNoPathReadsNothing) {
    app->state.blnFillingList = true;
    List().FillScannedList({}, true, false);
    EXPECT_FALSE(app->state.blnFillingList);
    EXPECT_TRUE(List().IsEmpty());
}

TEST_F(GatheredListTest, SavingTheEmptyListWritesOneEmptyLineThatIsSkippedLater) {
    List().SaveScannedList(List().ScopedPath());
    EXPECT_EQ(app->files.ReadBytes(List().ScopedPath()), "\r\n");
    List().FillScannedList(List().ScopedPath(), true, false);
    EXPECT_TRUE(List().IsEmpty());
}

TEST_F(GatheredListTest, TheOwnListIsReadAsItWasSaved) {
    const QString path = app->ProgramFile(u"Gathered.txt"_s);
    app->files.WriteLines(path, {u"11"_s, u"12"_s, u"11"_s});
    List().FillScannedList(path, true, false);
    EXPECT_EQ(app->state.arrFriendIDs.ToStringList(), (QStringList{u"11"_s, u"12"_s, u"11"_s}));
}

TEST_F(GatheredListTest, AFileThatIsMissingIsCreatedWithItsFolder) {
    const QString path = app->ProgramFile(u"deep/er/Gathered.txt"_s);
    List().FillScannedList(path, true, false);
    EXPECT_TRUE(app->files.FileExists(path));
}

TEST_F(GatheredListTest, SavingCreatesAMissingFolder) {
    const QString path = app->ProgramFile(u"new/list.txt"_s);
    Add({u"11"_s});
    List().SaveScannedList(path);
    EXPECT_EQ(app->files.ReadBytes(path), "11\r\n");
}

TEST_F(GatheredListTest, WhileFillingClearShuffleAndImportRefuse) {
    Add({u"1"_s, u"2"_s});
    app->state.blnFillingList = true;
    for (const QString& button : {u"piccmdClearList_Click"_s, u"picRandomize_Click"_s, u"picImport_Click"_s})
        app->commands.Run(button);
    EXPECT_EQ(Ids().size(), 2);
    ASSERT_EQ(dialogs.messages.size(), 3u);
    EXPECT_EQ(dialogs.messages[0].text, u"The ID's list is already being filled, please wait for that "
                                        u"process to finish. This may take a short "
                                        "while depending on the amount of ID's being imported."_s);
}

TEST_F(GatheredListTest, AFileThatCannotBeReadDoesNotLockTheList) {
    List().FillScannedList(app->ProgramFile(u"."_s), false, false);
    EXPECT_FALSE(app->state.blnFillingList);
}

TEST_F(GatheredListTest, ShuffleSwapsFromTheTop) {
    Add({u"1"_s, u"2"_s, u"3"_s, u"4"_s});
    world.random.SetNumbers({0.0, 0.5, 0.999});
    app->commands.Run(u"picRandomize_Click"_s);
    // 4<->1, then of the first three 3<->2, then of the first two the second stays.
    EXPECT_EQ(Ids(), (QStringList{u"4"_s, u"3"_s, u"2"_s, u"1"_s}));
    EXPECT_EQ(Rows(), Ids());
    EXPECT_TRUE(app->state.CurrentAction.isEmpty());
}

TEST_F(GatheredListTest, ShuffleShowsThatItIsBusy) {
    Add({u"1"_s, u"2"_s});
    std::pair<QString, PointerShape> meanwhile;
    platform->Pump().onPump = [&] { meanwhile = {app->state.CurrentAction, app->controls.Pointer()}; };
    app->commands.Run(u"picRandomize_Click"_s);
    EXPECT_EQ(meanwhile.first, u"RANDOMIZING"_s);
    EXPECT_EQ(meanwhile.second, PointerShape::Busy);
    EXPECT_EQ(app->controls.Pointer(), PointerShape::Usual);
}

TEST_F(GatheredListTest, ShuffleRefusesDuringARun) {
    Add({u"1"_s, u"2"_s});
    for (const QString& action : {u"FR"_s, u"SCANNING"_s, u"COM"_s, u"MSG"_s}) {
        app->state.CurrentAction = action;
        app->commands.Run(u"picRandomize_Click"_s);
    }
    ASSERT_EQ(dialogs.messages.size(), 4u);
    EXPECT_EQ(dialogs.messages[0].text,
              u"You cannot randomize the list of ID's while sending. Please stop the current "
              "operation and try again."_s);
}

TEST_F(GatheredListTest, AFilesLineEndsSpacesAndLettersDoNotMatter) {
    const QString path = app->ProgramFile(u"odd.txt"_s);
    app->files.WriteBytes(path, "\n  11 \r\n12\n\r\n \t \n0013\r\nann b\n\r14\n15");
    List().FillScannedList(path, false, false);
    EXPECT_EQ(Ids(), (QStringList{u"11"_s, u"12"_s, u"0013"_s, u"ann b"_s, u"14"_s, u"15"_s}));
    EXPECT_EQ(Rows(), Ids());
    List().SaveScannedList(path);
    EXPECT_EQ(app->files.ReadBytes(path), "11\r\n12\r\n0013\r\nann b\r\n14\r\n15\r\n");
}

TEST_F(GatheredListTest, ALineWithoutEndIsNoID) {
    const QString path = app->ProgramFile(u"binary.txt"_s);
    app->files.WriteBytes(path, "11\n" + QByteArray(3'000'000, '7') + "\n12\n" + QByteArray(70'000, 'x'));
    List().FillScannedList(path, false, false);
    EXPECT_EQ(Ids(), (QStringList{u"11"_s, u"12"_s}));
}

TEST_F(GatheredListTest, DuplicatesAreLeftOutInAnySpellingOfTheLine) {
    const QString path = app->ProgramFile(u"twice.txt"_s);
    app->files.WriteBytes(path, "11\n 11\r\n011\nann\nann \nAnn\n11");
    List().FillScannedList(path, false, true);
    EXPECT_EQ(Ids(), (QStringList{u"11"_s, u"011"_s, u"ann"_s, u"Ann"_s}));
}

TEST_F(GatheredListTest, TwoHundredMegabytesComeInWithTheMessageLoopTurning) {
    constexpr int Lines = 18'200'000;
    const QString path = app->ProgramFile(u"huge.txt"_s);
    qint64 number = 1'000'000'000;
    int written = 0;
    app->files.WriteParts(path, [&](QByteArray& part) {
        for (int i = 0; i < 100'000; ++i, ++written)
            part += QByteArray::number(number += 7) + '\n';
        return written < Lines;
    });
    ASSERT_GT(QFileInfo(path).size(), 200'000'000);
    int turns = 0;
    platform->Pump().onPump = [&turns] { ++turns; };
    List().FillScannedList(path, false, false);
    EXPECT_EQ(app->state.arrFriendIDs.size(), Lines);
    EXPECT_EQ(app->state.arrFriendIDs.last(), QString::number(number));
    EXPECT_EQ(Rows().size(), ShownRows);
    EXPECT_GT(turns, Lines / 300);
}

TEST_F(GatheredListTest, ALongListIsSavedWholeAndWithoutATurn) {
    QStringList lines = Numbers(12'345);
    lines.insert(7000, u"ann"_s);
    const QString path = app->ProgramFile(u"long.txt"_s);
    app->files.WriteLines(path, lines);
    List().FillScannedList(path, false, false);
    platform->Pump().onPump = [] { FAIL() << "the list may change in a turn"; };
    List().SaveScannedList(List().ScopedPath());
    EXPECT_EQ(app->files.ReadLines(List().ScopedPath()), lines);
}

TEST_F(GatheredListTest, TheFileThatIsBeingReadIsNotWrittenOver) {
    QStringList lines = Numbers(1000);
    const QString path = List().ScopedPath();
    app->files.WriteLines(path, lines);
    int saves = 0;
    platform->Pump().onPump = [&] {
        if (app->state.blnFillingList && ++saves)
            List().SaveScannedList(path);
    };
    List().FillScannedList(path, true, false);
    EXPECT_GT(saves, 0);
    EXPECT_EQ(app->files.ReadLines(path), lines);
    EXPECT_EQ(Ids(), lines);
    // Any other file, and this one later, may be.
    Remove(0);
    List().SaveScannedList(path);
    EXPECT_EQ(app->files.ReadLines(path), lines.mid(1));
}

TEST_F(GatheredListTest, AnImportThatTheProgramsEndInterruptsLeavesTheListUnlocked) {
    app->files.WriteLines(app->ProgramFile(u"long.txt"_s), Numbers(1000));
    platform->Pump().onPump = [this] { app->state.blnClosing = true; };
    EXPECT_THROW(List().FillScannedList(app->ProgramFile(u"long.txt"_s), false, false), ProgramEnding);
    EXPECT_FALSE(app->state.blnFillingList);
    app->state.blnClosing = false;
    platform->Pump().onPump = {};
    // What had come by then is there, in order.
    EXPECT_EQ(Ids(), Numbers(static_cast<int>(Ids().size())));
}

TEST_F(GatheredListTest, StopDuringAnImportLetsItGoOn) {
    app->state.CurrentAction = u"SCANNING"_s;
    platform->Pump().onPump = [this] { app->commands.Run(u"picScanStop_Click"_s); };
    Import(Numbers(1000), Dialogs::Answer::No);
    EXPECT_EQ(Ids(), Numbers(1000));
    EXPECT_FALSE(app->state.blnFillingList);
}

TEST_F(GatheredListTest, WhatIsAddedDuringAnImportGivesWayToIt) {
    bool added = false;
    platform->Pump().onPump = [&] {
        if (!std::exchange(added, true))
            Add({u"777"_s});
    };
    Import(Numbers(600), Dialogs::Answer::No);
    EXPECT_TRUE(added);
    EXPECT_EQ(Ids(), Numbers(600));
}

TEST_F(GatheredListTest, ShuffleKeepsEveryEntryOfALongList) {
    app->state.arrFriendIDs = IdList(Numbers(250000));
    List().ArrayToListBox(u"test"_s);
    app->commands.Run(u"picRandomize_Click"_s);
    QStringList ids = Ids();
    EXPECT_NE(ids, Numbers(250000));
    std::sort(ids.begin(), ids.end());
    EXPECT_EQ(ids, Numbers(250000));
}

TEST_F(GatheredListTest, AListThatIsClearedDuringAShuffleStaysEmpty) {
    app->state.arrFriendIDs = IdList(Numbers(250000));
    List().ArrayToListBox(u"test"_s);
    platform->Pump().onPump = [this] { List().Clear(); };
    app->commands.Run(u"picRandomize_Click"_s);
    EXPECT_TRUE(List().IsEmpty());
    EXPECT_TRUE(Rows().isEmpty());
}

TEST_F(GatheredListTest, AListThatChangesWhileItIsSavedIsSavedAsItWas) {
    app->state.arrFriendIDs = IdList(Numbers(120000));
    dialogs.files.push_back(app->ProgramFile(u"out.txt"_s));
    platform->Pump().onPump = [this] { List().Clear(); };
    app->commands.Run(u"picSaveToFile_Click"_s);
    EXPECT_EQ(app->files.ReadLines(app->ProgramFile(u"out.txt"_s)), Numbers(120000));
    EXPECT_TRUE(List().IsEmpty());
}

TEST_F(GatheredListTest, AFailedSaveLeavesTheOldFile) {
    const QString path = app->ProgramFile(u"out.txt"_s);
    app->files.WriteLines(path, {u"5"_s});
    Add({u"1"_s});
    world.gate.readOnlyFolders << world.installationFolder;
    List().SaveScannedList(path);
    world.gate.readOnlyFolders.clear();
    EXPECT_EQ(app->files.ReadLines(path), QStringList{u"5"_s});
    EXPECT_TRUE(app->files.ReadBytes(app->state.ErrorLogPath).contains("SaveScannedList - form1"));
}

TEST_F(GatheredListTest, ShuffleOfOneRowLeavesIt) {
    Add({u"1"_s});
    app->commands.Run(u"picRandomize_Click"_s);
    EXPECT_EQ(Ids(), QStringList{u"1"_s});
    EXPECT_EQ(Rows(), Ids());
}

TEST_F(GatheredListTest, DeleteOnTheLastRowSelectsTheNewLastRow) {
    Add({u"1"_s, u"2"_s, u"3"_s});
    app->controls.SetSelected("lstFriendIDs"_L1, 2);
    app->commands.Run(u"lstFriendIDs_KeyDown"_s, 46);
    EXPECT_EQ(Ids(), (QStringList{u"1"_s, u"2"_s}));
    EXPECT_EQ(app->controls.Selected("lstFriendIDs"_L1), 1);
}

TEST_F(GatheredListTest, DeleteInTheMiddleKeepsTheRow) {
    Add({u"1"_s, u"2"_s, u"3"_s});
    app->controls.SetSelected("lstFriendIDs"_L1, 0);
    app->commands.Run(u"mnuContextIDsListItem_Click"_s, 2);
    EXPECT_EQ(Ids(), (QStringList{u"2"_s, u"3"_s}));
    EXPECT_EQ(app->controls.Selected("lstFriendIDs"_L1), 0);
}

TEST_F(GatheredListTest, OtherKeysAndNoSelectionDoNothing) {
    Add({u"1"_s});
    app->commands.Run(u"lstFriendIDs_KeyDown"_s, 46);
    app->controls.SetSelected("lstFriendIDs"_L1, 0);
    app->commands.Run(u"lstFriendIDs_KeyDown"_s, 13);
    EXPECT_EQ(Ids(), QStringList{u"1"_s});
}

TEST_F(GatheredListTest, GoToPageRefusesDuringARun) {
    Add({u"1"_s});
    app->controls.SetSelected("lstFriendIDs"_L1, 0);
    app->state.CurrentAction = u"FR"_s;
    app->WebBrowser1().SetSilent(false);
    app->commands.Run(u"lstFriendIDs_DblClick"_s);
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Please stop all other operations first"_s});
    EXPECT_TRUE(app->WebBrowser1().Silent());
}

} // namespace
} // namespace qlm
