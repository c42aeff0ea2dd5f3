// SPDX-License-Identifier: MIT
#include "CommentPages.h"

#include "../Chance.h"
#include "../Frame.h"
#include "../Html.h"
#include "../MiniProfile.h"
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

QString Part(const World& world, const Person& owner, int first) {
    QString blocks;
    for (const Person* writer : Writers(world, owner).mid(first, commentsPerPart))
        blocks +=
            Fill(uR"(<div class="comment">{!who}<p class="said">{text}</p></div>)",
                 {{u"who", MiniProfile(*writer)},
                  {u"text",
                   remarks[Mix(world.seed, static_cast<quint64>(writer->id)) % remarks.size()].toString()}});
    return blocks + u"<span class=\"moduleBodyEnd\"></span>"_s;
}

// Fetches the next part behind what is there; the caption changes with each, so that the growth shows.
constexpr QStringView growScript = uR"-(<script>
function moreComments(link) {
  var shown = Number(link.dataset.shown), all = Number(link.dataset.all);
  var request = new XMLHttpRequest();
  request.open("GET", location.pathname + "?from=" + shown);
  request.onload = function () {
    document.getElementById("comments").insertAdjacentHTML("beforeend", request.responseText);
    link.dataset.shown = Math.min(shown + Number(link.dataset.part), all);
    link.textContent = "Show more comments (" + link.dataset.shown + " of " + all + ")";
    if (Number(link.dataset.shown) >= all) link.style.display = "none";
  };
  request.send();
}
</script>)-";

QString MoreLink(int shown, int all) {
    return Fill(
               uR"-(<p class="more"><a class="moreComments" href="#more" data-shown="{shown}" data-all="{all}"
 data-part="{part}"{!hidden} onclick="moreComments(this); return false">Show more comments ({shown} of {all})</a></p>)-",
               {{u"hidden", shown >= all ? u" style=\"DISPLAY: none\""_s : QString()},
                {u"shown", QString::number(shown)},
                {u"all", QString::number(all)},
                {u"part", QString::number(commentsPerPart)}}) +
           growScript.toString();
}

} // namespace

Response CommentsPage(Visit& visit) {
    const World& world = visit.world;
    const Person* owner = world.people.Find(visit.captures.value(0).toLongLong());
    if (!owner)
        return NotFound(visit);
    const int all = static_cast<int>(Writers(world, *owner).size());
    if (const QString from = visit.address.query.value(u"from"_s); !from.isEmpty()) {
        Response part;
        part.body = Part(world, *owner, qBound(0, from.toInt(), all)).toUtf8();
        return part;
    }
    const QString main = Fill(uR"(<div class="box list"><h2>{name} : Comments</h2>
<div class="listHead"><p class="slice">What friends wrote</p></div>
<div id="comments" class="comments">{!part}</div>{!more}</div>)",
                              {{u"name", owner->name},
                               {u"part", Part(world, *owner, 0)},
                               {u"more", MoreLink(qMin(all, commentsPerPart), all)}});
    return Framed(
        visit,
        {.title = owner->name + u" : Comments"_s, .main = main, .tab = QString(), .shownId = owner->id});
}

} // namespace qlm::practice
