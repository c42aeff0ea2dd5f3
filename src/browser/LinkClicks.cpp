// SPDX-License-Identifier: MIT
#include "browser/PageSigns.h"
#include "core/App.h"
#include "core/Text.h"

#include <algorithm>
#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

bool SameWord(const QString& text, const QString& value) {
    return text.trimmed().toLower() == value.toLower();
}

struct ClickKind {
    QLatin1StringView kind;
    bool (*matches)(const Element& link, const QString& value);
};

const std::vector<ClickKind>& ClickKinds() {
    static const std::vector<ClickKind> rows{
        {"Innertext"_L1,
         [](const Element& l, const QString& value) { return SameWord(l.InnerText(), value); }},
        {"InnerHTML"_L1, [](const Element& l, const QString& value) { return Has(l.InnerHTML(), value); }},
        {"OuterHTML"_L1, [](const Element& l, const QString& value) { return Has(l.OuterHTML(), value); }},
        {"Title"_L1,
         [](const Element& l, const QString& value) { return SameWord(l.Read(ElementText::Title), value); }},
        {"ID"_L1, [](const Element& l, const QString& value) { return SameWord(l.Id(), value); }},
    };
    return rows;
}

template <typename Test> bool ClickFirst(const Document& document, const Test& matches) {
    const std::vector<Element> links = document.Links();
    const auto link = std::find_if(links.begin(), links.end(), matches);
    if (link == links.end())
        return false;
    link->Click();
    return true;
}

} // namespace

bool PageSigns::ClickLink(const QString& kind, const QString& value) {
    m_app.WebBrowser1().SetSilent(true);
    for (const ClickKind& row : ClickKinds())
        if (kind == row.kind)
            return ClickFirst(m_app.WebBrowser1().Document(),
                              [&](const Element& link) { return row.matches(link, value); });
    return false;
}

bool PageSigns::ClickLinkFromHref(const QString& hrefPart, const QString& browser) {
    m_app.WebBrowser1().SetSilent(true);
    m_app.webHide().SetSilent(true);
    BrowserControl& control = browser == u"webHide"_s ? m_app.webHide() : m_app.WebBrowser1();
    return ClickFirst(control.Document(), [&](const Element& link) { return Has(link.Href(), hrefPart); });
}

QString PageSigns::GetHrefFromSecondID() {
    WaitForDocument();
    QString href;
    int counted = 0;
    for (const Element& link : m_app.WebBrowser1().Document().Links()) {
        const QString text = link.GetAttribute(u"innertext"_s);
        if (!Has(text, u"add to friends"_s) && !Has(text, u"send message"_s))
            continue;
        href = link.Href();
        if (++counted == 2)
            break;
    }
    return href;
}

} // namespace qlm
