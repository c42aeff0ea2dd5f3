// SPDX-License-Identifier: MIT
#include "ContractTest.h"

namespace qlm {

// A sealed browser shows what it is given and nothing more.
class SealedContract : public ContractTest {
protected:
    SealedContract() {
        browser.Seal();
        for (const char* path : {"elsewhere", "frame", "image", "sheet", "posted"})
            ServeBody(QString::fromLatin1(path), u"elsewhere"_s);
    }
    // Nothing was asked for but the page itself, and it still stands.
    void ExpectUnmoved() {
        PumpFor(settleMs);
        QStringList asked;
        for (const ContractWorld::Request& request : world->Requests())
            asked.append(request.url);
        EXPECT_EQ(asked.join(u' '), At(u"page"_s));
        EXPECT_EQ(browser.LocationURL(), At(u"page"_s));
        EXPECT_EQ(browser.ReadyState(), 4);
        EXPECT_TRUE(seen.windows.isEmpty());
        EXPECT_TRUE(Text().contains(u"stands"_s)) << Text().toStdString();
    }
};

TEST_F(SealedContract, WhatTheProgramAsksForArrives) {
    EXPECT_TRUE(Show(u"<p>stands</p>"_s).Body().InnerText().contains(u"stands"_s));
    browser.Document().Body().SetInnerHTML(u"<b id=bold>written</b>"_s);
    EXPECT_EQ(Text(), u"written"_s);
    EXPECT_EQ(ById(u"bold"_s).TagName(), u"b"_s);
    Show(u"<p>another</p>"_s, u"elsewhere"_s);
    EXPECT_EQ(Text().trimmed(), u"another"_s);
}

TEST_F(SealedContract, NoScriptOfAPageRuns) {
    Show(
        u"<p id=out data-on-load='set #out innertext gone'>stands</p>"
        "<script>document.getElementById('out').innerText = 'gone';</script>"
        "<img src='data:,' onerror=\"document.body.innerText = 'gone'\">"
        "<body onload=\"document.body.innerText = 'gone'\">"
        "<b id=go onclick=\"document.body.innerText = 'gone'\" data-on-click='set #out innertext gone'>go</b>"_s);
    ById(u"go"_s).Click();
    ExpectUnmoved();
    EXPECT_FALSE(Text().contains(u"gone"_s));
}

TEST_F(SealedContract, NoScriptOfAWrittenTextRuns) {
    Show(u"<p>old</p>"_s);
    browser.Document().Body().SetInnerHTML(
        u"<p id=out>stands</p><script>document.body.innerText = 'gone';</script>"
        "<img src='data:,' onerror=\"document.body.innerText = 'gone'\">"
        "<svg onload=\"document.body.innerText = 'gone'\"></svg>"
        "<details open ontoggle=\"document.body.innerText = 'gone'\"></details>"
        "<input autofocus onfocus=\"document.body.innerText = 'gone'\">"
        "<iframe srcdoc=\"<script>parent.document.body.innerText = 'gone'</script>\"></iframe>"
        "<iframe src=\"javascript:parent.document.body.innerText = 'gone'\"></iframe>"
        "<b id=go onclick=\"document.body.innerText = 'gone'\" data-on-click='set #out innertext gone'>go</b>"_s);
    ById(u"go"_s).Click();
    ExpectUnmoved();
    EXPECT_FALSE(Text().contains(u"gone"_s));
}

TEST_F(SealedContract, NothingThatATextNamesIsFetched) {
    Show(u"<p>old</p>"_s);
    browser.Document().Body().SetInnerHTML(
        u"<p>stands</p><iframe src='/frame'></iframe><img src='/image'><img srcset='/image 2x'>"
        "<link rel=stylesheet href='/sheet'><link rel=prefetch href='/elsewhere'>"
        "<link rel=preload as=image href='/image'><style>@import '/sheet'; p { background: url(/image); "
        "}</style>"
        "<object data='/frame'></object><embed src='/frame'><audio src='/image' autoplay></audio>"
        "<video src='/image' poster='/image' autoplay></video><input type=image src='/image'>"_s);
    ExpectUnmoved();
}

TEST_F(SealedContract, NobodyLeadsAwayFromThePage) {
    Show(u"<p>old</p>"_s);
    browser.Document().Body().SetInnerHTML(
        u"<p>stands</p><a id=link href='/elsewhere'>link</a><a id=window href='/elsewhere' "
        u"target=_blank>window</a>"
        "<a id=script href=\"javascript:document.body.innerText='gone'\">script</a>"
        "<a id=file href='/elsewhere' download>file</a>"
        "<form id=form action='/posted' method=post><input name=a><input id=send type=submit></form>"
        "<meta http-equiv=refresh content='0; url=/elsewhere'>"_s);
    for (const QString& id : {u"link"_s, u"window"_s, u"script"_s, u"file"_s, u"send"_s})
        ById(id).Click();
    ById(u"form"_s).Submit();
    ExpectUnmoved();
}

} // namespace qlm
