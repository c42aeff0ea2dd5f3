// SPDX-License-Identifier: MIT
// What may arrive in the waits of a bulletin and of a status update: the user, another start, the end.
#include "MeetInWait.h"
#include "PostRun.h"
#include "steps/Steps.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace qlm {
namespace {

// A wait, by pages that never end it, and what tells that it stands.
struct Wait {
    const char* name;
    bool isBulletin = false;
    bool isNew = false;
    const char16_t* page = nullptr;   // the body of the form, or of the home page
    const char16_t* listed = nullptr; // and of the posted bulletins
    SimFault fault = SimFault::None;
    int step = BulletinStep::Submit;
    const char16_t* status = u""; // how the status line begins
    const char* typed = "";       // the field with something in it
    const char* empty = "";       // the one without
    QStringList posted{};         // what the site has heard of by then
    int standsMs = 20'000;
    const char16_t* saysFor = u""; // what the window says that is waited for
    int limitSeconds = 0;          // after which it ends by itself; 0 for never
    bool isPressed = false;        // and not counted yet
    bool isLost = false;           // what it waits for comes of a click alone, which no page repeats
};

void PrintTo(const Wait& wait, std::ostream* stream) {
    *stream << wait.name;
}

#define SOURCE u"<a href='javascript:void(0)' title='View Source'>HTML</a>"
#define FORM u"<form method=post action=/bulletins/posted><input id=subject name=Subject_Textbox>"
#define PLAIN                                                                                                \
    u"<textarea id=plain "                                                                                   \
    "name=ctl00_ctl00_ctl00_cpMain_cpMain_cpMain_BulletinPostWithRTE_ctl01></textarea>"
#define POST u"<input type=submit value=Post></form>"
#define INVITES u"<p>Share what you\u2019re into</p>"
#define SPSTATUS u"<textarea id=spStatus></textarea>"
#define FILTER u"filterStreamByFriend"
#define BOX                                                                                                  \
    u"<p>Share what you're into</p><form id=f method=post action='/sunk?shared' target=sink>"                \
    "<textarea id=spStatus name=status></textarea></form><iframe name=sink srcdoc=x></iframe>"               \
    "<button id=submitBtn data-on-click='submit #f'>Share</button>"
#define DELETING u"Anti-flood: deleting your previously posted status update..."
#define POSTING u"Posting your status update..."
#define OPENING u"Waiting for your MySpace home page to load..."

const Wait Waits[] = {
    {.name = "FormsBody",
     .isBulletin = true,
     .page = u"<p data-on-load='after 3100ms goto /bodiless'></p>" SOURCE FORM PLAIN POST,
     .standsMs = 130'000,
     .saysFor = u" for a page with a body. "},
    {.name = "Form",
     .isBulletin = true,
     .page = SOURCE FORM PLAIN POST,
     .fault = SimFault::Incomplete,
     .empty = "subject",
     .limitSeconds = 25},
    {.name = "ViewSource",
     .isBulletin = true,
     .page = FORM PLAIN POST,
     .typed = "subject",
     .limitSeconds = 25},
    {.name = "SourceView",
     .isBulletin = true,
     .page = SOURCE FORM PLAIN POST,
     .fault = SimFault::Incomplete,
     .typed = "subject",
     .empty = "plain",
     .limitSeconds = 25},
    {.name = "TypedForm",
     .isBulletin = true,
     .page = SOURCE FORM PLAIN POST,
     .fault = SimFault::Incomplete,
     .typed = "plain",
     .limitSeconds = 25},
    {.name = "PostedBulletins",
     .isBulletin = true,
     .listed = u"My posts",
     .step = BulletinStep::DeleteLast,
     .posted = {u"posted"_s},
     .standsMs = 130'000,
     .saysFor = u" for your posted bulletins. "},
    {.name = "DeletedBulletin",
     .isBulletin = true,
     .step = BulletinStep::Open,
     .status = u"Anti-Flood: deleting your last bulletin...",
     .posted = {u"posted"_s, u"deleted"_s},
     .standsMs = 4'000},

    {.name = "StatusBox",
     .page = INVITES FILTER,
     .status = OPENING,
     .standsMs = 130'000,
     .saysFor = u" for the status box of your home page. "},
    {.name = "StreamFilter",
     .page = INVITES SPSTATUS,
     .status = OPENING,
     .standsMs = 130'000,
     .saysFor = u" for the status box of your home page. "},
    {.name = "Invitation",
     .isNew = true,
     .page = u"Share what you are into" SPSTATUS,
     .status = OPENING,
     .standsMs = 130'000,
     .saysFor = u" for \"Share what you're into\" on the page. "},
    {.name = "Invited", .isNew = true, .page = INVITES SPSTATUS, .status = OPENING, .standsMs = 1'000},
    {.name = "FocusedBox", .status = POSTING, .empty = "spStatus", .standsMs = 3'000},
    {.name = "TypedStatus", .status = POSTING, .typed = "spStatus", .standsMs = 3'000},
    {.name = "SharedStatus",
     .status = POSTING,
     .typed = "spStatus",
     .posted = {u"shared"_s},
     .standsMs = 3'000,
     .isPressed = true},

    {.name = "OwnUpdates",
     .page = BOX FILTER,
     .status = DELETING,
     .posted = {u"shared"_s},
     .standsMs = 130'000,
     .saysFor = u" for \"Delete This Update\" on the page. "},
    {.name = "DeletionsQuestion", .status = DELETING, .posted = {u"shared"_s}, .standsMs = 2'000},
    {.name = "DeletedUpdate", .status = DELETING, .posted = {u"shared"_s, u"deleted"_s}, .standsMs = 1'000},
    {.name = "LoadingStream",
     .isNew = true,
     .page = BOX u"<a href=#x>Just me</a>",
     .status = DELETING,
     .posted = {u"shared"_s},
     .standsMs = 130'000,
     .saysFor = u" for the stream to load. ",
     .isLost = true},
    {.name = "LoadedStream",
     .isNew = true,
     .page = BOX u"<a href=#x data-on-click='click #loads'>Just me</a><div id=s></div>",
     .status = DELETING,
     .posted = {u"shared"_s},
     .standsMs = 130'000,
     .saysFor = u" for the stream to load. "},
    {.name = "OwnStream", .isNew = true, .status = DELETING, .posted = {u"shared"_s}, .standsMs = 3'000},
    {.name = "DeletedInStream",
     .isNew = true,
     .status = DELETING,
     .posted = {u"shared"_s, u"deleted"_s},
     .standsMs = 1'000},
};

class PostWaitTest : public PostRun, public testing::WithParamInterface<Wait> {
protected:
    PostWaitTest() : PostRun(GetParam().isNew) {
        const Wait& wait = GetParam();
        SetBody(Site(u"bodiless"_s), {}, SimFault::NoBody);
        if (wait.page && wait.isBulletin)
            SetBody(Site(u"bulletins/new"_s), QString::fromUtf16(wait.page), wait.fault);
        else if (wait.page)
            SetHome(QString::fromUtf16(wait.page), wait.fault);
        if (wait.listed)
            SetBody(Site(u"bulletins/12345"_s), QString::fromUtf16(wait.listed));
    }
    void RepairPages() {
        SetBody(Site(u"bulletins/new"_s), GetParam().isNew ? NewForm() : OldForm());
        SetBody(Site(u"bulletins/12345"_s), MyPosts());
        SetHome(Box() + Share() + (GetParam().isNew ? NewStream() : OldStream()));
    }
    const Campaign& TheCampaign() const { return GetParam().isBulletin ? Bulletins : StatusUpdates; }
    void Start() { GetParam().isBulletin ? StartBulletins() : StartStatuses(); }
    bool Stands() {
        m_posted += Posted();
        const Wait& wait = GetParam();
        const auto value = [this](const char* id) { return ValueOf(QString::fromLatin1(id)); };
        return State().CurrentAction == TheCampaign().Word() && app->Status().startsWith(wait.status) &&
               (!wait.isBulletin || (State().intBulStep == wait.step && State().blnLinkFound)) &&
               (!wait.typed[0] || !value(wait.typed).isEmpty()) &&
               (!wait.empty[0] || value(wait.empty).isEmpty()) && m_posted == wait.posted;
    }
    // False where the wait goes on after it.
    bool MeetInWait(const std::function<void()>& act) {
        const auto actThere = [&] {
            const QString says = QString::fromUtf16(GetParam().saysFor);
            const QString said = app->controls.Text("lblWaitingFor"_L1);
            EXPECT_TRUE(says.isEmpty() ? said.isEmpty() : said.contains(says)) << said.toStdString();
            sentThen = State().*TheCampaign().session;
            met = true;
            act();
        };
        // The start of a status update comes back when it is done.
        platform->Pump().Queue().Post([this] { Start(); });
        const bool isLeft = qlm::MeetInWait(
            platform->Pump(), [this] { return Stands(); }, GetParam().standsMs - 200, actThere);
        EXPECT_TRUE(met);
        return isLeft;
    }
    QStringList PostedLater() {
        m_posted += Posted();
        return m_posted.mid(GetParam().posted.size());
    }
    qsizetype PostsOf(const QStringList& posted) const {
        return posted.count(GetParam().isBulletin ? u"posted"_s : u"shared"_s);
    }

    qint32 sentThen = 0;
    bool met = false;

private:
    QStringList m_posted;
};

INSTANTIATE_TEST_SUITE_P(Each, PostWaitTest, testing::ValuesIn(Waits),
                         [](const auto& wait) { return wait.param.name; });

TEST_P(PostWaitTest, StopIsTheLastWord) {
    EXPECT_TRUE(MeetInWait([this] {
        RepairPages();
        app->commands.Run(u"picStop_Click"_s);
        Browser().Navigate(GetParam().isBulletin ? Site(u"bulletins/new"_s) : Home());
    }));
    EXPECT_EQ(State().CurrentAction, QString());
    platform->Pump().RunFor(300'000);
    EXPECT_EQ(PostedLater(), QStringList());
    EXPECT_EQ(ValueOf(u"subject"_s) + ValueOf(u"plain"_s) + ValueOf(u"spStatus"_s), QString());
    EXPECT_EQ(State().*TheCampaign().today.count, sentThen);
    EXPECT_FALSE((app->timers.get()->*TheCampaign().timing.timer).Enabled());
    EXPECT_FALSE(app->controls[TheCampaign().timing.busyLabel].visible);
    EXPECT_EQ(Notes(TheCampaign()).isEmpty(), !GetParam().isPressed);
    EXPECT_TRUE(Report(TheCampaign()).join(u'|').contains(u"You pressed Stop"_s));
}

TEST_P(PostWaitTest, SkipLosesNoPostAndMakesNoSecondOne) {
    MeetInWait([this] {
        RepairPages();
        if (GetParam().page || GetParam().listed)
            Browser().Navigate(GetParam().listed       ? Site(u"bulletins/12345"_s)
                               : GetParam().isBulletin ? Site(u"bulletins/new"_s)
                                                       : Home());
        app->commands.Run(u"picSkip_Click"_s);
    });
    if (GetParam().isLost) {
        platform->Pump().RunFor(300'000);
        EXPECT_EQ(State().CurrentAction, TheCampaign().Word());
        EXPECT_EQ(PostedLater(), QStringList());
        app->commands.Run(u"picStop_Click"_s);
        return;
    }
    RunOn();
    EXPECT_EQ(PostsOf(GetParam().posted) + PostsOf(PostedLater()), 2);
    EXPECT_EQ(State().*TheCampaign().session, 2);
    EXPECT_EQ(Notes(TheCampaign()), QStringList());
}

TEST_P(PostWaitTest, ASecondStartBeginsAnew) {
    MeetInWait([this] {
        RepairPages();
        Start();
    });
    RunOn();
    EXPECT_EQ(PostsOf(PostedLater()), 2);
    EXPECT_EQ(State().*TheCampaign().session, 2);
    EXPECT_EQ(State().*TheCampaign().today.count, sentThen + 2);
    EXPECT_EQ(Notes(TheCampaign()), QStringList());
    EXPECT_EQ(
        Report(TheCampaign())
            .join(u'|')
            .contains(u"An earlier run ended while this one was being posted; it may have been posted"_s),
        GetParam().isPressed);
}

// A start by hand takes the browser; what had not been posted by then stays so.
TEST_P(PostWaitTest, AStartOfRequestsEndsIt) {
    const QString ask = Site(u"my/friends/addtofriends/1001"_s);
    SetBody(ask, u"Request Sent!"_s);
    app->Get<GatheredList>().Add(u"1001"_s, u"test"_s);
    MeetInWait([this] {
        RepairPages();
        State().blnNewLayout = true;
        app->commands.Run(u"piccmdAddFriends_Click"_s);
    });
    RunOn();
    platform->Pump().RunFor(300'000);
    EXPECT_EQ(PostedLater(), QStringList());
    EXPECT_EQ(State().*TheCampaign().today.count, sentThen);
    EXPECT_EQ(State().lngSessionFR, 1);
    EXPECT_FALSE(app->controls[TheCampaign().timing.busyLabel].visible);
    EXPECT_TRUE(Report(TheCampaign()).join(u'|').contains(u"The run was ended"_s));
}

TEST_P(PostWaitTest, TheEndOfTheProgramLeavesIt) {
    EXPECT_TRUE(MeetInWait([this] { State().blnClosing = true; }));
    platform->Pump().RunFor(120'000);
    EXPECT_EQ(PostedLater(), QStringList());
    EXPECT_EQ(State().*TheCampaign().today.count, sentThen);
    EXPECT_EQ(Notes(TheCampaign()).isEmpty(), !GetParam().isPressed);
}

} // namespace
} // namespace qlm
