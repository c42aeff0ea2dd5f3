// SPDX-License-Identifier: MIT
// What may arrive in the waits of accepting friends and of canceling requests: the user, another start, the
// end.
#include "InboundRun.h"
#include "MeetInWait.h"
#include "core/ActivityWords.h"
#include "steps/Steps.h"

#include <vector>

namespace qlm {
namespace {

// A wait, by a page that never ends it, and what tells that it stands.
struct Wait {
    const char* name;
    bool isAccepting = true;
    bool isOlder = false;
    bool fromOldest = false;
    bool hangsBefore = false;   // the page that was there when the run began
    const char16_t* part = u""; // of the address of the page that fails
    const char16_t* method = u"GET";
    SimFault fault = SimFault::None;
    const char16_t* body = nullptr;
    const char16_t* status = u""; // how the status line begins
    int step = AcceptStep::Approve;
    int standsMs = 5'000;
    const char16_t* saysFor = u""; // what the window says that is waited for
    bool hasApproved = false;      // what was asked of the site has been done
};

void PrintTo(const Wait& wait, std::ostream* stream) {
    *stream << wait.name;
}

#define BOXES                                                                                                \
    u"Select all<input type=checkbox mode='FriendRequest,1001,x'><button type=button>Accept</button>"        \
    "<input type=checkbox mode='FriendRequest,1002,x'><button type=button>Accept</button>"
#define VANISHED                                                                                             \
    u"<span>This profile no longer exists</span><span>Deny</span><div id=spanapprovebottom></div>"
#define OPENING u"Waiting for the requests page to load..."
#define APPROVING u"Approving friend requests..."

const QString NewerPage = u"http://{SiteRootHost}/my/requests/friendrequest?viewall=1"_s;
const QString OlderPage = u"http://{MessagingHost}/index.cfm?fuseaction=mail.friendRequestsV3"_s;

const Wait Waits[] = {
    {.name = "BusyPage",
     .hangsBefore = true,
     .part = u"/before",
     .fault = SimFault::Incomplete,
     .status = OPENING,
     .step = AcceptStep::OpenList,
     .standsMs = 130'000,
     .saysFor = u" for the page to be complete. "},
    {.name = "List",
     .part = u"friendrequest",
     .fault = SimFault::Hang,
     .status = OPENING,
     .standsMs = 130'000,
     .saysFor = u" for the requests page. "},
    {.name = "ListsWords",
     .part = u"friendrequest",
     .body = u"Nothing",
     .status = OPENING,
     .standsMs = 130'000,
     .saysFor = u" for \"Select all\" on the page. "},
    {.name = "CompleteList",
     .part = u"friendrequest",
     .fault = SimFault::Incomplete,
     .status = u"Waiting for the page to finish loading...",
     .standsMs = 130'000,
     .saysFor = u" for the page to be complete. "},
    {.name = "Answer", .part = u"friendrequest", .body = BOXES, .status = APPROVING},
    {.name = "LastPage",
     .fromOldest = true,
     .part = u"friendrequest",
     .fault = SimFault::Incomplete,
     .status = u"Waiting for the page to finish loading...",
     .step = AcceptStep::LastPage},
    {.name = "Denial",
     .isOlder = true,
     .part = u"friendRequestsV3",
     .body = VANISHED,
     .status = u"Deleting friend requests from profiles that don't exist anymore..."},
    {.name = "ApprovedList",
     .isOlder = true,
     .part = u"friendRequestsV3",
     .method = u"POST",
     .body = u"Nothing",
     .status = u"Deleting friend requests from profiles that don't exist anymore...",
     .standsMs = 130'000,
     .saysFor = u" for \"spanapprovebottom\" on the page. ",
     .hasApproved = true},

    {.name = "SignOut",
     .isAccepting = false,
     .part = u"signout",
     .fault = SimFault::Hang,
     .status = u"Logging in to mobile.site.example.com...",
     .step = PendingStep::OpenList},
    {.name = "SignIn",
     .isAccepting = false,
     .part = u"login",
     .method = u"POST",
     .body = u"Nothing",
     .status = u"Logging in to mobile.site.example.com...",
     .step = PendingStep::OpenList},
    {.name = "SignedIn",
     .isAccepting = false,
     .part = u"login",
     .method = u"POST",
     .fault = SimFault::Incomplete,
     .status = u"Waiting for the page to load...",
     .step = PendingStep::OpenList},
    {.name = "SentRequests",
     .isAccepting = false,
     .part = u"sentrequests.wap?bfd",
     .fault = SimFault::Hang,
     .status = u"Going to the sent requests page...",
     .step = PendingStep::OpenList},
    {.name = "StartPage",
     .isAccepting = false,
     .part = u"sentrequests.wap?p=3",
     .fault = SimFault::Hang,
     .status = u"Going to your specified start page...",
     .step = PendingStep::OpenList},
    {.name = "Entry",
     .isAccepting = false,
     .part = u"/friend?",
     .fault = SimFault::Incomplete,
     .status = u"Canceling pending friend request...",
     .step = PendingStep::OpenList},
    {.name = "Question",
     .isAccepting = false,
     .part = u"/sure?",
     .body = u"Nothing",
     .status = u"Canceling pending friend request...",
     .step = PendingStep::OpenList},
    {.name = "Canceled",
     .isAccepting = false,
     .part = u"/done?",
     .method = u"POST",
     .fault = SimFault::Incomplete,
     .status = u"Canceled, looking for next pending request...",
     .step = PendingStep::OpenList},
};

class InboundWaitTest : public InboundRun, public testing::WithParamInterface<Wait> {
protected:
    InboundWaitTest() {
        const Wait& wait = GetParam();
        State().blnNewLayout = !wait.isOlder;
        app->controls.SetTicked("chkAcceptFromOldest"_L1, wait.fromOldest);
        app->controls.SetText("txtDelPenFRStartPage"_L1,
                              QLatin1StringView(wait.name) == "StartPage"_L1 ? u"3"_s : u"1"_s);
        broken = Failure{.part = QString::fromUtf16(wait.part),
                         .method = QString::fromUtf16(wait.method),
                         .fault = wait.fault,
                         .body = wait.body ? std::optional(QString::fromUtf16(wait.body)) : std::nullopt};
    }
    QLatin1StringView Word() const {
        return GetParam().isAccepting ? ActivityWord::Accepting : ActivityWord::DeletingPending;
    }
    const ReportKind& Report() const { return GetParam().isAccepting ? AcceptReport : PendingReport; }
    void Start() {
        app->commands.Run(GetParam().isAccepting ? u"picCmdAutoApprove_Click"_s
                                                 : u"picDeletePendingRequests_Click"_s);
    }
    bool Stands() {
        const Wait& wait = GetParam();
        const qint16 step = wait.isAccepting ? State().intAccStep : State().intDelPenStep;
        return State().CurrentAction == Word() && step == wait.step &&
               app->Status().startsWith(QString::fromUtf16(wait.status));
    }
    // False where the wait goes on after it.
    bool MeetInWait(const std::function<void()>& act) {
        if (GetParam().hangsBefore) {
            Browser().Navigate(app->Expand(u"http://{SiteRootHost}/before"_s));
            platform->Pump().RunFor(1000);
        }
        const auto actThere = [&] {
            const QString says = QString::fromUtf16(GetParam().saysFor);
            const QString said = app->controls.Text("lblWaitingFor"_L1);
            EXPECT_TRUE(says.isEmpty() ? said.isEmpty() : said.contains(says)) << said.toStdString();
            doneThen = done;
            met = true;
            act();
        };
        platform->Pump().Queue().Post([this] { Start(); });
        const bool isLeft = qlm::MeetInWait(
            platform->Pump(), [this] { return Stands(); }, GetParam().standsMs, actThere);
        EXPECT_TRUE(met);
        return isLeft;
    }
    void RunOn() {
        platform->Pump().RunUntil([this] { return State().CurrentAction.isEmpty(); }, 600'000);
        EXPECT_EQ(State().CurrentAction, QString());
    }
    QStringList All() const {
        return GetParam().isAccepting ? QStringList{u"1001"_s, u"1002"_s} : QStringList{u"2001"_s, u"2002"_s};
    }

    QStringList doneThen;
    bool met = false;
};

INSTANTIATE_TEST_SUITE_P(Each, InboundWaitTest, testing::ValuesIn(Waits),
                         [](const auto& wait) { return wait.param.name; });

TEST_P(InboundWaitTest, StopIsTheLastWord) {
    EXPECT_TRUE(MeetInWait([this] {
        broken.reset();
        app->commands.Run(u"picStop_Click"_s);
    }));
    EXPECT_EQ(State().CurrentAction, QString());
    platform->Pump().RunFor(300'000);
    EXPECT_EQ(done, doneThen);
    EXPECT_EQ(Told(), QString());
    EXPECT_EQ(HowTheRunsEnded(Report()), u"You pressed Stop"_s);
}

// There is no target to skip; canceling goes on by itself when its time is up, and what its list then lacks
// ends it.
TEST_P(InboundWaitTest, SkipDoesNothingTwice) {
    MeetInWait([this] {
        broken.reset();
        app->commands.Run(u"picSkip_Click"_s);
        if (GetParam().isAccepting)
            Browser().Navigate(app->Expand(GetParam().isOlder ? OlderPage : NewerPage));
    });
    RunOn();
    EXPECT_TRUE(!GetParam().isAccepting || done == All()) << done.join(u' ').toStdString();
    EXPECT_EQ(QStringList(done).removeDuplicates(), 0);
    EXPECT_EQ(Told(), GetParam().isAccepting ? u"Finished accepting friend requests"_s : u"Finished!"_s);
}

TEST_P(InboundWaitTest, ASecondStartBeginsAnew) {
    MeetInWait([this] {
        broken.reset();
        Browser().Stop(); // a load that hangs would be waited for first
        Start();
    });
    RunOn();
    EXPECT_EQ(done, All());
    EXPECT_EQ(Told(), GetParam().isAccepting ? u"Finished accepting friend requests"_s : u"Finished!"_s);
    EXPECT_EQ(HowTheRunsEnded(Report()), u"The run was ended|"_s + QString::fromUtf8(Report().allDone));
}

TEST_P(InboundWaitTest, AStartOfRequestsEndsIt) {
    app->Get<GatheredList>().Add(u"3001"_s, u"test"_s);
    MeetInWait([this] {
        broken.reset();
        State().blnNewLayout = true;
        app->commands.Run(u"piccmdAddFriends_Click"_s);
    });
    RunOn();
    platform->Pump().RunFor(300'000);
    EXPECT_EQ(done, doneThen);
    EXPECT_EQ(State().lngSessionFR, 1);
    EXPECT_EQ(HowTheRunsEnded(Report()), u"The run was ended"_s);
}

TEST_P(InboundWaitTest, TheEndOfTheProgramLeavesIt) {
    EXPECT_TRUE(MeetInWait([this] { State().blnClosing = true; }));
    broken.reset();
    platform->Pump().RunFor(120'000);
    EXPECT_EQ(done, doneThen);
}

} // namespace
} // namespace qlm
