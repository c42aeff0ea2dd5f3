// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "campaigns/StartChecks.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class StartChecksTest : public SimulatedProgram {
protected:
    StartChecksTest() { app->controls.AddItem("lstFriendIDs"_L1, u"1001"_s); }
    // The message that refuses the start; empty when it may begin.
    QString Refusal() {
        dialogs.messages.clear();
        const bool may = FriendRequestMayStart(*app);
        EXPECT_EQ(may, dialogs.messages.empty());
        return dialogs.Texts().value(0);
    }
    void SendMessageBehind() {
        app->controls.SetTicked("chkFrSendMessage"_L1, true);
        app->controls.SetText("txtMsgSubject"_L1, u"Hi"_s);
        app->controls.SetText("txtMsgMessage"_L1, u"Hello"_s);
    }
};

TEST_F(StartChecksTest, NothingWrongMayStart) {
    EXPECT_EQ(Refusal(), QString());
}

TEST_F(StartChecksTest, ALoginIsWaitedForOnlyWhenTheServerSaysSo) {
    app->state.CurrentAction = u"LOGIN"_s;
    EXPECT_EQ(Refusal(), QString());
    app->state.blnWaitForLoginFirst = true;
    EXPECT_EQ(Refusal(), u"Please wait for the login process to finish"_s);
}

TEST_F(StartChecksTest, AShuffleIsWaitedFor) {
    app->state.CurrentAction = u"RANDOMIZING"_s;
    EXPECT_TRUE(Refusal().startsWith(u"QLM is still busy randomizing"_s));
}

TEST_F(StartChecksTest, TheEmptyListComesBeforeAWrongLimit) {
    app->controls.SetItems("lstFriendIDs"_L1, {});
    app->controls.SetText("txtFriendRequestsToSend"_L1, u"many"_s);
    EXPECT_EQ(Refusal(), u"Your Gathered ID's List is Empty!\nFirst you need to go to a page in the browser "
                         u"and, using the 'Gather "
                         "IDs' tab, extract the profiles you would like to send friend requests "
                         "to.\nQuillmere will now switch to "
                         "the Gather ID's tab."_s);
}

TEST_F(StartChecksTest, TheLimitIsBlankOrANumber) {
    app->controls.SetText("txtFriendRequestsToSend"_L1, u"  "_s);
    EXPECT_EQ(Refusal(), QString());
    app->controls.SetText("txtFriendRequestsToSend"_L1, u"ten"_s);
    EXPECT_EQ(Refusal(),
              u"Please specify a numeric value for the number of friend requests to send.\nYou can leave the "
              "entry blank to send an unlimited number of requests."_s);
}

TEST_F(StartChecksTest, AMessageBehindNeedsSubjectThenText) {
    SendMessageBehind();
    app->controls.SetText("txtMsgSubject"_L1, {});
    app->controls.SetText("txtMsgMessage"_L1, {});
    EXPECT_TRUE(Refusal().endsWith(u"Please enter subject for the message."_s));
    app->controls.SetText("txtMsgSubject"_L1, u"Hi"_s);
    EXPECT_TRUE(Refusal().endsWith(u"Please enter a message."_s));
}

TEST_F(StartChecksTest, AMessageBehindIsRefusedWhileThereIsNoMessenger) {
    SendMessageBehind();
    EXPECT_TRUE(Refusal().contains(u"has no Auto Messenger yet"_s));
    app->commands.Add(u"picCmdMsgSend_Click"_s, [] {});
    EXPECT_EQ(Refusal(), QString());
}

TEST_F(StartChecksTest, ACategoryMustHaveBeenChosen) {
    app->controls.SetTicked("chkFRAddToCategory"_L1, true);
    EXPECT_TRUE(Refusal().endsWith(u"no category has been selected."_s));
    app->controls.SetText("cboFRCategories"_L1, u"Fans"_s);
    EXPECT_EQ(Refusal(), QString());
}

} // namespace
} // namespace qlm
