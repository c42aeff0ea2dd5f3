// SPDX-License-Identifier: MIT
// What is read off the body's markup is what the engine would have answered.
#include "EngineWorld.h"
#include "platform/qt/PageOutline.h"

#include <QEventLoop>
#include <QWebEnginePage>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct OddPage {
    const char* name;
    QByteArray body;
};

const OddPage OddPages[] = {
    {"Plain", "<div id=a class='x y'><p>one<p>two<br><img src='data:,'><ul><li>1<li>2</ul></div>"},
    {"Attributes",
     "<div id=a title='a > b < c & d \"q\"' data-x='&nbsp;&amp;lt;'><a b'c<d = x ==y href=/z>z</a></div>"},
    {"RawText",
     "<script>if (1 < 2) '<div id=no>'</script><style>p > a { }</style><textarea><b>&amp;</textarea>"
     "<noscript><p id=hidden></noscript><iframe src='about:blank'><p></iframe><xmp><i></xmp>"},
    {"Comments", "<p>a<!-- <div> --><!----><b>b</b></p>"},
    {"Templates", "<template><p id=t><b></b></p></template><p id=behind>x</p>"},
    {"Foreign",
     "<svg viewBox='0 0 1 1'><a href='#x'><path d=''/></a><style>a > b</style></svg><math><mi>x</mi></math>"},
    {"OddTags", "<a<b id=odd>x</a<b><custom-tag>y</custom-tag><P ID=Q>z"},
    {"Tables", "<table><tr><td>1<td>2<tr><td><select><option>a<option selected>b</select></table>"},
    // Such trees read back as others, so that the page itself has to be asked.
    {"BrokenRawText", "<p id=p></p><script>const s = document.createElement('xmp');"
                      "s.textContent = '</xmp><b id=x>'; document.getElementById('p').append(s)</script>"},
    {"VoidWithContents",
     "<p id=p></p><script>const i = document.createElement('img');"
     "i.append(document.createElement('b')); document.getElementById('p').append(i)</script>"},
    {"Nameless", "<p id=p></p><script>const e = document.createElementNS('x', 'wbr');"
                 "e.append('t'); document.getElementById('p').append(e)</script>"},
};

class EngineOutline : public EngineTest, public testing::WithParamInterface<OddPage> {
protected:
    QStringList Ask(const QString& property) {
        auto* view = qobject_cast<QWebEngineView*>(browser->View());
        QEventLoop loop;
        QStringList answers;
        view->page()->runJavaScript(
            u"Array.from(document.getElementsByTagName('*'), e => %1)"_s.arg(property), 1,
            [&](const QVariant& value) {
                answers = value.toStringList();
                loop.quit();
            });
        loop.exec(QEventLoop::ExcludeUserInputEvents);
        return answers;
    }
    QStringList Read(const std::function<QString(const Element&)>& read) {
        QStringList answers;
        for (const Element& element : browser->Document().GetElementsByTagName(u"*"_s))
            answers.append(read(element));
        return answers;
    }
};

} // namespace

TEST_P(EngineOutline, EveryElementReadsAsTheEngineItselfWouldTellIt) {
    Serve(u"/odd"_s, "<!DOCTYPE html><html id=root><head id=head><title>t</title></head><body class=b>" +
                         GetParam().body + "</body></html>");
    ASSERT_TRUE(Open(u"/odd"_s));
    EXPECT_GT(Ask(u"1"_s).size(), 4);
    EXPECT_EQ(Read([](const Element& e) { return e.OuterHTML(); }), Ask(u"e.outerHTML"_s));
    EXPECT_EQ(Read([](const Element& e) { return e.InnerHTML(); }), Ask(u"e.innerHTML"_s));
    EXPECT_EQ(Read([](const Element& e) { return e.TagName(); }), Ask(u"e.tagName.toLowerCase()"_s));
    EXPECT_EQ(Read([](const Element& e) { return e.Id(); }), Ask(u"e.id"_s));
    EXPECT_EQ(Read([](const Element& e) { return e.ParentElement().OuterHTML(); }),
              Ask(u"e.parentElement ? e.parentElement.outerHTML : ''"_s));
    for (const QString& name : {u"title"_s, u"data-x"_s, u"class"_s, u"viewBox"_s, u"href"_s}) {
        const QString own = name == u"class"_s ? u"id"_s : name;
        EXPECT_EQ(Read([&](const Element& e) { return e.GetAttribute(own); }),
                  Ask(u"e.getAttribute('%1') || ''"_s.arg(own)));
        EXPECT_EQ(Read([&](const Element& e) { return e.HasAttribute(own) ? u"true"_s : u"false"_s; }),
                  Ask(u"String(e.hasAttribute('%1'))"_s.arg(own)));
    }
}

INSTANTIATE_TEST_SUITE_P(Pages, EngineOutline, testing::ValuesIn(OddPages),
                         [](const auto& page) { return std::string(page.param.name); });

// A tree that has changed since is another one, whoever changed it.
TEST_F(EngineTest, AnOutlineFollowsWhatScriptsChange) {
    Serve(u"/a"_s, "<body><div id=d><a href='/x' id=l>x</a></div>");
    ASSERT_TRUE(Open(u"/a"_s));
    const Element link = browser->Document().GetElementById(u"l"_s);
    EXPECT_EQ(link.ParentElement().Id(), u"d"_s);
    browser->Navigate(u"javascript:const s = document.createElement('section'); s.id = 's';"
                      "document.getElementById('d').before(s); s.append(document.getElementById('l'))"_s);
    EXPECT_TRUE(WaitUntil([&] { return link.ParentElement().Id() == u"s"_s; }));
    EXPECT_EQ(link.ParentElement().OuterHTML(),
              u"<section id=\"s\"><a href=\"/x\" id=\"l\">x</a></section>"_s);
}

TEST(PageOutline, MarkupThatIsNotTheEnginesOwnIsNotSound) {
    for (const auto* markup :
         {u"", u"<body>", u"<body></p></body>", u"<body><p></body></p>", u"<body a=b></body>",
          u"<body></body>more", u"<body><xmp></body>", u"<body><!-- </body>"})
        EXPECT_FALSE(PageOutline(QString::fromUtf16(markup)).IsSound())
            << QString::fromUtf16(markup).toStdString();
    EXPECT_TRUE(PageOutline(u"<body><p>x<br></p></body>"_s).IsSound());
}

} // namespace qlm
