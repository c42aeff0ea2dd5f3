// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "campaigns/CaptchaCalls.h"

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
    void TickAll() {
        for (const auto item :
             {"mnuCaptchaSound"_L1, "mnuCaptchaPopup"_L1, "mnuCaptchaRestoreIfMinimized"_L1})
            app->commands.Run(item + u"_Click"_s);
    }
    QString Focused() { return app->WebBrowser1().Document().ActiveElement().Id(); }
};

TEST_F(CaptchaCallsTest, WithAllTickedTheUserIsCalledInOrder) {
    TickAll();
    app->captchaCalls->CallUser();
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
    app->webHide().ZOrder(0);
    app->timers->tmrAutoResume.SetEnabled(true);
    app->captchaCalls->CallUser();
    EXPECT_EQ(platform->Attention().calls, QStringList{u"flash"_s});
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_EQ(app->Status(), u"Waiting for user to enter and submit CAPTCHA..."_s);
    EXPECT_EQ(Focused(), u"answer"_s);
    EXPECT_EQ(app->webHide().Position(), 1);
    EXPECT_FALSE(app->timers->tmrAutoResume.Enabled());
}

TEST_F(CaptchaCallsTest, AClickFlipsATick) {
    TickAll();
    EXPECT_TRUE(app->controls.Ticked("mnuCaptchaSound"_L1));
    TickAll();
    EXPECT_FALSE(app->controls.Ticked("mnuCaptchaSound"_L1));
}

} // namespace
} // namespace qlm
