// SPDX-License-Identifier: MIT
#include "WritingClient.h"
#include "practice/CommentDesigns.h"
#include "practice/FormChoice.h"
#include "practice/Refusals.h"

namespace qlm::practice {
namespace {

using After = CommentDesign::After;

const People crowd(1);
const QString text = u"Happy \"birthday\",\r\nold friend \U0001F382"_s;
const QString quoted = uR"("Happy \"birthday\",\r\nold friend 🎂")"_s;

Form Fields(const CommentDesign& design, const QString& typed = text) {
    const QString name = design.box.toString();
    if (design.editor == Editor::Source)
        return {{name + u"_open"_s, u"1"_s}, {name + u"_editsourcearea"_s, typed}, {name, {}}};
    return {{name, typed}};
}

int RoundsOf(After after) {
    if (after == After::Posted)
        return 0;
    return after == After::ConfirmTwice ? 2 : 1;
}

class EveryCommentForm : public WritingTest, public testing::WithParamInterface<const CommentDesign*> {
protected:
    const CommentDesign& design = *GetParam();
    qint64 target = FirstWithForm(CommentDesigns(), design);
    QString url = FormAddress(design, target);
};

TEST_P(EveryCommentForm, IsServedToWhoeverCommentsOnItsPerson) {
    const QString page = Text(url);
    EXPECT_TRUE(Holds(page, u" name=\"%1\""_s.arg(design.box)));
    const QString mark = u"<input type=\"hidden\" id=\"%1\""_s.arg(design.mark);
    EXPECT_EQ(page.contains(mark), !design.mark.isEmpty() && !design.lateMark);
    EXPECT_EQ(page.contains(u"title=\"View Source\""_s), design.editor == Editor::Source);
    EXPECT_TRUE(Journal().isEmpty());
}

TEST_P(EveryCommentForm, NotesWhoGotWhichTextWordForWord) {
    QString page = Sent(ActionOf(Text(url)), Fields(design));
    if (design.after == After::Back) {
        EXPECT_TRUE(Holds(page, u"Post A Comment About"_s));
        EXPECT_EQ(Journal(), QStringList{u"comment 900001 %1 back"_s.arg(target)});
        return;
    }
    for (int round = 1; round <= RoundsOf(design.after); ++round) {
        EXPECT_TRUE(Holds(page, u"Click the button below to confirm"_s));
        EXPECT_FALSE(page.contains(u"post a comment about"_s, Qt::CaseInsensitive));
        EXPECT_EQ(Journal(), QStringList{u"comment 900001 %1 confirm"_s.arg(target)});
        page = Sent(ActionOf(page), {{u"round"_s, QString::number(round)}});
    }
    EXPECT_TRUE(Holds(page, u"Your comment has been posted!"_s));
    EXPECT_EQ(Journal(), (QStringList{u"comment 900001 %1 posted"_s.arg(target),
                                      u"commented 900001 %1 "_s.arg(target) + quoted}));
}

TEST_P(EveryCommentForm, SaysTheNameWhereTheLayoutHasIt) {
    const QString page = client.Text(url);
    const QString name = crowd.Find(target)->name.toHtmlEscaped();
    if (design.older)
        EXPECT_EQ(FirstBetween(page, u"Post A Comment About "_s, u"<"_s), name);
    else
        EXPECT_EQ(FirstBetween(page, u" alt=\"Photo of "_s, u"\""_s), name);
}

TEST_P(EveryCommentForm, IsOnTheMapWithItsPerson) {
    const QString map = Text(SiteClient::root + u"/sitemap/forms"_s);
    EXPECT_TRUE(Holds(map, u"<td>%1</td>"_s.arg(design.name)));
    EXPECT_TRUE(Holds(map, url.toHtmlEscaped()));
}

TEST_P(EveryCommentForm, ABlankOneIsRefused) {
    EXPECT_TRUE(Holds(Sent(url, Fields(design, u" \r\n"_s)), u"You can't enter a blank comment"_s));
    EXPECT_EQ(Journal(), QStringList{u"comment 900001 %1 blank"_s.arg(target)});
}

QList<const CommentDesign*> AllCommentForms() {
    QList<const CommentDesign*> all;
    for (const CommentDesign& design : CommentDesigns())
        all.append(&design);
    return all;
}

INSTANTIATE_TEST_SUITE_P(Designs, EveryCommentForm, testing::ValuesIn(AllCommentForms()),
                         [](const testing::TestParamInfo<const CommentDesign*>& row) {
                             return row.param->name.toString().remove(u'-').toStdString();
                         });

class CommentForms : public WritingTest {
protected:
    static QString Old(qint64 target) {
        return u"http://comment.myspace.example.com/index.cfm?fuseaction=user.viewProfile_commentForm"
               u"&friendID=%1"_s.arg(target);
    }
    static QString New(qint64 target) { return SiteClient::root + u"/%1/comments"_s.arg(target); }
    QString SendOld(qint64 target, const QString& typed = u"Hello"_s) {
        return Sent(Old(target), {{u"commentText"_s, typed}});
    }
    QString SendNew(qint64 target, const QString& typed = u"Hello"_s) {
        return Sent(New(target), {{u"newComment"_s, typed}});
    }
    void Use(const QString& design) { client.Control(u"comment-form all "_s + design); }
};

TEST_F(CommentForms, TheOldPageLeadsBackToTheProfile) {
    EXPECT_TRUE(Holds(Text(Old(100003)),
                      u"http://profile.myspace.example.com/index.cfm?fuseaction=user.viewprofile"_s));
}

TEST_F(CommentForms, EveryFieldNameIsInUse) {
    QSet<QString> names;
    for (const CommentDesign& design : CommentDesigns())
        names << design.box.toString() << design.mark.toString();
    for (const QString& name :
         {u"ctl00_Main_postComment_commentTextBox"_s, u"ctl00_cpMain_postComment_commentTextBox"_s,
          u"ctl00_cpMain_UserWriteCommentsControl_Skin_commentTextBox"_s,
          u"ctl00$cpMain$UserWriteCommentsControl$commentTextBox"_s,
          u"ctl00$ctl00$cpMain$UserWriteCommentsControl$commentTextBox"_s, u"commentText"_s,
          u"ctl00$cpMain$postComment$commentTextBox"_s, u"ctl00_ctl00_cpMain_cpMain_ctl02_ctl00"_s,
          u"ctl00_ctl00_cpMain_cpMain_ctl02_ctl01"_s})
        EXPECT_TRUE(names.contains(name)) << name.toStdString();
}

TEST_F(CommentForms, TheBoxStandsAboveTheListForWhoeverIsSignedIn) {
    const QString page = Text(New(100003));
    EXPECT_TRUE(Holds(page, u">Post a comment...<"_s));
    EXPECT_TRUE(Holds(page, u"placeholder=\"Post a comment...\""_s));
    EXPECT_LT(page.indexOf(u"id=\"newComment\""_s), page.indexOf(u"What friends wrote"_s));
    EXPECT_FALSE(Text(New(100003) + u"?from=20"_s).contains(u"newComment"_s));
    client.cookie.clear();
    EXPECT_FALSE(Text(New(100003)).contains(u"newComment"_s));
    EXPECT_EQ(SiteClient::Header(client.Get(Old(100003)), u"Location"_s), SiteClient::root + u"/"_s);
}

TEST_F(CommentForms, AHiddenButtonStandsBeforeTheOneThatPosts) {
    Use(u"box-hidden"_s);
    const QString page = Text(New(100003));
    EXPECT_LT(page.indexOf(u"DISPLAY: NONE\">Post<"_s), page.indexOf(u"name=\"postComment\">Post<"_s));
    EXPECT_GT(page.indexOf(u"DISPLAY: NONE\">Post<"_s), 0);
}

TEST_F(CommentForms, APreviewPostsNothing) {
    Use(u"box-preview"_s);
    const QString page = Sent(New(100003), {{u"newComment"_s, u"Hello"_s}, {u"preview"_s, u"1"_s}});
    EXPECT_TRUE(Holds(page, u"This is how it reads: Hello"_s));
    EXPECT_TRUE(Journal().isEmpty());
}

TEST_F(CommentForms, AFailedPostBringsAnotherFormBack) {
    Use(u"back"_s);
    EXPECT_TRUE(Holds(SendOld(100003), u"ctl00_ctl00_cpMain_cpMain_ctl02_ctl00"_s));
    Use(u"editor-back"_s);
    EXPECT_TRUE(Holds(Sent(Old(100003), Fields(*FormNamed(CommentDesigns(), u"editor-back"_s))),
                      u"ctl00$ctl00$cpMain$UserWriteCommentsControl$commentTextBox"_s));
}

TEST_F(CommentForms, MarkupHasToBeSentTwiceFromTheBox) {
    const QString page = SendNew(100003, u"<b>Hello</b>"_s);
    EXPECT_TRUE(Holds(page, u"&lt;b&gt;Hello&lt;/b&gt;</textarea>"_s));
    EXPECT_TRUE(Holds(page, u"name=\"html\" value=\"ok\""_s));
    EXPECT_EQ(Journal(), QStringList{u"comment 900001 100003 html"_s});
    Sent(New(100003), {{u"newComment"_s, u"<b>Hello</b>"_s}, {u"html"_s, u"ok"_s}});
    EXPECT_EQ(Journal().value(1), uR"(commented 900001 100003 "<b>Hello</b>")"_s);
}

TEST_F(CommentForms, WhoTakesNoMarkupGetsTheTextWithoutIt) {
    client.Control(u"comment-outcome 100003 no-html"_s);
    Use(u"write"_s);
    EXPECT_TRUE(Holds(Text(Old(100003)), u"this user disables html comments"_s));
    Sent(Old(100003), Fields(*FormNamed(CommentDesigns(), u"write"_s), u"<b>Hello</b>"_s));
    EXPECT_EQ(Journal().value(1), uR"(commented 900001 100003 "Hello")"_s);
    Use(u"box"_s);
    EXPECT_TRUE(Holds(Text(New(100003)), u"set #note innertext HTML not allowed"_s));
    SendNew(100003, u"<i>Hello</i> again"_s);
    EXPECT_EQ(Journal().value(1), uR"(commented 900001 100003 "Hello again")"_s);
}

TEST_F(CommentForms, AnEditorsPageKeepsAPlainBoxForThem) {
    Use(u"editor"_s);
    client.Control(u"comment-outcome 100003 no-html"_s);
    EXPECT_TRUE(Holds(Text(Old(100003)), u"<textarea id=\"commentText\""_s));
    const Form form = Fields(*FormNamed(CommentDesigns(), u"editor"_s), u"rich"_s);
    for (const auto& [target, arrives] : {std::pair{100003, u"plain"_s}, std::pair{100004, u"rich"_s}}) {
        const QString page = Sent(Old(target), form + Form{{u"commentText"_s, u"plain"_s}});
        Sent(ActionOf(page), {{u"round"_s, u"1"_s}});
        EXPECT_EQ(Journal().last(), uR"(commented 900001 %1 "%2")"_s.arg(target).arg(arrives));
    }
}

TEST_F(CommentForms, ToBeApprovedCountsAsPosted) {
    Use(u"write"_s);
    const Form form = Fields(*FormNamed(CommentDesigns(), u"write"_s));
    for (const auto& [word, isSaid] :
         {std::pair{u"approval"_s, true}, std::pair{u"approval-alone"_s, false}}) {
        client.Control(u"comment-outcome 100003 "_s + word);
        const QString page = Sent(Old(100003), form);
        EXPECT_TRUE(Holds(page, u"this user requires all comments to be approved"_s));
        EXPECT_EQ(page.contains(u"your comment has been posted"_s, Qt::CaseInsensitive), isSaid);
        EXPECT_EQ(Journal().value(1), u"commented 900001 100003 "_s + quoted);
    }
}

struct OutcomeRow {
    const char* word;
    const char* older;
    const char* newer;
};

class CommentRefusal : public CommentForms, public testing::WithParamInterface<OutcomeRow> {};

TEST_P(CommentRefusal, SaysWhyAndReachesNobody) {
    const auto& [word, older, newer] = GetParam();
    Use(u"plain"_s);
    client.Control(u"comment-outcome 100003 "_s + QString::fromUtf8(word));
    EXPECT_TRUE(Holds(SendOld(100003), QString::fromUtf8(older)));
    EXPECT_EQ(Journal(), QStringList{u"comment 900001 100003 "_s + QString::fromUtf8(word)});
    Use(u"box"_s);
    EXPECT_TRUE(Holds(SendNew(100003), QString::fromUtf8(newer)));
    EXPECT_TRUE(Journal().filter(u"commented"_s).isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    All, CommentRefusal,
    testing::Values(OutcomeRow{"friends-only", "you must be someone's friend to make comments",
                               "you must be a friend to post a comment"},
                    OutcomeRow{"private", "this profile is set to private", "this profile is set to private"},
                    OutcomeRow{"flooding", "It seems like you're flooding comments",
                               "It seems like you're flooding comments"},
                    OutcomeRow{"unable", "unable to add your comment at this time",
                               "we are unable to add your comment at this time"},
                    OutcomeRow{"home", "fuseaction=home", "fuseaction=home"}));

TEST_F(CommentForms, OnlyWhereAFormIsWantedARefusalIsNoted) {
    client.Control(u"comment-outcome 100003 private"_s);
    EXPECT_TRUE(Holds(Text(New(100003)), u"What friends wrote"_s));
    EXPECT_TRUE(Journal().isEmpty());
    Text(Old(100003));
    EXPECT_EQ(Journal(), QStringList{u"comment 900001 100003 private"_s});
}

TEST_F(CommentForms, TooManyInADayAreAFlood) {
    Use(u"write"_s);
    client.Control(u"comment-limit 1"_s);
    Sent(Old(100003), Fields(*FormNamed(CommentDesigns(), u"write"_s)));
    EXPECT_EQ(Journal().size(), 2);
    EXPECT_TRUE(Holds(Text(Old(100004)), u"It seems like you're flooding comments"_s));
    EXPECT_EQ(Journal(), QStringList{u"comment 900001 100004 limit"_s});
    Use(u"box"_s);
    EXPECT_TRUE(Holds(SendNew(100004), u"we are unable to add your comment at this time"_s));
    EXPECT_EQ(Journal(), QStringList{u"comment 900001 100004 limit"_s});
    client.now = client.now.addDays(1);
    EXPECT_TRUE(Holds(SendNew(100004), u"Your comment has been posted"_s));
}

TEST_F(CommentForms, EveryNumberedRefusalStandsInPlaceOfTheForm) {
    for (const Refusal& refusal : Refusals()) {
        client.Control(u"comment-refuse 100003 %1"_s.arg(refusal.number));
        for (const QString& url : {Old(100003), New(100003)}) {
            EXPECT_TRUE(Holds(Text(url), QString::fromUtf16(refusal.text).section(u"%1"_s, -1, -1)));
            EXPECT_EQ(Journal(), QStringList{u"comment 900001 100003 refused-%1"_s.arg(refusal.number)});
        }
    }
    client.Control(u"comment-refuse 100003 off"_s);
    EXPECT_TRUE(Holds(Text(New(100003)), u"newCommentForm"_s));
}

TEST_F(CommentForms, NobodyCanBeCommentedOnWhoIsNotThere) {
    EXPECT_TRUE(Holds(Text(Old(77)), u"invalid friend id"_s));
    EXPECT_EQ(client.Get(New(77)).status, 404);
}

class CommentCaptcha : public CommentForms {
protected:
    CommentCaptcha() { client.Control(u"comment-outcome 100003 captcha"_s); }
    QString Confirm(const QString& page, const QString& word, const QString& round = u"1"_s) {
        return Sent(ActionOf(page), {{u"round"_s, round}, {u"ctl00$captchaResponseTextBox"_s, word}});
    }
    QString Word() { return client.site.CaptchaWord(900001, 100003); }
};

TEST_F(CommentCaptcha, StandsOnThePageThatWantsAConfirmation) {
    Use(u"plain"_s);
    QString page = SendOld(100003);
    EXPECT_TRUE(Holds(page, u"Please enter the text from the image"_s));
    EXPECT_TRUE(Holds(page, u"value=\"Post A Comment\""_s));
    EXPECT_EQ(Journal(), QStringList{u"comment 900001 100003 captcha"_s});
    page = Confirm(page, u"surely-not"_s);
    EXPECT_TRUE(Holds(page, u"Security code does not match"_s));
    EXPECT_EQ(Journal(), QStringList{u"comment 900001 100003 captcha-wrong"_s});
    page = Sent(ActionOf(page), {{u"round"_s, u"1"_s}});
    EXPECT_TRUE(Holds(page, u"Please enter the text from the image"_s)) << "a press without a word";
    EXPECT_TRUE(Holds(Confirm(page, Word()), u"Your comment has been posted!"_s));
    EXPECT_EQ(Journal().last(), uR"(commented 900001 100003 "Hello")"_s);
}

TEST_F(CommentCaptcha, IsAskedForOnceWhereThereAreTwoConfirmations) {
    Use(u"skin"_s);
    QString page = Sent(Old(100003), Fields(*FormNamed(CommentDesigns(), u"skin"_s)));
    page = Confirm(page, Word());
    EXPECT_TRUE(Holds(page, u"Click the button below to confirm"_s));
    EXPECT_FALSE(page.contains(u"from the image"_s));
    EXPECT_TRUE(Holds(Sent(ActionOf(page), {{u"round"_s, u"2"_s}}), u"Your comment has been posted!"_s));
}

TEST_F(CommentCaptcha, StandsInPlaceOfTheListAfterTheBox) {
    Use(u"box"_s);
    EXPECT_TRUE(Holds(SendNew(100003), u"Please enter the text from the image"_s));
    EXPECT_TRUE(Holds(Sent(New(100003), {{u"ctl00$captcha_text"_s, u"surely-not"_s}}),
                      u"Security code does not match"_s));
    EXPECT_TRUE(
        Holds(Sent(New(100003), {{u"ctl00$captcha_text"_s, Word()}}), u"Your comment has been posted!"_s));
    EXPECT_EQ(Journal().last(), uR"(commented 900001 100003 "Hello")"_s);
}

TEST_F(CommentForms, ThereIsNothingToConfirmWithoutAComment) {
    Use(u"plain"_s);
    const QString url =
        u"http://comment.myspace.example.com/index.cfm?fuseaction=user.confirmComment&friendID=100003"_s;
    EXPECT_TRUE(Holds(Sent(url, {{u"round"_s, u"1"_s}}), u"There is nothing to confirm"_s));
    EXPECT_TRUE(Journal().isEmpty());
}

TEST_F(CommentForms, ControlsThatMakeNoSenseAreRefused) {
    for (const QString& line :
         {u"comment-form 100003 nothing"_s, u"comment-form all"_s, u"comment-outcome 100003 sent"_s,
          u"comment-share posted 50"_s, u"comment-refuse 100003 12"_s, u"comment-limit x"_s})
        EXPECT_NE(client.site.Control(line), QString()) << line.toStdString();
}

TEST_F(CommentForms, BothLayoutsOfAProfileLeadToTheirForms) {
    client.Control(u"share sent 100"_s);
    EXPECT_TRUE(Holds(Text(SiteClient::root + u"/100003"_s), New(100003) + u"\">Add Comment"_s));
    const QString classic = client.Text(SiteClient::root + u"/100003/classic"_s);
    EXPECT_TRUE(Holds(classic, Old(100003).toHtmlEscaped() + u"\">Add Comment"_s));
    EXPECT_TRUE(Holds(classic, u"fuseaction=mail.message&amp;friendID=100003\">Send Message"_s));
}

} // namespace
} // namespace qlm::practice
