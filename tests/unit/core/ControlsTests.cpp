// SPDX-License-Identifier: MIT
#include "core/Controls.h"

#include <QSet>
#include <gtest/gtest.h>

using namespace qlm;
using namespace Qt::Literals::StringLiterals;

TEST(Controls, EveryNameStandsOnceInTheTable) {
    QSet<QString> names;
    for (const ControlRow& row : Controls::Table()) {
        const QString name = QString::fromLatin1(row.name);
        EXPECT_FALSE(names.contains(name)) << row.name;
        names.insert(name);
    }
}

// What depends on the filter's choices settles on the final state only if this one is restored last.
TEST(Controls, TheFilterThatIsOffStandsLastOfItsKind) {
    QByteArray last;
    for (const ControlRow& row : Controls::Table())
        if (QByteArray(row.kind) == "Filter")
            last = row.name;
    EXPECT_EQ(last, "optFilterOff");
}

TEST(Controls, OneOptionOfEachGroupIsChosenAtMost) {
    QHash<QString, int> chosen;
    for (const ControlRow& row : Controls::Table())
        if (row.group[0] && row.ticked)
            ++chosen[QString::fromLatin1(row.group)];
    for (auto it = chosen.cbegin(); it != chosen.cend(); ++it)
        EXPECT_EQ(it.value(), 1) << it.key().toStdString();
}

TEST(Controls, ChoosingAnOptionUnticksTheOthersOfItsGroupAndTellsOfBoth) {
    Controls controls;
    QStringList told;
    controls.AddListener([&](const Control& control, Controls::Change change, int) {
        if (change == Controls::Change::Ticked)
            told.append(control.name + (control.ticked ? u" on"_s : u" off"_s));
    });
    controls.SetTicked("optScanCurrentPage"_L1, true);
    EXPECT_FALSE(controls.Ticked("optScanFollowing"_L1));
    EXPECT_TRUE(controls.Ticked("optQuickGather"_L1));
    EXPECT_EQ(told, (QStringList{u"optScanFollowing off"_s, u"optScanCurrentPage on"_s}));
}

TEST(Controls, AListKeepsItsSelectionOnTheSameRowWhenAnEarlierOneGoes) {
    Controls controls;
    controls.SetItems("lstFriendIDs"_L1, {u"1"_s, u"2"_s, u"3"_s});
    controls.SetSelected("lstFriendIDs"_L1, 2);
    controls.RemoveItem("lstFriendIDs"_L1, 0);
    EXPECT_EQ(controls.SelectedText("lstFriendIDs"_L1), u"3"_s);
    controls.RemoveItem("lstFriendIDs"_L1, 1);
    EXPECT_EQ(controls.Selected("lstFriendIDs"_L1), -1);
}

TEST(Controls, TheRowsOfAListBecomeAnArrayWhoseEmptyStateIsOneEmptyEntry) {
    Controls controls;
    QStringList array{u"old"_s, u"older"_s};
    controls.ListBoxToArray("lstFriendIDs"_L1, array);
    EXPECT_EQ(array, QStringList{QString()});
    controls.SetItems("lstFriendIDs"_L1, {u"1001"_s, u"1002"_s});
    controls.ListBoxToArray("lstFriendIDs"_L1, array);
    EXPECT_EQ(array, (QStringList{u"1001"_s, u"1002"_s}));
}

TEST(Controls, ACaptionIsShownWithItsLetterAndReadWithout) {
    Controls controls;
    EXPECT_EQ(controls.Text("frmInteken.cmdAdd"_L1), u"Add"_s);
    EXPECT_EQ(QString::fromUtf16(controls["frmInteken.cmdAdd"_L1].row->caption), u"&Add"_s);
    EXPECT_EQ((ControlRow{"x", ControlType::Button, u"&This && that"}.PlainCaption()), u"This & that"_s);
    EXPECT_EQ(controls["frmAccountDetails.txtEmail"_L1].row->SpokenName(), u"E-mail address"_s);
    EXPECT_EQ(controls["frmTimeDelay.txtMinutes"_L1].row->SpokenName(), u"From, minutes"_s);
}

TEST(Controls, WhatTheWindowShowsIsAValueThatTheLabelsSayInWords) {
    Controls controls;
    controls.SetProgress({3, 120});
    EXPECT_EQ(controls.Progress().number, 3);
    EXPECT_EQ(controls.Progress().total, 120);
    EXPECT_EQ(controls.Text("lblProgress"_L1), u"ID 3 of 120"_s);
    controls.SetProgress({});
    EXPECT_EQ(controls.Text("lblProgress"_L1), QString());
    controls.SetTimeDelay({true, {}});
    EXPECT_EQ(controls.Text("lblTimeDelay"_L1), u"Time Delay: ON"_s);
    controls.SetTimeDelay({true, 69});
    EXPECT_EQ(controls.TimeDelay().secondsLeft, 69);
    EXPECT_EQ(controls.Text("lblTimeDelay"_L1), u"Time Delay: 01:09"_s);
    controls.SetTimeDelay({});
    EXPECT_EQ(controls.Text("lblTimeDelay"_L1), u"Time Delay: OFF"_s);
}

TEST(Controls, AnUnknownNameIsAMistakeThatShows) {
    Controls controls;
    EXPECT_THROW(controls.SetText("txtNoSuchThing"_L1, u"x"_s), std::logic_error);
}

TEST(Controls, AListenerMayRemoveItself) {
    Controls controls;
    int calls = 0;
    int number = 0;
    number = controls.AddListener([&](const Control&, Controls::Change, int) {
        ++calls;
        controls.RemoveListener(number);
    });
    controls.SetText("txtAddress"_L1, u"a"_s);
    controls.SetText("txtAddress"_L1, u"b"_s);
    EXPECT_EQ(calls, 1);
}
