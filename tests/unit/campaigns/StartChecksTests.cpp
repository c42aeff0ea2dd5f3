// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "campaigns/Campaigns.h"
#include "campaigns/SentLog.h"
#include "campaigns/StartChecks.h"
#include "content/ContentLists.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class StartChecksTest : public SimulatedProgram {
protected:
    StartChecksTest() { app->controls.AddItem("lstFriendIDs"_L1, u"1001"_s); }
    // The message that refuses the start; empty when it may begin.
    QString Refusal(const QString& campaign = u"FR"_s) {
        dialogs.messages.clear();
        m_focus.clear();
        const bool may = CampaignMayStart(*app, *FindCampaign(campaign));
        EXPECT_EQ(may, dialogs.messages.empty());
        EXPECT_LE(dialogs.messages.size(), 1u);
        return dialogs.Texts().value(0);
    }
    // Each row is mended before the next: the first refusal is that of the first row that is still wrong.
    struct Row {
        const char16_t* message;
        const char* focus;
        std::function<void()> mend;
    };
    void ExpectInOrder(const QString& campaign, const std::vector<Row>& rows) {
        app->controls.AddListener([this](const Control& control, Controls::Change change, int) {
            if (change == Controls::Change::Focus)
                m_focus = control.name;
        });
        for (const Row& row : rows) {
            EXPECT_EQ(Refusal(campaign), QString::fromUtf16(row.message));
            EXPECT_EQ(m_focus, QLatin1StringView(row.focus));
            row.mend();
        }
        EXPECT_EQ(Refusal(campaign), QString());
    }
    void Set(QLatin1StringView name, const QString& text) { app->controls.SetText(name, text); }
    void Choose(QLatin1StringView option) { app->controls.SetTicked(option, true); }
    void Idle() { app->state.CurrentAction.clear(); }
    void LoginRuns() {
        app->state.CurrentAction = u"LOGIN"_s;
        app->state.blnWaitForLoginFirst = true;
    }
    void Write(ContentKind kind, const QString& line) {
        app->files.WriteLines(app->Get<ContentLists>().PathOf(kind), {line});
    }
    QString m_focus;

    const Row login{u"Please wait for the login process to finish", "",
                    [this] { app->state.CurrentAction = u"RANDOMIZING"_s; }};
    const Row loginAlone{u"Please wait for the login process to finish", "", [this] { Idle(); }};
    const Row shuffle{u"QLM is still busy randomizing your gathered ID's list, please wait until the list is "
                      u"loaded and try again",
                      "", [this] { Idle(); }};
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

TEST_F(StartChecksTest, ACategoryMustHaveBeenChosen) {
    app->controls.SetTicked("chkFRAddToCategory"_L1, true);
    for (const QString& none : {u"Retrieving, please wait..."_s, u"Press button to fill list -> -> ->"_s,
                                u"Select a category from the list"_s}) {
        app->controls.SetText("cboFRCategories"_L1, none);
        EXPECT_EQ(Refusal(),
                  u"You have selected to add the requested friends to a category, but no category has "
                  "been selected."_s);
    }
    app->controls.SetText("cboFRCategories"_L1, u"Fans"_s);
    EXPECT_EQ(Refusal(), QString());
}

TEST_F(StartChecksTest, OfFriendRequestsStandInTheirOrder) {
    LoginRuns();
    app->controls.SetItems("lstFriendIDs"_L1, {});
    Set("txtFriendRequestsToSend"_L1, u"ten"_s);
    Choose("chkFrSendMessage"_L1);
    Choose("chkFRAddToCategory"_L1);
    Choose("optSendFromList(0)"_L1);
    ExpectInOrder(
        u"FR"_s,
        {login,
         shuffle,
         {u"Your Gathered ID's List is Empty!\nFirst you need to go to a page in the browser and, using the "
          u"'Gather IDs' tab, extract the profiles you would like to send friend requests to.\nQuillmere "
          u"will "
          u"now switch to the Gather ID's tab.",
          "", [this] { app->controls.AddItem("lstFriendIDs"_L1, u"1"_s); }},
         {u"Please specify a numeric value for the number of friend requests to send.\nYou can leave the "
          u"entry "
          u"blank to send an unlimited number of requests.",
          "txtFriendRequestsToSend", [this] { Set("txtFriendRequestsToSend"_L1, u"10"_s); }},
         {u"You have selected to send a message after each friend request. Please enter subject for the "
          u"message.",
          "txtMsgSubject", [this] { Set("txtMsgSubject"_L1, u"Hi"_s); }},
         {u"You have selected to send a message after each friend request. Please enter a message.",
          "txtMsgMessage", [this] { Set("txtMsgMessage"_L1, u"Hello"_s); }},
         {u"You have selected to add the requested friends to a category, but no category has been selected.",
          "cboFRCategories", [this] { Set("cboFRCategories"_L1, u"Fans"_s); }},
         {u"You have selected to send a message with the friend request. On the messenger tab you selected "
          u"'send from list', but you havent added any messages to the list yet.",
          "", [this] { Write(ContentKind::Message, u"S&Message=B&Selected=0"_s); }},
         {u"You have selected to send a message with the friend request. On the messenger tab you selected "
          u"'send from list', but you havent selected any of the messages in your list.",
          "", [this] { Write(ContentKind::Message, u"S&Message=B&Selected=1"_s); }}});
}

TEST_F(StartChecksTest, OfASingleMessageStandInTheirOrder) {
    LoginRuns();
    app->controls.SetItems("lstFriendIDs"_L1, {});
    Set("txtMsgStopAt"_L1, u"ten"_s);
    ExpectInOrder(
        u"MSG"_s,
        {login,
         shuffle,
         {u"Please enter subject for the message.", "txtMsgSubject",
          [this] { Set("txtMsgSubject"_L1, u"Hi"_s); }},
         {u"Please enter a message.", "txtMsgMessage", [this] { Set("txtMsgMessage"_L1, u"Hello"_s); }},
         {u"Please enter a valid 'stop at' number, or leave it blank for unlimited messages", "txtMsgStopAt",
          [this] { Set("txtMsgStopAt"_L1, {}); }},
         {u"Your Gathered ID's List is Empty!\nFirst you need to go to a page in the browser and, using the "
          u"'Gather IDs' tab, extract the profiles you would like to send messages to.\nQuillmere will now "
          u"switch to the Gather ID's tab.",
          "", [this] { app->controls.AddItem("lstFriendIDs"_L1, u"1"_s); }}});
}

TEST_F(StartChecksTest, OfListedMessagesStandInTheirOrder) {
    Choose("optSendFromList(0)"_L1);
    Set("txtMsgStopAt"_L1, u"ten"_s);
    app->controls.SetItems("lstFriendIDs"_L1, {});
    ExpectInOrder(
        u"MSG"_s,
        {{u"Please enter a valid 'stop at' number, or leave it blank for unlimited messages", "txtMsgStopAt",
          [this] { Set("txtMsgStopAt"_L1, u"10"_s); }},
         {u"Your Gathered ID's List is Empty!\nFirst you need to go to a page in the browser and, using "
          u"the 'Gather IDs' tab, extract the profiles you would like to send messages to.\nQuillmere "
          u"will now switch to the Gather ID's tab.",
          "", [this] { app->controls.AddItem("lstFriendIDs"_L1, u"1"_s); }},
         {u"You have selected 'send from list', but you havent added any messages to the list yet.", "",
          [this] { Write(ContentKind::Message, u"S&Message=B"_s); }},
         // A flag that is not written counts as none here, although the line would be sent.
         {u"Please select at least one message in the list to send.", "",
          [this] { Write(ContentKind::Message, u"S&Message=B&Selected=1"_s); }}});
}

TEST_F(StartChecksTest, OfASingleCommentStandInTheirOrder) {
    LoginRuns();
    app->controls.SetItems("lstFriendIDs"_L1, {});
    Set("txtComStopAt"_L1, u"ten"_s);
    Choose("optCOMHTMLBLocked(2)"_L1);
    const char16_t* alternative = u"Please enter an alternate non-HTML comment, or disable the setting.";
    ExpectInOrder(
        u"COM"_s,
        {login,
         shuffle,
         {u"Your Gathered ID's List is Empty!\nFirst you need to go to a page in the browser and, using the "
          u"'Gather IDs' tab, extract the profiles you would like to send comments to.\nQuillmere will now "
          u"switch to the Gather ID's tab.",
          "", [this] { app->controls.AddItem("lstFriendIDs"_L1, u"1"_s); }},
         {u"Please enter a comment.", "txtComment", [this] { Set("txtComment"_L1, u"Hello"_s); }},
         {alternative, "txtCommentNonHTML",
          [this] { Set("txtCommentNonHTML"_L1, u"Enter non-HTML comment here"_s); }},
         {alternative, "txtCommentNonHTML", [this] { Choose("optCOMHTMLBLocked(1)"_L1); }},
         {u"Please enter a valid number of comments to send.", "txtComStopAt",
          [this] { Set("txtComStopAt"_L1, u" "_s); }}});
}

TEST_F(StartChecksTest, OfListedCommentsStandInTheirOrder) {
    Choose("optSendFromList(1)"_L1);
    Choose("optCOMHTMLBLocked(2)"_L1);
    Set("txtComStopAt"_L1, u"ten"_s);
    ExpectInOrder(
        u"COM"_s,
        {{u"Please enter a valid number of comments to send.", "txtComStopAt",
          [this] { Set("txtComStopAt"_L1, u"10"_s); }},
         {u"You have selected 'send from list', but you havent added any comments to the list yet.", "",
          [this] { Write(ContentKind::Comment, u"C&usenonhtml=0&nonhtmlcomment=&Selected=0"_s); }},
         {u"Please select at least one comment in the list to send.", "",
          [this] { Write(ContentKind::Comment, u"C&usenonhtml=0&nonhtmlcomment=&Selected=1"_s); }}});
}

TEST_F(StartChecksTest, OfBulletinsStandInTheirOrder) {
    LoginRuns();
    Set("txtPostAmount"_L1, u"0"_s);
    ExpectInOrder(
        u"BUL"_s,
        {loginAlone,
         {u"Please specify how many times to post the bulletin.", "txtPostAmount",
          [this] { Set("txtPostAmount"_L1, u"1"_s); }},
         {u"Please enter a subject.", "txtBulSubject", [this] { Set("txtBulSubject"_L1, u"Hi"_s); }},
         {u"Please enter a message.", "txtBulMessage", [this] { Choose("optSendFromList(2)"_L1); }},
         {u"You have selected 'send from list', but you havent added any bulletins to the "
          u"list yet.",
          "", [this] { Write(ContentKind::Bulletin, u"S&Bulletin=B&Selected=0"_s); }},
         {u"Please select at least one bulletin in the list to post.", "",
          [this] { Write(ContentKind::Bulletin, u"S&Bulletin=B&Selected=1"_s); }}});
}

TEST_F(StartChecksTest, OfStatusUpdatesStandInTheirOrder) {
    LoginRuns();
    ExpectInOrder(
        u"STATUSUPDATES"_s,
        {loginAlone,
         {u"Please specify how many status updates to post in total.", "txtStatusPostAmount",
          [this] { Set("txtStatusPostAmount"_L1, u"1"_s); }},
         {u"Please enter a status update.", "txtStatusBody", [this] { Choose("optSendFromList(3)"_L1); }},
         {u"You have selected 'send from list', but you havent added any statuses to the list yet.", "",
          [this] { Write(ContentKind::Status, u"T&Selected=0"_s); }},
         {u"Please select at least one status in the list to post.", "",
          [this] { Write(ContentKind::Status, u"T&Selected=1"_s); }}});
}

TEST_F(StartChecksTest, TheEmptyListShowsTheGatherTab) {
    app->controls.SetSelected("TabStrip1"_L1, 1);
    app->controls.SetItems("lstFriendIDs"_L1, {});
    Refusal();
    EXPECT_EQ(app->controls.Selected("TabStrip1"_L1), 0);
}

// Read as text of one byte a letter it would hold nobody, and everybody would be asked again.
TEST_F(StartChecksTest, ALogInUtf16RefusesTheStartAndOneWithAMarkOrBareReturnsDoesNot) {
    Idle();
    const QString log = app->ProgramFile(u"FriendsLog.txt"_s);
    app->files.WriteBytes(log, QByteArray("\xFF\xFE"
                                          "1\0"
                                          "0\0\r\0\n\0",
                                          10));
    EXPECT_TRUE(Refusal().startsWith(u"The log of everybody you have asked is written in UTF-16"_s));
    app->files.WriteBytes(log, "\xEF\xBB\xBF"
                               "10\r11\r");
    EXPECT_EQ(Refusal(), QString());
    app->state.CurrentAction = u"FR"_s;
    app->state.blnCheckLog = true;
    EXPECT_TRUE(RunningLog(*app).LogEntryExists(u"10"_s));
    EXPECT_TRUE(RunningLog(*app).LogEntryExists(u"11"_s));
}

TEST_F(StartChecksTest, ALogInUtf16RefusesWhoeverLooksAtIt) {
    for (const Campaign* campaign : {&Messages, &Comments}) {
        const StartCheck& check = campaign->checks().back();
        app->files.WriteBytes(app->ProgramFile(QString::fromLatin1(campaign->logFile)),
                              QByteArray("\xFF\xFE"
                                         "1\0"
                                         "0\0\r\0\n\0",
                                         10));
        app->controls.SetTicked(campaign->checkLogBox, true);
        EXPECT_TRUE(check.fails(*app, *campaign)) << campaign->what;
        EXPECT_TRUE(QString::fromUtf16(check.message).contains(u"is written in UTF-16"_s)) << campaign->what;
        app->controls.SetTicked(campaign->checkLogBox, false);
        EXPECT_FALSE(check.fails(*app, *campaign)) << campaign->what;
    }
}

// A refused start has silenced the browsers and lifted the cover already.
TEST_F(StartChecksTest, ARefusedStartShowsAQuietBrowser) {
    app->controls.SetItems("lstFriendIDs"_L1, {});
    app->WebBrowser1().SetSilent(false);
    app->webHide().SetSilent(false);
    app->webHide().ZOrder(0);
    app->commands.Run(u"piccmdAddFriends_Click"_s);
    EXPECT_EQ(dialogs.messages.size(), 1u);
    EXPECT_TRUE(app->WebBrowser1().Silent());
    EXPECT_TRUE(app->webHide().Silent());
    EXPECT_EQ(app->webHide().Position(), 1);
}

} // namespace
} // namespace qlm
