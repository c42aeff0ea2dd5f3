// SPDX-License-Identifier: MIT
#include "ContractTest.h"

namespace qlm {

using FramesContract = ContractTest;

TEST_F(FramesContract, AFramesCompletionIsNotThePages) {
    ServeBody(u"frame"_s, u"<p>inside the frame</p><a href=/x>x</a>"_s);
    Show(u"<p>outside</p><iframe name=friendBox src='/frame'></iframe>"_s);
    PumpFor(settleMs);
    EXPECT_EQ(seen.completed, QStringList{At(u"page"_s)});
    EXPECT_EQ(seen.frames, QStringList{At(u"frame"_s)});
    EXPECT_EQ(browser.LocationURL(), At(u"page"_s));
}

TEST_F(FramesContract, AFramesContentIsNoPartOfThePage) {
    ServeBody(u"frame"_s, u"<p id=deep>inside the frame</p><a href=/x>x</a>"_s);
    Show(u"<p>outside</p><iframe src='/frame'></iframe>"_s);
    PumpFor(settleMs);
    EXPECT_EQ(Text().trimmed(), u"outside"_s);
    EXPECT_TRUE(browser.Document().Links().empty());
    EXPECT_TRUE(ById(u"deep"_s).IsNull());
    EXPECT_EQ(browser.Document().GetElementsByTagName(u"iframe"_s).size(), 1u);
    EXPECT_EQ(browser.Document().GetElementsByTagName(u"iframe"_s)[0].GetAttribute(u"src"_s), u"/frame"_s);
}

TEST_F(FramesContract, ASlowFrameHoldsThePagesCompletion) {
    ServeBody(u"frame"_s, u"slow"_s, {.delayMs = 400});
    ServeBody(u"page"_s, u"outside<iframe src='/frame'></iframe>"_s);
    browser.Navigate(At(u"page"_s));
    ASSERT_TRUE(WaitForText(u"outside"_s));
    EXPECT_TRUE(seen.completed.isEmpty());
    EXPECT_TRUE(browser.Busy());
    EXPECT_LT(browser.ReadyState(), 4);
    ASSERT_TRUE(WaitForCompletions(1));
    EXPECT_FALSE(browser.Busy());
}

TEST_F(FramesContract, ALinkMayLeadIntoAFrame) {
    ServeBody(u"one"_s, u"one"_s);
    ServeBody(u"two"_s, u"two"_s);
    Show(u"<a id=go href='/two' target=box>go</a><iframe name=box src='/one'></iframe>"_s);
    ASSERT_TRUE(WaitUntil([this] { return seen.frames.contains(At(u"one"_s)); }));
    ById(u"go"_s).Click();
    ASSERT_TRUE(WaitUntil([this] { return seen.frames.contains(At(u"two"_s)); }));
    EXPECT_EQ(browser.LocationURL(), At(u"page"_s));
    EXPECT_EQ(seen.completed.size(), 1);
}

TEST_F(FramesContract, AFrameMayBringItsPageAlong) {
    Show(u"<p>outside</p><iframe name=box srcdoc=\"<p id=deep>inside</p><a href='/x'>x</a>\"></iframe>"_s);
    PumpFor(settleMs);
    EXPECT_EQ(seen.completed, QStringList{At(u"page"_s)});
    EXPECT_EQ(Text().trimmed(), u"outside"_s);
    EXPECT_TRUE(browser.Document().Links().empty());
    EXPECT_TRUE(ById(u"deep"_s).IsNull());
}

TEST_F(FramesContract, AFormMayBeSentIntoAFrame) {
    ServeBody(u"sent"_s, u"taken"_s);
    Show(u"<p>outside</p><form id=f method=post action='/sent' target=box><input name=word value=7></form>"
         "<iframe name=box srcdoc='before'></iframe>"_s);
    ById(u"f"_s).Submit();
    ASSERT_TRUE(WaitUntil([this] { return seen.frames.contains(At(u"sent"_s)); }));
    EXPECT_EQ(browser.LocationURL(), At(u"page"_s));
    EXPECT_EQ(seen.completed.size(), 1);
    EXPECT_EQ(world->Requests().back().body, "word=7");
    EXPECT_TRUE(Text().contains(u"outside"_s));
}

TEST_F(FramesContract, AnEmbeddedLoadIsNoLinkOfTheUsers) {
    ServeBody(u"frame"_s, u"inside"_s);
    Show(u"<iframe src='/frame'></iframe>"_s);
    PumpFor(settleMs);
    for (const NavigationRequest& question : seen.questions) {
        if (question.topLevel)
            EXPECT_EQ(question.url, At(u"page"_s));
        else
            EXPECT_FALSE(question.headers.isEmpty());
    }
}

} // namespace qlm
