// SPDX-License-Identifier: MIT
#include "BrowserTest.h"
#include "gather/GatheredList.h"
#include "steps/BrowserHost.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class BrowserHostTest : public BrowserTest {
protected:
    BrowserHostTest() { app->Get<BrowserHost>().Attach(); }
    // The answer to a navigation that is about to begin.
    bool Cancels(const QString& url, const QString& headers = {}) {
        NavigationRequest request;
        request.url = app->Expand(url);
        request.headers = headers;
        return Browser().events.beforeNavigate2(request);
    }
    void SendLogin(const QString& email, const QString& password) { Send(LoginRequest(email, password)); }
    void Send(const NavigationRequest& request) { EXPECT_FALSE(Browser().events.beforeNavigate2(request)); }
    NavigationRequest LoginRequest(const QString& email, const QString& password) {
        NavigationRequest request;
        request.url = u"http://login.site.example.com/go"_s;
        request.isForm = true;
        request.inputs = {{u"x_Email_Textbox"_s, {}, email, u"text"_s},
                          {u"x_Password_Textbox"_s, {}, password, u"password"_s}};
        request.pageAddress = u"http://home.site.example.com/"_s;
        request.pageText = u"Sign in. Forgot Password?"_s;
        return request;
    }
    void GatherByClick() { app->controls.SetTicked("optImportClickedProfiles"_L1, true); }
    void Complete(bool topLevel, const QString& url) { Browser().events.documentComplete(topLevel, url); }
    QString Stored(const QString& key) {
        return world.settings.GetSetting(u"Field Entries"_s, u"Login - "_s + key, u"none"_s);
    }

    const QString Profile =
        u"http://profile.site.example.com/index.cfm?fuseaction=user.viewprofile&friendID=77"_s;
};

TEST_F(BrowserHostTest, AnOrdinaryNavigationGoesOn) {
    Show(u"x"_s);
    EXPECT_FALSE(Cancels(u"http://{SiteRootHost}/ann"_s));
    EXPECT_TRUE(trail.isEmpty()) << trail.join(u'|').toStdString();
}

TEST_F(BrowserHostTest, AnEmptyScriptLinkOfTheMailIsRefused) {
    Show(u"{MessagingHost}/INDEX.cfm?fuseaction=mail.inbox"_s, u"x"_s);
    EXPECT_TRUE(Cancels(u"javascript:void()"_s));
    EXPECT_FALSE(Cancels(u"javascript:void(0)"_s));
    Show(u"x"_s);
    EXPECT_FALSE(Cancels(u"javascript:void()"_s));
}

TEST_F(BrowserHostTest, AnAdvertsRequestIsRefusedWhileLoggingIn) {
    Show(u"x"_s);
    State().CurrentAction = u"LOGIN"_s;
    EXPECT_TRUE(Cancels(u"http://x.example.com/a"_s, u"Referer: http://creative.site.example.com/ad"_s));
    EXPECT_TRUE(Said(u"WebBefNav-Flash-Cancel"_s));
    EXPECT_FALSE(Cancels(u"http://x.example.com/a"_s, u"Referer: http://x"_s));
    EXPECT_TRUE(Said(u"URL: http://x.example.com/a, Header: Referer: http://x"_s));
    State().CurrentAction = u"FR"_s;
    EXPECT_FALSE(Cancels(u"http://x.example.com/a"_s, u"Referer: http://creative.site.example.com/ad"_s));
}

TEST_F(BrowserHostTest, GroupPagesAreRefusedOnTheWayBackOnly) {
    Show(u"x"_s);
    State().blnUserNavigated = true;
    EXPECT_TRUE(Cancels(u"http://{GroupsHost}/x"_s));
    EXPECT_FALSE(State().blnUserNavigated);
    EXPECT_FALSE(Cancels(u"http://{GroupsHost}/x"_s));
    State().blnUserNavigated = true;
    EXPECT_FALSE(Cancels(u"http://GROUPS.site.example.com/x"_s));
    State().blnUserNavigated = true;
    EXPECT_FALSE(Cancels(u"http://{SiteRootHost}/x"_s));
    EXPECT_FALSE(State().blnUserNavigated);
    GatherByClick();
    State().blnUserNavigated = true;
    EXPECT_FALSE(Cancels(u"http://{GroupsHost}/x"_s));
}

TEST_F(BrowserHostTest, TheGuardRefusesEverything) {
    Show(u"x"_s);
    Browser().BeginRefusal();
    State().blnUserNavigated = true;
    EXPECT_TRUE(Cancels(u"http://{SiteRootHost}/ann"_s));
    EXPECT_FALSE(State().blnUserNavigated);
}

TEST_F(BrowserHostTest, AClickOnAProfileGathersItAndStays) {
    Show(u"<a href='"_s + Profile + u"'>Ann</a><a href='/index.cfm?x=1'>Other</a>"_s);
    GatherByClick();
    EXPECT_TRUE(Cancels(Profile.toUpper()));
    EXPECT_EQ(State().arrFriendIDs.ToStringList(), QStringList{u"77"_s});
    EXPECT_FALSE(Browser().RefusesNavigations());
    EXPECT_TRUE(Said(u"CLICK-GATHER1 - "_s + Profile.toUpper()));
    EXPECT_TRUE(Said(u"CLICK-GATHER7 - ADD TO LIST"_s));
    // The same again: not twice, and still no navigation.
    EXPECT_TRUE(Cancels(Profile));
    EXPECT_EQ(State().arrFriendIDs.ToStringList(), QStringList{u"77"_s});
    EXPECT_FALSE(Cancels(u"http://{SiteRootHost}/index.cfm?x=1"_s));
    EXPECT_FALSE(Browser().RefusesNavigations());
}

TEST_F(BrowserHostTest, AProfileIsGatheredOnlyByTheUsersOwnClickWhileIdle) {
    Show(u"<a href='"_s + Profile + u"'>Ann</a>"_s);
    EXPECT_FALSE(Cancels(Profile));
    GatherByClick();
    EXPECT_FALSE(Cancels(Profile, u"Referer: x"_s));
    State().CurrentAction = u"FR"_s;
    EXPECT_FALSE(Cancels(Profile));
    EXPECT_TRUE(app->Get<GatheredList>().IsEmpty());
}

TEST_F(BrowserHostTest, AClickedProfileWithoutANumberIsToldAndNotOpened) {
    const QString bob = u"http://www.site.example.com/bob"_s;
    world.web.SetPage(bob, u"<body>Bob</body>"_s);
    Show(u"<ul><li><a href='"_s + bob + u"'>Bob</a></li></ul>"_s);
    GatherByClick();
    EXPECT_TRUE(Cancels(bob));
    EXPECT_EQ(dialogs.Texts(), QStringList{u"An error has occurred on MySpace's end while trying to retrieve "
                                           "the ID. Please try again."_s});
    EXPECT_TRUE(app->Get<GatheredList>().IsEmpty());
    EXPECT_FALSE(Browser().RefusesNavigations());
}

TEST_F(BrowserHostTest, OfLinksToOneAddressTheFirstProfileIsTaken) {
    // The first of the two stands where no profile does.
    Show(u"<div class='footer'><a href='"_s + Profile + u"&x=about'></a></div><a href='"_s + Profile +
         u"'>Ann</a>"_s);
    GatherByClick();
    EXPECT_TRUE(Cancels(Profile));
    EXPECT_EQ(trail.count(u"CLICK-GATHER2"_s), 1);
    EXPECT_EQ(trail.count(u"CLICK-GATHER3 - "_s + Profile), 1);
    EXPECT_EQ(trail.count(u"CLICK-GATHER4 - "_s + Profile), 1);
    EXPECT_TRUE(Said(u"CLICK-GATHER5 - 77"_s));
    EXPECT_TRUE(Said(u"CLICK-GATHER6 - False"_s));
}

TEST_F(BrowserHostTest, AClickThatLeadsOffTheSiteIsNotGathered) {
    const QString away = u"http://elsewhere.example.org/index.cfm?fuseaction=user.viewprofile&friendID=77"_s;
    Show(u"<a href='"_s + away + u"'>Ann</a>"_s);
    GatherByClick();
    EXPECT_FALSE(Cancels(away));
    EXPECT_FALSE(SaidBeginningWith(u"CLICK-GATHER1"_s));
}

TEST_F(BrowserHostTest, AnEmptyPageIsNeverHeldBack) {
    State().blnUserNavigated = true;
    EXPECT_FALSE(Cancels(u"http://{GroupsHost}/x"_s)); // nothing has been shown yet
    EXPECT_FALSE(State().blnUserNavigated);
    Show(u"x"_s);
    State().CurrentAction = u"LOGIN"_s;
    EXPECT_FALSE(Cancels(u"about:blank"_s, u"Referer: http://creative.site.example.com/ad"_s));
    EXPECT_FALSE(Said(u"WebBefNav-Flash-Cancel"_s));
}

TEST_F(BrowserHostTest, EveryEventSilencesThePage) {
    Show(u"x"_s);
    Browser().SetSilent(false);
    Complete(false, Address());
    EXPECT_TRUE(Browser().Silent());
    Browser().SetSilent(false);
    Browser().events.statusTextChange(u"Done"_s);
    EXPECT_TRUE(Browser().Silent());
}

TEST_F(BrowserHostTest, AnAccountTypedByHandIsTakenOver) {
    Show(u"x"_s);
    State().CurrentAction = u"LOGIN"_s;
    for (qint16 step : {0, 4}) {
        State().AccountEmail = u"tam@example.com"_s;
        State().intLoginStep = step;
        SendLogin(u" Zoe@Example.com "_s, u" secret "_s);
        EXPECT_EQ(State().AccountEmail, u"zoe@example.com"_s);
        EXPECT_EQ(State().AccountPassword, u"secret"_s);
        EXPECT_EQ(Stored(u"txtEmail"_s), u"zoe@example.com"_s);
        EXPECT_EQ(Stored(u"txtPassword"_s), u"secret"_s);
    }
    for (const QString& line :
         {u"Navigate 2.3 - ****, ****"_s, u"Navigate 3.1 (e) - ****"_s, u"Navigate 3.5"_s})
        EXPECT_TRUE(Said(line)) << line.toStdString();
    EXPECT_FALSE(trail.join(u'\n').contains(u"secret"_s));
    EXPECT_FALSE(trail.join(u'\n').contains(u"zoe"_s, Qt::CaseInsensitive));
}

TEST_F(BrowserHostTest, APasswordIsKeptEvenWhereTheAccountIsNotTaken) {
    Show(u"x"_s);
    State().CurrentAction = u"LOGIN"_s;
    State().AccountEmail = u"tam@example.com"_s;
    State().AccountPassword = u"old"_s;
    State().intLoginStep = 3;
    SendLogin(u"zoe@example.com"_s, u"new"_s);
    EXPECT_EQ(State().AccountEmail, u"tam@example.com"_s);
    EXPECT_EQ(Stored(u"txtPassword"_s), u"new"_s);
    State().intLoginStep = 4;
    SendLogin(u"TAM@example.com"_s, u"newer"_s);
    SendLogin({}, u"newest"_s);
    EXPECT_EQ(State().AccountPassword, u"old"_s);
    EXPECT_EQ(Stored(u"txtPassword"_s), u"newest"_s);
    EXPECT_EQ(Stored(u"txtEmail"_s), u"none"_s);
}

TEST_F(BrowserHostTest, OnlyALoginLooksAtWhatIsTyped) {
    Show(u"x"_s);
    State().CurrentAction = u"FR"_s;
    SendLogin(u"zoe@example.com"_s, u"new"_s);
    EXPECT_EQ(Stored(u"txtPassword"_s), u"none"_s);
}

TEST_F(BrowserHostTest, AFormWithoutTheFieldsOfALoginTellsNothing) {
    Show(u"x"_s);
    State().CurrentAction = u"LOGIN"_s;
    NavigationRequest search;
    search.url = u"http://www.site.example.com/search"_s;
    search.isForm = true;
    search.inputs = {{u"q"_s, u"q"_s, u"zoe"_s, u"text"_s}};
    EXPECT_FALSE(Browser().events.beforeNavigate2(search));
    EXPECT_FALSE(SaidBeginningWith(u"Navigate 2.3"_s));
    SendLogin({}, {});
    EXPECT_TRUE(Said(u"Navigate 2.3 - , "_s));
}

TEST_F(BrowserHostTest, OnlyALoginFormOfTheSitesOwnTellsAnAccount) {
    State().CurrentAction = u"LOGIN"_s;
    State().intLoginStep = 4;
    Show(u"Forgot your password?<a href='/'>x</a>"_s);
    NavigationRequest request = LoginRequest(u"zoe@example.com"_s, u"word"_s);
    request.pageText = u"Sign up"_s;
    Send(request);
    request = LoginRequest(u"zoe@example.com"_s, u"word"_s);
    request.pageAddress = u"http://home.site.example.com.stranger.com/"_s;
    Send(request);
    request = LoginRequest(u"zoe@example.com"_s, u"word"_s);
    request.url = u"http://stranger.com/take"_s;
    Send(request);
    // A frame's form that leaves through the whole window brings nothing of itself along.
    request = LoginRequest(u"zoe@example.com"_s, u"word"_s);
    request.pageAddress.clear();
    request.pageText.clear();
    Send(request);
    EXPECT_NE(State().AccountEmail, u"zoe@example.com"_s);
    EXPECT_EQ(Stored(u"txtPassword"_s), u"none"_s);
    EXPECT_FALSE(SaidBeginningWith(u"Navigate 2.3"_s));
}

// A link may send the form by script: then the page itself tells what stands in it.
TEST_F(BrowserHostTest, ALoginThatALinkSendsIsReadOffThePage) {
    State().CurrentAction = u"LOGIN"_s;
    const QString form = u"<input id=a_Email_Textbox value=' Zoe@Example.com '>"
                         "<input id=a_Password_Textbox value=' word '>"_s;
    Show(form);
    EXPECT_FALSE(Cancels(u"http://login.site.example.com/go"_s));
    EXPECT_FALSE(SaidBeginningWith(u"Navigate 2.3"_s));
    Show(u"{SiteRootHost}.stranger.com/"_s, form + u"Forgot your password?"_s);
    EXPECT_FALSE(Cancels(u"http://login.site.example.com/go"_s));
    EXPECT_FALSE(SaidBeginningWith(u"Navigate 2.3"_s));
    Show(form + u"Forgot your password?"_s);
    NavigationRequest frame;
    frame.url = u"http://login.site.example.com/frame"_s;
    frame.topLevel = false;
    EXPECT_FALSE(Browser().events.beforeNavigate2(frame));
    EXPECT_FALSE(SaidBeginningWith(u"Navigate 2.3"_s));
    EXPECT_FALSE(Cancels(u"http://login.site.example.com/go"_s));
    EXPECT_EQ(State().AccountEmail, u"zoe@example.com"_s);
    EXPECT_EQ(State().AccountPassword, u"word"_s);
}

TEST_F(BrowserHostTest, ACompletePageIsCheckedAtOnce) {
    Show(u"wanted"_s);
    State().CurrentAction = u"BUL"_s;
    Await(u"Text"_s, u"wanted"_s);
    app->timers->tmrCheckLinkLoaded.Restart();
    Complete(false, Address());
    EXPECT_FALSE(app->timers->Timer1.Enabled());
    Complete(true, Address());
    EXPECT_TRUE(app->timers->Timer1.Enabled());
    EXPECT_FALSE(app->timers->tmrCheckLinkLoaded.Enabled());
    EXPECT_EQ(app->timers->tmrAutoResume.Interval(), 30000);
}

TEST_F(BrowserHostTest, ACompletePageIsLeftAloneWhileTheCheckIsHeldOrOff) {
    Show(u"wanted"_s);
    State().CurrentAction = u"BUL"_s;
    Await(u"Text"_s, u"wanted"_s);
    Complete(true, Address());
    EXPECT_FALSE(app->timers->Timer1.Enabled());
    app->timers->tmrCheckLinkLoaded.Restart();
    State().blnHoldLinkCheck = true;
    Complete(true, Address());
    EXPECT_FALSE(app->timers->Timer1.Enabled());
    State().blnHoldLinkCheck = false;
    Complete(true, u"about:blank"_s);
    EXPECT_FALSE(app->timers->Timer1.Enabled());
}

TEST_F(BrowserHostTest, TheAddressBarShowsWhatHasLoadedButNoEmptyPage) {
    Show(u"x"_s);
    EXPECT_EQ(app->controls.Text("txtAddress"_L1), u"http://www.site.example.com/page"_s);
    Browser().Navigate(u"about:blank"_s);
    platform->Pump().RunFor(100);
    EXPECT_EQ(app->controls.Text("txtAddress"_L1), u"http://www.site.example.com/page"_s);
}

TEST_F(BrowserHostTest, TheWatchdogIsSetByWhatThePageWas) {
    Timer& watchdog = app->timers->tmrAutoResume;
    Show(u"x"_s);
    State().CurrentAction = u"BUL"_s;
    Await(u"Text"_s, u"wanted"_s);
    watchdog.SetEnabled(false);
    Complete(false, Address());
    EXPECT_EQ(watchdog.Interval(), 30000);
    app->timers->tmrCheckLinkLoaded.Restart();
    Complete(true, Address());
    EXPECT_EQ(watchdog.Interval(), 2000);
    watchdog.SetEnabled(true);
    Complete(true, Address());
    EXPECT_EQ(watchdog.Interval(), 30000);
    State().CurrentAction = u"INV"_s;
    Complete(true, Address());
    EXPECT_EQ(watchdog.Interval(), 2000);
    // A page that is the step's leaves it at the long one.
    watchdog.SetEnabled(false);
    State().CurrentAction = u"BUL"_s;
    State().blnWaitingForCaptcha = true;
    Await(u"Text"_s, u"x"_s);
    Complete(true, Address());
    EXPECT_TRUE(app->timers->Timer1.Enabled());
    EXPECT_EQ(watchdog.Interval(), 30000);
}

TEST_F(BrowserHostTest, EveryCompletePageStartsTheWatchdogAnew) {
    Show(u"x"_s);
    Timer& watchdog = app->timers->tmrAutoResume;
    watchdog.SetInterval(30000);
    watchdog.Restart();
    platform->Pump().RunFor(20000);
    Complete(true, Address());
    trail.clear();
    platform->Pump().RunFor(20000);
    EXPECT_TRUE(trail.isEmpty()) << trail.join(u'|').toStdString();
    platform->Pump().RunFor(11000);
    EXPECT_FALSE(trail.isEmpty());
}

TEST_F(BrowserHostTest, TheStatusLineHidesTheProgramsOwnPages) {
    auto shown = [this](const QString& text) {
        app->controls.SetText("lblStatus"_L1, u"before"_s);
        Browser().events.statusTextChange(text);
        return app->controls.Text("lblStatus"_L1);
    };
    Show(u"x"_s);
    EXPECT_EQ(shown(u"Done"_s), u"Done  "_s);
    for (const QString& text :
         {u"go Join.ProcessStep3"_s, u"join.step3"_s, u"http://invite.site.example.com/x"_s})
        EXPECT_EQ(shown(text), u"before"_s) << text.toStdString();
    Show(u"{GroupsHost}/x"_s, u"x"_s);
    EXPECT_EQ(shown(u"Done"_s), u"before"_s);
}

TEST_F(BrowserHostTest, ANewWindowOfAProfileLinkOpensHere) {
    Show(u"<a id=ann href='"_s + Profile + u"'>Ann</a><a id=other href='/index.cfm?x=1'>Other</a>"_s);
    Browser().TakeVisited();
    Browser().Document().GetElementById(u"other"_s).Focus();
    EXPECT_FALSE(Browser().events.newWindow2(u"http://x.example.com/"_s));
    Browser().Document().GetElementById(u"ann"_s).Focus();
    EXPECT_TRUE(Browser().events.newWindow2(u"http://x.example.com/"_s));
    platform->Pump().RunFor(500);
    EXPECT_EQ(Browser().TakeVisited(), QStringList{Profile});
}

// The comment form takes the focus from a window in which the user works.
class CommentFormTest : public BrowserHostTest {
protected:
    void OpenForm(const QString& focusWindow) {
        platform->Desktop().foreground = focusWindow;
        State().CurrentAction = u"COM"_s;
        Show(u"{CommentHost}/index.cfm?fuseaction=user.viewProfile_commentForm&x=1"_s, u"x"_s);
        Cancels(u"http://{CommentHost}/post.cfm?Comment=1"_s);
    }
    QStringList& Forward() { return platform->Desktop().broughtForward; }
};

TEST_F(CommentFormTest, TheUsersWindowGetsTheFocusBack) {
    OpenForm(u"frmTimeDelay"_s);
    EXPECT_TRUE(app->timers->tmrHelper.Enabled());
    platform->Desktop().foreground = u"frmMain"_s;
    platform->Pump().RunFor(1100);
    EXPECT_EQ(Forward(), QStringList{u"frmTimeDelay"_s});
    // The user has gone on to another one.
    platform->Desktop().foreground = u"frmLog"_s;
    platform->Pump().RunFor(1000);
    EXPECT_EQ(Forward().last(), u"frmLog"_s);
}

TEST_F(CommentFormTest, AUserOfTheMainWindowNeedsNoHelp) {
    OpenForm(u"frmMain"_s);
    EXPECT_FALSE(app->timers->tmrHelper.Enabled());
}

TEST_F(CommentFormTest, AUserWhoHasComeBackKeepsTheMainWindow) {
    OpenForm(u"frmTimeDelay"_s);
    OpenForm(u"frmMain"_s);
    EXPECT_TRUE(app->timers->tmrHelper.Enabled());
    platform->Pump().RunFor(2100);
    EXPECT_TRUE(Forward().isEmpty());
}

TEST_F(CommentFormTest, TheHelpEndsWithTheFormOrTheRun) {
    OpenForm(u"frmTimeDelay"_s);
    Show(u"x"_s);
    platform->Pump().RunFor(1100);
    EXPECT_FALSE(app->timers->tmrHelper.Enabled());
    OpenForm(u"frmTimeDelay"_s);
    State().CurrentAction.clear();
    platform->Pump().RunFor(1100);
    EXPECT_FALSE(app->timers->tmrHelper.Enabled());
    EXPECT_TRUE(Forward().isEmpty());
}

TEST_F(CommentFormTest, OtherNavigationsOfTheFormDoNotCount) {
    platform->Desktop().foreground = u"frmTimeDelay"_s;
    Show(u"{CommentHost}/index.cfm?fuseaction=user.viewProfile_commentForm&x=1"_s, u"x"_s);
    Cancels(u"http://{SiteRootHost}/ann"_s);
    EXPECT_FALSE(app->timers->tmrHelper.Enabled());
    Show(u"x"_s);
    Show(u"{CommentHost}/index.cfm?fuseaction=user.viewprofile_commentform&x=1"_s, u"x"_s);
    Cancels(u"http://{SiteRootHost}/comment"_s);
    EXPECT_FALSE(app->timers->tmrHelper.Enabled());
}

TEST_F(BrowserHostTest, TheGuardHoldsTheProgramsOwnLoadsBackNever) {
    Show(u"x"_s);
    Browser().BeginRefusal();
    world.web.SetPage(u"http://www.site.example.com/there"_s, u"<html><body>There</body></html>"_s);
    Browser().Navigate(u"http://www.site.example.com/there"_s);
    platform->Pump().RunFor(500);
    EXPECT_EQ(Address(), u"http://www.site.example.com/there"_s);
    Browser().TakeVisited();
    Browser().Refresh();
    platform->Pump().RunFor(500);
    EXPECT_EQ(Browser().TakeVisited(), QStringList{u"http://www.site.example.com/there"_s});
}

} // namespace
} // namespace qlm
