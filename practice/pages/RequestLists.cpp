// SPDX-License-Identifier: MIT
#include "RequestLists.h"

#include "../Html.h"

#include <algorithm>

namespace qlm::practice {

namespace {

constexpr QStringView postBackTarget = u"ctl00$ctl00$cpMain$cpMain$messagingMain$FriendRequestsIncomingV2$"
                                       u"pagingNavigation1$LastRecordDirectPageLinkButton";

QString Href(int page, LastLink how) {
    return how == LastLink::GoToPage ? u"javascript: requestlist.GoToPage('%1', 'page')"_s.arg(page)
                                     : u"javascript:__doPostBack('%1','')"_s.arg(postBackTarget);
}

QString Link(const RequestPage& page, const QString& href, int to, const QString& caption) {
    return Fill(uR"(<a href="{href}" data-on-click="goto {url}">{caption}</a>)",
                {{u"href", href}, {u"url", page.address + QString::number(to)}, {u"caption", caption}});
}

QString Step(const RequestPage& page, LastLink how, int to, const QString& caption) {
    if (to < 1 || to > page.pages)
        return {};
    const QString address = page.address + QString::number(to);
    return u"<li>"_s + Link(page, how == LastLink::GoToPage ? Href(to, how) : address, to, caption) +
           u"</li>"_s;
}

} // namespace

RequestPage PageOf(const Visit& visit, const QList<qint64>& all, int perPage, const QString& key) {
    RequestPage page;
    page.count = static_cast<int>(all.size());
    page.pages = std::max(1, (page.count + perPage - 1) / perPage);
    page.page = std::clamp(visit.address.query.value(key, u"1"_s).toInt(), 1, page.pages);
    page.first = (page.page - 1) * perPage;
    page.ids = all.mid(page.first, perPage);
    return page;
}

QString ClicksOnAll(const RequestPage& page) {
    QStringList clicks;
    for (const qint64 id : page.ids)
        clicks += u"click #request%1"_s.arg(id);
    return clicks.join(u"; "_s);
}

bool CancelRequest(Visit& visit, qint64 target) {
    const qint64 account = visit.account->id;
    if (!visit.world.requests.Withdraw(account, target))
        return false;
    visit.world.incoming.Remove(target, account);
    visit.world.journal.Write(u"cancelled %1 %2"_s.arg(account).arg(target));
    return true;
}

QString RequestPager(const RequestPage& page, LastLink how) {
    if (page.pages == 1)
        return {};
    const QString number = QString::number(page.pages);
    const bool isLinked = how != LastLink::None && page.page < page.pages;
    const QString last =
        isLinked ? Link(page, Href(page.pages, how), page.pages, number) : u"<b>"_s + number + u"</b>"_s;
    return Fill(
        uR"(<div class="pager"><ul><li><span class="pagingLink">Page {page} of {!last}</span></li>{!before}{!next}</ul></div>)",
        {{u"page", QString::number(page.page)},
         {u"last", last},
         {u"before", Step(page, how, page.page - 1, u"previous"_s)},
         {u"next", Step(page, how, page.page + 1, u"next"_s)}});
}

QString RequestScripts() {
    return Fill(uR"(<script src="{root}/style/requests.js"></script>)", {{u"root", Url(Role::SiteRoot, {})}});
}

} // namespace qlm::practice
