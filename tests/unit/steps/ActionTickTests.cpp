// SPDX-License-Identifier: MIT
#include "BrowserTest.h"
#include "gather/GatheredList.h"
#include "steps/ActionTick.h"
#include "steps/StopResume.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class ActionTickTest : public BrowserTest {
protected:
    void Begin(const QString& action, const QString& page) {
        Show(page);
        State().CurrentAction = action;
        Await(u"Text"_s, u"wanted"_s);
        app->timers->tmrCheckLinkLoaded.Restart();
    }
    void Tick() { app->Get<ActionTick>().tmrCheckLinkLoaded_Timer(); }
    Timers& The() { return *app->timers; }
};

TEST_F(ActionTickTest, AFoundElementHandsOverToTheActionTick) {
    Begin(u"BUL"_s, u"wanted"_s);
    State().intBlankTicks = 7;
    State().intGatherRetryTicks = 3;
    State().blnRetryGatherPage = true;
    Tick();
    EXPECT_FALSE(The().tmrCheckLinkLoaded.Enabled());
    EXPECT_TRUE(The().Timer1.Enabled());
    EXPECT_TRUE(The().tmrAutoResume.Enabled());
    EXPECT_TRUE(State().blnLinkCheckFired);
    EXPECT_EQ(State().intBlankTicks, 0);
    EXPECT_EQ(State().intGatherRetryTicks, 0);
    EXPECT_FALSE(State().blnRetryGatherPage);
    platform->Pump().RunFor(500);
    EXPECT_FALSE(The().Timer1.Enabled());
}

TEST_F(ActionTickTest, AMissingElementIsLookedForAgain) {
    Begin(u"BUL"_s, u"other"_s);
    Tick();
    EXPECT_TRUE(The().tmrCheckLinkLoaded.Enabled());
    EXPECT_FALSE(The().Timer1.Enabled());
}

TEST_F(ActionTickTest, ACheckDoesNotWaitForTheFirstPage) {
    State().CurrentAction = u"BUL"_s;
    Await(u"Text"_s, u"wanted"_s);
    ASSERT_TRUE(Browser().Document().IsNull());
    const qint64 beforeMs = app->Pump().NowMs();
    // A check that waits would do it until this page is there.
    app->Pump().Queue().PostAt(beforeMs + 1000,
                               [this] { Browser().Navigate(u"http://www.site.example.com/"_s); });
    Tick();
    EXPECT_EQ(app->Pump().NowMs(), beforeMs);
    EXPECT_TRUE(trail.isEmpty());
}

TEST_F(ActionTickTest, AHeldCheckLooksAtNothing) {
    Begin(u"BUL"_s, u"wanted"_s);
    State().blnHoldLinkCheck = true;
    trail.clear();
    Tick();
    EXPECT_FALSE(The().Timer1.Enabled());
    EXPECT_TRUE(trail.isEmpty());
}

TEST_F(ActionTickTest, AWaitForACaptchaLeavesTheWatchdogAlone) {
    Begin(u"BUL"_s, u"wanted"_s);
    State().blnWaitingForCaptcha = true;
    Tick();
    EXPECT_TRUE(The().Timer1.Enabled());
    EXPECT_FALSE(The().tmrAutoResume.Enabled());
}

TEST_F(ActionTickTest, AFolderThatIsEmptyGoesOnAlthoughThePageIsTheLastOne) {
    Begin(u"ACC"_s, u"page before: You have no requests"_s);
    Await(u"ID"_s, u"spanapprovebottom"_s);
    State().strLastPageText = u"page before"_s;
    State().intAccStep = 2;
    Tick();
    EXPECT_TRUE(The().Timer1.Enabled());
}

TEST_F(ActionTickTest, AnElementFoundOnTheLastPageWaitsForTheNext) {
    // Its markup writes the text in another way than the page shows it.
    Begin(u"BUL"_s, u"page &amp; before, wanted"_s);
    State().strLastPageText = u"page & before"_s;
    State().blnLastPageAsHTML = true;
    Tick();
    EXPECT_FALSE(State().blnLinkFound);
    EXPECT_FALSE(The().Timer1.Enabled());
    State().strLastPageText.clear();
    Tick();
    EXPECT_TRUE(State().blnLinkFound);
    EXPECT_TRUE(The().Timer1.Enabled());
}

TEST_F(ActionTickTest, ACommentFormThatIsBackGoesOnAlthoughItIsTheLastPage) {
    Begin(u"COM"_s, u"page before <i id=ctl00_ctl00_cpMain_cpMain_ctl02_ctl00></i>"_s);
    State().strLastPageText = u"page before"_s;
    State().intComStep = 11;
    Tick();
    EXPECT_EQ(State().intComStep, 4);
    EXPECT_TRUE(The().Timer1.Enabled());
}

TEST_F(ActionTickTest, TheThirtyFirstBlankTickResumes) {
    State().CurrentAction = u"DEL PEN"_s;
    Await(u"Text"_s, u"wanted"_s);
    app->ClearPage();
    for (int tick = 1; tick <= 30; ++tick)
        Tick();
    EXPECT_EQ(State().intBlankTicks, 30);
    EXPECT_FALSE(The().tmrAutoResume.Enabled());
    Tick();
    EXPECT_EQ(State().intBlankTicks, 0);
    EXPECT_TRUE(The().tmrAutoResume.Enabled());
}

TEST_F(ActionTickTest, OnlyAnEmptyPageCounts) {
    Begin(u"DEL PEN"_s, u"other"_s);
    for (int tick = 1; tick <= 40; ++tick)
        Tick();
    EXPECT_EQ(State().intBlankTicks, 0);
}

TEST_F(ActionTickTest, EachCheckLeavesALine) {
    struct Row {
        QString action;
        QString line;
    };
    const QString rest = u" ... Found = False ... EX: False ... PRESSED: False"_s;
    for (const Row& row :
         {Row{u"FR"_s, u"checking... - Text, wanted"_s}, Row{u"MSG"_s, u"checking... - Text, wanted"_s},
          Row{u"COM"_s, u"checking... - Text, wanted"_s}, Row{u"SCANNING"_s, u"checking..."_s},
          Row{u"ACC"_s, u"checking..."_s}, Row{u"BUL"_s, u"checking..."_s},
          Row{u"LOGIN"_s, u"checking: "_s}}) {
        Begin(row.action, u"other"_s);
        trail.clear();
        Tick();
        EXPECT_TRUE(Said(row.line + rest))
            << row.action.toStdString() << ": " << trail.join(u'|').toStdString();
    }
    State().strLastPageText = u"other"_s;
    Tick();
    EXPECT_TRUE(Said(u"checking:  ... Found = False ... EX: True ... PRESSED: False"_s));
}

TEST_F(ActionTickTest, FiveActivitiesNoteThatTheLinkWasFound) {
    for (const QString& action : {u"SCANNING"_s, u"FR"_s, u"MSG"_s, u"COM"_s, u"LOGIN"_s}) {
        Begin(action, u"wanted"_s);
        trail.clear();
        Tick();
        EXPECT_TRUE(Said(u"Link Found"_s)) << action.toStdString();
        The().Timer1.SetEnabled(false);
    }
    Begin(u"ACC"_s, u"wanted"_s);
    trail.clear();
    Tick();
    EXPECT_FALSE(Said(u"Link Found"_s));
}

TEST_F(ActionTickTest, ALoginNotesTheCaptchaItWaitsFor) {
    Begin(u"LOGIN"_s, u"Enter the text"_s);
    trail.clear();
    Tick();
    ASSERT_EQ(trail.size(), 2);
    EXPECT_EQ(trail[0], u"waiting for CAPTCHA"_s);
    EXPECT_TRUE(trail[1].startsWith(u"checking: "_s));
}

TEST_F(ActionTickTest, TheActionTickIsOneShotAndRunsNoStepForActivitiesWithoutOne) {
    Show(u"x"_s);
    for (const QString& action : {u"INV"_s, u"STATUSUPDATES"_s, u"RANDOMIZING"_s, QString()}) {
        State().CurrentAction = action;
        State().intFRStep = 5;
        The().Timer1.Restart();
        platform->Pump().RunFor(2000);
        EXPECT_FALSE(The().Timer1.Enabled()) << action.toStdString();
        EXPECT_EQ(State().intFRStep, 5);
        EXPECT_EQ(State().CurrentAction, action);
    }
}

TEST_F(ActionTickTest, AnHangingShutdownIsEnded) {
    platform->Pump().RunFor(6500);
    EXPECT_FALSE(platform->Shell().hasEnded);
    State().blnClosing = true;
    EXPECT_TRUE(The().tmrQuit.Enabled());
    platform->Pump().RunFor(6000);
    EXPECT_TRUE(platform->Shell().hasEnded);
}

TEST_F(ActionTickTest, TheTimersHaveTheirIntervalsAndTwoRunFromTheStart) {
    struct Row {
        const char* name;
        Timer& timer;
        int intervalMs;
        bool runs;
    };
    // A program of its own: the one above has begun to work.
    SimWorld fresh;
    SimPlatform machine(fresh, dialogs);
    App started(machine);
    Timers& timers = *started.timers;
    for (const Row& row : {Row{"Timer1", timers.Timer1, 400, false},
                           Row{"tmrCheckLinkLoaded", timers.tmrCheckLinkLoaded, 3000, false},
                           Row{"tmrAutoResume", timers.tmrAutoResume, 40000, false},
                           Row{"tmrHelper", timers.tmrHelper, 1000, false},
                           Row{"tmrBulletinWait", timers.tmrBulletinWait, 60000, false},
                           Row{"tmrStatusUpdatesWait", timers.tmrStatusUpdatesWait, 60000, false},
                           Row{"tmrLoginProblem", timers.tmrLoginProblem, 36000, false},
                           Row{"tmrAutoStart", timers.tmrAutoStart, 60000, true},
                           Row{"tmrNewVersionAvailable", timers.tmrNewVersionAvailable, 3000, false},
                           Row{"tmrQuit", timers.tmrQuit, 6000, true}}) {
        EXPECT_EQ(row.timer.Interval(), row.intervalMs) << row.name;
        EXPECT_EQ(row.timer.Enabled(), row.runs) << row.name;
    }
}

TEST_F(ActionTickTest, TheWatchdogOnlyLeavesATrail) {
    The().tmrAutoResume.Restart();
    platform->Pump().RunFor(41000);
    EXPECT_EQ(trail.size(), 1);
    EXPECT_TRUE(QFile::exists(app->DataFile(u"debugautoresume.txt"_s)));
}

// A login whose page isn't there yet: its step runs when the page has come.
TEST_F(ActionTickTest, TheActionTickWaitsForTheDocument) {
    Show(u"{SiteRootHost}/page"_s, u"x"_s, SimFault::NoBody);
    world.web.SetPage(u"http://www.site.example.com/page"_s, u"<html><body>x</body></html>"_s);
    State().CurrentAction = u"FR"_s;
    State().intFRStep = 6; // the end of a run
    bool hadBody = false;
    app->controls.AddListener([&](const Control&, Controls::Change, int) {
        hadBody = hadBody || !Browser().Document().Body().IsNull();
    });
    bool endedWithoutBody = false;
    platform->Pump().onPump = [&] {
        endedWithoutBody =
            endedWithoutBody || (State().CurrentAction.isEmpty() && Browser().Document().Body().IsNull());
    };
    app->Get<ActionTick>().Timer1_Timer();
    EXPECT_EQ(State().CurrentAction, QString());
    EXPECT_FALSE(Browser().Document().Body().IsNull());
    EXPECT_FALSE(endedWithoutBody);
}

TEST_F(ActionTickTest, AStepOfARunThatWasStoppedMeanwhileIsNotTaken) {
    Show(u"{SiteRootHost}/page"_s, u"x"_s, SimFault::NoBody);
    world.web.SetPage(u"http://www.site.example.com/page"_s, u"<html><body>x</body></html>"_s);
    State().CurrentAction = u"FR"_s;
    State().intFRStep = 6;
    app->Pump().Queue().Post([this] {
        app->Get<StopResume>().StopAll(StopReason::WindowStop);
        // The next run has come as far as its own last step.
        State().CurrentAction = u"FR"_s;
        State().intFRStep = 6;
    });
    app->Get<ActionTick>().Timer1_Timer();
    EXPECT_EQ(State().CurrentAction, u"FR"_s);
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(ActionTickTest, AnErrorBehindTheFindIsLookedForAnew) {
    Begin(u"SCANNING"_s, u"wanted"_s);
    const auto keep = app->diagnostics.onLine;
    app->diagnostics.onLine = [](const QString& line) {
        if (line.startsWith(u"checking..."_s))
            throw BrowserError();
    };
    Tick();
    EXPECT_FALSE(State().blnLinkFound);
    EXPECT_TRUE(The().tmrCheckLinkLoaded.Enabled());
    EXPECT_FALSE(The().Timer1.Enabled());
    app->diagnostics.onLine = keep;
    Tick();
    EXPECT_TRUE(The().Timer1.Enabled());
}

} // namespace
} // namespace qlm
