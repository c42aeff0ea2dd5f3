// SPDX-License-Identifier: MIT
// Pages that mean harm, or that nobody has tested with a program on the other side.
#include "EngineWorld.h"
#include "SelfSignedServer.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int nestingDepth = 100'000;
// One call that is given up, and room for a machine that is busy.
constexpr qint64 longestTurnMs = 1000;

} // namespace

class EngineHostile : public EngineTest {
protected:
    // Looks at the page again and again, as the program's checks do; the longest time that one look took.
    qint64 LookFor(int milliseconds) {
        qint64 longest = 0;
        const qint64 end = pump.NowMs() + milliseconds;
        while (pump.NowMs() < end) {
            const qint64 start = pump.NowMs();
            Text();
            pump.PumpMessages();
            longest = std::max(longest, pump.NowMs() - start);
            pump.Sleep(10);
        }
        return longest;
    }
    void ExpectNextPageLoads() {
        Serve(u"/next"_s, "<body>the next page");
        browser->Navigate(u"about:blank"_s);
        ASSERT_TRUE(Open(u"/next"_s));
        EXPECT_EQ(Text(), u"the next page"_s);
    }
};

TEST_F(EngineHostile, MarkupNestedAHundredThousandDeepHoldsNothingUp) {
    Serve(u"/deep"_s,
          "<body>" + QByteArray("<div>").repeated(nestingDepth) + "<a href='/x' id=end>bottom</a>");
    Go(u"/deep"_s);
    EXPECT_LT(LookFor(3000), longestTurnMs);
    ExpectNextPageLoads();
}

// The parser puts what is nested too deep beside each other; scripts have no such limit.
TEST_F(EngineHostile, ATreeThatAScriptNestsAHundredThousandDeepHoldsNothingUp) {
    Serve(u"/deep"_s, "<body><div id=top></div><script>let at = document.getElementById('top');"
                      "for (let i = 0; i < " +
                          QByteArray::number(nestingDepth) +
                          "; ++i) { const next = document.createElement('div'); at.append(next); at = next; }"
                          "at.innerHTML = '<a href=\"/x\" id=end>bottom</a>';</script>");
    Go(u"/deep"_s);
    EXPECT_LT(LookFor(3000), longestTurnMs);
    ExpectNextPageLoads();
}

TEST_F(EngineHostile, FiftyMegabytesOfTextHoldNoTurnUp) {
    Serve(u"/big"_s,
          "<body>" + QByteArray("<p>The quick brown fox jumps over the lazy dog.</p>\n").repeated(1'000'000));
    Go(u"/big"_s);
    EXPECT_LT(LookFor(6000), longestTurnMs);
    ExpectNextPageLoads();
}

// On a document and on a form, an element's name hides the property of that name.
TEST_F(EngineHostile, APageWhoseElementsAreNamedLikeTheDocumentsPropertiesIsReadAllTheSame) {
    Serve(u"/named"_s,
          "<body>named <img name=body><img name=links><img name=images><img name=scripts>"
          "<img name=getElementById><img name=getElementsByTagName><img name=getElementsByName>"
          "<img name=querySelectorAll><img name=activeElement>"
          "<form id=f action='/sent'><input name=id value=i><input name=innerText><input name=outerHTML>"
          "<input name=parentElement><input name=getAttribute><input name=tagName><input name=submit>"
          "<a href='/link' id=l>the link</a></form>");
    Serve(u"/sent"_s, "<body>the form has come");
    ASSERT_TRUE(Open(u"/named"_s));
    ASSERT_TRUE(WaitForText(u"the link"_s));
    const Document document = browser->Document();
    ASSERT_EQ(document.Links().size(), 1U);
    EXPECT_EQ(document.Images().size(), 9U);
    const Element form = document.GetElementById(u"l"_s).ParentElement();
    EXPECT_EQ(form.TagName(), u"form"_s);
    EXPECT_EQ(form.Id(), u"f"_s);
    EXPECT_EQ(form.GetAttribute(u"action"_s), u"/sent"_s);
    EXPECT_TRUE(form.InnerText().contains(u"the link"_s));
    EXPECT_EQ(form.ParentElement().TagName(), u"body"_s);
    form.Submit();
    EXPECT_TRUE(WaitForText(u"the form has come"_s));
}

TEST_F(EngineHostile, ACertificateThatNobodyVouchesForGivesTheErrorPage) {
    const SelfSignedServer secure;
    browser->Navigate(secure.Address());
    EXPECT_TRUE(WaitForText(u"The page cannot be displayed"_s));
    EXPECT_EQ(browser->LocationURL(), secure.Address());
    EXPECT_TRUE(WaitUntil([this] { return !browser->Busy(); }));
    ExpectNextPageLoads();
}

// Neither in its own world nor in a frame's, and not by asking the prompt that the program listens to.
TEST_F(EngineHostile, AScriptThatLooksForTheProgramsBridgeFindsNothing) {
    Serve(u"/empty"_s, "<body>frame");
    Serve(
        u"/seek"_s,
        "<body>seeking<iframe src='/empty'></iframe><script>"
        "window.onload = () => { const found = [];"
        " for (const space of [window, frames[0], window.top])"
        "  for (const name of Object.getOwnPropertyNames(space))"
        "   if (/quillmere/i.test(name)) found.push(name);"
        " const answer = prompt(JSON.stringify(['inputs', '', location.href, ['Email_Textbox', '', 'x@y']]));"
        " document.body.append(` found ${found.length} ${answer}`); };"
        "</script>");
    ASSERT_TRUE(Open(u"/seek"_s));
    EXPECT_TRUE(WaitForText(u"seeking"_s));
    EXPECT_TRUE(WaitForText(u"found 0 null"_s)) << Text().toStdString();
}

} // namespace qlm
