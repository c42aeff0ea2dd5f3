// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "gather/BlackList.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

// The window of the black list as its user works it, and what reaches the scan.
class BlackListTest : public SimulatedProgram {
protected:
    void Open(const std::function<void()>& act) {
        dialogs.onModal[u"frmBlacklist"_s] = act;
        app->commands.Run(u"piccmdBlackList_Click"_s);
    }
    void Press(const QString& button) { app->commands.Run(u"frmBlacklist."_s + button + u"_Click"_s); }
    void Add(const QString& id) {
        app->controls.SetText("frmBlacklist.txtID"_L1, id);
        Press(u"cmdAdd"_s);
    }
    void AddFromFile(const QStringList& lines, Dialogs::Answer answer) {
        const QString path = app->ProgramFile(u"more.txt"_s);
        app->files.WriteLines(path, lines);
        dialogs.files.push_back(path);
        dialogs.answers.push_back(answer);
        Press(u"cmdAddFromFile"_s);
    }
    void Delete(int row) {
        app->controls.SetSelected("frmBlacklist.lstFriendIDs"_L1, row);
        Press(u"cmdDelete"_s);
    }
    void Stands(const QStringList& lines) { app->files.WriteLines(app->Get<BlackList>().Path(), lines); }
    QStringList Lines() { return app->files.ReadLines(app->Get<BlackList>().Path()); }
    const QStringList& Rows() { return app->controls.Items("frmBlacklist.lstFriendIDs"_L1); }
    QStringList Known() { return app->state.arrBlacklistIDs.ToStringList(); }
};

TEST_F(BlackListTest, ShowsTheLinesOfTheFileTrimmed) {
    Stands({u"11"_s, u""_s, u" 12 "_s, u"11"_s});
    Open([this] { EXPECT_EQ(Rows(), (QStringList{u"11"_s, u"12"_s, u"11"_s})); });
}

TEST_F(BlackListTest, AFileThatIsMissingIsCreated) {
    Open([this] {
        EXPECT_TRUE(app->files.FileExists(app->Get<BlackList>().Path()));
        EXPECT_TRUE(Rows().isEmpty());
    });
    EXPECT_EQ(Known(), QStringList{QString()});
}

TEST_F(BlackListTest, WhileTheWindowIsFilledItCannotBeAddedToOrClosed) {
    QStringList lines;
    for (int i = 1; i <= 1000; ++i)
        lines.append(QString::number(i));
    Stands(lines);
    const auto buttons = {"frmBlacklist.cmdAdd"_L1, "frmBlacklist.cmdAddFromFile"_L1,
                          "frmBlacklist.cmdClose"_L1};
    int turns = 0;
    platform->Pump().onPump = [&] {
        ++turns;
        for (const auto button : buttons)
            EXPECT_FALSE(app->controls[button].enabled) << button.data();
        EXPECT_EQ(app->controls.Pointer(), PointerShape::Busy);
    };
    app->Get<BlackList>().FillBlacklist(app->Get<BlackList>().Path(), false, false);
    EXPECT_GT(turns, 0);
    for (const auto button : buttons)
        EXPECT_TRUE(app->controls[button].enabled) << button.data();
    EXPECT_EQ(app->controls.Pointer(), PointerShape::Usual);
}

TEST_F(BlackListTest, AddAppendsALineAndARowAlsoASecondTime) {
    Stands({u"11"_s});
    Open([this] {
        Add(u"12"_s);
        Add(u"11"_s);
        EXPECT_EQ(Rows(), (QStringList{u"11"_s, u"12"_s, u"11"_s}));
        EXPECT_EQ(Lines(), Rows());
        EXPECT_EQ(app->controls.Text("frmBlacklist.txtID"_L1), QString());
    });
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(BlackListTest, AddWantsAnID) {
    Open([this] { Add({}); });
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Please specify an ID to add to the blacklist"_s});
    EXPECT_TRUE(Lines().isEmpty());
}

TEST_F(BlackListTest, WhatIsAddedReachesTheScanWhenTheWindowIsClosed) {
    Stands({u"11"_s});
    app->Get<BlackList>().FillArrayFromFile(u"arrBlacklistIDs"_s, app->Get<BlackList>().Path());
    Open([this] {
        Add(u"12"_s);
        EXPECT_EQ(Known(), QStringList{u"11"_s});
    });
    EXPECT_EQ(Known(), (QStringList{u"11"_s, u"12"_s}));
    EXPECT_TRUE(Rows().isEmpty());
}

TEST_F(BlackListTest, AddFromFileWritesEachLineToTheFileToo) {
    Stands({u"11"_s});
    Open([this] {
        AddFromFile({u"12"_s, u""_s, u" 11 "_s, u"12"_s}, Dialogs::Answer::No);
        EXPECT_EQ(Rows(), (QStringList{u"11"_s, u"12"_s, u"11"_s, u"12"_s}));
        EXPECT_EQ(Lines(), Rows());
    });
    EXPECT_EQ(dialogs.Texts(),
              QStringList{u"Do you want Quillmere to check the list for duplicate ID's? This is recommended, "
                          "but may take a while if you are importing a large list."_s});
}

TEST_F(BlackListTest, YesLeavesDuplicatesOut) {
    Stands({u"11"_s});
    Open([this] {
        AddFromFile({u"12"_s, u"11"_s, u"12"_s, u"13"_s}, Dialogs::Answer::Yes);
        EXPECT_EQ(Rows(), (QStringList{u"11"_s, u"12"_s, u"13"_s}));
        EXPECT_EQ(Lines(), Rows());
    });
}

TEST_F(BlackListTest, CancelReadsNothingAndTheButtonsWorkAgain) {
    Open([this] {
        AddFromFile({u"12"_s}, Dialogs::Answer::Cancel);
        dialogs.files.push_back({});
        Press(u"cmdAddFromFile"_s);
        for (const auto button : {"frmBlacklist.txtID"_L1, "frmBlacklist.cmdAdd"_L1,
                                  "frmBlacklist.cmdDelete"_L1, "frmBlacklist.cmdClose"_L1})
            EXPECT_TRUE(app->controls[button].enabled) << button.data();
    });
    EXPECT_TRUE(Lines().isEmpty());
    EXPECT_EQ(app->controls.Pointer(), PointerShape::Usual);
}

TEST_F(BlackListTest, WhileAFileIsAddedTheButtonsRest) {
    QStringList many;
    for (int i = 0; i < 300; ++i)
        many.append(QString::number(i));
    Open([&] {
        bool enabled = true;
        platform->Pump().onPump = [&] {
            for (const auto name :
                 {"frmBlacklist.txtID"_L1, "frmBlacklist.cmdAdd"_L1, "frmBlacklist.cmdAddFromFile"_L1,
                  "frmBlacklist.cmdDelete"_L1, "frmBlacklist.cmdClearList"_L1, "frmBlacklist.cmdClose"_L1})
                EXPECT_FALSE(app->controls[name].enabled) << name.data();
            EXPECT_EQ(app->controls.Pointer(), PointerShape::Busy);
            enabled = false;
        };
        AddFromFile(many, Dialogs::Answer::No);
        platform->Pump().onPump = {};
        EXPECT_FALSE(enabled) << "the message loop has not turned";
    });
}

TEST_F(BlackListTest, TheBlackListsOwnFileIsAddedOnce) {
    Stands({u"11"_s, u"12"_s});
    Open([this] {
        dialogs.files.push_back(app->Get<BlackList>().Path());
        dialogs.answers.push_back(Dialogs::Answer::No);
        Press(u"cmdAddFromFile"_s);
    });
    EXPECT_EQ(Lines(), (QStringList{u"11"_s, u"12"_s, u"11"_s, u"12"_s}));
}

TEST_F(BlackListTest, DeleteTakesEveryLineThatIsTheIDAndOneRow) {
    Stands({u"11"_s, u"12"_s, u"11"_s, u"112"_s});
    Open([this] {
        Delete(0);
        EXPECT_EQ(Rows(), (QStringList{u"12"_s, u"11"_s, u"112"_s}));
        EXPECT_EQ(Lines(), (QStringList{u"12"_s, u"112"_s}));
    });
    EXPECT_EQ(app->files.ReadLines(app->ProgramFile(u"blacklistedids_temp.txt"_s)), Lines());
    EXPECT_EQ(Known(), (QStringList{u"12"_s, u"112"_s}));
}

TEST_F(BlackListTest, DeleteWithoutASelectionDoesNothing) {
    Stands({u"11"_s});
    Open([this] { Delete(-1); });
    EXPECT_EQ(Lines(), QStringList{u"11"_s});
    EXPECT_FALSE(app->files.FileExists(app->ProgramFile(u"blacklistedids_temp.txt"_s)));
}

TEST_F(BlackListTest, ClearAsksFirst) {
    Stands({u"11"_s, u"12"_s});
    Open([this] {
        dialogs.answers = {Dialogs::Answer::No, Dialogs::Answer::Yes};
        Press(u"cmdClearList"_s);
        EXPECT_EQ(Lines().size(), 2);
        EXPECT_EQ(Rows().size(), 2);
        Press(u"cmdClearList"_s);
        EXPECT_TRUE(Rows().isEmpty());
    });
    EXPECT_TRUE(Lines().isEmpty());
    EXPECT_EQ(dialogs.Texts()[0],
              u"You are about to clear all ID's from the Black List. Are you sure you want to continue?"_s);
    EXPECT_EQ(Known(), QStringList{QString()});
}

TEST_F(BlackListTest, AnEmptyPathDoesNothing) {
    app->state.arrBlacklistIDs = {u"5"_s};
    app->Get<BlackList>().FillArrayFromFile(u"arrBlacklistIDs"_s, {});
    app->Get<BlackList>().FillBlacklist({}, false, true);
    EXPECT_EQ(Known(), QStringList{u"5"_s});
}

TEST_F(BlackListTest, AnotherArraysNameChangesNothing) {
    Stands({u"11"_s});
    app->state.arrBlacklistIDs = {u"5"_s};
    app->Get<BlackList>().FillArrayFromFile(u"arrOther"_s, app->Get<BlackList>().Path());
    EXPECT_EQ(Known(), QStringList{u"5"_s});
}

TEST_F(BlackListTest, WhatCannotBeWrittenIsNotShownAndIsReported) {
    Stands({u"11"_s});
    Open([this] {
        world.gate.readOnlyFolders << world.installationFolder;
        Add(u"12"_s);
        EXPECT_EQ(Rows(), QStringList{u"11"_s});
        EXPECT_EQ(app->controls.Text("frmBlacklist.txtID"_L1), u"12"_s);
        Delete(0);
        EXPECT_EQ(Rows(), QStringList{u"11"_s});
        const QString path = world.dataFolder + u"/more.txt"_s;
        app->files.WriteLines(path, {u"13"_s, u"14"_s});
        dialogs.files.push_back(path);
        dialogs.answers.push_back(Dialogs::Answer::No);
        Press(u"cmdAddFromFile"_s);
        EXPECT_EQ(Rows(), QStringList{u"11"_s});
        EXPECT_TRUE(app->controls["frmBlacklist.cmdClose"_L1].enabled);
        world.gate.readOnlyFolders.clear();
    });
    EXPECT_EQ(Lines(), QStringList{u"11"_s});
    EXPECT_TRUE(app->files.ReadBytes(app->state.ErrorLogPath).contains("cmdAdd_Click"));
}

TEST_F(BlackListTest, FiveHundredThousandLines) {
    QByteArray lines;
    for (int i = 0; i < 500000; ++i)
        lines += QByteArray::number(100000000 + i * 3) + "\n";
    app->files.WriteBytes(app->Get<BlackList>().Path(), lines);
    int turns = 0;
    platform->Pump().onPump = [&turns] { ++turns; };
    Open([this] {
        EXPECT_EQ(Rows().size(), 500000);
        Delete(250000);
        EXPECT_EQ(Rows().size(), 499999);
    });
    EXPECT_EQ(app->state.arrBlacklistIDs.size(), 499999);
    EXPECT_TRUE(app->state.arrBlacklistIDs.contains(u"100000003"_s));
    EXPECT_FALSE(app->state.arrBlacklistIDs.contains(u"100750000"_s));
    EXPECT_FALSE(app->state.arrBlacklistIDs.contains(u"100000004"_s));
    // Twice read, once for the window and once for the scan.
    EXPECT_GT(turns, 2 * 500000 / 300);
}

} // namespace
} // namespace qlm
