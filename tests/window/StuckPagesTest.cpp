// SPDX-License-Identifier: MIT
// Pages that never come or never end, and what the user's buttons can do about them.
#include "PrintText.h"
#include "RunningProgram.h"
#include "SiteProcess.h"

#include <csignal>
#include <gtest/gtest.h>

namespace qlm {
namespace {

class StuckPages : public testing::Test {
protected:
    StuckPages() {
        folders.SaveList(ids);
        program.PlanSending();
    }

    SiteProcess site;
    UsedProgram folders{site.Port()};
    const QStringList ids = SomeTargets(5);
    RunningProgram program{folders};
};

} // namespace

// Pressed at the worst moment: a call into the page has just begun and will have to be given up.
TEST_F(StuckPages, StopAnswersWithinASecondWhileAPageScriptNeverEnds) {
    site.Tell(u"fault "_s + RequestPage(ids[2]) + u" endless"_s);
    QElapsedTimer pressed;
    qint64 answeredMs = -1;
    qint64 calls = 0;
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, &user, [&] {
        if (!program.IsStuckOn(ids[2], 1000))
            return;
        const qint64 before = std::exchange(calls, program.app.WebBrowser1().EngineCalls());
        if (before == 0 || calls == before)
            return;
        user.stop();
        pressed.start();
        program.app.Pump().Queue().Post([&] {
            program.driver.Press("frmMain", "piccmdAddFriendsStop");
            answeredMs = program.app.state.CurrentAction.isEmpty() ? pressed.elapsed() : -1;
            program.driver.End({});
        });
    });
    user.start(5);
    ASSERT_TRUE(program.Run()) << program.driver.Problem().toStdString();
    RecordProperty("answeredMs", static_cast<int>(answeredMs));
    EXPECT_GE(answeredMs, 0);
    EXPECT_LT(answeredMs, 1000);
    EXPECT_EQ(folders.Log(), ids.mid(0, 2));
    EXPECT_TRUE(program.driver.Messages().isEmpty());
}

TEST_F(StuckPages, APageThatNeverComesIsLeftBySkip) {
    site.Tell(u"fault "_s + RequestPage(ids[2]) + u" hang"_s);
    program.driver.Add({u"A page that never comes"_s, 60, [this] { return program.IsStuckOn(ids[2], 1500); },
                        [this] { program.driver.Press("frmMain", "picSkip"); }});
    program.PlanReport(60);
    ASSERT_TRUE(program.Run()) << program.driver.Problem().toStdString();
    QStringList others = ids;
    others.removeAt(2);
    EXPECT_EQ(TargetsOf(site.Journal(), u"asked"_s), others);
    EXPECT_EQ(folders.Log(), others);
    EXPECT_EQ(program.app.state.lngFailedCount, 1);
}

TEST_F(StuckPages, ARendererThatIsKilledCostsAtMostItsTarget) {
    qint64 killed = 0;
    program.driver.Add(
        {u"The middle of the run"_s, 60,
         [this] { return program.app.state.strCurrentID == ids[2] && program.app.state.intFRStep == 8; },
         [this, &killed] {
             killed = program.app.WebBrowser1().RendererProcessId();
             ::kill(static_cast<pid_t>(killed), SIGKILL);
         }});
    program.PlanReport(120);
    ASSERT_TRUE(program.Run()) << program.driver.Problem().toStdString();
    ASSERT_GT(killed, 0);
    EXPECT_NE(program.app.WebBrowser1().RendererProcessId(), killed);
    QStringList others = ids;
    others.removeAt(2);
    QStringList logged = folders.Log();
    logged.removeAll(ids[2]);
    EXPECT_EQ(logged, others);
    QStringList asked = TargetsOf(site.Journal(), u"asked"_s);
    EXPECT_TRUE(folders.Log().size() <= asked.size());
    asked.removeAll(ids[2]);
    EXPECT_EQ(asked, others);
}

TEST_F(StuckPages, ABoxOnEveryPageStopsNothing) {
    site.Tell(u"fault "_s + RequestPage({}) + u" alert"_s);
    program.PlanReport(60);
    ASSERT_TRUE(program.Run()) << program.driver.Problem().toStdString();
    EXPECT_EQ(TargetsOf(site.Journal(), u"asked"_s), ids);
    EXPECT_EQ(folders.Log(), ids);
    EXPECT_EQ(program.driver.Messages().size(), 1);
}

} // namespace qlm
