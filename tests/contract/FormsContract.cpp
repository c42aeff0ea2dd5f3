// SPDX-License-Identifier: MIT
#include "ContractTest.h"

namespace qlm {

class FormsContract : public ContractTest {
protected:
    // The last request to the address that takes the forms.
    ContractWorld::Request LastSent() {
        ContractWorld::Request last;
        for (const ContractWorld::Request& request : world->Requests())
            if (request.url.startsWith(At(u"sent"_s)))
                last = request;
        return last;
    }
};

TEST_F(FormsContract, AFormIsSentByItsButtonWithTheButtonsName) {
    ServeBody(u"sent?a=1&b=two+words&go=Send"_s, u"thank you"_s);
    Show(u"<form action='/sent'><input name=a value=1><input name=b id=b><input type=submit name=no value=No>"
         "<input type=submit id=go name=go value=Send></form>"_s);
    ById(u"b"_s).SetValue(u"two words"_s);
    ById(u"go"_s).Click();
    ASSERT_TRUE(WaitForText(u"thank you"_s));
    EXPECT_EQ(LastSent().method, u"GET"_s);
    EXPECT_EQ(browser.LocationURL(), At(u"sent?a=1&b=two+words&go=Send"_s));
}

TEST_F(FormsContract, APostSendsAllFieldsInPageOrder) {
    ServeBody(u"sent"_s, u"thank you"_s);
    Show(u"<form method=post action='/sent'><input type=hidden name=token value='x&y=z'><input name=first "
         u"value=1>"
         "<textarea name=body id=body></textarea><select name=pick><option value=p>P<option value=q "
         "selected>Q</select>"
         "<input type=checkbox name=off><input type=checkbox name=on checked><input name=dead value=1 "
         "disabled>"
         "<input value=nameless><button id=go name=act value=doit>Send</button></form>"_s);
    ById(u"body"_s).SetInnerText(u"one\ntwo \u20ac"_s);
    ById(u"go"_s).Click();
    ASSERT_TRUE(WaitForText(u"thank you"_s));
    EXPECT_EQ(LastSent().method, u"POST"_s);
    EXPECT_EQ(LastSent().body,
              QByteArray("token=x%26y%3Dz&first=1&body=one%0D%0Atwo+%E2%82%AC&pick=q&on=on&act=doit"));
}

// Whoever presses Refresh, or waits for a page that has not come, sends nothing a second time.
TEST_F(FormsContract, APageThatAFormHasLedToIsLoadedAgainWithoutTheForm) {
    ServeBody(u"sent"_s, u"thank you"_s);
    Show(
        u"<form method=post action='/sent'><input name=a value=1><input type=submit id=go value=Send></form>"_s);
    ById(u"go"_s).Click();
    ASSERT_TRUE(WaitForText(u"thank you"_s));
    ASSERT_TRUE(WaitUntil([this] { return !browser.Busy(); }));
    EXPECT_EQ(LastSent().method, u"POST"_s);
    ServeBody(u"sent"_s, u"nothing was sent"_s);
    browser.Refresh();
    ASSERT_TRUE(WaitForText(u"nothing was sent"_s));
    EXPECT_EQ(browser.LocationURL(), At(u"sent"_s));
    EXPECT_EQ(LastSent().method, u"GET"_s);
    int posts = 0;
    for (const ContractWorld::Request& request : world->Requests())
        posts += request.method == u"POST" ? 1 : 0;
    EXPECT_EQ(posts, 1);
}

TEST_F(FormsContract, SubmitSendsWithoutAnyButton) {
    ServeBody(u"sent?a=1"_s, u"thank you"_s);
    Show(u"<form id=f action='/sent'><input name=a value=1><input type=submit name=go value=Send></form>"_s);
    ById(u"f"_s).Submit();
    ASSERT_TRUE(WaitForText(u"thank you"_s));
}

TEST_F(FormsContract, SubmitOfAFieldSendsItsForm) {
    ServeBody(u"sent?a=1"_s, u"thank you"_s);
    Show(u"<form action='/sent'><input id=field name=a value=1></form>"_s);
    ById(u"field"_s).Submit();
    ASSERT_TRUE(WaitForText(u"thank you"_s));
}

TEST_F(FormsContract, AnImageButtonSendsWhereItWasPressed) {
    ServeBody(u"sent?a=1&go.x=0&go.y=0"_s, u"thank you"_s);
    Show(
        u"<form action='/sent'><input name=a value=1><input type=image id=go name=go src='/go.gif' alt=go></form>"_s);
    ById(u"go"_s).Click();
    ASSERT_TRUE(WaitForText(u"thank you"_s));
}

TEST_F(FormsContract, ADisabledButtonSendsNothing) {
    Show(
        u"<form action='/sent'><input name=a value=1><input type=submit id=go value=Send disabled></form>"_s);
    ById(u"go"_s).Click();
    PumpFor(settleMs);
    EXPECT_EQ(browser.LocationURL(), At(u"page"_s));
    EXPECT_FALSE(browser.Busy());
}

TEST_F(FormsContract, ALabelClicksItsField) {
    ServeBody(u"sent?box=on"_s, u"thank you"_s);
    Show(u"<form id=f action='/sent'><input type=checkbox name=box id=box>"
         "<label id=label for=box>tick me</label></form>"_s);
    ById(u"label"_s).Click();
    ById(u"f"_s).Submit();
    ASSERT_TRUE(WaitForText(u"thank you"_s));
}

TEST_F(FormsContract, AFormWithoutAnActionGoesToItsOwnPage) {
    ServeBody(u"page?q=tam"_s, u"found tam"_s);
    Show(u"<form id=f><input name=q value=tam></form>"_s);
    ById(u"f"_s).Submit();
    ASSERT_TRUE(WaitForText(u"found tam"_s));
    EXPECT_EQ(browser.LocationURL(), At(u"page?q=tam"_s));
}

TEST_F(FormsContract, TheEventOfAFormTellsWhatWasTyped) {
    ServeBody(u"sent"_s, u"signed in"_s);
    Show(u"<input id=outside value=o><form method=post action='/sent'><input id=x_Email_Textbox name=mail>"
         "<input id=x_Password_Textbox name=pass type=password><input type=submit id=go value=Login></form>"
         "<p>Forgot your password?</p>"_s);
    seen.questions.clear();
    seen.order.clear();
    ById(u"x_Email_Textbox"_s).SetInnerText(u"a@example.com"_s);
    ById(u"x_Password_Textbox"_s).SetInnerText(u"secret"_s);
    ById(u"go"_s).Click();
    ASSERT_TRUE(WaitForText(u"signed in"_s));
    ASSERT_TRUE(WaitForCompletions(2));
    ASSERT_EQ(seen.questions.size(), 1u);
    const NavigationRequest& question = seen.questions[0];
    EXPECT_TRUE(question.isForm);
    EXPECT_EQ(question.url, At(u"sent"_s));
    ASSERT_EQ(question.inputs.size(), 4u);
    EXPECT_EQ(question.inputs[0].id, u"outside"_s);
    EXPECT_EQ(question.inputs[1].id, u"x_Email_Textbox"_s);
    EXPECT_EQ(question.inputs[1].name, u"mail"_s);
    EXPECT_EQ(question.inputs[1].value, u"a@example.com"_s);
    EXPECT_EQ(question.inputs[1].type, u"text"_s);
    EXPECT_EQ(question.inputs[2].value, u"secret"_s);
    EXPECT_EQ(question.inputs[2].type, u"password"_s);
    EXPECT_EQ(question.pageAddress, At(u"page"_s));
    EXPECT_TRUE(question.pageText.contains(u"Forgot your password?"_s)) << question.pageText.toStdString();
    EXPECT_FALSE(question.pageText.contains(u"<p"_s));
    EXPECT_EQ(question.headers, u"Content-Type: application/x-www-form-urlencoded\r\n"_s);
    EXPECT_EQ(seen.order, (QStringList{u"before"_s, u"arrived"_s, u"completed"_s}));
}

TEST_F(FormsContract, AFieldTellsWhereItsFormGoes) {
    Show(
        u"<input id=free><form action='/in?a=1#b'><input id=own><input name=action value=/elsewhere>"
        "<button id=button>x</button><input type=submit id=other "
        "formaction='http://stranger.example.com/take'>"
        "</form><form id=empty><textarea id=text></textarea></form>"
        "<form id=away action='http://stranger.example.com'></form><input id=lent form=away><p id=p>x</p>"_s);
    EXPECT_EQ(browser.Document().Address(), At(u"page"_s));
    auto sentTo = [this](const QString& id) { return ById(id).Read(ElementText::SentTo); };
    EXPECT_EQ(sentTo(u"free"_s), QString());
    EXPECT_EQ(sentTo(u"p"_s), QString());
    EXPECT_EQ(sentTo(u"own"_s), At(u"in?a=1#b"_s));
    EXPECT_EQ(sentTo(u"button"_s), At(u"in?a=1#b"_s));
    EXPECT_EQ(sentTo(u"other"_s), u"http://stranger.example.com/take"_s);
    EXPECT_EQ(sentTo(u"text"_s), At(u"page"_s));
    EXPECT_EQ(sentTo(u"lent"_s), u"http://stranger.example.com/"_s);
}

TEST_F(FormsContract, AButtonsOwnAddressTakesTheFormsPlace) {
    ServeBody(u"sent?a=1"_s, u"thank you"_s);
    Show(
        u"<form action='/elsewhere'><input name=a value=1><input type=submit id=go formaction='/sent'></form>"_s);
    ById(u"go"_s).Click();
    ASSERT_TRUE(WaitForText(u"thank you"_s));
}

TEST_F(FormsContract, APagesBaseCountsForWhereAFormGoes) {
    Show(u"<base href='http://stranger.example.com/x/'><form action='in'><input id=own></form>"_s);
    EXPECT_EQ(ById(u"own"_s).Read(ElementText::SentTo), u"http://stranger.example.com/x/in"_s);
}

// Who has pressed a button and waits while the browser is busy waits for what the form leads to.
TEST_F(FormsContract, AFormThatIsSentMakesTheBrowserBusyAtOnce) {
    ServeBody(u"sent"_s, u"signed in"_s);
    Show(
        u"<form id=f method=post action='/sent'><input name=a><input type=submit id=go value=Login></form>"_s);
    EXPECT_FALSE(browser.Busy());
    ById(u"go"_s).Click();
    EXPECT_TRUE(browser.Busy());
    const qint64 endMs = pump.NowMs() + defaultLimitMs;
    while (browser.Busy() && pump.NowMs() < endMs)
        pump.PumpMessages();
    EXPECT_EQ(browser.LocationURL(), At(u"sent"_s));
    EXPECT_EQ(browser.Document().BodyText().trimmed(), u"signed in"_s);
}

TEST_F(FormsContract, TheEventComesForAScriptedSendingToo) {
    ServeBody(u"sent"_s, u"signed in"_s);
    Show(u"<form id=f method=post action='/sent'><input id=mail name=mail value=m></form>"_s);
    seen.questions.clear();
    ById(u"f"_s).Submit();
    ASSERT_TRUE(WaitForText(u"signed in"_s));
    ASSERT_EQ(seen.questions.size(), 1u);
    EXPECT_TRUE(seen.questions[0].isForm);
    ASSERT_EQ(seen.questions[0].inputs.size(), 1u);
    EXPECT_EQ(seen.questions[0].inputs[0].value, u"m"_s);
}

TEST_F(FormsContract, AnAnswerDoesNotHoldAForm) {
    ServeBody(u"sent"_s, u"signed in"_s);
    Show(u"<form id=f method=post action='/sent'><input name=a></form>"_s);
    cancelNavigations = true;
    ById(u"f"_s).Submit();
    EXPECT_TRUE(WaitForText(u"signed in"_s));
}

TEST_F(FormsContract, AFormMayAnswerWithARedirect) {
    Serve(u"sent"_s, {}, {.status = 302, .redirectTo = At(u"home"_s)});
    ServeBody(u"home"_s, u"welcome home"_s);
    Show(u"<form id=f method=post action='/sent'><input name=a value=1></form>"_s);
    ById(u"f"_s).Submit();
    ASSERT_TRUE(WaitForText(u"welcome home"_s));
    EXPECT_EQ(browser.LocationURL(), At(u"home"_s));
    EXPECT_EQ(world->Requests().back().method, u"GET"_s);
}

} // namespace qlm
