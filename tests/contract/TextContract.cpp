// SPDX-License-Identifier: MIT
#include "ContractTest.h"

namespace qlm {

// Small pages and how their text, markup and addresses read. One page holds all cases of a kind, each in an
// element of its own, so that a table costs one load.
class TextContract : public ContractTest {
protected:
    struct Case {
        QString html;
        QString expected;
    };

    void ShowCases(const std::vector<Case>& cases) {
        QString body;
        for (size_t i = 0; i < cases.size(); ++i)
            body += u"<div id=case%1>%2</div>"_s.arg(QString::number(i), cases[i].html);
        Show(body);
    }
    Element CaseElement(size_t index) { return ById(u"case%1"_s.arg(index)); }
};

TEST_F(TextContract, ElementsReadAsTheyShow) {
    const std::vector<Case> cases{
        {u"plain"_s, u"plain"_s},
        {u"  a \n\t b  "_s, u"a b"_s},
        {u"a<b> b</b> <i> c</i>"_s, u"a b c"_s},
        {u"<div>a</div><div>b</div>"_s, u"a\nb"_s},
        {u"<div>a</div>  <div></div> <div>b</div>"_s, u"a\nb"_s},
        {u"a<div>b</div>c"_s, u"a\nb\nc"_s},
        {u"<p>a</p><p>b</p>"_s, u"a\n\nb"_s},
        {u"<h1>a</h1>b"_s, u"a\nb"_s},
        {u"a<br>b<br><br>c"_s, u"a\nb\n\nc"_s},
        {u"a <br> b"_s, u"a\nb"_s},
        {u"a<hr>b"_s, u"a\nb"_s},
        {u"<center>a</center>b"_s, u"a\nb"_s},
        {u"<ul><li>a<li>b</ul>"_s, u"a\nb"_s},
        {u"<dl><dt>a<dd>b</dl>"_s, u"a\nb"_s},
        {u"<fieldset><legend>a</legend>b</fieldset>"_s, u"a\nb"_s},
        {u"a&nbsp; &nbsp;b"_s, u"a\u00a0 \u00a0b"_s},
        {u"<pre>a  b\n c</pre>"_s, u"a  b\n c"_s},
        {u"a<script>x</script>b"_s, u"ab"_s},
        {u"a<style>x {}</style>b"_s, u"ab"_s},
        {u"a<noscript>x</noscript>b"_s, u"ab"_s},
        {u"a<!-- x -->b"_s, u"ab"_s},
        {u"a<template>x</template>b"_s, u"ab"_s},
        {u"a<span style='display:none'>x</span>b"_s, u"ab"_s},
        {u"a<span style='DISPLAY: None'>x</span>b"_s, u"ab"_s},
        {u"a<span hidden>x</span>b"_s, u"ab"_s},
        {u"a<span style='visibility:hidden'>x<b style='visibility:visible'>y</b></span>b"_s, u"ayb"_s},
        {u"<span style='display:block'>a</span>b"_s, u"a\nb"_s},
        {u"<div style='display:inline'>a</div>b"_s, u"ab"_s},
        {u"<div style='display:inline-block'>a</div>b"_s, u"ab"_s},
        {u"<span style='white-space: pre'>a  b</span>"_s, u"a  b"_s},
        {u"a<input value=x><textarea>y</textarea>"_s, u"a"_s},
        {u"a <img src=data:,> b"_s, u"a  b"_s},
        {u"<button>go <b>on</b></button>"_s, u"go on"_s},
        {u"<select><option>a<option>b</select>c"_s, u"a\nb\nc"_s},
        {u"<table><tr><th>a<td>b<tr><td>c</table>d"_s, u"a\tb\nc\nd"_s},
        {u"<table><tbody><tr><td>a</td></tr></tbody><tbody><tr><td>b</td></tr></tbody></table>"_s, u"a\nb"_s},
        {u"<table><tr><td> a </td> <td> <div>b</div> </td></tr></table>"_s, u"a\t\nb"_s},
        {u"<table><caption>a</caption><tr><td>b</td></tr></table>"_s, u"a\nb"_s},
        {u"<table><tr><td><a href=/x>a</a><br><span>b</span></td><td>c</td></tr></table>"_s, u"a\nb\tc"_s},
        {u"<a href=/x><img src=data:,></a><br><a href=/x>name</a>"_s, u"\nname"_s},
        {u"<font color=red>a</font><nobr>b</nobr><tt>c</tt>"_s, u"abc"_s},
        {u"&lt;i&gt; &amp;amp; &#169; &euro;"_s, u"<i> &amp; \u00a9 \u20ac"_s},
        {u"<label>a</label> <abbr>b</abbr>\n<em>c</em>"_s, u"a b c"_s},
        {u"<div><div><div>a</div></div></div><div><p>b</p></div>c"_s, u"a\n\nb\n\nc"_s},
        {u"a<br>"_s, u"a\n"_s},
        {u"<div>a<br></div>b"_s, u"a\n\nb"_s},
        {u"<p>a<br></p><p>b</p>"_s, u"a\n\n\nb"_s},
        {u"<br>a"_s, u"\na"_s},
        {u"<table><tr><td></td><td>b</td></tr><tr><td>c</td><td></td></tr></table>"_s, u"\tb\nc\t"_s},
        {u"<table><tr><td>a</td></tr></table><table><tr><td>b</td></tr></table>"_s, u"a\nb"_s},
        {u"<table><tr><td><table><tr><td>a</td><td>b</td></tr></table></td><td>c</td></tr></table>"_s,
         u"a\tb\n\tc"_s},
        {u"a <div style='display:none'>x</div> b"_s, u"a b"_s},
        {u"<b>a </b> <div>b </div> c"_s, u"a\nb\nc"_s},
        {u"<a href=/x>a</a>\n<a href=/x>b</a>"_s, u"a b"_s},
        {u"<select><optgroup label=g><option>a</option></optgroup></select>"_s, u"a"_s},
        {u"<ol><li><p>a</p></li><li>b</li></ol>"_s, u"a\n\nb"_s},
        {u"<blockquote>a</blockquote>b"_s, u"a\nb"_s},
        {u"<pre>a\n</pre>b"_s, u"a\n\nb"_s},
        {u"<textarea>x</textarea> a"_s, u" a"_s},
        {u"<iframe>x</iframe>a"_s, u"a"_s},
        {u"<object>x</object>a"_s, u"xa"_s},
        {u"<marquee>a</marquee>b"_s, u"ab"_s},
        {u"<details><summary>a</summary>b</details>"_s, u"a"_s},
        {u"<span>a</span><span style='display:table-cell'>b</span>"_s, u"ab"_s},
        {u"<map><area href=/x></map>a"_s, u"a"_s},
        {u"<form><div>a</div><input type=submit value=b></form>c"_s, u"a\nc"_s},
        {u"<table><tr><td>a\n</td>\n<td> b</td>\n</tr>\n</table>\n"_s, u"a\tb"_s},
        {u"x<table><thead><tr><td>a</td></tr></thead><tbody><tr><td>b</td></tr></tbody></table>"_s,
         u"x\na\nb"_s},
        {u"<div>a</div><br><div>b</div>"_s, u"a\n\n\nb"_s},
        {u"<div>a</div><br><br>b"_s, u"a\n\n\nb"_s},
        {u"a&#9;b&#8203;c"_s, u"a b\u200bc"_s},
        {u"a<wbr>b&shy;c"_s, u"ab\u00adc"_s},
        {u"<video>x</video><canvas>y</canvas>a"_s, u"a"_s},
    };
    ShowCases(cases);
    for (size_t i = 0; i < cases.size(); ++i)
        EXPECT_EQ(CaseElement(i).InnerText(), cases[i].expected) << cases[i].html.toStdString();
}

TEST_F(TextContract, WhatAStyleElementSaysCounts) {
    const std::vector<Case> cases{
        {u"a<span class=h>x</span>b"_s, u"ab"_s},
        {u"a<span class='other h'>x</span>b"_s, u"ab"_s},
        {u"a<span id=gone>x</span>b"_s, u"ab"_s},
        {u"a<u>x</u>b"_s, u"ab"_s},
        {u"a<u class=s>x</u>b"_s, u"axb"_s},
        {u"a<u style='display:inline'>x</u>b"_s, u"axb"_s},
        {u"a<i class=strong style='display:inline'>x</i>b"_s, u"ab"_s},
        {u"a<span class=out><b><i class=in>x</i></b></span><i class=in>y</i>"_s, u"ay"_s},
        {u"a<span class=line>b</span>c"_s, u"a\nb\nc"_s},
        {u"<span class=up>aB <b>c</b></span>d"_s, u"AB Cd"_s},
        {u"<span class=low>aB</span>C"_s, u"abC"_s},
        {u"<span class=cap>more people <b>dot</b>ty</span>"_s, u"More People Dotty"_s},
        {u"<span class=up>a<b class=own>b</b></span>"_s, u"Ab"_s},
        {u"<span class=unseen>x<b class=seen>y</b></span>"_s, u"y"_s},
        {u"<span class=kept>a  b</span>"_s, u"a  b"_s},
        {u"a<span class=printed>x</span>b"_s, u"axb"_s},
    };
    QString body = u"<style>/* .x{} */ .h, #gone { display: none } u{display:none} u.s{display:inline}"
                   ".strong{display:none !important} .out .in{display:none} .line{display:block}"
                   "@media print { .printed { display: none } }"
                   ".up{text-transform:uppercase}.low{text-transform:lowercase}"
                   ".cap{text-transform:capitalize}.own{text-transform:none}"
                   ".unseen{visibility:hidden}.seen{visibility:visible}.kept{white-space:pre}</style>"_s;
    for (size_t i = 0; i < cases.size(); ++i)
        body += u"<div id=case%1>%2</div>"_s.arg(QString::number(i), cases[i].html);
    Show(body);
    for (size_t i = 0; i < cases.size(); ++i)
        EXPECT_EQ(CaseElement(i).InnerText(), cases[i].expected) << cases[i].html.toStdString();
}

TEST_F(TextContract, AStyleCountsForTheTextOfWhatStandsInside) {
    Show(u"<style>.up{text-transform:uppercase}.cap{text-transform:capitalize}</style>"
         "<div class=up>aB <b id=upper>c <i id=deep style='text-transform:none'>d</i></b></div>"
         "<div id=block class=cap>more people <b id=name>dot</b></div><pre><b id=pre>a  b</b></pre>"
         "<div style='visibility:hidden'><b id=unseen>x</b></div>"_s);
    EXPECT_EQ(ById(u"upper"_s).InnerText(), u"C d"_s);
    EXPECT_EQ(ById(u"deep"_s).InnerText(), u"d"_s);
    EXPECT_EQ(ById(u"block"_s).InnerText(), u"More People Dot"_s);
    EXPECT_EQ(ById(u"name"_s).InnerText(), u"Dot"_s);
    EXPECT_EQ(ById(u"pre"_s).InnerText(), u"a  b"_s);
    EXPECT_EQ(ById(u"unseen"_s).InnerText(), QString());
}

// Scripts run, so that what stands there is text and no markup.
TEST_F(TextContract, WhatStandsInANoScriptIsNoMarkup) {
    Serve(u"page"_s, u"<html><head><noscript><a href=/head>x</a></noscript><title>t</title></head><body>"
                     "<!-- <noscript> --><p id=p>a<noscript id=n><a href=/body>x</a></noscript>b"
                     "<script>var s = '<noscript>';</script></p><a href=/after>y</a></body></html>"_s);
    const Document document = Go(u"page"_s);
    ASSERT_EQ(document.Links().size(), 1u);
    EXPECT_EQ(document.Links()[0].Href(), At(u"after"_s));
    EXPECT_EQ(ById(u"p"_s).InnerText(), u"ab"_s);
    EXPECT_EQ(ById(u"n"_s).TagName(), u"noscript"_s);
    EXPECT_EQ(ById(u"n"_s).OuterHTML(), u"<noscript id=\"n\"><a href=/body>x</a></noscript>"_s);
}

TEST_F(TextContract, ALinkInADrawingIsNoneOfThePages) {
    const Document document = Show(u"<svg><a id=s href=/svg><text>x</text></a></svg><a href=/a>a</a>"_s);
    ASSERT_EQ(document.Links().size(), 1u);
    EXPECT_EQ(document.Links()[0].Href(), At(u"a"_s));
    EXPECT_EQ(document.GetElementsByTagName(u"a"_s).size(), 2u);
}

TEST_F(TextContract, WhatIsHiddenReadsAsItsPlainText) {
    Show(u"<div style='display:none'> a <p id=p>b</p></div><div id=d hidden>c <b>d</b></div>"
         "<script id=s>var a = '<b>';</script><select><option id=o> one </option></select>"_s);
    EXPECT_EQ(ById(u"p"_s).InnerText(), u"b"_s);
    EXPECT_EQ(ById(u"d"_s).InnerText(), u"c d"_s);
    EXPECT_EQ(ById(u"s"_s).InnerText(), u"var a = '<b>';"_s);
    EXPECT_EQ(ById(u"o"_s).InnerText().trimmed(), u"one"_s);
}

TEST_F(TextContract, MarkupIsWrittenBackInTheStandardForm) {
    const std::vector<Case> cases{
        {u"<IMG SRC='data:,' ALT='a \"b\" & c'>"_s,
         u"<img src=\"data:,\" alt=\"a &quot;b&quot; &amp; c\">"_s},
        {u"<Br><custom-tag X=1>y</custom-tag>"_s, u"<br><custom-tag x=\"1\">y</custom-tag>"_s},
        {u"1 < 2 > 0 &amp; &nbsp;&copy;"_s, u"1 &lt; 2 &gt; 0 &amp; &nbsp;\u00a9"_s},
        {u"<style>a > b {}</style><!-- <x> -->"_s, u"<style>a > b {}</style><!-- <x> -->"_s},
        {u"<p>a<p>b"_s, u"<p>a</p><p>b</p>"_s},
        {u"<table><tr><td id=tr7 style='DISPLAY: none'>x</table>"_s,
         u"<table><tbody><tr><td id=\"tr7\" style=\"DISPLAY: none\">x</td></tr></tbody></table>"_s},
        {u"<input disabled value=7>"_s, u"<input disabled=\"\" value=\"7\">"_s},
        {u"<b>a<i>b</b>c</i>"_s, u"<b>a<i>b</i></b><i>c</i>"_s},
        {u"<textarea>\n&lt;b&gt;</textarea>"_s, u"<textarea>&lt;b&gt;</textarea>"_s},
        {u"<select><option selected>a<option>b</select>"_s,
         u"<select><option selected=\"\">a</option><option>b</option></select>"_s},
    };
    ShowCases(cases);
    for (size_t i = 0; i < cases.size(); ++i)
        EXPECT_EQ(CaseElement(i).InnerHTML(), cases[i].expected) << cases[i].html.toStdString();
}

TEST_F(TextContract, AddressesResolveAgainstThePage) {
    const std::vector<Case> cases{
        {u"x"_s, At(u"a/b/x"_s)},
        {u"../x?y=/z"_s, At(u"a/x?y=/z"_s)},
        {u"../../../x"_s, At(u"x"_s)},
        {u"./"_s, At(u"a/b/"_s)},
        {u".."_s, At(u"a/"_s)},
        {u"/x/./y"_s, At(u"x/y"_s)},
        {u"?z"_s, At(u"a/b/c?z"_s)},
        {u"#g"_s, At(u"a/b/c?q=1#g"_s)},
        {u"//Other.example.com/x"_s, u"http://other.example.com/x"_s},
        {u"HTTP://OTHER.example.com"_s, u"http://other.example.com/"_s},
        {u" /x y "_s, At(u"x%20y"_s)},
        {u"/caf\u00e9"_s, At(u"caf%C3%A9"_s)},
        {u"mailto:a@b"_s, u"mailto:a@b"_s},
        {u"javascript:f('x')"_s, u"javascript:f('x')"_s},
        {u"/x?a\n&b=1"_s, At(u"x?a&b=1"_s)},
        {u"\t/x\ty"_s, At(u"xy"_s)},
        {u"http:\\\\site.example.com\\x\\y?a\\b"_s, At(u"x/y?a\\b"_s)},
        {u"http://site.example.com:80/x"_s, At(u"x"_s)},
        {u"http://site.example.com:8080/x"_s, u"http://site.example.com:8080/x"_s},
        {u"https://site.example.com:443/x"_s, u"https://site.example.com/x"_s},
        {u"http:x"_s, At(u"a/b/x"_s)},
        {u"http:/x"_s, At(u"x"_s)},
        {u"https:x.example.com/y"_s, u"https://x.example.com/y"_s},
        {u"HTTP:///site.example.com/x"_s, At(u"x"_s)},
        {u"http://SITE%2Eexample.com/x"_s, At(u"x"_s)},
        {u"http://site.example.com./x"_s, u"http://site.example.com./x"_s},
        {u"http://u:p@site.example.com/x"_s, u"http://u:p@site.example.com/x"_s},
        {u"ftp://site.example.com/x"_s, u"ftp://site.example.com/x"_s},
        {u"/%39/%2e%2E/x"_s, At(u"x"_s)},
        {u"//site.example.com//x"_s, At(u"/x"_s)},
        {u"/%39012%41%7e%5f%2d%2e%21%28%2f%3a"_s, At(u"9012A~_-.%21%28%2f%3a"_s)},
        {u"/x?a='b'&c=<d>"_s, At(u"x?a=%27b%27&c=%3Cd%3E"_s)},
        {u"/x{y}?{z}#{w}`"_s, At(u"x%7By%7D?{z}#{w}%60"_s)},
        {u"http://host.example.com?x"_s, u"http://host.example.com/?x"_s},
    };
    QString body;
    for (size_t i = 0; i < cases.size(); ++i)
        body += u"<a id=case%1 href=\"%2\">x</a>"_s.arg(QString::number(i), cases[i].html);
    Show(body, u"a/b/c?q=1"_s);
    for (size_t i = 0; i < cases.size(); ++i)
        EXPECT_EQ(CaseElement(i).Href(), cases[i].expected) << cases[i].html.toStdString();
}

} // namespace qlm
