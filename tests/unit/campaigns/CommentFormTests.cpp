// SPDX-License-Identifier: MIT
#include "BrowserTest.h"
#include "campaigns/CommentBox.h"
#include "campaigns/CommentForm.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class CommentFormTest : public BrowserTest {
protected:
    Document Page() { return Browser().Document(); }
    QString ValueOf(const QString& id) { return Page().GetElementById(id).Value(); }
    // The IDs of what the form and the page after it would be pressed by; "" for nothing.
    QString FormButton(const QString& body) {
        Show(body);
        return FindFormButton(Page()).Id();
    }
    QString Confirm(const QString& body) {
        Show(body);
        const ConfirmButton button = FindConfirmButton(Page());
        return button.element.Id() + (button.isDisabled ? u" disabled"_s : QString());
    }
};

TEST_F(CommentFormTest, EachOfItsFieldsTellsThatTheFormHasCome) {
    for (const QString& name : {u"ctl00$ctl00$cpMain$UserWriteCommentsControl$commentTextBox"_s,
                                u"ctl00$cpMain$postComment$commentTextBox"_s,
                                u"ctl00_ctl00_cpMain_cpMain_ctl02_ctl00"_s, u"commentText"_s}) {
        Show(u"<input name='%1'>"_s.arg(name));
        EXPECT_TRUE(HasCommentField(Page())) << name.toStdString();
        Show(u"<div id='%1'></div>"_s.arg(name));
        EXPECT_TRUE(HasCommentField(Page())) << name.toStdString();
        Show(u"<input name='x%1'>"_s.arg(name));
        EXPECT_FALSE(HasCommentField(Page())) << name.toStdString();
    }
}

TEST_F(CommentFormTest, EveryDesignsFieldGetsTheTextByNameOrId) {
    for (const QString& name :
         {u"ctl00_Main_postComment_commentTextBox"_s, u"ctl00_cpMain_postComment_commentTextBox"_s,
          u"ctl00_cpMain_UserWriteCommentsControl_Skin_commentTextBox"_s,
          u"ctl00$cpMain$UserWriteCommentsControl$commentTextBox"_s,
          u"ctl00$ctl00$cpMain$UserWriteCommentsControl$commentTextBox"_s, u"commentText"_s}) {
        Show(u"<textarea id=a name='%1'></textarea><textarea id='%1'></textarea>"
             "<textarea id=b name='x%1'>old</textarea>"_s.arg(name));
        TypeComment(Page(), u"a\r\nb"_s);
        EXPECT_EQ(ValueOf(u"a"_s), u"a\nb"_s) << name.toStdString();
        EXPECT_EQ(ValueOf(name), u"a\nb"_s) << name.toStdString();
        EXPECT_EQ(ValueOf(u"b"_s), u"old"_s) << name.toStdString();
    }
}

TEST_F(CommentFormTest, TheSharedFieldIsOne) {
    Show(u"<textarea id=a name=commentText></textarea>"
         "<textarea id=b name='ctl00$ctl00$cpMain$UserWriteCommentsControl$commentTextBox'>old</textarea>"_s);
    TypeSharedField(Page(), u"x"_s);
    EXPECT_EQ(ValueOf(u"a"_s) + ValueOf(u"b"_s), u"xold"_s);
}

TEST_F(CommentFormTest, AnEditorIsKnownByTheMarkupAndTypedIntoByItsSource) {
    for (const QString& editor :
         {u"ctl00_ctl00_cpMain_cpMain_ctl02_ctl00"_s, u"ctl00_ctl00_cpMain_cpMain_ctl02_ctl01"_s}) {
        Show(u"<div id='%1'></div><textarea id='%1_editsourcearea'></textarea>"_s.arg(editor));
        EXPECT_TRUE(HasEditor(Page().BodyHTML())) << editor.toStdString();
        TypeSource(Page(), u"<b>x</b>"_s);
        EXPECT_EQ(ValueOf(editor + u"_editsourcearea"_s), u"<b>x</b>"_s) << editor.toStdString();
    }
    Show(u"<div id=ctl00_ctl00_cpMain_cpMain_ctl02_ctl02></div>"_s);
    EXPECT_FALSE(HasEditor(Page().BodyHTML()));
    EXPECT_NO_THROW(TypeSource(Page(), u"x"_s));
}

TEST_F(CommentFormTest, OfTwoSourcesTheFirstEditorsIsTyped) {
    Show(u"<textarea id=ctl00_ctl00_cpMain_cpMain_ctl02_ctl01_editsourcearea>old</textarea>"
         "<textarea id=ctl00_ctl00_cpMain_cpMain_ctl02_ctl00_editsourcearea></textarea>"_s);
    TypeSource(Page(), u"x"_s);
    EXPECT_EQ(ValueOf(u"ctl00_ctl00_cpMain_cpMain_ctl02_ctl00_editsourcearea"_s), u"x"_s);
    EXPECT_EQ(ValueOf(u"ctl00_ctl00_cpMain_cpMain_ctl02_ctl01_editsourcearea"_s), u"old"_s);
}

TEST_F(CommentFormTest, TheEditorsBoxHasOneName) {
    Show(u"<input name='ctl00$ctl00$cpMain$UserWriteCommentsControl$commentTextBox'>"_s);
    EXPECT_TRUE(HasEditorBox(Page()));
    Show(u"<input name=commentText>"_s);
    EXPECT_FALSE(HasEditorBox(Page()));
}

TEST_F(CommentFormTest, AnInputPostsBeforeAButtonAndThatBeforeThePicture) {
    const QString picture = u"<input type=image id=ctl00_cpMain_postComment_postcommentImageButton>"_s;
    const QString button = u"<button id=b value=x> Post a Comment </button>"_s;
    const QString byValue = u"<button id=v value=' POST A COMMENT '>Go</button>"_s;
    const QString input = u"<input type=submit id=i value=' Post A Comment '>"_s;
    const QString other = u"<input type=submit value='Post a comment about Tom'><button>Post</button>"_s;
    EXPECT_EQ(FormButton(other + picture + button + byValue + input), u"i"_s);
    EXPECT_EQ(FormButton(other + picture + button + byValue), u"b"_s);
    EXPECT_EQ(FormButton(other + picture + byValue), u"v"_s);
    EXPECT_EQ(FormButton(other + picture), u"ctl00_cpMain_postComment_postcommentImageButton"_s);
    EXPECT_EQ(FormButton(other), QString());
}

TEST_F(CommentFormTest, APageIsConfirmedByItsSubmitButtonThenByAButtonWithTheCaption) {
    const QString input = u"<input type=submit id=i value='POST the Comment'>"_s;
    const QString button = u"<button id=b>Post a Comment</button>"_s;
    const QString byValue = u"<button id=v value='post a comment'>Go</button>"_s;
    const QString others = u"<input type=button value='post comment'><input type=submit value='post'>"
                           "<input type=submit value='comment'><button>post</button>"_s;
    EXPECT_EQ(Confirm(others + button + input), u"i"_s);
    EXPECT_EQ(Confirm(others + button), u"b"_s);
    EXPECT_EQ(Confirm(others + byValue), u"v"_s);
    EXPECT_EQ(Confirm(others), QString());
}

TEST_F(CommentFormTest, AConfirmButtonThatCanNotBePressedGivesWayToOneThatCan) {
    const QString input = u"<input type=submit id=i value='Post Comment' disabled>"_s;
    EXPECT_EQ(Confirm(input + u"<button id=b>post a comment</button>"_s), u"b"_s);
    EXPECT_EQ(Confirm(input + u"<button id=b disabled>post a comment</button>"_s), u"i disabled"_s);
    EXPECT_EQ(Confirm(u"<button id=b disabled>post a comment</button>"_s), u"b disabled"_s);
    EXPECT_EQ(Confirm(input + u"<input type=submit id=j value='Post Comment'>"_s), u"i disabled"_s);
}

TEST_F(CommentFormTest, TheBoxIsKnownByItsPlaceholderAndGrownByTheClassAroundIt) {
    Show(u"<textarea id=s placeholder=Search></textarea>"
         "<div class='wide Absolute'><textarea id=t placeholder='post A COMMENT here'></textarea></div>"_s);
    EXPECT_EQ(FindCommentBox(Page()).Id(), u"t"_s);
    EXPECT_TRUE(HasGrown(FindCommentBox(Page())));
    EXPECT_FALSE(HasGrown(Page().GetElementById(u"s"_s)));
    Show(u"<input placeholder='Post a comment'>"_s);
    EXPECT_TRUE(FindCommentBox(Page()).IsNull());
    EXPECT_FALSE(HasGrown({}));
}

TEST_F(CommentFormTest, TheTextGoesIntoTheBoxAndWhatShowsItBesideIt) {
    Show(u"<p id=outside>old</p><div><textarea id=t placeholder='Post a comment'></textarea>"
         "<span id=hint>post a comment...</span><textarea id=mirror></textarea>"
         "<p id=bar>Tools <button id=b>Post</button></p><button id=c>Post</button></div>"_s);
    WriteIntoBox(FindCommentBox(Page()), u"Hello"_s);
    EXPECT_EQ(ValueOf(u"t"_s) + ValueOf(u"mirror"_s), u"HelloHello"_s);
    EXPECT_EQ(Page().GetElementById(u"hint"_s).InnerText(), u"Hello"_s);
    for (const QString& id : {u"b"_s, u"c"_s})
        EXPECT_EQ(Page().GetElementById(id).InnerText(), u"Post"_s);
    EXPECT_EQ(Page().GetElementById(u"outside"_s).InnerText(), u"old"_s);
}

// Nor what lies deeper, and nothing that holds a control of its own.
TEST_F(CommentFormTest, WhatIsNoTextBesideTheBoxStaysAsItIs) {
    for (const QString& tag : {u"input"_s, u"select"_s, u"script"_s, u"style"_s, u"button"_s}) {
        Show(u"<div><textarea id=t placeholder='Post a comment'></textarea>"
             "<p id=holds>Old <b id=deep>old</b><%1></%1></p></div>"_s.arg(tag));
        WriteIntoBox(FindCommentBox(Page()), u"Hello"_s);
        EXPECT_EQ(ValueOf(u"t"_s), u"Hello"_s) << tag.toStdString();
        EXPECT_EQ(Page().GetElementById(u"holds"_s).InnerText().trimmed(), u"Old old"_s) << tag.toStdString();
    }
}

TEST_F(CommentFormTest, ThePostButtonIsTheFirstThatShows) {
    Show(u"<input type=submit value=post><button id=p>Post preview</button><button id=q>Preview</button>"
         "<button id=h style='color: red; DISPLAY: NONE'>Post</button>"
         "<button id=g style='display:none'>Post</button><button id=a> POST </button>"
         "<button id=b>Post</button>"_s);
    EXPECT_EQ(FindPostButton(Page()).Id(), u"a"_s);
    const int pressed = FindPostButton(Page()).Node();
    EXPECT_EQ(FindPostButton(Page(), pressed).Id(), u"b"_s);
    // After the last one the first that shows is pressed once more.
    EXPECT_EQ(FindPostButton(Page(), FindPostButton(Page(), pressed).Node()).Id(), u"a"_s);
    Show(u"<button>Preview</button>"_s);
    EXPECT_TRUE(FindPostButton(Page()).IsNull());
}

TEST(CommentMarkup, IsATextWithBothBrackets) {
    EXPECT_TRUE(HoldsMarkup(u"a <b> c"_s));
    EXPECT_FALSE(HoldsMarkup(u"1 < 2"_s));
    EXPECT_FALSE(HoldsMarkup(u"2 > 1"_s));
}

} // namespace
} // namespace qlm
