// SPDX-License-Identifier: MIT
#include "EngineWorld.h"

#include <QWebEnginePage>
#include <QWebEngineScriptCollection>
#include <QWebEngineView>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// About 35 kB, like a list page of the site: a hundred people, each with a picture and three links.
QByteArray ListPage(int people) {
    QByteArray page = "<title>list</title><body><div id=top>Listing 1-40 of 212</div>";
    for (int i = 0; i < people; ++i) {
        const QByteArray id = QByteArray::number(100000 + i);
        page += "<div class=miniProfile id=p" + id + "><h5><a href='http://www.example.com/" + id +
                "'>Person " + id + "</a></h5><a href='/" + id + "'><img src='/pictures/" + id +
                ".svg' alt=''></a>"
                "<ul><li><a href='/my/mail/new?t=" +
                id +
                "'>Send Message</a></li>"
                "<li><a href='/my/friends/addtofriends/" +
                id + "'>Add to Friends</a></li></ul></div>\n";
    }
    return page + "<form><input name=q id=q value=word><button>Go</button></form>";
}

} // namespace

using EngineReading = EngineTest;

// What a check of a list page asks: many texts, markup markers, link addresses and ids.
TEST_F(EngineReading, ADispatcherPassCostsTwoCallsAtMost) {
    Serve(u"/list"_s, ListPage(100));
    ASSERT_TRUE(Open(u"/list"_s));
    pump.PumpMessages();
    const qint64 before = browser->EngineCalls();
    const Document document = browser->Document();
    const Question address{
        ElementSet::Links, {}, ElementText::Href, Question::Match::Contains, u"addtofriends"_s};
    document.Foresee(
        {{address},
         {{ElementSet::Links, {}, ElementText::Href}, {ElementSet::Links, {}, ElementText::InnerText}},
         true});
    ASSERT_TRUE(document.Body());
    ASSERT_TRUE(document.HasLinks());
    EXPECT_TRUE(document.Any(address));
    for (int i = 0; i < 60; ++i) {
        EXPECT_FALSE(document.BodyText().contains(u"marker %1"_s.arg(i)));
        EXPECT_FALSE(document.BodyHTML().contains(u"marker %1"_s.arg(i)));
        EXPECT_FALSE(document.GetElementById(u"missing%1"_s.arg(i)));
    }
    EXPECT_TRUE(document.GetElementById(u"p100007"_s));
    int found = 0;
    for (const Element& link : document.Links())
        found += link.Href().contains(u"addtofriends"_s) && link.InnerText() == u"Add to Friends"_s;
    EXPECT_EQ(found, 100);
    int profiles = 0;
    for (const Element& link : document.Links())
        profiles += link.Ancestor(2).OuterHTML().contains(u"miniProfile"_s);
    EXPECT_GT(profiles, 100);
    EXPECT_LE(browser->EngineCalls() - before, 2);
}

TEST_F(EngineReading, ThePageIsAskedAgainAfterEveryPump) {
    Serve(u"/a"_s, "<body>one");
    ASSERT_TRUE(Open(u"/a"_s));
    EXPECT_EQ(Text(), u"one"_s);
    browser->Navigate(u"javascript:document.body.innerText='two'"_s);
    EXPECT_EQ(Text(), u"one"_s);
    EXPECT_TRUE(WaitForText(u"two"_s));
}

// Markup and ancestors of all links come from the body's markup and one list of numbers.
TEST_F(EngineReading, LinksSurroundingsCostNoCallALink) {
    Serve(u"/list"_s, ListPage(100));
    ASSERT_TRUE(Open(u"/list"_s));
    pump.PumpMessages();
    const std::vector<Element> links = browser->Document().Links();
    const qint64 before = browser->EngineCalls();
    int profiles = 0;
    for (const Element& link : links) {
        for (int level = 1; level <= 2; ++level)
            profiles += link.Ancestor(level).OuterHTML().contains(u"miniProfile"_s);
        EXPECT_TRUE(link.Ancestor(3).OuterHTML().size() > 0);
    }
    EXPECT_GT(profiles, 100);
    EXPECT_LE(browser->EngineCalls() - before, 6);
}

// Texts are not told by the markup, but those of a whole level come with the first one.
TEST_F(EngineReading, TheTextsAboveTheLinksCostACallForEachLevel) {
    Serve(u"/list"_s, ListPage(100));
    ASSERT_TRUE(Open(u"/list"_s));
    pump.PumpMessages();
    const std::vector<Element> links = browser->Document().Links();
    EXPECT_FALSE(links.front().Ancestor(1).OuterHTML().isEmpty());
    const qint64 before = browser->EngineCalls();
    int persons = 0;
    for (const Element& link : links)
        for (int level = 1; level <= 2; ++level)
            persons += link.Ancestor(level).InnerText().contains(u"Person 100042"_s);
    // The heading around the name, the person's box around that and around the picture; around the boxes the
    // page, which holds everybody.
    EXPECT_EQ(persons, 1 + 1 + 1 + 100);
    EXPECT_LE(browser->EngineCalls() - before, 2);
}

TEST_F(EngineReading, FieldsWrittenAtOnceCostOneCall) {
    Serve(u"/form"_s, "<input name=one><input name=two><iframe name=three></iframe>");
    ASSERT_TRUE(Open(u"/form"_s));
    pump.PumpMessages();
    const qint64 before = browser->EngineCalls();
    browser->Document().Write({{ElementSet::ByName, u"one"_s, Writing::Kind::Value, u"1"_s},
                               {ElementSet::Named, u"two"_s, Writing::Kind::Value, u"2"_s},
                               {ElementSet::Named, u"three"_s, Writing::Kind::FrameMarkup, u"3"_s}});
    EXPECT_EQ(browser->EngineCalls() - before, 1);
    EXPECT_EQ(browser->Document().GetElementsByName(u"two"_s).at(0).Value(), u"2"_s);
}

// What was foreseen twice in a turn is fetched once.
TEST_F(EngineReading, AReadingThatIsForeseenAgainCostsNoCall) {
    Serve(u"/list"_s, ListPage(100));
    ASSERT_TRUE(Open(u"/list"_s));
    pump.PumpMessages();
    const Document document = browser->Document();
    EXPECT_FALSE(document.BodyText().isEmpty());
    const auto callsOfAReading = [&] {
        const qint64 before = browser->EngineCalls();
        document.Foresee({{}, {{ElementSet::Links, {}, ElementText::Name}}, true});
        EXPECT_TRUE(document.Links().front().Name().isEmpty());
        EXPECT_FALSE(document.Links().front().HasAttribute(u"disabled"_s));
        return browser->EngineCalls() - before;
    };
    EXPECT_EQ(callsOfAReading(), 1);
    EXPECT_EQ(callsOfAReading(), 0);
}

// Questions that come after the turn's look are answered by one more call, however many they are.
TEST_F(EngineReading, QuestionsAfterALookCostOneCall) {
    Serve(u"/form"_s, "<input name=three><input name=four>");
    ASSERT_TRUE(Open(u"/form"_s));
    pump.PumpMessages();
    const Document document = browser->Document();
    EXPECT_FALSE(document.BodyHTML().isEmpty());
    const qint64 before = browser->EngineCalls();
    Foresight ahead;
    for (const QString& name : {u"one"_s, u"two"_s, u"three"_s, u"four"_s})
        ahead.questions.push_back(
            {ElementSet::Named, name, ElementText::Name, Question::Match::Contains, {}});
    document.Foresee(ahead);
    QList<bool> answers;
    for (const Question& question : ahead.questions)
        answers += document.Any(question);
    EXPECT_EQ(answers, (QList<bool>{false, false, true, true}));
    EXPECT_EQ(browser->EngineCalls() - before, 1);
}

// Text, markup and the answers to what was foreseen come with one call, on a changed page too.
TEST_F(EngineReading, ALookWithItsQuestionIsOneCall) {
    Serve(u"/list"_s, ListPage(100));
    ASSERT_TRUE(Open(u"/list"_s));
    const auto callsOfALook = [&] {
        pump.Queue().EndTurn();
        const qint64 before = browser->EngineCalls();
        const Document document = browser->Document();
        const Question address{
            ElementSet::Links, {}, ElementText::Href, Question::Match::Equals, u"no link"_s};
        document.Foresee({{address}, {}, false});
        EXPECT_FALSE(document.BodyText().isEmpty());
        EXPECT_FALSE(document.BodyHTML().isEmpty());
        EXPECT_FALSE(document.Any(address));
        return browser->EngineCalls() - before;
    };
    EXPECT_EQ(callsOfALook(), 1);
    auto* view = qobject_cast<QWebEngineView*>(browser->View());
    view->page()->runJavaScript(u"document.body.setAttribute('x', Math.random())"_s);
    EXPECT_EQ(callsOfALook(), 1);
}

// What has been answered stands as long as the page does, and no longer: a link may be added, or be sent
// elsewhere, and the address to which all of them are relative may change.
TEST_F(EngineReading, AQuestionIsAnsweredAnewWhenThePageHasChanged) {
    Serve(u"/list"_s, ListPage(3));
    ASSERT_TRUE(Open(u"/list"_s));
    auto* view = qobject_cast<QWebEngineView*>(browser->View());
    const auto isThere = [&](const QString& href) {
        pump.Queue().EndTurn();
        const Question address{ElementSet::Links, {}, ElementText::Href, Question::Match::Equals, href};
        const Document document = browser->Document();
        document.Foresee({{address}, {}, false});
        return document.Any(address);
    };
    const auto run = [&](const QString& script) { view->page()->runJavaScript(script); };
    EXPECT_FALSE(isThere(u"http://www.example.com/new"_s));
    run(u"document.body.insertAdjacentHTML('beforeend', '<a id=n href=http://www.example.com/new>n</a>')"_s);
    EXPECT_TRUE(isThere(u"http://www.example.com/new"_s));
    run(u"document.getElementById('n').href = 'http://www.example.com/other'"_s);
    EXPECT_FALSE(isThere(u"http://www.example.com/new"_s));
    EXPECT_TRUE(isThere(u"http://www.example.com/other"_s));
    run(u"document.getElementById('n').setAttribute('href', 'more')"_s);
    EXPECT_TRUE(isThere(server.Address(u"/more"_s)));
    run(u"history.pushState(null, '', '/deep/page')"_s);
    EXPECT_FALSE(isThere(server.Address(u"/more"_s)));
    EXPECT_TRUE(isThere(server.Address(u"/deep/more"_s)));
}

TEST_F(EngineReading, TwentyThousandLinksAreRead) {
    QByteArray page = "<body>";
    for (int i = 0; i < 20'000; ++i)
        page += "<a href='/" + QByteArray::number(i) + "'>link " + QByteArray::number(i) + "</a> ";
    Serve(u"/many"_s, page);
    browser->SetAnswerLimit(20'000);
    ASSERT_TRUE(Open(u"/many"_s));
    ASSERT_TRUE(WaitForText(u"link 19999"_s));
    const std::vector<Element> links = browser->Document().Links();
    ASSERT_EQ(links.size(), 20'000U);
    EXPECT_EQ(links[19'999].InnerText(), u"link 19999"_s);
    EXPECT_EQ(links[12'345].Href(), server.Address(u"/12345"_s));
}

TEST_F(EngineReading, ABridgeThatWasLostIsPutBack) {
    Serve(u"/a"_s, "<body>alpha");
    ASSERT_TRUE(Open(u"/a"_s));
    auto* view = qobject_cast<QWebEngineView*>(browser->View());
    // A page from before the script was installed has none.
    view->page()->scripts().clear();
    Go(u"/a?again"_s);
    EXPECT_TRUE(
        WaitUntil([&] { return browser->LocationURL().endsWith(u"again"_s) && Text() == u"alpha"_s; }));
}

TEST_F(EngineReading, TextsComeThroughUnharmed) {
    const QString text = u"Zo\u00eb \U0001F600 \u05e9\u05dc\u05d5\u05dd <&> \"quoted\" \\ ' \u2028 end"_s;
    Serve(u"/a"_s, "<meta charset=utf-8><body><input id=i><p id=p>x</p><a id='l' href='#'></a>");
    ASSERT_TRUE(Open(u"/a"_s));
    const Document document = browser->Document();
    document.GetElementById(u"i"_s).SetInnerText(text);
    document.GetElementById(u"p"_s).SetInnerText(text);
    document.GetElementById(u"l"_s).SetAttribute(u"title"_s, text);
    EXPECT_EQ(document.GetElementById(u"i"_s).InnerText().remove(QChar(0x2028)),
              QString(text).remove(QChar(0x2028)));
    EXPECT_EQ(document.GetElementById(u"l"_s).Read(ElementText::Title), text);
    EXPECT_TRUE(document.GetElementById(u"p"_s).InnerText().startsWith(text.left(8)));
}

} // namespace qlm
