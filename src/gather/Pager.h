// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"

#include <QString>
#include <functional>
#include <optional>
#include <vector>

namespace qlm {

class App;

// How a page says "next page".
class Pager {
public:
    explicit Pager(App& app) : m_app(app) {}

    // The pages of the new layout, by their address. Pumps once a link. "DONTLOOKAGAIN" means that the page's
    // own way leads nowhere and no other is to be tried. Sets blnClickNextLink where the answer is a caption.
    QString GetNextPageHref();
    // The ordered table over all links; "" when no row fits. Pumps once a link. Sets blnClickNextLink where
    // the answer is a caption.
    QString FindNextLink();
    // Does the page show that its way to the next page has arrived?
    bool ShowsNextPageSign();
    // Clicks the first link with that caption; a newHref that isn't empty is given to it first.
    bool ClickNextPageLink(const QString& caption, const QString& newHref);

private:
    // A kind of page, known by what its address contains.
    struct PageRow {
        const char16_t* address;
        QString (*find)(Pager&);
    };
    static const std::vector<PageRow>& PageRows();

    // What the link and its text (trimmed, lower case) answer; nothing goes on to the next link.
    using LinkAnswer = std::function<std::optional<QString>(const Element& link, const QString& text)>;
    QString WalkLinks(ElementText which, const LinkAnswer& answer);
    // The turn of the message loop that each link of a walk has.
    bool TurnOn(const Document& document);
    QString LinkTitledNextPage(bool wantText);
    QString CaptionToClick();
    QString LinkWithText(const QString& text);
    QString ShowMoreOfChart();

    App& m_app;
};

} // namespace qlm
