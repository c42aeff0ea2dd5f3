// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "browser/Cover.h"
#include "campaigns/Pacing.h"
#include "steps/StopResume.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class PacingTest : public SimulatedProgram {
protected:
    qint32 Draw(double number, qint32 upper, qint32 lower) {
        world.random.SetNumbers({number});
        return RandomBetween(*app, upper, lower);
    }

    void SetBounds(const QString& from, const QString& to) {
        world.settings.SaveSetting(u"General"_s, u"TimeDelayFrom"_s, from);
        world.settings.SaveSetting(u"General"_s, u"TimeDelayTo"_s, to);
        app->Get<Pacing>().ReadBounds();
        app->Get<Pacing>().UpdateTimeDelayLabel();
        app->state.CurrentAction = u"FR"_s;
    }

    qint64 SecondsOfDelay() {
        const qint64 startMs = world.clock.NowMs();
        Waiting::LeaveHere([this] {
            const Waiting::Owned step(app->waiting);
            app->Get<Pacing>().DoDelay();
        });
        return (world.clock.NowMs() - startMs) / 1000;
    }

    QString Label() { return app->controls.Text("lblTimeDelay"_L1); }
};

TEST_F(PacingTest, ARandomNumberLiesBetweenItsBoundsAndOneAbove) {
    EXPECT_EQ(Draw(0.0, 10, 5), 5);
    EXPECT_EQ(Draw(0.999, 10, 5), 11);
    EXPECT_EQ(Draw(0.5, 10, 5), 8);
}

TEST_F(PacingTest, ARandomNumberIsRoundedHalfToEven) {
    EXPECT_EQ(Draw(0.5, 1, 1), 2); // 1.5
    EXPECT_EQ(Draw(0.5, 2, 2), 2); // 2.5
}

TEST_F(PacingTest, ASpanOfNothingGivesTheLowerBound) {
    EXPECT_EQ(Draw(0.999, 4, 5), 5);
}

TEST_F(PacingTest, ARandomTextHoldsSmallLettersAndDigits) {
    world.random.SetNumbers({0.0, 0.27, 0.28, 0.9999});
    EXPECT_EQ(RandomLowerAlnum(*app, 4), u"09az"_s);
    EXPECT_EQ(RandomLowerAlnum(*app, 0), QString());
}

TEST_F(PacingTest, EqualBoundsWaitOneSecondMore) {
    SetBounds(u"5"_s, u"5"_s);
    EXPECT_EQ(Label(), u"Time Delay: ON"_s);
    EXPECT_EQ(SecondsOfDelay(), 6);
    EXPECT_EQ(Label(), u"Time Delay: ON"_s);
}

TEST_F(PacingTest, TheDelayHoldsThePageCheckAndLiftsTheHoldAtItsEnd) {
    SetBounds(u"5"_s, u"5"_s);
    app->timers->tmrAutoResume.Restart();
    bool alwaysHeld = true;
    platform->Pump().onPump = [&] {
        alwaysHeld = alwaysHeld && app->state.blnHoldLinkCheck && app->state.blnInDelay &&
                     !app->timers->tmrAutoResume.Enabled();
    };
    app->Get<Pacing>().DoDelay();
    EXPECT_TRUE(alwaysHeld);
    EXPECT_FALSE(app->state.blnHoldLinkCheck || app->state.blnInDelay);
    EXPECT_TRUE(app->timers->tmrAutoResume.Enabled());
}

TEST_F(PacingTest, TheLongestWaitIsOneSecondBeyondTheUpperBound) {
    SetBounds(u"60"_s, u"120"_s);
    world.random.SetNumbers({0.9999});
    EXPECT_EQ(SecondsOfDelay(), 121);
    world.random.SetNumbers({0.0});
    EXPECT_EQ(SecondsOfDelay(), 61);
}

TEST_F(PacingTest, ASingleBoundStillWaits) {
    SetBounds(u"0"_s, u"10"_s);
    world.random.SetNumbers({0.5});
    EXPECT_EQ(SecondsOfDelay(), 6);
}

TEST_F(PacingTest, WithoutBoundsNothingIsWaitedAndNothingCovered) {
    SetBounds(u"0"_s, u"0"_s);
    app->Get<Cover>().Hide();
    EXPECT_EQ(SecondsOfDelay(), 0);
    EXPECT_EQ(app->webHide().Position(), 1);
    EXPECT_EQ(Label(), u"Time Delay: OFF"_s);
}

TEST_F(PacingTest, BoundsThatCannotBeReadCountAsNothing) {
    SetBounds(u"soon"_s, u"99999999999"_s);
    EXPECT_EQ(app->state.lngTimeDelayFrom, 0);
    EXPECT_EQ(app->state.lngTimeDelayTo, 0);
}

TEST_F(PacingTest, TheCountdownShowsMinutesAndSecondsOverTheCover) {
    SetBounds(u"70"_s, u"70"_s);
    QStringList shown;
    app->controls.AddListener([&](const Control& control, Controls::Change, int) {
        if (control.name == "lblTimeDelay"_L1)
            shown.append(control.text);
    });
    bool covered = false;
    platform->Pump().onPump = [&] { covered = covered || app->webHide().Position() == 0; };
    app->Get<Pacing>().DoDelay();
    EXPECT_TRUE(covered);
    EXPECT_TRUE(shown.contains(u"Time Delay: 01:10"_s));
    EXPECT_TRUE(shown.contains(u"Time Delay: 00:09"_s));
    EXPECT_EQ(shown.count(u"Time Delay: 00:09"_s), 1);
}

TEST_F(PacingTest, SkipEndsTheDelayAndLiftsTheHold) {
    SetBounds(u"60"_s, u"60"_s);
    platform->Pump().onPump = [&] { app->Get<StopResume>().SkipProfile(); };
    EXPECT_EQ(SecondsOfDelay(), 0);
    EXPECT_FALSE(app->state.blnSkipRequested);
    EXPECT_FALSE(app->state.blnHoldLinkCheck);
}

TEST_F(PacingTest, StopEndsTheDelayAndItsHoldStays) {
    SetBounds(u"60"_s, u"60"_s);
    platform->Pump().onPump = [&] { app->Get<StopResume>().StopAll(StopReason::WindowStop); };
    EXPECT_EQ(SecondsOfDelay(), 0);
    EXPECT_TRUE(app->state.blnHoldLinkCheck);
    EXPECT_FALSE(app->state.blnInDelay);
}

TEST_F(PacingTest, WhileItIsLentTheCoverCoversNothingAndShowsNoOtherPage) {
    SetBounds(u"5"_s, u"5"_s);
    app->Get<Cover>().Lend();
    app->Get<Cover>().Show();
    EXPECT_EQ(app->webHide().Position(), 1);
    app->webHide().Navigate(u"http://www.example.com/fetched"_s);
    app->Get<Cover>().Clear();
    EXPECT_EQ(SecondsOfDelay(), 6);
    EXPECT_FALSE(platform->Browser(BrowserName::webHide).TakeVisited().join(u' ').contains(u"timedelay"_s));
    app->Get<Cover>().TakeBack();
    EXPECT_EQ(app->webHide().Position(), 1);
    // Taken back within a delay, it covers again.
    bool wasLent = false;
    bool covered = false;
    platform->Pump().onPump = [&] {
        if (std::exchange(wasLent, true)) {
            covered = covered || app->webHide().Position() == 0;
            return;
        }
        app->Get<Cover>().Lend();
        EXPECT_EQ(app->webHide().Position(), 1);
        app->Get<Cover>().TakeBack();
    };
    app->Get<Pacing>().DoDelay();
    EXPECT_TRUE(covered);
}

} // namespace
} // namespace qlm
