// SPDX-License-Identifier: MIT
#include "BrowserTest.h"
#include "accounts/LoginFlow.h"
#include "accounts/LoginForm.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class LoginFormTest : public BrowserTest {
protected:
    // The value of the button that would be pressed; "none" without one.
    QString Pressed(const QString& form) {
        Show(u"<a href=\"/\">Home</a>"_s + form);
        const LoginButton button = FindLoginButton(app->deployment, Browser().Document());
        stopsFirst = button.stopFirst;
        return button.element ? button.element.GetAttribute(u"title"_s) : u"none"_s;
    }
    bool stopsFirst = false;
};

TEST_F(LoginFormTest, EveryKnownInputIsTheButtonInAnyCase) {
    for (const QString& mark :
         {u"name=\"a_CTL00$Main$SplashDisplay$login_b\""_s, u"id=\"x_LOGINBTN_y\""_s, u"name=\"aDLBb\""_s,
          u"name=\"theLoginButton\""_s, u"name=\"a_login_imagebutton\""_s}) {
        EXPECT_EQ(Pressed(u"<input title=\"other\"><input title=\"it\" "_s + mark + u'>'), u"it"_s)
            << mark.toStdString();
        EXPECT_FALSE(stopsFirst);
    }
}

TEST_F(LoginFormTest, OtherMarksAreNone) {
    for (const QString& form :
         {u"<input id=\"dlb\">"_s, u"<input id=\"loginbutton\">"_s, u"<input name=\"loginBtns\">"_s,
          u"<a name=\"x_loginBtn\" href=\"/\">x</a>"_s, u"<button id=\"loginBtn\">x</button>"_s})
        EXPECT_EQ(Pressed(form), u"none"_s) << form.toStdString();
}

TEST_F(LoginFormTest, AnInputComesBeforeALinkAndALinkBeforeANamedElement) {
    const QString named = u"<button name=\"loginbtn\" title=\"named\">x</button>"_s;
    const QString link = u"<a id=\"a_loginBtn\" title=\"link\" href=\"/x\">x</a>"_s;
    const QString input = u"<input name=\"dlb\" title=\"input\">"_s;
    EXPECT_EQ(Pressed(named + link + input), u"input"_s);
    EXPECT_FALSE(stopsFirst);
    EXPECT_EQ(Pressed(named + link), u"link"_s);
    EXPECT_TRUE(stopsFirst);
    EXPECT_EQ(Pressed(named), u"named"_s);
    EXPECT_TRUE(stopsFirst);
    EXPECT_EQ(Pressed(u"<button name=\"loginbtn\" title=\"first\">x</button>"_s + named), u"first"_s);
}

TEST_F(LoginFormTest, EveryFieldOfEitherKindIsFilled) {
    Show(u"<a href=\"/\">Home</a><input id=\"a_EMAIL_textbox1\"><input id=\"a_password_Textbox2\">"
         "<input id=\"other\" value=\"kept\"><input name=\"email\" id=\"e\"><input name=\"email\" id=\"e2\">"
         "<input name=\"password\" id=\"p\"><input type=\"checkbox\" id=\"rememberTray\">"_s);
    const Document page = Browser().Document();
    FillLoginForm(app->deployment, page, u"tam@example.com"_s, u"se cret"_s);
    auto value = [&page](const QString& id) { return page.GetElementById(id).Value(); };
    EXPECT_EQ(value(u"a_EMAIL_textbox1"_s), u"tam@example.com"_s);
    EXPECT_EQ(value(u"a_password_Textbox2"_s), u"se cret"_s);
    EXPECT_EQ(value(u"other"_s), u"kept"_s);
    EXPECT_EQ(value(u"e"_s), u"tam@example.com"_s);
    EXPECT_EQ(value(u"e2"_s), u"tam@example.com"_s);
    EXPECT_EQ(value(u"p"_s), u"se cret"_s);
    EXPECT_EQ(page.GetElementById(u"rememberTray"_s).GetAttribute(u"checked"_s), u"checked"_s);
}

TEST_F(LoginFormTest, NothingGoesIntoAFormThatLeadsToAStranger) {
    const QString fields = u"<input id=\"a_Email_Textbox\"><input name=\"password\" id=\"p\">"
                           "<input type=\"submit\" title=\"it\" name=\"loginbutton\"></form>"_s;
    for (const QString& form :
         {u"<form action=\"http://stranger.com/take\">"_s, u"<form action=\"//stranger.com/take\">"_s,
          u"<form action=\"http://www.site.example.com@stranger.com/\">"_s,
          u"<form action=\"javascript:take()\">"_s, u"<form action=\"http://links.site.example.com/to\">"_s,
          u"<base href=\"http://stranger.com/\"><form>"_s,
          u"<base href=\"http://stranger.com/\"><form action=\"take\">"_s}) {
        EXPECT_EQ(Pressed(form + fields), u"none"_s) << form.toStdString();
        const Document page = Browser().Document();
        EXPECT_TRUE(FillLoginForm(app->deployment, page, u"tam@example.com"_s, u"secret"_s));
        EXPECT_EQ(page.GetElementById(u"a_Email_Textbox"_s).Value(), QString()) << form.toStdString();
        EXPECT_EQ(page.GetElementById(u"p"_s).Value(), QString()) << form.toStdString();
    }
    EXPECT_EQ(
        Pressed(
            u"<form action=\"/in\"><input type=submit title=\"away\" name=\"dlb\" "
            "formaction=\"http://stranger.com/\"><input type=submit title=\"home\" name=\"dlb\"></form>"_s),
        u"home"_s);
    EXPECT_EQ(Pressed(u"<form id=\"f\" action=\"http://stranger.com/\"></form>"
                      "<button name=\"loginbtn\" form=\"f\" title=\"away\">x</button>"_s),
              u"none"_s);
}

TEST_F(LoginFormTest, NothingIsTypedIntoAStrangersPage) {
    Show(u"{SiteRootHost}.stranger.com/"_s,
         u"<form action=\"http://www.site.example.com/in\">"
         "<input name=\"email\" id=\"e\"><input name=\"password\" id=\"p\"></form>"_s);
    const Document page = Browser().Document();
    EXPECT_FALSE(FillLoginForm(app->deployment, page, u"tam@example.com"_s, u"secret"_s));
    EXPECT_EQ(page.GetElementById(u"e"_s).Value() + page.GetElementById(u"p"_s).Value(), QString());
}

TEST_F(LoginFormTest, ThePasswordIsWrittenIntoNothingButAField) {
    Show(u"<a href=\"/\">Home</a><div name=\"password\" id=\"p\">x</div>"_s);
    const Document page = Browser().Document();
    EXPECT_TRUE(FillLoginForm(app->deployment, page, u"tam@example.com"_s, u"secret"_s));
    EXPECT_EQ(page.GetElementById(u"p"_s).InnerText(), u"x"_s);
}

TEST_F(LoginFormTest, APageWithoutFieldsStaysAsItIs) {
    Show(u"<a href=\"/\">Home</a><p>Nothing here</p>"_s);
    FillLoginForm(app->deployment, Browser().Document(), u"tam@example.com"_s, u"secret"_s);
    EXPECT_EQ(Pressed({}), u"none"_s);
}

TEST_F(LoginFormTest, TheOwnIdIsReadOnAForeignPageTooAndTheLanguageTold) {
    Show(u"<a href=\"/\">Home</a>Mitglieder-Login {UserId:\"4711\", x}"_s);
    State().CurrentAction = u"LOGIN"_s;
    EXPECT_EQ(app->Get<LoginFlow>().GetUsersID2(), u"4711"_s);
    EXPECT_TRUE(Said(u"UID3 - LANG"_s));
    EXPECT_EQ(dialogs.messages.size(), 1U);
}

TEST_F(LoginFormTest, TheScriptsOfTheNamedBrowserAreReadAnEmptyKeyMeansTheShownProfile) {
    Show(u"<a href=\"/\">Home</a><script>x={\"UserId\":\"11\",\"DisplayFriendId\":22,y}</script>"_s);
    EXPECT_EQ(app->Get<LoginFlow>().GetPageScriptValue(u"WebBrowser1"_s, u"UserId"_s), u"11"_s);
    EXPECT_EQ(app->Get<LoginFlow>().GetPageScriptValue(u"WebBrowser1"_s, {}), u"22"_s);
    app->webHide().Navigate(u"about:blank"_s);
    EXPECT_EQ(app->Get<LoginFlow>().GetPageScriptValue(u"webHide"_s, u"UserId"_s), QString());
}

TEST_F(LoginFormTest, TheFirstScriptWithTheKeyDecidesAndTheReportLinkHelps) {
    Show(u"<a href=\"/\">Home</a><script>UserId = 1</script><script>UserId:none, x</script>"
         "<script>UserId:33, x</script><a href=\"/r?reportedUserId=44&x\">r</a>"_s);
    EXPECT_EQ(app->Get<LoginFlow>().GetPageScriptValue(u"WebBrowser1"_s, u"UserId"_s), u"44"_s);
}

TEST_F(LoginFormTest, StepsWithoutAMeaningDoNothing) {
    Show(u"<a href=\"/\">Home</a>"_s);
    State().CurrentAction = u"LOGIN"_s;
    for (qint16 step = 5; step <= 9; ++step) {
        State().intLoginStep = step;
        Browser().TakeVisited();
        app->Get<LoginFlow>().IterateLoginAccount();
        EXPECT_EQ(State().intLoginStep, step);
        EXPECT_EQ(State().strLinkValue, QString());
        EXPECT_EQ(Browser().TakeVisited(), QStringList());
    }
}

TEST_F(LoginFormTest, EveryStepShowsTheBrowserAndForgetsTheLastPage) {
    Show(u"<a href=\"/\">Home</a>"_s);
    State().CurrentAction = u"LOGIN"_s;
    State().intLoginStep = 9;
    State().strLastPageText = u"x"_s;
    State().strLastPageHref = u"y"_s;
    Browser().SetSilent(false);
    Browser().SetVisible(false);
    app->Get<LoginFlow>().IterateLoginAccount();
    EXPECT_TRUE(Browser().Silent());
    EXPECT_TRUE(Browser().Visible());
    EXPECT_EQ(State().strLastPageText + State().strLastPageHref, QString());
    EXPECT_TRUE(State().blnNewLayout);
}

// The machine keeps its state and the page is looked at again.
TEST_F(LoginFormTest, AStepThatFailsIsReportedUnderItsNameAndRepeated) {
    struct Row {
        qint16 step;
        QString body;
        QString failsAt;
        QString reported;
    };
    for (const Row& row :
         {Row{2, u"<a href=\"/\">Home</a>"_s, u"Waiting for the MySpace homepage to load..."_s,
              u"Proc: IterateLoginAccount"_s},
          Row{3, u"forgot password?"_s, u"Waiting for the page to load completely..."_s,
              u"Proc: DoLogin"_s}}) {
        QFile::remove(State().ErrorLogPath);
        Show(row.body);
        State().CurrentAction = u"LOGIN"_s;
        State().intLoginStep = row.step;
        app->timers->tmrCheckLinkLoaded.SetEnabled(false);
        const int listener = app->controls.AddListener([&row](const Control& control, Controls::Change, int) {
            if (control.text == row.failsAt)
                throw std::runtime_error("no window");
        });
        app->Get<LoginFlow>().IterateLoginAccount();
        app->controls.RemoveListener(listener);
        EXPECT_EQ(app->files.ReadLines(State().ErrorLogPath).filter(u"Proc: "_s), QStringList{row.reported});
        EXPECT_EQ(State().intLoginStep, row.step);
        EXPECT_TRUE(app->timers->tmrCheckLinkLoaded.Enabled());
    }
}

} // namespace
} // namespace qlm
