// SPDX-License-Identifier: MIT
#include "Designs.h"

#include "Chance.h"

#include <QRegularExpression>
#include <algorithm>

namespace qlm::practice {

namespace {

QString WithOwner(QStringView pattern, qint64 owner) {
    return pattern.toString().replace(u"{id}"_s, QString::number(owner));
}

bool SegmentFits(QStringView pattern, const QString& segment, QStringList& captures) {
    if (pattern != u"{id}")
        return segment.compare(pattern, Qt::CaseInsensitive) == 0;
    captures.append(segment);
    return IsDigits(segment);
}

// The page's number may follow as segments of its own, as in "/page/3".
bool PathFits(const ListDesign& design, const QStringList& segments, QStringList& captures) {
    auto parts = design.path.split(u'/', Qt::SkipEmptyParts);
    if (design.page.startsWith(u'/') && segments.size() > parts.size()) {
        parts += design.page.split(u'/', Qt::SkipEmptyParts);
        parts.append(QStringView(u"{id}"));
    }
    if (parts.size() != segments.size())
        return false;
    for (qsizetype i = 0; i < parts.size(); ++i)
        if (!SegmentFits(parts[i], segments[i], captures))
            return false;
    return true;
}

// The query's field that holds the page's number; "" when it stands elsewhere.
QString PageKey(const ListDesign& design) {
    const QString page = design.page.toString();
    return page.endsWith(u'=') ? page.section(QRegularExpression(u"[?&]"_s), -1).chopped(1).toLower()
                               : QString();
}

bool QueryFits(const ListDesign& design, const Fields& query) {
    const QString key = PageKey(design);
    if (design.everyPage && !key.isEmpty() && !query.contains(key))
        return false;
    const Fields wanted = ParseFields(design.query.mid(1).toString());
    for (const QString& field : {u"fuseaction"_s, u"type"_s})
        if (wanted.contains(field) && query.value(field).compare(wanted[field], Qt::CaseInsensitive) != 0)
            return false;
    return true;
}

bool Belongs(const ListDesign& design, const Person& person) {
    switch (design.who) {
    case ListDesign::Who::People:
        return person.kind == Person::Kind::Person;
    case ListDesign::Who::Bands:
        return person.kind == Person::Kind::Band;
    case ListDesign::Who::Everybody:
        break;
    }
    return true;
}

} // namespace

const QList<const ListDesign*>& AllDesigns() {
    static const QList<const ListDesign*> all = [] {
        QList<const ListDesign*> designs;
        for (const auto& table : {NewDesigns(), OldDesigns(), HardDesigns()})
            for (const ListDesign& design : table)
                designs.append(&design);
        return designs;
    }();
    return all;
}

const ListDesign* DesignNamed(const QString& name) {
    const auto& all = AllDesigns();
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const ListDesign* design) { return design->name == name; });
    return found == all.end() ? nullptr : *found;
}

QString PageAddress(const ListDesign& design, qint64 owner, int page) {
    const QString first =
        Url(design.role, u'/' + WithOwner(design.path, owner)) + WithOwner(design.query, owner);
    if (design.page.isEmpty() || (page == 1 && !design.everyPage))
        return first;
    return first + design.page.toString() + QString::number(page);
}

// Two designs may share an address that only one of them wants a page's number in.
DesignMatch FindDesign(const Visit& visit) {
    DesignMatch best{nullptr, {}};
    for (const ListDesign* design : AllDesigns()) {
        QStringList captures;
        if (design->role != visit.role || !PathFits(*design, visit.address.segments, captures) ||
            !QueryFits(*design, visit.address.query))
            continue;
        if (!best.design || (design->everyPage && !best.design->everyPage))
            best = {design, captures};
    }
    return best;
}

Standing StandingOf(const Visit& visit, const ListDesign& design) {
    const Fields& query = visit.address.query;
    const bool inPath = design.path.contains(u"{id}");
    const bool pageInPath = design.page.startsWith(u'/') && visit.captures.size() > (inPath ? 1 : 0);
    Standing standing;
    if (inPath)
        standing.owner = visit.captures.value(0).toLongLong();
    else if (design.query.contains(u"{id}"))
        standing.owner = query.value(u"friendid"_s).toLongLong();
    QString page = pageInPath ? visit.captures.last() : query.value(PageKey(design));
    if (page.isEmpty())
        page = visit.form.value(u"__eventargument"_s);
    const int count = EntryCount(visit.world, design);
    standing.perPage = PerPage(visit.world, design);
    standing.pages = std::max(1, (count + standing.perPage - 1) / standing.perPage);
    standing.page = std::clamp(page.isEmpty() ? 1 : page.toInt(), 1, standing.pages);
    standing.first = (standing.page - 1) * standing.perPage;
    standing.count = count;
    return standing;
}

int EntryCount(const World& world, const ListDesign& design) {
    return world.lists.Entries(design.name.toString(), design.entries);
}

int PerPage(const World& world, const ListDesign& design) {
    return world.lists.PerPage(design.name.toString(), design.perPage);
}

QList<const Person*> Listed(const World& world, const ListDesign& design, qint64 owner, int first,
                            int count) {
    quint64 key = Mix(world.seed, static_cast<quint64>(owner), 17);
    for (const QChar c : design.name)
        key = Mix(key, c.unicode());
    const Shuffle crowd(key, People::crowdSize);
    const int end = std::min(first + count, EntryCount(world, design));
    QList<const Person*> listed;
    int place = 0;
    for (int i = 0; i < People::crowdSize && place < end; ++i) {
        const Person& person = world.people.Crowd()[crowd.At(i)];
        if (person.id == owner || !Belongs(design, person))
            continue;
        if (place++ >= first)
            listed.append(&person);
    }
    return listed;
}

} // namespace qlm::practice
