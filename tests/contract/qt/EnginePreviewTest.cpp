// SPDX-License-Identifier: MIT
// A text that means harm, shown in the page of a preview.
#include "EngineWorld.h"

#include <QTcpServer>
#include <QUrl>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

class EnginePreview : public EngineTest {
protected:
    EnginePreview() {
        EXPECT_TRUE(stranger.listen(QHostAddress::LocalHost));
        QObject::connect(&stranger, &QTcpServer::newConnection, &stranger, [this] { ++connections; });
    }
    // Everything that markup can name, all of it at the stranger's.
    QString HostileText() const {
        const QString at = u"http://127.0.0.1:%1/"_s.arg(stranger.serverPort());
        return uR"(<p id=words>the words</p>
<script src="@s.js"></script><script>document.title = 'gone'; location = '@'</script>
<img src="@i.png" onerror="location = '@'"><img src="data:," onerror="document.title = 'gone'">
<picture><source srcset="@i2.png"><img src="@i3.png"></picture>
<iframe src="@f.htm"></iframe><iframe srcdoc="<script>top.location = '@'</script><img src='@i4.png'>"></iframe>
<object data="@o.swf"></object><embed src="@e.swf"><frameset><frame src="@f2.htm"></frameset>
<audio src="@a.ogg" autoplay></audio><video src="@v.webm" poster="@p.png" autoplay></video>
<link rel=stylesheet href="@s.css"><link rel=preconnect href="@"><link rel=dns-prefetch href="@">
<link rel=prefetch href="@pf"><link rel=preload as=script href="@pl.js"><link rel=prerender href="@pr">
<link rel=icon href="@icon.png"><link rel=manifest href="@m.json"><link rel=modulepreload href="@mp.js">
<style>@import "@import.css"; body { background: url(@bg.png); } @font-face { font-family: x; src: url(@x.woff); }
p { font-family: x; }</style>
<meta http-equiv=refresh content="0; url=@refresh"><base href="@">
<svg onload="location = '@'"><image href="@svg.png"/><use href="@u.svg#a"/><script>location = '@'</script></svg>
<details open ontoggle="location = '@'"></details><input autofocus onfocus="location = '@'">
<form id=form action="@posted" method=post><input id=send type=submit></form>
<a id=link href="@link">link</a><a id=ping href="#words" ping="@ping">ping</a>
<a id=window href="@window" target=_blank>window</a><a id=script href="javascript:location='@'">script</a>
<a id=download href="@file" download>file</a><a id=mail href="mailto:x@example.com">mail</a>)"_s
            .replace(u"\"@"_s, u'"' + at)
            .replace(u"'@"_s, u'\'' + at)
            .replace(u"=@"_s, u'=' + at)
            .replace(u"(@"_s, u'(' + at);
    }
    void OpenTemplate(const QString& name) {
        browser->Navigate(QUrl::fromLocalFile(QStringLiteral(QUILLMERE_DATA "/Preview Templates/") + name)
                              .toString(QUrl::FullyEncoded));
        ASSERT_TRUE(WaitForText(u"REPLACETHISTEXT"_s));
    }

    QTcpServer stranger;
    int connections = 0;
};

TEST_F(EnginePreview, ATextThatMeansHarmIsShownAndDoesNothing) {
    browser->Seal();
    for (const QString& name : {u"previewtemplateBUL.htm"_s, u"previewtemplateMSG.htm"_s}) {
        ASSERT_NO_FATAL_FAILURE(OpenTemplate(name));
        const QString address = browser->LocationURL();
        const Element body = browser->Document().Body();
        body.SetInnerHTML(body.InnerHTML().replace(u"REPLACETHISTEXT"_s, HostileText()));
        EXPECT_TRUE(Text().contains(u"the words"_s));
        for (const char* id : {"link", "ping", "window", "script", "download", "mail", "send"})
            browser->Document().GetElementById(QString::fromLatin1(id)).Click();
        browser->Document().GetElementById(u"form"_s).Submit();
        PumpFor(1500);
        EXPECT_EQ(browser->LocationURL().section(u'#', 0, 0), address);
        EXPECT_TRUE(Text().contains(u"the words"_s));
        EXPECT_EQ(connections, 0);
        EXPECT_EQ(CountEvents(u"window"_s), 0);
    }
}

// What the test above would hear.
TEST_F(EnginePreview, AnUnsealedBrowserWouldConnect) {
    Serve(u"/page"_s, "<body>REPLACETHISTEXT");
    ASSERT_TRUE(Open(u"/page"_s));
    browser->Document().Body().SetInnerHTML(HostileText());
    EXPECT_TRUE(WaitUntil([this] { return connections > 0; }));
}

TEST_F(EnginePreview, ARenewedPageIsSealedToo) {
    browser->Seal();
    Serve(u"/script"_s, "<body>stands<script>document.body.innerText = 'gone'</script>");
    for (int load = 0; load < QtBrowser::loadsPerPage + 2; ++load) {
        browser->Navigate(u"about:blank"_s);
        ASSERT_TRUE(Open(u"/script"_s));
    }
    EXPECT_EQ(Text(), u"stands"_s);
}

} // namespace qlm
