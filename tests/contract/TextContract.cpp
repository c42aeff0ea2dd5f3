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
    };
    QString body;
    for (size_t i = 0; i < cases.size(); ++i)
        body += u"<a id=case%1 href=\"%2\">x</a>"_s.arg(QString::number(i), cases[i].html);
    Show(body, u"a/b/c?q=1"_s);
    for (size_t i = 0; i < cases.size(); ++i)
        EXPECT_EQ(CaseElement(i).Href(), cases[i].expected) << cases[i].html.toStdString();
}

} // namespace qlm
