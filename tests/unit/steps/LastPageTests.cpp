// SPDX-License-Identifier: MIT
#include "BrowserTest.h"
#include "steps/StepDispatcher.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

// While the page before still stands in the browser.
class LastPageTest : public BrowserTest {
protected:
    void Begin(const QString& action) {
        State().CurrentAction = action;
        State().strLastPageText = u"page before"_s;
        Await(u"Text"_s, u"wanted"_s);
    }
    bool Check() { return app->Get<StepDispatcher>().CheckLinkFound(); }
    const QString Before = u"<p>page before, wanted</p>"_s;
};

TEST_F(LastPageTest, WithoutAnExpectationNothingIsFound) {
    Show(u"<p>wanted</p>"_s);
    Begin(u"ACC"_s);
    State().strLinkValue.clear();
    EXPECT_FALSE(Check());
    Await({}, u"wanted"_s);
    EXPECT_FALSE(Check());
}

TEST_F(LastPageTest, AMarkerOfTheLastPageHoldsBackWhatIsFound) {
    Show(Before);
    Begin(u"ACC"_s);
    EXPECT_FALSE(Check());
    EXPECT_TRUE(State().blnLastPageTextSeen);
    EXPECT_FALSE(State().blnLastPageHrefSeen);
    Show(u"<p>wanted</p>"_s);
    EXPECT_TRUE(Check());
    EXPECT_FALSE(State().blnLastPageTextSeen);
}

TEST_F(LastPageTest, AnAddressOfTheLastPageHoldsBackToo) {
    Begin(u"ACC"_s);
    State().strLastPageText.clear();
    State().strLastPageHref = u"http://www.site.example.com/next"_s;
    Show(u"<a href='/next'>wanted</a>"_s);
    EXPECT_FALSE(Check());
    EXPECT_TRUE(State().blnLastPageHrefSeen);
    // The flag says "in part" to the address and "markup" to the text.
    Show(u"<a href='/next/2'>wanted</a>"_s);
    EXPECT_TRUE(Check());
    State().blnLinkFound = false;
    State().blnLastPageAsHTML = true;
    EXPECT_FALSE(Check());
}

TEST_F(LastPageTest, NoMarkersNeverHoldAPageBack) {
    Show(u"<a href=''></a>wanted"_s);
    Begin(u"ACC"_s);
    State().strLastPageText.clear();
    EXPECT_TRUE(Check());
}

TEST_F(LastPageTest, AnEmptyRequestsFolderEndsTheWaitForItsApproveButton) {
    for (qint16 step : {2, 3}) {
        Show(u"<p>page before: You have no requests</p>"_s);
        Begin(u"ACC"_s);
        Await(u"ID"_s, u"spanapprovebottom"_s);
        State().intAccStep = step;
        EXPECT_TRUE(Check()) << step;
        EXPECT_TRUE(State().blnLinkFound);
        EXPECT_TRUE(State().blnForceAdvance);
    }
    State().intAccStep = 1;
    EXPECT_FALSE(Check());
    State().intAccStep = 2;
    Await(u"ID"_s, u"other"_s);
    EXPECT_FALSE(Check());
    Await(u"ID"_s, u"spanapprovebottom"_s);
    Show(u"<p>page before</p><i id=spanapprovebottom></i>"_s);
    EXPECT_FALSE(Check());
    EXPECT_FALSE(State().blnForceAdvance);
}

TEST_F(LastPageTest, ACommentFormThatIsBackBeginsTheCommentAnew) {
    const std::pair<bool, QString> forms[] = {
        {false, u"<p>page before</p><i id=ctl00_ctl00_cpMain_cpMain_ctl02_ctl00></i>"_s},
        {true,
         u"<p>page before</p><i id='ctl00$ctl00$cpMain$UserWriteCommentsControl$commentTextBox'></i>"_s}};
    for (const auto& [editor, form] : forms) {
        Show(form);
        Begin(u"COM"_s);
        State().intComStep = 11;
        State().blnCommentUsedEditor = editor;
        EXPECT_TRUE(Check());
        EXPECT_EQ(State().intComStep, 4);
        EXPECT_TRUE(State().blnLinkFound);
        EXPECT_TRUE(State().blnForceAdvance);
        EXPECT_TRUE(SaidBeginningWith(u"GONE BACK - page before"_s));
        // The other form is none.
        State().intComStep = 11;
        State().blnCommentUsedEditor = !editor;
        EXPECT_FALSE(Check());
        EXPECT_EQ(State().intComStep, 11);
    }
    State().intComStep = 10;
    State().blnCommentUsedEditor = true;
    EXPECT_FALSE(Check());
    EXPECT_EQ(State().intComStep, 10);
}

// Until the answer has come the form stands there as it was sent.
TEST_F(LastPageTest, ACommentFormThatIsBeingSentIsNotBack) {
    Show(u"{SiteRootHost}/form"_s, u"<p>page before</p><i id=ctl00_ctl00_cpMain_cpMain_ctl02_ctl00></i>"_s,
         SimFault::Incomplete);
    Begin(u"COM"_s);
    State().intComStep = 11;
    EXPECT_FALSE(Check());
    EXPECT_EQ(State().intComStep, 11);
}

TEST_F(LastPageTest, TheThousandAndFirstPageStopsGatheringAtTheTenthLook) {
    Show(Before);
    Begin(u"SCANNING"_s);
    State().intGatherStep = 3;
    State().strGatherStartURL = u"http://www.site.example.com/1/friends/PAGE/1001"_s;
    for (int look = 1; look <= 9; ++look)
        EXPECT_FALSE(Check());
    EXPECT_EQ(State().CurrentAction, u"SCANNING"_s);
    EXPECT_FALSE(Check());
    EXPECT_EQ(State().CurrentAction, QString());
    EXPECT_EQ(
        dialogs.Texts(),
        QStringList{u"MySpace only displays the first 1000 pages, after which the same ID's just repeat "
                    "page after page.\n\nThe gathering process has been stopped."_s});
}

TEST_F(LastPageTest, AnotherPageOfAListIsWaitedForWithoutEnd) {
    Show(Before);
    Begin(u"SCANNING"_s);
    State().intGatherStep = 3;
    State().strGatherStartURL = u"http://www.site.example.com/1/friends/page/1000"_s;
    for (int look = 1; look <= 30; ++look)
        EXPECT_FALSE(Check());
    EXPECT_EQ(State().intGatherRetryTicks, 30);
    EXPECT_EQ(State().CurrentAction, u"SCANNING"_s);
    State().intGatherStep = 2;
    EXPECT_FALSE(Check());
    EXPECT_EQ(State().intGatherRetryTicks, 30);
}

TEST_F(LastPageTest, AStepCountsForItsOwnActivityAlone) {
    Show(u"<p>page before: You have no requests</p><i id=ctl00_ctl00_cpMain_cpMain_ctl02_ctl00></i>"_s);
    Begin(u"BUL"_s);
    Await(u"ID"_s, u"spanapprovebottom"_s);
    State().intAccStep = 2;
    State().intComStep = 11;
    State().intGatherStep = 3;
    EXPECT_FALSE(Check());
    EXPECT_EQ(State().intComStep, 11);
    EXPECT_EQ(State().intGatherRetryTicks, 0);
}

TEST_F(LastPageTest, TwoActivitiesNoteThatTheyWait) {
    Show(Before);
    for (const QString& action : {u"COM"_s, u"FR"_s}) {
        trail.clear();
        Begin(action);
        EXPECT_FALSE(Check());
        EXPECT_TRUE(Said(u"STILL LAST PAGE - page before, 0"_s)) << action.toStdString();
    }
    trail.clear();
    Begin(u"MSG"_s);
    EXPECT_FALSE(Check());
    EXPECT_FALSE(SaidBeginningWith(u"STILL"_s));
}

} // namespace
} // namespace qlm
