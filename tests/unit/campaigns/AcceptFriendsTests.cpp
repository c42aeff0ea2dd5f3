// SPDX-License-Identifier: MIT
#include "InboundRun.h"
#include "inbound/AcceptFriends.h"
#include "steps/Steps.h"

namespace qlm {
namespace {

using AcceptFriendsTest = InboundRun;

TEST_F(AcceptFriendsTest, TheStepOfTheFollowUpRests) {
    State().CurrentAction = u"ACC"_s;
    State().intAccStep = AcceptStep::FollowUp;
    app->Get<AcceptFriends>().IterateAcceptFriends();
    EXPECT_TRUE(Said(u"case 4"_s));
    EXPECT_EQ(State().intAccStep, AcceptStep::FollowUp);
    EXPECT_EQ(State().CurrentAction, u"ACC"_s);
}

// The older list names nobody in its boxes, so that it is gathered for what follows, and for nothing else.
TEST_F(AcceptFriendsTest, TheOlderListIsGatheredForWhatFollows) {
    QStringList told;
    const int listener = app->controls.AddListener([&](const Control& control, Controls::Change, int) {
        if (control.name == "myfraCurrentAction"_L1 && control.text.contains(u" to..."_s))
            told.append(control.text);
    });
    const auto run = [&](QLatin1StringView option) {
        told.clear();
        asking = {u"1001"_s};
        app->controls.SetTicked(option, true);
        for (const auto field : {"txtAcceptSubject"_L1, "txtAcceptMessage"_L1, "txtAcceptComment"_L1})
            app->controls.SetText(field, u"Hello"_s);
        State().blnNewLayout = false;
        app->commands.Run(u"picCmdAutoApprove_Click"_s);
        platform->Pump().RunUntil([this] { return !done.isEmpty(); }, 60'000);
        done.clear();
        app->commands.Run(u"picStop_Click"_s);
        return told.join(u'|');
    };
    EXPECT_EQ(run("optAcceptSendMsg"_L1), u"Gathering ID's for sending messages to..."_s);
    EXPECT_EQ(run("optAcceptSendCom"_L1), u"Gathering ID's for sending comments to..."_s);
    EXPECT_EQ(run("optAcceptDontSend"_L1), QString());
    app->controls.RemoveListener(listener);
}

} // namespace
} // namespace qlm
