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
        program.emplace(folders);
        program->PlanSending();
    }

    // Goes through the planned steps and ends the program; after it the site can be asked.
    void Run() {
        const bool isWell = program->Run();
        EXPECT_TRUE(isWell) << program->driver.Problem().toStdString();
        messages = program->driver.Messages();
        failed = program->app.state.lngFailedCount;
        program.reset();
        journal = site.Journal();
    }

    SiteProcess site;
    UsedProgram folders{site.Port()};
    const QStringList ids = SomeTargets(5);
    std::optional<RunningProgram> program;
    QStringList messages;
    QStringList journal;
    qint32 failed = 0;
};

} // namespace

// Pressed at the worst moment: the program is inside a call into the page, which it will have to give up. It
// is when nothing that was posted has been delivered for a while.
TEST_F(StuckPages, StopAnswersWithinASecondWhileAPageScriptNeverEnds) {
    site.Tell(u"fault "_s + RequestPage(ids[2]) + u" endless"_s);
    QElapsedTimer pressed;
    qint64 answeredMs = -1;
    QElapsedTimer posted;
    bool isDelivered = true;
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, &user, [&] {
        if (!program || program->app.state.strCurrentID != ids[2])
            return;
        MessageQueue& queue = program->app.Pump().Queue();
        if (std::exchange(isDelivered, false)) {
            posted.start();
            queue.Post([&] { isDelivered = true; });
        } else if (posted.elapsed() >= 60) {
            user.stop();
            pressed.start();
            queue.Post([&] {
                program->driver.Press("frmMain", "piccmdAddFriendsStop");
                answeredMs = program->app.state.CurrentAction.isEmpty() ? pressed.elapsed() : -1;
                // Ends at once, too: the wait below leaves the page.
                program->driver.Choose("mnuExit");
                program->driver.End({});
            });
        }
    });
    user.start(5);
    Run();
    EXPECT_LT(pressed.elapsed(), 5000);
    std::printf("Stop answered after %lld ms\n", static_cast<long long>(answeredMs));
    EXPECT_GE(answeredMs, 100) << "nothing was waited for";
    EXPECT_LT(answeredMs, 1000);
    EXPECT_EQ(folders.Log(), ids.mid(0, 2));
    EXPECT_TRUE(messages.isEmpty());
}

// Neither has a limit of its own: the user sees what is being waited for and decides.
TEST_F(StuckPages, PagesThatNeverComeOrComeEmptyAreLeftBySkip) {
    site.Tell(u"fault "_s + RequestPage(ids[1]) + u" hang"_s);
    site.Tell(u"fault "_s + RequestPage(ids[3]) + u" nobody"_s);
    for (const QString& id : {ids[1], ids[3]})
        program->driver.Add({u"Nothing comes from "_s + id, 60,
                             [this, id] { return program->IsStuckOn(id, 3500); },
                             [this] { program->driver.Press("frmMain", "picSkip"); }});
    program->PlanReport(60);
    Run();
    const QStringList others{ids[0], ids[2], ids[4]};
    EXPECT_EQ(TargetsOf(journal, u"asked"_s), others);
    EXPECT_EQ(folders.Log(), others);
    EXPECT_EQ(failed, 2);
}

TEST_F(StuckPages, ARendererThatIsKilledCostsAtMostItsTarget) {
    qint64 killed = 0;
    program->driver.Add(
        {u"The middle of the run"_s, 60,
         [this] { return program->app.state.strCurrentID == ids[2] && program->app.state.intFRStep == 8; },
         [this, &killed] {
             killed = program->app.WebBrowser1().RendererProcessId();
             ::kill(static_cast<pid_t>(killed), SIGKILL);
         }});
    qint64 renderer = 0;
    program->driver.Add({u"The report"_s, 120,
                         [this] { return program->driver.WasTold(u"Finished sending"_s); },
                         [this, &renderer] {
                             renderer = program->app.WebBrowser1().RendererProcessId();
                             program->driver.End({});
                         }});
    Run();
    ASSERT_GT(killed, 0);
    EXPECT_NE(renderer, killed);
    QStringList others = ids;
    others.removeAt(2);
    QStringList logged = folders.Log();
    logged.removeAll(ids[2]);
    EXPECT_EQ(logged, others);
    QStringList asked = TargetsOf(journal, u"asked"_s);
    EXPECT_TRUE(folders.Log().size() <= asked.size());
    asked.removeAll(ids[2]);
    EXPECT_EQ(asked, others);
}

TEST_F(StuckPages, ABoxOnEveryPageStopsNothing) {
    site.Tell(u"fault "_s + RequestPage({}) + u" alert"_s);
    program->PlanReport(60);
    Run();
    EXPECT_EQ(TargetsOf(journal, u"asked"_s), ids);
    EXPECT_EQ(folders.Log(), ids);
    EXPECT_EQ(messages.size(), 1);
}

} // namespace qlm
