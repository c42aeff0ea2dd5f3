// SPDX-License-Identifier: MIT
#include "WritingClient.h"
#include "practice/ComposeDesigns.h"
#include "practice/FormChoice.h"
#include "practice/Refusals.h"

namespace qlm::practice {
namespace {

using Draft = ComposeDesign::Draft;
using Reply = ComposeDesign::Reply;

const People crowd(1);
const QString subject = u"Tour \"dates\" & more"_s;
const QString body = u"Hello,\r\n\r\nwe play on Friday \U0001F600 <b>x</b>"_s;
const QString quoted = uR"("Tour \"dates\" & more" "Hello,\r\n\r\nwe play on Friday 😀 <b>x</b>")"_s;

Form Fields(const ComposeDesign& design) {
    const QString name = design.body.toString();
    Form form{{design.subject.toString(), subject}};
    if (design.editor == Editor::Source)
        return form << Form{{name + u"_open"_s, u"1"_s}, {name + u"_editsourcearea"_s, body}, {name, {}}};
    return form << std::pair{name, body};
}

class EveryCompose : public WritingTest, public testing::WithParamInterface<const ComposeDesign*> {
protected:
    const ComposeDesign& design = *GetParam();
    qint64 target = FirstWithForm(ComposeDesigns(), design);
    QString url = FormAddress(design, target);
};

TEST_P(EveryCompose, IsServedToWhoeverWritesToItsPerson) {
    const QString page = Text(url);
    for (const QStringView name : {design.subject, design.body})
        EXPECT_TRUE(Holds(page, u" name=\"%1\""_s.arg(name)));
    EXPECT_EQ(page.contains(u"Save Draft"_s), design.draft == Draft::There);
    EXPECT_EQ(page.contains(u"<iframe id=\"%1_f\""_s.arg(design.body)), design.editor != Editor::Plain);
    EXPECT_EQ(page.contains(u"id=\"%1_editsource\""_s.arg(design.body)), design.editor == Editor::Source);
    EXPECT_TRUE(Journal().isEmpty());
}

TEST_P(EveryCompose, NotesWhoGotWhichTextWordForWord) {
    const QString page = Sent(ActionOf(Text(url)), Fields(design));
    EXPECT_EQ(Journal(), (QStringList{u"message 900001 %1 sent"_s.arg(target),
                                      u"messaged 900001 %1 "_s.arg(target) + quoted}));
    EXPECT_EQ(page.contains(u"Your message has been sent"_s), design.reply != Reply::Silent);
    EXPECT_EQ(page.contains(u"One moment"_s), design.reply == Reply::Late);
}

TEST_P(EveryCompose, SaysTheNameWhereTheLayoutHasIt) {
    const QString page = client.Text(url);
    const QString box = page.mid(page.indexOf(u"id=\"toBox\""_s));
    const QString name = crowd.Find(target)->name.toHtmlEscaped();
    if (design.older)
        EXPECT_EQ(FirstBetween(box, u"<span class=\"rcptText\">"_s, u"</span"_s), name);
    else
        EXPECT_EQ(FirstBetween(box, u" alt=\""_s, u"\""_s), name);
}

TEST_P(EveryCompose, IsOnTheMapWithItsPerson) {
    EXPECT_TRUE(Holds(Text(SiteClient::root + u"/sitemap"_s), SiteClient::root + u"/sitemap/forms"_s));
    const QString map = Text(SiteClient::root + u"/sitemap/forms"_s);
    EXPECT_TRUE(Holds(map, u"<td>%1</td>"_s.arg(design.name)));
    EXPECT_TRUE(Holds(map, url.toHtmlEscaped()));
}

TEST_P(EveryCompose, IsShownByEverybodyIfAControlSaysSo) {
    const QString other = FormAddress(design, 100123);
    client.Control(u"compose all "_s + design.name.toString());
    EXPECT_TRUE(Holds(Text(other), u" name=\"%1\""_s.arg(design.subject)));
    Sent(other, Fields(design));
    EXPECT_EQ(Journal().value(1), u"messaged 900001 100123 "_s + quoted);
}

QList<const ComposeDesign*> AllCompose() {
    QList<const ComposeDesign*> all;
    for (const ComposeDesign& design : ComposeDesigns())
        all.append(&design);
    return all;
}

INSTANTIATE_TEST_SUITE_P(Designs, EveryCompose, testing::ValuesIn(AllCompose()),
                         [](const testing::TestParamInfo<const ComposeDesign*>& row) {
                             return row.param->name.toString().remove(u'-').toStdString();
                         });

class Messages : public WritingTest {
protected:
    QString Send(qint64 target, const QString& text = u"Hello"_s) {
        return Sent(Old(target), {{u"Subject"_s, u"Hi"_s}, {u"Mailbody"_s, text}});
    }
    static QString Old(qint64 target) {
        return u"http://messaging.myspace.example.com/index.cfm?fuseaction=mail.message&friendID=%1"_s.arg(
            target);
    }
    static QString New(qint64 target) { return SiteClient::root + u"/my/mail/new?t=%1"_s.arg(target); }
    void UsePlainForm() { client.Control(u"compose all mailbody"_s); }
};

TEST_F(Messages, EveryPairOfFieldNamesIsInUse) {
    QSet<QString> pairs;
    for (const ComposeDesign& design : ComposeDesigns())
        pairs.insert(design.subject.toString() + u' ' + design.body.toString());
    const QString common =
        u"ctl00_ctl00_ctl00_cpMain_cpMain_messagingMain_ComposeMessage_sendMessageCommonControl_"_s;
    const QString skin = u"ctl00$ctl00$Main$messagingMain$SendMessage"_s;
    const QString nested = u"ctl00$ctl00$ctl00$cpMain$cpMain$messagingMain$SendMessage"_s;
    const QString main = u"ctl00_ctl00_Main_Main_sendMessageControl_"_s;
    for (const QString& pair :
         {u"Subject Mailbody"_s, main + u"subjectTextBox "_s + main + u"bodyTextBox"_s,
          skin + u"_Skin$subjectTextBox "_s + skin + u"_Skin$bodyTextBox"_s,
          skin + u"$subjectTextBox "_s + skin + u"$bodyTextBox"_s,
          nested + u"$subjectTextBox "_s + nested + u"$bodyTextBox"_s,
          common + u"txtSubject "_s + common + u"ctl00"_s, common + u"txtSubject "_s + common + u"ctl01"_s})
        EXPECT_TRUE(pairs.contains(pair)) << pair.toStdString();
}

TEST_F(Messages, TheNewEditorSendsItsSourceOnlyWhileThatIsOpen) {
    client.Control(u"compose all source"_s);
    const QString name = u"cpMain_cpMain_ctl03_sendMessageCommonControl_ctl01"_s;
    for (const auto& [open, arrives] : {std::pair{u"0"_s, u"framed"_s}, std::pair{u"1"_s, u"source"_s}}) {
        Sent(New(100003), {{u"cpMain_cpMain_ctl03_sendMessageCommonControl_txtSubject"_s, u"Hi"_s},
                           {name, u"framed"_s},
                           {name + u"_open"_s, open},
                           {name + u"_editsourcearea"_s, u"source"_s}});
        EXPECT_EQ(Journal().value(1), uR"(messaged 900001 100003 "Hi" "%1")"_s.arg(arrives));
    }
}

TEST_F(Messages, ANameIsWhatAControlMakesOfIt) {
    client.Control(u"name 100003 Mary Jane Lee O'Hara"_s);
    EXPECT_TRUE(Holds(Text(New(100003)), u" alt=\"Mary Jane Lee O'Hara\""_s));
    EXPECT_TRUE(Holds(Text(Old(100003)), u"<span class=\"rcptText\">Mary Jane Lee O'Hara</span"_s));
    client.Control(u"name 900001 Tim"_s);
    EXPECT_TRUE(Holds(Text(SiteClient::root + u"/900001"_s), u"<h2>Tim</h2>"_s));
    EXPECT_EQ(client.site.Control(u"name 77 Tim"_s), u"name: nobody has the number 77"_s);
    EXPECT_NE(client.site.Control(u"name 100003"_s), QString());
    client.Control(u"seed 1"_s);
    EXPECT_FALSE(Text(New(100003)).contains(u"Mary"_s));
}

TEST_F(Messages, TheEditorsFieldIsTheLastTextAreaOfThePage) {
    client.Control(u"compose all source"_s);
    const QStringList areas = Between(Text(New(100003)), u"<textarea "_s, u">"_s);
    ASSERT_EQ(areas.size(), 2);
    EXPECT_TRUE(Holds(areas[0], u"_ctl01_editsourcearea\""_s));
    EXPECT_TRUE(Holds(areas[1], u"name=\"cpMain_cpMain_ctl03_sendMessageCommonControl_ctl01\""_s));
}

TEST_F(Messages, DesignsTakeTurnsByThePersonsNumberUntilAControlSaysOtherwise) {
    QSet<QString> seen;
    const auto forms = FormsOf(ComposeDesigns(), true, false);
    for (qint64 id = 100001; id < 100001 + forms.size(); ++id) {
        EXPECT_EQ(&ChosenForm(ComposeDesigns(), id, true, {}), forms[id % forms.size()]);
        seen.insert(ChosenForm(ComposeDesigns(), id, true, {}).name.toString());
    }
    EXPECT_EQ(seen.size(), forms.size());
    client.Control(u"compose 100005 nested"_s);
    EXPECT_TRUE(Holds(Text(Old(100005)), u"cpMain$cpMain$messagingMain"_s));
    client.Control(u"compose 100005 off"_s);
    EXPECT_FALSE(Text(Old(100005)).contains(u"cpMain$cpMain$messagingMain"_s));
}

TEST_F(Messages, WhoIsSignedOutIsSentToTheRootAndWritesToNobody) {
    client.cookie.clear();
    for (const QString& url : {Old(100003), New(100003)})
        EXPECT_EQ(SiteClient::Header(client.Post(url, "Subject=a&Mailbody=b"), u"Location"_s),
                  SiteClient::root + u"/"_s);
    EXPECT_TRUE(Journal().isEmpty());
}

TEST_F(Messages, WithoutMailThereIsNoFormAtAll) {
    client.Control(u"mail 900001 off"_s);
    for (const QString& url : {Old(100003), New(100003)}) {
        const QString target = SiteClient::Header(client.Get(url), u"Location"_s);
        EXPECT_EQ(target,
                  u"http://messaging.myspace.example.com/index.cfm?fuseaction=mailsetup.createaccount"_s);
        EXPECT_TRUE(Holds(Text(target), u"Set up your mail"_s));
        EXPECT_EQ(Journal(), QStringList{u"message 900001 100003 no-mail"_s});
    }
    client.Control(u"mail 900001 on"_s);
    EXPECT_TRUE(Holds(Text(Old(100003)), u"composeForm"_s));
}

TEST_F(Messages, NobodyAndOneselfGetNone) {
    EXPECT_TRUE(Holds(Text(Old(77)), u"invalid user"_s));
    EXPECT_TRUE(Holds(Text(New(77)), u"send a message"_s));
    EXPECT_TRUE(Holds(Text(New(900001)), u"you can't send a message to"_s));
    EXPECT_EQ(Journal(), (QStringList{u"message 900001 77 invalid"_s, u"message 900001 77 invalid"_s,
                                      u"message 900001 900001 self"_s}));
}

TEST_F(Messages, AnEmptyOneADraftAndAPreviewReachNobody) {
    UsePlainForm();
    EXPECT_TRUE(Holds(Send(100003, u" \r\n"_s), u"Please enter a message."_s));
    EXPECT_EQ(Journal(), QStringList{u"message 900001 100003 empty"_s});
    const Form form{{u"Subject"_s, u"Hi"_s}, {u"Mailbody"_s, u"Hello"_s}};
    EXPECT_TRUE(
        Holds(Sent(Old(100003), form + Form{{u"saveDraft"_s, u"Save Draft"_s}}), u"draft has been saved"_s));
    EXPECT_EQ(Journal(), QStringList{u"message 900001 100003 draft"_s});
    EXPECT_TRUE(
        Holds(Sent(Old(100003), form + Form{{u"preview"_s, u"Preview"_s}}), u"how it reads: Hello"_s));
    EXPECT_TRUE(Journal().isEmpty());
}

TEST_F(Messages, TheJournalHasASecondOneAndWhen) {
    UsePlainForm();
    client.Control(u"journal times on"_s);
    Send(100003);
    client.now = client.now.addSecs(60);
    Send(100003);
    EXPECT_EQ(Journal().filter(u"messaged"_s),
              (QStringList{uR"(messaged 900001 100003 "Hi" "Hello" 2009-06-01T10:00:00)"_s,
                           uR"(messaged 900001 100003 "Hi" "Hello" 2009-06-01T10:01:00)"_s}));
}

TEST_F(Messages, TheDailyLimitCountsThoseOfOneAccountAndEndsAtMidnight) {
    UsePlainForm();
    client.Control(u"message-limit 1"_s);
    Send(100003);
    Journal();
    EXPECT_TRUE(Holds(Text(Old(100004)), u"you have exceeded your daily useage"_s));
    EXPECT_EQ(Journal(), QStringList{u"message 900001 100004 limit"_s});
    client.now = client.now.addDays(1);
    EXPECT_TRUE(Holds(Send(100004), u"Your message has been sent"_s));
}

struct OutcomeRow {
    const char* word;
    bool before; // in place of the form
    const char* text;
};

class MessageRefusal : public Messages, public testing::WithParamInterface<OutcomeRow> {};

TEST_P(MessageRefusal, SaysWhyAndReachesNobody) {
    const auto& [word, before, text] = GetParam();
    UsePlainForm();
    client.Control(u"message-outcome 100003 "_s + QString::fromUtf8(word));
    EXPECT_EQ(Text(Old(100003)).contains(u"composeForm"_s), !before);
    EXPECT_EQ(Journal().size(), before ? 1 : 0);
    const QString page = Send(100003);
    EXPECT_TRUE(Holds(page, QString::fromUtf8(text)));
    EXPECT_FALSE(page.contains(u"Your message has been sent"_s));
    EXPECT_EQ(Journal(), QStringList{u"message 900001 100003 "_s + QString::fromUtf8(word)});
}

INSTANTIATE_TEST_SUITE_P(All, MessageRefusal,
                         testing::Values(OutcomeRow{"cannot", true, "you can't send a message to"},
                                         OutcomeRow{"friends-only", true, "friend to send them a message"},
                                         OutcomeRow{"only-friends", true, "only allow messages from friends"},
                                         OutcomeRow{"maintenance", true, "MailMaintenance"},
                                         OutcomeRow{"away", false, "they have set an away message"},
                                         OutcomeRow{"error", false,
                                                    "an error has occurred trying to send this message"},
                                         OutcomeRow{"process-error", false,
                                                    "an error occurred while trying to process your request"},
                                         OutcomeRow{"home", false, "fuseaction=home"}));

TEST_F(Messages, EveryNumberedRefusalStandsInPlaceOfTheForm) {
    for (const Refusal& refusal : Refusals()) {
        client.Control(u"message-refuse 100003 %1"_s.arg(refusal.number));
        EXPECT_TRUE(Holds(Text(Old(100003)), QString::fromUtf16(refusal.text).section(u"%1"_s, -1, -1)));
        EXPECT_EQ(Journal(), QStringList{u"message 900001 100003 refused-%1"_s.arg(refusal.number)});
    }
    client.Control(u"message-refuse 100003 off"_s);
    EXPECT_TRUE(Holds(Text(Old(100003)), u"composeForm"_s));
}

class MessageCaptcha : public Messages {
protected:
    MessageCaptcha() {
        UsePlainForm();
        client.Control(u"message-outcome 100003 captcha"_s);
    }
    QString Answer(const QString& word) {
        return Sent(Old(100003), {{u"ctl00$captchaResponseTextBox"_s, word}});
    }
};

TEST_F(MessageCaptcha, HoldsTheTextUntilTheRightWordCame) {
    const QString page = Send(100003);
    EXPECT_TRUE(Holds(page, u"Please enter the text from the image"_s));
    EXPECT_TRUE(Holds(page, u"name=\"ctl00$captchaResponseTextBox\""_s));
    EXPECT_EQ(Journal(), QStringList{u"message 900001 100003 captcha"_s});
    EXPECT_TRUE(Holds(Answer(u"surely-not"_s), u"Security code does not match"_s));
    EXPECT_EQ(Journal(), QStringList{u"message 900001 100003 captcha-wrong"_s});
    EXPECT_TRUE(Holds(Answer(client.site.CaptchaWord(900001, 100003)), u"Your message has been sent"_s));
    EXPECT_EQ(Journal(),
              (QStringList{u"message 900001 100003 sent"_s, uR"(messaged 900001 100003 "Hi" "Hello")"_s}));
}

TEST_F(MessageCaptcha, AWordThatNothingWaitsForSendsNothing) {
    EXPECT_TRUE(Holds(Answer(client.site.CaptchaWord(900001, 100003)), u"composeForm"_s));
    EXPECT_TRUE(Journal().isEmpty());
}

TEST_F(MessageCaptcha, TheRightWordMayLeadHome) {
    client.Control(u"message-outcome 100003 captcha-home"_s);
    Send(100003);
    EXPECT_TRUE(Holds(Answer(client.site.CaptchaWord(900001, 100003)), u"fuseaction=home"_s));
    EXPECT_EQ(Journal().filter(u"messaged"_s), QStringList());
}

TEST_F(MessageCaptcha, AFaultStandsBeforeTheFormAndAfterIt) {
    client.Control(u"message-outcome 100003 sent"_s);
    client.Control(u"fault messaging.myspace.example.com/ captcha times 1"_s);
    EXPECT_TRUE(Holds(Text(Old(100003)), u"captchaForm"_s));
    client.Control(u"fault messaging.myspace.example.com/ captcha times 1"_s);
    EXPECT_TRUE(Holds(Send(100003), u"captchaForm"_s));
    EXPECT_TRUE(Holds(Answer(client.site.CaptchaWord(900001, 100003)), u"Your message has been sent"_s));
    EXPECT_EQ(Journal().last(), uR"(messaged 900001 100003 "Hi" "Hello")"_s);
}

TEST_F(Messages, ControlsThatMakeNoSenseAreRefused) {
    for (const QString& line :
         {u"compose 100003 nothing"_s, u"compose all"_s, u"compose plain"_s,
          u"message-outcome 100003 dance"_s, u"message-share sent 50"_s, u"message-share away 101"_s,
          u"message-refuse 100003 12"_s, u"message-limit x"_s, u"mail 900001 maybe"_s, u"mail on"_s})
        EXPECT_NE(client.site.Control(line), QString()) << line.toStdString();
}

TEST_F(Messages, SharesDecideHowManyPeopleAnswerSoAndASeedForgetsThem) {
    UsePlainForm();
    client.Control(u"message-share away 50"_s);
    for (qint64 id = 100001; id <= 100200; ++id)
        Send(id);
    const auto away = Journal().filter(QRegularExpression(u" away$"_s)).size();
    EXPECT_GT(away, 70);
    EXPECT_LT(away, 130);
    client.Control(u"seed 1"_s);
    UsePlainForm();
    for (qint64 id = 100001; id <= 100200; ++id)
        Send(id);
    EXPECT_LT(Journal().filter(QRegularExpression(u" away$"_s)).size(), 20);
}

} // namespace
} // namespace qlm::practice
