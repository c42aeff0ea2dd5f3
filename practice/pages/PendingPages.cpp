// SPDX-License-Identifier: MIT
#include "PendingPages.h"

#include "../Entries.h"
#include "../Frame.h"
#include "../Html.h"
#include "RequestLists.h"

namespace qlm::practice {

namespace {

constexpr int perPage = 20;

QString Entry(Visit& visit, qint64 id) {
    const Person* person = visit.world.people.Find(id);
    if (person)
        visit.Show(*person, true);
    return Fill(
        uR"(<div class="request"><input type="checkbox" id="request{id}" name="request" value="{id}">{!who}</div>)",
        {{u"id", QString::number(id)},
         {u"who",
          person ? PendingEntry(*person)
                 : u"<div class=\"mailRow\">Currently awaiting approval from somebody who is gone</div>"_s}});
}

// The button is a span that sends what is ticked.
QString Head(const RequestPage& page) {
    return Fill(uR"-(<div class="listHead"><p class="slice">{slice}</p><p class="check">
<input type="checkbox" id="chktop" onclick="tickAll(this)" data-on-click="{clicks}"><label for="chktop">All</label></p>
<p><span class="link" id="spancanceltop" onclick="requestForm().submit()"
 data-on-click="submit #requests">Cancel Request</span></p></div>)-",
                {{u"slice", page.Slice()}, {u"clicks", ClicksOnAll(page)}});
}

QString Body(Visit& visit, const QList<qint64>& pending, const QString& address) {
    RequestPage page = PageOf(visit, pending, perPage);
    page.address = address + u"&page="_s;
    QString entries;
    for (const qint64 id : page.ids)
        entries += Entry(visit, id);
    return Fill(
        uR"(<form method="post" action="{address}" id="requests" data-pages="{pages}" data-last="{last}">{!head}
<div class="grid">{!entries}</div></form>{!pager})",
        {{u"address", address},
         {u"pages", page.address},
         {u"last", QString::number(page.pages)},
         {u"head", Head(page)},
         {u"entries", entries},
         {u"pager", RequestPager(page, LastLink::GoToPage)}});
}

// How many have been taken back.
int Cancel(Visit& visit) {
    int cancelled = 0;
    for (const QString& id : ValuesOf(visit.request.body, u"request"_s))
        cancelled += CancelRequest(visit, id.toLongLong()) ? 1 : 0;
    return cancelled;
}

QString Note(int cancelled) {
    if (cancelled == 0)
        return u"<p class=\"warn\">Nobody has been chosen.</p>"_s;
    return cancelled == 1
               ? u"<p class=\"warn\">Your sent request has been cancelled.</p>"_s
               : u"<p class=\"warn\">Your sent request has been cancelled, %1 in all.</p>"_s.arg(cancelled);
}

} // namespace

bool HasPendingRequests(const Visit& visit) {
    return visit.account && visit.world.requests.HasAskedAnybody(visit.account->id);
}

Response PendingRequests(Visit& visit) {
    const QString note = visit.IsPost() ? Note(Cancel(visit)) : QString();
    const QList<qint64> pending = visit.world.requests.Pending(visit.account->id);
    const QString address = Url(Role::Messaging, u"/index.cfm?fuseaction=mail.pendingFriendRequests"_s);
    const QString main = Fill(
        uR"(<div class="box list"><h2>Pending Requests</h2><div class="in">{!note}<p>Mail Center</p></div>{!body}</div>{!scripts})",
        {{u"note", note},
         {u"body", pending.isEmpty() ? u"<p class=\"empty\">There are 0 requests in this folder.</p>"_s
                                     : Body(visit, pending, address)},
         {u"scripts", RequestScripts()}});
    return Framed(visit, {.title = u"Pending Requests"_s, .main = main, .tab = {}});
}

} // namespace qlm::practice
