// SPDX-License-Identifier: MIT
#include "MessengerTest.h"
#include "campaigns/GroupWay.h"
#include "core/ActivityWords.h"
#include "steps/Activities.h"
#include "steps/Steps.h"

namespace qlm {
namespace {

const QString InvitePage =
    u"http://groups.site.example.com/index.cfm?fuseaction=groups.addtogroup&friendID=88"_s;
const QString ResignPage = u"http://groups.site.example.com/index.cfm?fuseaction=groups.resign&groupID=77"_s;

class GroupWayTest : public MessengerTest {
protected:
    GroupWayTest() {
        ShowAt(InvitePage, u"<form method=post action='/added'><select name=group><option value=7 selected>a"
                           "<option value=77>b</select><input type=submit value='Add to Group'></form>"_s);
        ShowAt(u"http://groups.site.example.com/added"_s, u"Return to View Profile"_s);
        ShowAt(ResignPage, u"<form method=post action='/resigned'><input type=submit value=Resign></form>"_s);
        ShowAt(u"http://groups.site.example.com/resigned"_s, u"Back to Group Profile"_s);
        ShowAt(u"http://groups.site.example.com/joined"_s, u"You are now a member!"_s);
    }
    void ShowAt(const QString& url, const QString& body) {
        world.web.SetPage(url, u"<html><body>"_s + body + u"</body></html>"_s);
    }
    void ShowGroup(const QString& button) {
        Show(u"{GroupsHost}/group"_s, u"<form method=post action='/joined'><input type=submit value='other'>"
                                      "<input type=submit value='%1'></form>"_s.arg(button));
        Browser().TakePosted();
        Browser().TakeVisited();
    }
    // A message to the first of the list stands before the group's page.
    void StandBeforeGroup(const QString& button) {
        People({u"1001"_s, u"1002"_s});
        ShowGroup(button);
        app->commands.Run(u"picCmdMsgSend_Click"_s);
        ShowGroup(button);
        State().intMsgStep = MessageStep::JoinGroup;
        FindActivity(ActivityWord::Messages)->stepRoutine(*app);
    }
    // Each address with the value of its list, if it has one.
    QStringList Pressed() {
        QStringList pressed;
        for (const auto& form : Browser().TakePosted())
            pressed += form.url.section(u'/', 3) +
                       (form.fields.empty() ? QString() : u' ' + form.fields.at(0).value);
        return pressed;
    }
};

TEST_F(GroupWayTest, ATargetIsReachedThroughTheGroupAndTheGroupIsLeftAgain) {
    StandBeforeGroup(u"Join"_s);
    EXPECT_EQ(State().intMsgStep, MessageStep::OpenGroupInvite);
    EXPECT_EQ(State().strLinkType + u' ' + State().strLinkValue, u"Text you are now a member"_s);
    QList<int> steps{State().intMsgStep};
    platform->Pump().onPump = [&] {
        if (State().strCurrentID == u"1001" && State().intMsgStep != steps.constLast())
            steps += State().intMsgStep;
    };
    Finish();
    EXPECT_EQ(steps, (QList<int>{14, 15, 16, 17, 8}));
    EXPECT_EQ(Pressed().mid(0, 3), (QStringList{u"joined"_s, u"added 77"_s, u"resigned"_s}));
    EXPECT_EQ(Browser().TakeVisited().mid(0, 5),
              (QStringList{u"http://groups.site.example.com/joined"_s, InvitePage,
                           u"http://groups.site.example.com/added"_s, ResignPage,
                           u"http://groups.site.example.com/resigned"_s}));
    EXPECT_EQ(Log(), QStringList{u"1002"_s});
}

TEST_F(GroupWayTest, EachPageIsAwaitedByItsWords) {
    StandBeforeGroup(u"Join"_s);
    for (const auto& [step, awaited] :
         {std::pair(MessageStep::OpenGroupInvite, u"Button add to group"_s),
          std::pair(MessageStep::InviteToGroup, u"Text return to view profile"_s),
          std::pair(MessageStep::OpenGroupResign, u"Button resign"_s),
          std::pair(MessageStep::ResignFromGroup, u"Text back to group profile"_s)}) {
        platform->Pump().RunFor(100);
        State().intMsgStep = step;
        app->timers->tmrCheckLinkLoaded.SetEnabled(false);
        State().blnLinkFound = true;
        FindActivity(ActivityWord::Messages)->stepRoutine(*app);
        EXPECT_EQ(State().strLinkType + u' ' + State().strLinkValue, awaited);
        EXPECT_FALSE(State().blnLinkFound);
        EXPECT_TRUE(app->timers->tmrCheckLinkLoaded.Enabled());
    }
}

TEST_F(GroupWayTest, APageWithoutTheButtonCostsTheTargetAlone) {
    StandBeforeGroup(u"Join now"_s);
    Finish();
    EXPECT_EQ(Pressed().filter(u"joined"_s), QStringList());
    EXPECT_EQ(State().lngFailedCount, 1);
    EXPECT_EQ(Log(), QStringList{u"1002"_s});
    EXPECT_TRUE(Lines(u"MessagesReport.txt"_s)
                    .join(u'|')
                    .contains(u"A page of the group had no button for the next step"_s));
}

TEST_F(GroupWayTest, AFriendRequestGoesOnAtStepsOfItsOwn) {
    GroupWay way(*app);
    State().CurrentAction = ActivityWord::FriendRequests;
    ShowGroup(u"JOIN"_s);
    EXPECT_TRUE(way.JoinGroup());
    EXPECT_EQ(State().intFRStep, 14);
    Show(u"<input value='add to group'>"_s);
    EXPECT_TRUE(way.SubmitGroupInvite());
    EXPECT_EQ(State().intFRStep, 16);
    Show(u"<input value=resign>"_s);
    EXPECT_TRUE(way.SubmitGroupResign());
    EXPECT_EQ(State().intFRStep, FriendStep::NextTarget);
    EXPECT_EQ(State().intMsgStep, 0);
    Show(u"<input value=no>"_s);
    State().strLinkValue = u"kept"_s;
    EXPECT_FALSE(way.JoinGroup() || way.SubmitGroupInvite() || way.SubmitGroupResign());
    EXPECT_EQ(State().strLinkValue, u"kept"_s);
    EXPECT_EQ(State().intFRStep, FriendStep::NextTarget);
}

} // namespace
} // namespace qlm
