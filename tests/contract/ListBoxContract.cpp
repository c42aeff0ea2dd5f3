// SPDX-License-Identifier: MIT
// List boxes and their options; what a page hears of a change; what is disabled.
#include "ContractTest.h"

namespace qlm {

class ListBoxContract : public ContractTest {
protected:
    // Which of the list's options are chosen now, as "0110".
    QString Chosen(const QString& id) {
        QString chosen;
        for (const Element& option : ById(id).Tags(u"option"_s))
            chosen += option.GetAttribute(u"selected"_s) == u"selected"_s ? u'1' : u'0';
        return chosen;
    }
    void Select(const QString& id, size_t index, bool isSelected = true) {
        ById(id).Tags(u"option"_s).at(index).SetSelected(isSelected);
    }
    bool IsDisabled(const QString& id) { return ById(id).GetAttribute(u"disabled"_s) == u"disabled"_s; }
};

TEST_F(ListBoxContract, OptionsAreReadInTheirOrder) {
    Show(u"<form id=addFriends><select name=startrow id=rows><option value=0>1 - 40<option value=40 selected>"
         "41 - 80<option>third</select></form>"_s);
    const std::vector<Element> options = browser.Document().GetElementsByTagName(u"option"_s);
    ASSERT_EQ(options.size(), 3U);
    EXPECT_EQ(options[0].Value(), u"0"_s);
    EXPECT_EQ(options[1].InnerText(), u"41 - 80"_s);
    EXPECT_EQ(options[2].Value(), u"third"_s);
    EXPECT_EQ(options[1].ParentElement().Name(), u"startrow"_s);
    EXPECT_EQ(Chosen(u"rows"_s), u"010"_s);
}

TEST_F(ListBoxContract, ADropDownListHasOneChoice) {
    Show(u"<select id=pick><option value=a>A<option value=b>B<option value=c>C</select>"_s);
    EXPECT_EQ(Chosen(u"pick"_s), u"100"_s);
    Select(u"pick"_s, 2);
    EXPECT_EQ(Chosen(u"pick"_s), u"001"_s);
    EXPECT_EQ(ById(u"pick"_s).Value(), u"c"_s);
    ById(u"pick"_s).SetValue(u"b"_s);
    EXPECT_EQ(Chosen(u"pick"_s), u"010"_s);
    Select(u"pick"_s, 0, false);
    EXPECT_EQ(Chosen(u"pick"_s), u"010"_s);
    Select(u"pick"_s, 1, false);
    EXPECT_EQ(Chosen(u"pick"_s), u"100"_s);
}

TEST_F(ListBoxContract, ADropDownListBeginsWithWhatCanBeChosen) {
    Show(u"<select id=pick><option disabled>choose<option value=b>B</select>"
         "<select id=dead><option disabled>none</select>"_s);
    EXPECT_EQ(Chosen(u"pick"_s), u"01"_s);
    EXPECT_EQ(Chosen(u"dead"_s), u"0"_s);
}

TEST_F(ListBoxContract, AnOpenListMayHaveNoChoice) {
    Show(
        u"<select id=pick size=3><option value=a>A<option value=b selected>B<option value=c selected>C</select>"_s);
    EXPECT_EQ(Chosen(u"pick"_s), u"001"_s);
    Select(u"pick"_s, 0);
    EXPECT_EQ(Chosen(u"pick"_s), u"100"_s);
    Select(u"pick"_s, 0, false);
    EXPECT_EQ(Chosen(u"pick"_s), u"000"_s);
    EXPECT_EQ(ById(u"pick"_s).Value(), QString());
}

TEST_F(ListBoxContract, SomeListsHaveManyChoices) {
    ServeBody(u"sent?who=a&who=c"_s, u"thank you"_s);
    Show(u"<form id=f action='/sent'><select id=friends name=who multiple><option value=a>A"
         "<option value=b selected>B<option value=c>C</select></form>"_s);
    EXPECT_EQ(Chosen(u"friends"_s), u"010"_s);
    Select(u"friends"_s, 0);
    Select(u"friends"_s, 2);
    EXPECT_EQ(Chosen(u"friends"_s), u"111"_s);
    EXPECT_EQ(ById(u"friends"_s).Value(), u"a"_s);
    Select(u"friends"_s, 1, false);
    EXPECT_EQ(Chosen(u"friends"_s), u"101"_s);
    ById(u"f"_s).Submit();
    EXPECT_TRUE(WaitForText(u"thank you"_s));
}

TEST_F(ListBoxContract, OptionsInAFrameAreChosenToo) {
    ServeBody(u"frame"_s, u"<select id=friends multiple><option value=1>one<option value=2>two</select>"_s);
    Show(u"<iframe name=friendBox src='/frame'></iframe>"_s);
    const std::vector<Element> options =
        browser.Document().FrameDocument(u"friendBox"_s).GetElementsByTagName(u"option"_s);
    ASSERT_EQ(options.size(), 2U);
    options[1].SetSelected(true);
    EXPECT_EQ(options[0].GetAttribute(u"selected"_s), QString());
    EXPECT_EQ(options[1].GetAttribute(u"selected"_s), u"selected"_s);
}

TEST_F(ListBoxContract, OnlyAnOptionCanBeChosen) {
    Show(u"<select id=pick><option>A</select>"_s);
    EXPECT_THROW(ById(u"pick"_s).SetSelected(true), BrowserError);
    EXPECT_EQ(ById(u"pick"_s).GetAttribute(u"selected"_s), QString());
}

// The mouse does that in the list that a browser opens; a click alone is none.
TEST_F(ListBoxContract, AClickOnAnOptionChoosesNothing) {
    Show(u"<select id=pick><option>A<option id=b>B</select>"_s);
    ById(u"b"_s).Click();
    EXPECT_EQ(Chosen(u"pick"_s), u"10"_s);
}

TEST_F(ListBoxContract, AChangeIsHeardByWhatListensForIt) {
    Show(u"<div id=around data-on-change='append #log <i>around </i>'><select id=who "
         "onchange=\"note('inline ')\" data-on-change='append #log <i>inline </i>'>"
         "<option value=0>All<option value=1>Just Me</select></div><p id=log></p>"
         "<script>function note(word) { document.getElementById('log').insertAdjacentText('beforeend', "
         "word); }"
         "document.getElementById('around').addEventListener('change', function() { note('around '); });"
         "</script>"_s);
    Select(u"who"_s, 1);
    EXPECT_EQ(ById(u"log"_s).InnerText(), QString());
    ById(u"who"_s).FireChange();
    EXPECT_EQ(ById(u"log"_s).InnerText().trimmed(), u"inline around"_s);
}

TEST_F(ListBoxContract, AChangeIsInputToo) {
    Show(u"<input id=word oninput=\"document.getElementById('log').innerText = this.value\""
         " data-on-input='set #log innertext seven'><p id=log></p>"_s);
    ById(u"word"_s).SetValue(u"seven"_s);
    ById(u"word"_s).FireChange();
    EXPECT_EQ(ById(u"log"_s).InnerText(), u"seven"_s);
}

TEST_F(ListBoxContract, WhatGetsTheFocusHearsIt) {
    Show(u"<div id=around><textarea id=box onfocus=\"this.parentElement.className='absolute'\""
         " data-on-focus='set #around class absolute'></textarea></div>"_s);
    EXPECT_EQ(ById(u"box"_s).ParentElement().Read(ElementText::ClassName), QString());
    ById(u"box"_s).Focus();
    EXPECT_EQ(ById(u"box"_s).ParentElement().Read(ElementText::ClassName), u"absolute"_s);
}

TEST_F(ListBoxContract, TheFocusComesOnce) {
    Show(u"<p id=log></p><input id=other><input id=box data-on-focus='append #log <i>x</i>'>"
         "<script>document.getElementById('box').addEventListener('focus', function() {"
         "document.getElementById('log').insertAdjacentText('beforeend', 'x'); });</script>"_s);
    ById(u"box"_s).Focus();
    ById(u"box"_s).Focus();
    EXPECT_EQ(ById(u"log"_s).InnerText(), u"x"_s);
    ById(u"other"_s).Focus();
    ById(u"box"_s).Focus();
    EXPECT_EQ(ById(u"log"_s).InnerText(), u"xx"_s);
}

TEST_F(ListBoxContract, WhatIsDisabledSaysSo) {
    Show(u"<button id=dead disabled>x</button><button id=live>x</button><span id=span disabled>x</span>"
         "<select><optgroup disabled><option id=choice>x</optgroup></select>"
         "<fieldset disabled><legend><input id=legend></legend><p id=text><input id=inside></p>"
         "<fieldset><legend><input id=deep></legend></fieldset></fieldset><p id=none>x</p>"_s);
    for (const QString& id : {u"dead"_s, u"span"_s, u"choice"_s, u"inside"_s, u"deep"_s})
        EXPECT_TRUE(IsDisabled(id)) << id.toStdString();
    for (const QString& id : {u"live"_s, u"legend"_s, u"text"_s, u"none"_s})
        EXPECT_FALSE(IsDisabled(id)) << id.toStdString();
    EXPECT_EQ(ById(u"none"_s).GetAttribute(u"Disabled"_s), QString());
}

TEST_F(ListBoxContract, AButtonIsDisabledForAsLongAsThePageSaysSo) {
    Show(u"<span id=go onclick=\"document.getElementById('send').disabled = true;"
         "setTimeout(function() { document.getElementById('send').disabled = false; }, 150)\""
         " data-on-click='set #send disabled true; after 150ms set #send disabled false'>go</span>"
         "<button id=send>Send</button>"_s);
    EXPECT_FALSE(IsDisabled(u"send"_s));
    ById(u"go"_s).Click();
    EXPECT_TRUE(IsDisabled(u"send"_s));
    EXPECT_TRUE(WaitUntil([this] { return !IsDisabled(u"send"_s); }));
}

TEST_F(ListBoxContract, AClickOnWhatIsDisabledDoesNothing) {
    const QString act = u" onclick=\"document.getElementById('out').innerText='clicked'\""
                        " data-on-click='set #out innertext clicked'"_s;
    Show(u"<p id=out>not yet</p><button id=dead disabled"_s + act +
         u">x</button><fieldset disabled><input "
         "type=checkbox id=tick></fieldset><button id=live"_s +
         act + u">x</button>"_s);
    ById(u"dead"_s).Click();
    ById(u"tick"_s).Click();
    EXPECT_EQ(ById(u"out"_s).InnerText(), u"not yet"_s);
    EXPECT_EQ(ById(u"tick"_s).GetAttribute(u"checked"_s), QString());
    ById(u"live"_s).Click();
    EXPECT_EQ(ById(u"out"_s).InnerText(), u"clicked"_s);
}

} // namespace qlm
