// SPDX-License-Identifier: MIT
#include "BrowserTest.h"
#include "steps/StepDispatcher.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

struct Expectation {
    QString type;
    QString value;
    QString page;
    bool found;
};

class ExpectedElementTest : public BrowserTest {
protected:
    ExpectedElementTest() { State().CurrentAction = u"BUL"_s; }
    bool Find(const QString& type, const QString& value, const QString& page,
              SimFault fault = SimFault::None) {
        Show(u"{SiteRootHost}/page"_s, page, fault);
        Await(type, value);
        return Look();
    }
    bool Look() {
        State().blnLinkFound = false;
        return app->Get<StepDispatcher>().CheckLinkFound();
    }
};

TEST_F(ExpectedElementTest, EachKindFindsItsElement) {
    const std::vector<Expectation> rows{
        {u"Text"_s, u"Request SENT"_s, u"<p>request sent!</p>"_s, true},
        {u"Text"_s, u"span"_s, u"<span>x</span>"_s, false},
        {u"TextHTML"_s, u"ADDfrd"_s, u"<i id=addFrdBtn></i>"_s, true},
        {u"TextHTML"_s, u"addFrd"_s, u"<p>add frd</p>"_s, false},
        {u"Link"_s, u"SignOut"_s, u"<a href='/x'>signout now</a>"_s, true},
        {u"Link"_s, u"signout"_s, u"<a href='/SIGNOUT?x'>leave</a>"_s, true},
        {u"Link"_s, u"signout"_s, u"<a href='/x'>leave</a><p>signout</p>"_s, false},
        {u"Link"_s, u"signout"_s, u"<a name=signout>signout</a>"_s, false},
        {u"Image"_s, u"send.GIF"_s, u"<img src='/a/Send.gif'>"_s, true},
        {u"Image"_s, u"send.gif"_s, u"<img src='/a/resend.gif'>"_s, false},
        {u"Image"_s, u"send"_s, u"<input type=image src='/a/resend.gif'>"_s, true},
        {u"Image"_s, u"Send"_s, u"<input name='btnSENDnow'>"_s, true},
        {u"Image"_s, u"send"_s, u"<input value='send'>"_s, false},
        {u"Image"_s, u"send"_s, u"<button value='post a comment'>x</button>"_s, false},
        {u"Button"_s, u"send it"_s, u"<input type=submit value=' SEND it '>"_s, true},
        {u"Button"_s, u"send it"_s, u"<input type=submit value='send it all'>"_s, false},
        {u"Button"_s, u"send it"_s, u"<button value='Send It'>x</button>"_s, true},
        {u"Button"_s, u"send it"_s, u"<button value='x'> Send It </button>"_s, true},
        {u"Button"_s, u"send it"_s, u"<button value='x'>Send It All</button>"_s, false},
        {u"Button"_s, u"send it"_s, u"<a href='/x'>send it</a>"_s, false},
        {u"ID"_s, u"box1"_s, u"<i id=box1></i>"_s, true},
        {u"ID"_s, u"box1"_s, u"<i name=box1></i>"_s, false},
        {u"Other"_s, u"box1"_s, u"<i id=box1>box1</i>"_s, false},
    };
    for (const Expectation& row : rows) {
        EXPECT_EQ(Find(row.type, row.value, row.page), row.found)
            << row.type.toStdString() << ": " << row.page.toStdString();
        EXPECT_EQ(State().blnLinkFound, row.found);
    }
}

TEST_F(ExpectedElementTest, TheCommentButtonIsAnImageAtItsStep) {
    const QString page = u"<button value=' Post a Comment '>x</button>"_s;
    State().intComStep = 7;
    EXPECT_TRUE(Find(u"Image"_s, u"any.gif"_s, page));
    State().intComStep = 6;
    EXPECT_FALSE(Look());
}

TEST_F(ExpectedElementTest, AStepCountsForItsOwnActivityAlone) {
    State().intComStep = 8;
    State().intMsgStep = 8;
    EXPECT_FALSE(Find(u"Text"_s, u"your comment has been posted"_s,
                      u"<i id=ctl00_ctl00_cpMain_cpMain_ctl02_ctl00></i>"_s));
    EXPECT_FALSE(Find(u"Text"_s, u"your message has been sent"_s, u"<p>Welcome</p>"_s));
    EXPECT_EQ(State().intConfirmPolls, 0);
    EXPECT_EQ(State().intComStep, 8);
    // At the step of the comment button a page without one has none.
    State().intComStep = 7;
    EXPECT_FALSE(Find(u"Image"_s, u"any.gif"_s, u"<button value='Preview'>x</button>"_s));
    State().CurrentAction = u"ACC"_s;
    EXPECT_FALSE(Find(u"Link"_s, u"nowhere"_s, u"<p>There are 2 requests in this folder</p>"_s));
}

TEST_F(ExpectedElementTest, WhatWasFoundOnceIsNotFoundAgain) {
    EXPECT_TRUE(Find(u"Text"_s, u"hello"_s, u"hello"_s));
    EXPECT_FALSE(app->Get<StepDispatcher>().CheckLinkFound());
    EXPECT_TRUE(State().blnLinkFound);
}

TEST_F(ExpectedElementTest, AnEmptyFolderIsFoundWhateverIsWaitedFor) {
    for (const QString& text : {u"There are 0 messages in this folder"_s,
                                u"there are 0 requests in this folder"_s, u"you have no requests"_s}) {
        for (const QString& action : {u"ACC"_s, u"DEL PEN"_s}) {
            State().CurrentAction = action;
            for (const QString& type : {u"Link"_s, u"ID"_s, u"Image"_s, u"Text"_s})
                EXPECT_TRUE(Find(type, u"nowhere"_s, u"<p>"_s + text + u"</p>"_s)) << text.toStdString();
        }
        State().CurrentAction = u"BUL"_s;
        EXPECT_FALSE(Find(u"Link"_s, u"nowhere"_s, u"<p>"_s + text + u"</p>"_s));
    }
}

TEST_F(ExpectedElementTest, AnEmptyFolderSaysSoInItsText) {
    State().CurrentAction = u"ACC"_s;
    for (const QString& text : {u"there are 0 messages in this folder"_s,
                                u"there are 0 requests in this folder"_s, u"You have no requests"_s}) {
        EXPECT_TRUE(Find(u"Link"_s, u"nowhere"_s, u"<p>"_s + text.toUpper() + u"</p>"_s));
        EXPECT_FALSE(Find(u"Link"_s, u"nowhere"_s, u"<p title='"_s + text + u"'>x</p>"_s));
    }
}

TEST_F(ExpectedElementTest, AnAdvertisersProfileCountsForTheLastLogin) {
    EXPECT_TRUE(Find(u"Text"_s, u"Last Login:"_s, u"<i class=advertiserprofile></i>"_s));
    EXPECT_TRUE(Find(u"Text"_s, u"last login:"_s, u"<p>View My: pics</p>"_s));
    EXPECT_FALSE(Find(u"Text"_s, u"last login:"_s, u"<p>Welcome</p>"_s));
    EXPECT_FALSE(Find(u"Text"_s, u"last login"_s, u"<p>View My: pics</p>"_s));
}

TEST_F(ExpectedElementTest, ACommentFormInPlaceOfTheConfirmationBeginsAnew) {
    State().CurrentAction = u"COM"_s;
    State().intComStep = 8;
    const QString form = u"<i id=ctl00_ctl00_cpMain_cpMain_ctl02_ctl00></i>"_s;
    EXPECT_TRUE(Find(u"Text"_s, u"your comment has been posted"_s, form));
    EXPECT_EQ(State().intComStep, 4);
    EXPECT_TRUE(State().blnForceAdvance);
    EXPECT_TRUE(SaidBeginningWith(u"GONE BACK - "_s));
    State().intComStep = 9;
    EXPECT_FALSE(Find(u"Text"_s, u"your comment has been posted"_s, form));
    EXPECT_EQ(State().intComStep, 9);
    State().intComStep = 8;
    EXPECT_FALSE(Find(u"TextHTML"_s, u"your comment has been posted"_s, form));
    EXPECT_EQ(State().intComStep, 8);
}

TEST_F(ExpectedElementTest, APostedCommentIsNotBegunAnewByTheFormBesideIt) {
    State().CurrentAction = u"COM"_s;
    State().intComStep = 8;
    EXPECT_TRUE(Find(u"Text"_s, u"your comment has been posted"_s,
                     u"Your comment has been posted!<i id=ctl00_ctl00_cpMain_cpMain_ctl02_ctl00></i>"_s));
    EXPECT_EQ(State().intComStep, 8);
}

// Without a page in between.
TEST_F(ExpectedElementTest, APostedCommentCountsForThePageThatConfirmsIt) {
    State().CurrentAction = u"COM"_s;
    State().intComStep = 11;
    EXPECT_TRUE(Find(u"Button"_s, u"post a comment"_s, u"<p>Your comment has been posted!</p>"_s));
    EXPECT_FALSE(Find(u"Button"_s, u"post a comment"_s, u"<p title='your comment has been posted!'>x</p>"_s));
    State().intComStep = 6;
    EXPECT_FALSE(Find(u"Button"_s, u"post a comment"_s, u"<p>Your comment has been posted!</p>"_s));
    State().CurrentAction = u"MSG"_s;
    State().intComStep = 11;
    EXPECT_FALSE(Find(u"Button"_s, u"post a comment"_s, u"<p>Your comment has been posted!</p>"_s));
}

// The profile's owner sees it first; the site says no more.
TEST_F(ExpectedElementTest, ACommentThatIsToBeApprovedHasBeenPosted) {
    const QString says = u"<p>This user requires all comments to be approved</p>"_s;
    State().CurrentAction = u"COM"_s;
    for (const auto& [step, type, awaited] : {std::tuple(11, u"Button"_s, u"post a comment"_s),
                                              std::tuple(8, u"Text"_s, u"your comment has been posted"_s)}) {
        State().intComStep = static_cast<qint16>(step);
        State().blnCommentUsedEditor = false;
        EXPECT_TRUE(Find(type, awaited, says)) << step;
        EXPECT_FALSE(Find(type, awaited, says, SimFault::Incomplete)) << step;
        EXPECT_FALSE(Find(type, awaited, says + u"Click the button below to confirm"_s)) << step;
        State().blnCommentUsedEditor = true;
        EXPECT_FALSE(
            Find(u"TextHTML"_s, u"not there"_s,
                 says + u"<i id='ctl00$ctl00$cpMain$UserWriteCommentsControl$commentTextBox'></i>"_s))
            << step;
    }
    State().blnCommentUsedEditor = false;
    State().intComStep = 8;
    const QString button = u"<input type=submit value='Post a Comment'>"_s;
    EXPECT_FALSE(Find(u"Text"_s, u"your comment has been posted"_s, says + button));
    State().intComStep = 6;
    EXPECT_FALSE(Find(u"Text"_s, u"your comment has been posted"_s, says));
}

// A comment that the site wants confirmed on a page of its own.
class CommentConfirmationTest : public ExpectedElementTest {
protected:
    CommentConfirmationTest() {
        State().CurrentAction = u"COM"_s;
        State().intComStep = 8;
        app->Get<StepDispatcher>().confirmComment = [this] { ++confirmed; };
    }
    bool FindConfirmation(const QString& page, SimFault fault = SimFault::None) {
        return Find(u"Text"_s, u"your comment has been posted"_s, page, fault);
    }
    int confirmed = 0;
    const QString ConfirmPage = u"<p>Click the button below to confirm</p>"_s;
};

TEST_F(CommentConfirmationTest, ThePageIsClickedAtTheFifthCompleteLook) {
    EXPECT_FALSE(FindConfirmation(ConfirmPage));
    for (int look = 2; look <= 4; ++look)
        EXPECT_FALSE(Look());
    EXPECT_EQ(confirmed, 0);
    EXPECT_EQ(State().intConfirmPolls, 4);
    EXPECT_FALSE(Look());
    EXPECT_EQ(confirmed, 1);
    EXPECT_EQ(State().intConfirmPolls, 0);
    EXPECT_FALSE(State().blnLinkFound);
}

TEST_F(CommentConfirmationTest, AnyOtherLookBeginsTheCountAnew) {
    const std::vector<std::pair<QString, SimFault>> others{
        {u"<p>Welcome</p>"_s, SimFault::None},
        {ConfirmPage, SimFault::Incomplete},
        {ConfirmPage + u"Type the two words:"_s, SimFault::None},
        {ConfirmPage + u"Your comment has been posted"_s, SimFault::None}};
    for (const auto& [page, fault] : others) {
        State().intComStep = 8;
        State().intConfirmPolls = 4;
        FindConfirmation(page, fault);
        EXPECT_EQ(State().intConfirmPolls, 0) << page.toStdString();
    }
    EXPECT_EQ(confirmed, 0);
}

TEST_F(CommentConfirmationTest, AnErrorOfTheLookIsLeftToTheNextOne) {
    app->Get<StepDispatcher>().confirmComment = [this] {
        ++confirmed;
        throw BrowserError();
    };
    State().intConfirmPolls = 4;
    EXPECT_FALSE(FindConfirmation(ConfirmPage));
    EXPECT_EQ(confirmed, 1);
    EXPECT_EQ(State().intConfirmPolls, 0);
    EXPECT_FALSE(QFile::exists(State().ErrorLogPath));
}

TEST_F(CommentConfirmationTest, OnlyTheStepThatAwaitsTheConfirmationCounts) {
    State().intConfirmPolls = 4;
    State().intComStep = 7;
    State().blnSubmittingComment = true;
    FindConfirmation(ConfirmPage);
    State().intComStep = 8;
    Find(u"Text"_s, u"something else"_s, ConfirmPage);
    Find(u"TextHTML"_s, u"your comment has been posted"_s, ConfirmPage);
    State().CurrentAction = u"MSG"_s;
    FindConfirmation(ConfirmPage);
    EXPECT_EQ(State().intConfirmPolls, 4);
    EXPECT_EQ(confirmed, 0);
}

TEST_F(ExpectedElementTest, AnUnconfirmedMessageFailsAtTheTenthCompletePage) {
    State().CurrentAction = u"MSG"_s;
    State().intMsgStep = 8;
    EXPECT_FALSE(Find(u"Text"_s, u"Your message has been sent"_s, u"<p>Welcome</p>"_s));
    for (int look = 2; look <= 9; ++look)
        EXPECT_FALSE(Look());
    EXPECT_EQ(State().intConfirmPolls, 9);
    EXPECT_FALSE(State().blnSkipCurrentID);
    EXPECT_FALSE(Look());
    EXPECT_EQ(GivenUp().intConfirmPolls, 0);
    EXPECT_TRUE(GivenUp().blnSkipCurrentID);
    EXPECT_TRUE(WatchdogAtGivingUp());
    EXPECT_EQ(GivenUp().intMsgStep, 8);
}

TEST_F(ExpectedElementTest, OnlyCompletePagesCountAgainstAMessage) {
    State().CurrentAction = u"MSG"_s;
    State().intMsgStep = 8;
    Find(u"Text"_s, u"your message has been sent"_s, u"<p>Welcome</p>"_s, SimFault::Incomplete);
    EXPECT_EQ(State().intConfirmPolls, 0);
    Find(u"Text"_s, u"your message has been sent"_s, u"<p>Please enter the image text</p>"_s);
    EXPECT_EQ(State().intConfirmPolls, 0);
    State().intMsgStep = 7;
    Find(u"Text"_s, u"your message has been sent"_s, u"<p>Welcome</p>"_s);
    EXPECT_EQ(State().intConfirmPolls, 0);
    State().intMsgStep = 8;
    Find(u"Text"_s, u"something else"_s, u"<p>Welcome</p>"_s);
    EXPECT_EQ(State().intConfirmPolls, 0);
    EXPECT_TRUE(Find(u"Text"_s, u"your message has been sent"_s, u"<p>Your message has been sent</p>"_s));
    EXPECT_EQ(State().intConfirmPolls, 0);
}

} // namespace
} // namespace qlm
