// SPDX-License-Identifier: MIT
#include "ContractTest.h"

namespace qlm {

using DocumentContract = ContractTest;

TEST_F(DocumentContract, BodyTextReadsLikeThePage) {
    const Document document = Show(u"<div>one   two\n three</div><p>four<br>five</p><p>six</p>"
                                   "<span>seven</span> <b>eight</b>"_s);
    EXPECT_EQ(document.BodyText(), u"one two three\n\nfour\nfive\n\nsix\n\nseven eight"_s);
}

TEST_F(DocumentContract, BodyTextLeavesOutWhatDoesNotShow) {
    const Document document = Show(
        u"<div>shown</div><div style='display: none'>hidden</div><script>var secret = 1;</script>"
        "<style>.x { color: red }</style><div hidden>gone</div><input value='typed'><textarea>area</textarea>"
        "<div>last</div>"_s);
    EXPECT_TRUE(document.BodyText().startsWith(u"shown"_s));
    EXPECT_TRUE(document.BodyText().endsWith(u"last"_s));
    for (const QString& absent : {u"hidden"_s, u"secret"_s, u"color"_s, u"gone"_s, u"typed"_s, u"area"_s})
        EXPECT_FALSE(document.BodyText().contains(absent)) << absent.toStdString();
}

TEST_F(DocumentContract, AHardSpaceStaysAHardSpace) {
    const Document document = Show(u"<p>a&nbsp;b</p>"_s);
    EXPECT_EQ(document.BodyText(), u"a\u00a0b"_s);
}

TEST_F(DocumentContract, TableCellsStandApart) {
    const Document document =
        Show(u"<table><tr><td>a</td><td>b</td></tr><tr><td>c</td><td>d</td></tr></table>"_s);
    EXPECT_EQ(document.BodyText(), u"a\tb\nc\td"_s);
}

TEST_F(DocumentContract, EntitiesEmojiAndRightToLeftTextComeThrough) {
    const Document document =
        Show(u"<p>&lt;b&gt; &amp; caf\u00e9 \u20ac &#8217;</p><p>\U0001F600\U0001F468</p>"
             "<p>\u0645\u0631\u062d\u0628\u0627 \u05e9\u05dc\u05d5\u05dd</p>"_s);
    EXPECT_EQ(document.BodyText(), u"<b> & caf\u00e9 \u20ac \u2019\n\n\U0001F600\U0001F468\n\n"
                                   "\u0645\u0631\u062d\u0628\u0627 \u05e9\u05dc\u05d5\u05dd"_s);
}

TEST_F(DocumentContract, MarkupIsWrittenBackWithQuotedValues) {
    const Document document =
        Show(u"<DIV ID=box CLASS=age>1 &lt; 2 &amp; 3&nbsp;4<BR><img src=a.gif></DIV>"_s);
    const QString box =
        u"<div id=\"box\" class=\"age\">1 &lt; 2 &amp; 3&nbsp;4<br><img src=\"a.gif\"></div>"_s;
    EXPECT_EQ(document.BodyHTML().trimmed(), box);
    EXPECT_EQ(document.BodyOuterHTML().trimmed().left(6), u"<body>"_s);
    EXPECT_EQ(ById(u"box"_s).OuterHTML(), box);
    EXPECT_EQ(ById(u"box"_s).InnerHTML(), u"1 &lt; 2 &amp; 3&nbsp;4<br><img src=\"a.gif\">"_s);
}

TEST_F(DocumentContract, ScriptsAreWrittenBackAsTheyStand) {
    const Document document = Show(u"<script>if (1 < 2 && true) var own = '\"UserId\":12345,';</script>"_s);
    EXPECT_TRUE(document.BodyHTML().contains(u"if (1 < 2 && true) var own = '\"UserId\":12345,';"_s));
}

TEST_F(DocumentContract, LinksAreAnchorsAndAreasWithAnAddressInOrder) {
    const Document document = Show(u"<a href='/one'>One</a><a name=anchor>no link</a>"
                                   "<map name=m><area id=spot href='/two' shape=rect coords='0,0,9,9'></map>"
                                   "<div><a href='/three'><b>Three</b></a></div>"_s);
    const std::vector<Element> links = document.Links();
    ASSERT_EQ(links.size(), 3u);
    EXPECT_EQ(links[0].Href(), At(u"one"_s));
    EXPECT_EQ(links[0].InnerText(), u"One"_s);
    EXPECT_EQ(links[1].Href(), At(u"two"_s));
    EXPECT_EQ(links[1].TagName(), u"area"_s);
    EXPECT_EQ(links[2].Href(), At(u"three"_s));
    EXPECT_EQ(links[2].InnerHTML(), u"<b>Three</b>"_s);
}

TEST_F(DocumentContract, AddressesAreShownResolved) {
    ServeBody(u"folder/page?x=1"_s,
              u"<a id=a href='other.htm'>a</a><a id=b href='../up'>b</a><a id=c href='?y=2'>c</a>"
              "<a id=d href='//else.example.com'>d</a><a id=e href='javascript:void(0)'>e</a>"
              "<a id=f href='/a b'>f</a>"_s);
    Go(u"folder/page?x=1"_s);
    EXPECT_EQ(ById(u"a"_s).Href(), At(u"folder/other.htm"_s));
    EXPECT_EQ(ById(u"b"_s).Href(), At(u"up"_s));
    EXPECT_EQ(ById(u"c"_s).Href(), At(u"folder/page?y=2"_s));
    EXPECT_EQ(ById(u"d"_s).Href(), u"http://else.example.com/"_s);
    EXPECT_EQ(ById(u"e"_s).Href(), u"javascript:void(0)"_s);
    EXPECT_EQ(ById(u"f"_s).Href(), At(u"a%20b"_s));
}

TEST_F(DocumentContract, ABaseElementMovesRelativeAddresses) {
    Serve(u"page"_s, u"<html><head><base href='http://other.example.com/dir/'></head>"
                     "<body><a id=a href='x'>x</a></body></html>"_s);
    Go(u"page"_s);
    EXPECT_EQ(ById(u"a"_s).Href(), u"http://other.example.com/dir/x"_s);
}

TEST_F(DocumentContract, ALinkKnowsItsHostAndAnImageItsFile) {
    const Document document = Show(u"<a id=a href='http://links.example.com:8080/x'>x</a>"
                                   "<img src='/pictures/Face.GIF' alt='a face' title='Tam'>"
                                   "<input type=image id=go src='/buttons/send.png'>"_s);
    EXPECT_EQ(ById(u"a"_s).Read(ElementText::HostName), u"links.example.com"_s);
    const std::vector<Element> images = document.Images();
    ASSERT_EQ(images.size(), 1u);
    EXPECT_EQ(images[0].Read(ElementText::NameProp), u"Face.GIF"_s);
    EXPECT_EQ(images[0].Read(ElementText::Src), At(u"pictures/Face.GIF"_s));
    EXPECT_EQ(images[0].Read(ElementText::Alt), u"a face"_s);
    EXPECT_EQ(images[0].Read(ElementText::Title), u"Tam"_s);
    EXPECT_EQ(ById(u"go"_s).Read(ElementText::Src), At(u"buttons/send.png"_s));
}

TEST_F(DocumentContract, ScriptsCanBeRead) {
    const Document document =
        Show(u"<script>var a = 1;</script><p>x</p><script>window.b = \"two\";</script>"_s);
    const std::vector<Element> scripts = document.Scripts();
    ASSERT_EQ(scripts.size(), 2u);
    EXPECT_EQ(scripts[0].Read(ElementText::Text), u"var a = 1;"_s);
    EXPECT_EQ(scripts[1].Read(ElementText::Text), u"window.b = \"two\";"_s);
}

TEST_F(DocumentContract, ElementsAreFoundByTagAndByName) {
    const Document document =
        Show(u"<input name=mail><INPUT name=Mail><button>b</button><div name=mail>d</div>"_s);
    EXPECT_EQ(document.GetElementsByTagName(u"INPUT"_s).size(), 2u);
    EXPECT_EQ(document.GetElementsByTagName(u"button"_s).size(), 1u);
    EXPECT_TRUE(document.GetElementsByTagName(u"marquee"_s).empty());
    EXPECT_EQ(document.GetElementsByName(u"mail"_s).size(), 2u);
    EXPECT_EQ(document.GetElementsByName(u"Mail"_s).size(), 1u);
}

TEST_F(DocumentContract, TheFirstOfSeveralElementsWithOneIdIsTaken) {
    Show(u"<p id=twice>first</p><p id=twice>second</p>"_s);
    EXPECT_EQ(ById(u"twice"_s).InnerText(), u"first"_s);
    EXPECT_TRUE(ById(u"Twice"_s).IsNull());
    EXPECT_TRUE(ById(u"never"_s).IsNull());
    EXPECT_TRUE(ById(QString()).IsNull());
}

TEST_F(DocumentContract, AncestorsLeadUpToNothing) {
    Show(u"<div id=outer class=miniProfile><span><a id=inner href=/x>x</a></span></div>"_s);
    const Element inner = ById(u"inner"_s);
    EXPECT_EQ(inner.ParentElement().TagName(), u"span"_s);
    EXPECT_EQ(inner.Ancestor(2).Id(), u"outer"_s);
    EXPECT_EQ(inner.Ancestor(2).Read(ElementText::ClassName), u"miniProfile"_s);
    EXPECT_EQ(inner.Ancestor(3).TagName(), u"body"_s);
    EXPECT_EQ(inner.Ancestor(4).TagName(), u"html"_s);
    EXPECT_TRUE(inner.Ancestor(5).IsNull());
    EXPECT_EQ(inner.Ancestor(6).OuterHTML(), QString());
}

TEST_F(DocumentContract, DescendantsAreFoundByTag) {
    Show(u"<div id=box><a href=/1>1</a><p><a href=/2>2</a></p></div><a href=/3>3</a>"_s);
    const std::vector<Element> links = ById(u"box"_s).Tags(u"A"_s);
    ASSERT_EQ(links.size(), 2u);
    EXPECT_EQ(links[1].InnerText(), u"2"_s);
}

TEST_F(DocumentContract, AttributesAreReadInAnyCase) {
    Show(u"<div id=box title='Hint' data-x='7' class='a b' checked>in <b>side</b></div>"_s);
    const Element box = ById(u"box"_s);
    EXPECT_EQ(box.GetAttribute(u"TITLE"_s), u"Hint"_s);
    EXPECT_EQ(box.GetAttribute(u"data-X"_s), u"7"_s);
    EXPECT_EQ(box.GetAttribute(u"absent"_s), QString());
    EXPECT_TRUE(box.HasAttribute(u"checked"_s));
    EXPECT_FALSE(box.HasAttribute(u"absent"_s));
}

TEST_F(DocumentContract, SomeAttributesReadAProperty) {
    Show(u"<button id=box class='a b'>in <b>side</b></button>"_s);
    const Element box = ById(u"box"_s);
    for (const QString& name : {u"innertext"_s, u"innerText"_s, u"Innertext"_s, u"INNERTEXT"_s})
        EXPECT_EQ(box.GetAttribute(name), u"in side"_s) << name.toStdString();
    EXPECT_EQ(box.GetAttribute(u"InnerHTML"_s), u"in <b>side</b>"_s);
    EXPECT_TRUE(box.GetAttribute(u"outerHTML"_s).startsWith(u"<button id=\"box\""_s));
    EXPECT_EQ(box.GetAttribute(u"Class"_s), u"a b"_s);
}

TEST_F(DocumentContract, TypesAndTagNamesAreLowerCase) {
    Show(u"<INPUT id=a TYPE=Submit><input id=b><button id=c>c</button>"_s);
    EXPECT_EQ(ById(u"a"_s).TagName(), u"input"_s);
    EXPECT_EQ(ById(u"a"_s).Read(ElementText::Type), u"submit"_s);
    EXPECT_EQ(ById(u"b"_s).Read(ElementText::Type), u"text"_s);
    EXPECT_EQ(ById(u"c"_s).Read(ElementText::Type), u"submit"_s);
}

TEST_F(DocumentContract, MissingPropertiesReadAsNothing) {
    Show(u"<p id=p>text</p>"_s);
    const Element p = ById(u"p"_s);
    for (const ElementText which :
         {ElementText::Name, ElementText::Value, ElementText::Href, ElementText::HostName,
          ElementText::NameProp, ElementText::Src, ElementText::Alt, ElementText::Title,
          ElementText::ClassName, ElementText::Type, ElementText::Text})
        EXPECT_EQ(p.Read(which), QString()) << static_cast<int>(which);
}

TEST_F(DocumentContract, ANullElementReadsAsNothingAndDoesNothing) {
    Show(u"x"_s);
    const Element none = ById(u"none"_s);
    EXPECT_EQ(none.InnerText(), QString());
    EXPECT_EQ(none.GetAttribute(u"id"_s), QString());
    EXPECT_FALSE(none.HasAttribute(u"id"_s));
    EXPECT_TRUE(none.ParentElement().IsNull());
    EXPECT_THROW(none.Click(), BrowserError);
    EXPECT_THROW(none.SetValue(u"x"_s), BrowserError);
    EXPECT_THROW(Document().BodyText(), BrowserError);
}

TEST_F(DocumentContract, ReadingAReplacedDocumentThrows) {
    const Document old = Show(u"<p id=p>old</p>"_s, u"one"_s);
    const Element p = old.GetElementById(u"p"_s);
    Show(u"<p id=p>new</p>"_s, u"two"_s);
    EXPECT_THROW(p.InnerText(), BrowserError);
    EXPECT_THROW(p.GetAttribute(u"id"_s), BrowserError);
    EXPECT_THROW(p.ParentElement(), BrowserError);
    EXPECT_THROW(p.SetInnerText(u"x"_s), BrowserError);
    EXPECT_THROW(p.Click(), BrowserError);
    EXPECT_THROW(old.BodyText(), BrowserError);
    EXPECT_THROW(old.Links(), BrowserError);
    EXPECT_THROW(old.GetElementById(u"p"_s), BrowserError);
    EXPECT_EQ(ById(u"p"_s).InnerText(), u"new"_s);
}

TEST_F(DocumentContract, ADocumentReplacedWhileItIsReadThrows) {
    Show(u"<a href=/1>1</a><a href=/2>2</a>"_s, u"one"_s);
    ServeBody(u"two"_s, u"another page"_s);
    const std::vector<Element> links = browser.Document().Links();
    EXPECT_EQ(links[0].InnerText(), u"1"_s);
    browser.Navigate(At(u"two"_s));
    ASSERT_TRUE(WaitForText(u"another page"_s));
    EXPECT_THROW(links[1].InnerText(), BrowserError);
}

TEST_F(DocumentContract, TwentyThousandLinksAreReadQuickly) {
    QString body;
    for (int i = 0; i < 20'000; ++i)
        body += u"<a href='/%1'>link %1</a>\n"_s.arg(i);
    const Document document = Show(body);
    const qint64 callsBefore = browser.EngineCalls();
    const std::vector<Element> links = document.Links();
    ASSERT_EQ(links.size(), 20'000u);
    for (size_t i = 0; i < links.size(); i += 1'999)
        EXPECT_EQ(links[i].Href(), At(QString::number(i)));
    int found = 0;
    for (const Element& link : links)
        found += link.InnerText() == u"link 19999" && link.Href().endsWith(u"/19999");
    EXPECT_EQ(found, 1);
    EXPECT_TRUE(document.BodyText().contains(u"link 12345"_s));
    EXPECT_LE(browser.EngineCalls() - callsBefore, 10);
}

} // namespace qlm
