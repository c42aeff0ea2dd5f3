// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "core/LongWait.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class LongWaitTest : public SimulatedProgram {
protected:
    LongWaitTest() {
        world.clock.SetNow(QDateTime(QDate(2009, 6, 1), QTime(10, 0)));
        app->state.CurrentAction = u"SCANNING"_s;
    }
    QString Line() { return app->controls.Text("lblWaitingFor"_L1); }
    void Pass(int seconds) { platform->Pump().RunFor(seconds * qint64(1000)); }
    // A wait that ends after so many seconds; look is asked in its last turn.
    void WaitFor(const QString& what, int seconds, const std::function<void()>& look) {
        const qint64 startMs = app->Pump().NowMs();
        app->waiting.WaitFor(what, [&, seconds] {
            const bool goesOn = app->waiting.SecondsSince(startMs) < seconds;
            if (!goesOn)
                look();
            return goesOn;
        });
    }
};

const QString Sentence = u"Waiting since 10:00:00 for a page. Press Stop to go on without it."_s;

TEST_F(LongWaitTest, IsToldAfterTwoMinutesAndTakesItsLineWithIt) {
    WaitFor(u"a page"_s, 120, [this] { EXPECT_EQ(Line(), QString()); });
    {
        LongWait wait(*app, u"a page"_s);
        Pass(121);
        wait.Tell();
        EXPECT_EQ(Line(), u"Waiting since 10:02:00 for a page. Press Stop to go on without it."_s);
    }
    EXPECT_EQ(Line(), QString());
}

TEST_F(LongWaitTest, NamesSkipWhereItHelps) {
    struct Row {
        const char16_t* action;
        bool chaining;
        bool skips;
    };
    for (const Row& row : {Row{u"FR", false, true}, Row{u"MSG", false, true}, Row{u"COM", false, true},
                           Row{u"BUL", false, true}, Row{u"LOGIN", false, false}, Row{u"LOGIN", true, true},
                           Row{u"SCANNING", false, false}, Row{u"ACC", false, false}}) {
        app->state.CurrentAction = QString::fromUtf16(row.action);
        app->state.blnChaining = row.chaining;
        LongWait wait(*app, u"a page"_s);
        Pass(121);
        wait.Tell();
        EXPECT_EQ(Line().contains(u"Press Skip or Stop"_s), row.skips) << Line().toStdString();
        EXPECT_TRUE(Line().endsWith(u"Stop to go on without it."_s));
    }
}

TEST_F(LongWaitTest, GoesByTheTimeThatPassesAndNotByTheClockOnTheWall) {
    LongWait wait(*app, u"a page"_s);
    world.clock.SetNow(QDateTime(QDate(2009, 6, 1), QTime(11, 0)));
    wait.Tell();
    EXPECT_EQ(Line(), QString());
    world.clock.SetNow(QDateTime(QDate(2009, 6, 1), QTime(9, 0)));
    Pass(121);
    wait.Tell();
    EXPECT_EQ(Line(), Sentence);
}

TEST_F(LongWaitTest, InsideAWaitForTheSameItGoesOnAndForAnotherItBeginsAnew) {
    WaitFor(u"a page"_s, 60, [this] {
        WaitFor(u"a page"_s, 70, [this] { EXPECT_EQ(Line(), Sentence); });
        WaitFor(u"another"_s, 70, [this] { EXPECT_EQ(Line(), QString()); });
    });
}

TEST_F(LongWaitTest, SaysNothingOnceNothingRuns) {
    LongWait wait(*app, u"a page"_s);
    app->state.CurrentAction.clear();
    Pass(300);
    wait.Tell();
    EXPECT_EQ(Line(), QString());
}

TEST_F(LongWaitTest, LeavesTheLineOfAnotherWait) {
    LongWait other(*app, u"another"_s);
    {
        LongWait wait(*app, u"a page"_s);
        Pass(121);
        wait.Tell();
        other.Tell();
    }
    EXPECT_EQ(Line(), u"Waiting since 10:00:00 for another. Press Stop to go on without it."_s);
}

} // namespace
} // namespace qlm
