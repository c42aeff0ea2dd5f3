// SPDX-License-Identifier: MIT
#include "PrintText.h"
#include "platform/MessageQueue.h"

#include <QString>
#include <QStringList>
#include <gtest/gtest.h>
#include <optional>
#include <stdexcept>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

class MessageQueueTests : public ::testing::Test {
protected:
    std::function<void()> Note(const QString& word) {
        return [this, word] { order += word; };
    }
    void PassTime(qint64 milliseconds) { nowMs += milliseconds; }
    void Turn(qint64 milliseconds) {
        PassTime(milliseconds);
        queue.Deliver();
    }

    qint64 nowMs = 0;
    MessageQueue queue{[this] { return nowMs; }};
    QStringList order;
};

TEST_F(MessageQueueTests, NothingRunsBeforeItIsDelivered) {
    queue.Post(Note(u"event"_s));
    EXPECT_TRUE(order.isEmpty());
    queue.Deliver();
    EXPECT_EQ(order, QStringList{u"event"_s});
    queue.Deliver();
    EXPECT_EQ(order.size(), 1);
}

TEST_F(MessageQueueTests, NothingIsDeliveredEarly) {
    queue.PostAt(100, Note(u"later"_s));
    const Timer timer(queue, 100, true, Note(u"timer"_s));
    Turn(99);
    EXPECT_TRUE(order.isEmpty());
    Turn(1);
    EXPECT_EQ(order, (QStringList{u"later"_s, u"timer"_s}));
}

TEST_F(MessageQueueTests, TheEarlierDueComesFirst) {
    queue.PostAt(30, Note(u"third"_s));
    const Timer timer(queue, 20, true, Note(u"second"_s));
    queue.PostAt(10, Note(u"first"_s));
    Turn(30);
    EXPECT_EQ(order, (QStringList{u"first"_s, u"second"_s, u"third"_s}));
}

TEST_F(MessageQueueTests, EqualTimesComeInTheOrderInWhichTheyWereSet) {
    const Timer one(queue, 10, true, Note(u"timer one"_s));
    queue.PostAt(10, Note(u"event"_s));
    const Timer two(queue, 10, true, Note(u"timer two"_s));
    Turn(10);
    EXPECT_EQ(order, (QStringList{u"timer one"_s, u"event"_s, u"timer two"_s}));
}

TEST_F(MessageQueueTests, ATimerComesAgainAfterEachInterval) {
    const Timer timer(queue, 100, true, Note(u"tick"_s));
    for (int i = 0; i < 10; ++i)
        Turn(50);
    EXPECT_EQ(order.size(), 5);
}

TEST_F(MessageQueueTests, MissedTicksAreNotMadeUpFor) {
    const Timer timer(queue, 100, true, Note(u"tick"_s));
    Turn(1000);
    EXPECT_EQ(order.size(), 1);
    Turn(99);
    EXPECT_EQ(order.size(), 1);
    Turn(1);
    EXPECT_EQ(order.size(), 2);
}

TEST_F(MessageQueueTests, AStoppedTimerNeverFires) {
    Timer timer(queue, 10, true, Note(u"tick"_s));
    PassTime(20);
    timer.SetEnabled(false);
    queue.Deliver();
    Turn(100);
    EXPECT_TRUE(order.isEmpty());
}

TEST_F(MessageQueueTests, ATimerStoppedByAnEarlierHandlerOfTheSameTurnDoesNotFire) {
    Timer timer(queue, 10, true, Note(u"tick"_s));
    queue.PostAt(5, [&] { timer.SetEnabled(false); });
    Turn(20);
    EXPECT_TRUE(order.isEmpty());
}

TEST_F(MessageQueueTests, AnIntervalOfZeroNeverFires) {
    Timer timer(queue, 0, true, Note(u"tick"_s));
    Turn(1000);
    EXPECT_TRUE(order.isEmpty());
    EXPECT_TRUE(timer.Enabled());
    EXPECT_EQ(queue.NextDueMs(), std::nullopt);
}

TEST_F(MessageQueueTests, EnablingAnEnabledTimerDoesNotDelayIt) {
    Timer timer(queue, 100, true, Note(u"tick"_s));
    PassTime(60);
    timer.SetEnabled(true);
    Turn(40);
    EXPECT_EQ(order.size(), 1);
}

TEST_F(MessageQueueTests, EnablingAStoppedTimerBeginsTheIntervalAnew) {
    Timer timer(queue, 100, false, Note(u"tick"_s));
    PassTime(500);
    timer.SetEnabled(true);
    Turn(99);
    EXPECT_TRUE(order.isEmpty());
    Turn(1);
    EXPECT_EQ(order.size(), 1);
}

TEST_F(MessageQueueTests, RestartAndANewIntervalBeginAnew) {
    Timer timer(queue, 100, true, Note(u"tick"_s));
    PassTime(90);
    timer.Restart();
    Turn(90);
    EXPECT_TRUE(order.isEmpty());
    timer.SetInterval(30);
    Turn(29);
    EXPECT_TRUE(order.isEmpty());
    Turn(1);
    EXPECT_EQ(order.size(), 1);
    EXPECT_EQ(timer.Interval(), 30);
}

TEST_F(MessageQueueTests, RestartEnablesAStoppedTimer) {
    Timer timer(queue, 10, false, Note(u"tick"_s));
    timer.Restart();
    EXPECT_TRUE(timer.Enabled());
    Turn(10);
    EXPECT_EQ(order.size(), 1);
}

TEST_F(MessageQueueTests, ATimerDoesNotFireInsideItsOwnHandler) {
    int depth = 0;
    int deepest = 0;
    const Timer timer(queue, 10, true, [&] {
        deepest = std::max(deepest, ++depth);
        for (int i = 0; i < 5; ++i)
            Turn(10);
        --depth;
    });
    Turn(10);
    EXPECT_EQ(deepest, 1);
}

TEST_F(MessageQueueTests, WhatFellDueInATimersOwnHandlerIsSwallowed) {
    const Timer timer(queue, 10, true, [&] {
        order += u"tick"_s;
        PassTime(10);
    });
    Turn(10);
    queue.Deliver();
    EXPECT_EQ(order.size(), 1);
    Turn(10);
    EXPECT_EQ(order.size(), 2);
}

TEST_F(MessageQueueTests, OtherTimersFireInsideAHandler) {
    const Timer other(queue, 15, true, Note(u"other"_s));
    const Timer timer(queue, 10, true, [&] {
        order += u"in"_s;
        Turn(20);
        order += u"out"_s;
    });
    Turn(10);
    EXPECT_EQ(order, (QStringList{u"in"_s, u"other"_s, u"out"_s}));
}

TEST_F(MessageQueueTests, ANestedDeliveryGoesOnWithWhatIsLeft) {
    queue.Post([&] {
        order += u"first in"_s;
        queue.Deliver();
        order += u"first out"_s;
    });
    queue.Post(Note(u"second"_s));
    queue.Deliver();
    EXPECT_EQ(order, (QStringList{u"first in"_s, u"second"_s, u"first out"_s}));
}

TEST_F(MessageQueueTests, WhatAHandlerPostsWaitsForTheNextDelivery) {
    std::function<void()> again = [&] {
        order += u"round"_s;
        queue.Post(again);
    };
    queue.Post(again);
    queue.Deliver();
    EXPECT_EQ(order.size(), 1);
    queue.Deliver();
    EXPECT_EQ(order.size(), 2);
}

TEST_F(MessageQueueTests, ATimerRestartedInItsHandlerBeginsAnew) {
    Timer timer(queue, 10, true);
    timer.SetHandler([&] {
        order += u"tick"_s;
        timer.SetEnabled(false);
        PassTime(5);
        timer.Restart();
    });
    Turn(10);
    Turn(9);
    EXPECT_EQ(order.size(), 1);
    Turn(1);
    EXPECT_EQ(order.size(), 2);
}

TEST_F(MessageQueueTests, ATimerMayStopItself) {
    Timer timer(queue, 10, true);
    timer.SetHandler([&] {
        order += u"tick"_s;
        timer.SetEnabled(false);
        Turn(50);
    });
    Turn(10);
    Turn(100);
    EXPECT_EQ(order.size(), 1);
}

TEST_F(MessageQueueTests, ATimerMayBeDestroyedInItsHandler) {
    std::optional<Timer> timer;
    timer.emplace(queue, 10, true);
    timer->SetHandler([&] {
        order += u"last"_s;
        timer.reset();
        Turn(100);
    });
    Turn(10);
    Turn(100);
    EXPECT_EQ(order, QStringList{u"last"_s});
    EXPECT_EQ(queue.NextDueMs(), std::nullopt);
}

TEST_F(MessageQueueTests, ATimerDestroyedByAnotherHandlerNeverFires) {
    std::optional<Timer> timer;
    timer.emplace(queue, 10, true, Note(u"tick"_s));
    queue.PostAt(5, [&] { timer.reset(); });
    Turn(20);
    EXPECT_TRUE(order.isEmpty());
}

TEST_F(MessageQueueTests, AHandlerMayReplaceTheHandlerThatRuns) {
    Timer timer(queue, 10, true);
    timer.SetHandler([&] {
        timer.SetHandler(Note(u"new"_s));
        order += u"old"_s;
    });
    Turn(10);
    Turn(10);
    EXPECT_EQ(order, (QStringList{u"old"_s, u"new"_s}));
}

TEST_F(MessageQueueTests, ACancelledEventDoesNotCome) {
    const quint64 number = queue.PostAt(10, Note(u"cancelled"_s));
    queue.PostAt(10, Note(u"kept"_s));
    queue.Cancel(number);
    queue.Cancel(number);
    Turn(10);
    EXPECT_EQ(order, QStringList{u"kept"_s});
}

TEST_F(MessageQueueTests, TheNextDueTimeIsTheEarliestOfAll) {
    EXPECT_EQ(queue.NextDueMs(), std::nullopt);
    const quint64 number = queue.PostAt(70, [] {});
    EXPECT_EQ(queue.NextDueMs(), 70);
    Timer timer(queue, 50, true);
    EXPECT_EQ(queue.NextDueMs(), 50);
    timer.SetEnabled(false);
    EXPECT_EQ(queue.NextDueMs(), 70);
    queue.Cancel(number);
    EXPECT_EQ(queue.NextDueMs(), std::nullopt);
}

TEST_F(MessageQueueTests, ATimerInItsHandlerIsNotNext) {
    std::optional<qint64> insideMs = 1;
    const Timer timer(queue, 10, true, [&] { insideMs = queue.NextDueMs(); });
    Turn(10);
    EXPECT_EQ(insideMs, std::nullopt);
    EXPECT_EQ(queue.NextDueMs(), 20);
}

TEST_F(MessageQueueTests, EveryMoveOfTheNextDueTimeIsTold) {
    int told = 0;
    queue.onDueTimeChanged = [&] { ++told; };
    auto tells = [&](const std::function<void()>& act) {
        const int before = told;
        act();
        return told > before;
    };
    Timer timer(queue, 10, false);
    quint64 number = 0;
    EXPECT_TRUE(tells([&] { number = queue.PostAt(5, [] {}); }));
    EXPECT_TRUE(tells([&] { queue.Cancel(number); }));
    EXPECT_TRUE(tells([&] { timer.SetEnabled(true); }));
    EXPECT_TRUE(tells([&] { timer.SetInterval(20); }));
    EXPECT_TRUE(tells([&] { Turn(20); }));
    EXPECT_TRUE(tells([&] { timer.SetEnabled(false); }));
}

TEST_F(MessageQueueTests, EachHandlerSeesATurnOfItsOwn) {
    const quint64 before = queue.Turn();
    quint64 first = 0;
    quint64 second = 0;
    queue.Post([&] { first = queue.Turn(); });
    queue.Post([&] { second = queue.Turn(); });
    queue.Deliver();
    EXPECT_NE(first, before);
    EXPECT_NE(second, first);
    EXPECT_NE(queue.Turn(), second);
}

TEST_F(MessageQueueTests, AHandlersErrorLeavesTheQueueUsable) {
    Timer timer(queue, 10, true, [] { throw std::runtime_error("handler"); });
    EXPECT_THROW(Turn(10), std::runtime_error);
    EXPECT_EQ(queue.NextDueMs(), 20);
    timer.SetHandler(Note(u"tick"_s));
    Turn(10);
    EXPECT_EQ(order, QStringList{u"tick"_s});
}

// What its handler runs is parked, and somebody else needs the timer meanwhile.
TEST_F(MessageQueueTests, AnewATimerFiresInsideItsOwnHandler) {
    int fired = 0;
    std::optional<int> whileParked, afterwards;
    Timer timer(queue, 100, true);
    timer.SetHandler([&] {
        if (++fired > 1)
            return;
        {
            const Timer::Anew anew(timer);
            Turn(100);
            whileParked = fired;
        }
        Turn(100);
        afterwards = fired;
    });
    Turn(100);
    EXPECT_EQ(whileParked, 2);
    EXPECT_EQ(afterwards, 2);
    Turn(100);
    EXPECT_EQ(fired, 3);
}

} // namespace qlm
