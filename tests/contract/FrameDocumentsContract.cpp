// SPDX-License-Identifier: MIT
// What a page's frames hold is a document as the page's own is.
#include "ContractTest.h"

namespace qlm {

class FrameDocumentsContract : public ContractTest {
protected:
    Document Frame(const QString& name) { return browser.Document().FrameDocument(name); }
};

TEST_F(FrameDocumentsContract, AFrameIsFoundByItsNameOrItsId) {
    ServeBody(u"frame"_s, u"<p id=deep class=c>inside</p><a href='x?1'>go</a>"_s);
    Show(u"<iframe name=friendBox id=other src='/frame'></iframe>"_s);
    for (const QString& name : {u"friendBox"_s, u"other"_s}) {
        ASSERT_FALSE(Frame(name).IsNull()) << name.toStdString();
        EXPECT_EQ(Frame(name).BodyText().simplified(), u"inside go"_s);
    }
    EXPECT_TRUE(Frame(u"none"_s).IsNull());
    const Element element = browser.Document().GetElementsByTagName(u"iframe"_s)[0];
    EXPECT_EQ(element.FrameDocument().BodyText().simplified(), u"inside go"_s);
    EXPECT_EQ(element.Read(ElementText::Src), At(u"frame"_s));
}

TEST_F(FrameDocumentsContract, WhatAFrameHoldsIsReadAsAPageIs) {
    ServeBody(u"frame"_s, u"<p id=deep class=c>in<b>side</b></p><a href='x?1'>go</a>"
                          "<img src='/pics/a.gif'><input name=field value=7>"_s);
    Show(u"<p id=deep>outside</p><iframe name=box src='/frame'></iframe>"_s);
    const Document frame = Frame(u"box"_s);
    EXPECT_TRUE(frame.IsPresent());
    EXPECT_TRUE(frame.HasLinks());
    EXPECT_EQ(frame.Address(), At(u"frame"_s));
    EXPECT_EQ(frame.GetElementById(u"deep"_s).InnerText(), u"inside"_s);
    EXPECT_EQ(frame.GetElementById(u"deep"_s).Read(ElementText::ClassName), u"c"_s);
    EXPECT_EQ(frame.GetElementById(u"deep"_s).InnerHTML(), u"in<b>side</b>"_s);
    EXPECT_EQ(ById(u"deep"_s).InnerText(), u"outside"_s);
    ASSERT_EQ(frame.Links().size(), 1U);
    EXPECT_EQ(frame.Links()[0].Href(), At(u"x?1"_s));
    ASSERT_EQ(frame.Images().size(), 1U);
    EXPECT_EQ(frame.Images()[0].Read(ElementText::NameProp), u"a.gif"_s);
    ASSERT_EQ(frame.GetElementsByName(u"field"_s).size(), 1U);
    EXPECT_EQ(frame.GetElementsByName(u"field"_s)[0].Value(), u"7"_s);
    const Element bold = frame.GetElementsByTagName(u"b"_s)[0];
    EXPECT_EQ(bold.ParentElement().Id(), u"deep"_s);
    EXPECT_EQ(bold.Ancestor(2).TagName(), u"body"_s);
    EXPECT_TRUE(bold.Ancestor(4).IsNull());
    EXPECT_EQ(frame.Body().Tags(u"b"_s).size(), 1U);
    EXPECT_TRUE(frame.BodyHTML().contains(u"<b>side</b>"_s));
    EXPECT_TRUE(frame.Any({ElementSet::Links, {}, ElementText::Href, Question::Match::Contains, u"x?1"_s}));
}

// As an editor is filled: its frame holds an empty page that takes markup.
TEST_F(FrameDocumentsContract, AnEditorsFrameTakesMarkup) {
    Show(u"<iframe name=editor_f></iframe>"
         "<script>document.getElementsByName('editor_f')[0].contentDocument.designMode = 'on'</script>"_s);
    ASSERT_FALSE(Frame(u"editor_f"_s).IsNull());
    EXPECT_EQ(Frame(u"editor_f"_s).BodyHTML(), QString());
    Frame(u"editor_f"_s).Body().SetInnerHTML(u"Hello<br>you &amp; <b>me</b>"_s);
    EXPECT_EQ(Frame(u"editor_f"_s).BodyHTML(), u"Hello<br>you &amp; <b>me</b>"_s);
    EXPECT_EQ(Frame(u"editor_f"_s).BodyText(), u"Hello\nyou & me"_s);
    EXPECT_EQ(Frame(u"editor_f"_s).GetElementsByTagName(u"b"_s)[0].InnerText(), u"me"_s);
    EXPECT_FALSE(Text().contains(u"Hello"_s));
}

TEST_F(FrameDocumentsContract, TheFirstFrameOfANameTakesMarkupAmongOtherWritings) {
    Show(u"<p name=editor_f>words</p><iframe name=editor_f></iframe><iframe id=editor_f></iframe>"
         "<input id=field>"_s);
    browser.Document().Write(
        {{ElementSet::Named, u"editor_f"_s, Writing::Kind::FrameMarkup, u"Hello<br>you"_s},
         {ElementSet::ById, u"field"_s, Writing::Kind::FrameMarkup, u"no frame"_s},
         {ElementSet::ById, u"field"_s, Writing::Kind::Value, u"typed"_s}});
    const std::vector<Element> frames = browser.Document().GetElementsByTagName(u"iframe"_s);
    EXPECT_EQ(frames.at(0).FrameDocument().BodyHTML(), u"Hello<br>you"_s);
    EXPECT_EQ(frames.at(1).FrameDocument().BodyHTML(), QString());
    EXPECT_EQ(ById(u"field"_s).Value(), u"typed"_s);
    EXPECT_TRUE(Text().contains(u"words"_s));
}

TEST_F(FrameDocumentsContract, AFrameThatComesLaterHasADocumentToo) {
    Show(u"<div id=room></div>"_s);
    EXPECT_TRUE(Frame(u"late"_s).IsNull());
    ById(u"room"_s).SetInnerHTML(u"<iframe name=late></iframe>"_s);
    ASSERT_FALSE(Frame(u"late"_s).IsNull());
    Frame(u"late"_s).Body().SetInnerText(u"typed"_s);
    EXPECT_EQ(Frame(u"late"_s).BodyText(), u"typed"_s);
    ById(u"room"_s).SetInnerHTML(QString());
    EXPECT_TRUE(Frame(u"late"_s).IsNull());
}

TEST_F(FrameDocumentsContract, FieldsInAFrameAreWrittenAndRead) {
    ServeBody(u"frame"_s, u"<input id=word><textarea id=text></textarea><input type=checkbox id=tick>"
                          "<form action='/sent'><input id=own></form>"_s);
    Show(u"<iframe name=box src='/frame'></iframe>"_s);
    const Document frame = Frame(u"box"_s);
    frame.GetElementById(u"word"_s).SetValue(u"seven"_s);
    frame.GetElementById(u"text"_s).SetInnerText(u"one\ntwo"_s);
    frame.GetElementById(u"text"_s).SetAttribute(u"title"_s, u"hint"_s);
    frame.GetElementById(u"tick"_s).Click();
    EXPECT_EQ(frame.GetElementById(u"word"_s).Value(), u"seven"_s);
    EXPECT_EQ(frame.GetElementById(u"text"_s).InnerText(), u"one\ntwo"_s);
    EXPECT_EQ(frame.GetElementById(u"text"_s).GetAttribute(u"title"_s), u"hint"_s);
    EXPECT_FALSE(frame.GetElementById(u"text"_s).HasAttribute(u"name"_s));
    EXPECT_EQ(frame.GetElementById(u"tick"_s).GetAttribute(u"checked"_s), u"checked"_s);
    EXPECT_EQ(frame.GetElementById(u"own"_s).Read(ElementText::SentTo), At(u"sent"_s));
    frame.GetElementById(u"word"_s).Focus();
    EXPECT_EQ(frame.ActiveElement().Id(), u"word"_s);
}

TEST_F(FrameDocumentsContract, AClickInAFrameStaysInIt) {
    ServeBody(u"frame"_s,
              u"<p id=out>not yet</p><span id=go onclick=\"document.getElementById('out').innerText='done'\""
              " data-on-click='set #out innertext done'>go</span>"_s);
    Show(u"<i>x</i><b>y</b><p id=out>outside</p><iframe name=box src='/frame'></iframe>"_s);
    Frame(u"box"_s).GetElementById(u"go"_s).Click();
    EXPECT_EQ(Frame(u"box"_s).GetElementById(u"out"_s).InnerText(), u"done"_s);
    EXPECT_EQ(ById(u"out"_s).InnerText(), u"outside"_s);
}

TEST_F(FrameDocumentsContract, ALinkInAFrameTurnsItsPage) {
    ServeBody(u"one"_s, u"<a id=next href='/two'>next</a>"_s);
    ServeBody(u"two"_s, u"the second"_s);
    Show(u"<iframe name=box src='/one'></iframe>"_s);
    const Document first = Frame(u"box"_s);
    first.GetElementById(u"next"_s).Click();
    ASSERT_TRUE(WaitUntil([this] { return seen.frames.contains(At(u"two"_s)); }));
    EXPECT_EQ(Frame(u"box"_s).BodyText(), u"the second"_s);
    EXPECT_FALSE(first.IsPresent());
    EXPECT_THROW(first.BodyText(), BrowserError);
    EXPECT_THROW(first.GetElementById(u"next"_s), BrowserError);
    EXPECT_EQ(browser.LocationURL(), At(u"page"_s));
    EXPECT_EQ(seen.completed, QStringList{At(u"page"_s)});
}

TEST_F(FrameDocumentsContract, ALinkInAFrameMayTurnTheWholePage) {
    ServeBody(u"frame"_s, u"<a id=out href='/target' target=_top>out</a>"_s);
    ServeBody(u"target"_s, u"the target"_s);
    Show(u"<iframe name=box src='/frame'></iframe>"_s);
    const Document frame = Frame(u"box"_s);
    frame.GetElementById(u"out"_s).Click();
    ASSERT_TRUE(WaitForText(u"the target"_s));
    EXPECT_EQ(browser.LocationURL(), At(u"target"_s));
    EXPECT_FALSE(frame.IsPresent());
    EXPECT_THROW(frame.BodyText(), BrowserError);
}

TEST_F(FrameDocumentsContract, AFormInAFrameIsAnsweredThere) {
    ServeBody(u"frame"_s, u"<form id=f method=post action='/sent'><input name=a value=1></form>"_s);
    ServeBody(u"sent"_s, u"thank you"_s);
    Show(u"<iframe name=box src='/frame'></iframe>"_s);
    Frame(u"box"_s).GetElementById(u"f"_s).Submit();
    ASSERT_TRUE(WaitUntil([this] { return seen.frames.contains(At(u"sent"_s)); }));
    EXPECT_EQ(world->Requests().back().body, "a=1");
    EXPECT_EQ(Frame(u"box"_s).BodyText(), u"thank you"_s);
    EXPECT_EQ(browser.LocationURL(), At(u"page"_s));
}

TEST_F(FrameDocumentsContract, AStrangersFrameIsOutOfReach) {
    world->Serve(u"http://stranger.example.com/ad"_s, u"<body><p id=deep>ad</p></body>"_s);
    Show(u"<iframe name=ad id=ad src='http://stranger.example.com/ad'></iframe>"_s);
    ASSERT_TRUE(WaitUntil([this] { return !seen.frames.isEmpty(); }));
    EXPECT_TRUE(Frame(u"ad"_s).IsNull());
    EXPECT_TRUE(ById(u"ad"_s).FrameDocument().IsNull());
    EXPECT_TRUE(ById(u"ad"_s).FrameDocument().Body().IsNull());
}

TEST_F(FrameDocumentsContract, AFrameWhosePageDidNotComeStaysEmpty) {
    Serve(u"dead"_s, {}, {.fault = ServeFault::Reset});
    Show(u"<iframe name=box src='/dead'></iframe>"_s);
    PumpFor(settleMs);
    ASSERT_FALSE(Frame(u"box"_s).IsNull());
    EXPECT_EQ(Frame(u"box"_s).Address(), u"about:blank"_s);
    EXPECT_EQ(Frame(u"box"_s).BodyHTML(), QString());
    EXPECT_EQ(seen.frames, QStringList()) << seen.frames.join(u' ').toStdString();
}

TEST_F(FrameDocumentsContract, AFrameKeepsItsPageWhereTheNextOneDoesNotCome) {
    ServeBody(u"one"_s, u"the first<a id=next href='/dead'>next</a>"_s);
    Serve(u"dead"_s, {}, {.fault = ServeFault::Reset});
    Show(u"<iframe name=box src='/one'></iframe>"_s);
    seen.frames.clear();
    Frame(u"box"_s).GetElementById(u"next"_s).Click();
    PumpFor(settleMs);
    ASSERT_FALSE(Frame(u"box"_s).IsNull());
    EXPECT_EQ(Frame(u"box"_s).Address(), At(u"one"_s));
    EXPECT_EQ(Frame(u"box"_s).BodyText(), u"the firstnext"_s);
    EXPECT_EQ(seen.frames, QStringList()) << seen.frames.join(u' ').toStdString();
}

TEST_F(FrameDocumentsContract, WhatIsNoFrameHasNoDocument) {
    Show(u"<div name=box id=box>x</div>"_s);
    EXPECT_TRUE(Frame(u"box"_s).IsNull());
    EXPECT_TRUE(ById(u"box"_s).FrameDocument().IsNull());
    EXPECT_TRUE(ById(u"none"_s).FrameDocument().IsNull());
    browser.Navigate(u"about:blank"_s);
    EXPECT_TRUE(Frame(u"box"_s).IsNull());
    EXPECT_TRUE(browser.Document().Body().FrameDocument().IsNull());
}

} // namespace qlm
