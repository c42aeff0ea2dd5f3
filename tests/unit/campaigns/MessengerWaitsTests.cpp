// SPDX-License-Identifier: MIT
// What may arrive in the waits of a message: the user, a power cut, a page of somebody else's.
#include "MeetInWait.h"
#include "MessengerTest.h"
#include "campaigns/Campaigns.h"
#include "campaigns/OpenNotes.h"
#include "campaigns/SentLog.h"

namespace qlm {
namespace {

TEST_F(MessengerTest, AStrangersPageWithTheSameFormGetsNothing) {
    People({u"1001"_s, u"1002"_s});
    const QString stranger = u"http://www.site.example.com.stranger.com/mail"_s;
    world.web.SetPage(stranger, Form(u"1001"_s));
    world.web.SetRedirect(NewPage + u"1001"_s, stranger);
    Start();
    Finish();
    EXPECT_EQ(Posted(), QStringList{u"1002: Hi Anna | Dear Anna,\nhello"_s});
    EXPECT_EQ(Log(), QStringList{u"1002"_s});
    EXPECT_EQ(State().lngFailedCount, 1);
    EXPECT_TRUE(Lines(u"MessagesReport.txt"_s)
                    .join(u'|')
                    .contains(u"A page that is not the site's came; nothing was typed into it"_s));
}

// A wait of a step, by pages that never end it.
struct Wait {
    const char* name;
    const char16_t* form;          // the body of the page that takes the message
    const char16_t* answer = u"x"; // and of the one after it
    SimFault formFault = SimFault::None;
    SimFault answerFault = SimFault::None;
    // What tells that it stands, and how long it has to stand like that until something arrives.
    const char16_t* status;
    int standsMs;
    bool isTyped = false;
    int posts = 0;
    const char16_t* saysFor = u""; // what the window says that is waited for
    bool isPressed = false;        // the message is out by then
};

void PrintTo(const Wait& wait, std::ostream* stream) {
    *stream << wait.name;
}

#define FORM u"<form method=post action='http://www.site.example.com/sent'>"
#define DRAFT u"<input type=hidden name=to value=1001><input type=submit value='Save Draft'>"
#define SEND u"<textarea id=box name=Mailbody></textarea><input type=submit value=Send>"
#define LEAVES                                                                                               \
    u"<textarea id=box name=Mailbody data-on-input='goto /hangs'></textarea><input type=submit value=Send>"
constexpr const char16_t* Loading = u"Waiting for message page to finish loading...";
constexpr const char16_t* Sent = u"Message sent, waiting for confirmation page...";

// The page of the first one is gone after the judge has found its button, and before the step begins.
constexpr Wait Waits[] = {
    {.name = "Body",
     .form = u"<p data-on-load='after 3100ms goto /bodiless'></p>" FORM DRAFT SEND,
     .status = u"Sending message to ID 1001...",
     .standsMs = 130'000,
     .saysFor = u" for a page with a body. "},
    {.name = "Draft",
     .form = FORM SEND,
     .status = Loading,
     .standsMs = 130'000,
     .saysFor = u" for \"Save Draft\" on the page. "},
    {.name = "CompleteForm",
     .form = FORM DRAFT SEND,
     .formFault = SimFault::Incomplete,
     .status = Loading,
     .standsMs = 8'000},
    {.name = "CompleteTyped",
     .form = FORM DRAFT LEAVES,
     .status = u"Submitting message...",
     .standsMs = 8'000,
     .isTyped = true},
    {.name = "CompleteAnswer",
     .form = FORM DRAFT SEND,
     .answerFault = SimFault::Incomplete,
     .status = Sent,
     .standsMs = 8'000,
     .posts = 1,
     .isPressed = true},
    {.name = "Span",
     .form = u"Save Draft<button id=butbtnSend>send</button><span id=spanbtnSend>Send</span>",
     .status = Sent,
     .standsMs = 1'500,
     .isPressed = true},
    {.name = "CompleteCaptcha",
     .form = FORM DRAFT SEND,
     .answer = u"Please enter the image text",
     .answerFault = SimFault::Incomplete,
     .status = u"Waiting for user to enter and submit CAPTCHA...",
     .standsMs = 130'000,
     .posts = 1,
     .saysFor = u" for the page to be complete. ",
     .isPressed = true},
};
#undef LEAVES
#undef SEND
#undef DRAFT
#undef FORM

class MessengerWaitTest : public MessengerTest, public testing::WithParamInterface<Wait> {
protected:
    MessengerWaitTest() {
        const Wait& wait = GetParam();
        People({u"1001"_s, u"1002"_s});
        SetPage(NewPage + u"1001"_s, wait.form, wait.formFault);
        SetPage(SentPage, wait.answer, wait.answerFault);
        world.web.SetFault(u"http://www.site.example.com/bodiless"_s, SimFault::NoBody);
        world.web.SetFault(u"http://www.site.example.com/hangs"_s, SimFault::Hang);
    }
    void SetPage(const QString& url, const char16_t* body, SimFault fault) {
        SimAnswer answer;
        answer.html = u"<html><body>"_s + QString::fromUtf16(body) + u"</body></html>"_s;
        answer.fault = fault;
        world.web.SetAnswer(url, answer);
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
    // Within the step, and not before it.
    bool Stands() {
        const Wait& wait = GetParam();
        const Document page = Browser().Document();
        const Element box = page ? page.GetElementById(u"box"_s) : Element();
        return State().strCurrentID == u"1001" && app->Status() == QString::fromUtf16(wait.status) &&
               (State().blnLinkFound || wait.isPressed) && (!box || box.Value().isEmpty() != wait.isTyped) &&
               int(Browser().PostedForms().size()) == wait.posts;
    }
    QStringList LoggedOf1001() { return Log().filter(u"1001"_s); }
    QStringList Expected() { return GetParam().isPressed ? QStringList{u"1001"_s} : QStringList(); }
};

INSTANTIATE_TEST_SUITE_P(Each, MessengerWaitTest, testing::ValuesIn(Waits),
                         [](const auto& wait) { return wait.param.name; });

// The user goes on to a page like those of the run.
TEST_P(MessengerWaitTest, StopIsTheLastWord) {
    MeetInWait([this] {
        app->commands.Run(u"picStop_Click"_s);
        Browser().TakePosted();
        Browser().Navigate(NewPage + u"1002"_s);
    });
    EXPECT_EQ(State().CurrentAction, QString());
    EXPECT_EQ(LoggedOf1001(), Expected());
    platform->Pump().RunFor(30'000);
    EXPECT_EQ(Posted(), QStringList());
    EXPECT_EQ(Browser().Document().GetElementsByName(u"Mailbody"_s).front().Value(), QString());
    EXPECT_FALSE(Log().contains(u"1002"_s));
    EXPECT_EQ(State().arrFriendIDs.size(), 2);
}

TEST_P(MessengerWaitTest, SkipGoesToTheNextTargetAlone) {
    MeetInWait([this] { app->Get<StopResume>().SkipProfile(); });
    EXPECT_EQ(LoggedOf1001(), Expected());
    EXPECT_EQ(State().lngFailedCount, GetParam().isPressed ? 0 : 1);
    for (int i = 0; i < 100 && !Log().contains(u"1002"_s); ++i)
        platform->Pump().RunFor(500);
    EXPECT_EQ(Posted().filter(u"1002"_s).size(), 1);
}

TEST_P(MessengerWaitTest, ASecondStartBeginsAnewAndSendsNobodyTwice) {
    MeetInWait([this] {
        world.web.SetPage(NewPage + u"1001"_s, Form(u"1001"_s));
        world.web.SetPage(SentPage, u"<html><body>Your message has been sent!</body></html>"_s);
        Start();
    });
    Browser().TakePosted();
    Finish(60);
    EXPECT_EQ(Log().filter(u"1001"_s).size(), 1);
    EXPECT_EQ(Posted().filter(u"1001"_s).size(), GetParam().isPressed ? 0 : 1);
    EXPECT_EQ(Log().filter(u"1002"_s).size(), 1);
}

TEST_P(MessengerWaitTest, TheEndOfTheProgramLeavesTheWait) {
    MeetInWait([this] { State().blnClosing = true; });
    EXPECT_EQ(LoggedOf1001(), Expected());
}

class KilledMessengerTest : public MessengerTest {
protected:
    void Prepare() {
        State().blnNewLayout = true;
        State().AccountEmail = u"a@example.com"_s;
        app->controls.SetText("txtMsgSubject"_L1, u"Hi"_s);
        app->controls.SetText("txtMsgMessage"_L1, u"Hello"_s);
        app->controls.SetTicked("optSendSingle(0)"_L1, true);
        app->controls.SetTicked("chkMsgDontSendAgain"_L1, true);
        People({u"1001"_s, u"1002"_s});
    }
    // Runs until the program dies or is done, and once more on what the disk holds. Answers whether it had
    // died.
    bool Dies(const std::function<void()>& arm) {
        const QString deployment = world.deploymentText;
        StartOn(deployment);
        Prepare();
        bool hasDied = false;
        arm();
        try {
            Start();
            Finish(200);
        } catch (const SimPowerCut&) {
            hasDied = true;
        }
        world.gate.Mend();
        QStringList posted = Posted();
        StartOn(deployment);
        Prepare();
        Start();
        Finish(200);
        posted += Posted();
        for (const QString& id : {u"1001"_s, u"1002"_s}) {
            EXPECT_LE(posted.filter(id).size(), 1) << id.toStdString();
            EXPECT_TRUE(!posted.filter(id).isEmpty() ||
                        Lines(u"MessagesLog.open.txt"_s).join(u'|').contains(id))
                << id.toStdString();
        }
        const QString log = SentLog(*app, &Messages).Path();
        app->files.DeleteFile(log);
        OpenNotes(app->files, log).Clear();
        return hasDied;
    }
};

TEST_F(KilledMessengerTest, CutOffAtAnyWriteNobodyGetsAMessageTwice) {
    int write = 1;
    while (write < 80 && Dies([&] { world.gate.CrashAtWrite(write); })) {
        SCOPED_TRACE(write);
        ++write;
    }
    EXPECT_GT(write, 8);
    EXPECT_LT(write, 80);
}

TEST_F(KilledMessengerTest, KilledAtAnyTurnNobodyGetsAMessageTwice) {
    int turn = 1;
    while (turn < 5000 && Dies([&] {
               platform->Pump().onPump = [left = turn]() mutable {
                   if (--left == 0)
                       throw SimPowerCut();
               };
           })) {
        SCOPED_TRACE(turn);
        turn += 1 + turn / 20;
    }
    EXPECT_GT(turn, 10);
    EXPECT_LT(turn, 5000);
}

} // namespace
} // namespace qlm
