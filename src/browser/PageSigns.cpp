// SPDX-License-Identifier: MIT
#include "browser/PageSigns.h"

#include "core/App.h"

#include <QScopedValueRollback>
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

void PageSigns::WaitForDocument() {
    SpinForWebBrowser1();
}

void PageSigns::WaitForDocument(BrowserControl& browser) {
    SpinFor(browser, [] {});
}

// A stop doesn't end the wait, but whoever waited for a run that is gone has nothing to do with the page that
// has come.
void PageSigns::SpinForWebBrowser1() {
    const RunMark mark = m_app.waiting.Mark();
    {
        const Waiting::Unowned helping(m_app.waiting);
        const QScopedValueRollback spins(m_spins, m_spins + 1);
        qint64 sinceMs = m_app.Pump().NowMs();
        SpinFor(m_app.WebBrowser1(), [&] {
            BrowserControl& browser = m_app.WebBrowser1();
            const bool isUsersLoad = !m_app.waiting.IsCurrent(mark) && browser.Busy();
            if (isUsersLoad || m_app.waiting.SecondsSince(sinceMs) <= SecondsWithoutBody)
                return;
            browser.Refresh();
            sinceMs = m_app.Pump().NowMs();
        });
    }
    m_app.waiting.LeaveUnlessCurrent(mark);
}

void PageSigns::SpinFor(BrowserControl& browser, const std::function<void()>& stillWithoutBody) {
    const QString page = u"a page with a body"_s;
    m_app.waiting.WaitFor(page, [&] { return browser.Document().IsNull(); });
    m_app.waiting.WaitFor(page, [&] {
        if (!browser.Document().Body().IsNull())
            return false;
        stillWithoutBody();
        return true;
    });
    m_app.waiting.WaitFor(page, [&] { return !browser.Document().HasLinks(); });
}

bool PageSigns::IsAwaitingBody() {
    return m_spins > 0 && m_app.WebBrowser1().Document().Body().IsNull();
}

BrowserControl* PageSigns::Select(const QString& browser) {
    if (browser == u"webHide"_s)
        return &m_app.webHide();
    if (browser == u"webTemp"_s)
        return &m_app.webTemp();
    return browser == u"webInviteLocation"_s ? nullptr : &m_app.WebBrowser1();
}

const QString& PageSigns::Lowered(const QString& text) {
    for (const LoweredText& known : m_lowered)
        if (known.original.constData() == text.constData() && known.original.size() == text.size())
            return known.lower;
    LoweredText& slot = m_lowered[m_nextLowered];
    m_nextLowered = (m_nextLowered + 1) % m_lowered.size();
    slot = {text, text.toLower()};
    return slot.lower;
}

bool PageSigns::IsTextInPage(const QString& text, bool asHTML, const QString& browser) {
    if (text.isEmpty())
        return false;
    BrowserControl* control = Select(browser);
    if (!control)
        return false;
    control->SetSilent(true);
    if (control == &m_app.WebBrowser1())
        SpinForWebBrowser1();
    else
        WaitForDocument(*control);
    const Document document = control->Document();
    return Lowered(asHTML ? document.BodyHTML() : document.BodyText()).contains(text.toLower());
}

Question PageSigns::HrefQuestion(const QString& href, bool partial) {
    return {ElementSet::Links,
            {},
            ElementText::Href,
            partial ? Question::Match::Contains : Question::Match::Equals,
            href.toLower()};
}

bool PageSigns::HrefLoaded(const QString& href, bool partial) {
    if (href.isEmpty())
        return false;
    m_app.WebBrowser1().SetSilent(true);
    return m_app.WebBrowser1().Document().Any(HrefQuestion(href, partial));
}

std::vector<Question> PageSigns::ImageQuestions(const QString& name) {
    const QString wanted = name.toLower();
    std::vector<Question> questions{
        {ElementSet::Images, {}, ElementText::NameProp, Question::Match::Equals, wanted}};
    if (!wanted.isEmpty())
        questions.push_back(
            {ElementSet::ByTag, u"input"_s, ElementText::Src, Question::Match::Contains, wanted});
    return questions;
}

bool PageSigns::ImageExists(const QString& name) {
    m_app.WebBrowser1().SetSilent(true);
    const Document document = m_app.WebBrowser1().Document();
    const auto questions = ImageQuestions(name);
    return std::any_of(questions.begin(), questions.end(),
                       [&](const Question& question) { return document.Any(question); });
}

QString PageSigns::LocationURL() {
    return m_app.WebBrowser1().LocationURL();
}

bool PageSigns::AddressContains(const QString& text, Qt::CaseSensitivity caseSensitivity) {
    return LocationURL().contains(m_app.Expand(text), caseSensitivity);
}

bool PageSigns::AddressBeginsWith(const QString& text) {
    return WithoutScheme(LocationURL()).startsWith(WithoutScheme(m_app.Expand(text)), Qt::CaseInsensitive);
}

bool PageSigns::AddressEquals(const QString& text) {
    return WithoutScheme(LocationURL()) == WithoutScheme(m_app.Expand(text));
}

bool PageSigns::IsHomePageURL() {
    return AddressContains(u"{HomeHost}/index.cfm?fuseaction=home"_s) ||
           AddressEquals(u"{SiteRootHost}/"_s) || AddressEquals(u"{SiteRootHost}/home"_s);
}

} // namespace qlm
