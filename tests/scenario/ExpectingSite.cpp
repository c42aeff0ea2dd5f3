// SPDX-License-Identifier: MIT
// Expectations about what reached the site, and about the page that is shown.
#include "Arguments.h"
#include "CommandTable.h"
#include "Expect.h"
#include "Stage.h"
#include "platform/sim/SimAddress.h"

#include <algorithm>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

BrowserName TakeBrowser(Arguments& arguments) {
    if (arguments.TakeWord("webHide"_L1))
        return BrowserName::webHide;
    if (arguments.TakeWord("webTemp"_L1))
        return BrowserName::webTemp;
    if (arguments.TakeWord("webPreview"_L1))
        return BrowserName::webPreview;
    arguments.TakeWord("WebBrowser1"_L1);
    return BrowserName::WebBrowser1;
}

QStringList Canonical(const QStringList& addresses) {
    QStringList canonical;
    for (const QString& address : addresses)
        canonical << CanonicalAddress(address);
    return canonical;
}

// expect visited [webHide|webTemp] URL ... | none
void Visited(Stage& stage, Arguments& arguments) {
    const BrowserName browser = TakeBrowser(arguments);
    QStringList expected = arguments.TakeAll();
    if (expected == QStringList{u"none"_s})
        expected.clear();
    const QStringList seen = stage.TakeVisited(browser);
    ExpectLines(u"the list of visited addresses"_s, Canonical(expected), Canonical(seen));
}

// A hidden field keeps what was written into it; who looks at it sees lines all the same.
QString WithPlainLineEnds(QString text) {
    return text.replace(u"\r\n"_s, u"\n"_s);
}

// One form, its fields in page order.
QStringList FormLines(const SimBrowser::Posted& form) {
    QStringList parts{CanonicalAddress(form.url)};
    for (const SimField& field : form.fields)
        parts << field.name + u'=' + WithPlainLineEnds(field.value);
    return parts;
}

void Posted(Stage& stage, Arguments& arguments) {
    const BrowserName browser = TakeBrowser(arguments);
    QStringList expected{CanonicalAddress(arguments.Take("the address"))};
    expected << arguments.TakeAll();
    const std::optional<SimBrowser::Posted> form = stage.TakePosted(browser);
    if (!form)
        Fail(u"no form was sent; %1"_s.arg(stage.Describe()));
    ExpectLines(u"the form"_s, expected, FormLines(*form));
}

void NoPosted(Stage& stage, Arguments& arguments) {
    if (const std::optional<SimBrowser::Posted> form = stage.TakePosted(TakeBrowser(arguments)))
        Fail(u"a form was sent: %1"_s.arg(FormLines(*form).join(u' ')));
}

void Value(Stage& stage, Arguments& arguments) {
    QString id = arguments.Take("the element");
    if (id.startsWith(u'#'))
        id.remove(0, 1);
    const Element element = stage.Browser(BrowserName::WebBrowser1).Document().GetElementById(id);
    if (!element)
        Fail(u"the page has no element #%1"_s.arg(id));
    ExpectText(u"the value of #"_s + id, arguments.Take("the text"), WithPlainLineEnds(element.Value()));
}

QString PageText(Stage& stage, BrowserName name) {
    const Document document = stage.Browser(name).Document();
    return document ? document.BodyText() : QString();
}

// expect page [webHide|webTemp|webPreview] "text"
void Page(Stage& stage, Arguments& arguments) {
    const QString body = PageText(stage, TakeBrowser(arguments));
    if (!body.contains(arguments.Take("the text")))
        Fail(u"the page does not hold the text; %1, it begins: %2"_s.arg(stage.Describe(), body.left(300)));
}

// expect page in FRAME "text"
void PageInFrame(Stage& stage, Arguments& arguments) {
    const QString name = arguments.Take("the frame");
    const Document page = stage.Browser(BrowserName::WebBrowser1).Document();
    const Document frame = page ? page.FrameDocument(name) : Document();
    if (!frame)
        Fail(u"the page has no frame %1"_s.arg(name));
    if (const QString body = frame.BodyText(); !body.contains(arguments.Take("the text")))
        Fail(u"the frame does not hold the text; it begins: %1"_s.arg(body.left(300)));
}

void NoPage(Stage& stage, Arguments& arguments) {
    const QString body = PageText(stage, TakeBrowser(arguments));
    const qsizetype at = body.indexOf(arguments.Take("the text"));
    if (at >= 0)
        Fail(u"the page holds the text; %1, it stands in: %2"_s.arg(
            stage.Describe(), body.mid(std::max<qsizetype>(0, at - 50), 200)));
}

void PageFocus(Stage& stage, Arguments& arguments) {
    const QString expected = arguments.Take("the element");
    const Document document = stage.Browser(BrowserName::WebBrowser1).Document();
    const Element focused = document ? document.ActiveElement() : Element();
    ExpectText(u"the element with the focus"_s, expected, focused ? u'#' + focused.Id() : u"none"_s);
}

// expect ran [webTemp] "text"
void Ran(Stage& stage, Arguments& arguments) {
    const QStringList scripts = stage.TheMachine().ScriptsRun(TakeBrowser(arguments));
    const QString text = arguments.Take("the text");
    if (!std::ranges::any_of(scripts, [&](const QString& script) { return script.contains(text); }))
        Fail(u"no script that was run holds the text; the last: %1"_s.arg(scripts.value(scripts.size() - 1)));
}

void Journal(Stage& stage, Arguments& arguments) {
    if (!stage.site)
        Fail(u"the practice site is not in use"_s);
    ExpectLines(u"the journal"_s, arguments.TakeLines(), stage.site->TakeJournal());
}

} // namespace

const CommandRows& ExpectingSiteCommands() {
    static const CommandRows rows{
        {"expect visited", "browser? *", Visited},  {"expect posted", "browser? word *", Posted},
        {"expect no posted", "browser?", NoPosted}, {"expect value", "word word", Value},
        {"expect page", "browser? word", Page},     {"expect no page", "browser? word", NoPage},
        {"expect page-focus", "word", PageFocus},   {"expect ran", "browser? word", Ran},
        {"expect journal", "word", Journal},        {"expect page in", "word word", PageInFrame},
    };
    return rows;
}

} // namespace qlm::scenario
