// SPDX-License-Identifier: MIT
#include "browser/PageClassifier.h"
#include "browser/PageSigns.h"
#include "core/App.h"
#include "gather/GatherDriver.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int ProfilesOnABrowsePage = 36;
}

// A page that is just being replaced can't be read: then what is waited for isn't there yet. One that stands
// is taken as it is: a last page may lack what every other page of its kind has.
void GatherDriver::WaitOnPage(const std::function<bool()>& stillWaiting) {
    m_app.waiting.WaitFor(u"the next page"_s, [&] {
        bool waiting = true;
        Diagnostics::IgnoreErrors([&] { waiting = stillWaiting() && !m_standingPage.Stands(); });
        return waiting;
    });
}

const std::vector<GatherDriver::PageWait>& GatherDriver::PageWaits() {
    static const std::vector<PageWait> waits{
        {u"/friends",
         [](GatherDriver& d, const QString& oldURL) { d.WaitForAddress(oldURL, u"/page/"_s, true); }},
        {u"/browse/", [](GatherDriver& d, const QString&) { d.WaitForBrowsePage(); }},
        {u"/search/",
         [](GatherDriver& d, const QString& oldURL) { d.WaitForAddress(oldURL, u"&page="_s, false); }},
        {u"/music/charts", [](GatherDriver& d, const QString& oldURL) { d.WaitForChart(oldURL); }},
        {u"", [](GatherDriver& d, const QString&) { d.WaitForOtherPage(); }},
    };
    return waits;
}

void GatherDriver::WaitPageLoad(const QString& oldURL) {
    for (const PageWait& row : PageWaits())
        if (m_app.Get<PageSigns>().AddressContains(QString::fromUtf16(row.address))) {
            row.wait(*this, oldURL);
            break;
        }
    WaitOnPage([this] { return m_app.Get<PageSigns>().LocationURL() == u"about:blank"_s; });
}

// In markup the "&" of an address is written "&amp;".
void GatherDriver::WaitForAddress(const QString& oldURL, const QString& markup, bool checkErrors) {
    QString escaped = markup;
    escaped.replace(u"&"_s, u"&amp;"_s);
    bool wentBack = false;
    auto mendErrorPage = [&] {
        if (checkErrors && !wentBack && m_app.Get<PageClassifier>().ClassifyErrorPage()) {
            wentBack = true;
            m_app.WebBrowser1().Navigate(oldURL);
        }
        return true;
    };
    Trace(u"WAITPAGELOAD1.1"_s);
    WaitOnPage([&] { return m_app.Get<PageSigns>().LocationURL() == oldURL && mendErrorPage(); });
    Trace(u"WAITPAGELOAD1.2"_s);
    WaitOnPage([&] {
        return !m_app.Get<PageSigns>().IsTextInPage(markup, true) &&
               !m_app.Get<PageSigns>().IsTextInPage(escaped, true) && mendErrorPage();
    });
}

bool GatherDriver::LastPageStands() {
    const RunState& state = m_app.state;
    return m_app.Get<PageSigns>().IsTextInPage(state.strLastPageText, state.blnLastPageAsHTML) ||
           m_app.Get<PageSigns>().HrefLoaded(state.strLastPageHref, false);
}

void GatherDriver::WaitForBrowsePage() {
    auto building = [this] { return m_app.WebBrowser1().ReadyState() != 4; };
    Trace(u"WAITPAGELOAD2.1"_s);
    WaitOnPage([&] { return building() && LastPageStands(); });
    WaitOnPage([&] {
        return building() &&
               CountOccurrences(m_app.WebBrowser1().Document().BodyText(), u"Age:"_s) < ProfilesOnABrowsePage;
    });
}

// A chart builds its rows while it is scrolled; one that stops at the first dozen is loaded again.
void GatherDriver::WaitForChart(const QString& oldURL) {
    WaitOnPage([&] { return m_app.Get<PageSigns>().LocationURL() == oldURL; });
    m_app.SetStatus(u"Waiting for page to finish loading top 200..."_s);
    WaitOnPage([&] {
        if (m_app.Get<PageSigns>().IsTextInPage(u"artist-200"_s, true))
            return false;
        m_app.WebBrowser1().Document().ScrollToEnd();
        if (m_app.WebBrowser1().ReadyState() == 4 &&
            !m_app.Get<PageSigns>().IsTextInPage(u"artist-12"_s, true)) {
            const QString url = m_app.state.strNextPageLink;
            m_app.ClearPage();
            m_app.WebBrowser1().Navigate(url);
        }
        return true;
    });
}

void GatherDriver::WaitForOtherPage() {
    Trace(u"WAITPAGELOAD3.1"_s);
    WaitOnPage([&] { return LastPageStands(); });
    Trace(u"NEXTPAGEWAIT3"_s);
    WaitOnPage([&] { return m_app.WebBrowser1().ReadyState() != 4; });
}

} // namespace qlm
