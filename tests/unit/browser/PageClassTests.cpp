// SPDX-License-Identifier: MIT
#include "BrowserTest.h"
#include "browser/PageClassifier.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

enum Effect { Nothing, Skips, Limits };

// What a page of the class says, and what follows from it. No class but 32 looks at the address.
struct ClassRow {
    int pageClass;
    const char16_t* text;
    Effect effect = Nothing;
    bool isErrorPage = true;
    const char* action = "FR";
};

const ClassRow Classes[] = {
    {1, u"This profile is undergoing routine maintenance"},
    {2, u"This member is already one of your friends."},
    {3, u"you already have a pending friend request for this person"},
    {4, u"you can't send a message to"},
    {5, u"invalid friend id"},
    {5, u"invalid id. go to user profile"},
    {6, u"an application error occurred on the server"},
    {7, u"only accepts add requests from people"},
    {8, u"does not accept friend requests from"},
    {9, u"the page you are looking for is currently unavailable"},
    {10, u"server is too busy"},
    {11, u"this user's profile has been temporarily disabled"},
    {12, u"this user requires all comments to be approved", Nothing, false},
    {13, u"you have exceeded your daily useage", Limits},
    {14, u"user has exceeded their daily useage", Limits},
    {15, u"you must be someone's friend to make comments", Skips, false},
    {16, u"this profile is set to private", Skips},
    {17, u"server error in"},
    {18, u"the page cannot be displayed"},
    {20, u"MailMaintenance"},
    {21, u"an error has occurred trying to send this message"},
    {22, u"a friend to send? you must be one to send a message"},
    {22, u"only allow messages from friends"},
    {23, u"they have set an away message"},
    {24, u"LinkContent1 ReturnMessage1"},
    {25, u"an error occurred while trying to process your request"},
    {26, u"invalid user. send a message"},
    {27, u"does not accept add requests from bands"},
    {28, u"you already sent a request to add friend to this member"},
    {29, u"this program cannot display the webpage"},
    {30, u"the page cannot be found"},
    {31, u"the page you are looking for might have been removed"},
    {33, u"has blocked you and removed you from their friends list"},
    {34, u"Getting Started with MySpaceIM for Web"},
    {35, u"Please enter UserName/Screen Name", Skips},
    {36, u"You have blocked Ann and removed them from your friends list"},
    {37, u"This person is already your friend"},
    {38, u"the page you wish to access cannot be found", Skips},
    {39, u"we couldn’t locate the page you are looking for", Skips},
    {40, u"the webpage cannot be found"},
    {41, u"you cannot add yourself as a friend"},
    {42, u"sorry, the profile of Ann is only viewable by friends", Skips},
    {43, u"an error occurred and the page you requested is unavailable", Skips},
    {44, u"There is a problem with the resource you are looking for, and it cannot be displayed", Skips},
    {45, u"You already have a pending friend request for", Skips},
    {46, u"is already your friend", Skips},
    {47, u"this action is blocked due to age restrictions", Skips},
    {48, u"doesn't accept friend requests from bands", Skips},
    {49, u"What's my email address?", Skips},
    {50, u"you have reached the maximum limit of friend requests for the day", Limits},
    {50, u"an error occurred while processing your friend request", Limits},
};

class PageClassTest : public BrowserTest {
protected:
    // The class of a page with the texts, while the activity runs.
    int ClassOf(const QString& text, const QString& action = u"FR"_s,
                const QString& address = u"{SiteRootHost}/page"_s) {
        Show(address, u"<p>"_s + text + u"</p>"_s);
        State().CurrentAction = action;
        State().blnSkipCurrentID = false;
        State().blnDailyLimitHit = false;
        isErrorPage = app->Get<PageClassifier>().ClassifyErrorPage();
        return State().intPageClass;
    }
    static QString TextOf(int pageClass) {
        for (const ClassRow& row : Classes)
            if (row.pageClass == pageClass)
                return QString::fromUtf16(row.text);
        return {};
    }
    bool isErrorPage = false;
};

TEST_F(PageClassTest, EveryPageHasItsClassAndEffect) {
    for (const ClassRow& row : Classes) {
        SCOPED_TRACE(row.pageClass);
        EXPECT_EQ(ClassOf(QString::fromUtf16(row.text), QString::fromLatin1(row.action)), row.pageClass);
        EXPECT_EQ(isErrorPage, row.isErrorPage);
        EXPECT_EQ(State().blnSkipCurrentID, row.effect == Skips);
        EXPECT_EQ(State().blnDailyLimitHit, row.effect == Limits);
    }
}

TEST_F(PageClassTest, LetterCaseCountsForTheFirstClassAlone) {
    for (const ClassRow& row : Classes) {
        SCOPED_TRACE(row.pageClass);
        const QString text = QString::fromUtf16(row.text);
        EXPECT_EQ(ClassOf(text.toUpper()), row.pageClass == 1 ? 0 : row.pageClass);
        EXPECT_EQ(ClassOf(text.toLower()), row.pageClass == 1 ? 0 : row.pageClass);
    }
}

TEST_F(PageClassTest, WhatStandsInTheMarkupAloneIsNoText) {
    for (const ClassRow& row : Classes) {
        SCOPED_TRACE(row.pageClass);
        const QString text = QString::fromUtf16(row.text);
        EXPECT_EQ(ClassOf(u"<i title=\""_s + text + u"\">x</i>"_s), 0);
    }
    EXPECT_EQ(ClassOf(TextOf(16) + u"<i title='last login'>x</i>"_s), 16);
    EXPECT_EQ(ClassOf(u"<i title=\""_s + TextOf(16) + u"\">x</i>"_s, u"COM"_s), 0);
}

TEST_F(PageClassTest, APrivateProfileIsARefusalForCommentsWhateverElseItShows) {
    EXPECT_EQ(ClassOf(TextOf(16).toUpper() + u" last login"_s, u"COM"_s), 16);
    EXPECT_TRUE(isErrorPage);
    EXPECT_EQ(ClassOf(TextOf(17) + TextOf(16) + u" last login"_s, u"COM"_s), 16);
}

TEST_F(PageClassTest, EveryErrorPageHasWordsForTheReport) {
    for (const ClassRow& row : Classes)
        EXPECT_NE(RefusalText(row.pageClass).isEmpty(), row.isErrorPage) << row.pageClass;
    EXPECT_FALSE(RefusalText(32).isEmpty());
}

// The halves of a class of two texts in the markup.
TEST_F(PageClassTest, AClassOfTwoTextsNeedsBothAsText) {
    const QList<QStringList> classes{{u"invalid id"_s, u"go to user profile"_s},
                                     {u"friend to send"_s, u"you must be"_s, u"a message"_s},
                                     {u"LinkContent1"_s, u"ReturnMessage1"_s},
                                     {u"invalid user"_s, u"send a message"_s},
                                     {u"You have blocked"_s, u"and removed them from your friends list"_s},
                                     {u"sorry, the profile of"_s, u"is only viewable by friends"_s}};
    for (const QStringList& texts : classes)
        for (qsizetype hidden = 0; hidden < texts.size(); ++hidden) {
            QStringList shown = texts;
            shown[hidden] = u"<i title='"_s + shown[hidden] + u"'>x</i>"_s;
            EXPECT_EQ(ClassOf(shown.join(u' ')), 0) << shown.join(u' ').toStdString();
        }
}

// A page that carries the texts of two classes belongs to the one that is tried first.
TEST_F(PageClassTest, OfTwoClassesTheFirstWins) {
    for (int first = 1; first < 50; ++first) {
        int second = first + 1;
        if (second == 19 || second == 32)
            ++second;
        if (first == 19 || first == 32)
            continue;
        SCOPED_TRACE(first);
        EXPECT_EQ(ClassOf(TextOf(second) + u" <p>"_s + TextOf(first)), first);
    }
}

TEST_F(PageClassTest, TheErrorAddressIsTriedBetweenItsNeighbours) {
    const QString address = u"{SiteRootHost}/Error.aspx"_s;
    EXPECT_EQ(ClassOf(u"Welcome"_s, u"FR"_s, address), 32);
    EXPECT_TRUE(isErrorPage);
    EXPECT_FALSE(State().blnSkipCurrentID);
    EXPECT_FALSE(State().blnDailyLimitHit);
    EXPECT_EQ(ClassOf(u"Welcome"_s, u"FR"_s, address + u"?from=list"_s), 32);
    EXPECT_EQ(ClassOf(TextOf(31), u"FR"_s, address), 31);
    EXPECT_EQ(ClassOf(TextOf(33), u"FR"_s, address), 32);
    EXPECT_EQ(ClassOf(u"Welcome"_s, u"FR"_s, u"{SiteRootHost}/errors.aspx"_s), 0);
}

TEST_F(PageClassTest, AClassOfTwoTextsNeedsBoth) {
    for (const QString& half : {u"invalid id"_s, u"go to user profile"_s, u"friend to send, you must be"_s,
                                u"you must be a message"_s, u"friend to send a message"_s, u"LinkContent1"_s,
                                u"ReturnMessage1"_s, u"invalid user"_s, u"send a message"_s,
                                u"You have blocked"_s, u"and removed them from your friends list"_s,
                                u"sorry, the profile of"_s, u"is only viewable by friends"_s})
        EXPECT_EQ(ClassOf(half), 0) << half.toStdString();
}

TEST_F(PageClassTest, SomeClassesBelongToAnActivity) {
    for (int onlyRequesting : {7, 41}) {
        EXPECT_EQ(ClassOf(TextOf(onlyRequesting), u"MSG"_s), 0) << onlyRequesting;
        EXPECT_EQ(ClassOf(TextOf(onlyRequesting), u"COM"_s), 0) << onlyRequesting;
    }
    EXPECT_EQ(ClassOf(TextOf(20), u"DEL PEN"_s), 0);
    EXPECT_EQ(ClassOf(TextOf(20), u"ACC"_s), 20);
}

TEST_F(PageClassTest, APrivateProfileThatShowsALastLoginIsNormalUnlessForComments) {
    const QString page = TextOf(16) + u" Last Login: 1/2/2009"_s;
    EXPECT_EQ(ClassOf(page, u"FR"_s), 0);
    EXPECT_FALSE(State().blnSkipCurrentID);
    EXPECT_EQ(ClassOf(page, u"COM"_s), 16);
    EXPECT_TRUE(State().blnSkipCurrentID);
}

TEST_F(PageClassTest, AnOrdinaryPageHasNoClass) {
    State().intPageClass = 7;
    EXPECT_EQ(ClassOf(u"Welcome"_s), 0);
    EXPECT_FALSE(isErrorPage);
    EXPECT_FALSE(SaidBeginningWith(u"MAINTENANCEPAGE"_s));
}

TEST_F(PageClassTest, FourActivitiesNoteTheClass) {
    for (const QString& action : {u"SCANNING"_s, u"FR"_s, u"COM"_s, u"MSG"_s}) {
        trail.clear();
        ClassOf(TextOf(12), action);
        EXPECT_TRUE(Said(u"MAINTENANCEPAGE: 12"_s)) << action.toStdString();
    }
    for (const QString& action : {u"ACC"_s, u"LOGIN"_s, u"BUL"_s, QString()}) {
        trail.clear();
        ClassOf(TextOf(12), action);
        EXPECT_FALSE(SaidBeginningWith(u"MAINTENANCEPAGE"_s)) << action.toStdString();
    }
}

TEST_F(PageClassTest, APageIsJudgedWhenItHasADocument) {
    const QString url = u"http://www.site.example.com/empty"_s;
    world.web.SetPage(url, u"<body>"_s + TextOf(1) + u"</body>"_s);
    world.web.SetFault(url, SimFault::NoBody, 1);
    Browser().Navigate(url);
    platform->Pump().RunFor(500);
    State().CurrentAction = u"FR"_s;
    app->Get<PageClassifier>().ClassifyErrorPage();
    EXPECT_EQ(State().intPageClass, 1);
}

} // namespace
} // namespace qlm
