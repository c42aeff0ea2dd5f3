// SPDX-License-Identifier: MIT
#include "inbound/RequestList.h"

#include "browser/PageSigns.h"
#include "core/Text.h"

#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

QString InLowerCase(const Element& element) {
    return element.InnerText().trimmed().toLower();
}

// "Page 1 of <b>12</b>", wherever the pager stands.
QString NumberInPager(const QString& html) {
    const qsizetype pager = html.indexOf(u"pagingLink"_s, 0, Qt::CaseInsensitive);
    if (pager < 0)
        return u"1"_s;
    const qsizetype of = html.indexOf(u"of"_s, pager, Qt::CaseInsensitive);
    const qsizetype begin = of < 0 ? -1 : html.indexOf(u'>', of);
    const qsizetype end = begin < 0 ? -1 : html.indexOf(u'<', begin);
    return end < 0 ? QString() : html.mid(begin + 1, end - begin - 1).trimmed();
}

} // namespace

QString LastPageNumberOf(const Document& page) {
    QString number;
    for (const Element& link : page.Links())
        if (Has(link.Href(), u"LastRecordDirectPageLinkButton"_s)) {
            number = link.InnerText().trimmed();
            break;
        }
    if (!IsNumeric(number))
        number = NumberInPager(page.BodyHTML());
    return IsNumeric(number) ? number : u"1"_s;
}

// The number's quote may be closed before the comma, or after what follows it.
bool ClickLinkToPage(PageSigns& page, const QString& beginning, const QString& number) {
    const QString link = beginning + u"requestlist.GoToPage('"_s + number;
    return page.ClickLinkFromHref(link + u',') || page.ClickLinkFromHref(link + u"',"_s);
}

std::vector<Element> RequestBoxes(const Document& page) {
    std::vector<Element> boxes;
    for (const Element& input : page.GetElementsByTagName(u"input"_s))
        if (input.Read(ElementText::Type) == u"checkbox")
            boxes.push_back(input);
    return boxes;
}

bool IsRequestBox(const Element& box) {
    return Has(box.OuterHTML(), u"FriendRequest"_s);
}

QString IdOfBox(const Element& box) {
    if (!IsRequestBox(box))
        return {};
    const QStringList parts = box.GetAttribute(u"mode"_s).split(u',');
    const QString id = parts.size() > 2 ? parts[1].trimmed() : QString();
    return IsNumeric(id) ? id : QString();
}

bool IsBoxOfAll(const Element& box) {
    return Has(box.Id(), u"chktop"_s);
}

bool IsUpdatesBox(const Element& box) {
    return Has(box.Id(), u"subscribe"_s);
}

bool IsAcceptButton(const Element& button) {
    return button.GetAttribute(u"innertext"_s).toLower().trimmed() == u"accept";
}

bool HasApproveButton(const Document& page) {
    const std::vector<Element> inputs = page.GetElementsByTagName(u"input"_s);
    return std::any_of(inputs.begin(), inputs.end(),
                       [](const Element& input) { return Has(input.Name(), u"approvesbutton"_s); });
}

std::vector<Element> FindDeniesOfVanished(const Document& page) {
    std::vector<Element> denies;
    bool isArmed = false;
    for (const Element& span : page.GetElementsByTagName(u"span"_s)) {
        const QString text = InLowerCase(span);
        if (text == u"this profile no longer exists")
            isArmed = true;
        else if (isArmed && text == u"deny") {
            denies.push_back(span);
            isArmed = false;
        }
    }
    return denies;
}

} // namespace qlm
