// SPDX-License-Identifier: MIT
#include "PrintText.h"
#include "platform/sim/RecordingDialogs.h"
#include "platform/sim/SimPlatform.h"

#include <gtest/gtest.h>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

TEST(SimPumpTests, TimeMovesOnlyWhenSomebodyLetsItPass) {
    VirtualClock clock;
    SimPump pump(clock);
    clock.SetNow(QDateTime(QDate(2009, 6, 1), QTime(10, 0)));
    pump.Sleep(1500);
    EXPECT_EQ(pump.Now(), QDateTime(QDate(2009, 6, 1), QTime(10, 0, 1, 500)));
    EXPECT_EQ(pump.NowMs(), 1500);
    clock.SetNow(QDateTime(QDate(2009, 12, 24), QTime(23, 59)));
    EXPECT_EQ(pump.NowMs(), 1500);
    EXPECT_EQ(pump.Now(), QDateTime(QDate(2009, 12, 24), QTime(23, 59)));
}

TEST(SimPumpTests, AWaitThatOnlyPumpsSeesTimePass) {
    VirtualClock clock;
    SimPump pump(clock);
    bool isDone = false;
    const Timer timer(pump.Queue(), 500, true, [&] { isDone = true; });
    int turns = 0;
    while (!isDone && turns < 10'000) {
        pump.PumpMessages();
        ++turns;
    }
    EXPECT_TRUE(isDone);
    EXPECT_EQ(clock.NowMs(), 500);
}

TEST(SimPumpTests, TheIdleLoopJumpsFromOneDueEntryToTheNext) {
    VirtualClock clock;
    SimPump pump(clock);
    int ticks = 0;
    const Timer timer(pump.Queue(), 60'000, true, [&] { ++ticks; });
    EXPECT_TRUE(pump.RunUntil([&] { return ticks == 600; }, 24LL * 3600 * 1000));
    EXPECT_EQ(clock.NowMs(), 600 * 60'000);
    EXPECT_FALSE(pump.RunUntil([&] { return ticks == 1000; }, 90'000));
    EXPECT_EQ(clock.NowMs(), 600 * 60'000 + 90'000);
}

TEST(SimPumpTests, TheIdleLoopEndsWhenNothingIsToCome) {
    VirtualClock clock;
    SimPump pump(clock);
    EXPECT_FALSE(pump.RunUntil([] { return false; }, 1000));
    EXPECT_EQ(clock.NowMs(), 0);
}

TEST(SimPumpTests, RunForPassesExactlyThatTime) {
    VirtualClock clock;
    SimPump pump(clock);
    int ticks = 0;
    const Timer timer(pump.Queue(), 100, true, [&] { ++ticks; });
    pump.RunFor(1000);
    EXPECT_EQ(ticks, 10);
    EXPECT_EQ(clock.NowMs(), 1000);
    pump.RunFor(50);
    EXPECT_EQ(clock.NowMs(), 1050);
    EXPECT_EQ(ticks, 10);
}

TEST(SimPumpTests, ATestMayActInEachTurn) {
    VirtualClock clock;
    SimPump pump(clock);
    int turns = 0;
    pump.onPump = [&] { ++turns; };
    pump.PumpMessages();
    pump.Sleep(10);
    pump.PumpMessages();
    EXPECT_EQ(turns, 2);
}

TEST(SimSettingsTests, SectionsNestByBackslash) {
    SimSettings settings;
    settings.SaveSetting(u"Counters\\a@example.com"_s, u"Daily"_s, u"3"_s);
    settings.SaveSetting(u"CountersOfOthers"_s, u"Daily"_s, u"4"_s);
    EXPECT_TRUE(settings.HasSection(u"Counters"_s));
    EXPECT_EQ(settings.GetSetting(u"Counters\\a@example.com"_s, u"Daily"_s, u"x"_s), u"3"_s);
    EXPECT_EQ(settings.GetSetting(u"Counters\\a@example.com"_s, u"daily"_s, u"x"_s), u"x"_s);
    settings.DeleteSetting(u"Counters"_s);
    EXPECT_FALSE(settings.HasSection(u"Counters"_s));
    EXPECT_TRUE(settings.HasSetting(u"CountersOfOthers"_s, u"Daily"_s));
    EXPECT_EQ(settings.Sections(), QStringList{u"CountersOfOthers"_s});
    EXPECT_EQ(settings.Keys(u"CountersOfOthers"_s), QStringList{u"Daily"_s});
    EXPECT_EQ(settings.Keys(u"Counters"_s), QStringList());
}

TEST(SimHttpTests, AnswersByTableThenByResponder) {
    VirtualClock clock;
    SimPump pump(clock);
    SimHttpAnswers answers;
    SimHttp http(answers, pump);
    answers.responder = [](const QString& url) { return std::optional(u"default for "_s + url); };
    answers.Set(u"http://p/a"_s, u"text"_s);
    answers.Fail(u"http://p/b"_s);
    bool hasPumped = false;
    pump.onPump = [&] { hasPumped = true; };
    EXPECT_EQ(http.Get(u"http://p/a"_s), u"text"_s);
    EXPECT_EQ(http.Get(u"http://p/b"_s), std::nullopt);
    EXPECT_EQ(http.Get(u"http://p/c"_s), u"default for http://p/c"_s);
    EXPECT_TRUE(hasPumped);
    EXPECT_EQ(answers.asked.size(), 3);
}

TEST(SimTrayTests, WhatTheUserDoesAtTheIconArrivesFromThePump) {
    VirtualClock clock;
    SimPump pump(clock);
    SimTray tray(pump);
    QStringList seen;
    tray.onActivate = [&] { seen += u"activated"_s; };
    tray.onMenuItem = [&](int item) { seen += QString::number(item); };
    EXPECT_FALSE(tray.Activate());
    EXPECT_TRUE(tray.Show(u"Quillmere"_s, {u"Show"_s, u"Exit"_s}));
    EXPECT_TRUE(tray.IsShown());
    EXPECT_FALSE(tray.Choose(u"Open"_s));
    EXPECT_TRUE(tray.Choose(u"Exit"_s));
    EXPECT_TRUE(tray.Activate());
    EXPECT_EQ(seen, QStringList());
    pump.PumpMessages();
    EXPECT_EQ(seen, (QStringList{u"1"_s, u"activated"_s}));
    EXPECT_TRUE(tray.Activate());
    tray.Hide();
    pump.PumpMessages();
    EXPECT_EQ(seen.size(), 2);
    EXPECT_FALSE(tray.IsShown());
}

TEST(SimTrayTests, ADesktopMayHaveNoTray) {
    VirtualClock clock;
    SimPump pump(clock);
    SimTray tray(pump);
    tray.isThere = false;
    EXPECT_FALSE(tray.Show(u"Quillmere"_s, {}));
    EXPECT_FALSE(tray.IsShown());
    SimAttention attention;
    EXPECT_TRUE(attention.Notify(u"Quillmere"_s, u"text"_s));
    attention.showsNotes = false;
    EXPECT_FALSE(attention.Notify(u"Quillmere"_s, u"text"_s));
    EXPECT_EQ(attention.calls, QStringList{u"note Quillmere: text"_s});
}

TEST(SimRandomTests, AListIsRepeatedAndASeedIsFixed) {
    SimRandom random;
    SimRandom same;
    const double first = random.Next();
    EXPECT_EQ(first, same.Next());
    EXPECT_TRUE(first >= 0 && first < 1);
    random.SetNumbers({0.0, 0.5});
    EXPECT_EQ(random.Next(), 0.0);
    EXPECT_EQ(random.Next(), 0.5);
    EXPECT_EQ(random.Next(), 0.0);
}

TEST(SimWriteGateTests, TheNthWriteIsTornAndNoneComesAfter) {
    SimWriteGate gate;
    EXPECT_EQ(gate.Allow(10), 10);
    gate.CrashAtWrite(2);
    EXPECT_EQ(gate.Allow(10), 10);
    EXPECT_EQ(gate.Allow(10), 5);
    EXPECT_EQ(gate.Allow(10), 0);
    EXPECT_LT(gate.Allow(0), 0);
    EXPECT_THROW(gate.Cut(), SimPowerCut);
    gate.Mend();
    EXPECT_EQ(gate.Allow(10), 10);
}

TEST(SimWriteGateTests, AReadOnlyFolderIsReadOnlyWithAllBelow) {
    SimWriteGate gate;
    gate.readOnlyFolders += u"/data/program/"_s;
    EXPECT_TRUE(gate.IsReadOnly(u"/data/program"_s));
    EXPECT_TRUE(gate.IsReadOnly(u"/data/program/sub/x.txt"_s));
    EXPECT_FALSE(gate.IsReadOnly(u"/data/programs/x.txt"_s));
}

TEST(SimPlatformTests, WhatTheWorldHoldsOutlivesTheProgram) {
    SimWorld world;
    world.dataFolder = u"/data"_s;
    world.web.SetPage(u"http://a.example.com/"_s, u"page"_s);
    RecordingDialogs dialogs;
    {
        SimPlatform platform(world, dialogs);
        platform.Settings().SaveSetting(u"General"_s, u"Key"_s, u"1"_s);
        platform.Browser(BrowserName::WebBrowser1).Navigate(u"a.example.com"_s);
        platform.Pump().Sleep(100);
    }
    SimPlatform platform(world, dialogs);
    EXPECT_EQ(platform.Settings().GetSetting(u"General"_s, u"Key"_s, {}), u"1"_s);
    EXPECT_EQ(platform.Pump().NowMs(), 100);
    EXPECT_TRUE(platform.Browser(BrowserName::WebBrowser1).Document().IsNull());
    EXPECT_EQ(&platform.Browser(BrowserName::webHide), &platform.Browser(BrowserName::webHide));
    EXPECT_EQ(platform.SpecialFolderPath(28), u"/data/"_s);
}

TEST(RecordingDialogsTests, QuestionsTakeTheScriptedAnswers) {
    RecordingDialogs dialogs;
    dialogs.answers = {Dialogs::Answer::Yes};
    EXPECT_EQ(dialogs.ShowMessage(u"note"_s, {}, Dialogs::Buttons::Ok), Dialogs::Answer::Ok);
    EXPECT_EQ(dialogs.ShowMessage(u"sure?"_s, {}, Dialogs::Buttons::YesNo), Dialogs::Answer::Yes);
    EXPECT_EQ(dialogs.ShowMessage(u"really?"_s, {}, Dialogs::Buttons::YesNo), Dialogs::Answer::No);
    EXPECT_EQ(dialogs.Texts(), (QStringList{u"note"_s, u"sure?"_s, u"really?"_s}));
    EXPECT_EQ(dialogs.ShowMessage(u"replace?"_s, {}, Dialogs::Buttons::OkCancel), Dialogs::Answer::Cancel);
    dialogs.answers = {Dialogs::Answer::Ok};
    EXPECT_EQ(dialogs.ShowMessage(u"replace?"_s, {}, Dialogs::Buttons::OkCancel), Dialogs::Answer::Ok);
    EXPECT_EQ(dialogs.unanswered, (QStringList{u"really?"_s, u"replace?"_s}));
}

TEST(RecordingDialogsTests, AModalFormIsOpenWhileItsActRuns) {
    RecordingDialogs dialogs;
    bool wasOpen = false;
    dialogs.onModal[u"frmTimeDelay"_s] = [&] { wasOpen = dialogs.IsFormOpen(u"frmTimeDelay"_s); };
    dialogs.ShowModal(u"frmTimeDelay"_s);
    EXPECT_TRUE(wasOpen);
    EXPECT_FALSE(dialogs.IsFormOpen(u"frmTimeDelay"_s));
}

} // namespace qlm
