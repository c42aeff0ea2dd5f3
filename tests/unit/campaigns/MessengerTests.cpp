// SPDX-License-Identifier: MIT
#include "MessengerTest.h"
#include "campaigns/Campaigns.h"
#include "campaigns/ComposePage.h"
#include "campaigns/SentLog.h"
#include "content/ContentLists.h"
#include "core/ActivityWords.h"
#include "steps/Steps.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

TEST_F(MessengerTest, EverybodyGetsTheirMessageOnce) {
    People({u"1001"_s, u"1002"_s});
    Start();
    EXPECT_EQ(app->Status(), u"Sending message to ID 1001..."_s);
    Finish();
    EXPECT_EQ(Posted(),
              (QStringList{u"1001: Hi Anna | Dear Anna,\nhello"_s, u"1002: Hi Anna | Dear Anna,\nhello"_s}));
    EXPECT_EQ(Log(), (QStringList{u"1001"_s, u"1002"_s}));
    EXPECT_EQ(app->controls.Text("lblMsgSentCount"_L1), u"Messages sent: 2"_s);
    EXPECT_EQ(app->controls.Text("lblMsgTotalToday"_L1), u"Total Today: 2"_s);
    EXPECT_EQ(platform->Settings().GetSetting(u"Counters\\a@example.com"_s, u"Daily Messages Count"_s, {}),
              u"2"_s);
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Finished sending messages."_s});
    EXPECT_TRUE(Lines(u"MessagesLog.open.txt"_s).isEmpty());

    // A second run walks past them without opening a page.
    Browser().TakeVisited();
    Start();
    Finish();
    EXPECT_TRUE(Browser().TakeVisited().isEmpty());
    EXPECT_TRUE(Posted().isEmpty());
    // Unless the user wants it.
    app->controls.SetTicked("chkMsgDontSendAgain"_L1, false);
    Start();
    Finish();
    EXPECT_EQ(Posted().size(), 2);
}

// A page that takes too long over an answer is an error, and no reason to stay with it for ever.
TEST_F(MessengerTest, AStepThatFailsBeforeItsPressIsTakenAgain) {
    People({u"1001"_s});
    bool hasFailed = false;
    app->controls.AddListener([&](const Control& control, Controls::Change, int) {
        if (control.name != "myfraCurrentAction"_L1 || control.text != u"Submitting message..."_s)
            return;
        if (!std::exchange(hasFailed, true))
            throw BrowserError();
    });
    Start();
    Finish();
    EXPECT_TRUE(hasFailed);
    EXPECT_EQ(Posted().size(), 1);
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Finished sending messages."_s});
}

TEST_F(MessengerTest, TheOldLayoutHasAnAddressOfItsOwn) {
    State().blnNewLayout = false;
    People({u"1001"_s});
    world.web.SetPage(OldPage + u"1001"_s, Form(u"1001"_s));
    Start();
    Finish();
    EXPECT_EQ(Browser().TakeVisited().first(), OldPage + u"1001"_s);
    EXPECT_EQ(Posted().size(), 1);
}

TEST_F(MessengerTest, ALimitOfThreeStopsAfterTheThird) {
    for (const QString& period : {u"this session"_s, u"per day"_s}) {
        app->controls.SetTicked("chkMsgDontSendAgain"_L1, false);
        app->controls.SetText("txtMsgStopAt"_L1, u"3"_s);
        app->controls.SetText("cboMSGPerDayOrSession"_L1, period);
        State().arrFriendIDs = {QString()};
        app->controls.SetItems("lstFriendIDs"_L1, {});
        People({u"1001"_s, u"1002"_s, u"1003"_s, u"1004"_s});
        State().lngDailyMsg = 0;
        Posted();
        dialogs.messages.clear();
        Start();
        Finish();
        EXPECT_EQ(Posted().size(), 3) << period.toStdString();
        EXPECT_EQ(State().lngSessionMsg, 3);
        EXPECT_TRUE(dialogs.Texts().contains(u"Your specified limit has been reached"_s));
        EXPECT_TRUE(SaidBeginningWith(u"MSG stop - (MSGSTOP)"_s));
    }
}

TEST_F(MessengerTest, APageWhoseButtonHasAnotherCaptionGivesTheTargetUp) {
    People({u"1001"_s, u"1002"_s});
    app->controls.SetTicked("chkRemoveAfterSent"_L1, true);
    // The page does say "send", so that the step is entered; but no input that the program would press.
    world.web.SetPage(NewPage + u"1001"_s,
                      Form(u"1001"_s, u"Deliver"_s).replace(u"</form>"_s, u"<button>send</button></form>"_s));
    Start();
    Finish();
    EXPECT_EQ(Posted().size(), 1);
    EXPECT_EQ(Log(), QStringList{u"1002"_s});
    EXPECT_EQ(State().lngSessionMsg, 1);
    EXPECT_EQ(State().lngFailedCount, 1);
    EXPECT_TRUE(app->Get<GatheredList>().IsEmpty());
    EXPECT_TRUE(Lines(u"MessagesLog.open.txt"_s).isEmpty());
}

TEST_F(MessengerTest, AMissingConfirmationKeepsTheLogLineAndTheCount) {
    People({u"1001"_s});
    world.web.SetPage(SentPage, u"<html><body>Something else</body></html>"_s);
    SetDelay(60);
    Start();
    const qint64 startMs = platform->Pump().NowMs();
    Finish();
    EXPECT_EQ(Log(), QStringList{u"1001"_s});
    EXPECT_EQ(State().lngSessionMsg, 1);
    // Ten checks of three seconds, and no delay.
    const qint64 seconds = (platform->Pump().NowMs() - startMs) / 1000;
    EXPECT_GE(seconds, 30);
    EXPECT_LT(seconds, 50);
}

TEST_F(MessengerTest, AMessageAfterARequestCountsAndLogsNothing) {
    People({u"1001"_s, u"1002"_s});
    for (const QString& id : {u"1001"_s, u"1002"_s})
        world.web.SetPage(u"http://www.site.example.com/my/friends/addtofriends/"_s + id,
                          u"<html><body>Request Sent!</body></html>"_s);
    app->controls.SetTicked("chkFrSendMessage"_L1, true);
    for (const bool removes : {false, true}) {
        app->controls.SetTicked("chkRemoveAfterSent"_L1, removes);
        app->files.WriteLines(app->ProgramFile(u"FriendsLog.txt"_s), {});
        Posted();
        app->commands.Run(u"piccmdAddFriends_Click"_s);
        Finish();
        EXPECT_EQ(Posted(), (QStringList{u"1001: Hi Anna | Dear Anna,\nhello"_s,
                                         u"1002: Hi Anna | Dear Anna,\nhello"_s}));
        EXPECT_EQ(Lines(u"FriendsLog.txt"_s), (QStringList{u"1001"_s, u"1002"_s}));
        EXPECT_TRUE(Log().isEmpty());
        EXPECT_TRUE(Lines(u"MessagesLog.open.txt"_s).isEmpty());
        EXPECT_EQ(State().lngSessionMsg + State().lngDailyMsg, 0);
        EXPECT_EQ(app->Get<GatheredList>().IsEmpty(), removes);
    }
    EXPECT_EQ(dialogs.Texts(),
              (QStringList{u"Finished sending friend requests."_s, u"Finished sending friend requests."_s}));
}

TEST_F(MessengerTest, WithAFilterTheProfileIsJudgedFirst) {
    People({u"1001"_s, u"1002"_s});
    State().blnNewLayout = false;
    State().blnFilterGenderOff = false;
    State().blnFilterFemale = true;
    for (const auto& [id, gender] : {std::pair(u"1001"_s, u"Male"_s), std::pair(u"1002"_s, u"Female"_s)})
        world.web.SetPage(u"http://www.site.example.com/"_s + id + u"/classic"_s,
                          u"<html><body><p>View My: Pics</p><p>"_s + gender +
                              u"<br>33 years old<br>Last Login: 5/30/2009</p></body></html>"_s);
    Start();
    EXPECT_EQ(app->Status(),
              u"Navigating to ID 1001's profile page to see if it matches your filter settings..."_s);
    QStringList said;
    app->controls.AddListener([&](const Control& control, Controls::Change, int) {
        if (control.name == "myfraCurrentAction"_L1)
            said += control.text;
    });
    Finish();
    EXPECT_TRUE(said.contains(u"ID 1002 matches your filter settings, proceeding to send message..."_s));
    EXPECT_EQ(Browser().TakeVisited(),
              (QStringList{u"http://www.site.example.com/1001/classic"_s,
                           u"http://www.site.example.com/1002/classic"_s, NewPage + u"1002"_s, SentPage}));
    EXPECT_EQ(Log(), QStringList{u"1002"_s});
    EXPECT_TRUE(dialogs.Texts().constLast().contains(u"1 ID's didn't match your filter settings."_s));
}

TEST_F(MessengerTest, ARefusedMessageIsSkippedWithoutCountLogOrDelay) {
    People({u"1001"_s, u"1002"_s});
    world.web.SetPage(NewPage + u"1001"_s,
                      u"<html><body>Sorry, the profile of Anna is only viewable by friends</body></html>"_s);
    SetDelay(300);
    Start();
    const qint64 startMs = platform->Pump().NowMs();
    while (State().strCurrentID == u"1001")
        platform->Pump().RunFor(1000);
    EXPECT_LT(platform->Pump().NowMs() - startMs, 60000);
    Finish();
    EXPECT_EQ(Log(), QStringList{u"1002"_s});
    EXPECT_EQ(State().lngSessionMsg, 1);
    EXPECT_EQ(State().lngFailedCount, 1);
}

TEST_F(MessengerTest, AnAccountWithoutMailPassesOn) {
    People({u"1001"_s, u"1002"_s});
    const QString setUp = u"http://mail.site.example.com/index.cfm?fuseaction=mailsetup.createaccount"_s;
    world.web.SetPage(setUp, u"<html><body>Set up your mail</body></html>"_s);
    world.web.SetRedirect(NewPage + u"1001"_s, setUp);
    Start();
    Finish();
    EXPECT_TRUE(Said(u"LINKFOUND: CREATE EMAIL PAGE - SKIP!"_s));
    EXPECT_EQ(Log(), QStringList{u"1002"_s});
}

TEST_F(MessengerTest, TheSitesDailyLimitStopsTheRunAndTheTargetStays) {
    People({u"1001"_s, u"1002"_s});
    app->controls.SetTicked("chkRemoveAfterSent"_L1, true);
    world.web.SetPage(NewPage + u"1001"_s,
                      u"<html><body>You have exceeded your daily useage</body></html>"_s);
    State().blnDailyLimitHit = false;
    Start();
    Finish(60);
    EXPECT_TRUE(SaidBeginningWith(u"MSG stop - (LF2)"_s)) << State().intPageClass;
    EXPECT_FALSE(State().blnDailyLimitHit);
    EXPECT_EQ(State().arrFriendIDs.ToStringList(), (QStringList{u"1001"_s, u"1002"_s}));
}

TEST_F(MessengerTest, NobodyIsWrittenToWhoCannotBeNoted) {
    People({u"1001"_s, u"1002"_s});
    app->files.WriteLines(app->ProgramFile(u"MessagesLog.txt"_s), {});
    QDir().mkpath(app->ProgramFile(u"MessagesLog.open.txt"_s));
    Start();
    Finish(60);
    EXPECT_TRUE(Posted().isEmpty());
    EXPECT_TRUE(dialogs.Texts().join(u'|').contains(u"can't note whom it is about to send to"_s));
    EXPECT_EQ(State().CurrentAction, QString());
}

// What a kill between the press and the log line leaves.
TEST_F(MessengerTest, WhoIsNotedIsPassedOverAndTold) {
    People({u"1001"_s, u"1002"_s});
    State().strCurrentID = u"1001"_s;
    ASSERT_TRUE(SentLog(*app, &Messages).NoteContact());
    Start();
    Finish();
    EXPECT_EQ(Log(), QStringList{u"1002"_s});
    EXPECT_TRUE(Lines(u"MessagesReport.txt"_s)
                    .join(u'|')
                    .contains(u"Quillmere ended while sending to this one; it may have been sent"_s));
}

TEST_F(MessengerTest, TheNoteStandsBeforeTheClick) {
    People({u"1001"_s});
    QStringList noted;
    Browser().events.beforeNavigate2 = [&](const NavigationRequest& request) {
        if (request.url == SentPage)
            noted = Lines(u"MessagesLog.open.txt"_s) + Log();
        return false;
    };
    Start();
    Finish();
    // By the time that the page asks to be sent, the log line may stand already.
    EXPECT_FALSE(noted.isEmpty());
}

TEST_F(MessengerTest, EachTargetGetsItsOwnLineOfTheList) {
    People({u"1001"_s, u"1002"_s});
    app->controls.SetTicked("optSendFromList(0)"_L1, true);
    app->files.CreateFolder(app->state.ProgramFolder);
    app->files.WriteLines(app->Get<ContentLists>().PathOf(ContentKind::Message),
                          {u"S1&Message=B1&Selected=1"_s, u"S2&Message=B2&Selected=1"_s,
                           u"S3&Message=B3&Selected=1"_s, u"S4&Message=B4&Selected=1"_s});
    Start();
    Finish();
    EXPECT_EQ(Posted(), (QStringList{u"1001: S2 | B2"_s, u"1002: S4 | B4"_s}));
}

TEST_F(MessengerTest, AcceptedFriendsGetTheAcceptersText) {
    State().CurrentAction = u"MSG"_s;
    State().intMsgStep = MessageStep::NextTarget;
    State().strAcceptMode = u"MSG"_s;
    State().intCurrentIDIndex = 4;
    app->controls.SetItems("lstAcceptIDs"_L1, {u"1001"_s, u"1002"_s});
    app->controls.SetText("txtAcceptSubject"_L1, u"Welcome"_s);
    app->controls.SetText("txtAcceptMessage"_L1, u"Thanks &NAME&"_s);
    app->controls.SetText("txtMsgStopAt"_L1, u"1"_s);
    for (const QString& id : {u"1001"_s, u"1002"_s})
        world.web.SetPage(NewPage + id, Form(id));
    FindActivity(ActivityWord::Messages)->stepRoutine(*app);
    for (int i = 0; i < 100 && State().CurrentAction == u"MSG"; ++i)
        platform->Pump().RunFor(1000);
    EXPECT_EQ(Posted(), (QStringList{u"1001: Welcome | Thanks Anna"_s, u"1002: Welcome | Thanks Anna"_s}));
    EXPECT_EQ(State().CurrentAction, u"ACC"_s);
    EXPECT_EQ(State().intAccStep, 3); // its list is being loaded anew
    EXPECT_EQ(State().intCurrentIDIndex, 4);
    EXPECT_EQ(State().lngSessionMsg, 0);
    EXPECT_TRUE(Log().isEmpty());
    EXPECT_TRUE(app->controls.Items("lstAcceptIDs"_L1).isEmpty());
}

TEST_F(MessengerTest, ACaptchaInFrontOfTheFormEndsInATargetGivenUp) {
    People({u"1001"_s, u"1002"_s});
    const QString asks =
        u"<html><body>Please enter the image text <input name='captcha_text'></body></html>"_s;
    SimAnswer answer;
    answer.html = asks;
    world.web.SetAnswer(NewPage + u"1001"_s, answer);
    Start();
    for (int i = 0; i < 60 && !State().blnWaitingForCaptcha; ++i)
        platform->Pump().RunFor(500);
    EXPECT_EQ(app->Status(), u"Waiting for user to enter and submit CAPTCHA..."_s);
    // The user answers, and the form comes.
    world.web.SetPage(NewPage + u"1001"_s, Form(u"1001"_s));
    Browser().Browse(NewPage + u"1001"_s);
    Finish();
    EXPECT_EQ(Log(), QStringList{u"1002"_s});
    EXPECT_EQ(State().lngFailedCount, 1);
    EXPECT_TRUE(Lines(u"MessagesReport.txt"_s)
                    .join(u'|')
                    .contains(u"A CAPTCHA stood in front of the page that sends it"_s));
}

// A page that is asked and doesn't answer in time, as it may on a machine under load.
TEST_F(MessengerTest, APageThatFailsWhileItIsFilledInIsOpenedAnewAndSentOnce) {
    People({u"1001"_s, u"1002"_s});
    bool hasFailed = false;
    app->controls.AddListener([&](const Control& control, Controls::Change, int) {
        if (control.name == "myfraCurrentAction"_L1 && control.text == u"Submitting message..."_s &&
            !std::exchange(hasFailed, true))
            throw BrowserError();
    });
    Start();
    Finish();
    EXPECT_TRUE(hasFailed);
    EXPECT_TRUE(State().CurrentAction.isEmpty());
    EXPECT_EQ(Browser().TakeVisited(), (QStringList{NewPage + u"1001"_s, NewPage + u"1001"_s, SentPage,
                                                    NewPage + u"1002"_s, SentPage}));
    EXPECT_EQ(Posted(), (QStringList{u"1001: Hi Anna | Dear Anna,\nhello"_s,
                                     u"1002: Hi Anna | Dear Anna,\nhello"_s}));
    EXPECT_EQ(Log(), (QStringList{u"1001"_s, u"1002"_s}));
}

TEST_F(MessengerTest, ASpanIsPressedAgainOnceItsButtonIsAwake) {
    People({u"1001"_s});
    world.web.SetPage(
        NewPage + u"1001"_s,
        u"<html><body>Save Draft<button id=butbtnSend disabled>send</button>"
        "<span id=spanbtnSend data-on-click=\"append #log pressed; remove #butbtnSend\">Send</span>"
        "<p id=log></p></body></html>"_s);
    Start();
    for (int i = 0; i < 20 && Log().isEmpty(); ++i)
        platform->Pump().RunFor(500);
    platform->Pump().RunFor(5000);
    EXPECT_EQ(Browser().Document().GetElementById(u"log"_s).InnerText(), u"pressed"_s);
    EXPECT_EQ(State().lngSessionMsg, 1);
}

TEST_F(MessengerTest, SkipAfterThePressKeepsTheCountAndTheReport) {
    People({u"1001"_s, u"1002"_s});
    world.web.SetPage(SentPage, u"<html><body>Something else</body></html>"_s);
    Start();
    for (int i = 0; i < 60 && Log().isEmpty(); ++i)
        platform->Pump().RunFor(500);
    app->Get<StopResume>().SkipProfile();
    EXPECT_EQ(State().strCurrentID, u"1002"_s);
    EXPECT_EQ(State().lngSessionMsg, 1);
    EXPECT_EQ(State().lngFailedCount, 0);
    EXPECT_TRUE(Lines(u"MessagesReport.txt"_s).join(u'|').contains(u"sent\t1\t"_s));
}

// Every design of the compose page, by the names of its fields.
TEST_F(MessengerTest, EveryPairOfFieldNamesIsFilled) {
    const QString compose =
        u"ctl00_ctl00_ctl00_cpMain_cpMain_messagingMain_ComposeMessage_sendMessageCommonControl_"_s;
    const QStringList names{u"Subject"_s,
                            u"Mailbody"_s,
                            u"ctl00_ctl00_Main_Main_sendMessageControl_subjectTextBox"_s,
                            u"ctl00_ctl00_Main_Main_sendMessageControl_bodyTextBox"_s,
                            u"ctl00$ctl00$Main$messagingMain$SendMessage_Skin$subjectTextBox"_s,
                            u"ctl00$ctl00$Main$messagingMain$SendMessage_Skin$bodyTextBox"_s,
                            u"ctl00$ctl00$Main$messagingMain$SendMessage$subjectTextBox"_s,
                            u"ctl00$ctl00$Main$messagingMain$SendMessage$bodyTextBox"_s,
                            u"ctl00$ctl00$ctl00$cpMain$cpMain$messagingMain$SendMessage$subjectTextBox"_s,
                            u"ctl00$ctl00$ctl00$cpMain$cpMain$messagingMain$SendMessage$bodyTextBox"_s,
                            compose + u"txtSubject"_s,
                            compose + u"ctl00"_s,
                            compose + u"ctl01"_s};
    QString html;
    for (const QString& name : names)
        html += u"<input name='"_s + name + u"'>"_s;
    Show(html + u"<input name=other value=kept>"_s);
    const Document page = Browser().Document();
    TypeMessage(page, {u"the subject"_s, u"the body"_s}, false);
    for (const QString& name : names)
        EXPECT_EQ(page.GetElementsByName(name).front().Value(),
                  name.contains(u"ubject"_s) ? u"the subject"_s : u"the body"_s)
            << name.toStdString();
    EXPECT_EQ(page.GetElementsByName(u"other"_s).front().Value(), u"kept"_s);
}

TEST_F(MessengerTest, TheEditorGetsTheTextInItsSourceView) {
    Show(u"<input id=cpMain_cpMain_ctl03_sendMessageCommonControl_txtSubject>"
         "<textarea name=first></textarea><textarea id=Ed_editsourcearea></textarea><textarea "
         "name=Ed></textarea>"
         "<div id=Ed_editsource><a id=toggle data-on-click='append #log toggled'>HTML</a></div>"
         "<p id=log></p>"_s);
    const Document page = Browser().Document();
    TypeMessage(page, {u"S"_s, u"one\r\ntwo"_s}, true);
    EXPECT_EQ(page.GetElementById(u"cpMain_cpMain_ctl03_sendMessageCommonControl_txtSubject"_s).Value(),
              u"S"_s);
    EXPECT_EQ(page.GetElementById(u"Ed_editsourcearea"_s).InnerText(), u"one<br>\ntwo"_s);
    EXPECT_EQ(page.GetElementById(u"log"_s).InnerText(), u"toggled"_s);
}

TEST_F(MessengerTest, AnEditorFrameGetsTheTextInItsBody) {
    const QString compose =
        u"ctl00_ctl00_ctl00_cpMain_cpMain_messagingMain_ComposeMessage_sendMessageCommonControl_"_s;
    for (const QString& frame : {u"ctl00_f"_s, u"ctl01_f"_s}) {
        Show(u"<iframe name='other' srcdoc='<body>kept</body>'></iframe><iframe name='"_s + compose + frame +
             u"' srcdoc='<body>old</body>'></iframe>"_s);
        const Document page = Browser().Document();
        TypeMessage(page, {u"S"_s, u"<b>new</b>"_s}, false);
        EXPECT_EQ(page.FrameDocument(compose + frame).Body().InnerHTML().toLower(), u"<b>new</b>"_s)
            << frame.toStdString();
        EXPECT_EQ(page.FrameDocument(u"other"_s).BodyText(), u"kept"_s);
    }
}

TEST_F(MessengerTest, WhichButtonSends) {
    struct Row {
        QString body;
        QString id;
        bool isSpan;
    };
    for (const Row& row : {Row{u"<input id=a value='-Send-'>"_s, u"a"_s, false},
                           Row{u"<input id=x value=resend><input id=b value=SEND>"_s, u"b"_s, false},
                           Row{u"<span id=spanbtnSend>x</span><input id=c value=send>"_s, u"c"_s, false},
                           Row{u"<span id=spanbtnSend>x</span>"_s, u"spanbtnSend"_s, true},
                           Row{u"<button id=d>send</button>"_s, QString(), false}}) {
        Show(row.body);
        const SendButton button = FindSendButton(Browser().Document());
        EXPECT_EQ(button.element.Id(), row.id);
        EXPECT_EQ(button.isSpan, row.isSpan) << row.body.toStdString();
    }
}

TEST_F(MessengerTest, ARequestPageThatWasLeftIsLoadedAgain) {
    for (const bool waits : {true, false}) {
        State().CurrentAction = u"MSG"_s;
        State().intMsgStep = MessageStep::AfterSend;
        State().strFRResumeURL = SentPage;
        State().blnFRWaitRequestSent = waits;
        State().strLinkValue.clear();
        FindActivity(ActivityWord::Messages)->stepRoutine(*app);
        EXPECT_EQ(State().CurrentAction, waits ? u"FR"_s : QString());
        EXPECT_EQ(State().strLinkValue, waits ? u"Request Sent!"_s : QString());
        EXPECT_EQ(State().intMsgStep, 0);
        EXPECT_EQ(State().strFRResumeURL, QString());
        platform->Pump().RunFor(200);
        EXPECT_EQ(Address(), SentPage);
        app->Get<StopResume>().StopAll(StopReason::WindowStop);
    }
}

} // namespace
} // namespace qlm
