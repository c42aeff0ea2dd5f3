// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "browser/PageSigns.h"
#include "campaigns/Campaigns.h"
#include "campaigns/FriendRequester.h"
#include "campaigns/OpenNotes.h"
#include "gather/GatheredList.h"
#include "steps/RunReport.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class FriendRequesterTest : public SimulatedProgram {
protected:
    FriendRequesterTest() {
        app->state.blnNewLayout = true;
        for (const QString& id : {u"1001"_s, u"1002"_s}) {
            app->Get<GatheredList>().Add(id, u"test"_s);
            world.web.SetPage(u"http://www.example.com/my/friends/addtofriends/"_s + id,
                              u"<html><body><a href='/'>Home</a>Request Sent!</body></html>"_s);
        }
    }

    // Fails once, at the moment when the status line shows this.
    void FailAtStatus(const QString& status, const char* error) {
        app->controls.AddListener([this, status, error](const Control& control, Controls::Change, int) {
            if (control.name == "myfraCurrentAction"_L1 && control.text == status && !m_failed) {
                m_failed = true;
                throw BrowserError(error);
            }
        });
    }

    QStringList Run() {
        app->commands.Run(u"piccmdAddFriends_Click"_s);
        platform->Pump().RunUntil([this] { return app->state.CurrentAction != u"FR"_s; }, 600'000);
        return platform->Browser(BrowserName::WebBrowser1).TakeVisited();
    }

    QStringList Log() { return app->files.ReadLines(app->ProgramFile(u"FriendsLog.txt"_s)); }

    const QString sending = u"Sending friend request to ID 1001, waiting for confirmation page..."_s;
    bool m_failed = false;
};

class BusyBrowserTest : public FriendRequesterTest, public testing::WithParamInterface<const char*> {};

TEST_P(BusyBrowserTest, IsTriedAgainAfterThreeSecondsWithTheSameTarget) {
    const qint64 startMs = world.clock.NowMs();
    qint64 openedMs = 0;
    app->WebBrowser1().events.beforeNavigate2 = [&](const NavigationRequest& request) {
        if (openedMs == 0 && request.url.endsWith(u"/1001"_s))
            openedMs = world.clock.NowMs();
        return false;
    };
    FailAtStatus(sending, GetParam());
    EXPECT_EQ(Run().size(), 2);
    EXPECT_TRUE(m_failed);
    EXPECT_GE(openedMs - startMs, 3000);
    EXPECT_LT(openedMs - startMs, 3500);
    EXPECT_EQ(Log(), (QStringList{u"1001"_s, u"1002"_s}));
    EXPECT_TRUE(app->files.ReadLines(app->state.ErrorLogPath).contains(u"Proc: IterateAddFriends"_s));
}

INSTANTIATE_TEST_SUITE_P(Errors, BusyBrowserTest,
                         testing::Values("Automation error", "The requested resource is in use.",
                                         "Automatisierungsfehler"));

TEST_F(FriendRequesterTest, AStopEndsTheWaitForABusyBrowser) {
    FailAtStatus(sending, "The requested resource is in use.");
    platform->Pump().onPump = [this] {
        if (m_failed)
            app->commands.Run(u"piccmdAddFriendsStop_Click"_s);
    };
    EXPECT_TRUE(Run().isEmpty());
    EXPECT_TRUE(app->state.CurrentAction.isEmpty());
}

TEST_F(FriendRequesterTest, AnotherErrorEndsTheStepAndTheEmptyPageRepeatsIt) {
    FailAtStatus(sending, "Something else");
    EXPECT_EQ(Run().size(), 1);
    EXPECT_EQ(Log(), QStringList{u"1002"_s});
}

// The confirmation still stands there; it is found again, and the run goes on.
TEST_F(FriendRequesterTest, AnErrorAfterTheConfirmationDoesNotHoldTheRunUp) {
    FailAtStatus(u"Friend request successfully sent"_s, "Something else");
    EXPECT_EQ(Run().size(), 2);
    EXPECT_TRUE(m_failed);
    EXPECT_EQ(Log(), (QStringList{u"1001"_s, u"1002"_s}));
    EXPECT_TRUE(app->state.CurrentAction.isEmpty());
}

TEST_F(FriendRequesterTest, AMessageBehindARequestIsHandedToTheMessenger) {
    app->controls.SetTicked("chkFrSendMessage"_L1, true);
    app->controls.SetText("txtMsgSubject"_L1, u"Hi"_s);
    app->controls.SetText("txtMsgMessage"_L1, u"Hello"_s);
    EXPECT_EQ(Run(), QStringList{u"http://www.example.com/my/friends/addtofriends/1001"_s});
    EXPECT_EQ(app->state.CurrentAction, u"MSG"_s);
    EXPECT_EQ(app->state.intMsgStep, 7);
    EXPECT_EQ(app->state.intFRStep, 0);
    EXPECT_TRUE(app->state.blnMsgAfterFR);
    EXPECT_EQ(app->state.intCurrentIDIndex, 0);
    EXPECT_EQ(app->Status(), u"Proceeding to send message after friend request..."_s);
    EXPECT_EQ(app->state.strLinkValue, u"send"_s);
    EXPECT_TRUE(app->timers->tmrCheckLinkLoaded.Enabled());
    platform->Pump().RunFor(1000);
    EXPECT_EQ(app->WebBrowser1().LocationURL(), u"http://www.example.com/my/mail/new?t=1001"_s);
}

TEST_F(FriendRequesterTest, TheTimeDelayComesBeforeTheMessageBehindARequest) {
    app->controls.SetTicked("chkFrSendMessage"_L1, true);
    app->controls.SetText("txtMsgSubject"_L1, u"Hi"_s);
    app->controls.SetText("txtMsgMessage"_L1, u"Hello"_s);
    app->state.lngTimeDelayFrom = app->state.lngTimeDelayTo = 60;
    const qint64 startMs = world.clock.NowMs();
    QStringList said;
    app->controls.AddListener([&](const Control& control, Controls::Change, int) {
        if (control.name == "myfraCurrentAction"_L1)
            said += control.text;
    });
    Run();
    EXPECT_EQ(app->state.CurrentAction, u"MSG"_s);
    EXPECT_GE(world.clock.NowMs() - startMs, 61'000);
    EXPECT_TRUE(said.contains(u"Friend request successfully sent... time delay active."_s));
}

TEST_F(FriendRequesterTest, WhileCategoriesAreFetchedTheBoxSaysSo) {
    QStringList shown;
    const QString page =
        app->Expand(u"http://{FriendsHost}/index.cfm?fuseaction=user.viewcategories&friendId="_s);
    world.web.SetPage(page, u"<html><body>Viewable by: nobody</body></html>"_s);
    platform->Pump().onPump = [&] { shown += app->controls.Text("cboFRCategories"_L1); };
    app->commands.Run(u"piccmdFRRefreshCategories_Click"_s);
    shown.removeDuplicates();
    EXPECT_EQ(shown, QStringList{u"Retrieving, please wait..."_s});
    EXPECT_EQ(app->controls.Text("cboFRCategories"_L1), u"Press button to fill list -> -> ->"_s);
    EXPECT_EQ(
        dialogs.Texts(),
        QStringList{
            u"This account has no friend categories.\n\nIf this is not correct, then please try again."_s});
}

// The wait has no limit; another press of the button fetches anew in its place.
TEST_F(FriendRequesterTest, AListOfCategoriesIsWaitedForUntilTheButtonIsPressedAgain) {
    const QString page =
        app->Expand(u"http://{FriendsHost}/index.cfm?fuseaction=user.viewcategories&friendId="_s);
    const QString button = u"piccmdFRRefreshCategories_Click"_s;
    world.web.SetFault(page, SimFault::Hang);
    const qint64 startMs = world.clock.NowMs();
    bool isPressed = false;
    platform->Pump().onPump = [&] {
        if (world.clock.NowMs() - startMs < 30 * 60 * 1000 || std::exchange(isPressed, true))
            return;
        EXPECT_EQ(app->controls.Text("cboFRCategories"_L1), u"Retrieving, please wait..."_s);
        world.web.SetFault(page, SimFault::None);
        world.web.SetPage(
            page,
            u"<html><body>Viewable by: all <span class='categorynamelabel'>Band</span></body></html>"_s);
        app->commands.Run(button);
    };
    app->commands.Run(button);
    EXPECT_TRUE(isPressed);
    EXPECT_EQ(app->controls.Items("cboFRCategories"_L1), QStringList{u"Band"_s});
    EXPECT_EQ(app->controls.Text("cboFRCategories"_L1), u"Select a category from the list"_s);
    EXPECT_TRUE(dialogs.Texts().isEmpty());
}

TEST_F(FriendRequesterTest, TheNoticeOfTheErrorRedirectComesOnceARun) {
    app->Get<FriendRequester>().NoticeErrorRedirect();
    app->Get<FriendRequester>().NoticeErrorRedirect();
    EXPECT_EQ(dialogs.shownForms, QStringList{u"frmTempMySpaceErrorFR"_s});
    app->commands.Run(u"frmTempMySpaceErrorFR.cmdOK_Click"_s);
    Run();
    app->Get<FriendRequester>().NoticeErrorRedirect();
    EXPECT_EQ(dialogs.shownForms.count(u"frmTempMySpaceErrorFR"_s), 2);
}

TEST_F(FriendRequesterTest, EachEntryOfTheStepMakesBothBrowsersSilent) {
    app->state.CurrentAction = u"FR"_s;
    app->state.strLastPageText = app->state.strLastPageHref = u"old"_s;
    app->WebBrowser1().SetSilent(false);
    app->webHide().SetSilent(false);
    app->Get<FriendRequester>().IterateAddFriends();
    EXPECT_TRUE(app->WebBrowser1().Silent());
    EXPECT_TRUE(app->webHide().Silent());
    EXPECT_EQ(app->state.strLastPageText + app->state.strLastPageHref, QString());
}

TEST_F(FriendRequesterTest, AStartForgetsWhatAnEarlierRunLeft) {
    RunState& state = app->state;
    state.blnInDelay = state.blnMsgAfterFR = state.blnFRSkipMessage = state.blnErrorRedirectTold = true;
    state.intBlankTicks = state.intFRLimitHits = 2;
    state.lngFailedCount = state.lngRemovedCount = state.lngSessionFR = 5;
    app->timers->Timer1.Restart();
    app->commands.Run(u"piccmdAddFriends_Click"_s);
    EXPECT_FALSE(state.blnInDelay || state.blnMsgAfterFR || state.blnFRSkipMessage ||
                 state.blnErrorRedirectTold);
    EXPECT_EQ(state.intBlankTicks + state.intFRLimitHits, 0);
    EXPECT_EQ(state.lngFailedCount + state.lngRemovedCount + state.lngSessionFR, 0);
    EXPECT_FALSE(app->timers->Timer1.Enabled());
    EXPECT_EQ(app->controls.Text("lblFrFailedCount"_L1), u"Failed: 0"_s);
    EXPECT_EQ(app->controls.Text("lblProgress"_L1), u"ID 1 of 2"_s);
}

class FilteringTest : public FriendRequesterTest {
protected:
    FilteringTest() {
        for (const QString& id : {u"1001"_s, u"1002"_s})
            world.web.SetPage(
                u"http://www.example.com/%1/classic"_s.arg(id),
                u"<html><body><a href='/'>Home</a><p>View My: Pics</p><p>Female<br>33 years old</p></body></html>"_s);
        app->state.blnFilterGenderOff = false;
        app->state.blnFilterMale = true;
    }
    QString Address() { return app->WebBrowser1().LocationURL(); }
};

TEST_F(FilteringTest, AProfileThatDoesNotFitIsLeftAndReported) {
    EXPECT_EQ(Run(), (QStringList{u"http://www.example.com/1001/classic"_s,
                                  u"http://www.example.com/1002/classic"_s}));
    EXPECT_EQ(app->state.lngFilteredCount, 2);
    EXPECT_EQ(Address(), u"about:blank"_s);
    const QList<ReportRow> rows = app->Get<RunReport>().Runs(FriendRequests.report).constLast().rows;
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(ResultText(rows[1].result) + u", "_s + rows[1].why,
              u"Skipped, Doesn't match your filter settings"_s);
}

TEST_F(FilteringTest, AStopWhileTheProfileIsLeftIsTheLastWord) {
    bool stood = false;
    platform->Pump().onPump = [&] {
        stood = stood || Address().endsWith(u"/1001/classic"_s);
        if (stood && Address() == u"about:blank"_s)
            app->commands.Run(u"piccmdAddFriendsStop_Click"_s);
    };
    EXPECT_EQ(Run().size(), 1);
    EXPECT_TRUE(stood);
    EXPECT_EQ(app->state.intFRStep, 0);
}

TEST_F(FriendRequesterTest, ASuccessForgetsTheLimitPagesAndTheSkippedCaptchas) {
    Run();
    app->state.CurrentAction = u"FR"_s;
    app->state.strCurrentID = u"1002"_s;
    app->state.intFRStep = 8;
    app->state.blnDailyLimitHit = true;
    app->state.intFRLimitHits = app->state.intCaptchaSkips = 2;
    app->WebBrowser1().Navigate(u"http://www.example.com/my/friends/addtofriends/1002"_s);
    platform->Pump().RunFor(500);
    app->Get<FriendRequester>().IterateAddFriends();
    EXPECT_FALSE(app->state.blnDailyLimitHit);
    EXPECT_EQ(app->state.intFRLimitHits + app->state.intCaptchaSkips, 0);
}

// The page of the first was found a moment ago: its tick is due when Skip opens the second.
TEST_F(FriendRequesterTest, SkipTakesNoStepOfTheNextProfile) {
    app->commands.Run(u"piccmdAddFriends_Click"_s);
    app->timers->Timer1.Restart();
    world.clock.Advance(500);
    app->commands.Run(u"picSkip_Click"_s);
    EXPECT_EQ(app->state.strCurrentID, u"1002"_s);
    EXPECT_EQ(app->state.CurrentAction, u"FR"_s);
    EXPECT_EQ(app->state.intFRStep, 8);
}

// More than the walk's pump interval of known IDs: Stop works among them.
TEST_F(FriendRequesterTest, StopWorksInALongWalkOverKnownIds) {
    app->files.WriteLines(app->ProgramFile(u"FriendsLog.txt"_s), {u"7"_s});
    QStringList known;
    known.fill(u"7"_s, 250);
    app->state.arrFriendIDs = IdList(known);
    platform->Pump().onPump = [this] { app->commands.Run(u"piccmdAddFriendsStop_Click"_s); };
    EXPECT_TRUE(Run().isEmpty());
    EXPECT_EQ(app->state.lngSkippedCount, 100);
    EXPECT_TRUE(dialogs.Texts().isEmpty());
}

TEST_F(FriendRequesterTest, AStartSilencesTheBrowsersAndUncoversThemBeforeItChecksAnything) {
    app->WebBrowser1().SetSilent(false);
    app->webHide().SetSilent(false);
    app->webHide().ZOrder(0);
    app->controls.SetText("txtFriendRequestsToSend"_L1, u"ten"_s); // refused
    bool asked = false;
    dialogs.onMessage = [&] {
        asked = true;
        EXPECT_TRUE(app->WebBrowser1().Silent());
        EXPECT_TRUE(app->webHide().Silent());
        EXPECT_EQ(app->webHide().Position(), 1);
    };
    app->commands.Run(u"piccmdAddFriends_Click"_s);
    EXPECT_TRUE(asked);
}

TEST_F(FriendRequesterTest, TheThirdLimitPageEndsAProgramThatIsToExit) {
    app->Get<GatheredList>().Add(u"1003"_s, u"test"_s);
    for (const QString& id : {u"1001"_s, u"1002"_s, u"1003"_s})
        world.web.SetPage(u"http://www.example.com/my/friends/addtofriends/"_s + id,
                          u"<html><body><a href='/'>Home</a>You have reached the maximum limit of friend "
                          "requests for the day</body></html>"_s);
    app->state.blnExitWhenFinished = true;
    EXPECT_EQ(Run().size(), 3);
    EXPECT_TRUE(app->state.blnClosing);
    EXPECT_TRUE(dialogs.Texts().isEmpty());
}

// After an answer the page that comes may take its time: until it is complete nothing is read off it.
TEST_F(FriendRequesterTest, BehindAnAnswerTheNextPageIsWaitedForUntilItIsComplete) {
    const QString page = u"http://www.example.com/my/friends/addtofriends/1001"_s;
    world.web.SetPage(page, u"<html><body><a href='/'>Home</a>Please enter the image text</body></html>"_s);
    world.web.SetPage(page + u"?next"_s, u"<html><body><a href='/'>Home</a>One moment</body></html>"_s);
    world.web.SetFault(page + u"?next"_s, SimFault::Incomplete);
    qint64 answeredMs = -1;
    bool stillWaits = false;
    platform->Pump().onPump = [&] {
        if (app->state.blnWaitingForCaptcha && answeredMs < 0) {
            answeredMs = world.clock.NowMs();
            app->WebBrowser1().Navigate(page + u"?next"_s);
        }
        if (answeredMs < 0 || stillWaits || world.clock.NowMs() - answeredMs < 60'000)
            return;
        stillWaits =
            app->Get<PageSigns>().IsTextInPage(u"One moment"_s) && !app->timers->tmrCheckLinkLoaded.Enabled();
        app->commands.Run(u"piccmdAddFriendsStop_Click"_s);
    };
    Run();
    EXPECT_TRUE(stillWaits);
}

// The files are all that the next process knows: cut off at any write, it opens nobody who is noted or
// logged.
TEST_F(FriendRequesterTest, CutOffAtAnyWriteNobodyWhoIsNotedIsOpenedAgain) {
    const QString log = app->ProgramFile(u"FriendsLog.txt"_s);
    const QString deployment = world.deploymentText;
    int onlyNoted = 0;
    for (int write = 1; write < 20; ++write) {
        world.gate.CrashAtWrite(write);
        try {
            Run();
        } catch (const SimPowerCut&) {
            EXPECT_LT(write, 16);
        }
        world.gate.Mend();
        const QStringList noted = OpenNotes(app->files, log).All();
        const QStringList logged = app->files.FileExists(log) ? Log() : QStringList();
        for (const QString& id : noted)
            onlyNoted += logged.contains(id) ? 0 : 1;
        StartOn(deployment);
        app->state.blnNewLayout = true;
        for (const QString& id : {u"1001"_s, u"1002"_s})
            app->Get<GatheredList>().Add(id, u"test"_s);
        for (const QString& opened : Run())
            EXPECT_FALSE((noted + logged).contains(opened.section(u'/', -1))) << write;
        app->files.DeleteFile(log);
        OpenNotes(app->files, log).Clear();
    }
    EXPECT_EQ(onlyNoted, 2); // the write of each log line
}

} // namespace
} // namespace qlm
