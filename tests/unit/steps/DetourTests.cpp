// SPDX-License-Identifier: MIT
#include "DetourTest.h"
#include "campaigns/Campaigns.h"
#include "core/SettingsFields.h"
#include "steps/RunReport.h"
#include "steps/StopResume.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

TEST_F(DetourTest, AnOrdinaryPageIsNone) {
    for (const QString& action :
         {u"FR"_s, u"MSG"_s, u"COM"_s, u"BUL"_s, u"ACC"_s, u"LOGIN"_s, u"SCANNING"_s, u"DEL PEN"_s}) {
        Show(u"<p>Welcome</p>"_s);
        State().CurrentAction = action;
        EXPECT_TRUE(TakesNone()) << action.toStdString();
    }
}

// A step variable says nothing while another activity runs.
TEST_F(DetourTest, AStepCountsForItsOwnActivityAlone) {
    State().intFRStep = 9;
    State().intMsgStep = 9;
    State().intComStep = 6;
    State().intLoginStep = 4;
    State().CurrentAction = u"BUL"_s;
    for (const QString& address : {Home, Root}) {
        Show(address, u"return to myspace! You are logged in."_s);
        EXPECT_TRUE(TakesNone()) << address.toStdString();
    }
}

TEST_F(DetourTest, AForumPageThatShowsIsGatheredFrom) {
    State().CurrentAction = u"SCANNING"_s;
    Show(u"{ForumHost}/t?x=1&page=2"_s, u"<p>Welcome</p>"_s);
    EXPECT_TRUE(TakesNone());
}

TEST_F(DetourTest, ALostSessionIsLoggedInAgainAndTheTargetSkipped) {
    Show(Root, u"<p>Forgot Password?</p>"_s);
    State().CurrentAction = u"MSG"_s;
    State().intMsgStep = 7;
    EXPECT_TRUE(TakesUnfound());
    EXPECT_TRUE(SaidBeginningWith(u"Submit Nonencrypted Form Data"_s));
    EXPECT_TRUE(GivenUp().blnSkipCurrentID);
    EXPECT_TRUE(GivenUp().blnSkipRequested);
    EXPECT_EQ(GivenUp().intMsgStep, 8);
}

TEST_F(DetourTest, ALoginFormElsewhereIsNoLostSession) {
    Show(u"{SiteRootHost}/login"_s, u"<p>Forgot Password?</p>"_s);
    State().CurrentAction = u"MSG"_s;
    EXPECT_TRUE(TakesNone());
    Show(Root, u"<p>Forgot Password?</p>"_s);
    LogIn(4);
    EXPECT_TRUE(TakesNone());
}

TEST_F(DetourTest, AStrangersPageThatAsksForThePasswordIsLeftWithoutIt) {
    Show(u"{SiteRootHost}.stranger.com/"_s, u"<p>Forgot Password?</p><input name=password id=p>"_s);
    State().CurrentAction = u"MSG"_s;
    State().intMsgStep = 7;
    State().AccountPassword = u"secret"_s;
    EXPECT_TRUE(TakesUnfound());
    EXPECT_FALSE(SaidBeginningWith(u"Submit Nonencrypted Form Data"_s));
    EXPECT_TRUE(GivenUp().blnSkipRequested);
    EXPECT_EQ(GivenUp().intMsgStep, 8);
}

TEST_F(DetourTest, AStopWhileLoggingInAgainIsTheLastWord) {
    Show(Root, u"<p>Forgot Password?</p>"_s);
    State().CurrentAction = u"MSG"_s;
    Browser().Navigate(u"http://www.site.example.com/slow"_s);
    app->Pump().Queue().Post([this] { app->Get<StopResume>().StopAll(StopReason::MessageStop); });
    EXPECT_TRUE(TakesUnfound());
    EXPECT_TRUE(State().blnHoldLinkCheck);
    EXPECT_FALSE(State().blnSkipRequested);
}

TEST_F(DetourTest, ATargetIsSkippedWhenTheLoginIsThrough) {
    Show(
        Root,
        u"<p>Forgot Password?</p><form action='/in'><input id=x_Email_Textbox name=e>"
        "<input id=x_Password_Textbox name=p><input type=submit id=loginBtn name=b value='Log in'></form>"_s);
    world.web.defaultLatencyMs = 5000;
    State().CurrentAction = u"MSG"_s;
    State().intMsgStep = 7;
    EXPECT_TRUE(TakesUnfound());
    EXPECT_FALSE(Browser().Busy());
    EXPECT_TRUE(GivenUp().blnSkipRequested);
}

TEST_F(DetourTest, ALostSessionComesBeforeAConfirmation) {
    Show(Root, u"<p>Forgot Password? Request Sent!</p>"_s);
    BeginRequests(9);
    EXPECT_TRUE(TakesUnfound());
    EXPECT_TRUE(SaidBeginningWith(u"Submit Nonencrypted Form Data"_s));
    EXPECT_EQ(State().lngFailedCount, 1);
}

TEST_F(DetourTest, AConfirmationThatCameLateGoesOn) {
    Show(Home, u"<p>Request Sent!</p>"_s);
    BeginRequests(9);
    EXPECT_TRUE(TakesUnfound());
    EXPECT_TRUE(Said(u"Request Sent!FR LF2"_s));
    EXPECT_EQ(State().lngFailedCount, 0);
    EXPECT_TRUE(WentOn());
    EXPECT_TRUE(covers.startsWith(u'-')) << covers.toStdString();
    EXPECT_FALSE(covers.contains(u'+'));
}

TEST_F(DetourTest, AConfirmationBelongsToTheStepThatAwaitsIt) {
    Show(u"<p>Request Sent!</p>"_s);
    BeginRequests(8);
    EXPECT_TRUE(TakesNone());
}

TEST_F(DetourTest, TheHomePageBehindARequestStaysUnderTheCover) {
    Show(Home, u"x"_s);
    BeginRequests(9);
    EXPECT_TRUE(TakesUnfound());
    EXPECT_TRUE(Said(u"FR LF3"_s));
    EXPECT_TRUE(covers.startsWith(u'+'));
    EXPECT_EQ(State().lngFailedCount, 0);
    EXPECT_TRUE(WentOn());
}

TEST_F(DetourTest, TheHomePageInPlaceOfARequestGivesItUp) {
    app->controls.SetTicked("chkFrSendMessage"_L1, true);
    for (qint16 step : {7, 8}) {
        trail.clear();
        Show(Home, u"x"_s);
        BeginRequests(step);
        EXPECT_TRUE(TakesUnfound());
        EXPECT_TRUE(Said(u"FR LF-Homepage3"_s));
        EXPECT_EQ(State().lngFailedCount, 1);
        EXPECT_TRUE(WentOn());
    }
    Show(Home, u"x"_s);
    BeginRequests(6);
    EXPECT_TRUE(TakesNone());
}

TEST_F(DetourTest, TheHomePageBehindAMessageGivesItUp) {
    Show(Home, u"x"_s);
    State().CurrentAction = u"MSG"_s;
    State().intMsgStep = 9;
    EXPECT_TRUE(TakesUnfound());
    EXPECT_EQ(GivenUp().intMsgStep, 8);
    EXPECT_TRUE(GivenUp().blnSkipCurrentID);
    State().CurrentAction = u"MSG"_s;
    State().intMsgStep = 8;
    EXPECT_TRUE(TakesNone());
}

TEST_F(DetourTest, AProfileBehindARequestGoesOn) {
    const QString profile = u"{ProfileHost}/index.cfm?fuseaction=user.viewProfile&x=1"_s;
    Show(profile, u"x"_s);
    BeginRequests(9);
    EXPECT_TRUE(TakesUnfound());
    EXPECT_TRUE(Said(u"FR LF-Homepage2 (chinese?)"_s));
    EXPECT_TRUE(WentOn());
    Show(profile, u"x"_s);
    BeginRequests(8);
    EXPECT_TRUE(TakesNone());
}

TEST_F(DetourTest, TheInboxInPlaceOfARequestGoesOnWithoutItsMessage) {
    app->controls.SetTicked("chkFrSendMessage"_L1, true);
    Show(u"{MessagingHost}/index.cfm?fuseaction=mail.inbox"_s, u"x"_s);
    BeginRequests(8);
    EXPECT_TRUE(TakesUnfound());
    EXPECT_TRUE(Said(u"FR LF-Inbox"_s));
    EXPECT_EQ(State().lngFailedCount, 0);
    EXPECT_TRUE(WentOn());
    Show(u"{MessagingHost}/index.cfm?fuseaction=mail.inbox"_s, u"x"_s);
    State().CurrentAction = u"MSG"_s;
    EXPECT_TRUE(TakesNone());
}

TEST_F(DetourTest, AForumPageThatFailedIsLoadedAgain) {
    const QString text = u"<p>Sorry! An unexpected error has occurred</p>"_s;
    State().CurrentAction = u"SCANNING"_s;
    Show(u"{ForumHost}/t?x=1&page=2"_s, text);
    EXPECT_TRUE(TakesUnfound());
    EXPECT_EQ(Visited(), QStringList{u"http://forums.site.example.com/t?x=1&page=2"_s});
    Show(u"{ForumHost}/t?x=1&page=2"_s, text, SimFault::Incomplete);
    EXPECT_TRUE(TakesNone());
    Show(u"{ForumHost}/t?x=1"_s, text);
    EXPECT_TRUE(TakesNone());
    Show(u"{SiteRootHost}/t?x=1&page=2"_s, text);
    EXPECT_TRUE(TakesNone());
    Show(u"{ForumHost}/t?x=1&page=2"_s, text);
    State().CurrentAction = u"BUL"_s;
    EXPECT_TRUE(TakesNone());
}

TEST_F(DetourTest, AnInterstitialOfTheLoginIsPassedByTheHomePage) {
    for (const QString& text :
         {u"Skip this advertisement"_s, u"We are moving MySpace music players and video players"_s}) {
        Show(text);
        LogIn(3);
        EXPECT_TRUE(TakesUnfound());
        EXPECT_EQ(Visited(), QStringList{HomeAddress}) << text.toStdString();
        Show(text);
        State().CurrentAction = u"BUL"_s;
        EXPECT_TRUE(TakesNone());
    }
}

// However long the next page takes, nothing of the old one is looked at any more.
TEST_F(DetourTest, TheOldPageIsGoneAtOnce) {
    const QString forum = u"http://forums.site.example.com/t?x=1&page=2"_s;
    Show(u"{ForumHost}/t?x=1&page=2"_s, u"Sorry! An unexpected error has occurred"_s);
    State().CurrentAction = u"SCANNING"_s;
    world.web.SetFault(forum, SimFault::Hang);
    EXPECT_TRUE(TakesUnfound());
    EXPECT_EQ(Address(), u"about:blank"_s);
    Show(u"Skip this advertisement"_s);
    LogIn(3);
    world.web.SetFault(HomeAddress, SimFault::Hang);
    EXPECT_TRUE(TakesUnfound());
    EXPECT_EQ(Address(), u"about:blank"_s);
    EXPECT_TRUE(Browser().Busy());
}

TEST_F(DetourTest, AStopWhileTheOldPageGoesIsTheLastWord) {
    Show(u"Skip this advertisement"_s);
    LogIn(3);
    app->Pump().Queue().Post([this] { app->Get<StopResume>().StopAll(StopReason::WindowStop); });
    EXPECT_TRUE(TakesUnfound());
    EXPECT_EQ(Visited(), QStringList());
    Show(u"{ForumHost}/t?x=1&page=2"_s, u"Sorry! An unexpected error has occurred"_s);
    State().CurrentAction = u"SCANNING"_s;
    app->Pump().Queue().Post([this] { app->Get<StopResume>().StopAll(StopReason::WindowStop); });
    EXPECT_TRUE(TakesUnfound());
    EXPECT_EQ(Visited(), QStringList());
}

TEST_F(DetourTest, AnAdvertisementComesBeforeTheLanguage) {
    Show(u"Skip this advertisement, Parcourir"_s);
    LogIn(3);
    EXPECT_TRUE(TakesUnfound());
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(DetourTest, AForeignSiteEndsTheLogin) {
    // It comes before the next row.
    Show(u"Parcourir, return to myspace"_s);
    LogIn(4);
    EXPECT_TRUE(TakesUnfound());
    EXPECT_EQ(dialogs.Texts(),
              QStringList{u"In order to use Quillmere, your MySpace language setting must be "
                          "English.\n\nPlease change this in your account settings and restart "
                          "the program."_s});
    EXPECT_TRUE(SaidBeginningWith(u"LOGIN stop - (LF1)"_s));
    EXPECT_EQ(State().CurrentAction, QString());
    EXPECT_FALSE(State().blnLoginCacheRetry);
}

TEST_F(DetourTest, ALostSessionIsWaitedForAndCountsAsFound) {
    Show(Root, u"<p>Forgot Password?</p>"_s);
    State().CurrentAction = u"MSG"_s;
    State().intMsgStep = 7;
    SimAnswer slow;
    slow.html = u"<body>behind the login</body>"_s;
    slow.latencyMs = 5000;
    world.web.SetAnswer(u"http://www.site.example.com/slow"_s, slow);
    Browser().Navigate(u"http://www.site.example.com/slow"_s);
    State().blnLinkFound = false;
    bool foundMeanwhile = false;
    app->Pump().Queue().PostAt(app->Pump().NowMs() + 1000, [&] { foundMeanwhile = State().blnLinkFound; });
    EXPECT_TRUE(TakesUnfound());
    EXPECT_TRUE(foundMeanwhile);
    EXPECT_FALSE(Browser().Busy());
}

TEST_F(DetourTest, AWayBackToTheSiteBeginsTheLoginAnew) {
    // It comes before the next row.
    Show(u"return to myspace! You are logged in."_s);
    LogIn(4);
    EXPECT_TRUE(TakesUnfound());
    EXPECT_TRUE(State().blnLoginCacheRetry);
    EXPECT_TRUE(Said(u"LF - 'return to myspace'..."_s));
    EXPECT_FALSE(Said(u"LF - MS Homepage..."_s));
    EXPECT_TRUE(std::any_of(trail.begin(), trail.end(),
                            [](const QString& line) { return line.endsWith(u", Code: 1"_s); }));
    Show(u"return to myspace"_s);
    LogIn(3);
    EXPECT_TRUE(TakesNone());
}

// The login that begins anew restores the account: what the user has typed meanwhile is saved before.
TEST_F(DetourTest, AWayBackToTheSiteSavesWhatWasTyped) {
    State().AccountEmail = u"a@example.com"_s;
    app->Get<SettingsFields>().RestoreAccountSpecificFields();
    app->controls.SetText("txtFRNote"_L1, u"typed"_s);
    Show(u"return to myspace"_s);
    LogIn(4);
    State().AccountsLoadedOnce = false;
    EXPECT_TRUE(TakesUnfound());
    EXPECT_EQ(app->controls.Text("txtFRNote"_L1), u"typed"_s);
    EXPECT_EQ(world.settings.GetSetting(u"Field Entries"_s, u"txtFRNote"_s, {}), u"typed"_s);
}

TEST_F(DetourTest, AConfirmedLoginGoesToTheHomePage) {
    Show(u"Welcome! You are logged in."_s);
    LogIn(4);
    EXPECT_TRUE(TakesUnfound());
    EXPECT_TRUE(Said(u"LF - MS Homepage..."_s));
    EXPECT_EQ(Visited(), QStringList{HomeAddress});
    Show(u"Welcome! You are logged in."_s);
    LogIn(3);
    EXPECT_TRUE(TakesNone());
}

TEST_F(DetourTest, APageOfTheCacheBeginsTheLoginAnewOrEndsIt) {
    struct Row {
        QString text;
        bool retry;
        QString line;
        QString code;
    };
    const std::vector<Row> rows{
        {u"Show My: x"_s, false, u"LF - Cache... try again - True, False"_s, u", Code: 1"_s},
        {u"View My: x"_s, true, u"LF - Cache... try again - False, True"_s, u", Code: 4"_s},
        // It comes before the next row.
        {u"show my: allow others to see when it's my birthday"_s, false,
         u"LF - Cache... try again - True, False"_s, u", Code: 1"_s}};
    for (const Row& row : rows) {
        trail.clear();
        Show(row.text);
        LogIn(3);
        State().blnLoginCacheRetry = row.retry;
        EXPECT_TRUE(TakesUnfound());
        EXPECT_TRUE(Said(row.line)) << row.text.toStdString();
        EXPECT_TRUE(std::any_of(trail.begin(), trail.end(), [&row](const QString& line) {
            return line.endsWith(row.code);
        })) << row.text.toStdString();
    }
    Show(u"Show My: x"_s);
    LogIn(2);
    EXPECT_TRUE(TakesNone());
}

TEST_F(DetourTest, TheBirthdayNoticeIsPassedOnceAWait) {
    Show(u"Allow others to see when it's my birthday"_s);
    State().CurrentAction = u"BUL"_s;
    // It comes before the next row.
    State().blnDailyLimitHit = true;
    EXPECT_TRUE(TakesUnfound());
    EXPECT_TRUE(State().blnLinkFound);
    EXPECT_EQ(State().CurrentAction, u"BUL"_s);
    EXPECT_EQ(Visited(), QStringList{u"http://login.site.example.com/index.cfm?fuseaction=login"_s});
    State().blnDailyLimitHit = false;
    EXPECT_TRUE(TakesNone());
}

TEST_F(DetourTest, ADailyLimitStopsTheRun) {
    // It comes before the next row.
    Show(u"we are moving myspace music players and video players"_s);
    LogIn(3);
    State().blnDailyLimitHit = true;
    EXPECT_TRUE(TakesUnfound());
    EXPECT_TRUE(SaidBeginningWith(u"LOGIN stop - (LF2)"_s));
    EXPECT_EQ(State().CurrentAction, QString());
    EXPECT_FALSE(State().blnDailyLimitHit);
    EXPECT_TRUE(Visited().isEmpty());
    Show(u"x"_s);
    State().CurrentAction = u"BUL"_s;
    State().blnDailyLimitHit = true;
    State().blnLinkFound = true;
    EXPECT_TRUE(TakesNone());
}

TEST_F(DetourTest, ADailyLimitEndsTheProgramWhenItIsToExit) {
    Show(u"x"_s);
    LogIn(3);
    State().blnDailyLimitHit = true;
    State().blnExitWhenFinished = true;
    EXPECT_TRUE(TakesUnfound());
    EXPECT_TRUE(State().blnClosing);
}

TEST_F(DetourTest, InAChainADailyLimitHandsOver) {
    QStringList asked;
    app->commands.Add(u"LoginNextCycleAccount"_s, [this, &asked] { asked += State().CurrentAction; });
    Show(u"x"_s);
    State().CurrentAction = u"MSG"_s;
    State().blnDailyLimitHit = true;
    State().blnChaining = true;
    app->state.blnExitWhenFinished = true;
    EXPECT_TRUE(TakesUnfound());
    // The run has been stopped when the next account is asked for, and the program goes on.
    EXPECT_EQ(asked, QStringList{QString()});
    EXPECT_FALSE(State().blnClosing);
}

TEST_F(DetourTest, ACertificateErrorIsExplained) {
    Show(u"There is a problem with this site's security certificate"_s);
    LogIn(1);
    world.settings.SaveSetting(u"Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings"_s,
                               u"CertificateRevocation"_s, u"1"_s);
    EXPECT_TRUE(TakesUnfound());
    EXPECT_TRUE(Said(u"Security Certificate Error - 1"_s));
    ASSERT_EQ(dialogs.messages.size(), 1);
    EXPECT_EQ(dialogs.messages[0].title, u"Login error"_s);
    EXPECT_TRUE(
        dialogs.messages[0].text.startsWith(u"A current bug in Internet Explorer or MySpace may be"_s));
    EXPECT_TRUE(
        dialogs.messages[0].text.endsWith(u"close any Internet Explorer windows and restart Quillmere"_s));
    // The row before it wins.
    Show(u"security certificate, we are moving myspace music players and video players"_s);
    LogIn(1);
    EXPECT_TRUE(TakesUnfound());
    EXPECT_EQ(dialogs.messages.size(), 1);
    Show(u"security certificate"_s);
    State().CurrentAction = u"BUL"_s;
    EXPECT_TRUE(TakesNone());
}

TEST_F(DetourTest, AnAccountWithoutMailSkipsTheTarget) {
    const QString address = u"{MessagingHost}/index.cfm?fuseaction=mailsetup.createaccount"_s;
    for (const QString& action : {u"ACC"_s, u"MSG"_s}) {
        Show(address, u"x"_s);
        State().CurrentAction = action;
        State().blnSkipRequested = false;
        EXPECT_TRUE(TakesUnfound());
        EXPECT_TRUE(action == u"MSG" ? GivenUp().blnSkipRequested : State().blnSkipRequested);
    }
    EXPECT_EQ(trail.count(u"LINKFOUND: CREATE EMAIL PAGE - SKIP!"_s), 2);
    State().CurrentAction = u"BUL"_s;
    EXPECT_TRUE(TakesNone());
    Show(address + u"&x"_s, u"x"_s);
    State().CurrentAction = u"MSG"_s;
    EXPECT_TRUE(TakesNone());
}

TEST_F(DetourTest, ACaptchaOfARequestIsFound) {
    Show(u"x"_s);
    BeginRequests(7);
    EXPECT_EQ(Take(true), Verdict(true));
    EXPECT_EQ(State().intFRStep, 8);
    EXPECT_TRUE(State().blnLinkFound);
    State().blnWaitingForCaptcha = true;
    EXPECT_TRUE(TakesNone(true));
    State().blnWaitingForCaptcha = false;
    EXPECT_TRUE(TakesNone(false));
}

TEST_F(DetourTest, ACaptchaOfAMessageAndItsEndAreFound) {
    Show(u"Your message has been sent"_s);
    State().CurrentAction = u"MSG"_s;
    State().intMsgStep = 8;
    EXPECT_EQ(Take(true), Verdict(true));
    EXPECT_EQ(State().intMsgStep, 9);
    EXPECT_TRUE(State().blnLinkFound);
    EXPECT_TRUE(TakesNone(false));
    State().blnWaitingForCaptcha = true;
    EXPECT_EQ(Take(false), Verdict(true));
    Show(u"x"_s);
    EXPECT_TRUE(TakesNone(false));
}

// What a page says counts in any letter case, and not when its markup alone says it.
TEST_F(DetourTest, ANoticeIsWhatThePageShows) {
    struct Notice {
        QString action;
        qint16 step;
        QString text;
        QString address = u"{SiteRootHost}/page"_s;
    };
    const std::vector<Notice> notices{
        {u"SCANNING"_s, 0, u"Sorry! an unexpected error has occurred"_s, u"{ForumHost}/t?x=1&page=2"_s},
        {u"LOGIN"_s, 1, u"Skip this Advertisement"_s},
        {u"LOGIN"_s, 4, u"return to myspace"_s},
        {u"LOGIN"_s, 4, u"! You are logged in."_s},
        {u"LOGIN"_s, 3, u"Show My:"_s},
        {u"LOGIN"_s, 3, u"View My:"_s},
        {u"BUL"_s, 0, u"allow others to see when it's my birthday"_s},
        {u"LOGIN"_s, 1, u"we are moving myspace music players and video players"_s},
        {u"LOGIN"_s, 1, u"security certificate"_s},
        {u"MSG"_s, 0, u"your message has been sent"_s},
    };
    State().blnWaitingForCaptcha = true;
    State().AccountsLoadedOnce = true;
    for (const Notice& notice : notices) {
        SCOPED_TRACE(notice.text.toStdString());
        auto isTaken = [&](const QString& body) {
            Show(notice.address, body);
            State().CurrentAction = notice.action;
            State().intLoginStep = notice.step;
            State().blnLinkFound = false;
            return Take().has_value();
        };
        EXPECT_TRUE(isTaken(u"<p>"_s + notice.text.toUpper() + u"</p>"_s));
        EXPECT_FALSE(isTaken(u"<p title=\""_s + notice.text + u"\">x</p>"_s));
    }
}

TEST_F(DetourTest, AnAddressWithinAnotherOneIsNoPageOfTheSite) {
    const QString elsewhere = u"stranger.com/go?to="_s;
    const QString mail = u"{MessagingHost}/index.cfm?fuseaction=mailsetup.createaccount"_s;
    for (const QString& address : {elsewhere + Root, elsewhere + mail}) {
        Show(address, u"x"_s);
        State().CurrentAction = address.endsWith(mail) ? u"MSG"_s : u"COM"_s;
        State().intComStep = 6;
        EXPECT_TRUE(TakesNone()) << address.toStdString();
    }
    Show(elsewhere + u"{ForumHost}/t?x=1&page=2"_s, u"Sorry! an unexpected error has occurred"_s);
    State().CurrentAction = u"SCANNING"_s;
    EXPECT_TRUE(TakesNone());
}

TEST_F(DetourTest, AMissingMailAccountComesBeforeTheCaptcha) {
    Show(u"{MessagingHost}/index.cfm?fuseaction=mailsetup.createaccount"_s, u"x"_s);
    State().CurrentAction = u"MSG"_s;
    EXPECT_TRUE(TakesUnfound(true));
}

// Why a target was left is read in the report later.
TEST_F(DetourTest, TheReportSaysWhyATargetWasLeft) {
    struct Row {
        QString address;
        QString body;
        qint16 step;
        const char* why;
    };
    for (const Row& row : std::vector<Row>{
             {Root, u"Forgot Password?"_s, 8, "The session was lost; you were signed in again"},
             {u"{SiteRootHost}.stranger.com/"_s, u"Forgot Password?"_s, 8,
              "A page that is not the site's asked for your password; nothing was typed into it"},
             {Home, u"x"_s, 9, "The site showed your home page instead of a confirmation"},
             {Home, u"x"_s, 8, "The site showed your home page instead of the request page"},
             {u"{ProfileHost}/index.cfm?fuseaction=user.viewProfile&x=1"_s, u"x"_s, 9,
              "The site showed a profile instead of a confirmation"},
             {u"{MessagingHost}/index.cfm?fuseaction=mail.inbox"_s, u"x"_s, 8,
              "The site showed your inbox instead of a confirmation"}}) {
        RunReport& report = app->Get<RunReport>();
        report.BeginRun(FriendRequests.report);
        report.Open(u"1001"_s);
        Show(row.address, row.body);
        BeginRequests(row.step);
        EXPECT_TRUE(TakesUnfound());
        const ReportedRun run = report.Runs(FriendRequests.report).constLast();
        ASSERT_FALSE(run.rows.isEmpty());
        EXPECT_EQ(run.rows.constFirst().why, QString::fromLatin1(row.why));
    }
}

} // namespace
} // namespace qlm
