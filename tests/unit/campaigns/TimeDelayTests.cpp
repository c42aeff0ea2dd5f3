// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "campaigns/TimeDelayDialog.h"

#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

TEST(TimeDelaySeconds, AreMinutesTimesSixtyAndSeconds) {
    EXPECT_EQ(SecondsInInteger(u"2"_s, u"5"_s), 125);
    EXPECT_EQ(SecondsInInteger(u"0"_s, u"0"_s), 0);
}

TEST(TimeDelaySeconds, FractionsAreRoundedHalfToEven) {
    EXPECT_EQ(SecondsInInteger(u"0"_s, u"2.5"_s), 2);
    EXPECT_EQ(SecondsInInteger(u"0"_s, u"3.5"_s), 4);
}

TEST(TimeDelaySeconds, ReachTheLastSixteenBitNumber) {
    EXPECT_EQ(SecondsInInteger(u"546"_s, u"7"_s), 32767);
    EXPECT_THROW(SecondsInInteger(u"546"_s, u"8"_s), std::overflow_error);
}

TEST(TimeDelaySeconds, SixHundredMinutesOverflow) {
    EXPECT_THROW(SecondsInInteger(u"600"_s, u"0"_s), std::overflow_error);
    EXPECT_THROW(SecondsInInteger(u"0"_s, u"40000"_s), std::overflow_error);
    EXPECT_THROW(SecondsInInteger(u"99999999999"_s, u"0"_s), std::overflow_error);
}

TEST(TimeDelaySeconds, WordsAreNoNumbers) {
    EXPECT_THROW(SecondsInInteger(u"one"_s, u"0"_s), std::invalid_argument);
    EXPECT_THROW(SecondsInInteger(u"0"_s, {}), std::invalid_argument);
}

class TimeDelayDialogTest : public SimulatedProgram {
protected:
    QStringList Fields() {
        QStringList texts;
        for (const auto field : {"frmTimeDelay.txtMinutes"_L1, "frmTimeDelay.txtSeconds"_L1,
                                 "frmTimeDelay.txtMinutes2"_L1, "frmTimeDelay.txtSeconds2"_L1})
            texts += app->controls.Text(field);
        return texts;
    }
    void Store(const QString& key, const QString& value) {
        world.settings.SaveSetting(u"Field Entries"_s, key, value);
    }
};

TEST_F(TimeDelayDialogTest, EachFieldHasItsOwnKey) {
    Store(u"txtTimeDelayMinutes"_s, u"1"_s);
    Store(u"txtTimeDelaySeconds"_s, u"2"_s);
    Store(u"txtTimeDelayMinutes2"_s, u"3"_s);
    Store(u"txtTimeDelaySeconds2"_s, u"4"_s);
    app->commands.Run(u"mnuTimeDelay_Click"_s);
    EXPECT_EQ(Fields(), (QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s}));
    app->controls.SetText("frmTimeDelay.txtSeconds2"_L1, u"5"_s);
    app->commands.Run(u"frmTimeDelay.cmdOK_Click"_s);
    QStringList stored;
    for (const QString& key : {u"txtTimeDelayMinutes"_s, u"txtTimeDelaySeconds"_s, u"txtTimeDelayMinutes2"_s,
                               u"txtTimeDelaySeconds2"_s})
        stored += world.settings.GetSetting(u"Field Entries"_s, key, {});
    EXPECT_EQ(stored, (QStringList{u"1"_s, u"2"_s, u"3"_s, u"5"_s}));
    EXPECT_EQ(world.settings.GetSetting(u"General"_s, u"TimeDelayFrom"_s, {}), u"62"_s);
    EXPECT_EQ(world.settings.GetSetting(u"General"_s, u"TimeDelayTo"_s, {}), u"185"_s);
}

TEST_F(TimeDelayDialogTest, TheSecondBoundTakesTheFirstOverOnlyWhileBothItsFieldsAreNothing) {
    app->commands.Run(u"mnuTimeDelay_Click"_s);
    EXPECT_EQ(Fields(), QStringList(4, u"0"_s));
    Store(u"txtTimeDelayMinutes"_s, u"1"_s);
    Store(u"txtTimeDelaySeconds"_s, u"2"_s);
    app->commands.Run(u"mnuTimeDelay_Click"_s);
    EXPECT_EQ(Fields(), (QStringList{u"1"_s, u"2"_s, u"1"_s, u"2"_s}));
    Store(u"txtTimeDelaySeconds2"_s, u"4"_s);
    app->commands.Run(u"mnuTimeDelay_Click"_s);
    EXPECT_EQ(Fields(), (QStringList{u"1"_s, u"2"_s, u"0"_s, u"4"_s}));
}

TEST_F(TimeDelayDialogTest, OnlyTheFirstBoundsFieldsAreSetRightWhenTheyAreLeft) {
    for (const auto field : {"txtMinutes"_L1, "txtSeconds"_L1, "txtMinutes2"_L1, "txtSeconds2"_L1}) {
        const QByteArray name = QByteArray("frmTimeDelay.") + field.data();
        app->controls.SetText(QLatin1StringView(name), u"x"_s);
        app->commands.Run(QString::fromLatin1(name) + u"_LostFocus"_s);
    }
    EXPECT_EQ(Fields(), (QStringList{u"0"_s, u"0"_s, u"x"_s, u"x"_s}));
}

} // namespace
} // namespace qlm
