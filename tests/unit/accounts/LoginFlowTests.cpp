// SPDX-License-Identifier: MIT
#include "BrowserTest.h"
#include "accounts/LoginFlow.h"
#include "browser/NavigationGuard.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

const QString Root = u"{SiteRootHost}/"_s;
const QString Form = u"Forgot Password?<form action='/' method=post><input id=x_Email_Textbox name=e><input "
                     u"id=x_Password_Textbox name=p>"
                     "<input type=submit id=loginBtn name=b value='Log in'></form>"_s;

class LoginFlowTest : public BrowserTest {
protected:
    LoginFlowTest() {
        State().AccountEmail = u"a@example.com"_s;
        world.http.responder = [](const QString&) { return std::optional(u"2009-06-02"_s); };
    }
    void LogIn(qint16 step) {
        State().CurrentAction = u"LOGIN"_s;
        State().intLoginStep = step;
        Browser().TakeVisited();
        app->Get<LoginFlow>().IterateLoginAccount();
    }
    bool TroubleShown() { return dialogs.IsFormOpen(u"frmLoginProblem"_s); }
};

// Restoring asks the product server for the date.
TEST_F(LoginFlowTest, AStopWhileTheAccountIsRestoredEndsTheLogin) {
    for (const qint16 step : {10, 1}) {
        Show(u"<a href='/home'>Home</a>"_s);
        bool asked = false;
        world.http.responder = [&](const QString&) {
            asked = true;
            app->Get<StopResume>().StopAll(StopReason::Closing);
            return std::optional(u"2009-06-02"_s);
        };
        LogIn(step);
        EXPECT_TRUE(asked) << step;
        EXPECT_EQ(State().CurrentAction, QString());
        EXPECT_EQ(State().intLoginStep, 0);
        EXPECT_EQ(Browser().TakeVisited(), QStringList());
        EXPECT_EQ(app->controls.Text("lblLoggedInAs"_L1), QString());
        EXPECT_EQ(app->Status(), QString());
    }
}

TEST_F(LoginFlowTest, EachSubmissionHasItsTimeUntilTroubleIsSeen) {
    for (int submission = 1; submission <= 2; ++submission) {
        Show(Root, Form);
        LogIn(3);
        const qint64 sinceMs = app->Pump().NowMs();
        trail.clear();
        while (!TroubleShown() && app->Pump().NowMs() - sinceMs < 60'000)
            platform->Pump().RunFor(1);
        EXPECT_TRUE(TroubleShown()) << submission;
        EXPECT_NEAR(static_cast<double>(app->Pump().NowMs() - sinceMs), 36'000, 0.5) << submission;
        EXPECT_TRUE(Said(u"tmrLoginProblem"_s));
        // From then on it looks every other second.
        EXPECT_EQ(app->timers->tmrLoginProblem.Interval(), 2000);
        dialogs.CloseForm(u"frmLoginProblem"_s);
    }
}

// Only what this submission has brought up goes with its form.
TEST_F(LoginFlowTest, TheTroubleOfAnEarlierSubmissionStaysUntilItIsRead) {
    Show(Root, Form);
    LogIn(3);
    platform->Pump().RunFor(37'000);
    ASSERT_TRUE(TroubleShown());
    Show(Root, Form);
    LogIn(3);
    Show(Root, u"<p>Welcome</p>"_s);
    dialogs.windowTitles = {u"Login problem"_s};
    platform->Pump().RunFor(37'000);
    EXPECT_FALSE(app->timers->tmrLoginProblem.Enabled());
    EXPECT_EQ(dialogs.windowTitles, QStringList{u"Login problem"_s});
}

TEST_F(LoginFlowTest, AStepBeginsWithoutMarksOfTheLastPage) {
    Show(u"http://www.stranger.com/"_s, Form);
    State().strLastPageText = u"text"_s;
    State().strLastPageHref = u"http://www.stranger.com/1"_s;
    LogIn(3);
    EXPECT_EQ(State().strLastPageText + State().strLastPageHref, QString());
}

TEST_F(LoginFlowTest, TheLoginOfAnotherAccountMayLeaveThePage) {
    Show(Root, u"<p>Welcome</p>"_s);
    const NavigationGuard guard(app->WebBrowser1());
    app->Get<LoginFlow>().LogInSpecifiedAccount(u"b@example.com"_s, u"secret"_s);
    EXPECT_FALSE(app->WebBrowser1().RefusesNavigations());
}

} // namespace
} // namespace qlm
