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
