// SPDX-License-Identifier: MIT
// The same forms where no script runs: what stands in for the scripts does what they do.
#include "platform/sim/SimBrowser.h"
#include "practice/BulletinDesigns.h"
#include "practice/CommentDesigns.h"
#include "practice/ComposeDesigns.h"
#include "practice/PracticeSite.h"
#include "practice/StatusDesigns.h"
#include "tests/support/PrintText.h"
#include "tests/support/SimulatedSite.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

namespace qlm {

using namespace Qt::Literals::StringLiterals;
using practice::BulletinDesign;
using practice::CommentDesign;
using practice::ComposeDesign;
using practice::Editor;
using practice::StatusDesign;

namespace {

constexpr qint64 Target = 100003;
const QString Body = u"Hello,\r\nFriday"_s;

class SimulatedForms : public ::testing::Test {
protected:
    SimulatedForms() {
        web.responder = [this](const SimRequest& request) { return AnswerOf(site, request); };
        Control(u"message-share sent 100"_s);
        Control(u"comment-share posted 100"_s);
        Open(u"http://www.myspace.example.com/"_s);
        Named(u"ctl00$Main$Email_Textbox"_s).SetValue(u"a@example.com"_s);
        Named(u"ctl00$Main$Password_Textbox"_s).SetValue(u"secret"_s);
        Named(u"ctl00$Main$loginBtn"_s).Click();
        Settle();
        site.TakeJournal();
    }
    ~SimulatedForms() override { EXPECT_EQ(web.problems, QStringList()); }

    void Control(const QString& line) { EXPECT_EQ(site.Control(line), QString()); }
    void Settle(qint64 milliseconds = 250) { pump.RunFor(milliseconds); }
    void Open(const QString& url) {
        browser.Navigate(url);
        Settle();
    }
    QString Text() { return browser.Document().BodyText(); }
    QString Markup() { return browser.Document().BodyHTML(); }
    Element ById(const QString& id) { return browser.Document().GetElementById(id); }
    Element Named(const QString& name) {
        const auto found = browser.Document().GetElementsByName(name);
        return found.empty() ? Element() : found.front();
    }
    void Type(Editor editor, const QString& name) {
        if (!HasSource(editor))
            return Named(name).SetValue(Body);
        ById(name + u"_editsource"_s).Tags(u"a"_s).front().Click();
        ById(name + u"_editsourcearea"_s).SetInnerText(Body);
    }
    void ShowCompose(const ComposeDesign& design) {
        Control(u"compose all "_s + design.name.toString());
        Open(FormAddress(design, Target));
        Named(design.subject.toString()).SetValue(u"Hi"_s);
        Type(design.editor, design.body.toString());
    }
    bool Press(const QString& caption) {
        for (const QString& tag : {u"input"_s, u"button"_s})
            for (const Element& button : browser.Document().GetElementsByTagName(tag)) {
                const QString text = tag == u"input" ? button.Value() : button.InnerText();
                if (text.trimmed().compare(caption, Qt::CaseInsensitive) != 0 ||
                    button.OuterHTML().contains(u"DISPLAY: NONE"_s, Qt::CaseInsensitive) ||
                    button.OuterHTML().contains(u"type=\"hidden\""_s))
                    continue;
                button.Click();
                return true;
            }
        return false;
    }
    // On what stands inside of the link, as some do.
    void ClickLink(const QString& caption) {
        for (const Element& link : browser.Document().Links()) {
            if (link.InnerText().trimmed() != caption)
                continue;
            const std::vector<Element> inside = link.Tags(u"*"_s);
            (inside.empty() ? link : inside.front()).Click();
            return;
        }
        ADD_FAILURE() << "no link " << caption.toStdString();
    }
    static QString HomeAddress(const StatusDesign& design) {
        return design.older ? u"http://home.myspace.example.com/"_s
                            : u"http://home.myspace.example.com/index.cfm?fuseaction=home&f=7"_s;
    }
    QStringList Arrived() {
        return site.TakeJournal().filter(
            QRegularExpression(u"^(messaged|commented|posted|deleted|accepted|denied|cancelled)[ -]"_s));
    }

    practice::PracticeSite site;
    VirtualClock clock;
    SimPump pump{clock};
    SimWeb web;
    SimBrowser browser{web, pump};
};

} // namespace

TEST_F(SimulatedForms, EveryComposePageSendsItsText) {
    for (const ComposeDesign& design : practice::ComposeDesigns()) {
        SCOPED_TRACE(design.name.toString().toStdString());
        ShowCompose(design);
        if (const Element span = ById(u"spanbtnSend"_s)) {
            span.Click();
            Settle(2000);
            if (const Element again = ById(u"spanbtnSend"_s))
                again.Click();
        } else {
            EXPECT_TRUE(Press(u"-send-"_s) || Press(u"send"_s) || Press(u"deliver"_s));
        }
        Settle(5000);
        EXPECT_EQ(Arrived(), QStringList{uR"(messaged 900001 100003 "Hi" "Hello,\r\nFriday")"_s});
        const bool isSilent = design.reply == ComposeDesign::Reply::Silent;
        EXPECT_TRUE(Text().contains(isSilent ? u"that is all"_s : u"Your message has been sent"_s));
    }
}

TEST_F(SimulatedForms, ASleepingButtonSendsAtItsSecondPressOnly) {
    Control(u"compose all span-asleep"_s);
    Open(u"http://www.myspace.example.com/my/mail/new?t=100003"_s);
    EXPECT_TRUE(ById(u"butbtnSend"_s).HasAttribute(u"disabled"_s));
    ById(u"spanbtnSend"_s).Click();
    Settle(2000);
    EXPECT_FALSE(ById(u"butbtnSend"_s).HasAttribute(u"disabled"_s));
    EXPECT_TRUE(site.TakeJournal().isEmpty());
    ById(u"spanbtnSend"_s).Click();
    Settle();
    EXPECT_EQ(site.TakeJournal(), QStringList{u"message 900001 100003 empty"_s});
}

TEST_F(SimulatedForms, ALateDraftButtonStandsNowhereBeforeItsTime) {
    Control(u"compose all source-draft-late"_s);
    Open(u"http://www.myspace.example.com/my/mail/new?t=100003"_s);
    EXPECT_FALSE(Markup().contains(u"Save Draft"_s));
    Settle(2500);
    EXPECT_TRUE(Markup().contains(u"value=\"Save Draft\""_s));
}

TEST_F(SimulatedForms, EveryCommentFormPostsItsText) {
    for (const CommentDesign& design : practice::CommentDesigns()) {
        SCOPED_TRACE(design.name.toString().toStdString());
        if (design.after == CommentDesign::After::Back)
            continue;
        Control(u"comment-form all "_s + design.name.toString());
        Open(FormAddress(design, Target));
        EXPECT_EQ(Named(design.mark.toString()).IsNull(), design.mark.isEmpty() || design.lateMark);
        Settle(2500);
        EXPECT_EQ(Named(design.mark.toString()).IsNull(), design.mark.isEmpty());
        Type(design.editor, design.box.toString());
        if (!Press(u"post a comment"_s) && !Press(u"post"_s) && !Press(u"share"_s))
            ById(u"ctl00_cpMain_postComment_postcommentImageButton"_s).Click();
        Settle();
        EXPECT_EQ(Named(u"confirmComment"_s).HasAttribute(u"disabled"_s),
                  design.after == CommentDesign::After::ConfirmAsleep);
        Settle(6500);
        while (Press(u"post a comment"_s))
            Settle();
        EXPECT_TRUE(Text().contains(u"Your comment has been posted!"_s));
        EXPECT_EQ(Arrived(), QStringList{uR"(commented 900001 100003 "Hello,\r\nFriday")"_s});
    }
}

TEST_F(SimulatedForms, TheBoxGrowsByItselfUnlessItIsShyAndLosesItsHintWithTheText) {
    Control(u"comment-outcome 100003 no-html"_s);
    for (const QString& design : {u"box"_s, u"box-shy"_s}) {
        Control(u"comment-form all "_s + design);
        Open(u"http://www.myspace.example.com/100003/comments"_s);
        EXPECT_TRUE(Text().contains(u"Post a comment..."_s));
        Settle(1000);
        const bool grows = ById(u"entry"_s).Read(ElementText::ClassName).contains(u"absolute"_s);
        EXPECT_EQ(grows, design == u"box");
    }
    ById(u"newComment"_s).Click();
    EXPECT_TRUE(ById(u"entry"_s).Read(ElementText::ClassName).contains(u"absolute"_s));
    ById(u"newComment"_s).SetValue(u"<b>bold</b>"_s);
    EXPECT_FALSE(Text().contains(u"Post a comment..."_s));
    EXPECT_TRUE(Text().contains(u"HTML not allowed"_s));
}

TEST_F(SimulatedForms, EveryBulletinFormPostsItsText) {
    for (const BulletinDesign& design : practice::BulletinDesigns()) {
        SCOPED_TRACE(design.name.toString().toStdString());
        Control(u"seed 1"_s);
        Control(u"bulletin-form all "_s + design.name.toString());
        Open(u"http://www.myspace.example.com/bulletins/new"_s);
        if (design.hasSubject)
            Named(practice::bulletinSubject.toString()).SetValue(u"Hi"_s);
        Type(design.editor, BodyOf(design).toString());
        EXPECT_TRUE(Press(u"post"_s) || Press(u"publish"_s));
        Settle();
        Press(u"post bulletin"_s);
        Settle();
        const bool isSilent = design.after == BulletinDesign::After::Silent;
        EXPECT_TRUE(Text().contains(isSilent ? u"that is all"_s : u"Your bulletin has been posted"_s));
        const bool takesComments = design.comments == BulletinDesign::Comments::Ticked;
        EXPECT_EQ(Arrived(), QStringList{uR"(posted-bulletin 900001 5001 %1 "%2" "Hello,\r\nFriday")"_s.arg(
                                 takesComments ? u"comments"_s : u"no-comments"_s,
                                 design.hasSubject ? u"Hi"_s : QString())});
    }
}

TEST_F(SimulatedForms, ASecondPressLeavesTheSourceViewOpenOnBulletins) {
    Open(u"http://www.myspace.example.com/bulletins/new"_s);
    const QString name = BodyOf(practice::BulletinDesigns().front()).toString();
    for (int i = 0; i < 2; ++i)
        ById(name + u"_editsource"_s).Tags(u"a"_s).front().Click();
    EXPECT_EQ(ById(name + u"_open"_s).Value(), u"1"_s);
}

TEST_F(SimulatedForms, PostedBulletinsAreDeletedInEveryDesignThatHasBoxes) {
    for (const BulletinDesign& design : practice::BulletinDesigns()) {
        SCOPED_TRACE(design.name.toString().toStdString());
        Control(u"seed 1"_s);
        Control(u"bulletin-form all "_s + design.name.toString());
        Control(u"bulletins 900001 2"_s);
        Open(u"http://www.myspace.example.com/bulletins/900001"_s);
        EXPECT_EQ(Named(u"messageID"_s).IsNull(), design.choice != BulletinDesign::Choice::Boxes);
        Settle(2500);
        if (design.choice != BulletinDesign::Choice::None)
            Named(u"messageID"_s).Click();
        EXPECT_TRUE(Press(u"delete"_s));
        Settle();
        EXPECT_EQ(Arrived(), design.choice == BulletinDesign::Choice::None
                                 ? QStringList()
                                 : QStringList{u"deleted-bulletin 900001 5002 \"Old news 2\""_s});
    }
}

TEST_F(SimulatedForms, EveryStatusBoxThatHasAButtonPostsItsText) {
    for (const StatusDesign& design : practice::StatusDesigns()) {
        SCOPED_TRACE(design.name.toString().toStdString());
        Control(u"seed 1"_s);
        Control(u"status-form all "_s + design.name.toString());
        Open(HomeAddress(design));
        EXPECT_EQ(ById(u"spStatus"_s).IsNull(), design.isLate);
        Settle(2500);
        ById(u"spStatus"_s).SetValue(u"in the studio"_s);
        EXPECT_EQ(ById(u"status_submitBtn"_s).IsNull(), !design.hasShare);
        if (const Element button = ById(u"status_submitBtn"_s))
            button.Click();
        Settle();
        EXPECT_EQ(Arrived(), design.hasShare ? QStringList{u"posted-status 900001 5001 \"in the studio\""_s}
                                             : QStringList());
    }
}

TEST_F(SimulatedForms, TheOlderStreamIsNarrowedDownByItsListAndDeletesAfterAQuestion) {
    Control(u"statuses 900001 2"_s);
    Open(u"http://home.myspace.example.com/"_s);
    EXPECT_FALSE(Markup().contains(u"Delete This Update"_s));
    ById(u"filterStreamByFriend"_s).SetValue(u"1"_s);
    ById(u"filterStreamByFriend"_s).FireChange();
    Settle();
    EXPECT_FALSE(Press(u"yes"_s));
    ClickLink(u"Delete This Update"_s);
    EXPECT_TRUE(Press(u"yes"_s));
    Settle();
    EXPECT_EQ(Arrived(), QStringList{u"deleted-status 900001 5002 \"This was number 2.\""_s});
}

TEST_F(SimulatedForms, TheNewerStreamIsGreyWhileItLoadsAndDeletesAfterAQuestion) {
    Control(u"statuses 900001 2"_s);
    Open(u"http://home.myspace.example.com/index.cfm?fuseaction=home&f=7"_s);
    const QString loading = u"streamContainer listViewContainer MSIcon loadingIconWhiteLight"_s;
    for (const QString& filter : {u"Just me"_s, u"Status"_s}) {
        EXPECT_FALSE(Markup().contains(loading));
        ClickLink(filter);
        Settle(600);
        EXPECT_TRUE(Markup().contains(loading));
        Settle(600);
    }
    EXPECT_FALSE(Press(u"ok"_s));
    ClickLink(u"Delete this update"_s);
    EXPECT_TRUE(Press(u"ok"_s));
    Settle();
    EXPECT_EQ(Arrived(), QStringList{u"deleted-status 900001 5002 \"This was number 2.\""_s});
}

TEST_F(SimulatedForms, EachRequestIsAcceptedInPlace) {
    Control(u"incoming 900001 3"_s);
    Control(u"accept-share slow 100"_s);
    Open(u"http://www.myspace.example.com/my/requests/friendrequest?viewall=1"_s);
    ById(u"selectAll"_s).Click();
    QStringList expected;
    for (const Element& box : browser.Document().GetElementsByName(u"request"_s))
        if (box.HasAttribute(u"mode"_s)) {
            EXPECT_FALSE(box.GetAttribute(u"checked"_s).isEmpty());
            expected += u"accepted 900001 "_s + box.GetAttribute(u"mode"_s).section(u',', 1, 1);
        }
    for (const qsizetype accepted : {1, 2, 3}) {
        EXPECT_TRUE(Press(u"accept"_s));
        Settle(4900);
        EXPECT_EQ(Text().count(u"is now your friend"_s), accepted - 1);
        Settle(200);
        EXPECT_EQ(Text().count(u"is now your friend"_s), accepted);
    }
    EXPECT_FALSE(Press(u"accept"_s));
    EXPECT_EQ(Arrived(), expected);
}

TEST_F(SimulatedForms, WhoeverIsTickedIsAcceptedByTheScriptOfTheOlderPage) {
    Control(u"incoming 900001 26"_s);
    Open(u"http://messaging.myspace.example.com/index.cfm?fuseaction=mail.friendRequestsV3&viewall=1"_s);
    for (const Element& link : browser.Document().Links())
        if (link.Href().contains(u"javascript: requestlist.GoToPage('2',"_s)) {
            link.Click();
            break;
        }
    Settle();
    EXPECT_TRUE(Text().contains(u"Listing 26-26 of 26"_s));
    ById(u"chktop"_s).Click();
    browser.Navigate(u"Javascript: function bla(){requestlist.ProcessMultiAction('approve');}; bla()"_s);
    Settle();
    EXPECT_EQ(Arrived().size(), 1);
    EXPECT_TRUE(Text().contains(u"is now your friend"_s));
    EXPECT_TRUE(Text().contains(u"Listing 1-25 of 25"_s));
}

TEST_F(SimulatedForms, ARequestIsDeniedInPlaceOnTheOlderPage) {
    Control(u"incoming 900001 1"_s);
    Open(u"http://messaging.myspace.example.com/index.cfm?fuseaction=mail.friendRequestsV3&viewall=1"_s);
    for (const Element& span : browser.Document().GetElementsByTagName(u"span"_s))
        if (span.InnerText() == u"Deny") {
            span.Click();
            break;
        }
    Settle(400);
    EXPECT_TRUE(Text().contains(u"You have denied a friend request from"_s));
    EXPECT_EQ(Arrived().size(), 1);
}

TEST_F(SimulatedForms, TheLastPageOfTheNewerListIsALinkAway) {
    Control(u"incoming 900001 60"_s);
    Open(u"http://www.myspace.example.com/my/requests/friendrequest?viewall=1"_s);
    for (const Element& link : browser.Document().Links())
        if (link.Href().contains(u"pagingNavigation1$LastRecordDirectPageLinkButton"_s)) {
            EXPECT_EQ(link.InnerText(), u"3"_s);
            link.Click();
            break;
        }
    Settle();
    EXPECT_TRUE(Text().contains(u"Listing 51-60 of 60"_s));
}

TEST_F(SimulatedForms, PendingRequestsAreTakenBackOnTheDesktopPage) {
    Control(u"sent-requests 900001 2"_s);
    Open(u"http://messaging.myspace.example.com/index.cfm?fuseaction=mail.pendingFriendRequests"_s);
    EXPECT_TRUE(Text().contains(u"Cancel Request"_s));
    ById(u"chktop"_s).Click();
    ById(u"spancanceltop"_s).Click();
    Settle();
    EXPECT_TRUE(Text().contains(u"Your sent request has been cancelled"_s));
    EXPECT_EQ(Arrived().size(), 2);
}

TEST_F(SimulatedForms, ASentRequestIsTakenBackOnTheMobilePages) {
    Control(u"sent-requests 900001 1"_s);
    Open(u"http://m.myspace.example.com/signout.wap?bfd=offdeck"_s);
    ById(u"emailTextBox"_s).SetInnerText(u"a@example.com"_s);
    ById(u"passwordTextBox"_s).SetInnerText(u"secret"_s);
    ById(u"loginCommand"_s).Click();
    Settle();
    EXPECT_TRUE(Text().contains(u"My Profile"_s));
    Open(u"http://m.myspace.example.com/messaging/sentrequests.wap?bfd=offdeck"_s);
    for (const Element& link : browser.Document().Links())
        if (link.Href().contains(u"pvm="_s)) {
            link.Click();
            break;
        }
    Settle();
    ClickLink(u"Cancel Request"_s);
    Settle();
    EXPECT_TRUE(Text().contains(u"Are you sure you want to cancel"_s));
    EXPECT_TRUE(Press(u"ok"_s));
    Settle();
    EXPECT_TRUE(Text().contains(u"There are 0 sent requests"_s));
    EXPECT_EQ(Arrived().size(), 1);
    Open(u"http://www.myspace.example.com/"_s);
    EXPECT_TRUE(Text().contains(u"Sign Out"_s));
}

} // namespace qlm
