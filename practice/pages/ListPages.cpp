// SPDX-License-Identifier: MIT
#include "ListPages.h"

#include "../Chance.h"
#include "../Designs.h"
#include "../Frame.h"
#include "../Html.h"
#include "../MiniProfile.h"
#include "NoticePages.h"

#include <algorithm>

namespace qlm::practice {

namespace {

struct Extent {
    int page;
    int pages;
    int first; // counted from 0
    int last;  // the entry behind the page
};

// An empty list has one page.
Extent PageExtent(const QString& wanted, int entries, int perPage) {
    const int pages = std::max(1, (entries + perPage - 1) / perPage);
    const int page = std::clamp(wanted.isEmpty() ? 1 : wanted.toInt(), 1, pages);
    return {page, pages, (page - 1) * perPage, std::min(page * perPage, entries)};
}

QString SliceText(const QString& word, const Extent& extent, int entries) {
    return u"%1 %2-%3 of %4"_s.arg(word).arg(entries ? extent.first + 1 : 0).arg(extent.last).arg(entries);
}

QString Blocks(Visit& visit, const QList<const Person*>& people) {
    QString blocks;
    for (const Person* person : people) {
        blocks += MiniProfile(*person);
        visit.Show(*person);
    }
    return blocks.isEmpty() ? u"<p class=\"empty\">Nobody yet.</p>"_s : blocks;
}

// Shuffled, so that a page isn't a run of IDs.
QList<const Person*> BrowseOrder(const World& world) {
    const Shuffle crowd(Mix(world.seed, 9), People::crowdSize);
    QList<const Person*> order;
    for (int i = 0; i < People::crowdSize; ++i) {
        const Person& person = world.people.Crowd()[crowd.At(i)];
        if (person.kind == Person::Kind::Person)
            order.append(&person);
    }
    return order;
}

} // namespace

Response FriendsPage(Visit& visit) {
    const World& world = visit.world;
    const Person* owner = world.people.Find(visit.captures.value(0).toLongLong());
    if (!owner)
        return NotFound(visit);
    const int all = world.friends.Count(owner->id);
    const int count = std::min(all, world.lists.Entries(u"friends"_s, all));
    const int perPage = PerPage(world, *DesignNamed(u"friends"_s));
    const Extent extent = PageExtent(visit.captures.value(1), count, perPage);
    const QString base = Url(Role::SiteRoot, u"/%1/friends"_s.arg(owner->id));
    const Pager pager{base + u"/page/"_s, extent.page, extent.pages, u"Next \u203A"_s};
    const QString main = Fill(
        uR"(<div class="box list"><h2>{name} : Friends ({count})</h2>
<div class="listHead"><ul><li><a href="{profile}">Back to Profile</a></li><li>
<a href="{base}">View All Friends</a></li></ul>
<p>You can search for Display Name and town on the browse pages.</p>
<p>Display: all friends, newest last</p><p class="slice">{slice}</p></div>
{!pager}<div class="grid">{!blocks}</div>{!pager}</div>)",
        {{u"name", owner->name},
         {u"count", QString::number(count)},
         {u"profile", Url(Role::SiteRoot, u"/%1"_s.arg(owner->id))},
         {u"base", base},
         {u"slice", SliceText(u"Listing"_s, extent, count)},
         {u"pager", PagerMarkup(pager)},
         {u"blocks", Blocks(visit, world.friends.Slice(world.people, owner->id, extent.first, perPage))}});
    return Framed(visit, {.title = owner->name + u" : Friends"_s,
                          .main = main,
                          .tab = visit.account && visit.account->id == owner->id ? u"Friends"_s : QString(),
                          .shownId = owner->id});
}

Response OldFriendsAddress(Visit& visit) {
    const Person* owner = visit.world.people.Find(visit.address.query.value(u"friendid"_s).toLongLong());
    return owner ? Redirect(Url(Role::SiteRoot, u"/%1/friends"_s.arg(owner->id))) : NotFound(visit);
}

Response BrowsePage(Visit& visit) {
    const ListDesign& design = *DesignNamed(u"browse"_s);
    const QList<const Person*> everybody = BrowseOrder(visit.world).mid(0, EntryCount(visit.world, design));
    const int count = static_cast<int>(everybody.size());
    const int perPage = PerPage(visit.world, design);
    const Extent extent = PageExtent(visit.address.query.value(u"page"_s), count, perPage);
    const Pager pager{Url(Role::SiteRoot, u"/browse/people?page="_s), extent.page, extent.pages, u"Next"_s};
    const QString main = Fill(uR"(<div class="box list"><h2>Browse People</h2>
<div class="listHead"><p class="slice">{slice}</p></div>
{!pager}<div class="grid">{!blocks}</div>{!pager}</div>)",
                              {{u"slice", SliceText(u"Showing"_s, extent, count)},
                               {u"pager", PagerMarkup(pager)},
                               {u"blocks", Blocks(visit, everybody.mid(extent.first, perPage))}});
    return Framed(visit, {.title = u"Browse People"_s, .main = main, .tab = u"Browse"_s});
}

} // namespace qlm::practice
