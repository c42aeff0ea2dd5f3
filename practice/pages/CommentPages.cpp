// SPDX-License-Identifier: MIT
#include "CommentPages.h"

#include "../Chance.h"
#include "../Designs.h"
#include "../Entries.h"
#include "../Frame.h"
#include "../Html.h"
#include "../MiniProfile.h"
#include "CommentBox.h"
#include "NoticePages.h"

#include <array>

namespace qlm::practice {

namespace {

constexpr int commentsPerPart = 20;
constexpr int mostComments = 50;

constexpr std::array<QStringView, 6> remarks{
    u"Thanks for the add! Have a lovely week.", u"That last show was something. When is the next one?",
    u"Just dropping by to say hello.",          u"Your new picture is great!",
    u"Happy birthday, hope that you had cake.", u"Come over when you are in town again."};

// The owner's first friend is the founder, who writes to nobody.
QList<const Person*> Writers(const World& world, const Person& owner) {
    return world.friends.Slice(world.people, owner.id, 1, mostComments);
}

QString CommentsPart(Visit& visit, const Person& owner, int first) {
    QString blocks;
    for (const Person* writer : Writers(visit.world, owner).mid(first, commentsPerPart)) {
        const quint64 chance = Mix(visit.world.seed, static_cast<quint64>(writer->id));
        blocks +=
            Fill(uR"(<div class="comment">{!who}<p class="said">{text}</p></div>)",
                 {{u"who", MiniProfile(*writer)}, {u"text", remarks[chance % remarks.size()].toString()}});
        visit.Show(*writer);
    }
    return blocks + u"<span class=\"moduleBodyEnd\"></span>"_s;
}

QString NoticesPart(Visit& visit, const ListDesign& design, int first, int count) {
    QString blocks = u"<p class=\"slice\">Notifications of %1</p>"_s.arg(
        visit.world.now().date().addDays(-first).toString(u"d MMMM yyyy"_s));
    for (const Person* person : Listed(visit.world, design, visit.account->id, first, count)) {
        blocks += NoticeEntry(*person);
        visit.Show(*person, true);
    }
    return blocks;
}

// Fetches the next part behind what is there; the caption changes with each, so that the growth shows.
constexpr QStringView growScript = uR"-(<script>
function showMore(link) {
  var shown = Number(link.dataset.shown), all = Number(link.dataset.all);
  var request = new XMLHttpRequest();
  request.open("GET", location.pathname + "?from=" + shown);
  request.onload = function () {
    document.getElementById("growing").insertAdjacentHTML("beforeend", request.responseText);
    link.dataset.shown = Math.min(shown + Number(link.dataset.part), all);
    link.textContent = link.dataset.caption.replace("%1", link.dataset.shown).replace("%2", all);
    if (Number(link.dataset.shown) >= all && link.dataset.hides) link.style.display = "none";
  };
  request.send();
}
</script>)-";

// caption: with %1 for how many are shown and %2 for how many there are.
QString MoreLink(const QString& name, const QString& caption, int shown, int all, int part, bool hides) {
    const QString hidden = hides && shown >= all ? u" style=\"DISPLAY: none\""_s : QString();
    return Fill(
        uR"-(<a class="{name}" href="#more" data-shown="{shown}" data-all="{all}" data-part="{part}" data-caption="{pattern}"
 data-hides="{hides}"{!hidden} onclick="showMore(this); return false">{caption}</a>)-",
        {{u"name", name},
         {u"hidden", hidden},
         {u"hides", hides ? u"1"_s : QString()},
         {u"pattern", caption},
         {u"caption", caption.arg(shown).arg(all)},
         {u"shown", QString::number(shown)},
         {u"all", QString::number(all)},
         {u"part", QString::number(part)}});
}

// The part that a script asks for, or nothing when the whole page is wanted.
std::optional<int> WantedPart(const Visit& visit, int all) {
    const QString from = visit.address.query.value(u"from"_s);
    return from.isEmpty() ? std::nullopt : std::optional(qBound(0, from.toInt(), all));
}

Response PartOfPage(const QString& markup) {
    Response part;
    part.body = markup.toUtf8();
    return part;
}

} // namespace

Response CommentsPage(Visit& visit) {
    const World& world = visit.world;
    const Person* owner = world.people.Find(visit.captures.value(0).toLongLong());
    if (!owner)
        return NotFound(visit);
    const int all = static_cast<int>(Writers(world, *owner).size());
    if (const auto from = WantedPart(visit, all))
        return PartOfPage(CommentsPart(visit, *owner, *from));
    CommentBox box = BoxForComment(visit, *owner);
    if (box.page)
        return *std::move(box.page);
    const QString more = MoreLink(u"moreComments"_s, u"Show more comments (%1 of %2)"_s,
                                  qMin(all, commentsPerPart), all, commentsPerPart, true);
    const QString main = Fill(uR"({!box}<div class="box list"><h2>{name} : Comments</h2>
<div class="listHead"><p class="slice">What friends wrote</p></div>
<div id="growing" class="comments">{!part}</div><div class="turn"><div><p class="more">{!more}</p></div></div></div>{!script})",
                              {{u"box", box.markup},
                               {u"name", owner->name},
                               {u"part", CommentsPart(visit, *owner, 0)},
                               {u"more", more},
                               {u"script", growScript.toString()}});
    return Framed(
        visit,
        {.title = owner->name + u" : Comments"_s, .main = main, .tab = QString(), .shownId = owner->id});
}

// New parts come behind the mark. The link stays to the end and only its count tells that it is reached.
Response NotificationsPage(Visit& visit) {
    if (!visit.account)
        return RedirectToSignIn();
    const ListDesign& design = *DesignNamed(u"notifications"_s);
    const int all = EntryCount(visit.world, design);
    const int part = PerPage(visit.world, design);
    if (const auto from = WantedPart(visit, all))
        return PartOfPage(NoticesPart(visit, design, *from, part));
    const QString main = Fill(
        uR"(<div class="box list"><h2>Notifications</h2>
<div class="grid">{!first}</div><span class="paginationProgress"></span>
<div class="grid" id="growing"></div><div class="turn"><div><p class="more">{!more}</p></div></div></div>{!script})",
        {{u"first", NoticesPart(visit, design, 0, part)},
         {u"more", MoreLink(u"moreLink"_s, u"%1 of %2 shown, more"_s, qMin(all, part), all, part, false)},
         {u"script", growScript.toString()}});
    return Framed(visit, {.title = u"Notifications"_s, .main = main, .tab = QString()});
}

} // namespace qlm::practice
