// SPDX-License-Identifier: MIT
#include "campaigns/BulletinPage.h"

#include "browser/CheckBox.h"
#include "campaigns/ComposePage.h"
#include "core/Text.h"

#include <algorithm>
#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString SubjectField = u"Subject_Textbox"_s;
const QString PlainBody = u"ctl00_ctl00_ctl00_cpMain_cpMain_cpMain_BulletinPostWithRTE_ctl01"_s;
const QString CommentsBox = u"cpMain_BulletinPost_chkAllowBulletinComments"_s;

std::vector<Element> Inputs(const Document& page) {
    return page.GetElementsByTagName(u"input"_s);
}

QString TypeOf(const Element& input) {
    return input.Read(ElementText::Type);
}

template <typename Test> Element FirstOf(const std::vector<Element>& elements, const Test& test) {
    const auto found = std::find_if(elements.begin(), elements.end(), test);
    return found == elements.end() ? Element() : *found;
}

} // namespace

void TypeSubject(const Document& page, const QString& subject) {
    for (const Element& input : Inputs(page))
        if (Has(input.Name(), SubjectField))
            input.SetValue(subject);
}

void TypeBulletin(const Document& page, const QString& body, bool newLayout) {
    if (newLayout) {
        TypeIntoEditor(page, body);
        return;
    }
    for (const Element& area : page.GetElementsByTagName(u"textarea"_s))
        if (Has(area.Name(), PlainBody))
            area.SetValue(body);
}

void AllowComments(const Document& page, bool isAllowed) {
    for (const Element& input : Inputs(page))
        if (TypeOf(input) == u"checkbox" && Has(input.Name(), CommentsBox) && IsChecked(input) != isAllowed)
            input.Click();
}

Element FindPostButton(const Document& page) {
    return FirstOf(Inputs(page), [](const Element& input) {
        return TypeOf(input) != u"text" && TypeOf(input) != u"hidden" && Has(input.Value(), u"post"_s);
    });
}

Element FindBulletinConfirmation(const Document& page) {
    return FirstOf(Inputs(page),
                   [](const Element& input) { return input.Value().toLower() == u"post bulletin"; });
}

bool HasBulletinList(const Document& page) {
    return !page.GetElementsByName(u"messageID"_s).empty() ||
           Has(page.BodyHTML(), u"BulletinList_bulletins_Repeater"_s);
}

void DeleteNewest(const Document& page) {
    const std::vector<Element> boxes = page.GetElementsByName(u"messageID"_s);
    if (!boxes.empty() && !IsChecked(boxes.front()))
        boxes.front().Click();
    if (const Element button = FirstOf(page.GetElementsByTagName(u"button"_s),
                                       [](const Element& each) { return Has(each.Value(), u"Delete"_s); }))
        button.Click();
}

} // namespace qlm
