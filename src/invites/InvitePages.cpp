// SPDX-License-Identifier: MIT
#include "invites/InvitePages.h"

#include "core/Integer16.h"
#include "core/Text.h"

#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

Document Standing(BrowserControl& browser) {
    const Document page = browser.Document();
    return page && page.Body() ? page : Document();
}

} // namespace

bool PageHas(BrowserControl& browser, const QString& text) {
    browser.SetSilent(true);
    const Document page = Standing(browser);
    return page && Has(page.BodyText(), text);
}

bool PageHasMarkup(BrowserControl& browser, const QString& text) {
    browser.SetSilent(true);
    const Document page = Standing(browser);
    return page && Has(page.BodyHTML(), text);
}

QString TitleOf(const Document& page) {
    const std::vector<Element> titles = page.GetElementsByTagName(u"title"_s);
    return titles.empty() ? QString() : titles.front().InnerText().trimmed();
}

qint16 PageNumberOf(const Document& page) {
    const QString markup = page.BodyHTML();
    const qsizetype place = markup.indexOf(u"currentpage"_s, 0, Qt::CaseInsensitive);
    const qsizetype begin = place < 0 ? -1 : markup.indexOf(u'>', place);
    const qsizetype end = begin < 0 ? -1 : markup.indexOf(u'<', begin);
    return end < 0 ? qint16(0) : InInteger(ToLong(markup.mid(begin + 1, end - begin - 1)).value_or(0));
}

QString GroupNameIn(const QString& title) {
    constexpr qsizetype divider = 3;
    const qsizetype at = title.indexOf(u"MySpace Groups"_s, 0, Qt::CaseInsensitive);
    return at <= divider ? QString() : title.left(at - divider);
}

QString EventNameIn(const QString& title) {
    const QString editing = u"Editing "_s;
    const QString name =
        title.left(std::max<qsizetype>(0, title.indexOf(u" | MySpace"_s, 0, Qt::CaseInsensitive)));
    return name.startsWith(editing, Qt::CaseInsensitive) ? name.mid(editing.size()) : name;
}

bool IsHidden(const Element& element) {
    return Has(element.GetAttribute(u"style"_s).remove(u' '), u"display:none"_s);
}

Element LinkReading(const Document& page, const QString& text) {
    for (const Element& link : page.Links())
        if (link.InnerText().trimmed().compare(text, Qt::CaseInsensitive) == 0)
            return link;
    return {};
}

} // namespace qlm
