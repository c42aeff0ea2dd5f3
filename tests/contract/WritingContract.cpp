// SPDX-License-Identifier: MIT
#include "ContractTest.h"

namespace qlm {

using WritingContract = ContractTest;

TEST_F(WritingContract, TextSetOnAFieldIsItsValue) {
    Show(u"<input id=mail><textarea id=body>before</textarea>"_s);
    ById(u"mail"_s).SetInnerText(u"a@example.com"_s);
    ById(u"body"_s).SetInnerText(u"line one\nline two"_s);
    EXPECT_EQ(ById(u"mail"_s).Value(), u"a@example.com"_s);
    EXPECT_EQ(ById(u"mail"_s).InnerText(), u"a@example.com"_s);
    EXPECT_EQ(ById(u"body"_s).Value(), u"line one\nline two"_s);
    EXPECT_EQ(ById(u"body"_s).InnerText(), u"line one\nline two"_s);
}

TEST_F(WritingContract, TextSetOnAnotherElementReplacesItsContent) {
    Show(u"<div id=box><b>old</b></div>"_s);
    ById(u"box"_s).SetInnerText(u"1 < 2 & <i>3</i>"_s);
    EXPECT_EQ(ById(u"box"_s).InnerText(), u"1 < 2 & <i>3</i>"_s);
    EXPECT_EQ(ById(u"box"_s).InnerHTML(), u"1 &lt; 2 &amp; &lt;i&gt;3&lt;/i&gt;"_s);
}

TEST_F(WritingContract, ATypedValueIsReadBackAndTheMarkupKeepsItsOwn) {
    Show(u"<form id=f><input id=field value=first></form>"_s);
    EXPECT_EQ(ById(u"field"_s).Value(), u"first"_s);
    ById(u"field"_s).SetValue(u"second"_s);
    EXPECT_EQ(ById(u"field"_s).Value(), u"second"_s);
    EXPECT_TRUE(ById(u"f"_s).InnerHTML().contains(u"value=\"first\""_s));
}

TEST_F(WritingContract, AListBoxTakesTheValueOfAChoice) {
    Show(u"<select id=pick><option value=1>one<option value=2>two<option>three</select>"_s);
    EXPECT_EQ(ById(u"pick"_s).Value(), u"1"_s);
    ById(u"pick"_s).SetValue(u"2"_s);
    EXPECT_EQ(ById(u"pick"_s).Value(), u"2"_s);
    ById(u"pick"_s).SetValue(u"three"_s);
    EXPECT_EQ(ById(u"pick"_s).Value(), u"three"_s);
    EXPECT_EQ(ById(u"pick"_s).Tags(u"option"_s)[1].Value(), u"2"_s);
}

TEST_F(WritingContract, MarkupSetOnAnElementIsParsed) {
    Show(u"<div id=box>old</div>"_s);
    ById(u"box"_s).SetInnerHTML(u"<p>new <a id=fresh href='/fresh'>link</a></p>"_s);
    EXPECT_EQ(ById(u"fresh"_s).Href(), At(u"fresh"_s));
    EXPECT_EQ(browser.Document().Links().size(), 1u);
    EXPECT_TRUE(Text().contains(u"new link"_s));
}

TEST_F(WritingContract, AttributesCanBeSet) {
    Show(u"<div id=box>x</div>"_s);
    ById(u"box"_s).SetAttribute(u"title"_s, u"a \"hint\""_s);
    EXPECT_EQ(ById(u"box"_s).Read(ElementText::Title), u"a \"hint\""_s);
    EXPECT_TRUE(ById(u"box"_s).HasAttribute(u"title"_s));
    ById(u"box"_s).SetAttribute(u"title"_s, u"another"_s);
    EXPECT_EQ(ById(u"box"_s).GetAttribute(u"title"_s), u"another"_s);
}

TEST_F(WritingContract, WhatWasWrittenIsReadInTheSameTurn) {
    const Document document = Show(u"<div id=box>before</div>"_s);
    EXPECT_TRUE(document.BodyText().contains(u"before"_s));
    document.GetElementById(u"box"_s).SetInnerText(u"after"_s);
    EXPECT_EQ(document.BodyText(), u"after"_s);
    EXPECT_TRUE(document.BodyHTML().contains(u"after"_s));
}

TEST_F(WritingContract, OddTextIsWrittenAsItStands) {
    Show(u"<textarea id=t></textarea>"_s);
    const QString odd = u"'quotes\" \\ back </textarea> \u2028 \U0001F600 $& %1 `${x}`"_s;
    ById(u"t"_s).SetValue(odd);
    EXPECT_EQ(ById(u"t"_s).Value(), odd);
}

TEST_F(WritingContract, FocusMovesTheActiveElement) {
    Show(u"<input id=one><a id=two href=/x>x</a>"_s);
    EXPECT_EQ(browser.Document().ActiveElement().TagName(), u"body"_s);
    ById(u"one"_s).Focus();
    EXPECT_EQ(browser.Document().ActiveElement().Id(), u"one"_s);
    ById(u"two"_s).Focus();
    EXPECT_EQ(browser.Document().ActiveElement().Href(), At(u"x"_s));
}

TEST_F(WritingContract, APageHearsThatAFieldWasChangedWhenItIsFired) {
    Show(u"<select id=who onchange=\"document.getElementById('out').innerText='changed'\""
         " data-on-change='set #out innertext changed'><option value=0>All<option value=1>Just Me</select>"
         "<p id=out>not yet</p>"_s);
    ById(u"who"_s).SetValue(u"1"_s);
    EXPECT_EQ(ById(u"out"_s).InnerText(), u"not yet"_s);
    ById(u"who"_s).FireChange();
    EXPECT_TRUE(WaitForText(u"changed"_s));
    EXPECT_EQ(ById(u"who"_s).Value(), u"1"_s);
}

TEST_F(WritingContract, ScrollingLeavesThePageAsItIs) {
    Show(u"<div style='height: 3000px'>tall</div><p id=low>low</p>"_s);
    ById(u"low"_s).ScrollIntoView();
    browser.Document().ScrollToEnd();
    EXPECT_EQ(ById(u"low"_s).InnerText(), u"low"_s);
}

TEST_F(WritingContract, AClickWorksOnAnyElement) {
    Show(
        u"<div id=act onclick=\"document.getElementById('out').innerText='clicked'\""
        " data-on-click='set #out innertext clicked'><span id=deep>text</span></div><p id=out>not yet</p>"_s);
    ById(u"deep"_s).Click();
    EXPECT_TRUE(WaitForText(u"clicked"_s));
}

TEST_F(WritingContract, FieldsOfManyNamesAreWrittenAtOnce) {
    Show(u"<input id=a name=to><input id=b name=to><input id=c name=deep><input id=deep>"
         "<textarea id=text></textarea><p id=words>before</p>"_s);
    using enum Writing::Kind;
    browser.Document().Write({{ElementSet::ByName, u"to"_s, Value, u"both"_s},
                              {ElementSet::ByName, u"none"_s, Value, u"nobody"_s},
                              {ElementSet::Named, u"deep"_s, Value, u"named"_s},
                              {ElementSet::ById, u"text"_s, InnerText, u"one\ntwo"_s},
                              {ElementSet::ById, u"words"_s, InnerText, u"1 < 2"_s},
                              {ElementSet::ById, u"b"_s, Value, u"last"_s}});
    const QStringList values{ById(u"a"_s).Value(), ById(u"b"_s).Value(), ById(u"c"_s).Value(),
                             ById(u"deep"_s).Value(), ById(u"text"_s).Value()};
    EXPECT_EQ(values, (QStringList{u"both"_s, u"last"_s, u"named"_s, u"named"_s, u"one\ntwo"_s}));
    EXPECT_EQ(ById(u"words"_s).InnerHTML(), u"1 &lt; 2"_s);
}

TEST_F(WritingContract, AFieldIsThereByItsNameOrItsId) {
    Show(u"<input name=by-name><p id=by-id>x</p><p class=neither>x</p>"_s);
    const auto isThere = [this](ElementSet set, const QString& name) {
        return browser.Document().Any({set, name, ElementText::Name, Question::Match::Contains, {}});
    };
    EXPECT_TRUE(isThere(ElementSet::Named, u"by-name"_s));
    EXPECT_TRUE(isThere(ElementSet::Named, u"by-id"_s));
    EXPECT_TRUE(isThere(ElementSet::ById, u"by-id"_s));
    for (const QString& name : {u"neither"_s, u"By-Name"_s, QString()})
        EXPECT_FALSE(isThere(ElementSet::Named, name)) << name.toStdString();
    EXPECT_FALSE(isThere(ElementSet::ById, u"by-name"_s));
}

// As an editor's source view is opened, which may show a field that is written to next.
TEST_F(WritingContract, APressAmongTheWritingsIsWhereItStands) {
    Show(u"<div id=view><b id=first onclick=\"document.getElementById('out').innerText='pressed'\""
         " data-on-click='set #out innertext pressed'>open</b><i>other</i></div><p id=empty></p>"
         "<p id=out>not yet</p><p id=after>not yet</p>"_s);
    using enum Writing::Kind;
    browser.Document().Write({{ElementSet::ById, u"out"_s, InnerText, u"written"_s},
                              {ElementSet::ById, u"empty"_s, PressInside},
                              {ElementSet::ById, u"view"_s, PressInside},
                              {ElementSet::ById, u"after"_s, InnerText, u"written"_s}});
    EXPECT_EQ(ById(u"out"_s).InnerText(), u"pressed"_s);
    EXPECT_EQ(ById(u"after"_s).InnerText(), u"written"_s);
}

// After the writing it is a page like any other; what was taken from the blank one is gone.
TEST_F(WritingContract, MarkupCanBePutIntoABlankPageAgainAndAgain) {
    Show(u"<p id=old>before</p>"_s);
    for (const QString& word : {u"one"_s, u"two"_s}) {
        browser.Navigate(u"about:blank"_s);
        browser.Document().Body().SetInnerHTML(u"<base href=\""_s + At(u"deep/page"_s) +
                                               u"\"><p><a href=\"x\">"_s + word + u"</a></p>"_s);
        ASSERT_EQ(browser.Document().Links().size(), 1U);
        const Element link = browser.Document().Links().front();
        EXPECT_EQ(link.InnerText(), word);
        EXPECT_EQ(link.Href(), At(u"deep/x"_s));
        EXPECT_EQ(link.ParentElement().TagName(), u"p"_s);
        EXPECT_EQ(browser.LocationURL(), u"about:blank"_s);
        EXPECT_EQ(browser.ReadyState(), 4);
        EXPECT_TRUE(browser.Document().GetElementById(u"old"_s).IsNull());
    }
    Show(u"<p id=mark>behind</p>"_s);
    EXPECT_EQ(ById(u"mark"_s).InnerText(), u"behind"_s);
}

TEST_F(WritingContract, MarkupStaysInTheBlankPageOfANewBrowser) {
    browser.Navigate(u"about:blank"_s);
    browser.Document().Body().SetInnerHTML(u"<p><a href=\"http://www.example.com/x\">one</a></p>"_s);
    EXPECT_EQ(browser.Document().Links().size(), 1U);
    PumpFor(settleMs);
    EXPECT_EQ(browser.Document().Links().size(), 1U);
    EXPECT_EQ(browser.Document().BodyText(), u"one"_s);
}

TEST_F(WritingContract, AClickWorksOnAHiddenElement) {
    ServeBody(u"target"_s, u"the target"_s);
    Show(u"<div style='display:none'><a id=hid href='/target'>hidden link</a></div>"_s);
    ById(u"hid"_s).Click();
    EXPECT_TRUE(WaitForText(u"the target"_s));
}

TEST_F(WritingContract, AClickTogglesABoxAndChoosesAButton) {
    ServeBody(u"sent?box=on&pick=b"_s, u"sent"_s);
    Show(u"<form id=f action='/sent'><input type=checkbox id=box name=box>"
         "<input type=radio name=pick value=a checked><input type=radio id=b name=pick value=b></form>"_s);
    ById(u"box"_s).Click();
    ById(u"b"_s).Click();
    ById(u"f"_s).Submit();
    EXPECT_TRUE(WaitForText(u"sent"_s));
    EXPECT_EQ(browser.LocationURL(), At(u"sent?box=on&pick=b"_s));
}

TEST_F(WritingContract, ATickIsReadAsItIsNowAndNotAsThePageBegan) {
    Show(u"<input type=checkbox id=off><input type=checkbox id=on checked><p id=none>x</p>"_s);
    EXPECT_EQ(ById(u"off"_s).GetAttribute(u"checked"_s), QString());
    EXPECT_EQ(ById(u"on"_s).GetAttribute(u"Checked"_s), u"checked"_s);
    EXPECT_EQ(ById(u"none"_s).GetAttribute(u"checked"_s), QString());
    ById(u"off"_s).Click();
    ById(u"on"_s).Click();
    EXPECT_EQ(ById(u"off"_s).GetAttribute(u"checked"_s), u"checked"_s);
    EXPECT_EQ(ById(u"on"_s).GetAttribute(u"checked"_s), QString());
}

TEST_F(WritingContract, WhatAClickShowsLaterIsSeenLater) {
    Show(u"<button type=button id=go onclick=\"setTimeout(function(){"
         "document.getElementById('late').style.display='block'}, 150)\" data-on-click='after 150ms show "
         "#late'>go</button>"
         "<p id=late style='display:none'>here at last</p>"_s);
    ById(u"go"_s).Click();
    EXPECT_FALSE(Text().contains(u"here at last"_s));
    EXPECT_TRUE(WaitForText(u"here at last"_s));
}

TEST_F(WritingContract, AnElementThatArrivesAfterCompletionIsFound) {
    Show(u"<div id=box data-on-load='after 200ms append #box <i id=late>late</i>'></div>"
         "<script>setTimeout(function(){ document.getElementById('box').insertAdjacentHTML('beforeend',"
         "'<i id=late>late</i>'); }, 200);</script>"_s);
    EXPECT_TRUE(ById(u"late"_s).IsNull());
    EXPECT_TRUE(WaitUntil([this] { return !ById(u"late"_s).IsNull(); }));
    EXPECT_EQ(ById(u"late"_s).InnerText(), u"late"_s);
}

} // namespace qlm
