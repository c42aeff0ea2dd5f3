// SPDX-License-Identifier: MIT
#include "browser/PageView.h"

#include "browser/PageSigns.h"
#include "core/App.h"
#include "core/Text.h"

#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

QString PageView::Expand(const QString& text) const {
    const QString singular = u"{SingularGroupHost}"_s;
    if (!text.contains(singular))
        return WithRoles(text);
    QString host = WithRoles(u"{GroupsHost}"_s);
    const QString plural = u"groups"_s;
    if (const qsizetype at = host.indexOf(plural); at >= 0)
        host.replace(at, plural.size(), u"group"_s);
    QString expanded = text;
    return WithRoles(expanded.replace(singular, host));
}

bool PageView::Has(const PageMark& mark) const {
    const QString text = QString::fromUtf16(mark.text);
    switch (mark.where) {
    case In::Text:
        return Lowered(Text()).contains(text.toLower());
    case In::ExactText:
        return Text().contains(text);
    case In::NoText:
        return !Lowered(Text()).contains(text.toLower());
    case In::Markup:
        return Lowered(Markup()).contains(text.toLower());
    case In::Link:
        return HasLinkTo(text);
    case In::Element:
        return HasElement(text);
    case In::Address:
        return qlm::Has(Address(), Expand(text));
    case In::AddressStart:
        return WithoutScheme(Address()).startsWith(WithoutScheme(Expand(text)), Qt::CaseInsensitive);
    case In::AddressEnd:
        return Address().endsWith(Expand(text), Qt::CaseInsensitive);
    case In::ExactAddress:
        return WithoutScheme(Address()) == WithoutScheme(Expand(text));
    }
    return false;
}

bool PageView::HasAll(const PageMarks& marks) const {
    return std::all_of(marks.begin(), marks.end(), [this](const PageMark& mark) { return Has(mark); });
}

bool PageView::IsOneOf(const PageKinds& kinds) const {
    return kinds.empty() ||
           std::any_of(kinds.begin(), kinds.end(), [this](const PageMarks& marks) { return HasAll(marks); });
}

// The addresses are asked one by one only when the markup as a whole holds the piece, escaped or not.
bool PageView::HasLinkTo(const QString& part) const {
    QString escaped = part;
    escaped.replace(u"&"_s, u"&amp;"_s);
    const QString markup = Lowered(Markup());
    if (!markup.contains(part.toLower()) && !markup.contains(escaped.toLower()))
        return false;
    const QStringList links = LinkAddresses();
    return std::any_of(links.begin(), links.end(),
                       [&part](const QString& link) { return qlm::Has(link, part); });
}

QString ShownPage::Address() const {
    return m_app.Get<PageSigns>().LocationURL();
}

Document ShownPage::Awaited() const {
    if (!m_hasWaited) {
        m_app.WebBrowser1().SetSilent(true);
        m_app.Get<PageSigns>().WaitForDocument();
        m_hasWaited = true;
    }
    return m_app.WebBrowser1().Document();
}

QString ShownPage::Text() const {
    return Awaited().BodyText();
}

QString ShownPage::Markup() const {
    return Awaited().BodyHTML();
}

bool ShownPage::IsComplete() const {
    return m_app.WebBrowser1().ReadyState() == 4;
}

QString ShownPage::WithRoles(const QString& text) const {
    return m_app.Expand(text);
}

QString ShownPage::Lowered(const QString& text) const {
    return m_app.Get<PageSigns>().Lowered(text);
}

bool ShownPage::HasElement(const QString& id) const {
    return !m_app.WebBrowser1().Document().GetElementById(id).IsNull();
}

QStringList ShownPage::LinkAddresses() const {
    QStringList addresses;
    for (const Element& link : m_app.WebBrowser1().Document().Links())
        addresses += link.Href();
    return addresses;
}

} // namespace qlm
