// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "campaigns/CaptchaCalls.h"
#include "steps/StopResume.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class CaptchaCallsTest : public SimulatedProgram {
protected:
    CaptchaCallsTest() {
        app->state.CurrentAction = u"FR"_s;
        world.web.SetPage(u"http://www.example.com/captcha"_s,
                          u"<html><body><a href='/'>Home</a><input name='other'>"
                          "<input name='ctl$captchaResponseTextBox' id='answer'></body></html>"_s);
        app->WebBrowser1().Navigate(u"http://www.example.com/captcha"_s);
        platform->Pump().RunFor(1000);
    }
    void TickAll(bool ticked = true) {
        for (const auto item :
             {"mnuCaptchaSound"_L1, "mnuCaptchaPopup"_L1, "mnuCaptchaRestoreIfMinimized"_L1})
            app->controls.SetTicked(item, ticked);
    }
    QString Focused() { return app->WebBrowser1().Document().ActiveElement().Id(); }
};

TEST_F(CaptchaCallsTest, WithAllTickedTheUserIsCalledInOrder) {
    TickAll();
    app->Get<CaptchaCalls>().CallUser();
    ASSERT_EQ(platform->Attention().calls.size(), 3);
    EXPECT_TRUE(platform->Attention().calls[0].startsWith(u"sound "_s));
    EXPECT_TRUE(platform->Attention().calls[0].endsWith(u"/blip.wav"_s));
    EXPECT_EQ(platform->Attention().calls[1], u"flash"_s);
    EXPECT_EQ(platform->Attention().calls[2], u"restore"_s);
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Please enter the CAPTCHA code to continue"_s});
    EXPECT_EQ(Focused(), u"answer"_s);
    EXPECT_TRUE(app->state.blnWaitingForCaptcha);
}

TEST_F(CaptchaCallsTest, WithNothingTickedTheWindowFlashesAndTheFieldHasTheFocus) {
    TickAll(false);
    app->webHide().ZOrder(0);
    app->timers->tmrAutoResume.SetEnabled(true);
    app->Get<CaptchaCalls>().CallUser();
    EXPECT_EQ(platform->Attention().calls, QStringList{u"flash"_s});
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_EQ(app->Status(), u"Waiting for user to enter and submit CAPTCHA..."_s);
    EXPECT_EQ(Focused(), u"answer"_s);
    EXPECT_EQ(app->webHide().Position(), 1);
    EXPECT_FALSE(app->timers->tmrAutoResume.Enabled());
}

TEST_F(CaptchaCallsTest, AClickFlipsATick) {
    for (const auto item : {"mnuCaptchaSound"_L1, "mnuCaptchaPopup"_L1, "mnuCaptchaRestoreIfMinimized"_L1}) {
        const bool before = app->controls.Ticked(item);
        app->commands.Run(item + u"_Click"_s);
        EXPECT_EQ(app->controls.Ticked(item), !before);
    }
}

TEST_F(CaptchaCallsTest, SoundAndRestoreStartTickedAndTheBoxDoesNot) {
    EXPECT_TRUE(app->controls.Ticked("mnuCaptchaSound"_L1));
    EXPECT_TRUE(app->controls.Ticked("mnuCaptchaRestoreIfMinimized"_L1));
    EXPECT_FALSE(app->controls.Ticked("mnuCaptchaPopup"_L1));
}

TEST_F(CaptchaCallsTest, ThePageTakesTheWindowsFocusOnceForEachPageThatLoads) {
    int taken = 0;
    app->WebBrowser1().onTakeFocus = [&taken] { ++taken; };
    app->Get<CaptchaCalls>().CallUser();
    EXPECT_EQ(taken, 1);
    // Where the user goes from there is theirs.
    app->Get<CaptchaCalls>().FocusAnswerField();
    EXPECT_EQ(taken, 1);
    app->WebBrowser1().Navigate(u"http://www.example.com/captcha"_s);
    platform->Pump().RunFor(1000);
    app->Get<CaptchaCalls>().FocusAnswerField();
    EXPECT_EQ(taken, 2);
    EXPECT_EQ(Focused(), u"answer"_s);
}

TEST_F(CaptchaCallsTest, APageWithoutAFieldTakesTheFocusToo) {
    int taken = 0;
    world.web.SetPage(u"http://www.example.com/other"_s, u"<html><body>Words</body></html>"_s);
    app->WebBrowser1().Navigate(u"http://www.example.com/other"_s);
    platform->Pump().RunFor(1000);
    app->WebBrowser1().onTakeFocus = [&taken] { ++taken; };
    app->Get<CaptchaCalls>().CallUser();
    EXPECT_EQ(taken, 1);
}

TEST_F(CaptchaCallsTest, TheOtherNameOfTheFieldGetsTheFocusToo) {
    world.web.SetPage(u"http://www.example.com/words"_s,
                      u"<html><body><a href='/'>Home</a><input name='other'>"
                      "<input name='x_captcha_text' id='words'></body></html>"_s);
    app->WebBrowser1().Navigate(u"http://www.example.com/words"_s);
    platform->Pump().RunFor(1000);
    app->Get<CaptchaCalls>().FocusAnswerField();
    EXPECT_EQ(Focused(), u"words"_s);
}

class MessagingCaptchaTest : public CaptchaCallsTest {
protected:
    MessagingCaptchaTest() {
        app->state.CurrentAction = u"MSG"_s;
        app->state.intMsgStep = 9;
        app->state.blnLinkFound = true;
    }
    void Show(const QString& text) {
        world.web.SetPage(u"http://www.example.com/page"_s,
                          u"<html><body><a href='/'>Home</a><input name='x$captchaResponseTextBox' "
                          "id='answer' value='typed'>"_s +
                              text + u"</body></html>"_s);
        app->WebBrowser1().Navigate(u"http://www.example.com/page"_s);
        platform->Pump().RunFor(1000);
        app->timers->tmrCheckLinkLoaded.SetEnabled(false);
    }
    void ExpectArmed(bool waiting, int step) {
        EXPECT_EQ(app->state.blnWaitingForCaptcha, waiting);
        EXPECT_EQ(app->state.intMsgStep, step);
        EXPECT_TRUE(app->timers->tmrCheckLinkLoaded.Enabled());
        EXPECT_FALSE(app->state.blnLinkFound);
        EXPECT_FALSE(app->state.blnHoldLinkCheck);
    }
};

TEST_F(MessagingCaptchaTest, ACaptchaCallsTheUserOnce) {
    TickAll(false);
    Show(u"Type the two words:"_s);
    app->Get<CaptchaCalls>().MessagingCAPTCHAReached();
    EXPECT_EQ(platform->Attention().calls, QStringList{u"flash"_s});
    EXPECT_EQ(app->Status(), u"Waiting for user to enter and submit CAPTCHA..."_s);
    EXPECT_TRUE(app->timers->tmrAutoResume.Enabled());
    ExpectArmed(true, 9);
    EXPECT_EQ(Focused(), u"answer"_s);

    // A wrong answer: what was typed stays, and nobody is called.
    Show(u"Type the two words:"_s);
    app->timers->tmrAutoResume.SetEnabled(true);
    app->state.blnLinkFound = true;
    app->SetStatus(u"something else"_s);
    app->Get<CaptchaCalls>().MessagingCAPTCHAReached();
    EXPECT_EQ(app->Status(), u"Waiting for user to enter and submit CAPTCHA..."_s);
    EXPECT_EQ(platform->Attention().calls, QStringList{u"flash"_s});
    EXPECT_FALSE(app->timers->tmrAutoResume.Enabled());
    ExpectArmed(true, 9);
    EXPECT_EQ(Focused(), u"answer"_s);
    EXPECT_EQ(app->WebBrowser1().Document().GetElementById(u"answer"_s).Value(), u"typed"_s);
}

TEST_F(MessagingCaptchaTest, APageThatIsStillLoadingIsWaitedForWithThePageCheckHeld) {
    Show(u"Please enter the image text"_s);
    SimAnswer late;
    late.html = u"<html><body><a href='/'>Home</a></body></html>"_s;
    late.latencyMs = 5000;
    world.web.SetAnswer(u"http://www.example.com/late"_s, late);
    bool wasHeld = false;
    platform->Pump().onPump = [&] { wasHeld = wasHeld || app->state.blnHoldLinkCheck; };
    const qint64 startMs = world.clock.NowMs();
    app->WebBrowser1().Navigate(u"http://www.example.com/late"_s);
    platform->Pump().PumpMessages();
    app->Get<CaptchaCalls>().MessagingCAPTCHAReached();
    EXPECT_TRUE(wasHeld);
    EXPECT_GE(world.clock.NowMs() - startMs, 5000);
    EXPECT_FALSE(app->state.blnHoldLinkCheck);
}

TEST_F(MessagingCaptchaTest, AStopEndsTheWaitAndArmsNothing) {
    Show(u"Please enter the image text"_s);
    world.web.SetFault(u"http://www.example.com/never"_s, SimFault::Hang);
    app->WebBrowser1().Navigate(u"http://www.example.com/never"_s);
    platform->Pump().PumpMessages();
    platform->Pump().onPump = [&] {
        if (app->state.blnHoldLinkCheck)
            app->Get<StopResume>().StopAll(StopReason::WindowStop);
    };
    app->Get<CaptchaCalls>().MessagingCAPTCHAReached();
    EXPECT_FALSE(app->timers->tmrCheckLinkLoaded.Enabled());
    EXPECT_TRUE(app->state.blnHoldLinkCheck);
}

TEST_F(MessagingCaptchaTest, BehindARightAnswerTheConfirmationIsAwaited) {
    Show(u"Your message has been sent!"_s);
    app->state.blnWaitingForCaptcha = true;
    app->Get<CaptchaCalls>().MessagingCAPTCHAReached();
    EXPECT_EQ(app->Status(), u"Message sent, waiting for confirmation page..."_s);
    EXPECT_TRUE(app->timers->tmrAutoResume.Enabled());
    EXPECT_EQ(app->state.strLinkType + app->state.strLinkValue, u"Textyour message has been sent"_s);
    ExpectArmed(false, 8);
}

TEST_F(MessagingCaptchaTest, AnyOtherPageGivesTheTargetToTheStepBehind) {
    app->state.blnLoggingEnabled = true;
    Show(u"Something else"_s);
    app->state.blnHoldLinkCheck = true;
    app->controls.SetTicked("chkRemoveAfterSent"_L1, false);
    qint16 step = 0;
    bool isHeld = true;
    app->controls.AddListener([&](const Control&, Controls::Change, int) {
        if (app->Status() != u"Message successfully sent")
            return;
        step = app->state.intMsgStep;
        isHeld = app->state.blnHoldLinkCheck;
    });
    app->Get<CaptchaCalls>().MessagingCAPTCHAReached();
    EXPECT_EQ(step, 8);
    EXPECT_FALSE(isHeld);
    const QString trail = app->files.ReadLines(app->DataFile(u"debugmsg.txt"_s)).join(u'\n');
    EXPECT_TRUE(trail.contains(u"Something else"_s));
}

TEST_F(CaptchaCallsTest, TheStatusLineSaysItBeforeTheBoxComesUp) {
    TickAll();
    QString behind;
    dialogs.onMessage = [&] { behind = app->Status(); };
    app->Get<CaptchaCalls>().CallUser();
    EXPECT_EQ(behind, u"Waiting for user to enter and submit CAPTCHA..."_s);
}

TEST_F(CaptchaCallsTest, TheFieldOfTheNewerPageHasTheFocusToo) {
    world.web.SetPage(u"http://www.example.com/newer"_s,
                      u"<html><body><a href='/'>Home</a><input name='other' id='other'>"
                      "<input name='captcha_text' id='newer'></body></html>"_s);
    app->WebBrowser1().Navigate(u"http://www.example.com/newer"_s);
    platform->Pump().RunFor(1000);
    app->Get<CaptchaCalls>().FocusAnswerField();
    EXPECT_EQ(Focused(), u"newer"_s);
}

} // namespace
} // namespace qlm
