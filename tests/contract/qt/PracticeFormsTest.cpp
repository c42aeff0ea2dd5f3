// SPDX-License-Identifier: MIT
// The practice site's forms on the real engine, where their scripts run.
#include "EngineWorld.h"
#include "practice/BulletinDesigns.h"
#include "practice/CommentDesigns.h"
#include "practice/ComposeDesigns.h"
#include "practice/PracticeSite.h"
#include "practice/StatusDesigns.h"
#include "practice/server/ProxyServer.h"

#include <QNetworkProxy>
#include <QRegularExpression>
#include <thread>

namespace qlm {

using namespace Qt::Literals::StringLiterals;
using practice::BulletinDesign;
using practice::CommentDesign;
using practice::ComposeDesign;
using practice::Editor;
using practice::StatusDesign;

namespace {

constexpr qint64 Target = 100003;
const QString Subject = u"Tour \"dates\""_s;
const QString Body = u"Hello,\r\nFriday \U0001F600"_s;

class PracticeForms : public EngineTest {
protected:
    PracticeForms() : m_server(m_site), m_port(m_server.Bind(0)), m_serving([this] { m_server.Run(); }) {
        QNetworkProxy::setApplicationProxy({QNetworkProxy::HttpProxy, u"127.0.0.1"_s, quint16(m_port)});
        Control(u"message-share sent 100"_s);
        Control(u"comment-share posted 100"_s);
        SignIn();
    }
    ~PracticeForms() override {
        browser.reset();
        m_server.Stop();
        m_serving.join();
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
    }

    void Control(const QString& line) { ASSERT_EQ(m_site.Control(line), QString()); }
    void SignIn() {
        Show(u"http://www.myspace.example.com/"_s);
        Named(u"ctl00$Main$Email_Textbox"_s).SetValue(u"a@example.com"_s);
        Named(u"ctl00$Main$Password_Textbox"_s).SetValue(u"secret"_s);
        Named(u"ctl00$Main$loginBtn"_s).Click();
        ASSERT_TRUE(WaitForText(u"Sign Out"_s));
        m_site.TakeJournal();
    }
    void Show(const QString& url) {
        browser->Navigate(url);
        ASSERT_TRUE(WaitUntil([this] { return browser->ReadyState() == 4; }));
    }
    Element Named(const QString& name) {
        const auto found = browser->Document().GetElementsByName(name);
        return found.empty() ? Element() : found.front();
    }
    Element ById(const QString& id) { return browser->Document().GetElementById(id); }
    void TypeIntoFrame(const QString& name, const QString& text) {
        QString literal = text;
        literal.replace(u"\r"_s, u"\\r"_s).replace(u"\n"_s, u"\\n"_s);
        browser->Navigate(
            u"javascript:document.getElementById('%1_f').contentDocument.body.innerHTML='%2';void 0"_s.arg(
                name, literal));
        PumpFor(100);
    }
    // As a user does who knows the page: whatever the editor is, the text goes in.
    void Type(Editor editor, const QString& name, const QString& text) {
        if (editor == Editor::Plain)
            Named(name).SetValue(text);
        if (editor == Editor::Frame)
            TypeIntoFrame(name, text);
        if (!HasSource(editor))
            return;
        ById(name + u"_editsource"_s).Tags(u"a"_s).front().Click();
        ById(name + u"_editsourcearea"_s).SetInnerText(text);
    }
    void ShowCompose(const ComposeDesign& design) {
        Control(u"compose all "_s + design.name.toString());
        Show(FormAddress(design, Target));
        Named(design.subject.toString()).SetValue(Subject);
        Type(design.editor, design.body.toString(), Body);
    }
    // Presses the first button of that caption, an input or a button element that is shown.
    bool Press(const QString& caption) {
        for (const QString& tag : {u"input"_s, u"button"_s})
            for (const Element& button : browser->Document().GetElementsByTagName(tag)) {
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
        for (const Element& link : browser->Document().Links()) {
            if (link.InnerText().trimmed() != caption)
                continue;
            const std::vector<Element> inside = link.Tags(u"*"_s);
            (inside.empty() ? link : inside.front()).Click();
            return;
        }
        ADD_FAILURE() << "no link " << caption.toStdString();
    }
    // What is posted from here on is all that counts.
    void StartAnew() {
        Control(u"seed 1"_s);
        m_seen = m_site.Journal().size();
    }
    bool IsLoading() {
        return browser->Document().BodyHTML().contains(
            u"streamContainer listViewContainer MSIcon loadingIconWhiteLight"_s);
    }
    // Since the count was last taken.
    QStringList Arrived() {
        return m_site.Journal().mid(m_seen).filter(
            QRegularExpression(u"^(messaged|commented|posted|deleted|accepted|denied|cancelled)[ -]"_s));
    }
    bool WaitForArrival() {
        return WaitUntil([this] { return !Arrived().isEmpty(); });
    }

    practice::PracticeSite m_site;
    practice::ProxyServer m_server;
    int m_port;
    std::thread m_serving;
    qsizetype m_seen = 0;
};

// What a rich editor makes of the text that was typed into it.
QString AsSent(const ComposeDesign& design) {
    switch (design.editor) {
    case Editor::Plain:
        return uR"("Hello,\r\nFriday 😀")"_s;
    case Editor::Source:
    case Editor::Views:
        return uR"("Hello,\r\nFriday &#128512;")"_s;
    case Editor::Frame:
        break;
    }
    return design.breaks == practice::Breaks::Br ? uR"("Hello,<br>Friday &#128512;")"_s
                                                 : uR"("Hello,<div>Friday &#128512;</div>")"_s;
}

// A post without a form keeps the line end of the page.
QString AsSent(const CommentDesign& design) {
    if (design.name == u"box-live")
        return uR"("Hello,\nFriday 😀")"_s;
    return design.editor == Editor::Plain ? uR"("Hello,\r\nFriday 😀")"_s
                                          : uR"("Hello,\r\nFriday &#128512;")"_s;
}

const ComposeDesign& Compose(const QString& name) {
    for (const ComposeDesign& design : practice::ComposeDesigns())
        if (design.name == name)
            return design;
    throw std::logic_error("no such design");
}

} // namespace

TEST_F(PracticeForms, EveryComposePageSendsWhatItsEditorMakesOfTheText) {
    for (const ComposeDesign& design : practice::ComposeDesigns()) {
        SCOPED_TRACE(design.name.toString().toStdString());
        m_seen = m_site.Journal().size();
        ShowCompose(design);
        if (const Element span = ById(u"spanbtnSend"_s)) {
            span.Click();
            PumpFor(1500);
            if (const Element again = ById(u"spanbtnSend"_s))
                again.Click();
        } else {
            EXPECT_TRUE(Press(u"-send-"_s) || Press(u"send"_s) || Press(u"deliver"_s));
        }
        EXPECT_TRUE(WaitForArrival());
        PumpFor(300);
        EXPECT_EQ(Arrived(),
                  QStringList{u"messaged 900001 100003 \"Tour \\\"dates\\\"\" "_s + AsSent(design)});
        const bool isSilent = design.reply == ComposeDesign::Reply::Silent;
        EXPECT_TRUE(WaitForText(isSilent ? u"that is all"_s : u"Your message has been sent"_s));
    }
}

TEST_F(PracticeForms, ASleepingButtonSendsAtItsSecondPressOnly) {
    ShowCompose(Compose(u"span-asleep"_s));
    EXPECT_TRUE(ById(u"butbtnSend"_s).HasAttribute(u"disabled"_s));
    ById(u"spanbtnSend"_s).Click();
    EXPECT_TRUE(WaitUntil([this] { return !ById(u"butbtnSend"_s).HasAttribute(u"disabled"_s); }));
    PumpFor(600);
    EXPECT_TRUE(Arrived().isEmpty());
    ById(u"spanbtnSend"_s).Click();
    EXPECT_TRUE(WaitForArrival());
}

TEST_F(PracticeForms, ASpanPressedTwiceSendsOnce) {
    ShowCompose(Compose(u"span"_s));
    ById(u"spanbtnSend"_s).Click();
    ById(u"spanbtnSend"_s).Click();
    EXPECT_TRUE(WaitForText(u"Your message has been sent"_s));
    PumpFor(800);
    EXPECT_EQ(Arrived().size(), 1);
}

TEST_F(PracticeForms, ALateDraftButtonStandsNowhereBeforeItsTime) {
    ShowCompose(Compose(u"source-draft-late"_s));
    EXPECT_FALSE(browser->Document().BodyHTML().contains(u"Save Draft"_s));
    EXPECT_TRUE(
        WaitUntil([this] { return browser->Document().BodyHTML().contains(u"value=\"Save Draft\""_s); }));
}

TEST_F(PracticeForms, EveryCommentFormPostsTheText) {
    for (const CommentDesign& design : practice::CommentDesigns()) {
        SCOPED_TRACE(design.name.toString().toStdString());
        if (design.after == CommentDesign::After::Back)
            continue;
        m_seen = m_site.Journal().size();
        Control(u"comment-form all "_s + design.name.toString());
        Show(FormAddress(design, Target));
        const QString mark = (design.mark.isEmpty() ? design.box : design.mark).toString();
        EXPECT_TRUE(WaitUntil([&] { return !Named(mark).IsNull(); }));
        Type(design.editor, design.box.toString(), Body);
        if (!Press(u"post a comment"_s) && !Press(u"post"_s) && !Press(u"share"_s))
            ById(u"ctl00_cpMain_postComment_postcommentImageButton"_s).Click();
        EXPECT_TRUE(WaitUntil(
            [this] { return Text().contains(u"to confirm"_s) || Text().contains(u"has been posted"_s); }));
        for (int round = 0; round < 2 && Arrived().isEmpty(); ++round) {
            EXPECT_TRUE(WaitUntil([this] {
                const Element button = Named(u"confirmComment"_s);
                return button && !button.HasAttribute(u"disabled"_s);
            }));
            EXPECT_TRUE(Press(u"post a comment"_s));
            EXPECT_TRUE(WaitUntil([this] { return browser->ReadyState() == 4; }));
        }
        EXPECT_TRUE(WaitForText(u"Your comment has been posted!"_s));
        EXPECT_EQ(Arrived(), QStringList{u"commented 900001 100003 "_s + AsSent(design)});
    }
}

TEST_F(PracticeForms, TheBoxGrowsByItselfUnlessItIsShy) {
    const QString grown = u"absolute"_s;
    Control(u"comment-form all box"_s);
    Show(u"http://www.myspace.example.com/100003/comments"_s);
    const auto box = [this] { return ById(u"newComment"_s); };
    EXPECT_TRUE(
        WaitUntil([&] { return box().ParentElement().Read(ElementText::ClassName).contains(grown); }));
    Control(u"comment-form all box-shy"_s);
    Show(u"http://www.myspace.example.com/100003/comments"_s);
    PumpFor(1000);
    EXPECT_FALSE(box().ParentElement().Read(ElementText::ClassName).contains(grown));
    box().Focus();
    EXPECT_TRUE(
        WaitUntil([&] { return box().ParentElement().Read(ElementText::ClassName).contains(grown); }));
}

TEST_F(PracticeForms, TheHintGoesWithTheFirstTextAndMarkupMayNotBeAllowed) {
    Control(u"comment-outcome 100003 no-html"_s);
    Show(u"http://www.myspace.example.com/100003/comments"_s);
    EXPECT_TRUE(Text().contains(u"Post a comment..."_s));
    Named(u"newComment"_s).SetValue(u"plain"_s);
    EXPECT_TRUE(WaitUntil([this] { return !Text().contains(u"Post a comment..."_s); }));
    EXPECT_FALSE(Text().contains(u"HTML not allowed"_s));
    Named(u"newComment"_s).SetValue(u"<b>bold</b>"_s);
    EXPECT_TRUE(WaitForText(u"HTML not allowed"_s));
}

TEST_F(PracticeForms, EveryBulletinFormPostsTheText) {
    for (const BulletinDesign& design : practice::BulletinDesigns()) {
        SCOPED_TRACE(design.name.toString().toStdString());
        StartAnew();
        Control(u"bulletin-form all "_s + design.name.toString());
        Show(u"http://www.myspace.example.com/bulletins/new"_s);
        if (design.hasSubject)
            Named(practice::bulletinSubject.toString()).SetValue(Subject);
        Type(design.editor, BodyOf(design).toString(), Body);
        EXPECT_TRUE(Press(u"post"_s) || Press(u"publish"_s));
        if (design.after == BulletinDesign::After::Confirm) {
            EXPECT_TRUE(WaitForText(u"your friends can read it"_s));
            EXPECT_TRUE(Press(u"post bulletin"_s));
        }
        const bool isSilent = design.after == BulletinDesign::After::Silent;
        EXPECT_TRUE(WaitForText(isSilent ? u"that is all"_s : u"Your bulletin has been posted"_s));
        const bool takesComments = design.comments == BulletinDesign::Comments::Ticked;
        EXPECT_EQ(Arrived(), QStringList{u"posted-bulletin 900001 5001 %1 %2 %3"_s.arg(
                                 takesComments ? u"comments"_s : u"no-comments"_s,
                                 design.hasSubject ? uR"("Tour \"dates\"")"_s : u"\"\""_s,
                                 HasSource(design.editor) ? uR"("Hello,\r\nFriday &#128512;")"_s
                                                          : uR"("Hello,\r\nFriday 😀")"_s)});
    }
}

TEST_F(PracticeForms, ASecondPressLeavesTheSourceViewOfABulletinOpen) {
    Show(u"http://www.myspace.example.com/bulletins/new"_s);
    const QString name = BodyOf(practice::BulletinDesigns().front()).toString();
    const auto press = [&] { ById(name + u"_editsource"_s).Tags(u"a"_s).front().Click(); };
    press();
    ById(name + u"_editsourcearea"_s).SetInnerText(Body);
    press();
    EXPECT_EQ(ById(name + u"_open"_s).Value(), u"1"_s);
    EXPECT_TRUE(ById(name + u"_editsourcearea"_s).Value().startsWith(u"Hello,"_s));
}

TEST_F(PracticeForms, ALateListOfPostedBulletinsDeletesLikeTheOthers) {
    for (const QString& design : {u"newer"_s, u"older"_s, u"unticked"_s}) {
        SCOPED_TRACE(design.toStdString());
        StartAnew();
        Control(u"bulletin-form all "_s + design);
        Control(u"bulletins 900001 2"_s);
        Show(u"http://www.myspace.example.com/bulletins/900001"_s);
        EXPECT_EQ(Named(u"messageID"_s).IsNull(), design == u"unticked");
        EXPECT_TRUE(WaitUntil([this] { return !Named(u"messageID"_s).IsNull(); }));
        Named(u"messageID"_s).Click();
        EXPECT_TRUE(Press(u"delete"_s));
        EXPECT_TRUE(WaitForArrival());
        EXPECT_EQ(Arrived(), QStringList{u"deleted-bulletin 900001 5002 \"Old news 2\""_s});
    }
}

TEST_F(PracticeForms, EveryStatusBoxPostsItsTextInPlaceOnlyOnce) {
    for (const StatusDesign& design : practice::StatusDesigns()) {
        if (!design.hasShare)
            continue;
        SCOPED_TRACE(design.name.toString().toStdString());
        StartAnew();
        Control(u"status-form all "_s + design.name.toString());
        Show(design.older ? u"http://home.myspace.example.com/"_s
                          : u"http://home.myspace.example.com/index.cfm?fuseaction=home&f=7"_s);
        EXPECT_EQ(ById(u"spStatus"_s).IsNull(), design.isLate);
        EXPECT_TRUE(WaitUntil([this] { return !ById(u"spStatus"_s).IsNull(); }));
        ById(u"spStatus"_s).SetValue(u"in the studio \U0001F600"_s);
        for (int i = 0; i < (design.older ? 1 : 2); ++i)
            ById(u"status_submitBtn"_s).Click();
        EXPECT_TRUE(WaitForArrival());
        PumpFor(300);
        EXPECT_EQ(Arrived(), QStringList{u"posted-status 900001 5001 \"in the studio 😀\""_s});
    }
}

TEST_F(PracticeForms, TheOlderStreamIsNarrowedDownByItsListAndDeletesAfterAQuestion) {
    StartAnew();
    Control(u"statuses 900001 2"_s);
    Show(u"http://home.myspace.example.com/"_s);
    EXPECT_FALSE(browser->Document().BodyHTML().contains(u"Delete This Update"_s));
    ById(u"filterStreamByFriend"_s).SetValue(u"1"_s);
    ById(u"filterStreamByFriend"_s).FireChange();
    EXPECT_TRUE(WaitForText(u"Delete This Update"_s));
    EXPECT_FALSE(Press(u"yes"_s));
    ClickLink(u"Delete This Update"_s);
    EXPECT_TRUE(Press(u"yes"_s));
    EXPECT_TRUE(WaitForArrival());
    EXPECT_EQ(Arrived(), QStringList{u"deleted-status 900001 5002 \"This was number 2.\""_s});
}

TEST_F(PracticeForms, TheNewerStreamIsGreyWhileItLoadsAndDeletesAfterAQuestion) {
    StartAnew();
    Control(u"statuses 900001 2"_s);
    Show(u"http://home.myspace.example.com/index.cfm?fuseaction=home&f=7"_s);
    for (const QString& filter : {u"Just me"_s, u"Status"_s}) {
        EXPECT_FALSE(IsLoading());
        ClickLink(filter);
        EXPECT_TRUE(WaitUntil([this] { return IsLoading(); }));
        EXPECT_TRUE(WaitUntil([this] { return !IsLoading(); }));
    }
    EXPECT_FALSE(Press(u"ok"_s));
    ClickLink(u"Delete this update"_s);
    EXPECT_TRUE(Press(u"ok"_s));
    EXPECT_TRUE(WaitForArrival());
    EXPECT_EQ(Arrived(), QStringList{u"deleted-status 900001 5002 \"This was number 2.\""_s});
    EXPECT_TRUE(WaitForText(u"Everybody"_s));
}

TEST_F(PracticeForms, EachRequestIsAcceptedInPlace) {
    StartAnew();
    Control(u"incoming 900001 3"_s);
    Show(u"http://www.myspace.example.com/my/requests/friendrequest?viewall=1"_s);
    ById(u"selectAll"_s).Click();
    QStringList expected;
    for (const Element& box : browser->Document().GetElementsByName(u"request"_s))
        if (box.HasAttribute(u"mode"_s)) {
            EXPECT_FALSE(box.GetAttribute(u"checked"_s).isEmpty());
            expected += u"accepted 900001 "_s + box.GetAttribute(u"mode"_s).section(u',', 1, 1);
        }
    for (const qsizetype accepted : {1, 2, 3}) {
        EXPECT_TRUE(Press(u"accept"_s));
        EXPECT_TRUE(WaitUntil([&] { return Text().count(u"is now your friend"_s) == accepted; }));
    }
    EXPECT_FALSE(Press(u"accept"_s));
    EXPECT_EQ(Arrived(), expected);
}

TEST_F(PracticeForms, WhoeverIsTickedIsAcceptedByTheScriptOfTheOlderPage) {
    StartAnew();
    Control(u"incoming 900001 26"_s);
    Show(u"http://messaging.myspace.example.com/index.cfm?fuseaction=mail.friendRequestsV3&viewall=1"_s);
    for (const Element& link : browser->Document().Links())
        if (link.Href().contains(u"javascript: requestlist.GoToPage('2',"_s)) {
            link.Click();
            break;
        }
    EXPECT_TRUE(WaitForText(u"Listing 26-26 of 26"_s));
    ById(u"chktop"_s).Click();
    browser->Navigate(u"javascript:window.confirm=function anonymous(){return true;};void 0"_s);
    browser->Navigate(u"Javascript: function bla(){requestlist.ProcessMultiAction('approve');}; bla()"_s);
    EXPECT_TRUE(WaitForText(u"is now your friend"_s));
    EXPECT_EQ(Arrived().size(), 1);
}

TEST_F(PracticeForms, ARequestIsDeniedInPlaceOnTheOlderPage) {
    StartAnew();
    Control(u"incoming 900001 1"_s);
    Show(u"http://messaging.myspace.example.com/index.cfm?fuseaction=mail.friendRequestsV3&viewall=1"_s);
    for (const Element& span : browser->Document().GetElementsByTagName(u"span"_s))
        if (span.InnerText() == u"Deny") {
            span.Click();
            break;
        }
    EXPECT_TRUE(WaitForText(u"You have denied a friend request from"_s));
    EXPECT_EQ(Arrived().size(), 1);
}

TEST_F(PracticeForms, TheLastPageOfTheNewerListIsALinkAway) {
    Control(u"incoming 900001 60"_s);
    Show(u"http://www.myspace.example.com/my/requests/friendrequest?viewall=1"_s);
    for (const Element& link : browser->Document().Links())
        if (link.Href().contains(u"pagingNavigation1$LastRecordDirectPageLinkButton"_s)) {
            link.Click();
            break;
        }
    EXPECT_TRUE(WaitForText(u"Listing 51-60 of 60"_s));
}

TEST_F(PracticeForms, PendingRequestsAreTakenBackOnTheDesktopPage) {
    StartAnew();
    Control(u"sent-requests 900001 2"_s);
    Show(u"http://messaging.myspace.example.com/index.cfm?fuseaction=mail.pendingFriendRequests"_s);
    ById(u"chktop"_s).Click();
    ById(u"spancanceltop"_s).Click();
    EXPECT_TRUE(WaitForText(u"Your sent request has been cancelled"_s));
    EXPECT_EQ(Arrived().size(), 2);
}

TEST_F(PracticeForms, ASentRequestIsTakenBackOnTheMobilePages) {
    StartAnew();
    Control(u"sent-requests 900001 1"_s);
    Show(u"http://m.myspace.example.com/signout.wap?bfd=offdeck"_s);
    ById(u"emailTextBox"_s).SetInnerText(u"a@example.com"_s);
    ById(u"passwordTextBox"_s).SetInnerText(u"secret"_s);
    ById(u"loginCommand"_s).Click();
    EXPECT_TRUE(WaitForText(u"My Profile"_s));
    Show(u"http://m.myspace.example.com/messaging/sentrequests.wap?bfd=offdeck"_s);
    for (const Element& link : browser->Document().Links())
        if (link.Href().contains(u"pvm="_s)) {
            link.Click();
            break;
        }
    EXPECT_TRUE(WaitForText(u"has not answered yet"_s));
    ClickLink(u"Cancel Request"_s);
    EXPECT_TRUE(WaitForText(u"Are you sure you want to cancel"_s));
    EXPECT_TRUE(Press(u"ok"_s));
    EXPECT_TRUE(WaitForText(u"There are 0 sent requests"_s));
    EXPECT_EQ(Arrived().size(), 1);
}

} // namespace qlm
