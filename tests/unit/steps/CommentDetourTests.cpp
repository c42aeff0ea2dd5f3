// SPDX-License-Identifier: MIT
#include "DetourTest.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

TEST_F(DetourTest, TheFrontPageInPlaceOfACommentSkipsTheTarget) {
    for (qint16 step : {6, 7}) {
        Show(Root, u"x"_s);
        State().CurrentAction = u"COM"_s;
        State().intComStep = step;
        State().lngFailedCount = 0;
        EXPECT_TRUE(TakesUnfound());
        EXPECT_EQ(State().lngFailedCount, 1);
        EXPECT_FALSE(Said(u"PROBLEM!"_s));
    }
    EXPECT_TRUE(FileText(u"debugfr.txt"_s).contains(u"FR LF-Homepage3"_s));
    State().CurrentAction = u"COM"_s;
    State().intComStep = 8;
    EXPECT_TRUE(TakesNone());
}

TEST_F(DetourTest, AnUnknownPageBehindACommentIsAProblem) {
    Show(u"x"_s);
    State().CurrentAction = u"COM"_s;
    State().intComStep = 7;
    State().blnNewLayout = true;
    State().blnHoldLinkCheck = true;
    // The page has no box for a comment, and is given up in the end.
    bool isTried = false;
    platform->Pump().onPump = [&] { isTried = isTried || !State().blnHoldLinkCheck; };
    EXPECT_TRUE(TakesUnfound());
    EXPECT_TRUE(FileText(u"debugcom.txt"_s).contains(u"PROBLEM!"_s));
    EXPECT_TRUE(isTried);
    State().CurrentAction = u"COM"_s;
    State().intComStep = 7;
    Show(u"x"_s);
    State().blnSubmittingComment = true;
    EXPECT_TRUE(TakesNone());
    State().blnSubmittingComment = false;
    State().intComStep = 6;
    EXPECT_TRUE(TakesNone());
    State().intComStep = 7;
    Show(u"{SiteRootHost}/page"_s, u"x"_s, SimFault::Incomplete);
    EXPECT_TRUE(TakesNone());
}

TEST_F(DetourTest, ACaptchaAfterACommentIsFoundForThePageThatConfirmsIt) {
    Show(u"x"_s);
    State().CurrentAction = u"COM"_s;
    for (const qint16 step : {8, 11}) {
        State().intComStep = step;
        State().blnLinkFound = false;
        State().blnWaitingForCaptcha = step == 8;
        EXPECT_EQ(Take(true), Verdict(true));
        EXPECT_EQ(State().intComStep, 11);
        EXPECT_TRUE(State().blnLinkFound);
        EXPECT_TRUE(TakesNone(false));
    }
    State().intComStep = 6;
    EXPECT_TRUE(TakesNone(true));
    State().CurrentAction = u"BUL"_s;
    State().intComStep = 11;
    EXPECT_TRUE(TakesNone(true));
}

} // namespace
} // namespace qlm
