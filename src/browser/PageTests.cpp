// SPDX-License-Identifier: MIT
#include "browser/PageTests.h"

#include "core/App.h"

#include <algorithm>
#include <limits>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int SecondsWithoutBody = 30;
}

QString WithoutScheme(const QString& address) {
    const qsizetype scheme = address.indexOf(u"://"_s);
    return scheme < 0 ? address : address.mid(scheme + 3);
}

qint16 CountOccurrences(const QString& text, const QString& needle) {
    int count = 0;
    if (needle.isEmpty())
        return 0;
    for (qsizetype at = text.indexOf(needle, 0, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(needle, at + 1, Qt::CaseInsensitive))
        ++count;
    return static_cast<qint16>(std::min<int>(count, std::numeric_limits<qint16>::max()));
}

void PageTests::WaitForDocument() {
    SpinFor(m_app.WebBrowser1(), true);
}

void PageTests::WaitForDocument(BrowserControl& browser) {
    SpinFor(browser, false);
}

void PageTests::SpinFor(BrowserControl& browser, bool refreshWithoutBody) {
    const QString page = u"a page with a body"_s;
    m_app.waiting.WaitFor(page, [&] { return browser.Document().IsNull(); });
    qint64 sinceMs = m_app.Pump().NowMs();
    m_app.waiting.WaitFor(page, [&] {
        if (!browser.Document().Body().IsNull())
            return false;
        if (refreshWithoutBody && m_app.waiting.SecondsSince(sinceMs) > SecondsWithoutBody) {
            browser.Refresh();
            sinceMs = m_app.Pump().NowMs();
        }
        return true;
    });
    m_app.waiting.WaitFor(page, [&] { return !browser.Document().HasLinks(); });
}

BrowserControl* PageTests::Select(const QString& browser) {
    if (browser == u"webHide"_s)
        return &m_app.webHide();
    if (browser == u"webTemp"_s)
        return &m_app.webTemp();
    return browser == u"webInviteLocation"_s ? nullptr : &m_app.WebBrowser1();
}

const QString& PageTests::Lowered(const QString& text) {
    for (const LoweredText& known : m_lowered)
        if (known.original.constData() == text.constData() && known.original.size() == text.size())
            return known.lower;
    LoweredText& slot = m_lowered[m_nextLowered];
    m_nextLowered = (m_nextLowered + 1) % m_lowered.size();
    slot = {text, text.toLower()};
    return slot.lower;
}

bool PageTests::IsTextInPage(const QString& text, bool asHTML, const QString& browser) {
    if (text.isEmpty())
        return false;
    BrowserControl* control = Select(browser);
    if (!control)
        return false;
    control->SetSilent(true);
    SpinFor(*control, control == &m_app.WebBrowser1());
    const Document document = control->Document();
    return Lowered(asHTML ? document.BodyHTML() : document.BodyText()).contains(text.toLower());
}

Question PageTests::HrefQuestion(const QString& href, bool partial) {
    return {ElementSet::Links,
            {},
            ElementText::Href,
            partial ? Question::Match::Contains : Question::Match::Equals,
            href.toLower()};
}

bool PageTests::HrefLoaded(const QString& href, bool partial) {
    if (href.isEmpty())
        return false;
    m_app.WebBrowser1().SetSilent(true);
    return m_app.WebBrowser1().Document().Any(HrefQuestion(href, partial));
}

std::vector<Question> PageTests::ImageQuestions(const QString& name) {
    const QString wanted = name.toLower();
    std::vector<Question> questions{
        {ElementSet::Images, {}, ElementText::NameProp, Question::Match::Equals, wanted}};
    if (!wanted.isEmpty())
        questions.push_back(
            {ElementSet::ByTag, u"input"_s, ElementText::Src, Question::Match::Contains, wanted});
    return questions;
}

bool PageTests::ImageExists(const QString& name) {
    m_app.WebBrowser1().SetSilent(true);
    const Document document = m_app.WebBrowser1().Document();
    const auto questions = ImageQuestions(name);
    return std::any_of(questions.begin(), questions.end(),
                       [&](const Question& question) { return document.Any(question); });
}

QString PageTests::LocationURL() {
    return m_app.WebBrowser1().LocationURL();
}

bool PageTests::AddressContains(const QString& text, Qt::CaseSensitivity caseSensitivity) {
    return LocationURL().contains(m_app.Expand(text), caseSensitivity);
}

bool PageTests::AddressBeginsWith(const QString& text) {
    return WithoutScheme(LocationURL()).startsWith(WithoutScheme(m_app.Expand(text)), Qt::CaseInsensitive);
}

bool PageTests::AddressEquals(const QString& text) {
    return WithoutScheme(LocationURL()) == WithoutScheme(m_app.Expand(text));
}

bool PageTests::IsHomePageURL() {
    return AddressContains(u"{HomeHost}/index.cfm?fuseaction=home"_s) ||
           AddressEquals(u"{SiteRootHost}/"_s) || AddressEquals(u"{SiteRootHost}/home"_s);
}

} // namespace qlm
