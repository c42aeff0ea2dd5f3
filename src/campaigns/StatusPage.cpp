// SPDX-License-Identifier: MIT
#include "campaigns/StatusPage.h"

#include "core/Text.h"

#include <algorithm>
#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Box = u"spStatus"_s;
const QString LoadingStream = u"streamContainer listViewContainer MSIcon loadingIconWhiteLight"_s;

template <typename Test> Element FirstOf(const std::vector<Element>& elements, const Test& test) {
    const auto found = std::find_if(elements.begin(), elements.end(), test);
    return found == elements.end() ? Element() : *found;
}

bool Reads(const Element& element, const QString& word) {
    return element.InnerText().trimmed().toLower() == word;
}

} // namespace

bool HasStatusBox(const Document& page, bool newLayout) {
    return StatusBox(page) && (newLayout || Has(page.BodyHTML(), u"filterstreambyfriend"_s));
}

bool InvitesToShare(const QString& pageText) {
    return Has(pageText, u"Share what you're into"_s) || Has(pageText, u"Share what you\u2019re into"_s);
}

Element StatusBox(const Document& page) {
    return page.GetElementById(Box);
}

bool PressShare(const Document& page) {
    bool isPressed = false;
    for (const Element& button : page.GetElementsByTagName(u"button"_s))
        if (Reads(button, u"share"_s) && Has(button.Id(), u"submitBtn"_s)) {
            button.Click();
            isPressed = true;
        }
    return isPressed;
}

void ShowOwnUpdates(const Document& page) {
    const Element filter = FirstOf(page.GetElementsByTagName(u"select"_s),
                                   [](const Element& each) { return Has(each.InnerHTML(), u">Just Me<"_s); });
    if (!filter)
        return;
    filter.SetValue(u"1"_s);
    filter.FireChange();
}

void ConfirmOldDeletion(const Document& page) {
    const QString question = u"Are you sure you want to delete this update"_s;
    if (const Element yes = FirstOf(page.GetElementsByTagName(u"input"_s), [&question](const Element& each) {
            return each.Value().trimmed().toLower() == u"yes" &&
                   Has(each.ParentElement().InnerHTML(), question);
        }))
        yes.Click();
}

bool IsStreamLoading(const Document& page) {
    return Has(page.BodyHTML(), LoadingStream);
}

void PressDeleteUpdate(const Document& page) {
    const Element link =
        FirstOf(page.Links(), [](const Element& each) { return Reads(each, u"delete this update"_s); });
    if (!link)
        return;
    if (const std::vector<Element> children = link.Tags(u"*"_s); !children.empty())
        children.front().Click();
}

void ConfirmNewDeletion(const Document& page) {
    if (const Element ok = FirstOf(page.GetElementsByTagName(u"button"_s),
                                   [](const Element& each) { return Reads(each, u"ok"_s); }))
        ok.Click();
}

} // namespace qlm
