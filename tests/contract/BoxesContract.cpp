// SPDX-License-Identifier: MIT
#include "ContractTest.h"

namespace qlm {

// Boxes that a page puts up must never hold an unattended run.
using BoxesContract = ContractTest;

TEST_F(BoxesContract, AnAlertDoesNotHoldThePage) {
    Show(u"<p>before</p><script>alert('Are you still there?');</script><p>after</p>"_s);
    EXPECT_TRUE(Text().contains(u"after"_s));
    EXPECT_EQ(browser.ReadyState(), 4);
}

TEST_F(BoxesContract, AnAlertOnAClickIsAnsweredAtOnce) {
    Show(u"<button type=button id=go onclick=\"alert('x'); document.getElementById('out').innerText='went "
         u"on'\""
         " data-on-click='set #out innertext went on'>go</button><p id=out>stands</p>"_s);
    ById(u"go"_s).Click();
    EXPECT_TRUE(WaitForText(u"went on"_s));
}

TEST_F(BoxesContract, AQuestionIsDeclined) {
    Show(u"<button type=button id=go onclick=\"document.getElementById('out').innerText ="
         " confirm('Sure?') ? 'agreed' : 'declined'\" data-on-click='set #out innertext declined'>go</button>"
         "<p id=out>stands</p>"_s);
    ById(u"go"_s).Click();
    EXPECT_TRUE(WaitForText(u"declined"_s));
}

TEST_F(BoxesContract, AQuestionForATextGetsNone) {
    Show(u"<button type=button id=go onclick=\"document.getElementById('out').innerText ="
         " 'answer: ' + prompt('Name?', 'Tam')\" data-on-click='set #out innertext answer: null'>go</button>"
         "<p id=out>stands</p>"_s);
    ById(u"go"_s).Click();
    EXPECT_TRUE(WaitForText(u"answer: null"_s));
}

TEST_F(BoxesContract, AnUnloadPromptDoesNotHoldANavigation) {
    Show(u"<p>stay</p><script>window.onbeforeunload = function(){ return 'Leave this page?'; };</script>"_s,
         u"sticky"_s);
    Show(u"free again"_s, u"next"_s);
    EXPECT_EQ(Text(), u"free again"_s);
    EXPECT_EQ(browser.LocationURL(), At(u"next"_s));
}

TEST_F(BoxesContract, AnUnloadPromptDoesNotHoldALink) {
    ServeBody(u"next"_s, u"free again"_s);
    Show(
        u"<a id=go href='/next'>go</a><script>window.onbeforeunload = function(){ return 'Leave?'; };</script>"_s);
    ById(u"go"_s).Click();
    EXPECT_TRUE(WaitForText(u"free again"_s));
}

TEST_F(BoxesContract, AnUnloadPromptDoesNotHoldTheCleanSlate) {
    Show(u"<p>stay</p><script>window.onbeforeunload = function(){ return 'Leave this page?'; };</script>"_s);
    browser.Navigate(u"about:blank"_s);
    EXPECT_EQ(Text(), QString());
    Show(u"free again"_s, u"next"_s);
    EXPECT_EQ(Text(), u"free again"_s);
}

TEST_F(BoxesContract, AWindowOpenedByAScriptIsAsked) {
    if (!world->RunsScripts())
        GTEST_SKIP() << "pages' scripts do not run here";
    Show(u"<button type=button id=go onclick=\"window.open('/popup')\">go</button>"_s);
    ById(u"go"_s).Click();
    ASSERT_TRUE(WaitUntil([this] { return !seen.windows.isEmpty(); }));
    EXPECT_EQ(seen.windows.first(), At(u"popup"_s));
}

} // namespace qlm
