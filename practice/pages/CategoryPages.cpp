// SPDX-License-Identifier: MIT
#include "CategoryPages.h"

#include "../Frame.h"
#include "../Html.h"
#include "NoticePages.h"

#include <array>

namespace qlm::practice {

namespace {

constexpr std::array<QStringView, 6> categories{u"Family",    u"Band mates", u"Old school friends",
                                                u"Promoters", u"Pen pals",   u"Neighbours & others"};
constexpr int perPage = 4;
constexpr int pages = (static_cast<int>(categories.size()) + perPage - 1) / perPage;

QString NextLink(const QString& address, int page) {
    if (page >= pages)
        return {};
    return Fill(uR"(<p class="pager"><a href="{next}">Next &rsaquo;</a></p>)",
                {{u"next", address + u"&p="_s + QString::number(page + 1)}});
}

} // namespace

Response CategoriesPage(Visit& visit) {
    if (!visit.account)
        return RedirectToSignIn();
    const qint64 owner = visit.address.query.value(u"friendid"_s).toLongLong();
    if (owner != visit.account->id)
        return NotFound(visit);
    const int page = qBound(1, visit.address.query.value(u"p"_s, u"1"_s).toInt(), pages);
    QString rows;
    for (int i = (page - 1) * perPage; i < std::min<int>(page * perPage, categories.size()); ++i)
        rows += Fill(uR"(<li><span id="ctl00_list_ctl{number}_categoryNameLabel">{name}</span>
 <span class="quiet">Viewable by: everyone</span></li>)",
                     {{u"number", QString::number(i)}, {u"name", categories[i].toString()}});
    const QString address =
        Url(Role::Friends, u"/index.cfm?fuseaction=user.viewcategories&friendId=%1"_s.arg(owner));
    const QString main = Fill(uR"(<div class="box list"><h2>Friend Categories</h2>
<div class="in"><ul>{!rows}</ul>{!next}</div></div>)",
                              {{u"rows", rows}, {u"next", NextLink(address, page)}});
    return Framed(visit, {.title = u"Friend Categories"_s, .main = main, .tab = {}});
}

} // namespace qlm::practice
