// SPDX-License-Identifier: MIT
#include "FormMap.h"

#include "../BulletinDesigns.h"
#include "../CommentDesigns.h"
#include "../ComposeDesigns.h"
#include "../FormChoice.h"
#include "../Frame.h"
#include "../Html.h"
#include "../StatusDesigns.h"

namespace qlm::practice {

namespace {

template <typename Row> QString Rows(const World& world, std::span<const Row> designs, bool older) {
    QString rows;
    for (const Row& design : designs) {
        if (design.older != older)
            continue;
        const Person* found = world.people.Find(FirstWithForm(designs, design));
        if (!found)
            continue;
        const Person& person = *found;
        rows += Fill(
            uR"(<tr><td>{name}</td><td>{says}</td><td><a href="{url}">{person}</a></td><td>{id}</td></tr>)",
            {{u"name", design.name.toString()},
             {u"says", design.says.toString()},
             {u"url", FormAddress(design, person.id)},
             {u"person", person.name},
             {u"id", QString::number(person.id)}});
    }
    return rows;
}

QString Table(const QString& title, const QString& rows) {
    return Fill(
        uR"(<div class="box"><h2>{title}</h2><div class="in"><table class="forms">{!rows}</table></div></div>)",
        {{u"title", title}, {u"rows", rows}});
}

template <typename Row>
QString Table(const World& world, const QString& title, std::span<const Row> designs, bool older) {
    return Table(title, Rows(world, designs, older));
}

// What goes to everybody is shown in the design that a control has chosen.
template <typename Row> QString RowsForAll(std::span<const Row> designs, bool older, const QString& url) {
    QString rows;
    for (const Row& design : designs)
        if (design.older == older)
            rows +=
                Fill(uR"(<tr><td>{name}</td><td>{says}</td><td><a href="{url}">{url}</a></td></tr>)",
                     {{u"name", design.name.toString()}, {u"says", design.says.toString()}, {u"url", url}});
    return rows;
}

QString TablesForAll() {
    const QString bulletins = Url(Role::SiteRoot, u"/bulletins/new"_s);
    const QString home = Url(Role::Home, u"/index.cfm?fuseaction=home&f=7"_s);
    return Table(u"Bulletins"_s, RowsForAll(BulletinDesigns(), false, bulletins)) +
           Table(u"Bulletins, old pages"_s, RowsForAll(BulletinDesigns(), true, bulletins)) +
           Table(u"Status updates"_s, RowsForAll(StatusDesigns(), false, home)) +
           Table(u"Status updates, old pages"_s, RowsForAll(StatusDesigns(), true, Url(Role::Home, u"/"_s)));
}

} // namespace

Response FormMap(Visit& visit) {
    const World& world = visit.world;
    const QString main = Table(world, u"Messages"_s, ComposeDesigns(), false) +
                         Table(world, u"Messages, old pages"_s, ComposeDesigns(), true) +
                         Table(world, u"Comments"_s, CommentDesigns(), false) +
                         Table(world, u"Comments, old pages"_s, CommentDesigns(), true) + TablesForAll();
    return Framed(visit, {.title = u"All forms"_s, .main = main, .tab = u"Lists"_s});
}

} // namespace qlm::practice
