// SPDX-License-Identifier: MIT
#include "DesignPages.h"

#include "../Designs.h"
#include "../Entries.h"
#include "../Frame.h"
#include "../Html.h"
#include "NoticePages.h"

#include <algorithm>

namespace qlm::practice {

namespace {

using How = Turning::How;

QString IdOf(const ListDesign& design, int place) {
    return design.id.toString()
        .replace(u"{p}"_s, QString::number(place))
        .replace(u"{pp}"_s, QString::number(place + 1).rightJustified(2, u'0'));
}

// One entry, with its place's id around it where the design has such.
QString Entry(const ListDesign& design, const Person& person, int place) {
    if (design.id.isEmpty())
        return design.entry(person);
    return u"<div class=\"place\" id=\""_s + IdOf(design, place) + u"\">"_s + design.entry(person) +
           u"</div>"_s;
}

QString Entries(Visit& visit, const ListDesign& design, const Standing& standing) {
    QString entries;
    int place = 0;
    for (const Person* person :
         Listed(visit.world, design, standing.owner, standing.first, standing.perPage)) {
        entries += Entry(design, *person, place++);
        visit.Show(*person, design.names == ListDesign::Names::Numbered);
    }
    return entries;
}

QString NextLink(const ListDesign& design, const Standing& standing, const QString& address) {
    const Turning& next = design.next;
    if (standing.page == standing.pages) {
        if (next.lastPage.isEmpty())
            return {};
        return Fill(uR"-(<li><a {!attributes} href="javascript:void(0)">{!caption}</a></li>)-",
                    {{u"attributes", next.lastPage.toString()}, {u"caption", next.caption.toString()}});
    }
    QString href = next.href.isEmpty() ? Escape(address) : next.href.toString();
    href.replace(u"{n}"_s, QString::number(standing.page + 1));
    const QString click = href == u"#" ? u"onclick=\"%1(); return false\""_s.arg(next.function) : QString();
    return Fill(uR"(<li><a {!attributes} {!click} href="{!href}">{!caption}</a></li>)",
                {{u"attributes", next.attributes.toString()},
                 {u"click", click},
                 {u"href", href},
                 {u"caption", next.caption.toString()}});
}

QString PagerLine(const ListDesign& design, const Standing& standing) {
    const QString address = PageAddress(design, standing.owner, std::min(standing.page + 1, standing.pages));
    QString before;
    if (standing.page > 1 && design.next.how != How::Post)
        before = Fill(uR"(<li><a href="{url}">Previous</a></li>)",
                      {{u"url", PageAddress(design, standing.owner, standing.page - 1)}});
    return Fill(
        uR"(<div class="pager" id="turning" data-next="{next}" data-page="{n}"><ul><li>Page {page} of {pages}</li>{!before}{!link}</ul></div>)",
        {{u"next", address},
         {u"n", QString::number(std::min(standing.page + 1, standing.pages))},
         {u"page", QString::number(standing.page)},
         {u"pages", QString::number(standing.pages)},
         {u"before", before},
         {u"link", NextLink(design, standing, address)}});
}

// What the functions do that the designs' next links call.
QString TurnScript(How how) {
    switch (how) {
    case How::Post:
        return uR"(var form = document.getElementById("postBack");
form.action = turning.dataset.next; form.__EVENTARGUMENT.value = turning.dataset.page; form.submit();)"_s;
    case How::Replace:
        return uR"(var request = new XMLHttpRequest();
request.open("GET", turning.dataset.next);
request.onload = function () {
  var page = new DOMParser().parseFromString(request.responseText, "text/html");
  document.getElementById("list").innerHTML = page.getElementById("list").innerHTML;
};
request.send();)"_s;
    case How::Address:
        break;
    }
    return u"location.href = turning.dataset.next;"_s;
}

QString Script(const Turning& next) {
    if (next.function.isEmpty())
        return {};
    QString script = u"<script>\nfunction turn() {\nvar turning = document.getElementById(\"turning\");\n"_s +
                     TurnScript(next.how) + u"\n}\n"_s;
    const QString name = next.function.toString();
    const qsizetype dot = name.indexOf(u'.');
    script += dot < 0 ? u"var %1 = turn;"_s.arg(name)
                      : u"var %1 = {%2: turn};"_s.arg(name.left(dot), name.mid(dot + 1));
    script += u"\n</script>"_s;
    if (next.how == How::Post)
        script += u"<form id=\"postBack\" method=\"post\"><input type=\"hidden\" name=\"__EVENTTARGET\">"
                  u"<input type=\"hidden\" name=\"__EVENTARGUMENT\"></form>"_s;
    return script;
}

QString Head(const ListDesign& design, const Standing& standing) {
    return Fill(design.head,
                {{u"from", QString::number(std::min(standing.first + 1, standing.count))},
                 {u"to", QString::number(std::min(standing.first + standing.perPage, standing.count))},
                 {u"count", QString::number(standing.count)},
                 {u"owner", QString::number(standing.owner)}});
}

QString SitemapList(std::span<const ListDesign> designs) {
    QString links;
    for (const ListDesign& design : designs)
        links += Fill(uR"(<li><a href="{url}">{title}</a></li>)",
                      {{u"url", PageAddress(design, People::firstId)}, {u"title", design.title.toString()}});
    return links;
}

} // namespace

Response DesignPage(Visit& visit) {
    const ListDesign& design = *FindDesign(visit).design;
    const Standing standing = StandingOf(visit, design);
    const Person* owner = visit.world.people.Find(standing.owner);
    if (!owner)
        return NotFound(visit);
    const QString main = Fill(uR"(<div class="box list"><h2>{title}</h2><div id="list">
<div class="listHead">{!head}</div><div class="grid">{!entries}</div>{!foot}{!pager}</div></div>{!neighbours}{!script})",
                              {{u"title", design.title.toString()},
                               {u"head", Head(design, standing)},
                               {u"entries", Entries(visit, design, standing)},
                               {u"foot", design.foot.toString()},
                               {u"pager", PagerLine(design, standing)},
                               {u"neighbours", design.neighbours ? Neighbours() : QString()},
                               {u"script", Script(design.next)}});
    return Framed(visit, {.title = design.title.toString(), .main = main, .tab = {}, .shownId = owner->id});
}

Response Sitemap(Visit& visit) {
    const QString main =
        Fill(uR"(<div class="cols"><div class="col"><div class="box"><h2>Lists</h2><div class="in">
<ul class="links">{!now}</ul></div></div></div>
<div class="wideCol"><div class="box"><h2>Pages that are left over from before</h2><div class="in">
<ul class="links twoCols">{!old}</ul></div></div>
<div class="box"><h2>Hard to read</h2><div class="in"><ul class="links twoCols">{!hard}</ul></div></div>
<div class="box"><h2>Elsewhere</h2><div class="in"><ul class="links"><li><a href="{search}/">Web search</a></li>
<li><a href="{root}/sitemap/forms">Forms for messages and comments</a></li>
</ul></div></div></div></div>)",
             {{u"now", SitemapList(NewDesigns())},
              {u"old", SitemapList(OldDesigns())},
              {u"hard", SitemapList(HardDesigns())},
              {u"root", Url(Role::SiteRoot, {})},
              {u"search", Url(Role::WebSearch, {})}});
    return Framed(visit, {.title = u"All lists"_s, .main = main, .tab = u"Lists"_s});
}

Response OtherProfileAddress(Visit& visit) {
    const Fields& query = visit.address.query;
    const Person* person =
        visit.world.people.Find(query.value(u"friendid"_s, query.value(u"channelid"_s)).toLongLong());
    return person ? Redirect(Url(Role::SiteRoot, u"/%1"_s.arg(person->id))) : NotFound(visit);
}

} // namespace qlm::practice
