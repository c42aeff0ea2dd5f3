// SPDX-License-Identifier: MIT
// The page between the older comment form and the post.
#include "CommenterTest.h"
#include "steps/Steps.h"

#include <utility>

namespace qlm {
namespace {

class CommentConfirmationTest : public CommentRun {
protected:
    CommentConfirmationTest() : CommentRun(false) {}

    // Watches the run, at each turn.
    void Watch(const std::function<void()>& look) { platform->Pump().onPump = look; }
    qint64 NowMs() { return platform->Pump().Queue().NowMs(); }
};

TEST_F(CommentConfirmationTest, APageThatSaysThatItIsPostedNeedNotBecomeComplete) {
    SetPage(ConfirmPage(u"1001"_s), u"Your comment has been posted!"_s, SimFault::Incomplete);
    qint64 pressedMs = 0, nextMs = 0;
    Watch([&] {
        if (pressedMs == 0 && !Browser().PostedForms().empty())
            pressedMs = NowMs();
        if (nextMs == 0 && State().strCurrentID == u"1002")
            nextMs = NowMs();
    });
    Run();
    EXPECT_LT(nextMs - pressedMs, 10'000);
    EXPECT_EQ(State().lngSessionCom, 2);
}

// The button is asleep, and what wakes up is a CAPTCHA: that is the user's.
TEST_F(CommentConfirmationTest, ACaptchaThatComesLateIsNotPressed) {
    const QString sleeps =
        u"<form method=post action=/done><input type=submit value='Post a Comment' disabled></form>"_s;
    SetPage(ConfirmPage(u"1001"_s), sleeps);
    world.web.AddSwap(ConfirmPage(u"1001"_s), 20'000,
                      u"<a href='/home'>Home</a>Please enter the image text "_s + sleeps);
    Run();
    EXPECT_EQ(Posted(), (QStringList{u"1001 Hello"_s, u"1002 Hello"_s}));
    EXPECT_EQ(State().lngSessionCom, 1);
    EXPECT_EQ(State().lngFailedCount, 1);
}

TEST_F(CommentConfirmationTest, TheLimitStopsARunWhosePostIsNeverConfirmed) {
    SetPage(OnOld(u"done"_s), u"Thank you"_s);
    app->controls.SetText("txtComStopAt"_L1, u"1"_s);
    qint64 pressedMs = 0;
    Watch([&] {
        if (pressedMs == 0 && State().intComStep == CommentStep::AfterSend)
            pressedMs = NowMs();
    });
    Run();
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Your specified limit has been reached"_s});
    EXPECT_GE(NowMs() - pressedMs, 10'000);
    EXPECT_LT(NowMs() - pressedMs, 11'000);
}

TEST_F(CommentConfirmationTest, TheChecksOfItsOutcomeAreCountedAnew) {
    std::optional<int> polls;
    Watch([&] {
        if (State().intComStep == CommentStep::Confirm)
            State().intConfirmPolls = 4;
        else if (!polls && State().intComStep == CommentStep::AfterSend)
            polls = State().intConfirmPolls;
    });
    Run();
    EXPECT_EQ(polls, 0);
}

// A word that the site refuses leads to a page that asks again.
TEST_F(CommentConfirmationTest, TheUserIsCalledOnceATarget) {
    const QString asks =
        u"Please enter the image text <form method=post action=/again><input name=x$captchaResponseTextBox>"
        "<input id=send type=submit value='Post a Comment'></form>"_s;
    app->controls.SetTicked("mnuCaptchaSound"_L1, true);
    SetPage(ConfirmPage(u"1001"_s), asks);
    SetPage(OnOld(u"again"_s),
            u"Click the button below to confirm <p data-on-load='after 5s goto /asks'></p>"_s);
    SetPage(OnOld(u"asks"_s), u"Click the button below to confirm "_s + asks);
    bool mayAnswer = true, mayStop = true;
    qint64 askedMs = 0;
    Watch([&] {
        MessageQueue& queue = platform->Pump().Queue();
        if (State().blnWaitingForCaptcha && std::exchange(mayAnswer, false))
            queue.Post([this] { Browser().PageClick(u"#send"_s); });
        if (askedMs == 0 && Browser().LocationURL() == OnOld(u"asks"_s))
            askedMs = NowMs();
        if (askedMs != 0 && NowMs() - askedMs > 30'000 && std::exchange(mayStop, false))
            queue.Post([this] { app->commands.Run(u"picStop_Click"_s); });
    });
    Run();
    EXPECT_NE(askedMs, 0);
    EXPECT_EQ(platform->Attention().calls.filter(u"sound"_s).size(), 1);
}

} // namespace
} // namespace qlm
