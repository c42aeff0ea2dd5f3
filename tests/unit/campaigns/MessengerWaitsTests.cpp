// SPDX-License-Identifier: MIT
// What may arrive in the waits of a message: the user, a power cut, a page of somebody else's.
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

// The waits of a step, each by a page that never ends it, and what may come in it.
struct Wait {
    const char* name;
    const char16_t* status; // that says that the wait has begun
    const char16_t* body;   // of the page that takes the message
    bool isPressed;         // the message is out by then
};

void PrintTo(const Wait& wait, std::ostream* stream) {
    *stream << wait.name;
}

class MessengerWaitTest : public MessengerTest, public testing::WithParamInterface<Wait> {
protected:
    // Until the run stands in that wait.
    void BeginWait() {
        People({u"1001"_s, u"1002"_s});
        world.web.SetPage(SentPage, u"<html><body>Something else</body></html>"_s);
        world.web.SetPage(NewPage + u"1001"_s,
                          u"<html><body>"_s + QString::fromUtf16(GetParam().body) + u"</body></html>"_s);
        app->controls.AddListener([this](const Control&, Controls::Change, int) {
            if (!m_isIn && app->Status() == QString::fromUtf16(GetParam().status)) {
                m_isIn = true;
                app->Pump().Queue().Post([this] { act(); });
            }
        });
        Start();
        for (int i = 0; i < 30 && !m_isIn; ++i)
            platform->Pump().RunFor(500);
        platform->Pump().RunFor(2000);
        EXPECT_TRUE(m_isIn);
    }
    QStringList LoggedOf1001() { return Log().filter(u"1001"_s); }
    QStringList Expected() { return GetParam().isPressed ? QStringList{u"1001"_s} : QStringList(); }

    std::function<void()> act;

private:
    bool m_isIn = false;
};

constexpr Wait Waits[] = {
    {"Draft", u"Waiting for message page to finish loading...", u"<input type=submit value=Send>", false},
    {"Span", u"Message sent, waiting for confirmation page...",
     u"Save Draft<button id=butbtnSend>send</button><span id=spanbtnSend>Send</span>", true},
};
INSTANTIATE_TEST_SUITE_P(Each, MessengerWaitTest, testing::ValuesIn(Waits));

TEST_P(MessengerWaitTest, StopIsTheLastWord) {
    act = [this] { app->commands.Run(u"picStop_Click"_s); };
    BeginWait();
    EXPECT_EQ(State().CurrentAction, QString());
    EXPECT_EQ(LoggedOf1001(), Expected());
    Finish(30);
    EXPECT_FALSE(Log().contains(u"1002"_s));
    EXPECT_EQ(State().arrFriendIDs.size(), 2);
}

TEST_P(MessengerWaitTest, SkipGoesToTheNextTargetAlone) {
    act = [this] { app->Get<StopResume>().SkipProfile(); };
    BeginWait();
    EXPECT_EQ(LoggedOf1001(), Expected());
    EXPECT_EQ(State().lngFailedCount, GetParam().isPressed ? 0 : 1);
    for (int i = 0; i < 100 && !Log().contains(u"1002"_s); ++i)
        platform->Pump().RunFor(500);
    EXPECT_EQ(Posted().filter(u"1002"_s).size(), 1);
}

TEST_P(MessengerWaitTest, ASecondStartBeginsAnewAndSendsNobodyTwice) {
    act = [this] {
        world.web.SetPage(NewPage + u"1001"_s, Form(u"1001"_s));
        world.web.SetPage(SentPage, u"<html><body>Your message has been sent!</body></html>"_s);
        Start();
    };
    BeginWait();
    Finish(60);
    EXPECT_EQ(Log().filter(u"1001"_s).size(), 1);
    EXPECT_EQ(Posted().filter(u"1001"_s).size(), GetParam().isPressed ? 0 : 1);
    EXPECT_EQ(Log().filter(u"1002"_s).size(), 1);
}

TEST_P(MessengerWaitTest, TheEndOfTheProgramLeavesTheWait) {
    act = [this] { State().blnClosing = true; };
    // Without an end of the wait the message loop would not come back.
    BeginWait();
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
