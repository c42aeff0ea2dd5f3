// SPDX-License-Identifier: MIT
#include "browser/PageSigns.h"
#include "core/App.h"
#include "core/Text.h"
#include "gather/Pager.h"

#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

enum class In { Text, HTML, LinkHref };

// address: what the page's address must contain for the sign to count; "" for any page.
struct Sign {
    In where;
    const char16_t* text;
    const char16_t* address = u"";
};

const std::vector<Sign>& Signs() {
    static const std::vector<Sign> signs{
        {In::HTML, u"gotopage"},
        {In::HTML, u"javascript:nextpage"},
        {In::HTML, u"javascript: __msgPostRedirect('Page:"},
        {In::Text, u"next >"},
        {In::Text, u"next ›"},
        {In::Text, u"next »"},
        {In::LinkHref, u"&pg=", u"http://{SearchServiceHost}/index.cfm?fuseaction=sitesearch.results"},
        {In::Text, u"more", u"/music/charts"},
        {In::LinkHref, u"&p=", u"http://{FriendsHost}/index.cfm?fuseaction=user.viewfriends"},
        {In::LinkHref, u"requestlist.GoToPage("},
        {In::LinkHref, u"gotonextpage()"},
        {In::HTML, u"pageBtn nextBtn"},
    };
    return signs;
}

// The addresses are asked one by one only when the markup as a whole holds the piece, escaped or not.
bool AnyLinkHas(const Document& document, const QString& html, const QString& part) {
    QString escaped = part;
    escaped.replace(u"&"_s, u"&amp;"_s);
    if (!Has(html, part) && !Has(html, escaped))
        return false;
    const std::vector<Element> links = document.Links();
    return std::any_of(links.begin(), links.end(),
                       [&](const Element& link) { return Has(link.Href(), part); });
}

} // namespace

bool Pager::ShowsNextPageSign() {
    const Document document = m_app.WebBrowser1().Document();
    if (document.IsNull() || document.Body().IsNull())
        return false;
    const QString text = document.BodyText();
    const QString html = document.BodyHTML();
    for (const Sign& sign : Signs()) {
        const QString part = QString::fromUtf16(sign.text);
        if (sign.address[0] && !m_app.Get<PageSigns>().AddressContains(QString::fromUtf16(sign.address)))
            continue;
        if (sign.where == In::LinkHref ? AnyLinkHas(document, html, part)
                                       : Has(sign.where == In::HTML ? html : text, part))
            return true;
    }
    return !document.GetElementById(u"nextPage"_s).IsNull();
}

} // namespace qlm
