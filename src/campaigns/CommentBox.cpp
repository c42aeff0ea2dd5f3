// SPDX-License-Identifier: MIT
#include "campaigns/CommentBox.h"

#include "core/Text.h"

#include <algorithm>
#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsControl(const Element& element) {
    const QString tag = element.TagName();
    return tag == u"button" || tag == u"input" || tag == u"select" || tag == u"script" || tag == u"style";
}

// A part of the page that holds a button would lose it.
bool ShowsTextAlone(const Element& element) {
    const std::vector<Element> inside = element.Tags(u"*"_s);
    return !IsControl(element) && std::none_of(inside.begin(), inside.end(), IsControl);
}

bool IsHidden(const Element& element) {
    return Has(element.GetAttribute(u"style"_s).remove(u' '), u"display:none"_s);
}

bool Posts(const Element& button) {
    return button.InnerText().trimmed().toLower() == u"post"_s && !IsHidden(button);
}

} // namespace

Element FindCommentBox(const Document& page) {
    for (const Element& area : page.GetElementsByTagName(u"textarea"_s))
        if (Has(area.GetAttribute(u"placeholder"_s), u"Post a comment"_s))
            return area;
    return {};
}

bool HasGrown(const Element& box) {
    return Has(box.ParentElement().Read(ElementText::ClassName), u"absolute"_s);
}

void WriteIntoBox(const Element& box, const QString& text) {
    const Element parent = box.ParentElement();
    box.SetInnerText(text);
    box.SetValue(text);
    for (const Element& beside : parent.Tags(u"*"_s)) {
        const bool isChild = beside.ParentElement().Node() == parent.Node();
        if (!isChild || beside.Node() == box.Node() || !ShowsTextAlone(beside))
            continue;
        beside.SetInnerText(text);
        beside.SetValue(text);
    }
}

Element FindPostButton(const Document& page, int after) {
    const std::vector<Element> buttons = page.GetElementsByTagName(u"button"_s);
    const auto pressed = std::find_if(buttons.begin(), buttons.end(),
                                      [after](const Element& button) { return button.Node() == after; });
    const auto next =
        pressed == buttons.end() ? buttons.end() : std::find_if(pressed + 1, buttons.end(), Posts);
    const auto found = next == buttons.end() ? std::find_if(buttons.begin(), buttons.end(), Posts) : next;
    return found == buttons.end() ? Element() : *found;
}

bool HoldsMarkup(const QString& text) {
    return text.contains(u'<') && text.contains(u'>');
}

} // namespace qlm
