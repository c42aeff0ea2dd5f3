// SPDX-License-Identifier: MIT
#include "WritingClient.h"
#include "practice/BulletinDesigns.h"
#include "practice/Refusals.h"

namespace qlm::practice {
namespace {

using After = BulletinDesign::After;
using Choice = BulletinDesign::Choice;
using Comments = BulletinDesign::Comments;

const QString formUrl = SiteClient::root + u"/bulletins/new"_s;
const QString postedUrl = SiteClient::root + u"/bulletins/900001"_s;
const QString subject = u"Tour \"dates\" & more"_s;
const QString body = u"Hello,\r\n\r\nwe play on Friday <b>x</b>"_s;
const QString quoted = uR"("Tour \"dates\" & more" "Hello,\r\n\r\nwe play on Friday <b>x</b>")"_s;

Form Fields(const BulletinDesign& design, bool takesComments = true) {
    const QString name = BodyOf(design).toString();
    Form form{{name, HasSource(design.editor) ? QString() : body}};
    if (HasSource(design.editor))
        form << Form{{name + u"_open"_s, u"1"_s}, {name + u"_editsourcearea"_s, body}};
    if (design.hasSubject)
        form << std::pair{bulletinSubject.toString(), subject};
    if (takesComments)
        form << std::pair{bulletinComments.toString(), u"on"_s};
    return form;
}

class BulletinPages : public WritingTest {
protected:
    void Use(const BulletinDesign& design) {
        client.Control(u"bulletin-form 900001 "_s + design.name.toString());
    }
    QString Post(bool takesComments = true) {
        return Sent(formUrl, Fields(BulletinDesigns().front(), takesComments));
    }
    QStringList Numbers() { return Between(Text(postedUrl), u"name=\"messageID\" value=\""_s, u"\""_s); }
};

class EveryBulletinForm : public BulletinPages, public testing::WithParamInterface<const BulletinDesign*> {
protected:
    EveryBulletinForm() { Use(design); }
    const BulletinDesign& design = *GetParam();
};

TEST_P(EveryBulletinForm, HasWhatItIsKnownBy) {
    const QString page = Text(formUrl);
    EXPECT_EQ(page.contains(u"Subject_Textbox\""_s), design.hasSubject);
    EXPECT_TRUE(Holds(page, u" name=\"%1\""_s.arg(BodyOf(design))));
    EXPECT_EQ(page.contains(u"title=\"View Source\""_s), HasSource(design.editor));
    EXPECT_EQ(page.contains(u"id=\"%1_editsourcearea\""_s.arg(BodyOf(design))), HasSource(design.editor));
    const QString box = FirstBetween(page, u"<input type=\"checkbox\""_s, u">"_s);
    EXPECT_EQ(box.contains(u"cpMain_BulletinPost_chkAllowBulletinComments"_s),
              design.comments != Comments::Missing);
    EXPECT_EQ(box.contains(u" checked"_s), design.comments == Comments::Ticked);
    EXPECT_TRUE(Journal().isEmpty());
}

TEST_P(EveryBulletinForm, NotesWhatWasPostedWordForWord) {
    QString page = Sent(ActionOf(Text(formUrl)), Fields(design));
    if (design.after == After::Confirm) {
        EXPECT_EQ(Journal(), QStringList{u"bulletin 900001 confirm"_s});
        EXPECT_TRUE(Holds(page, u"value=\"Post Bulletin\""_s));
        page = Sent(ActionOf(page), {{u"confirmBulletin"_s, u"Post Bulletin"_s}});
    }
    const QString texts =
        design.hasSubject ? quoted : u"\"\" "_s + quoted.section(u"\" \""_s, 1).prepend(u'"');
    EXPECT_EQ(Journal(),
              (QStringList{u"bulletin 900001 posted"_s, u"posted-bulletin 900001 5001 comments "_s + texts}));
    EXPECT_EQ(page.contains(u"Your bulletin has been posted"_s), design.after != After::Silent);
}

TEST_P(EveryBulletinForm, WhatWasPostedCanBeDeletedAgain) {
    client.Control(u"bulletins 900001 2"_s);
    const QString page = Text(postedUrl + (design.choice == Choice::Late ? u"?full=1"_s : QString()));
    EXPECT_TRUE(Holds(page, u"My posts"_s));
    EXPECT_EQ(page.contains(u"BulletinList_bulletins_Repeater"_s), design.older);
    EXPECT_EQ(Between(page, u"name=\"messageID\" value=\""_s, u"\""_s),
              design.choice == Choice::None ? QStringList() : (QStringList{u"5002"_s, u"5001"_s}));
    EXPECT_TRUE(Holds(page, u"value=\"Delete\""_s));
    Sent(ActionOf(page), {{u"messageID"_s, u"5002"_s}, {u"act"_s, u"Delete"_s}});
    EXPECT_EQ(Journal(), QStringList{u"deleted-bulletin 900001 5002 \"Old news 2\""_s});
}

TEST_P(EveryBulletinForm, AnEmptyBoardSaysSoInTheWordsOfItsLayout) {
    const QString page = Text(postedUrl);
    EXPECT_TRUE(Holds(page, u"My posts"_s));
    EXPECT_EQ(page.contains(u"You have no bulletins posted at this time"_s), !design.older);
    EXPECT_EQ(page.contains(u"send any bulletins yet"_s), design.older);
}

TEST_P(EveryBulletinForm, IsOnTheMap) {
    const QString map = Text(SiteClient::root + u"/sitemap/forms"_s);
    EXPECT_TRUE(Holds(map, u"<td>%1</td>"_s.arg(design.name)));
    EXPECT_TRUE(Holds(map, formUrl));
}

QList<const BulletinDesign*> AllBulletinForms() {
    QList<const BulletinDesign*> all;
    for (const BulletinDesign& design : BulletinDesigns())
        all.append(&design);
    return all;
}

INSTANTIATE_TEST_SUITE_P(Designs, EveryBulletinForm, testing::ValuesIn(AllBulletinForms()),
                         [](const testing::TestParamInfo<const BulletinDesign*>& row) {
                             return row.param->name.toString().remove(u'-').toStdString();
                         });

TEST_F(BulletinPages, TheListMayComeLateAndStandsNowhereBefore) {
    client.Control(u"bulletin-form all unticked"_s);
    client.Control(u"bulletins 900001 1"_s);
    const QString page = Text(postedUrl);
    EXPECT_FALSE(page.contains(u"messageID"_s));
    EXPECT_TRUE(Holds(page, u"data-from=\"%1?full=1\""_s.arg(postedUrl)));
}

TEST_F(BulletinPages, CommentsAreForbiddenByAnEmptyBox) {
    Post(false);
    EXPECT_EQ(Journal().value(1), u"posted-bulletin 900001 5001 no-comments "_s + quoted);
}

TEST_F(BulletinPages, TheNewestStandsFirstAndBulletinsPileUp) {
    Post();
    Post();
    EXPECT_EQ(Numbers(), (QStringList{u"5002"_s, u"5001"_s}));
}

TEST_F(BulletinPages, SeveralAreDeletedAtOnceAndOnlyOnesOwn) {
    client.Control(u"bulletins 900001 3"_s);
    client.Control(u"bulletins 900002 1"_s);
    Sent(postedUrl, {{u"messageID"_s, u"5001"_s},
                     {u"messageID"_s, u"5003"_s},
                     {u"messageID"_s, u"5004"_s},
                     {u"act"_s, u"Delete"_s}});
    EXPECT_EQ(Journal(), (QStringList{u"deleted-bulletin 900001 5001 \"Old news 1\""_s,
                                      u"deleted-bulletin 900001 5003 \"Old news 3\""_s}));
    EXPECT_EQ(Numbers(), QStringList{u"5002"_s});
}

TEST_F(BulletinPages, AnotherButtonDeletesNothing) {
    client.Control(u"bulletins 900001 1"_s);
    Sent(postedUrl, {{u"messageID"_s, u"5001"_s}, {u"act"_s, u"Read"_s}});
    EXPECT_TRUE(Journal().isEmpty());
    EXPECT_EQ(Numbers(), QStringList{u"5001"_s});
}

TEST_F(BulletinPages, TheBoardAndOnesOwnPostsAreForWhoeverIsSignedIn) {
    EXPECT_TRUE(Holds(Text(SiteClient::root + u"/bulletins"_s), u"Bulletin Board"_s));
    EXPECT_TRUE(Holds(Text(SiteClient::root + u"/bulletins/900002"_s), u"somebody else"_s));
    client.cookie.clear();
    for (const QString& url : {formUrl, postedUrl, SiteClient::root + u"/bulletins"_s})
        EXPECT_EQ(SiteClient::Header(client.Get(url), u"Location"_s), SiteClient::root + u"/"_s);
}

TEST_F(BulletinPages, WhatLacksSubjectOrTextIsAskedForAgain) {
    Form form = Fields(BulletinDesigns().front());
    form.removeIf([](const auto& field) { return field.first == bulletinSubject; });
    EXPECT_TRUE(Holds(Sent(formUrl, form), u"Please enter a subject"_s));
    form = {{bulletinSubject.toString(), subject}, {BodyOf(BulletinDesigns().front()).toString(), u" "_s}};
    EXPECT_TRUE(Holds(Sent(formUrl, form), u"Please enter a bulletin"_s));
    EXPECT_EQ(Journal(), (QStringList{u"bulletin 900001 empty"_s, u"bulletin 900001 empty"_s}));
}

TEST_F(BulletinPages, OtherButtonsPostNothing) {
    const Form form = Fields(BulletinDesigns().front());
    EXPECT_TRUE(Holds(Sent(formUrl, form + Form{{u"preview"_s, u"Preview"_s}}), u"This is how it reads"_s));
    EXPECT_TRUE(Holds(Sent(formUrl, form + Form{{u"discard"_s, u"Discard post"_s}}), u"thrown away"_s));
    EXPECT_EQ(Journal(), QStringList{u"bulletin 900001 discarded"_s});
}

TEST_F(BulletinPages, EveryRefusalAndAnswerIsSaidInItsWords) {
    for (const Refusal& refusal : Refusals()) {
        client.Control(u"bulletin-refuse 900001 %1"_s.arg(refusal.number));
        Text(formUrl);
        EXPECT_EQ(Journal(), QStringList{u"bulletin 900001 refused-%1"_s.arg(refusal.number)});
    }
    client.Control(u"bulletin-refuse 900001 off"_s);
    for (const auto& [word, says] :
         {std::pair{u"flooding"_s, u"posting bulletins too quickly"_s},
          std::pair{u"unable"_s, u"An error occurred while trying to process"_s}}) {
        client.Control(u"bulletin-outcome 900001 "_s + word);
        EXPECT_TRUE(Holds(Post(), says));
        EXPECT_EQ(Journal(), QStringList{u"bulletin 900001 "_s + word});
    }
    client.Control(u"bulletin-outcome 900001 not-yet"_s);
    EXPECT_TRUE(Holds(Text(formUrl), u"You can't post bulletins yet"_s));
    client.Control(u"bulletin-outcome 900001 home"_s);
    EXPECT_TRUE(
        SiteClient::Header(client.Post(formUrl, Encoded(Fields(BulletinDesigns().front()))), u"Location"_s)
            .contains(u"fuseaction=home"_s));
    EXPECT_TRUE(Numbers().isEmpty());
}

TEST_F(BulletinPages, TheLimitOfADayHoldsForOneAccount) {
    client.Control(u"bulletin-limit 1"_s);
    Post();
    Journal();
    EXPECT_TRUE(Holds(Post(), u"exceeded your daily useage"_s));
    EXPECT_EQ(Journal(), QStringList{u"bulletin 900001 limit"_s});
    client.now = client.now.addDays(1);
    EXPECT_TRUE(Holds(Post(), u"has been posted"_s));
}

TEST_F(BulletinPages, AWordMayBeAskedForFirst) {
    client.Control(u"bulletin-outcome 900001 captcha"_s);
    client.Control(u"captcha-word kite"_s);
    EXPECT_TRUE(Holds(Post(), u"Please enter the text from the image:"_s));
    EXPECT_TRUE(Holds(Sent(formUrl, {{u"ctl00$captcha_text"_s, u"boat"_s}}), u"does not match"_s));
    EXPECT_TRUE(Holds(Sent(formUrl, {{u"ctl00$captcha_text"_s, u"kite"_s}}), u"has been posted"_s));
    EXPECT_EQ(Journal(), (QStringList{u"bulletin 900001 captcha"_s, u"bulletin 900001 captcha-wrong"_s,
                                      u"bulletin 900001 posted"_s,
                                      u"posted-bulletin 900001 5001 comments "_s + quoted}));
}

TEST_F(BulletinPages, NothingIsConfirmedThatWasNotWritten) {
    EXPECT_TRUE(Holds(Sent(formUrl, {{u"confirmBulletin"_s, u"Post Bulletin"_s}}), u"nothing to confirm"_s));
    EXPECT_TRUE(Journal().isEmpty());
}

TEST_F(BulletinPages, TheJournalSaysWhen) {
    client.Control(u"journal times on"_s);
    Post();
    EXPECT_TRUE(Journal().value(1).endsWith(u"\" 2009-06-01T10:00:00"_s));
}

TEST_F(BulletinPages, AnotherSeedForgetsWhatWasPosted) {
    Post();
    client.Control(u"seed 2"_s);
    EXPECT_TRUE(Numbers().isEmpty());
}

} // namespace
} // namespace qlm::practice
