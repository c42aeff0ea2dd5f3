// SPDX-License-Identifier: MIT
#include "ChartPages.h"

#include "../Designs.h"
#include "../Entries.h"
#include "../Frame.h"
#include "../Html.h"

namespace qlm::practice {

namespace {

constexpr int wholeChart = 5; // the page that shows all of it

constexpr QStringView scrollScript = uR"-(<script>
(function () {
  var rows = document.getElementById("growing"), all = Number(rows.dataset.all), isFetching = false;
  function grow() {
    var shown = rows.children.length;
    var atEnd = window.innerHeight + window.scrollY >= document.documentElement.scrollHeight - 200;
    if (isFetching || shown >= all || !atEnd) return;
    isFetching = true;
    var request = new XMLHttpRequest();
    request.open("GET", location.pathname + "?from=" + shown);
    request.onload = function () {
      rows.insertAdjacentHTML("beforeend", request.responseText);
      isFetching = false;
    };
    request.send();
  }
  window.addEventListener("scroll", grow);
}());
</script>)-";

QString Places(Visit& visit, const ListDesign& design, int first) {
    QString places;
    int place = first;
    for (const Person* band :
         Listed(visit.world, design, People::firstId, first, PerPage(visit.world, design))) {
        places += u"<div class=\"place\" id=\"artist-%1\">"_s.arg(++place) + ChartEntry(*band) + u"</div>"_s;
        visit.Show(*band, true);
    }
    return places;
}

QString MoreLink(const ListDesign& design) {
    return Fill(uR"(<p class="more" id="{id}"><a href="{url}">More</a></p>)",
                {{u"id", design.name == u"chart" ? u"showMoreChartItems"_s : u"more"_s},
                 {u"url", PageAddress(design, People::firstId, 2)}});
}

} // namespace

Response ChartPage(Visit& visit) {
    const ListDesign& design = *FindDesign(visit).design;
    const int page = visit.captures.value(0).toInt();
    const int all = EntryCount(visit.world, design);
    if (const QString from = visit.address.query.value(u"from"_s); !from.isEmpty()) {
        Response part;
        part.body = Places(visit, design, qBound(0, from.toInt(), all)).toUtf8();
        return part;
    }
    const bool isWhole = page >= wholeChart;
    const int first = isWhole ? 0 : (qMax(page, 1) - 1) * PerPage(visit.world, design);
    const QString main = Fill(uR"(<div class="box list"><h2>{title}</h2>
<div class="listHead"><p>{all} bands, the best first</p></div>
<div class="grid" id="growing" data-all="{all}">{!places}</div>{!more}</div>{!script})",
                              {{u"title", design.title.toString()},
                               {u"all", QString::number(all)},
                               {u"places", Places(visit, design, first)},
                               {u"more", isWhole ? QString() : MoreLink(design)},
                               {u"script", isWhole ? scrollScript.toString() : QString()}});
    return Framed(visit, {.title = design.title.toString(), .main = main, .tab = {}});
}

} // namespace qlm::practice
