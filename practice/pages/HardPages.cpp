// SPDX-License-Identifier: MIT
#include "HardPages.h"

#include "../Designs.h"
#include "../Entries.h"
#include "../Frame.h"
#include "../Html.h"
#include "NoticePages.h"

namespace qlm::practice {

namespace {

constexpr int linksInARow = 20;

QString Everybody(Visit& visit, const ListDesign& design) {
    QString entries;
    for (const Person* person :
         Listed(visit.world, design, People::firstId, 0, EntryCount(visit.world, design))) {
        entries += NamedEntry(*person);
        visit.Show(*person);
    }
    return entries;
}

Response List(const Visit& visit, const ListDesign& design, const QString& entries, const QString& more) {
    const QString main = Fill(uR"(<div class="box list"><h2>{title}</h2>
<div class="grid">{!entries}</div>{!more}</div>)",
                              {{u"title", design.title.toString()}, {u"entries", entries}, {u"more", more}});
    return Framed(visit, {.title = design.title.toString(), .main = main, .tab = {}});
}

} // namespace

Response ManyLinksPage(Visit& visit) {
    const ListDesign& design = *FindDesign(visit).design;
    QString links;
    const int otherLinks = PerPage(visit.world, design);
    for (int i = 0; i < otherLinks; ++i)
        links += u"%1<a href=\"#n%2\">%2</a>\n"_s.arg(i % linksInARow ? QString() : u"</p><p>"_s).arg(i);
    return List(visit, design, Everybody(visit, design),
                u"<div class=\"in\"><p>"_s + links + u"</p></div>"_s);
}

Response SilentProfilesPage(Visit& visit) {
    const ListDesign& design = *FindDesign(visit).design;
    QString entries;
    for (const QStringView name : {u"silentanna", u"silentbert", u"silentcleo"})
        entries += Fill(uR"(<div class="person"><p><a href="{root}/{name}">{name}</a></p></div>)",
                        {{u"root", Url(Role::SiteRoot, {})}, {u"name", name.toString()}});
    return List(visit, design, entries, {});
}

Response SilentProfile(Visit& visit) {
    return Notice(visit, visit.address.segments.value(0), u"This profile says nothing at all."_s);
}

Response CirclePage(Visit& visit) {
    const ListDesign& design = *FindDesign(visit).design;
    return List(
        visit, design, Everybody(visit, design),
        u"<p class=\"slice\">Showing 1-20 of 400</p>"
        u"<div class=\"pager\"><ul><li><a href=\"/hard/circle?x=1&amp;page=2\">Next \u203A</a></li></ul></div>"_s);
}

} // namespace qlm::practice
