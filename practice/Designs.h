// SPDX-License-Identifier: MIT
#pragma once

#include "SiteHosts.h"
#include "Visit.h"

#include <QStringView>
#include <span>

namespace qlm::practice {

struct Person;

/// How a page says "next".
struct Turning {
    enum class How {
        Address, ///< leads to the next page's address
        Post,    ///< sends a form with the page's number
        Replace, ///< fetches the next page and puts its list in place of this one
    };

    QStringView caption;   ///< "" when the design has a handler of its own
    QStringView href = {}; ///< what the link says in place of the address; "{n}" is the next page's number
    QStringView function = {}; ///< name of the script function behind that, such as "requestlist.GoToPage"
    How how = How::Address;
    QStringView attributes = {}; ///< further attributes of the link
    QStringView lastPage = {};   ///< attributes of a dead link on the last page; "" for none
};

/// One of the site's many ways to show a list of people, with what it takes to make its pages. The markup is
/// what readers of the site's lists know these pages by.
struct ListDesign {
    enum class Who { Everybody, People, Bands };
    /// Whether the page gives away the number of people whose address is a name.
    enum class Names { Hidden, Numbered };

    QStringView name;  ///< in controls and tests
    QStringView title; ///< of the page and of the link that leads there
    Role role;
    QStringView path;       ///< "{id}" stands for the owner
    QStringView query = {}; ///< with its "?"; "{id}" stands for the owner
    QStringView page = {};  ///< what the number of a page follows in its address; "" when it isn't there
    bool everyPage = false; ///< the first page's number stands there too
    Who who = Who::Everybody;
    int perPage = 20;
    int entries = 50; ///< until a control says otherwise
    Names names = Names::Hidden;
    QString (*entry)(const Person&) = nullptr;
    QStringView id = {};   ///< of every entry; "{p}" is its place on the page from 0, "{pp}" from 01
    QStringView head = {}; ///< above the list; {from}, {to}, {count}, {owner}
    QStringView foot = {}; ///< below it
    Turning next = {};
    bool neighbours = false;   ///< people around the list who don't belong to it
    Handler handler = nullptr; ///< for designs that a table doesn't describe
};

std::span<const ListDesign> NewDesigns();  ///< the site as it is now
std::span<const ListDesign> OldDesigns();  ///< pages that are left over from before
std::span<const ListDesign> HardDesigns(); ///< made to be hard to read
/// All of these, in that order.
const QList<const ListDesign*>& AllDesigns();
/// nullptr when there is none of that name.
const ListDesign* DesignNamed(const QString& name);

/// The whole address of a page of somebody's list; pages count from 1.
QString PageAddress(const ListDesign& design, qint64 owner, int page = 1);

struct DesignMatch {
    const ListDesign* design;
    QStringList captures;
};
/// The design that a request's address belongs to; nullptr inside when it is none.
DesignMatch FindDesign(const Visit& visit);

/// Where a visit stands in a list.
struct Standing {
    qint64 owner = People::firstId; ///< whose list it is, for designs that have owners
    int page = 1;
    int pages = 1;
    int first = 0; ///< counted from 0
    int perPage = 0;
    int count = 0; ///< of the whole list
};
Standing StandingOf(const Visit& visit, const ListDesign& design);

/// Who stands on somebody's list of that design: `count` people from place `first` on.
QList<const Person*> Listed(const World& world, const ListDesign& design, qint64 owner, int first, int count);
/// Length of the list and of its pages, as controls have it.
int EntryCount(const World& world, const ListDesign& design);
int PerPage(const World& world, const ListDesign& design);

} // namespace qlm::practice
