// SPDX-License-Identifier: MIT
// What may arrive in the waits of a comment: the user, the end of the program, a page of somebody else's.
#include "CommenterTest.h"
#include "MeetInWait.h"
#include "steps/Steps.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace qlm {
namespace {

class StrangerTest : public CommentRun, public testing::WithParamInterface<bool> {
protected:
    StrangerTest() : CommentRun(GetParam()) {}
};
INSTANTIATE_TEST_SUITE_P(Layouts, StrangerTest, testing::Values(true, false));

// The address begins as the site's own do, and the form is the same.
TEST_P(StrangerTest, AStrangersPageWithTheSameFormGetsNothing) {
    const QString stranger = app->Expand(u"http://{SiteRootHost}.stranger.com/form"_s);
    SetPage(stranger, GetParam() ? NewPage(u"1001"_s) : OldPage(u"1001"_s));
    world.web.SetRedirect(CommentPage(u"1001"_s), stranger);
    QString typed;
    platform->Pump().onPump = [&] {
        if (Browser().LocationURL() == stranger)
            typed += Browser().Document().GetElementById(u"box"_s).Value();
    };
    Run();
    EXPECT_EQ(typed, QString());
    EXPECT_EQ(Posted(), QStringList{u"1002 Hello"_s});
    EXPECT_EQ(Log(), QStringList{u"1002"_s});
    EXPECT_EQ(Notes(), QStringList());
    EXPECT_EQ(State().lngFailedCount, 1);
    EXPECT_TRUE(app->files.ReadLines(app->ProgramFile(u"CommentsReport.txt"_s))
                    .join(u'|')
                    .contains(u"A page that is not the site's came; nothing was typed into it"_s));
}

// A wait of a step, by pages that never end it.
struct Wait {
    const char* name;
    bool isNew;
    const char16_t* text = u"Hello";
    const char16_t* form;          // the body of the page that takes the comment
    const char16_t* confirm = u""; // and of the one after it
    SimFault formFault = SimFault::None;
    SimFault confirmFault = SimFault::None;
    // What tells that it stands, and how long it has to stand like that until something arrives.
    int step = CommentStep::Submit;
    bool isTyped = false;
    int posts = 0;
    int standsMs = 20'000;
    const char16_t* saysFor = u""; // what the window says that is waited for
    bool isPressed = false;        // the comment may be out by then
    int limitSeconds = 0;          // after which it ends by itself, with the one after it; 0 for never
};

void PrintTo(const Wait& wait, std::ostream* stream) {
    *stream << wait.name;
}

#define FRAME u"<form id=form method=post action='/posted?1001' target=sink><div id=frame>"
#define GROWS u" data-on-focus='set #frame class absolute'"
#define BOX(more)                                                                                            \
    FRAME u"<textarea id=box name=comment placeholder='Post a comment'" GROWS                                \
        more u"></textarea></div></form>"                                                                    \
          u"<iframe name=sink srcdoc=x></iframe>"
#define HINT u"<p id=hint>Post a comment...</p>"
#define TAKES HINT BOX(u" data-on-input='hide #hint'") u"<p id=answer></p>"
#define POST u"<button data-on-click='submit #form'>Post</button>"
#define PROFILE                                                                                              \
    u"<a href='http://profile.site.example.com/index.cfm?fuseaction=user.viewprofile&friendID=1'>x</a>"
#define FORM u"<form method=post action='/confirm/1001'>"
#define FIELD u"<textarea id=box name=commentText></textarea>"
#define SUBMIT u"<input type=submit value='Post a Comment'></form>"
#define SURE u"<form method=post action='/confirm/1001?sure'><input type=hidden name=sure value=y>"

// The page of the first one is gone after the judge has found its button, and before the step begins.
constexpr Wait Waits[] = {
    {.name = "Body",
     .isNew = true,
     .form = u"<p data-on-load='after 3100ms goto http://comment.site.example.com/bodiless'></p>" TAKES POST,
     .standsMs = 130'000,
     .saysFor = u" for a page with a body. "},
    {.name = "Prompt", .isNew = true, .form = BOX(u"") POST, .limitSeconds = 25},
    {.name = "Box", .isNew = true, .form = HINT POST, .standsMs = 50'000, .limitSeconds = 60},
    {.name = "Growth",
     .isNew = true,
     .form = HINT u"<div><textarea id=box placeholder='Post a comment'></textarea></div>" POST,
     .standsMs = 50'000,
     .limitSeconds = 60},
    {.name = "Typing",
     .isNew = true,
     .form = HINT BOX(u"") POST,
     .isTyped = true,
     .standsMs = 8'000,
     .limitSeconds = 10 + 2},
    {.name = "Settling", .isNew = true, .form = TAKES POST, .isTyped = true, .standsMs = 700},
    {.name = "Answer",
     .isNew = true,
     .form = TAKES POST,
     .isTyped = true,
     .posts = 1,
     .standsMs = 700,
     .isPressed = true},
    {.name = "SecondAnswer",
     .isNew = true,
     .text = u"<b>Hello</b>",
     .form = TAKES u"<button data-on-click='set #answer innertext x'>Post</button>" POST,
     .isTyped = true,
     .posts = 1,
     .standsMs = 700,
     .isPressed = true},
    {.name = "Captcha",
     .isNew = true,
     .form = TAKES u"<button data-on-click='submit #form; set #answer innertext Type the two "
                   u"words:'>Post</button>",
     .isTyped = true,
     .posts = 1,
     .standsMs = 130'000,
     .saysFor = u" for you to answer the CAPTCHA. ",
     .isPressed = true},
    {.name = "CompleteForm",
     .isNew = false,
     .form = PROFILE FORM FIELD SUBMIT,
     .formFault = SimFault::Incomplete,
     .limitSeconds = 25},
    {.name = "Profile",
     .isNew = false,
     .form = FORM FIELD SUBMIT,
     .standsMs = 130'000,
     .saysFor = u" for the comment form. "},
    {.name = "Field",
     .isNew = false,
     .form = PROFILE FORM SUBMIT,
     .standsMs = 130'000,
     .saysFor = u" for the comment form. "},
    {.name = "Editor",
     .isNew = false,
     .form = PROFILE FORM FIELD u"<p id=ctl00_ctl00_cpMain_cpMain_ctl02_ctl00></p>" SUBMIT,
     .isTyped = true,
     .standsMs = 8'000,
     .limitSeconds = 10},
    {.name = "CompleteConfirmation",
     .isNew = false,
     .form = PROFILE FORM FIELD SUBMIT,
     .confirm = SURE SUBMIT,
     .confirmFault = SimFault::Incomplete,
     .step = CommentStep::Confirm,
     .posts = 1,
     .isPressed = true,
     .limitSeconds = 25},
    {.name = "Asleep",
     .isNew = false,
     .form = PROFILE FORM FIELD SUBMIT,
     .confirm = SURE u"<input type=submit value='Post a Comment' disabled></form>",
     .step = CommentStep::Confirm,
     .posts = 1,
     .standsMs = 130'000,
     .saysFor = u" for the button that posts the comment. ",
     .isPressed = true},
    {.name = "Posted",
     .isNew = false,
     .form = PROFILE FORM FIELD SUBMIT,
     .confirm = SURE SUBMIT,
     .step = CommentStep::AfterSend,
     .posts = 2,
     .standsMs = 7'000,
     .isPressed = true},
    {.name = "ConfirmationsCaptcha",
     .isNew = false,
     .form = PROFILE FORM FIELD SUBMIT,
     .confirm = u"Please enter the image text " SURE SUBMIT,
     .step = CommentStep::Confirm,
     .posts = 1,
     .standsMs = 130'000,
     .saysFor = u" for you to answer the CAPTCHA. ",
     .isPressed = true},
};

class CommentWaitTest : public CommentRun, public testing::WithParamInterface<Wait> {
protected:
    CommentWaitTest() : CommentRun(GetParam().isNew) {
        const Wait& wait = GetParam();
        app->controls.SetText("txtComment"_L1, QString::fromUtf16(wait.text));
        SetPage(CommentPage(u"1001"_s), QString::fromUtf16(wait.form), wait.formFault);
        SetPage(ConfirmPage(u"1001"_s), QString::fromUtf16(wait.confirm), wait.confirmFault);
        SetPage(ConfirmPage(u"1001?sure"_s), u"Thank you"_s);
        SetPage(OnOld(u"bodiless"_s), {}, SimFault::NoBody);
        // A page that says so at once is not asked twice to post a text with markup.
        const QString says =
            u"<p id=answer></p>"_s +
            NewPage(u"1002"_s).replace(u"submit #form"_s,
                                       u"submit #form; set #answer innertext Your comment has been posted"_s);
        SetPage(CommentPage(u"1002"_s), wait.isNew ? says : OldPage(u"1002"_s));
    }

    void MeetInWait(const std::function<void()>& act) {
        Start();
        const QString says = QString::fromUtf16(GetParam().saysFor);
        const auto actThere = [&] {
            const QString said = app->controls.Text("lblWaitingFor"_L1);
            EXPECT_TRUE(says.isEmpty() ? said.isEmpty() : said.contains(says)) << said.toStdString();
            act();
        };
        EXPECT_TRUE(qlm::MeetInWait(
            platform->Pump(), [this] { return Stands(); }, GetParam().standsMs, actThere));
    }
    bool Stands() {
        m_posted += Posted();
        const Wait& wait = GetParam();
        const Document page = Browser().Document();
        const Element box = page ? page.GetElementById(u"box"_s) : Element();
        return State().strCurrentID == u"1001" && State().intComStep == wait.step &&
               State().blnLinkFound != (wait.step == CommentStep::AfterSend) &&
               (!box || box.Value().isEmpty() != wait.isTyped) && m_posted.size() == wait.posts;
    }
    // What went to that target from then on.
    QStringList PostedLater(const QString& id) {
        m_posted += Posted();
        return m_posted.mid(GetParam().posts).filter(id + u' ');
    }
    bool IsContacted() { return Log().contains(u"1001"_s) || Notes().contains(u"1001"_s); }

private:
    QStringList m_posted;
};

INSTANTIATE_TEST_SUITE_P(Each, CommentWaitTest, testing::ValuesIn(Waits),
                         [](const auto& wait) { return wait.param.name; });

// The user goes on to a page like those of the run.
TEST_P(CommentWaitTest, StopIsTheLastWord) {
    MeetInWait([this] {
        app->commands.Run(u"picStop_Click"_s);
        Browser().Navigate(CommentPage(u"1002"_s));
    });
    EXPECT_EQ(State().CurrentAction, QString());
    platform->Pump().RunFor(120'000);
    EXPECT_EQ(PostedLater(u"1001"_s) + PostedLater(u"1002"_s), QStringList());
    EXPECT_EQ(Browser().Document().GetElementById(u"box"_s).Value(), QString());
    EXPECT_EQ(IsContacted(), GetParam().isPressed);
    EXPECT_EQ(State().arrFriendIDs.size(), 2);
}

TEST_P(CommentWaitTest, SkipGoesToTheNextTargetAlone) {
    MeetInWait([this] { app->Get<StopResume>().SkipProfile(); });
    EXPECT_EQ(State().lngFailedCount, 1);
    RunOn();
    EXPECT_EQ(PostedLater(u"1001"_s), QStringList());
    EXPECT_EQ(PostedLater(u"1002"_s).size(), 1);
    EXPECT_EQ(IsContacted(), GetParam().isPressed);
    EXPECT_TRUE(Log().contains(u"1002"_s));
}

TEST_P(CommentWaitTest, ASecondStartBeginsAnewAndPostsToNobodyTwice) {
    MeetInWait([this] {
        SetPage(CommentPage(u"1001"_s), GetParam().isNew ? NewPage(u"1001"_s) : OldPage(u"1001"_s));
        SetPage(ConfirmPage(u"1001"_s), u"Your comment has been posted!"_s);
        Start();
    });
    RunOn();
    EXPECT_EQ(PostedLater(u"1001"_s).size(), GetParam().isPressed ? 0 : 1);
    EXPECT_EQ(PostedLater(u"1002"_s).size(), 1);
    EXPECT_TRUE(IsContacted());
}

class LimitedWaitTest : public CommentWaitTest {};

std::vector<Wait> LimitedWaits() {
    std::vector<Wait> limited;
    std::copy_if(std::begin(Waits), std::end(Waits), std::back_inserter(limited),
                 [](const Wait& wait) { return wait.limitSeconds > 0; });
    return limited;
}
INSTANTIATE_TEST_SUITE_P(Each, LimitedWaitTest, testing::ValuesIn(LimitedWaits()),
                         [](const auto& wait) { return wait.param.name; });

// A step begins less than half a second after the page has been judged; it looks once in 10 ms.
TEST_P(LimitedWaitTest, ItEndsByItselfInItsTime) {
    qint64 sinceMs = -1;
    qint64 tookMs = 0;
    platform->Pump().onPump = [&] {
        const qint64 nowMs = platform->Pump().Queue().NowMs();
        if (!Stands())
            sinceMs = nowMs;
        tookMs = std::max(tookMs, nowMs - sinceMs);
    };
    Start();
    platform->Pump().RunUntil([&] { return State().strCurrentID == u"1002"; }, 200'000);
    EXPECT_GT(tookMs, GetParam().limitSeconds * 1000 - 20);
    EXPECT_LT(tookMs, GetParam().limitSeconds * 1000 + 500);
}

TEST_P(CommentWaitTest, TheEndOfTheProgramLeavesIt) {
    MeetInWait([this] { State().blnClosing = true; });
    platform->Pump().RunFor(120'000);
    EXPECT_EQ(PostedLater(u"1001"_s) + PostedLater(u"1002"_s), QStringList());
    EXPECT_EQ(IsContacted(), GetParam().isPressed);
}

} // namespace
} // namespace qlm
